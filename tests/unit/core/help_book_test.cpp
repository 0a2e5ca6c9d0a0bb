#include "presentation/pure/help_book.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

const QString kHead =
    u"<html><head><title>助け &amp; 索引</title><style>p { color: red; }</style></head><body>"_s;
const QString kFoot = u"</body></html>\n"_s;
const QString kChapter = u"<section id=\"first\"><h1>一章</h1><p>始め</p></section>"_s;
const QString kTopic =
    u"<section id=\"frmOne\" data-keywords=\"猫|ねこ; Cat ;犬|いぬ;\"><h2>猫 &lt;1&gt;</h2><p>にゃあ</p></section>"_s;

HelpBook Read(const QString &page) { return ReadHelpBook(page.toUtf8()); }

TEST(HelpBook, HoldsTopicsInOrder)
{
    const HelpBook book = Read(kHead + kChapter + kTopic + kFoot);
    EXPECT_TRUE(book.isWhole);
    EXPECT_EQ(book.title, u"助け & 索引"_s);
    EXPECT_EQ(book.style, u"p { color: red; }"_s);
    ASSERT_EQ(book.topics.size(), 2);
    EXPECT_EQ(book.topics[0].id, u"first"_s);
    EXPECT_TRUE(book.topics[0].isChapter);
    EXPECT_EQ(book.topics[0].title, u"一章"_s);
    EXPECT_TRUE(book.topics[0].keywords.isEmpty());
    EXPECT_FALSE(book.topics[1].isChapter);
    EXPECT_EQ(book.topics[1].title, u"猫 <1>"_s);
    const QList<HelpKeyword> keywords{{u"猫"_s, u"ねこ"_s}, {u"Cat"_s, u"Cat"_s}, {u"犬"_s, u"いぬ"_s}};
    EXPECT_EQ(book.topics[1].keywords, keywords);
    EXPECT_EQ(book.Find(u"frmOne"_s), 1);
    EXPECT_EQ(book.Find(u"frmTwo"_s), -1);
}

TEST(HelpBook, TellsDamage)
{
    struct Case {
        const char *what;
        QString page;
        qsizetype topics;
    };
    const Case cases[] = {
        {"empty", QString(), 0},
        {"no topic", kHead + kFoot, 0},
        {"another file", u"\x01\x02 no help"_s, 0},
        {"cut behind a topic", kHead + kChapter + kTopic, 2},
        {"cut in a topic", kHead + kChapter + kTopic.left(70), 1},
        {"cut in a tag", kHead + kChapter + u"<section id=\"x"_s, 1},
        {"an end that is missing", kHead + kTopic.chopped(10) + kChapter + kFoot, 1},
        {"without id", kHead + kChapter + u"<section class=\"x\"><h2>a</h2></section>"_s + kFoot, 1},
        {"without heading", kHead + kChapter + u"<section id=\"x\"><p>a</p></section>"_s + kFoot, 1},
        {"twice the same", kHead + kChapter + kChapter + kFoot, 1},
    };
    for (const Case &c : cases) {
        const HelpBook book = Read(c.page);
        EXPECT_FALSE(book.isWhole) << c.what;
        EXPECT_EQ(book.topics.size(), c.topics) << c.what;
    }
    EXPECT_FALSE(ReadHelpBook((kHead + kTopic).toUtf8() + "\xE3\x81" + kFoot.toUtf8()).isWhole)
        << "bytes that are no text";
}

TEST(HelpBook, ShowsATopicAsAPage)
{
    const HelpBook book = Read(kHead + kChapter + kTopic + kFoot);
    EXPECT_EQ(TopicPage(book, 1), u"<html><head><style>p { color: red; }</style></head><body>"
                                  u"<h2>猫 &lt;1&gt;</h2><p>にゃあ</p></body></html>"_s);
    EXPECT_EQ(TopicPage(book, 0),
              u"<html><head><style>p { color: red; }</style></head><body>"
              u"<h1>一章</h1><p>始め</p><ul><li><a href=\"#frmOne\">猫 &lt;1&gt;</a></li></ul>"
              u"</body></html>"_s);
}

TEST(HelpBook, GivesTheTextOfMarkup)
{
    const std::pair<QString, QString> cases[] = {
        {QString(), QString()},
        {u"plain"_s, u"plain"_s},
        {u"<p>a</p>\n<p>b</p>"_s, u"a\nb\n"_s},
        {u"一<strong>二</strong>三"_s, u"一二三"_s},
        {u"a<br>b<br/>c"_s, u"a\nb\nc"_s},
        {u"<tr><td>a</td><td>b</td></tr>"_s, u"a\nb\n\n"_s},
        {u"&lt;&gt;&amp;&quot;&nbsp;&#12354;&#x3042;"_s, u"<>&\" ああ"_s},
        {u"&amp;lt;"_s, u"&lt;"_s},
        {u"&unknown; &; & a;"_s, u"&unknown; &; & a;"_s},
        {u"&#0;&#x110000;&#;"_s, u"&#0;&#x110000;&#;"_s},
        {u"a < b"_s, u"a < b"_s},
        {u"a<"_s, u"a<"_s},
        {u"<>a</>"_s, u"a"_s},
    };
    for (const auto &[markup, text] : cases)
        EXPECT_EQ(TextOfMarkup(markup), text) << qPrintable(markup);
}

/// The help that is shipped.
class ShippedHelp : public testing::Test
{
protected:
    void SetUp() override
    {
        QFile file(QStringLiteral(WORDMERE_HELP_FILE));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        m_book = ReadHelpBook(file.readAll());
    }
    HelpBook m_book;
};

TEST_F(ShippedHelp, IsWhole)
{
    EXPECT_TRUE(m_book.isWhole);
    EXPECT_FALSE(m_book.topics.isEmpty());
    EXPECT_TRUE(m_book.topics.value(0).isChapter) << "it begins with a chapter";
}

TEST_F(ShippedHelp, TellsWhereverItIsCut)
{
    QFile file(QStringLiteral(WORDMERE_HELP_FILE));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll().trimmed();
    constexpr qsizetype step = 211; // cuts within characters, tags and topics
    for (qsizetype length = 0; length < whole.size(); length += step) {
        const HelpBook cut = ReadHelpBook(whole.first(length));
        EXPECT_FALSE(cut.isWhole) << length;
        EXPECT_LE(cut.topics.size(), m_book.topics.size()) << length;
    }
    EXPECT_FALSE(ReadHelpBook(whole.chopped(1)).isWhole);
    EXPECT_TRUE(ReadHelpBook(whole).isWhole);
}

TEST_F(ShippedHelp, HasATopicForEachForm)
{
    for (const QString &form :
         {u"frmFind"_s, u"frmHelp"_s, u"frmAbout"_s, u"frmSearch"_s, u"frmAddCondition"_s, u"frmHistory"_s,
          u"frmDicList"_s, u"frmCreateDB"_s, u"frmDataConv"_s, u"frmMstmnt"_s, u"frmDBCompress"_s,
          u"frmColorSelect"_s, u"frmListSettings"_s, u"frmSpeaking"_s, u"frmSpeakingSetting"_s,
          u"frmFavorite"_s})
        EXPECT_GE(m_book.Find(form), 0) << qPrintable(form);
}

TEST_F(ShippedHelp, LinksLeadToTopics)
{
    static const QRegularExpression link(u"href=\"([^\"]*)\""_s);
    int links = 0;
    for (const HelpTopic &topic : m_book.topics)
        for (const QRegularExpressionMatch &match : link.globalMatch(topic.html)) {
            const QString target = match.captured(1);
            ++links;
            EXPECT_TRUE(target.startsWith(u'#') && m_book.Find(target.mid(1)) >= 0)
                << qPrintable(topic.id) << " leads to " << qPrintable(target);
        }
    EXPECT_GT(links, 10);
}

TEST_F(ShippedHelp, TopicsCanBeToldApart)
{
    QSet<QString> titles;
    for (const HelpTopic &topic : m_book.topics) {
        EXPECT_FALSE(titles.contains(topic.title)) << qPrintable(topic.title);
        titles.insert(topic.title);
    }
}

/// Kanji have no place in the order of the index.
TEST_F(ShippedHelp, KeywordsHaveReadings)
{
    static const QRegularExpression readable(u"^[\\x{20}-\\x{7E}\\x{3041}-\\x{3096}\\x{30A1}-\\x{30FC}]+$"_s);
    for (const HelpTopic &topic : m_book.topics) {
        EXPECT_FALSE(topic.keywords.isEmpty()) << qPrintable(topic.id);
        for (const HelpKeyword &keyword : topic.keywords)
            EXPECT_TRUE(readable.match(keyword.reading).hasMatch())
                << qPrintable(topic.id) << ": " << qPrintable(keyword.word);
    }
}

/// Outside resources are never loaded, and sizes of their own would not follow the zoom.
TEST_F(ShippedHelp, NeedsNothingElse)
{
    for (const HelpTopic &topic : m_book.topics)
        for (const QString &tag : {u"<img"_s, u"<script"_s, u"<link"_s, u"<iframe"_s, u" src="_s})
            EXPECT_FALSE(topic.html.contains(tag)) << qPrintable(topic.id) << ' ' << qPrintable(tag);
    EXPECT_FALSE(m_book.style.contains(u"font-size"_s));
    EXPECT_FALSE(m_book.style.contains(u"url("_s));
}

} // namespace
