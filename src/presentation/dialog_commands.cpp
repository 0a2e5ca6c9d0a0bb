#include "core/shared_state.h"
#include "management/frmMstmnt.h"
#include "presentation/dialog_checks.h"
#include "presentation/frmFind.h"

// The commands that open dialogs. No other file of the main window includes them.

void frmFind::mnuOpen_Click()
{
    if (!DictionaryIsThere(
            QStringLiteral("辞書が一件も設定されていないため、どのデータベースを開くか判断できません！")))
        return;
    Shared.EditOpenMode = 0;
    ShowRecordEditor();
}

void frmFind::ShowRecordEditor() { (new frmMstmnt(*this))->ShowForm(); }
