#include "core/shared_state.h"
#include "management/frmMstmnt.h"
#include "platform/dialogs/dialogs.h"
#include "platform/files/file_operations.h"
#include "platform/host/host.h"
#include "presentation/frmFind.h"
#include "presentation/pure/dialog_checks.h"

// The commands that open dialogs. No other file of the main window includes them.

void frmFind::mnuOpen_Click()
{
    const auto notice = DictionaryNotice(DictionaryDialog::Editor, Shared.CurrentDicPath,
                                         files::Exists(Shared.CurrentDicPath));
    if (notice) {
        dialogs::BeepAndMsgBox(host::BeepExclamation, notice->text, dialogs::Exclamation, notice->title);
        return;
    }
    Shared.EditOpenMode = 0;
    ShowRecordEditor();
}

void frmFind::ShowRecordEditor() { (new frmMstmnt(*this))->ShowForm(); }
