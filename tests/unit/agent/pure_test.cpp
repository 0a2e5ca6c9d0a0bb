#include "platform/agent/pure/mouth.h"
#include "platform/agent/pure/spoken_text.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using agent::Mouth;

namespace
{

TEST(Mouths, FollowTheSounds)
{
    const struct {
        QString name;
        Mouth mouth;
    } rows[] = {
        {u""_s, Mouth::Closed},  {u"_:"_s, Mouth::Closed}, {u"m"_s, Mouth::Closed}, {u"p"_s, Mouth::Closed},
        {u"A:"_s, Mouth::Open},  {u"aI"_s, Mouth::Open},   {u"V"_s, Mouth::Open},   {u"i:"_s, Mouth::Wide},
        {u"eI"_s, Mouth::Wide},  {u"oU"_s, Mouth::Round},  {u"w"_s, Mouth::Round},  {u"tS"_s, Mouth::Round},
        {u"dZ"_s, Mouth::Round}, {u"t"_s, Mouth::Small},   {u"@"_s, Mouth::Small},  {u"3:"_s, Mouth::Small},
    };
    for (const auto &row : rows)
        EXPECT_EQ(agent::MouthOfPhoneme(row.name), row.mouth) << qPrintable(row.name);
}

TEST(Mouths, FollowLetters)
{
    EXPECT_EQ(agent::MouthOfLetter(u'A'), Mouth::Open);
    EXPECT_EQ(agent::MouthOfLetter(u'i'), Mouth::Wide);
    EXPECT_EQ(agent::MouthOfLetter(u'o'), Mouth::Round);
    EXPECT_EQ(agent::MouthOfLetter(u'B'), Mouth::Closed);
    EXPECT_EQ(agent::MouthOfLetter(u't'), Mouth::Small);
    EXPECT_EQ(agent::MouthOfLetter(u','), Mouth::Closed);
}

TEST(SpeakableText, KeepsPositions)
{
    EXPECT_EQ(agent::SpeakableText(u"a\u0001b\tc\r\nd\u0085"_s), u"a b c\r\nd "_s);
    const QString pair = u"x\U0001F600y"_s;
    EXPECT_EQ(agent::SpeakableText(pair), pair);
    EXPECT_EQ(agent::SpeakableText(u"a"_s + QChar(0xD83D)), u"a "_s);
    EXPECT_EQ(agent::SpeakableText(QChar(0xDE00) + u"a"_s), u" a"_s);
}

TEST(Pages, EndWithASentenceOrBetweenWords)
{
    EXPECT_EQ(agent::PageEnd(u"One. Two."_s, 0), 4);
    EXPECT_EQ(agent::PageEnd(u"One. Two."_s, 5), 9);
    EXPECT_EQ(agent::PageEnd(u"3.14 is pi"_s, 0), 10);
    EXPECT_EQ(agent::PageEnd(u""_s, 0), 0);
    const QString words = u"word "_s.repeated(100);
    EXPECT_EQ(agent::PageEnd(words, 0), 119);
    EXPECT_EQ(agent::PageEnd(QString(500, u'x'), 0), 120);
    EXPECT_EQ(agent::PageEnd(u"x"_s + u"\U0001F600"_s.repeated(200), 0), 119) << "no pair is cut";
}

TEST(CodePoints, BecomePositions)
{
    const QString text = u"a\U0001F600b"_s;
    agent::CodePointWalk walk(text);
    EXPECT_EQ(walk.PositionOf(0), 0);
    EXPECT_EQ(walk.PositionOf(2), 3);
    EXPECT_EQ(walk.PositionOf(1), 1);
    EXPECT_EQ(walk.PositionOf(9), 4);
}

TEST(MouthedWords, ComeOneByOne)
{
    const QString text = u"  ab c"_s;
    const agent::MouthedWord first = agent::NextMouthedWord(text, 0);
    EXPECT_EQ(first.position, 2);
    EXPECT_EQ(first.length, 2);
    EXPECT_EQ(first.mouths, (QList{Mouth::Open, Mouth::Closed}));
    EXPECT_EQ(agent::NextMouthedWord(text, 4).position, 5);
    EXPECT_EQ(agent::NextMouthedWord(text, 6).length, 0);
}

} // namespace
