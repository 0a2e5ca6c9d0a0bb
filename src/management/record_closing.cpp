#include "core/pure/search_modes.h"
#include "core/shared_state.h"
#include "management/frmMstmnt.h"
#include "management/questions.h"
#include "presentation/frmFind.h"
#include "ui_frmMstmnt.h"

#include <QScopeGuard>

namespace
{

QString ChangedQuestion() { return QStringLiteral("内容が変更されています。終了前に保存しますか？"); }
QString ChangedTitle() { return QStringLiteral("変更確認"); }
QString AddingQuestion() { return QStringLiteral("追加処理中です。終了前にデータを保存しますか？"); }
QString AddingTitle() { return QStringLiteral("保存確認"); }

void GiveMainWindowBack()
{
    if (frmFind *window = MainWindow())
        window->SetTakesInput(true);
}

} // namespace

void frmMstmnt::Command9_Click()
{
    if (!MayClose())
        return;
    CloseHandled = 1;
    GiveMainWindowBack();
    Unload();
}

bool frmMstmnt::MayClose()
{
    Leave leave = Leave::Go;
    if (EditState == 0) {
        leave = SaveOrStay(ChangedQuestion());
    } else if (HasAnyInput() == 1) {
        switch (AskYesNoCancel(AddingQuestion(), AddingTitle())) {
        case dialogs::Yes:
            if (CheckRequiredFields() == 1)
                return false;
            SaveOnClose();
            break;
        case dialogs::No: break;
        default:
            ui->Text3->setFocus();
            leave = Leave::Cancelled;
            break;
        }
    }
    if (leave == Leave::Cancelled)
        CloseHandled = 1;
    return leave == Leave::Go || leave == Leave::GivenUp;
}

bool frmMstmnt::Form_QueryUnload(controls::UnloadReason reason)
{
    if (CloseHandled == 0 && reason != controls::UnloadReason::Exit)
        SaveBeforeFrameClose();
    return true;
}

void frmMstmnt::SaveBeforeFrameClose()
{
    if (EditState == 0) {
        if (CheckDirty() != NothingChanged && AskYesNo(ChangedQuestion(), ChangedTitle()) == dialogs::Yes &&
            CheckRequiredFields() == 0)
            SaveEdits();
    } else if (HasAnyInput() == 1 && AskYesNo(AddingQuestion(), AddingTitle()) == dialogs::Yes &&
               CheckRequiredFields() == 0) {
        SaveOnClose();
    }
}

void frmMstmnt::Form_Unload(controls::UnloadReason /*reason*/)
{
    const auto giveBack = qScopeGuard(GiveMainWindowBack);
    frmFind *window = MainWindow();
    if (!window || Shared.EditOpenMode != 1 || Shared.SearchMode != ModeIncremental || MainListChanged != 1)
        return;
    window->txtFind->SetText(QString());
    window->txtFind->SetText(Shared.SavedIncSearchText);
}
