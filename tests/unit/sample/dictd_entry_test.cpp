#include "dictd_entry.h"

#include <gtest/gtest.h>

namespace
{

using namespace Qt::StringLiterals;
using sample::Entry;
using sample::MakeRecord;
using sample::ParseEntry;
using sample::Record;

TEST(DictdEntry, ReadsHeadwordPronunciationAndPartOfSpeech)
{
    struct {
        QString line, headword, pronunciation, partOfSpeech;
    } const table[] = {
        {u"cat /kat/ <n>"_s, u"cat"_s, u"kat"_s, u"n"_s},
        {u"Ann //eən// //æn// <pn>"_s, u"Ann"_s, u"eən"_s, u"pn"_s},
        {u"ichor //-kə// //ˈaɪkɔɹ// <n>"_s, u"ichor"_s, u"ˈaɪkɔɹ"_s, u"n"_s},
        {u"dom //-dəm// <n>"_s, u"dom"_s, u"-dəm"_s, u"n"_s},
        {u"Kenya /[ˈkɛ.ɲa]/ <pn>"_s, u"Kenya"_s, u"ˈkɛ.ɲa"_s, u"pn"_s},
        {u"AC/DC /ˌeɪsˈiː/ <adj>"_s, u"AC/DC"_s, u"ˌeɪsˈiː"_s, u"adj"_s},
        {u"rank and file /ɹˈaŋk and fˈaɪl/"_s, u"rank and file"_s, u"ɹˈaŋk and fˈaɪl"_s, {}},
        {u"9/11"_s, u"9/11"_s, {}, {}},
        {u"Unsupported titles/C sharp /ʌn/ <pn>"_s, u"C sharp"_s, {}, u"pn"_s},
        {{}, {}, {}, {}},
    };
    for (const auto &row : table) {
        const Entry entry = ParseEntry(row.line + u"\n訳\n"_s);
        EXPECT_EQ(entry.headword, row.headword);
        EXPECT_EQ(entry.pronunciation, row.pronunciation) << row.line.toStdString();
        EXPECT_EQ(entry.partOfSpeech, row.partOfSpeech);
        EXPECT_EQ(entry.senses.size(), 1);
    }
}

TEST(DictdEntry, ReadsSensesAndTheirDefinitions)
{
    EXPECT_EQ(ParseEntry(u"bowls <n>\nローンボウルズ\n"_s).senses,
              (QList<sample::Sense>{{{u"ローンボウルズ"_s}, {}}}));
    EXPECT_EQ(
        ParseEntry(u"p <n>\n1. 生成物 2.\nby a process\n 3.\nof a reaction\n2. 製品, 商品\nfor sale\n"_s)
            .senses,
        (QList<sample::Sense>{{{u"生成物"_s}, {u"by a process"_s, u"of a reaction"_s}},
                              {{u"製品"_s, u"商品"_s}, {u"for sale"_s}}}));
    // A number out of turn belongs to the definition.
    EXPECT_EQ(ParseEntry(u"y <n>\n年\n1999. a year\n"_s).senses,
              (QList<sample::Sense>{{{u"年"_s}, {u"1999. a year"_s}}}));
}

TEST(DictdEntry, LeavesOutSensesWithoutATranslation)
{
    EXPECT_TRUE(ParseEntry(u"x <n>\n, \nonly explained\n"_s).senses.isEmpty());
    EXPECT_TRUE(ParseEntry(u"x <n>\n"_s).senses.isEmpty());
    EXPECT_TRUE(ParseEntry({}).senses.isEmpty());
}

TEST(DictdEntry, CleansWhatTheSourceLeftIn)
{
    EXPECT_EQ(ParseEntry(u"x\n[[グレイ・カップ]], [[w:杯|杯]]\nby }}, titled {{t}} a <b>\n"_s).senses,
              (QList<sample::Sense>{{{u"グレイ・カップ"_s, u"杯"_s}, {u"by, titled a ＜b＞"_s}}}));
}

Record RecordOf(const QStringList &texts)
{
    QList<Entry> entries;
    for (const QString &text : texts)
        entries.append(ParseEntry(text));
    return MakeRecord(entries).value_or(Record{});
}

TEST(DictdEntry, MakesOneRecordOfAHeadword)
{
    const Record record =
        RecordOf({u"set <adj>\n準備, 用意\nready\n"_s, u"set //sɛt// <n>\n1. セット\nin tennis\n2. 集合\n"_s,
                  u"set <q>\n組\n"_s});
    EXPECT_EQ(record.word, u"set"_s);
    EXPECT_EQ(record.pronunciation, u"sɛt"_s);
    EXPECT_EQ(record.wordPhrase, 1);
    EXPECT_EQ(record.description, u"【形】準備、用意 (ready) 【名】1 セット (in tennis) / 2 集合 組"_s);
    EXPECT_EQ(RecordOf({u"cat nap <n>\nうたた寝\n"_s}).wordPhrase, 2);
}

TEST(DictdEntry, MakesNoRecordOfNothing)
{
    EXPECT_FALSE(MakeRecord({}).has_value());
    EXPECT_FALSE(MakeRecord({ParseEntry(u"ation <n>\n \n-ation\n"_s)}).has_value());
    EXPECT_FALSE(MakeRecord({ParseEntry(u"able <suffix>\nれる\n"_s)}).has_value());
    EXPECT_FALSE(MakeRecord({ParseEntry(u"\n訳\n"_s)}).has_value());
}

TEST(DictdEntry, KeepsToTheLengthsOfTheColumns)
{
    EXPECT_EQ(RecordOf({QString(300, u'w') + u" <n>\n訳\n"_s}).word.size(), 255);
    EXPECT_TRUE(RecordOf({u"x /"_s + QString(65, u'p') + u"/\n訳\n"_s}).pronunciation.isEmpty());
    EXPECT_EQ(RecordOf({u"x /"_s + QString(64, u'p') + u"/\n訳\n"_s}).pronunciation.size(), 64);
    EXPECT_EQ(RecordOf({u"x\n"_s + QString(2000, u'訳') + u'\n'}).description.size(), 1024);
    const QString half(600, u'訳');
    EXPECT_EQ(RecordOf({u"x\n1. "_s + half + u"\n2. "_s + half + u'\n'}).description, u"1 "_s + half);
}

} // namespace
