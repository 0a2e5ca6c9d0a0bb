#include "core/failure_handling.h"
#include "core/pure/app_files.h"
#include "core/pure/search_modes.h"
#include "core/shared_state.h"
#include "management/frmMstmnt.h"
#include "management/pure/result_removal.h"
#include "management/questions.h"
#include "platform/files/file_operations.h"
#include "platform/text/trim.h"
#include "presentation/frmFind.h"
#include "search/view.h"
#include "ui_frmMstmnt.h"

#include <algorithm>

std::uint8_t frmMstmnt::CheckRequiredFields()
{
    if (text::Trim(ui->Text1->Text()).isEmpty()) {
        Tell(QStringLiteral("単語･熟語項目に見出し語となる言葉を入力してください！"),
             QStringLiteral("入力必須項目"));
        ui->Text1->setFocus();
        return 1;
    }
    if (!text::Trim(ui->Text3->Text()).isEmpty() ||
        AskYesNo(QStringLiteral("訳語項目が空欄です。この項目に何も入力しないで保存してよろしいですか？"),
                 QStringLiteral("空欄項目確認")) == dialogs::Yes)
        return 0;
    ui->Text3->setFocus();
    return 1;
}

std::uint8_t frmMstmnt::WordExists(const QString &word)
{
    OpenView();
    Shared.ViewRecordset = Shared.ViewConnection->Execute(WordStatement(word));
    const bool exists = !Shared.ViewRecordset->Eof();
    CloseView();
    return exists ? 1 : 0;
}

void frmMstmnt::Command6_Click()
{
    const QString title = QStringLiteral("保存確認");
    if (EditState == 1) {
        if (AskYesNo(QStringLiteral("この新しい内容で保存してよろしいですか？"), title) != dialogs::Yes) {
            ui->Text1->setFocus();
            return;
        }
        if (CheckRequiredFields() == 1)
            return;
        AddRecord();
    } else {
        CheckDirty();
        if (AskYesNo(QStringLiteral("変更した内容で保存してよろしいですか？"), title) != dialogs::Yes) {
            ui->Text3->setFocus();
            return;
        }
        if (CheckRequiredFields() == 1 || SaveEdits() == 1)
            return;
    }
    EnterEditStateSaved();
}

void frmMstmnt::EnterEditStateSaved()
{
    EnterEditState();
    ui->Command7->setText(QStringLiteral("元に戻す"));
}

void frmMstmnt::AddRecord()
{
    const RecordKey key = AddRow(OpenViewTable(), ValuesToStore(ChosenWordPhrase()));
    CloseView();
    StandOnNew(key);
}

void frmMstmnt::SaveOnClose()
{
    AddRow(OpenViewTable(), ValuesToStore(WordPhraseOfWord(ui->Text1->Text())));
    CloseView();
}

/// The record is in the dictionary: whatever fails from here on, the form must not add it again.
void frmMstmnt::StandOnNew(const RecordKey &key)
{
    Shared.CurrentWord = key.word;
    Shared.CurrentAutoID = key.autoID;
    TakeSnapshot(ValuesToStore(ChosenWordPhrase()));
    if (EditState == 1)
        EnterEditStateSaved();
    EnableWalking(true);
    ShowCurrent();
}

void frmMstmnt::ReplaceCurrent()
{
    const RecordKey key = ReplaceRow(OpenViewTable(), {Shared.CurrentWord, Shared.CurrentAutoID},
                                     ValuesToStore(ChosenWordPhrase()));
    CloseView();
    RemoveFromMainList();
    StandOnNew(key);
}

std::uint8_t frmMstmnt::SaveEdits()
{
    if (DirtyKind == WordChanged) {
        const bool exists = WordExists(text::Trim(ui->Text1->Text())) == 1;
        if (exists && AskYesNo(QStringLiteral("同じ単語･熟語名が既登録にされています。保存しますか？"),
                               QStringLiteral("重複保存確認")) != dialogs::Yes) {
            ui->Text1->setFocus();
            return 1;
        }
        ReplaceCurrent();
        if (exists)
            return 0;
    }
    OpenAtCurrent(Shared.CurrentWord, Shared.CurrentAutoID);
    // Blanks around the word may have gone: it is sought as it is now.
    Shared.CurrentWord = ChangeRow(*Shared.ViewRecordset, ValuesToStore(ChosenWordPhrase())).word;
    CloseView();
    ShowCurrent();
    return 0;
}

void frmMstmnt::RemoveFromMainList()
{
    frmFind *window = MainWindow();
    if (Shared.EditOpenMode == 0 || !window)
        return;
    // The record has gone from the dictionary: a failure here is told, and the edit goes on.
    GuardStep([this, window] {
        if (Shared.SearchMode == ModeIncremental)
            RemoveFromIncrementalList(*window);
        else
            RemoveFromHits(*window);
    });
}

void frmMstmnt::RemoveFromIncrementalList(frmFind &window)
{
    const qsizetype element = Shared.IncAutoIDs.indexOf(Shared.CurrentAutoID);
    if (element < 0 || m_removedRows.contains(element))
        return;
    // The array keeps its elements, so rows that have left it stand before those behind them.
    const auto before =
        std::ranges::count_if(m_removedRows, [element](qsizetype removed) { return removed < element; });
    window.List1->RemoveItem(static_cast<int>(element - before));
    m_removedRows.append(element);
    MainListChanged = 1;
}

void frmMstmnt::RemoveFromHits(frmFind &window)
{
    const std::int32_t place = DeleteRandomFileRec(Shared.CurrentAutoID);
    if (place == -1)
        return;
    MainListChanged = 1;
    --Shared.HitCount;
    const std::int32_t position = place + 1;
    if (position > Shared.ListLastPos)
        return;
    // Rows and positions stay in step, on whichever page the hit was.
    if (position < Shared.ListFirstPos)
        --Shared.ListFirstPos;
    else
        window.List1->RemoveItem(position - Shared.ListFirstPos);
    --Shared.ListLastPos;
}

std::int32_t frmMstmnt::DeleteRandomFileRec(std::int32_t id)
{
    files::DeleteIfThere(AppFilePath(QStringLiteral("ListData_TMP.dat")));
    if (!files::Exists(ResultStorePath()))
        return -1;
    const ResultRemoval removal = WithoutResult(files::ReadAll(ResultStorePath()), id);
    files::Replace(ResultStorePath(), removal.content);
    return removal.position;
}
