#include "platform/browser/web_browser.h"
#include "platform/dialogs/dialogs.h"
#include "platform/failure/runtime_error.h"
#include "platform/host/host.h"
#include "platform/text/trim.h"
#include "presentation/frmFind.h"
#include "search/pure/entry_text.h"

#include <QMenu>

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
        dialogs::MsgBox(
            QStringLiteral("ご利用のオペレーティングシステム(OS)ではこの機能はサポートされていません。"),
            dialogs::Exclamation, QStringLiteral("印刷機能未サポート"));
    }
}

void frmFind::mnuPrint_Click() { ExecPrinting(browser::Print); }
void frmFind::mnuPrintView_Click() { ExecPrinting(browser::PrintPreview); }
void frmFind::mnuPageSettings_Click() { ExecPrinting(browser::PageSetup); }

void frmFind::Picture10_MouseDown()
{
    const controls::Picture *picture = PictureOf(10);
    m_popup->popup(picture->mapToGlobal(picture->rect().bottomLeft()));
}

void frmFind::Picture12_MouseDown()
{
    if (host::ClipboardHasText())
        txtFind->SetText(text::Trim(OneLine(host::ClipboardText())));
}
