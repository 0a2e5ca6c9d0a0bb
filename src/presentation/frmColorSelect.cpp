#include "presentation/frmColorSelect.h"

#include "core/font_rows.h"
#include "core/pure/app_files.h"
#include "platform/controls/handler.h"
#include "platform/controls/twips.h"
#include "platform/dialogs/dialogs.h"
#include "platform/files/file_operations.h"
#include "platform/host/host.h"
#include "platform/host/looks.h"
#include "presentation/frmFind.h"
#include "presentation/page_file.h"
#include "ui_frmColorSelect.h"

#include <QPushButton>

namespace
{

constexpr int kSampleWidth = 4800;
constexpr int kSampleHeight = 480;

constexpr std::array kSampleCaptions{
    u"辞書名",
    u"検索対象･検索語",
    u"見出し語リスト",
    u"見出し語",
    u"発音記号",
    u"訳語",
    u"用例",
    u"検索一致文字列(見出し語)",
    u"検索一致文字列(訳語･用例)",
};
static_assert(kSampleCaptions.size() == kFontSlots);

QString SampleCaption(int row)
{
    return QString::fromUtf16(kSampleCaptions.at(static_cast<std::size_t>(row)));
}

dialogs::FontChoice ChoiceOf(const FontRow &row)
{
    return {.name = row.name,
            .size = row.size,
            .color = row.color,
            .bold = row.bold == FontRow::kYes,
            .italic = row.italic == FontRow::kYes,
            .strikeout = row.strikeout == FontRow::kYes,
            .underline = row.underline == FontRow::kYes};
}

FontRow RowOf(const dialogs::FontChoice &choice)
{
    const auto flag = [](bool on) { return on ? FontRow::kYes : qint16{0}; };
    return {choice.name,         CheckedTo<qint16>(choice.size), choice.color,          flag(choice.bold),
            flag(choice.italic), flag(choice.strikeout),         flag(choice.underline)};
}

void TellRestart()
{
    dialogs::MsgBox(QStringLiteral("変更された設定はアプリケーションを一度閉じて、\r\n"
                                   "再起動した際に有効となります。"),
                    dialogs::Information, QStringLiteral("変更有効時の確認"));
}

void WriteFonts() { MainWindow()->WriteFontFile(FontFileName()); }

} // namespace

frmColorSelect::frmColorSelect()
    : Form(QStringLiteral("frmColorSelect")), m_ui(std::make_unique<Ui::frmColorSelect>())
{
    m_ui->setupUi(this);
    SetDialogFrame();
    for (int row = 0; row < kFontSlots; ++row)
        MakeRow(row);
    setTabOrder(m_buttons.back(), m_ui->Command9);
    setTabOrder(m_ui->Command9, m_ui->Command10);
    setTabOrder(m_ui->Command10, m_ui->Label1);
    m_ui->Label1->setToolTip(QStringLiteral("この文字の色を変えて、色を試すことができます"));
    SetKeyButtons(nullptr, m_ui->Command10);
    connect(m_ui->Label1, &controls::ClickLabel::Click, this,
            [this] { controls::RunHandler([this] { Label1_Click(); }); });
    connect(m_ui->Command9, &QPushButton::clicked, this,
            [this] { controls::RunHandler([this] { Command9_Click(); }); });
    connect(m_ui->Command10, &QPushButton::clicked, this, [this] { Unload(); });
}

frmColorSelect::~frmColorSelect() = default;

void frmColorSelect::MakeRow(int row)
{
    auto *sample = new QLabel(SampleCaption(row), this);
    sample->setObjectName(QStringLiteral("Label0(%1)").arg(row));
    sample->setTextFormat(Qt::PlainText);
    sample->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    sample->setMargin(2);
    // Colours are chosen against white, and a large size must not burst the window.
    sample->setAutoFillBackground(true);
    QPalette palette = sample->palette();
    palette.setColor(QPalette::Window, Qt::white);
    sample->setPalette(palette);
    sample->setFixedSize(controls::Pixels(kSampleWidth), controls::Pixels(kSampleHeight));

    auto *button = new QPushButton(QStringLiteral("変更"), this);
    button->setObjectName(QStringLiteral("Command%1").arg(row));
    button->setAccessibleName(SampleCaption(row) + QStringLiteral("の変更"));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this,
            [this, row] { controls::RunHandler([this, row] { CommandRow_Click(row); }); });
    if (row > 0)
        setTabOrder(m_buttons.at(static_cast<std::size_t>(row - 1)), button);

    m_ui->rowsLayout->addWidget(sample, row, 0);
    m_ui->rowsLayout->addWidget(button, row, 1);
    m_samples.at(static_cast<std::size_t>(row)) = sample;
    m_buttons.at(static_cast<std::size_t>(row)) = button;
}

void frmColorSelect::ShowSample(int row)
{
    const FontRow font = FontRowOfSlot(row);
    ShowFont(m_samples.at(static_cast<std::size_t>(row)), font, font.size);
}

frmColorSelect::Rows frmColorSelect::PresentRows()
{
    Rows rows;
    for (int row = 0; row < kFontSlots; ++row)
        rows.at(static_cast<std::size_t>(row)) = FontRowOfSlot(row);
    return rows;
}

bool frmColorSelect::IsChanged() const { return PresentRows() != m_saved; }

void frmColorSelect::Form_Load()
{
    MainWindow()->SetTakesInput(false);
    for (int row = 0; row < kFontSlots; ++row)
        ShowSample(row);
    m_saved = PresentRows();
    m_buttons.front()->setFocus();
    adjustSize();
}

void frmColorSelect::CommandRow_Click(int row)
{
    const std::optional<dialogs::FontChoice> choice = dialogs::ChooseFont(
        QStringLiteral("変換先辞書データベースファイルの設定"), ChoiceOf(FontRowOfSlot(row)));
    if (!choice)
        return;
    SetFontRow(row, RowOf(*choice));
    ShowSample(row);
}

void frmColorSelect::Label1_Click()
{
    QPalette palette = m_ui->Label1->palette();
    const std::optional<qint32> color =
        dialogs::ChooseColor(host::BgrOf(palette.color(QPalette::WindowText)));
    if (!color)
        return;
    palette.setColor(QPalette::WindowText, host::ColorOf(*color));
    m_ui->Label1->setPalette(palette);
}

void frmColorSelect::Command9_Click()
{
    // Both files or none: a second one that cannot be written must not leave new rows in the first.
    for (const QString &path : {AppFilePath(FontFileName()), StylePath()})
        files::RequireWritable(path);
    WriteFonts();
    const Rows rows = PresentRows();
    PageFonts styles;
    std::copy_n(rows.begin() + FontStyle1, kPageStyles, styles.begin());
    WritePageStyle(styles);
    m_saved = rows;
    TellRestart();
}

bool frmColorSelect::Form_QueryUnload(controls::UnloadReason reason)
{
    if (reason == controls::UnloadReason::Exit || !IsChanged())
        return true;
    switch (dialogs::MsgBox(QStringLiteral("設定が変更されています。閉じる前に変更した内容で保存しますか？"),
                            dialogs::YesNoCancel | dialogs::Question, QStringLiteral("保存確認"))) {
    case dialogs::Yes:
        WriteFonts();
        m_saved = PresentRows();
        TellRestart();
        return true;
    case dialogs::No:
        for (int row = 0; row < kFontSlots; ++row)
            SetFontRow(row, m_saved.at(static_cast<std::size_t>(row)));
        return true;
    default: return false;
    }
}

void frmColorSelect::Form_Unload(controls::UnloadReason)
{
    if (frmFind *window = MainWindow())
        window->SetTakesInput(true);
}
