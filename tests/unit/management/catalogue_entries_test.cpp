#include "management/pure/catalogue_entries.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

Lexicon Entry(const QString &name, qint16 selected = 0)
{
    Lexicon entry;
    entry.DicName = name;
    entry.DicPath = u"C:\\"_s + name;
    entry.IsSelected = selected;
    return entry;
}

Lexicon Freed()
{
    Lexicon entry;
    entry.IsDeleted = -1;
    return entry;
}

LexiconArray Array(QList<Lexicon> entries)
{
    entries.append(Lexicon{});
    return entries;
}

} // namespace

TEST(CatalogueEntries, ANewNameIsOneThatNoEntryBears)
{
    const struct {
        QStringList names;
        QString expected;
    } cases[] = {
        {{}, u"新しい辞書"_s},
        {{u"英和"_s}, u"新しい辞書"_s},
        {{u"新しい辞書"_s}, u"新しい辞書1"_s},
        {{u"新しい辞書１"_s, u" 新しい辞書　"_s}, u"新しい辞書2"_s},
        {{u"新しい辞書1"_s}, u"新しい辞書"_s},
    };
    for (const auto &[names, expected] : cases) {
        QList<Lexicon> entries;
        for (const QString &name : names)
            entries.append(Entry(name));
        EXPECT_EQ(MakeNewDicName(Array(entries)), expected) << expected.toStdString();
    }
    EXPECT_EQ(MakeNewDicName(std::nullopt), u"新しい辞書"_s);
}

TEST(CatalogueEntries, TheFirstFreeSlotIsFound)
{
    EXPECT_EQ(FindFreeSlot(std::nullopt), -1);
    EXPECT_EQ(FindFreeSlot(Array({})), -1);
    EXPECT_EQ(FindFreeSlot(Array({Entry(u"a"_s)})), -1);
    EXPECT_EQ(FindFreeSlot(Array({Entry(u"a"_s), Freed(), Freed()})), 1);
}

TEST(CatalogueEntries, NamesAreComparedAsText)
{
    const LexiconArray lexicons = Array({Freed(), Entry(u"ABC かな"_s)});
    for (const QString &name : {u"ABC かな"_s, u"abc カナ"_s, u"ＡＢＣ　ｶﾅ"_s, u"  ABC かな　"_s})
        EXPECT_EQ(DicNameExists(lexicons, name), -1) << name.toStdString();
    for (const QString &name : {u""_s, u"ABC"_s, u"ABC がな"_s})
        EXPECT_EQ(DicNameExists(lexicons, name), 0) << name.toStdString();
    EXPECT_EQ(DicNameExists(std::nullopt, u"a"_s), 0);
    EXPECT_EQ(FindDicName(lexicons, u"abc かな"_s), 1);
    EXPECT_EQ(DicNames(lexicons), QStringList{u"ABC かな"_s});
    EXPECT_TRUE(DicNames(std::nullopt).isEmpty());
}

TEST(CatalogueEntries, AnAdditionTakesAFreeSlotElseTheSpareOne)
{
    LexiconArray lexicons;
    AddLexicon(lexicons, u"a"_s, u"C:\\a"_s);
    EXPECT_EQ(lexicons, Array({Entry(u"a"_s)}));
    AddLexicon(lexicons, u"b"_s, u"C:\\b"_s);
    EXPECT_EQ(lexicons, Array({Entry(u"a"_s), Entry(u"b"_s)}));
    DeleteLexicon(lexicons, u"A"_s);
    EXPECT_EQ(lexicons, Array({Freed(), Entry(u"b"_s)}));
    AddLexicon(lexicons, u"c"_s, u"C:\\c"_s);
    EXPECT_EQ(lexicons, Array({Entry(u"c"_s), Entry(u"b"_s)}));
}

TEST(CatalogueEntries, AChangeKeepsTheSlotAndTheMarkOfUse)
{
    LexiconArray lexicons = Array({Entry(u"a"_s), Entry(u"b"_s, -1)});
    EXPECT_TRUE(ChangeLexicon(lexicons, u"Ｂ"_s, u"c"_s, u"C:\\c"_s));
    EXPECT_EQ(lexicons, Array({Entry(u"a"_s), Entry(u"c"_s, -1)}));
    EXPECT_FALSE(ChangeLexicon(lexicons, u"b"_s, u"d"_s, u"C:\\d"_s));
    EXPECT_FALSE(ChangeLexicon(lexicons, u""_s, u"d"_s, u"C:\\d"_s));
    EXPECT_EQ(lexicons, Array({Entry(u"a"_s), Entry(u"c"_s, -1)}));
}

TEST(CatalogueEntries, ADeletionEmptiesTheSlot)
{
    LexiconArray lexicons = Array({Entry(u"a"_s, -1), Entry(u"b"_s)});
    DeleteLexicon(lexicons, u"a"_s);
    EXPECT_EQ(lexicons, Array({Freed(), Entry(u"b"_s)}));
    DeleteLexicon(lexicons, u""_s);
    DeleteLexicon(lexicons, u"x"_s);
    EXPECT_EQ(lexicons, Array({Freed(), Entry(u"b"_s)}));
    EXPECT_EQ(FindDicName(lexicons, u""_s), -1);
}
