#pragma once

#include "management/pure/record_edits.h"
#include "management/pure/record_text.h"
#include "platform/controls/form.h"

#include <QList>
#include <cstdint>
#include <memory>

class frmFind;
namespace Ui
{
class frmMstmnt;
}

/// The record editor: walks, searches, adds, changes and deletes the records of the dictionary in use.
/// `EditOpenMode` 0 opens it on the first record, 1 on the one of `CurrentWord` and `CurrentAutoID`,
/// which are the record shown from then on. The main window takes no input while it is open. No
/// dictionary stays open while the user types.
class frmMstmnt : public controls::Form
{
    Q_OBJECT
public:
    frmMstmnt();
    ~frmMstmnt() override;

    /// 0 editing a record, 1 adding one.
    std::uint8_t EditState = 0;
    /// The last result of CheckDirty.
    std::uint8_t DirtyKind = NothingChanged;
    /// 1 once a row of the main window's list was removed.
    std::uint8_t MainListChanged = 0;
    /// 1 when the close button has dealt with the closing.
    std::uint8_t CloseHandled = 0;
    // The record shown, as the boxes returned it right after they were filled.
    QString OrigWord, OrigPronunciation, OrigDescription, OrigExample;
    std::uint8_t OrigWordPhrase = 1;

    /// Opens the view on the record of that key.
    void OpenAtCurrent(const QString &word, std::int32_t autoID);
    /// Shows the row that the view stands on, and makes it the current record.
    void ShowRecord();
    /// What changed: a number of DirtyKindNumber.
    std::uint8_t CheckDirty();
    /// 0 when what is needed is filled in, 1 to stop; tells or asks the user.
    std::uint8_t CheckRequiredFields();
    /// 1 when any box holds more than blanks.
    std::uint8_t HasAnyInput() const;
    std::uint8_t IsDictionaryEmpty();
    /// 1 when there is a record of that word, which goes into the statement unchanged.
    std::uint8_t WordExists(const QString &word);
    /// Adds a record of the boxes and shows it.
    void AddRecord();
    /// Stores the boxes in the current record, or in a new one in its place where the word changed.
    /// 0, or 1 to stay.
    std::uint8_t SaveEdits();
    /// The boxes are emptied for a new record.
    void EnterAddState();
    /// Shows the current record again and leaves the adding.
    void UndoEdits();
    /// Takes the current record out of the result that the main window shows, where it came from there.
    void RemoveFromMainList();
    /// Takes the hits of that record out of the store; the place of the one that went, from 0, or -1.
    std::int32_t DeleteRandomFileRec(std::int32_t id);

protected:
    void Form_Load() override;
    bool Form_QueryUnload(controls::UnloadReason reason) override;
    void Form_Unload(controls::UnloadReason reason) override;

private:
    enum class Step { First, Previous, Next, Last };
    /// How the user left a changed record: it may be left (unchanged or saved, or given up), or it stays,
    /// for want of something or because the user cancelled.
    enum class Leave { Go, GivenUp, Stay, Cancelled };

    void ConnectHandlers();
    void Text_Change();
    void MoveTo(Step step);
    void Command5_Click();
    void Command6_Click();
    void Command7_Click() { UndoEdits(); }
    void Command8_Click();
    void Command9_Click();
    void Command10_Click();

    RecordText Typed() const;
    RecordText Shown() const;
    /// What the boxes store: trimmed, an untouched box as it was in the record.
    RecordValues ValuesToStore(int wordPhrase) const;
    int ChosenWordPhrase() const;
    void TakeSnapshot(const RecordValues &stored);
    void FillBoxes(const RecordText &text);
    QString Caption(const QString &state) const;
    void EnableWalking(bool enabled);
    void EnterEditState();
    void EnterEditStateSaved();
    void ShowCurrent();
    void StandOnNew(const RecordKey &key);
    void ReplaceCurrent();
    void SaveOnClose();

    Leave SaveOrStay(const QString &question);
    bool MayLeave(const QString &question);
    bool MaySearch();
    bool FindRecord(const QString &escaped);
    bool MayClose();
    void SaveBeforeFrameClose();

    void RemoveFromIncrementalList(frmFind &window);
    void RemoveFromHits(frmFind &window);

    std::unique_ptr<Ui::frmMstmnt> ui;
    /// The record shown as the dictionary has it.
    RecordValues m_stored;
    /// The rows of `IncAutoIDs` that have left the list.
    QList<qsizetype> m_removedRows;
};
