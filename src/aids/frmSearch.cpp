#include "aids/frmSearch.h"

#include "aids/pure/wildcard_history.h"
#include "core/pure/app_files.h"
#include "platform/controls/connect_handler.h"
#include "platform/files/file_operations.h"
#include "platform/files/line_file.h"
#include "platform/text/trim.h"
#include "presentation/main_input.h"
#include "ui_frmSearch.h"

#include <limits>

namespace
{

constexpr int kLongestGap = 99;
constexpr int kHintLines = 2;

QString HistoryPath() { return AppFilePath(QStringLiteral("Wildhist.dat")); }

/// A hint reads as part of the sentence: no box around it, and room for two lines.
void MakeHint(QPlainTextEdit &hint)
{
    QPalette palette = hint.palette();
    palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    palette.setColor(QPalette::Text, palette.color(QPalette::WindowText));
    hint.setPalette(palette);
    const int line = hint.fontMetrics().lineSpacing();
    const int margins = 2 * static_cast<int>(hint.document()->documentMargin());
    // Half a line more than the lines take, for a character of another font is higher.
    hint.setFixedHeight(kHintLines * line + line / 2 + margins);
}

void KeepRoom(QWidget &control)
{
    QSizePolicy policy = control.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control.setSizePolicy(policy);
}

void FillGaps(controls::ComboBox &box)
{
    box.AddItem(QString());
    for (int length = 1; length <= kLongestGap; ++length)
        box.AddItem(QString::number(length));
}

/// Shows a length that the box offers; none for another text.
void ChooseGap(controls::ComboBox &box, const QString &text)
{
    box.SetText(box.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive) < 0 ? QString() : text);
}

void ShowHint(QPlainTextEdit &hint, QWidget &gap, const QString &text)
{
    // Two lines show no more of it, and laying out a very long one takes long.
    constexpr qsizetype mostShown = 2000;
    const QString shown = text.size() <= mostShown ? text : text.first(mostShown) + QStringLiteral("…");
    if (shown == hint.toPlainText())
        return;
    hint.setPlainText(shown);
    gap.setAccessibleDescription(shown);
}

} // namespace

frmSearch::frmSearch() : Form(QStringLiteral("frmSearch")), m_ui(std::make_unique<Ui::frmSearch>())
{
    m_ui->setupUi(this);
    SetDialogFrame();
    for (controls::TextBox *box : {m_ui->Text1, m_ui->Text2, m_ui->Text3})
        box->setMaxLength(std::numeric_limits<int>::max());
    for (QPlainTextEdit *hint : {m_ui->Text4, m_ui->Text5})
        MakeHint(*hint);
    // The form keeps its shape when the second gap comes and goes.
    for (QWidget *control : {static_cast<QWidget *>(m_ui->Text5), static_cast<QWidget *>(m_ui->Combo2),
                             static_cast<QWidget *>(m_ui->Label6)})
        KeepRoom(*control);
    SetKeyButtons(m_ui->Command1, m_ui->Command2);
    ConnectHandlers();
}

frmSearch::~frmSearch() = default;

void frmSearch::ConnectHandlers()
{
    using controls::ConnectHandler;
    ConnectHandler(m_ui->Text1, &controls::TextBox::Change, this, &frmSearch::Text1_Change);
    ConnectHandler(m_ui->Text2, &controls::TextBox::Change, this, &frmSearch::Text2_Change);
    ConnectHandler(m_ui->Text3, &controls::TextBox::Change, this, &frmSearch::Text3_Change);
    ConnectHandler(m_ui->Command1, &QPushButton::clicked, this, &frmSearch::Command1_Click);
    ConnectHandler(m_ui->Command2, &QPushButton::clicked, this, &frmSearch::Command2_Click);
    ConnectHandler(m_ui->Command3, &QPushButton::clicked, this, &frmSearch::Command3_Click);
    // Typing is discarded; keys that type nothing choose a length or open the list.
    constexpr int firstTyped = 0x20;
    for (controls::ComboBox *box : {m_ui->Combo1, m_ui->Combo2})
        connect(box, &controls::ComboBox::KeyPress, this,
                [](int character, bool *swallow) { *swallow = character >= firstTyped; });
}

void frmSearch::Form_Load()
{
    SetMainWindowInput(false);
    m_isCancelled = 0;
    for (controls::ComboBox *box : {m_ui->Combo1, m_ui->Combo2})
        FillGaps(*box);
    m_hints = HintsAtLoad();
    ShowSecondGap(false);
    ShowHint(*m_ui->Text4, *m_ui->Combo1, FirstHintAtLoad());
    ReadHistory();
    m_ui->Text1->setFocus();
    m_ui->Text1->selectAll();
}

void frmSearch::ReadHistory()
{
    if (!files::Exists(HistoryPath()))
        return;
    const WildcardFields fields = DecodeWildcardHistory(files::ReadSettingsLines(HistoryPath()));
    m_ui->Text1->SetText(fields.start);
    m_ui->Text2->SetText(fields.middle);
    m_ui->Text3->SetText(fields.end);
    ChooseGap(*m_ui->Combo1, fields.firstGap);
    // Without a text in the middle nobody would see the second gap, and it would count.
    if (m_hints.secondGapShown)
        ChooseGap(*m_ui->Combo2, fields.secondGap);
}

void frmSearch::Form_Unload(controls::UnloadReason)
{
    SetMainWindowInput(true);
    if (m_isCancelled == 0)
        files::Replace(HistoryPath(), EncodeWildcardHistory(Fields()));
}

WildcardFields frmSearch::Fields() const
{
    return {m_ui->Text1->Text(), m_ui->Text2->Text(), m_ui->Text3->Text(), m_ui->Combo1->Text(),
            m_ui->Combo2->Text()};
}

HintTexts frmSearch::Texts() const
{
    return {text::Trim(m_ui->Text1->Text()), text::Trim(m_ui->Text2->Text()),
            text::Trim(m_ui->Text3->Text())};
}

void frmSearch::ShowSecondGap(bool isShown)
{
    m_ui->Text5->setVisible(isShown);
    m_ui->Label6->setVisible(isShown);
    m_ui->Combo2->setVisible(isShown);
}

void frmSearch::ShowHints(const WildcardHints &hints)
{
    m_hints = hints;
    ShowHint(*m_ui->Text4, *m_ui->Combo1, hints.Hint1Head + hints.Hint1Tail);
    ShowHint(*m_ui->Text5, *m_ui->Combo2, hints.Hint2Head + hints.Hint2Tail);
}

void frmSearch::Text1_Change() { ShowHints(HintsAfterStart(m_hints, Texts())); }

void frmSearch::Text2_Change()
{
    ShowHints(HintsAfterMiddle(m_hints, Texts()));
    ShowSecondGap(m_hints.secondGapShown);
    if (!m_hints.secondGapShown)
        m_ui->Combo2->SetText(QString());
}

void frmSearch::Text3_Change() { ShowHints(HintsAfterEnd(m_hints, Texts())); }

void frmSearch::Command1_Click()
{
    const QString pattern = WildcardPattern(Fields());
    if (frmFind *window = MainWindow())
        window->txtFind->SetText(pattern);
    Unload();
}

void frmSearch::Command2_Click()
{
    m_isCancelled = 1;
    Unload();
}

void frmSearch::Command3_Click()
{
    for (controls::TextBox *box : {m_ui->Text1, m_ui->Text2, m_ui->Text3})
        box->SetText(QString());
    for (controls::ComboBox *box : {m_ui->Combo1, m_ui->Combo2})
        box->SetText(QString());
    m_ui->Text1->setFocus();
}
