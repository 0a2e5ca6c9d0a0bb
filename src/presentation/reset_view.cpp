#include "core/pure/app_files.h"
#include "core/shared_state.h"
#include "platform/files/file_operations.h"
#include "presentation/frmFind.h"

void frmFind::ResetMainView(bool showsPage)
{
    AbandonSearch();
    HideHitPaging();
    const bool incremental = Shared.SearchMode == ModeIncremental;
    if (!incremental)
        files::DeleteIfThere(ResultStorePath());
    List1->Clear();
    WriteMessagePage(QString());
    if (showsPage)
        NavigateHome();
    if (incremental)
        for (const int number : {19, 20})
            PictureOf(number)->setVisible(Shared.SearchTarget == TargetAll);
    txtFind->SetText(QString());
    StatusBar1->SetSimpleText(QString());
}
