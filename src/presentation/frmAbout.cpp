#include "presentation/frmAbout.h"

#include "platform/controls/handler.h"
#include "platform/host/host.h"
#include "presentation/frmFind.h"
#include "presentation/pure/system_report.h"
#include "ui_frmAbout.h"

#include <QIcon>

using controls::RunHandler;

namespace
{

constexpr int kIconSide = 48;
constexpr int kNamePointsMore = 7;

QString LicenceText()
{
    return QStringLiteral("Wordmere は自由ソフトウェアです。GNU General Public License 第 3 版、\r\n"
                          "またはそれ以降の版 (GPL-3.0-or-later) の条件で利用できます。\r\n"
                          "無保証です。\r\n"
                          "\r\n"
                          "同梱辞書: FreeDict 英日辞書 2022.11.18 (CC BY-SA 3.0)\r\n"
                          "Copyright © 2000-2022 FreeDict contributors");
}

QString Report()
{
    const host::SystemFacts facts = host::Facts();
    return SystemReport({.version = facts.version,
                         .build = facts.build,
                         .platform = facts.platform,
                         .processor = facts.processor,
                         .memory = facts.memory,
                         .load = facts.load});
}

} // namespace

frmAbout::frmAbout() : Form(QStringLiteral("frmAbout")), m_ui(std::make_unique<Ui::frmAbout>())
{
    m_ui->setupUi(this);
    SetDialogFrame();
    m_ui->Image1->setPixmap(QIcon(QStringLiteral(":/icons/wordmere.svg"))
                                .pixmap(QSize(kIconSide, kIconSide), devicePixelRatio()));
    QFont nameFont = m_ui->Label1->font();
    nameFont.setPointSize(nameFont.pointSize() + kNamePointsMore);
    nameFont.setBold(true);
    m_ui->Label1->setFont(nameFont);
    m_ui->Label5->setText(LicenceText());
    m_firstHeading = m_ui->Label2->text();
    m_firstText = m_ui->Label5->text();
    SetKeyButtons(m_ui->Command1, m_ui->Command1);
    connect(m_ui->Command1, &QPushButton::clicked, this,
            [this] { RunHandler([this] { Command1_Click(); }); });
    connect(m_ui->Command2, &QPushButton::clicked, this,
            [this] { RunHandler([this] { Command2_Click(); }); });
}

frmAbout::~frmAbout() = default;

void frmAbout::Form_Load()
{
    if (frmFind *window = MainWindow())
        window->SetTakesInput(false);
    FixTextSize();
    Centre();
    m_ui->Command1->setFocus();
}

/// Room for either text, so that the buttons stay where they are.
void frmAbout::FixTextSize()
{
    QLabel *label = m_ui->Label5;
    QSize room = label->minimumSize();
    for (const QString &text : {Report(), m_firstText}) {
        label->setText(text);
        room = room.expandedTo(label->sizeHint());
    }
    label->setMinimumSize(room);
    adjustSize();
}

void frmAbout::Form_Unload(controls::UnloadReason)
{
    if (frmFind *window = MainWindow())
        window->SetTakesInput(true);
}

void frmAbout::Command1_Click() { Unload(); }

void frmAbout::Command2_Click()
{
    m_showsReport = !m_showsReport;
    m_ui->Label2->setText(m_showsReport ? QStringLiteral("システム情報:") : m_firstHeading);
    m_ui->Label5->setText(m_showsReport ? Report() : m_firstText);
}
