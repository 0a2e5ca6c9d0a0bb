#include "aids/frmListSettings.h"

#include "aids/digit_filter.h"
#include "core/list_settings.h"
#include "core/pure/search_modes.h"
#include "platform/controls/connect_handler.h"
#include "platform/controls/white_base.h"
#include "platform/dialogs/dialogs.h"
#include "platform/host/host.h"
#include "presentation/main_input.h"
#include "ui_frmListSettings.h"

#include <QAbstractItemView>

namespace
{

void MakeEntriesBox(QComboBox &box, DigitFilter &filter)
{
    // A number typed is a number, not the beginning of one in the list.
    box.setCompleter(nullptr);
    controls::UseWhiteBase(box);
    controls::UseWhiteBase(*box.view());
    controls::UseWhiteBase(*box.lineEdit());
    filter.Guard(&box, box.lineEdit());
}

void ShowEntries(QComboBox &box, const QString &number)
{
    const int row = box.findText(number, Qt::MatchExactly | Qt::MatchCaseSensitive);
    box.setCurrentIndex(row);
    if (row < 0)
        box.setEditText(number);
}

int AskForSaving(const QString &question)
{
    return dialogs::BeepAndMsgBox(host::BeepQuestion, question, dialogs::YesNoCancel | dialogs::Question,
                                  QStringLiteral("変更確認"));
}

void ResetLists(bool showsPage)
{
    if (frmFind *window = MainWindow())
        window->ResetMainView(showsPage);
}

} // namespace

frmListSettings::frmListSettings()
    : Form(QStringLiteral("frmListSettings")), m_ui(std::make_unique<Ui::frmListSettings>())
{
    m_ui->setupUi(this);
    SetDialogFrame();
    auto *filter = new DigitFilter(this);
    for (controls::TextBox *box : {m_ui->Text1, m_ui->Text2, m_ui->Text3, m_ui->Text4})
        filter->Guard(box, box);
    for (QComboBox *box : {m_ui->Combo1, m_ui->Combo2})
        MakeEntriesBox(*box, *filter);
    SetKeyButtons(m_ui->Command1, m_ui->Command2);
    using controls::ConnectHandler;
    ConnectHandler(m_ui->Command1, &QPushButton::clicked, this, &frmListSettings::Command1_Click);
    ConnectHandler(m_ui->Command2, &QPushButton::clicked, this, &frmListSettings::Command2_Click);
}

frmListSettings::~frmListSettings() = default;

void frmListSettings::Form_Load()
{
    SetMainWindowInput(false);
    for (QComboBox *box : {m_ui->Combo1, m_ui->Combo2})
        for (int entries = 1; entries <= kMostEntries; ++entries)
            box->addItem(QString::number(entries));
    m_snapshot = ReadListSettings();
    // No option stands for another digit.
    if (m_snapshot.SearchTarget > TargetPhrases)
        m_snapshot.SearchTarget = TargetAll;
    ListSettings shown = ListSizesInUse();
    shown.SearchTarget = m_snapshot.SearchTarget;
    ShowTexts(TextsOf(shown));
    m_closeHandled = 0;
    GoTo(SizeField::Text1);
}

void frmListSettings::Form_Unload(controls::UnloadReason) { SetMainWindowInput(true); }

SizeTexts frmListSettings::Texts() const
{
    SizeTexts texts;
    texts.Text1 = m_ui->Text1->Text();
    texts.Combo1 = m_ui->Combo1->currentText();
    texts.Text4 = m_ui->Text4->Text();
    texts.Text2 = m_ui->Text2->Text();
    texts.Combo2 = m_ui->Combo2->currentText();
    texts.Text3 = m_ui->Text3->Text();
    if (m_ui->Option2->isChecked())
        texts.target = TargetWords;
    else if (m_ui->Option3->isChecked())
        texts.target = TargetPhrases;
    return texts;
}

void frmListSettings::ShowTexts(const SizeTexts &texts)
{
    m_ui->Text1->SetText(texts.Text1);
    ShowEntries(*m_ui->Combo1, texts.Combo1);
    m_ui->Text4->SetText(texts.Text4);
    m_ui->Text2->SetText(texts.Text2);
    ShowEntries(*m_ui->Combo2, texts.Combo2);
    m_ui->Text3->SetText(texts.Text3);
    m_ui->Option1->setChecked(texts.target == TargetAll);
    m_ui->Option2->setChecked(texts.target == TargetWords);
    m_ui->Option3->setChecked(texts.target == TargetPhrases);
}

QLineEdit *frmListSettings::FieldOf(SizeField field) const
{
    switch (field) {
    case SizeField::Combo1: return m_ui->Combo1->lineEdit();
    case SizeField::Text4: return m_ui->Text4;
    case SizeField::Text2: return m_ui->Text2;
    case SizeField::Combo2: return m_ui->Combo2->lineEdit();
    case SizeField::Text3: return m_ui->Text3;
    case SizeField::Text1: break;
    }
    return m_ui->Text1;
}

void frmListSettings::GoTo(SizeField field)
{
    FieldOf(field)->setFocus();
    FieldOf(field)->selectAll();
}

int frmListSettings::IsThisDirty() const { return SizesOf(Texts()) == m_snapshot ? 0 : 1; }

int frmListSettings::MaxListValueCheck()
{
    const std::optional<SizeFault> fault = FirstSizeFault(Texts());
    if (!fault)
        return 0;
    dialogs::BeepAndMsgBox(host::BeepExclamation, fault->message, dialogs::Exclamation, fault->title);
    GoTo(fault->focus);
    return 1;
}

void frmListSettings::SaveListData()
{
    const ListSettings settings = SizesOf(Texts());
    WriteListSettings(settings);
    UseListSizes(settings);
    m_snapshot = settings;
}

void frmListSettings::Command1_Click()
{
    if (MaxListValueCheck() == 1)
        return;
    if (IsThisDirty() == 1)
        ResetLists(true);
    SaveListData();
}

void frmListSettings::Command2_Click()
{
    if (IsThisDirty() == 1) {
        switch (AskForSaving(
            QStringLiteral("設定内容が変更されています。閉じる前に変更した内容で保存しますか？"))) {
        case dialogs::Yes:
            if (MaxListValueCheck() == 1)
                return;
            SaveListData();
            ResetLists(true);
            break;
        case dialogs::No: break;
        default: GoTo(SizeField::Text1); return;
        }
        m_closeHandled = 1;
    }
    Unload();
}

bool frmListSettings::Form_QueryUnload(controls::UnloadReason reason)
{
    if (reason == controls::UnloadReason::Exit || m_closeHandled == 1 || IsThisDirty() == 0)
        return true;
    switch (
        AskForSaving(QStringLiteral("設定内容が変更されています。閉じる前に変更した内容を保存しますか？"))) {
    case dialogs::Yes:
        if (MaxListValueCheck() == 1)
            return false;
        SaveListData();
        ResetLists(false);
        return true;
    case dialogs::No: return true;
    default: GoTo(SizeField::Text1); return false;
    }
}
