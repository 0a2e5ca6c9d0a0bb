#include "web/pure/site_table.h"

#include "core/pure/app_files.h"
#include "platform/files/file_operations.h"

const QList<Favorite> &SiteTable()
{
    using namespace Qt::StringLiterals;
    static const QList<Favorite> sites{
        {u"三省堂 Web Dictionary"_s, u"http://www.sanseido.net/"_s},
        {u"国語 英和 和英 カタカナ 漢字 - infoseek マルチ辞書"_s,
         u"http://dictionary.www.infoseek.co.jp/Jiten?sv=DC&pg=jiten_top.html"_s},
        {u"国語辞典 英和辞典 和英辞典 - goo 辞書"_s, u"https://dictionary.goo.ne.jp/"_s},
        {u"研究社 Excite エキサイト 辞書 : 英和辞書"_s,
         u"https://www.excite.co.jp/dictionary/english_japanese/"_s},
        {u"Yahoo!辞書"_s, u"http://dic.yahoo.co.jp/"_s},
        {u"MSN 辞書 - 英和辞典 和英辞典 国語辞典"_s, u"http://dictionary.msn.co.jp/result.aspx"_s},
        {u"Longman Web Dictionary"_s, u"http://www.longmanwebdict.com/"_s},
        {u"Oxford Advanced Learner's Dictionary: Dictionary Look-up"_s,
         u"http://www.oup.com/elt/global/products/oald/lookup/"_s},
        {u"Cambridge Dictionaries Online - Cambridge University Press"_s,
         u"https://dictionary.cambridge.org/"_s},
        {u"OneLook Dictionary Search"_s, u"https://www.onelook.com/"_s},
        {u"Merriam-Webster Online"_s, u"http://www.m-w.com/"_s},
        {u"The American Heritage Dictionary of the English Language, Fourth Edition. 2000"_s,
         u"https://www.bartleby.com/61/"_s},
        {u"MSN Encarta - Dictionary"_s,
         u"http://encarta.msn.com/encnet/features/dictionary/dictionaryhome.aspx"_s},
        {u"ASCII24 - アスキー デジタル用語辞典"_s, u"http://yougo.ascii24.com/"_s},
        {u"Wordmere Web Page"_s, QString()},
    };
    return sites;
}

void WriteDefaultFavorites()
{
    files::Replace(AppFilePath(QStringLiteral("favorite.dat")), EncodeFavorites(SiteTable()));
}
