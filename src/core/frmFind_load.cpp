#include "core/catalogue.h"
#include "core/failure_handling.h"
#include "core/font_rows.h"
#include "core/list_settings.h"
#include "core/pure/app_files.h"
#include "core/pure/dictionary_file.h"
#include "core/shared_state.h"
#include "platform/browser/web_browser.h"
#include "platform/dialogs/dialogs.h"
#include "platform/files/file_operations.h"
#include "platform/files/fixed_record_file.h"
#include "platform/files/line_file.h"
#include "platform/host/host.h"
#include "presentation/frmFind.h"
#include "presentation/page_file.h"
#include "presentation/target_caption.h"

#include <QAction>
#include <QScreen>
#include <cmath>

namespace
{

void MoveTo(QWidget *control, int left)
{
    controls::TwipRect place = controls::PlaceOf(control);
    place.left = left;
    controls::Place(control, place);
}

} // namespace

void frmFind::SetDefaultFonts()
{
    MakeFontSlots();
    for (int slot = 0; slot < kFontSlots; ++slot)
        SetFontRow(slot, DefaultFontRow(slot));
}

void frmFind::ReadFontFile(const QString &name)
{
    files::FixedRecordFile file(AppFilePath(name), kFontRecordLength);
    std::array<FontRow, kFontSlots> rows;
    for (int slot = 0; slot < kFontSlots; ++slot)
        rows[static_cast<std::size_t>(slot)] = DecodeFontRow(file.Read(slot + 1));
    MakeFontSlots();
    for (int slot = 0; slot < kFontSlots; ++slot)
        SetFontRow(slot, rows[static_cast<std::size_t>(slot)]);
}

void frmFind::WriteFontFile(const QString &name)
{
    QByteArray content;
    for (int slot = 0; slot < kFontSlots; ++slot)
        content += EncodeFontRow(FontRowOfSlot(slot));
    files::Replace(AppFilePath(name), content);
}

void frmFind::LoadFonts()
{
    // Before anything can fail, so that every slot has a font.
    SetDefaultFonts();
    if (files::Exists(AppFilePath(FontFileName()))) {
        ReadFontFile(FontFileName());
        return;
    }
    WriteFontFile(FontFileName());
    CreateHTMLHeader();
}

void frmFind::LoadListSettings()
{
    const ListSettings settings = ReadListSettings();
    UseListSizes(settings);
    Shared.SearchTarget = settings.SearchTarget;
}

void frmFind::LoadCatalogue()
{
    m_hasReadCatalogue = false;
    const std::int16_t result = LoadLexicons(CatalogueFileName());
    m_hasReadCatalogue = true;
    Shared.CatalogueFlag1 = result;
    Shared.CatalogueFlag2 = result;
    if (result == 0 || !files::Exists(Shared.CurrentDicPath))
        return;
    ADODB::Connection connection;
    connection.Open(ViewConnectionString(Shared.CurrentDicPath));
    ADODB::Recordset table;
    OpenTableByIndex(connection, table);
    if (!table.Eof()) {
        TableFirstWord = table.Fields().Item(QStringLiteral("Word")).Text();
        TableFirstAutoID = table.Fields().Item(QStringLiteral("AutoID")).Value().toInt();
        table.MoveLast();
        TableLastWord = table.Fields().Item(QStringLiteral("Word")).Text();
    }
    table.Close();
    connection.Close();
}

void frmFind::SizeWindow()
{
    constexpr int wideScreenPixels = 800;
    const bool isWide = host::ScreenWidth() >= wideScreenPixels;
    const QSize wanted(controls::Pixels(isWide ? 12000 : 9600), controls::Pixels(isWide ? 9000 : 7200));
    // Scaled up, a screen may be lower than that, and the title bar wants its room too.
    constexpr QSize titleBar(0, 32);
    resize(wanted.boundedTo(screen()->availableSize() - titleBar));
}

void frmFind::ApplyFonts()
{
    if (Shared.FontNames.size() < kFontSlots)
        return;
    constexpr int labelPoints = 9;
    ShowFont(Combo1, FontRowOfSlot(FontCombo), Shared.FontSizes[FontCombo]);
    ShowFont(txtFind, FontRowOfSlot(FontEntry), Shared.FontSizes[FontEntry]);
    ShowFont(Label1, FontRowOfSlot(FontEntry), labelPoints);
    ShowFont(List1, FontRowOfSlot(FontList), Shared.FontSizes[FontList]);
}

void frmFind::ApplySearchTarget()
{
    if (Shared.SearchTarget <= TargetPhrases)
        Label1->setText(TargetCaption(Shared.SearchTarget));
    Menu(QStringLiteral("mnuSrchFromAll"))->setChecked(Shared.SearchTarget == TargetAll);
    Menu(QStringLiteral("mnuSrchFromWord"))->setChecked(Shared.SearchTarget == TargetWords);
    Menu(QStringLiteral("mnuSrchFromPhrase"))->setChecked(Shared.SearchTarget == TargetPhrases);
    PictureOf(19)->setVisible(Shared.SearchTarget == TargetAll);
    PictureOf(20)->setVisible(Shared.SearchTarget == TargetAll);
}

void frmFind::CheckHelpFile()
{
    if (files::Exists(HelpFilePath()))
        return;
    dialogs::MsgBox(QStringLiteral("ヘルプファイルがアプリケーションフォルダから\r\n"
                                   "削除されています！ Wordmere は起動しますが、\r\n"
                                   "ヘルプファイルは参照できません。"),
                    dialogs::Exclamation, QStringLiteral("ヘルプファイル未検出"));
}

void frmFind::PrepareEntryPaging()
{
    const QString count = QString::number(Shared.IncEntriesPerPage);
    const QString subject = QStringLiteral("見出し語内容を");
    PictureOf(19)->setToolTip(subject + count + QStringLiteral("件前へ移動"));
    PictureOf(20)->setToolTip(subject + count + QStringLiteral("件先へ移動"));
    MoveTo(PictureOf(19), controls::PlaceOf(PictureOf(14)).left);
    MoveTo(PictureOf(20), controls::PlaceOf(PictureOf(15)).left);
    Shared.SavedPicture17Left = CheckedTo<std::int16_t>(controls::PlaceOf(PictureOf(17)).left);
    Shared.SavedPicture18Left = CheckedTo<std::int16_t>(controls::PlaceOf(PictureOf(18)).left);
}

void frmFind::LoadPageHeader()
{
    files::LineReader reader(StylePath());
    QStringList lines;
    while (!reader.AtEnd())
        lines.append(reader.ReadLine());
    lines.append(QString());
    Shared.HtmlHeaderLines = lines;
}

void frmFind::Form_Load()
{
    Shared.StopRequested = 0;
    ListClickActive = 0;
    GuardStep([this] { LoadFonts(); });
    GuardStep([this] {
        if (!files::Exists(StylePath()))
            CreateHTMLHeader();
    });
    GuardStep([this] { LoadListSettings(); });
    GuardStep([this] { LoadCatalogue(); });
    ListClickIndex = 0;
    SizeWindow();
    PlaceFixedControls();
    Shared.ListHidden = 0;
    Menu(QStringLiteral("mnuHideListBox"))->setChecked(false);
    GuardStep([this] { ApplyFonts(); });
    ListIsFresh = 1;
    List1->SetSizingFrame(true);
    List1->SetItemHeight(static_cast<int>(std::lround(1.3 * List1->ItemHeight())));
    TakeMode(ModeIncremental);
    ApplySearchTarget();
    StatusBar1->SetSimpleText(QStringLiteral("Ready"));
    GuardStep([this] { CheckHelpFile(); });
    GuardStep([this] { LoadCharacter(); });
    GuardStep([this] { PrepareEntryPaging(); });
    GuardStep([this] { LoadPageHeader(); });
    // The client area as it will be: before the first show the list is not laid out.
    List1->SetHorizontalExtent(2 * List1->contentsRect().width());
    GuardStep([this] { ShowBlankPage(); });
    GuardStep([this] { SetDictionaryView(); });
}

void frmFind::Form_Unload(controls::UnloadReason)
{
    ForgetMainWindow();
    if (LexiconsAllocated() != QStringLiteral("0")) {
        GuardStep([] { SaveLexicons(CatalogueFileName()); });
        GuardStep([] { files::DeleteIfThere(ResultStorePath()); });
        host::WinHelp(HelpFilePath(), host::HelpQuit);
    }
    Q_EMIT Gone();
}
