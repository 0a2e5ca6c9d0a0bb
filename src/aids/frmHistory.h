#pragma once

#include "platform/controls/form.h"

#include <memory>

namespace Ui
{
class frmHistory;
}

/// The word book: the user's own list of headwords to look up again. It is written when the form is
/// unloaded, whatever closes it.
class frmHistory : public controls::Form
{
    Q_OBJECT
public:
    frmHistory();
    ~frmHistory() override;

    /// Fills the list from a file of the application folder (made empty where it is missing), with no
    /// more rows than the word book may have, and keeps the file's path. A failure leaves the list.
    void LoadHistoryFile(const QString &fileName);

protected:
    void Form_Load() override;
    void Form_Unload(controls::UnloadReason reason) override;
    void Form_Resize() override;

private:
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void Command5_Click();
    void List1_DblClick();
    void List1_MouseMove(const QPoint &point);
    void ConnectHandlers();
    /// Rows can be scrolled sideways up to twice the list's width.
    void SetExtent();
    void FillList(const QStringList &rows);
    /// Selects the row that is the text, case ignored; whether there is one.
    bool SelectRow(const QString &word);
    /// The selected row goes into the entry box.
    void SendToEntryBox();

    std::unique_ptr<Ui::frmHistory> m_ui;
    QString m_filePath;
};
