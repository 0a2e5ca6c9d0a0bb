#include "platform/browser/engine_page.h"

#include "platform/browser/address.h"
#include "platform/controls/handler.h"
#include "platform/dialogs/dialogs.h"
#include "platform/files/drive_path.h"

#include <QAction>
#include <QColor>
#include <QFontDatabase>
#include <QTimer>
#include <QWebEngineCertificateError>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInterceptor>
#include <array>

namespace browser
{

namespace
{

/// Refuses whatever a page of the program asks for beside itself, and files to web pages.
class Interceptor : public QWebEngineUrlRequestInterceptor
{
public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void interceptRequest(QWebEngineUrlRequestInfo &info) override
    {
        // Which page is shown is decided by the page's acceptNavigationRequest. What a local page itself
        // asks for, a download for one, does not all come by there.
        if (info.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame) {
            if (info.initiator().isLocalFile())
                info.block(true);
            return;
        }
        if (!IsWebPage(info.firstPartyUrl()) || info.requestUrl().isLocalFile())
            info.block(true);
    }
};

/// Runs in a world of its own, script being off on the program's pages. Without it the engine
/// brings the old scroll position back. The policy keeps handlers in the markup, also in that of its frames,
/// from running in the moment when script is switched on for a web page that is about to come. What the
/// engine does by itself and without asking is kept back too: to go to an empty page, to open a box.
QWebEngineScript LocalPageScript()
{
    QWebEngineScript script;
    script.setName(QStringLiteral("local page"));
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::ApplicationWorld);
    script.setRunsOnSubFrames(true);
    script.setSourceCode(QStringLiteral(R"js(
const above = location.ancestorOrigins;
const isOfTheWeb = origin => /^https?:/.test(origin);
if (!isOfTheWeb(location.href) && !(above.length > 0 && isOfTheWeb(above[above.length - 1]))) {
    if (above.length === 0)
        history.scrollRestoration = 'manual';
    document.addEventListener('DOMContentLoaded', () => {
        const policy = document.createElement('meta');
        policy.httpEquiv = 'Content-Security-Policy';
        policy.content = "script-src 'none'";
        document.head.appendChild(policy);
    });
    // A refresh to any other place is refused when the engine asks.
    addEventListener('load', () => {
        if (document.querySelector('meta[http-equiv="refresh" i][content*="about:" i]'))
            window.stop();
    });
    addEventListener('submit', event => event.preventDefault(), true);
    addEventListener('click', event => {
        const way = event.target.closest('a, area, input, button');
        const leadsOn = way && (isOfTheWeb(way.href) || (way.getAttribute('href') || '').startsWith('#'));
        if (way && !leadsOn)
            event.preventDefault();
    }, true);
}
)js"));
    return script;
}

QString FirstOf(const QStringList &wanted)
{
    for (const QString &family : wanted)
        if (QFontDatabase::hasFamily(family))
            return family;
    return {};
}

void SetFonts(QWebEngineSettings &settings)
{
    const QString proportional = FirstOf({QStringLiteral("IPAPGothic"), QStringLiteral("Noto Sans CJK JP")});
    const QString fixed = FirstOf({QStringLiteral("IPAGothic"), QStringLiteral("Noto Sans Mono CJK JP")});
    if (!proportional.isEmpty())
        for (const auto family : {QWebEngineSettings::StandardFont, QWebEngineSettings::SerifFont,
                                  QWebEngineSettings::SansSerifFont})
            settings.setFontFamily(family, proportional);
    if (!fixed.isEmpty())
        settings.setFontFamily(QWebEngineSettings::FixedFont, fixed);
}

QString RefusedCertificatePage(const QWebEngineCertificateError &error)
{
    return QStringLiteral("<!DOCTYPE html><html lang=\"ja\"><head><title>%1</title></head>"
                          "<body style=\"margin:2em\"><h1 style=\"font-size:1.3em\">"
                          "このサイトへの接続は安全ではないため、表示しません。</h1>"
                          "<p>%1 の証明書を確認できません。</p><p><small>%2</small></p></body></html>")
        .arg(error.url().host().toHtmlEscaped(), error.description().toHtmlEscaped());
}

} // namespace

EnginePage::EnginePage(QWebEngineProfile *profile, QObject *parent) : QWebEnginePage(profile, parent)
{
    setBackgroundColor(QColor(Qt::white));
    NameActions();
    ApplySettings(QUrl());
    connect(this, &QWebEnginePage::urlChanged, this, &EnginePage::SettleFor);
    // A load that was stopped, or became a download, leaves the page that was there.
    connect(this, &QWebEnginePage::loadFinished, this, [this] {
        if (!isLoading())
            SettleFor(url());
    });
    // The engine refuses it without a word; the user is to see why nothing comes.
    connect(this, &QWebEnginePage::certificateError, this, [this](QWebEngineCertificateError error) {
        error.rejectCertificate();
        if (error.url() == m_coming)
            QTimer::singleShot(0, this, [this, html = RefusedCertificatePage(error), url = error.url()] {
                setHtml(html, url);
            });
    });
    // What a web page opens in a new window is shown in the one that there is.
    connect(this, &QWebEnginePage::newWindowRequested, this, [this](QWebEngineNewWindowRequest &request) {
        if (IsWebPage(url()) && IsWebPage(request.requestedUrl()))
            load(request.requestedUrl());
    });
}

bool EnginePage::acceptNavigationRequest(const QUrl &target, NavigationType type, bool isMainFrame)
{
    const bool isWebShown = IsWebPage(url());
    if (!isMainFrame)
        return isWebShown && !target.isLocalFile();
    if (type == NavigationTypeLinkClicked && url() == m_home && IsWebPage(target)) {
        // As if it were typed: the site learns nothing of where the user comes from.
        QTimer::singleShot(0, this, [this, target] { load(target); });
        return false;
    }
    const bool byUser =
        type == NavigationTypeTyped || type == NavigationTypeBackForward || type == NavigationTypeReload;
    const bool byServer = type == NavigationTypeRedirect && m_webIsComing;
    if (!byUser && (target.isLocalFile() || !(isWebShown || byServer)))
        return false;
    m_webIsComing = IsWebPage(target);
    m_coming = target;
    // A page that goes to itself again and again stays silenced.
    if (type == NavigationTypeTyped || type == NavigationTypeLinkClicked) {
        m_boxes = 0;
        m_isSilenced = false;
    }
    ApplySettings(target);
    return true;
}

bool EnginePage::MayShowBox(const QUrl &origin)
{
    constexpr int fewBoxes = 3;
    if (!m_isSilenced && m_boxes > 0 && m_boxes % fewBoxes == 0)
        m_isSilenced =
            dialogs::MsgBox(
                QStringLiteral("このページは続けてメッセージを表示しようとしています。\r\n表示しますか？"),
                dialogs::YesNo | dialogs::Question, origin.host()) != dialogs::Yes;
    ++m_boxes;
    return !m_isSilenced;
}

void EnginePage::javaScriptAlert(const QUrl &origin, const QString &text)
{
    controls::RunHandler([&] {
        if (MayShowBox(origin))
            dialogs::MsgBox(text, dialogs::Information, origin.host());
    });
}

bool EnginePage::javaScriptConfirm(const QUrl &origin, const QString &text)
{
    bool isConfirmed = false;
    controls::RunHandler([&] {
        isConfirmed = MayShowBox(origin) && dialogs::MsgBox(text, dialogs::OKCancel | dialogs::Question,
                                                            origin.host()) == dialogs::OK;
    });
    return isConfirmed;
}

bool EnginePage::javaScriptPrompt(const QUrl &origin, const QString &text, const QString &given,
                                  QString *answer)
{
    controls::RunHandler([&] {
        if (MayShowBox(origin))
            *answer = dialogs::InputBox(text, origin.host(), given);
    });
    return !answer->isNull();
}

QStringList EnginePage::chooseFiles(FileSelectionMode mode, const QStringList & /*former*/,
                                    const QStringList & /*types*/)
{
    QString chosen;
    controls::RunHandler([&] {
        if (IsWebPage(url()) && mode != FileSelectUploadFolder)
            chosen = dialogs::OpenFile(QString(), QStringLiteral("すべてのファイル (*.*)|*.*"), true, false);
    });
    return chosen.isEmpty() ? QStringList() : QStringList{files::HostPath(chosen)};
}

/// The menu of a page in the user's language, and without what a window alone cannot do.
void EnginePage::NameActions()
{
    struct Name {
        WebAction action;
        const char16_t *text;
    };
    constexpr std::array names{
        Name{Back, u"戻る"},
        Name{Forward, u"進む"},
        Name{Reload, u"最新の情報に更新"},
        Name{Stop, u"中止"},
        Name{Undo, u"元に戻す"},
        Name{Redo, u"やり直し"},
        Name{Cut, u"切り取り"},
        Name{Copy, u"コピー"},
        Name{Paste, u"貼り付け"},
        Name{PasteAndMatchStyle, u"書式なしで貼り付け"},
        Name{SelectAll, u"すべて選択"},
        Name{Unselect, u"選択の解除"},
        Name{OpenLinkInNewWindow, u"リンクを開く"},
        Name{CopyLinkToClipboard, u"リンクのアドレスをコピー"},
        Name{DownloadLinkToDisk, u"リンク先を保存..."},
        Name{CopyImageToClipboard, u"画像をコピー"},
        Name{CopyImageUrlToClipboard, u"画像のアドレスをコピー"},
        Name{DownloadImageToDisk, u"画像を保存..."},
        Name{CopyMediaUrlToClipboard, u"メディアのアドレスをコピー"},
        Name{DownloadMediaToDisk, u"メディアを保存..."},
        Name{ToggleMediaControls, u"操作ボタンの表示"},
        Name{ToggleMediaLoop, u"繰り返し再生"},
        Name{ToggleMediaPlayPause, u"再生／一時停止"},
        Name{ToggleMediaMute, u"消音"},
        Name{ExitFullScreen, u"全画面表示の終了"},
        Name{SavePage, u"ページを保存..."},
    };
    for (const Name &name : names)
        action(name.action)->setText(QString::fromUtf16(name.text));
    for (const WebAction unused : {OpenLinkInNewTab, OpenLinkInNewBackgroundTab, ViewSource, InspectElement})
        action(unused)->setVisible(false);
}

void EnginePage::StopLoading()
{
    triggerAction(Stop);
    // One that had not begun tells nothing of its end.
    SettleFor(url());
}

void EnginePage::SettleFor(const QUrl &shown)
{
    m_webIsComing = false;
    ApplySettings(shown);
}

void EnginePage::ApplySettings(const QUrl &shown)
{
    const bool isWeb = IsWebPage(shown);
    settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, isWeb);
    settings()->setAttribute(QWebEngineSettings::ErrorPageEnabled, isWeb);
    Q_EMIT WebPageChanged(isWeb);
}

QWebEngineProfile *MakeProfile(QObject *parent)
{
    auto *profile = new QWebEngineProfile(parent);
    profile->setHttpAcceptLanguage(QStringLiteral("ja,en;q=0.8"));
    profile->setUrlRequestInterceptor(new Interceptor(profile));
    profile->scripts()->insert(LocalPageScript());
    QWebEngineSettings &settings = *profile->settings();
    for (const auto attribute :
         {QWebEngineSettings::LocalContentCanAccessFileUrls,
          QWebEngineSettings::LocalContentCanAccessRemoteUrls, QWebEngineSettings::FocusOnNavigationEnabled,
          QWebEngineSettings::HyperlinkAuditingEnabled, QWebEngineSettings::DnsPrefetchEnabled,
          QWebEngineSettings::PluginsEnabled, QWebEngineSettings::AutoLoadIconsForPage})
        settings.setAttribute(attribute, false);
    settings.setDefaultTextEncoding(QStringLiteral("Shift_JIS"));
    SetFonts(settings);
    return profile;
}

} // namespace browser
