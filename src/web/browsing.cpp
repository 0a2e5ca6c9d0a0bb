#include "core/failure_handling.h"
#include "core/pure/app_files.h"
#include "core/shared_state.h"
#include "platform/browser/web_browser.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/file_operations.h"
#include "presentation/frmFind.h"
#include "web/pure/site_table.h"
#include "web/pure/sites_page.h"

#include <QAction>
#include <array>

namespace
{

/// What the browser can be told, as BrowserCommand counts it.
enum BrowserCommandNumber : int { GoBack = 1, GoForward, GoHome, Stop, Refresh };

/// The entries for dictionaries, of no use on the web.
constexpr std::array kDictionaryEntries{
    u"mnuSrchFromAll", u"mnuSrchFromWord", u"mnuSrchFromPhrase", u"mnuHistory", u"mnuHideListBox",
    u"mnuSrchWebSite", u"mnuFileCreate",   u"mnuOpen",           u"mnuCnv",     u"mnuCompress",
    u"mnuDicAdd",      u"mnuColorSel",     u"mnuListSettings",
};
constexpr std::array kBrowserEntries{u"mnuGoBack", u"mnuGoForward", u"mnuGoHome", u"mnuCancel",
                                     u"mnuReflesh"};
constexpr std::array kBrowserPictures{22, 23, 24, 25, 26, 27};
/// Word book and pasting.
constexpr std::array kDictionaryPictures{9, 12};

QString SitesPath() { return AppFilePath(QStringLiteral("sites.html")); }

void WriteSitesPage()
{
    const QByteArray page = SitesPage(SiteTable());
    // Where it stands already, a folder that cannot be written does no harm.
    if (!files::Exists(SitesPath()) || files::ReadAll(SitesPath()) != page)
        files::Replace(SitesPath(), page);
}

} // namespace

void frmFind::ShowWebControls(bool onTheWeb)
{
    txtFind->setVisible(!onTheWeb);
    Combo2->setVisible(onTheWeb);
    for (const char16_t *name : kDictionaryEntries)
        Menu(QString::fromUtf16(name))->setEnabled(!onTheWeb);
    for (const char16_t *name : kBrowserEntries)
        Menu(QString::fromUtf16(name))->setEnabled(onTheWeb);
    for (const int number : kBrowserPictures)
        PictureOf(number)->setVisible(onTheWeb);
    for (const int number : kDictionaryPictures)
        PictureOf(number)->setVisible(!onTheWeb);
}

void frmFind::SetWebMode()
{
    AbandonSearch();
    Shared.SearchMode = ModeWeb;
    ChangeWordEntryBoxSize(1);
    Label1->setText(QStringLiteral("ＵＲＬ："));
    setWindowTitle(QStringLiteral("Wordmere- ウエブ サイトの検索"));
    Shared.ListHidden = 0;
    ToggleHeadwordList();
    WebBrowser1->SetHomePage(SitesPath());
    WebBrowser1->KeepCookies(AppFilePath(QStringLiteral("cookies.dat")));
    // The web does not need the page; the window must not stop half way for it.
    GuardStep([this] { ShowBlankPage(); });
    ShowWebControls(true);
    Combo2->setFocus(Qt::OtherFocusReason);
}

void frmFind::SetDictionaryView()
{
    Shared.ListHidden = 1;
    ToggleHeadwordList();
    ChangeWordEntryBoxSize(m_entryBoxKind);
    ApplySearchTarget();
    ShowWebControls(false);
}

void frmFind::mnuSrchWebSite_Click()
{
    ClearForModeChange();
    SetWebMode();
}

void frmFind::BrowserCommand(int number)
{
    try {
        switch (number) {
        case GoBack: WebBrowser1->GoBack(); break;
        case GoForward: WebBrowser1->GoForward(); break;
        case GoHome:
            WriteSitesPage();
            WebBrowser1->GoHome();
            break;
        case Stop: WebBrowser1->Stop(); return;
        case Refresh: WebBrowser1->Refresh(); return;
        default: return;
        }
    } catch (const RuntimeError &) {
        // What the browser cannot do leaves it where it is.
    }
    RecordAddress(Combo2->currentText());
}

void frmFind::RecordAddress(const QString &address)
{
    if (Combo2->findText(address, Qt::MatchExactly | Qt::MatchCaseSensitive) < 0)
        Combo2->AddFirst(address);
}

void frmFind::GoToAddress()
{
    const QString address = Combo2->currentText();
    WebBrowser1->Navigate(address);
    RecordAddress(address);
}

void frmFind::Combo2_KeyPress(int character, bool *swallow)
{
    constexpr int enter = 13;
    if (character != enter)
        return;
    *swallow = true;
    GoToAddress();
}

void frmFind::Combo2_Click() { GoToAddress(); }

void frmFind::WebBrowser1_TitleChange()
{
    // Set anew, the same text would lose its selection, and typing would no longer replace it.
    const QString address = WebBrowser1->LocationURL();
    if (Combo2->currentText() != address)
        Combo2->setEditText(address);
}

void frmFind::mnuGoBack_Click() { BrowserCommand(GoBack); }
void frmFind::mnuGoForward_Click() { BrowserCommand(GoForward); }
void frmFind::mnuGoHome_Click() { BrowserCommand(GoHome); }
void frmFind::mnuCancel_Click() { BrowserCommand(Stop); }
void frmFind::mnuReflesh_Click() { BrowserCommand(Refresh); }
