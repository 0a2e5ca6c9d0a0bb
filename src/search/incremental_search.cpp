#include "core/failure_handling.h"
#include "core/shared_state.h"
#include "platform/browser/web_browser.h"
#include "platform/dialogs/dialogs.h"
#include "platform/failure/runtime_error.h"
#include "platform/host/host.h"
#include "platform/text/trim.h"
#include "presentation/frmFind.h"
#include "presentation/page_file.h"
#include "presentation/pure/entry_page.h"
#include "search/pure/like_text.h"
#include "search/view.h"

#include <QScopeGuard>
#include <algorithm>
#include <optional>

namespace
{

constexpr int kEscape = 27;
constexpr int kEnter = 13;

/// Writes the records of the arrays from index `first` to `last`; one that has gone is left out.
void WriteListedEntries(ADODB::Recordset &table, qsizetype first, qsizetype last)
{
    EntryPage page;
    for (qsizetype i = first; i <= last; ++i) {
        table.Seek(Shared.IncWords[i], Shared.IncAutoIDs[i], ADODB::adSeekFirstEQ);
        if (!table.Eof())
            page.WriteLine(PlainEntryLine(FieldsOfRow(table)));
    }
    page.Finish();
}

/// Empties the arrays of the list and gives them its length and the spare element; raises 9 for a length
/// below zero.
void SizeListArrays()
{
    if (Shared.IncListCount < 0)
        throw RuntimeError(RuntimeError::SubscriptOutOfRange);
    Shared.IncWords = QStringList(Shared.IncListCount + 1);
    Shared.IncAutoIDs = QList<std::int32_t>(Shared.IncListCount + 1);
}

} // namespace

void frmFind::txtFind_Change()
{
    if (Shared.SearchMode != ModeIncremental)
        return;
    const QString typed = txtFind->Text();
    const QString word = text::LTrim(typed);
    if (word != typed) {
        // Raises the event again, with the text that counts.
        const auto caret = txtFind->cursorPosition() - static_cast<int>(typed.size() - word.size());
        txtFind->SetText(word);
        txtFind->setCursorPosition(std::max(caret, 0));
        return;
    }
    if (word.isEmpty()) {
        List1->Clear();
        ShowBlankPage();
        ListIsFresh = 1;
        return;
    }
    if (ListClickActive == 0) {
        if (Shared.SearchTarget != TargetAll) {
            ListWordsDescriptions2(word);
        } else {
            std::int32_t fromTheText = 0;
            ListWordsDescriptions(word, fromTheText);
        }
    } else if (Shared.SearchTarget == TargetAll) {
        ListWordsDescriptions(word, ListClickAutoID);
    }
    ListClickActive = 0;
}

void frmFind::List1_Click()
{
    if (List1->ListIndex() < 0)
        return;
    if (Shared.SearchMode != ModeIncremental) {
        ShowHitsFromRow(List1->ListIndex());
        return;
    }
    ListClickIndex = List1->ListIndex();
    const QString word = text::LTrim(List1->Text());
    const auto done = qScopeGuard([this] { ListClickActive = 0; });
    if (Shared.SearchTarget != TargetAll) {
        ListWordsDescriptions3(ListClickIndex);
        ListClickActive = 1;
        txtFind->SetText(word);
        return;
    }
    ListClickActive = 1;
    ListClickAutoID = Shared.IncAutoIDs.value(ListClickIndex);
    if (txtFind->Text() == List1->Text())
        ListWordsDescriptions(word, ListClickAutoID);
    else
        txtFind->SetText(word);
}

void frmFind::ListWordsDescriptions(const QString &text, std::int32_t &autoID)
{
    ShowRecords([&] {
        StatusBar1->SetSimpleText(QString());
        WritePageHeader();
        const QString key = text::Trim(text);
        ADODB::Recordset &table = OpenViewTable();
        TableFirstWord = TextOf(table, u"Word");
        if (TableFirstWord == key)
            autoID = TableFirstAutoID;
        table.Seek(key, autoID, ADODB::adSeekBeforeEQ);
        if (autoID == 0) {
            if (table.Eof())
                table.MoveFirst();
            else
                table.MoveNext();
        }
        if (table.Eof()) {
            List1->Clear();
        } else {
            PageFirstWord = TextOf(table, u"Word");
            PageFirstAutoID = AutoIDOf(table);
            FillFrom(table);
            NavigateHome();
        }
        if (Shared.ListHidden == 0)
            List1->show();
        CloseView();
    });
}

void frmFind::FillFrom(ADODB::Recordset &table)
{
    const bool refill = ListClickActive == 0;
    // A click leaves the list alone: its rows, its selection and its place.
    std::optional<ListFill> fill;
    if (refill) {
        fill.emplace(*List1);
        SizeListArrays();
        List1->Clear();
    }
    EntryPage page;
    for (int i = 0; i < Shared.IncListCount; ++i) {
        if (refill) {
            Shared.IncWords[i] = text::Trim(TextOf(table, u"Word"));
            Shared.IncAutoIDs[i] = AutoIDOf(table);
            ListIsFresh = 0;
        }
        if (i == Shared.IncListCount - 1) {
            PageLastWord = TextOf(table, u"Word");
            PageLastAutoID = AutoIDOf(table);
        }
        if (i < Shared.IncEntriesPerPage)
            page.WriteLine(PlainEntryLine(FieldsOfRow(table)));
        if (refill)
            List1->AddItem(Shared.IncWords[i]);
        table.MoveNext();
        if (table.Eof())
            break;
    }
    page.Finish();
}

void frmFind::ListWordsDescriptions2(const QString &text)
{
    ShowRecords([&] {
        // Also before a failure is told.
        const auto done = qScopeGuard([this] {
            host::SetMousePointer(host::PointerDefault);
            StatusBar1->SetSimpleText(QString());
        });
        StatusBar1->SetSimpleText(QStringLiteral("検索中..."));
        host::SetMousePointer(host::PointerHourglass);
        List1->Clear();
        ShowBlankPage();
        WritePageHeader();
        OpenView();
        ADODB::Recordset &rows = *Shared.ViewRecordset;
        rows.Open(LimitedIncrementalStatement(Shared.SearchTarget, text, Shared.IncListCount),
                  *Shared.ViewConnection, ADODB::adOpenStatic);
        SizeListArrays();
        if (rows.Eof()) {
            CloseView();
            return;
        }
        const qsizetype count = FillFromStatement(rows);
        CloseView();
        const qsizetype shown = std::min<qsizetype>(Shared.IncEntriesPerPage, count);
        WriteListedEntries(OpenViewTable(), 0, shown - 1);
        NavigateHome();
        if (Shared.ListHidden == 0)
            List1->show();
        CloseView();
    });
}

qsizetype frmFind::FillFromStatement(ADODB::Recordset &rows)
{
    const ListFill fill(*List1);
    qsizetype count = 0;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        const QString word = TextOf(rows, u"Word");
        Shared.IncWords[count] = word;
        Shared.IncAutoIDs[count] = AutoIDOf(rows);
        List1->AddItem(word);
        ++count;
    }
    Shared.IncWords.resize(count + 1);
    Shared.IncAutoIDs.resize(count + 1);
    return count;
}

void frmFind::ListWordsDescriptions3(std::int32_t index)
{
    ShowRecords([&] {
        StatusBar1->SetSimpleText(QString());
        ShowBlankPage();
        WritePageHeader();
        const qsizetype spare = Shared.IncAutoIDs.size() - 1;
        const qsizetype last = std::min<qsizetype>(index + Shared.IncEntriesPerPage - 1, spare - 1);
        WriteListedEntries(OpenViewTable(), index, last);
        NavigateHome();
        if (Shared.ListHidden == 0)
            List1->show();
        CloseView();
    });
}

void frmFind::ListWordsDescriptions5(QString &word, std::int32_t &autoID, int direction)
{
    constexpr int back = 1;
    ShowRecords([&] {
        StatusBar1->SetSimpleText(QString());
        WritePageHeader();
        int count = Shared.IncEntriesPerPage;
        ADODB::Recordset &table = OpenViewTable();
        if (direction == back)
            table.MoveFirst();
        else
            table.MoveLast();
        if (AutoIDOf(table) == autoID) {
            dialogs::BeepAndMsgBox(host::BeepExclamation,
                                   direction == back ? QStringLiteral("データの先頭に到達しました！")
                                                     : QStringLiteral("データの末尾に到達しました！"),
                                   dialogs::Exclamation, QStringLiteral("見出し語内容"));
            return;
        }
        table.Seek(word, autoID, ADODB::adSeekFirstEQ);
        for (int step = 1; step <= count; ++step) {
            if (direction == back)
                table.MovePrevious();
            else
                table.MoveNext();
            if (!table.Bof() && !table.Eof())
                continue;
            if (direction == back)
                table.MoveFirst();
            else
                table.MoveLast();
            count = step - 1;
        }
        word = TextOf(table, u"Word");
        autoID = AutoIDOf(table);
        table.Seek(word, autoID, ADODB::adSeekFirstEQ);
        EntryPage page;
        for (int i = 0; i < count && !table.Eof(); ++i) {
            page.WriteLine(PlainEntryLine(FieldsOfRow(table)));
            table.MoveNext();
        }
        page.Finish();
        NavigateHome();
        CloseView();
    });
}

void frmFind::Picture19_MouseDown()
{
    if (!text::Trim(PageFirstWord).isEmpty())
        ListWordsDescriptions5(PageFirstWord, PageFirstAutoID, 1);
}

void frmFind::Picture20_MouseDown()
{
    if (!text::Trim(PageFirstWord).isEmpty())
        ListWordsDescriptions5(PageFirstWord, PageFirstAutoID, 2);
}

void frmFind::txtFind_KeyPress(int character, bool *swallow)
{
    if (character == kEnter)
        EnterListSearch();
    if (character != kEscape)
        return;
    *swallow = true;
    ClearSearch();
}

void frmFind::List1_KeyPress(int character)
{
    if (character == kEscape)
        ClearSearch();
}

void frmFind::List1_MouseMove(const QPoint &point)
{
    constexpr quint32 outside = 0xFFFF0000, rowMask = 0x7FFF;
    const quint32 item = List1->ItemFromPoint(point);
    List1->setToolTip((item & outside) != 0 ? QString() : List1->List(static_cast<int>(item & rowMask)));
    FitPaneToList();
}

void frmFind::EnterList()
{
    if (List1->ListCount() == 0)
        return;
    List1->setFocus();
    if (List1->ListIndex() < 0)
        List1->SetListIndex(0);
}
