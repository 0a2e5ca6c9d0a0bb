#include "web/pure/site_table.h"

#include "platform/files/application_folder.h"
#include "web/pure/sites_page.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QUrl>
#include <QUrlQuery>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

QByteArray Content(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

} // namespace

TEST(SiteTable, HasItsFifteenSites)
{
    struct Case {
        const char16_t *name, *path;
    };
    const Case cases[] = {
        {u"三省堂 Web Dictionary", u"/"},
        {u"国語 英和 和英 カタカナ 漢字 - infoseek マルチ辞書", u"/Jiten"},
        {u"国語辞典 英和辞典 和英辞典 - goo 辞書", u"/"},
        {u"研究社 Excite エキサイト 辞書 : 英和辞書", u"/dictionary/english_japanese/"},
        {u"Yahoo!辞書", u"/"},
        {u"MSN 辞書 - 英和辞典 和英辞典 国語辞典", u"/result.aspx"},
        {u"Longman Web Dictionary", u"/"},
        {u"Oxford Advanced Learner's Dictionary: Dictionary Look-up", u"/elt/global/products/oald/lookup/"},
        {u"Cambridge Dictionaries Online - Cambridge University Press", u"/"},
        {u"OneLook Dictionary Search", u"/"},
        {u"Merriam-Webster Online", u"/"},
        {u"The American Heritage Dictionary of the English Language, Fourth Edition. 2000", u"/61/"},
        {u"MSN Encarta - Dictionary", u"/encnet/features/dictionary/dictionaryhome.aspx"},
        {u"ASCII24 - アスキー デジタル用語辞典", u"/"},
        {u"Wordmere Web Page", u""},
    };
    ASSERT_EQ(SiteTable().size(), 15);
    QSet<QString> hosts;
    for (qsizetype row = 0; row < 15; ++row) {
        const Favorite &site = SiteTable()[row];
        const QUrl url(site.address, QUrl::StrictMode);
        EXPECT_EQ(site.name, QString::fromUtf16(cases[row].name));
        EXPECT_EQ(url.path(), QString::fromUtf16(cases[row].path)) << qPrintable(site.name);
        EXPECT_EQ(DecodeFavorite(EncodeFavorites({site})), site) << "fits its record";
        if (site.address.isEmpty())
            continue;
        EXPECT_TRUE(url.scheme() == u"http"_s || url.scheme() == u"https"_s) << qPrintable(site.address);
        EXPECT_TRUE(url.host().contains(u'.')) << qPrintable(site.address);
        hosts.insert(url.host());
    }
    EXPECT_EQ(hosts.size(), 14) << "each site has a host of its own";
    const QUrlQuery query(QUrl(SiteTable()[1].address).query());
    EXPECT_EQ(query.queryItemValue(u"sv"_s), u"DC"_s);
    EXPECT_EQ(query.queryItemValue(u"pg"_s), u"jiten_top.html"_s);
    EXPECT_EQ(query.queryItems().size(), 2);
}

TEST(SiteTable, IsTheFileThatShips)
{
    QTemporaryDir folder;
    files::SetApplicationFolder(folder.path());
    WriteDefaultFavorites();
    const QByteArray written = Content(folder.filePath(u"favorite.dat"_s));
    EXPECT_EQ(written.size(), 15 * 383);
    EXPECT_EQ(written, Content(QStringLiteral(WORDMERE_FAVORITES_FILE)));
    EXPECT_EQ(written.last(255), QByteArray(255, ' ')) << "the last row has no address";
}

TEST(SiteTable, ReplacesTheFileThatIsThere)
{
    QTemporaryDir folder;
    files::SetApplicationFolder(folder.path());
    QFile old(folder.filePath(u"favorite.dat"_s));
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write(QByteArray(20 * 383, 'x'));
    old.close();
    WriteDefaultFavorites();
    EXPECT_EQ(Content(old.fileName()), EncodeFavorites(SiteTable()));
}

TEST(SitesPage, LinksToEachSiteThatHasAnAddress)
{
    const QByteArray page =
        SitesPage({{u"語 <b>&"_s, u"http://a.example/?x=1&y=\"2\""_s}, {u"none"_s, QString()}});
    EXPECT_TRUE(page.contains(
        "<li><a href=\"http://a.example/?x=1&amp;y=&quot;2&quot;\">\x8c\xea &lt;b&gt;&amp;</a>"))
        << page.toStdString();
    EXPECT_FALSE(page.contains("none"));
    EXPECT_EQ(page.count("<li>"), 1);
    EXPECT_EQ(SitesPage(SiteTable()).count("<a href=\"http"), 14);
    EXPECT_TRUE(page.contains("charset=\"Shift_JIS\""));
}
