#include "core/pure/app_files.h"
#include "platform/host/host.h"
#include "presentation/frmAbout.h"
#include "presentation/frmFind.h"

void frmFind::mnuTopicSearch_Click() { host::WinHelp(HelpFilePath(), host::HelpFinder); }

void frmFind::mnuAbout_Click() { (new frmAbout)->ShowModal(); }
