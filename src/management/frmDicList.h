#pragma once

#include "platform/controls/form.h"

#include <cstdint>
#include <memory>

class frmFind;
struct EntryFault;
namespace Ui
{
class frmDicList;
}

/// The dialog that adds, edits and deletes entries of the catalogue. What was changed reaches the disk
/// when the dialog is closed by its button, or else at the program's end.
class frmDicList : public controls::Form
{
    Q_OBJECT
    Q_PROPERTY(QString SavedDicName MEMBER m_savedDicName)
    Q_PROPERTY(int IsDicListDirty READ IsDicListDirty)
public:
    frmDicList();
    ~frmDicList() override;

    /// -1 once an entry was added, edited or deleted, else 0.
    int IsDicListDirty() const { return m_isDicListDirty; }

    void DicList_Click();
    void DicList_DblClick();
    void ButtonAdd_Click();
    void ButtonChange_Click();
    void ButtonDelete_Click();
    void ButtonQuit_Click();
    void Command1_Click();
    void ButtonOK_Click();
    void ButtonCancel_Click();

protected:
    void Form_Load() override;
    void Form_Unload(controls::UnloadReason reason) override;

private:
    void ConnectHandlers();
    /// Puts the selected entry into the fields and keeps its name.
    void ShowSelectedDictionary();
    /// Tells length and time of the file at the drive path.
    void ShowFileDetails(const QString &path);
    void ShowPath(const QString &path);
    void ClearFields();
    /// Enables the fields of one entry, or the list with its buttons.
    void EnableFields(bool fields);
    void ShowLayout(bool isEditing);
    void BeginEditing(const QString &caption);
    void ReturnToBrowsing();
    void FillDicList();
    void FocusName();
    /// Clears away what the main window shows of the dictionary in use.
    static void ResetMainWindow(frmFind &window);
    void SaveAndRefresh();

    std::unique_ptr<Ui::frmDicList> m_ui;
    QString m_savedDicName;
    std::int16_t m_isDicListDirty = 0;
};
