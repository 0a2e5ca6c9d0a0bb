#include "aids/frmAddCondition.h"

#include "aids/pure/condition_text.h"
#include "core/pure/search_modes.h"
#include "core/shared_state.h"
#include "platform/controls/connect_handler.h"
#include "platform/dialogs/dialogs.h"
#include "platform/host/host.h"
#include "platform/text/trim.h"
#include "presentation/main_input.h"
#include "presentation/target_caption.h"
#include "search/composite_text.h"
#include "ui_frmAddCondition.h"

frmAddCondition::frmAddCondition()
    : Form(QStringLiteral("frmAddCondition")), m_ui(std::make_unique<Ui::frmAddCondition>())
{
    m_ui->setupUi(this);
    SetDialogFrame();
    SetKeyButtons(m_ui->Command1, m_ui->Command2);
    using controls::ConnectHandler;
    ConnectHandler(m_ui->Command1, &QPushButton::clicked, this, &frmAddCondition::Command1_Click);
    ConnectHandler(m_ui->Command2, &QPushButton::clicked, this, &frmAddCondition::Command2_Click);
}

frmAddCondition::~frmAddCondition() = default;

void frmAddCondition::Form_Load()
{
    SetMainWindowInput(false);
    m_ui->Label10->setText(Shared.CurrentDicName);
    m_ui->Label11->setText(SearchTargetName(Shared.SearchTarget));
    m_ui->Label12->setText(SearchModeName(Shared.SearchMode));
    m_ui->Label8->setText(TargetCaption(Shared.SearchTarget));
    const frmFind *window = MainWindow();
    const CompositeText parts = SplitCompositeText(window ? window->txtFind->Text() : QString());
    m_ui->Text3->SetText(parts.word);
    m_ui->Text1->SetText(parts.meaning);
    m_ui->Text2->SetText(parts.example);
    m_ui->Text3->setFocus();
    m_ui->Text3->selectAll();
}

void frmAddCondition::Form_Unload(controls::UnloadReason) { SetMainWindowInput(true); }

void frmAddCondition::Command1_Click()
{
    if (text::Trim(m_ui->Text3->Text()).isEmpty()) {
        dialogs::BeepAndMsgBox(host::BeepExclamation,
                               QStringLiteral("見出し語の検索文字列が指定されていません！\r\n\r\n"
                                              "検索しようとする見出し語に含まれる文字列を入力してください。"),
                               dialogs::Exclamation, QStringLiteral("検索文字列なし"));
        m_ui->Text3->setFocus();
        return;
    }
    if (frmFind *window = MainWindow())
        window->txtFind->SetText(
            ComposeSearchText(m_ui->Text3->Text(), m_ui->Text1->Text(), m_ui->Text2->Text()));
    Unload();
}

void frmAddCondition::Command2_Click() { Unload(); }
