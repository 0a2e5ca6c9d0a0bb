#include "core/failure_handling.h"
#include "core/pure/app_files.h"
#include "core/shared_state.h"
#include "platform/dialogs/dialogs.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/file_operations.h"
#include "platform/files/fixed_record_file.h"
#include "platform/host/host.h"
#include "platform/text/trim.h"
#include "presentation/frmFind.h"
#include "search/composite_text.h"
#include "search/list_limit.h"
#include "search/pure/list_statement.h"
#include "search/view.h"

#include <QScopeGuard>
#include <algorithm>

namespace
{

QString SearchConnectionString(const QString &path)
{
    return QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + path;
}

/// The last line of the message on a missing dictionary as the start button has it.
QString StartButtonHint()
{
    return QStringLiteral("メニューバーの [ツール] から [辞書設定] を選んで確認して下さい。");
}

void CloseSearch()
{
    Shared.SearchRecordset->Close();
    Shared.SearchConnection->Close();
    Shared.SearchRecordset.reset();
    Shared.SearchConnection.reset();
}

/// Takes the word part into the shared state.
void TakeWord(const QString &word)
{
    Shared.WordPattern = WordPatternFor(Shared.SearchMode, word);
    if (Shared.SearchMode != ModeWildcard)
        Shared.SearchText = word;
}

/// Takes the further conditions into the shared state; returns the whole request.
ListRequest TakeConditions(const CompositeText &parts, std::uint8_t target)
{
    Shared.MeaningPattern = ContainsPattern(parts.meaning);
    Shared.ExamplePattern = ContainsPattern(parts.example);
    Shared.CompositeMeaningText = parts.meaning;
    Shared.CompositeExampleText = parts.example;
    return {Shared.SearchMode,    target,
            Shared.CompositeKind, Shared.MaxListCount,
            Shared.WordPattern,   Shared.MeaningPattern,
            Shared.ExamplePattern};
}

void MovePicture(controls::Picture *picture, int left)
{
    controls::TwipRect place = controls::PlaceOf(picture);
    place.left = left;
    controls::Place(picture, place);
}

void TellEnd(const QString &text, const QString &title)
{
    dialogs::BeepAndMsgBox(host::BeepExclamation, text, dialogs::Exclamation, title);
}

QString AtFirst() { return QStringLiteral("該当データの先頭に到達しました！"); }
QString AtLast() { return QStringLiteral("該当データの末尾に到達しました！"); }
QString ListTitle() { return QStringLiteral("見出し語リスト"); }
QString EntryTitle() { return QStringLiteral("見出し語内容"); }

} // namespace

std::uint8_t frmFind::RunListSearch(std::uint8_t &target)
{
    const CompositeText parts = SplitCompositeText(txtFind->Text());
    if (parts.word.isEmpty())
        return 0;
    Shared.CompositeKind =
        static_cast<std::uint8_t>(CompositeKindFor(Shared.SearchMode, parts.meaning, parts.example));
    if (Shared.SearchMode == ModeIncremental)
        return 0;
    List1->Clear();
    host::SetMousePointer(host::PointerHourglass);
    TakeWord(parts.word);
    if (!files::Exists(Shared.CurrentDicPath)) {
        host::SetMousePointer(host::PointerDefault);
        return 1;
    }
    const ListRequest request = TakeConditions(parts, target);
    // Its own hold, as in OpenView.
    const auto connection = std::make_shared<ADODB::Connection>();
    Shared.SearchConnection = connection;
    connection->SetConnectionString(SearchConnectionString(Shared.CurrentDicPath));
    connection->Open();
    Shared.SearchConnection = connection;
    Shared.SearchRecordset = Shared.SearchConnection->Execute(ListStatement(request), ADODB::adCmdText);
    files::DeleteIfThere(ResultStorePath());
    const std::int32_t rows = StoreHits();
    if (!m_searchAbandoned)
        TellOutcome(rows);
    if (m_searchAbandoned) {
        DropSearch();
        return 0;
    }
    if (rows == 0 && Shared.StopRequested == 0) {
        host::SetMousePointer(host::PointerDefault);
        CloseSearch();
        return 0;
    }
    Shared.HitCount = rows;
    CloseSearch();
    PrepareHitPaging();
    host::SetMousePointer(host::PointerDefault);
    ShowFirstHits();
    return 0;
}

std::int32_t frmFind::StoreHits()
{
    // Its own hold on the rows: a failure told in one of the yields releases the shared one.
    const std::shared_ptr<ADODB::Recordset> hits = Shared.SearchRecordset;
    const std::shared_ptr<ADODB::Connection> connection = Shared.SearchConnection;
    files::FixedRecordFile store(ResultStorePath(), kResultRecordLength);
    std::int32_t rows = 0;
    while (!m_searchAbandoned && !hits->Eof() && Shared.StopRequested == 0) {
        ++rows;
        store.Write(rows, EncodeResult(TextOf(*hits, u"Word"), AutoIDOf(*hits)));
        hits->MoveNext();
        host::YieldRow();
    }
    if (!m_searchAbandoned)
        store.Close();
    return rows;
}

void frmFind::TellOutcome(std::int32_t rows)
{
    if (Shared.StopRequested != 0) {
        StatusBar1->SetSimpleText(
            QStringLiteral(
                "該当するすべての見出し語を抽出する前に処理の中断を選択しました。表示可能な見出し語は") +
            QString::number(rows) + QStringLiteral("件です。"));
        return;
    }
    if (rows == 0) {
        StatusBar1->SetSimpleText(QStringLiteral("該当する見出し語は見つかりませんでした。"));
        return;
    }
    if (rows >= Shared.MaxListCount) {
        ShowListLimitMessage(Shared.MaxListCount);
        host::DoEvents();
    }
    if (!m_searchAbandoned)
        StatusBar1->SetSimpleText(QString::number(rows) + QStringLiteral("件の見出し語が見つかりました。"));
}

void frmFind::DropSearch()
{
    host::SetMousePointer(host::PointerDefault);
    Shared.SearchRecordset.reset();
    Shared.SearchConnection.reset();
    Shared.StopRequested = 0;
    files::DeleteIfThere(ResultStorePath());
}

void frmFind::PrepareHitPaging()
{
    const bool morePages = Shared.HitCount > Shared.ListPageSize;
    PictureOf(14)->setVisible(morePages);
    PictureOf(15)->setVisible(morePages);
    if (morePages) {
        const QString list = QStringLiteral("見出し語リストを") + QString::number(Shared.ListPageSize);
        PictureOf(14)->setToolTip(list + QStringLiteral("件前へ移動"));
        PictureOf(15)->setToolTip(list + QStringLiteral("件先へ移動"));
        MovePicture(PictureOf(17), Shared.SavedPicture17Left);
        MovePicture(PictureOf(18), Shared.SavedPicture18Left);
    } else {
        MovePicture(PictureOf(17), controls::PlaceOf(PictureOf(15)).left);
        MovePicture(PictureOf(18), controls::PlaceOf(PictureOf(14)).left);
    }
    const bool moreEntries = Shared.HitCount > Shared.EntriesPerPage;
    PictureOf(17)->setVisible(moreEntries);
    PictureOf(18)->setVisible(moreEntries);
    if (moreEntries) {
        const QString entries = QStringLiteral("見出し語内容を") + QString::number(Shared.EntriesPerPage);
        PictureOf(17)->setToolTip(entries + QStringLiteral("件先へ移動"));
        PictureOf(18)->setToolTip(entries + QStringLiteral("件前へ移動"));
    }
}

void frmFind::ShowFirstHits()
{
    Shared.ListPageNo = 1;
    Shared.ListFirstPos = 1;
    Shared.ListLastPos = std::min<std::int32_t>(Shared.ListPageSize, Shared.HitCount);
    FillHeadwordList(Shared.ListFirstPos, Shared.ListLastPos);
    WriteEntryPage(Shared.ListFirstPos, Shared.ListLastPos);
    Shared.EntryFirstPos = 1;
}

void frmFind::FillHeadwordList(std::int32_t first, std::int32_t last)
{
    const auto firstRow = CheckedTo<std::int16_t>(first), lastRow = CheckedTo<std::int16_t>(last);
    ADODB::Recordset &table = OpenViewTable();
    files::FixedRecordFile store(ResultStorePath(), kResultRecordLength);
    // All words before the first row, so that a failure leaves the list as it was.
    QStringList words;
    for (std::int32_t position = firstRow; position <= lastRow; ++position) {
        const ResultKey key = DecodeResult(store.Read(position));
        // A row that has gone keeps its place, so that rows and positions stay in step.
        words.append(SeekResult(table, key) ? TextOf(table, u"Word") : key.word);
    }
    {
        const ListFill fill(*List1);
        List1->Clear();
        for (const QString &word : std::as_const(words))
            List1->AddItem(word);
    }
    if (Shared.ListHidden == 0)
        List1->show();
    store.Close();
    CloseView();
}

void frmFind::AbandonSearch() { m_searchAbandoned = m_searching; }

void frmFind::HideHitPaging()
{
    for (const int number : {14, 15, 17, 18})
        PictureOf(number)->hide();
}

void frmFind::StartListSearch(const QString &missingHint)
{
    auto failed = qScopeGuard([this] {
        Shared.StopRequested = 0;
        StatusBar1->SetSimpleText(QString());
    });
    const auto done = qScopeGuard([this] {
        m_searching = false;
        if (m_closeAfterSearch)
            Unload(controls::UnloadReason::Frame);
    });
    m_searching = true;
    m_searchAbandoned = false;
    Picture00->setGeometry(Picture0->geometry());
    Picture0->hide();
    Picture00->show();
    List1->Clear();
    ShowBlankPage();
    HideHitPaging();
    StatusBar1->SetSimpleText(QStringLiteral("検索中..."));
    if (RunListSearch(Shared.SearchTarget) == 1)
        ShowMissingDatabase(missingHint);
    failed.dismiss();
    Picture00->hide();
    Picture0->setVisible(Shared.SearchMode != ModeIncremental);
}

void frmFind::Picture0_MouseDown()
{
    if (m_searching)
        return;
    if (Shared.SearchMode == ModeWeb) {
        GoToAddress();
        return;
    }
    if (txtFind->Text().isEmpty()) {
        dialogs::MsgBox(QStringLiteral("検索文字列が入力されていません！"));
        return;
    }
    // The Enter key leaves that to the search, which does not come to it without a word part.
    files::DeleteIfThere(ResultStorePath());
    StartListSearch(StartButtonHint());
    txtFind->setFocus();
    txtFind->CaretToEnd();
}

void frmFind::EnterListSearch()
{
    if (!m_searching && Shared.SearchMode != ModeIncremental && !txtFind->Text().isEmpty())
        StartListSearch(MissingDatabaseHint());
}

void frmFind::Picture00_Click()
{
    Shared.StopRequested = 1;
    Picture00->hide();
    Picture0->show();
}

bool frmFind::Form_QueryUnload(controls::UnloadReason)
{
    if (!m_searching)
        return true;
    // The search stops behind its current row, and the window closes when it has returned.
    AbandonSearch();
    m_closeAfterSearch = true;
    return false;
}

void frmFind::ShowHitsFromRow(int row)
{
    const std::int32_t position = Shared.ListFirstPos + row;
    WriteEntryPage(position, Shared.ListLastPos);
    Shared.EntryFirstPos = position;
}

void frmFind::List1_DblClick()
{
    const int row = List1->ListIndex();
    if (row < 0 || m_searching)
        return;
    const bool incremental = Shared.SearchMode == ModeIncremental;
    ResultKey key;
    if (incremental) {
        key.word = text::Trim(List1->Text());
        key.autoID = Shared.IncAutoIDs.value(row);
        Shared.CurrentWord = key.word;
        Shared.CurrentAutoID = key.autoID;
        Shared.SavedIncSearchText = txtFind->Text();
    } else {
        key = DecodeResult(
            files::FixedRecordFile(ResultStorePath(), kResultRecordLength).Read(Shared.ListFirstPos + row));
    }
    ADODB::Recordset &table = OpenViewTable();
    const bool there = SeekResult(table, key);
    // As the dictionary has it: the key has its word trimmed.
    const QString word = there ? TextOf(table, u"Word") : QString();
    CloseView();
    if (!there) {
        TellEnd(QStringLiteral("この見出し語は検索後に削除されたため存在しません！"), QStringLiteral("削除"));
        return;
    }
    Shared.CurrentWord = word;
    Shared.CurrentAutoID = key.autoID;
    Shared.EditOpenMode = 1;
    ShowRecordEditor();
}

void frmFind::ShowListPosition()
{
    StatusBar1->SetSimpleText(QStringLiteral("検索条件に該当する") + QString::number(Shared.HitCount) +
                              QStringLiteral("件の見出し語中、") + QString::number(Shared.ListFirstPos) +
                              QStringLiteral("件目から") + QString::number(Shared.ListLastPos) +
                              QStringLiteral("件目までを見出し語リストボックス内に表示中．．．"));
}

void frmFind::ShowListPage(std::int32_t page, std::int32_t first)
{
    const std::int32_t last = std::min(page * Shared.ListPageSize, Shared.HitCount);
    FillHeadwordList(first, last);
    // Behind the filling: where that fails, rows and positions are those of the page that stays.
    Shared.ListPageNo = page;
    Shared.ListFirstPos = first;
    Shared.ListLastPos = last;
}

void frmFind::Picture14_MouseDown()
{
    // So many hits may have been removed that the page in front of this one is none any more.
    const std::int32_t pageSize = std::max<std::int32_t>(Shared.ListPageSize, 1);
    const std::int32_t page = std::min(Shared.ListPageNo - 1, (Shared.HitCount + pageSize - 1) / pageSize);
    if (page >= 1) {
        ShowListPage(page, (page - 1) * Shared.ListPageSize + 1);
    } else {
        TellEnd(AtFirst(), ListTitle());
        FillHeadwordList(Shared.ListFirstPos, Shared.ListLastPos);
    }
    ShowListPosition();
}

void frmFind::Picture15_MouseDown()
{
    const std::int32_t first = Shared.ListLastPos + 1;
    if (first > Shared.HitCount) {
        TellEnd(AtLast(), ListTitle());
        FillHeadwordList(Shared.ListFirstPos, Shared.ListLastPos);
        return;
    }
    ShowListPage(Shared.ListPageNo + 1, first);
    ShowListPosition();
}

void frmFind::Picture17_MouseDown()
{
    const std::int32_t next = Shared.EntryFirstPos + Shared.EntriesPerPage;
    if (next > Shared.HitCount) {
        TellEnd(AtLast(), EntryTitle());
        return;
    }
    Shared.EntryFirstPos = next;
    Shared.EntryLastPos = std::min(next + Shared.EntriesPerPage - 1, Shared.HitCount);
    WriteEntryPage(Shared.EntryFirstPos, Shared.EntryLastPos);
}

void frmFind::Picture18_MouseDown()
{
    Shared.EntryLastPos = Shared.EntryFirstPos - 1;
    if (Shared.EntryLastPos < 1) {
        TellEnd(AtFirst(), EntryTitle());
        return;
    }
    Shared.EntryFirstPos = std::max(Shared.EntryLastPos - (Shared.EntriesPerPage - 1), 1);
    WriteEntryPage(Shared.EntryFirstPos, Shared.EntryLastPos);
}
