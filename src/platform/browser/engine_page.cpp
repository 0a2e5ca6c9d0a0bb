#include "platform/browser/engine_page.h"

#include "platform/browser/address.h"

#include <QColor>
#include <QFontDatabase>
#include <QTimer>
#include <QWebEngineCertificateError>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInterceptor>

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
/// brings the old scroll position back. The policy keeps handlers in the markup from running in the
/// moment when script is switched on for a web page that is about to come.
QWebEngineScript LocalPageScript()
{
    QWebEngineScript script;
    script.setName(QStringLiteral("local page"));
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::ApplicationWorld);
    script.setRunsOnSubFrames(false);
    script.setSourceCode(QStringLiteral(R"js(
if (location.protocol === 'file:') {
    history.scrollRestoration = 'manual';
    document.addEventListener('DOMContentLoaded', () => {
        const policy = document.createElement('meta');
        policy.httpEquiv = 'Content-Security-Policy';
        policy.content = "script-src 'none'";
        document.head.appendChild(policy);
    });
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
    ApplySettings(target);
    return true;
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
