#include "presentation/pure/help_index.h"
#include "presentation/pure/help_search.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

HelpBook Book()
{
    return ReadHelpBook(
        u"<html><body>"
        u"<section id=\"a\" data-keywords=\"検索|けんさく; Enter\"><h1>検索</h1><p>Enter "
        u"で始めます。</p></section>"
        u"<section id=\"b\" "
        u"data-keywords=\"印刷|いんさつ\"><h2>印刷</h2><p>検索の結果を検索して印刷。ｶﾞｲﾄﾞ</p></section>"
        u"<section id=\"c\" data-keywords=\"検索|けんさく; アドレス; "
        u"一覧|いちらん\"><h2>一覧</h2><p>一つの検索</p></section>"
        u"</body></html>"_s.toUtf8());
}

QList<HelpHit> Search(const QString &text) { return SearchHelp(Book(), SearchWords(text)); }

TEST(HelpSearch, PartsItsWordsAtBlanks)
{
    EXPECT_EQ(SearchWords(QString()), QStringList());
    EXPECT_EQ(SearchWords(u" \u3000 "_s), QStringList());
    EXPECT_EQ(SearchWords(u" a\u3000 b "_s), (QStringList{u"a"_s, u"b"_s}));
}

TEST(HelpSearch, FindsTopicsWithAllWords)
{
    using Hits = QList<HelpHit>;
    EXPECT_EQ(Search(QString()), Hits());
    EXPECT_EQ(Search(u"無い"_s), Hits());
    // The title first, then by number.
    EXPECT_EQ(Search(u"検索"_s), (Hits{{0, 1}, {1, 2}, {2, 1}}));
    EXPECT_EQ(Search(u"検索 印刷"_s), (Hits{{1, 4}}));
    EXPECT_EQ(Search(u"検索 無い"_s), Hits());
}

TEST(HelpSearch, IgnoresCaseWidthAndKanaType)
{
    using Hits = QList<HelpHit>;
    for (const QString &text : {u"ENTER"_s, u"enter"_s, u"Ｅｎｔｅｒ"_s})
        EXPECT_EQ(Search(text), (Hits{{0, 1}})) << qPrintable(text);
    for (const QString &text : {u"ガイド"_s, u"がいど"_s, u"ｶﾞｲﾄﾞ"_s})
        EXPECT_EQ(Search(text), (Hits{{1, 1}})) << qPrintable(text);
}

TEST(HelpSearch, TellsWhereTheWordsStand)
{
    const auto matches = [](const QString &in, const QStringList &words) {
        QList<std::pair<qsizetype, qsizetype>> places;
        for (const text::Match &match : MatchesOf(words, text::Fold(in)))
            places.append({match.position, match.length});
        return places;
    };
    using Places = QList<std::pair<qsizetype, qsizetype>>;
    EXPECT_EQ(matches(u"abcabc"_s, {u"B"_s}), (Places{{2, 1}, {5, 1}}));
    EXPECT_EQ(matches(u"aaa"_s, {u"aa"_s}), (Places{{1, 2}}));
    EXPECT_EQ(matches(u"ｶﾞx"_s, {u"が"_s}), (Places{{1, 2}}));
    EXPECT_EQ(matches(u"abc"_s, {u"c"_s, u"a"_s}), (Places{{1, 1}, {3, 1}}));
    EXPECT_EQ(matches(u"abc"_s, {u"bc"_s, u"ab"_s, u"abc"_s}), (Places{{1, 3}}));
    EXPECT_EQ(matches(u"abc"_s, {QString()}), Places());
    EXPECT_EQ(matches(QString(), {u"a"_s}), Places());
}

TEST(HelpIndex, StandsInTheOrderOfTheReadings)
{
    QStringList labels;
    QList<qsizetype> topics;
    for (const HelpIndexEntry &entry : HelpIndex(Book())) {
        labels.append(entry.label);
        topics.append(entry.topic);
    }
    EXPECT_EQ(labels, (QStringList{u"Enter"_s, u"アドレス"_s, u"一覧"_s, u"印刷"_s, u"検索（検索）"_s,
                                   u"検索（一覧）"_s}));
    EXPECT_EQ(topics, (QList<qsizetype>{0, 2, 2, 1, 0, 2}));
    EXPECT_TRUE(HelpIndex(HelpBook()).isEmpty());
}

TEST(HelpIndex, HasARowForWhatIsTyped)
{
    const QList<HelpIndexEntry> index = HelpIndex(Book());
    const std::pair<QString, qsizetype> cases[] = {
        {QString(), -1}, {u" "_s, -1},   {u"e"_s, 0},  {u"Ｅｎ"_s, 0},
        {u"あど"_s, 1},  {u"いち"_s, 2}, {u"一"_s, 2}, {u"いん"_s, 3},
        {u"印刷"_s, 3},  {u"ｹﾝ"_s, 4},   {u"検"_s, 4}, {u" けんさく\u3000"_s, 4},
        {u"さつ"_s, 3}, // inside of a reading
        {u"索"_s, 4},   // inside of a word
        {u"うえ"_s, 4}, // would stand before it
        {u"0"_s, 0},     {u"わ"_s, 5},
    };
    for (const auto &[typed, row] : cases)
        EXPECT_EQ(IndexRowFor(index, typed), row) << qPrintable(typed);
    EXPECT_EQ(IndexRowFor({}, u"a"_s), -1);
}

} // namespace
