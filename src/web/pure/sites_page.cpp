#include "web/pure/sites_page.h"

#include "platform/text/shift_jis.h"

namespace
{

constexpr auto kHead =
    u"<!DOCTYPE html>\r\n"
    u"<html lang=\"ja\"><head><meta charset=\"Shift_JIS\">\r\n"
    u"<title>ウエブ辞書サイト</title>\r\n"
    u"<style>\r\n"
    u"body { margin: 1.5em 2em; color: #222; line-height: 1.5; }\r\n"
    u"h1 { font-size: 1.3em; font-weight: normal; color: #1f4f7a;"
    u" border-bottom: 2px solid #1f4f7a; }\r\n"
    u"li { margin-bottom: .6em; }\r\n"
    u"small { color: #5a5a5a; overflow-wrap: anywhere; }\r\n"
    u"</style></head>\r\n"
    u"<body><h1>ウエブ辞書サイト</h1>\r\n"
    u"<p>サイトの名前をクリックすると、この画面に表示されます。上の「ＵＲＬ：」の欄にアドレスを入力し、"
    u"Enter キーを押して移動することもできます。</p>\r\n"
    u"<ul>\r\n";
constexpr auto kTail =
    u"</ul>\r\n"
    u"<p><small>サイトの運営者の都合により、表示できなくなっているものもあります。</small></p>\r\n"
    u"</body></html>\r\n";

} // namespace

QByteArray SitesPage(const QList<Favorite> &sites)
{
    QString page = QString::fromUtf16(kHead);
    for (const Favorite &site : sites)
        if (!site.address.isEmpty())
            page += QStringLiteral("<li><a href=\"%1\">%2</a><br><small>%1</small></li>\r\n")
                        .arg(site.address.toHtmlEscaped(), site.name.toHtmlEscaped());
    return text::EncodePage(page + QString::fromUtf16(kTail));
}
