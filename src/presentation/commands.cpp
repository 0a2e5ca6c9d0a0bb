#include "core/failure_handling.h"
#include "platform/browser/web_browser.h"
#include "platform/failure/runtime_error.h"
#include "platform/host/host.h"
#include "platform/text/one_line.h"
#include "platform/text/trim.h"
#include "presentation/frmFind.h"

void frmFind::mnuExit_Click() { Unload(); }

void frmFind::mnuHideListBox_Click() { ToggleHeadwordList(); }

void frmFind::mnuCopy_Click() { WebBrowser1->ExecWB(browser::Copy); }

void frmFind::mnuSelectAll_Click() { WebBrowser1->ExecWB(browser::SelectAll); }

void frmFind::mnuFind_Click() { WebBrowser1->ShowFindBar(); }

void frmFind::ExecPrinting(int command)
{
    try {
        WebBrowser1->ExecWB(command);
    } catch (const RuntimeError &) {
        ShowPrintingUnsupported();
    }
}

void frmFind::mnuPrint_Click() { ExecPrinting(browser::Print); }
void frmFind::mnuPrintView_Click() { ExecPrinting(browser::PrintPreview); }
void frmFind::mnuPageSettings_Click() { ExecPrinting(browser::PageSetup); }

void frmFind::Picture12_MouseDown()
{
    if (host::ClipboardHasText())
        txtFind->SetText(text::Trim(text::OneLine(host::ClipboardText())));
}
