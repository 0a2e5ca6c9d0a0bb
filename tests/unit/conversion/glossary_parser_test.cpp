#include "parsing.h"

#include "conversion/pure/glossary_category.h"
#include "conversion/pure/stored_row.h"

using namespace Qt::StringLiterals;
using namespace parsing;

namespace
{

QString Labels(const QString &category, const QString &os, const QString &application)
{
    return u"【String Category】"_s + category + u"\r\n【OS】"_s + os + u"\r\n【Application】"_s +
           application;
}

struct GlossaryLine {
    const char16_t *line;
    const char16_t *word;
    const char16_t *description;
    const char16_t *category;
    const char16_t *os;
    const char16_t *application;
};

} // namespace

TEST(GlossaryParser, TakesAFirstLineApart)
{
    constexpr GlossaryLine kLines[] = {
        {u"Open,1,開く,2,MNU,Windows,Word,99", u"Open", u"開く", u"Menu Item", u"Windows", u"Word"},
        {u"\"Save, As\",1,\"名前を付けて保存\",2,BUT,NT,Excel", u"Save, As", u"名前を付けて保存", u"Button",
         u"NT", u"Excel"},
        {u"Close,1,閉じる,2,txt", u"Close", u"閉じる", u"Text", u"N/A", u"N/A"},
        {u"Exit,1,終了,2,ZZZ,NT,Excel", u"Exit", u"終了", u"Unknown", u"NT", u"Excel"},
        {u"Help,1,ヘルプ,2, MNU,NT,Excel", u"Help", u"ヘルプ", u"Unknown", u"NT", u"Excel"},
        {u"Print,1,印刷,2,MNU,NT", u"Print", u"印刷", u"Menu Item", u"", u"N/A"},
        {u"\"\",1,空,2,TXT", u"", u"空", u"Text", u"N/A", u"N/A"},
        // A code that stands last is trimmed, with the line; one that does not is not.
        {u"  a,1,b,2, MNU 　", u"a", u"b", u"Menu Item", u"N/A", u"N/A"},
        {u"a,1,b,2,MNU ,NT,Excel", u"a", u"b", u"Unknown", u"NT", u"Excel"},
        {u"a,1,b,2,ＭＮＵ,NT,Excel", u"a", u"b", u"Unknown", u"NT", u"Excel"},
        {u"a,1,b,2,mNu, NT , Excel ", u"a", u"b", u"Menu Item", u" NT ", u" Excel"},
        {u"a,1,b,2,,,", u"a", u"b", u"Unknown", u"", u""},
        {u"a,1,b,2,,", u"a", u"b", u"Unknown", u"", u"N/A"},
        {u"a,1,,2,MNU", u"a", u"", u"Menu Item", u"N/A", u"N/A"},
        {u"a,1,\"\",2,MNU", u"a", u"", u"Menu Item", u"N/A", u"N/A"},
        {u"a,,b,,MNU", u"a", u"b", u"Menu Item", u"N/A", u"N/A"},
        // A quote mark within an unquoted field is text, and quoted fields may hold single ones.
        {u"a\"b,1,c,2,MNU", u"a\"b", u"c", u"Menu Item", u"N/A", u"N/A"},
        {u"\"a\"b\",1,c,2,MNU", u"a\"b", u"c", u"Menu Item", u"N/A", u"N/A"},
        // The fields that are never quoted are cut at a comma all the same.
        {u"a,\"1,b\",c,2,MNU", u"a", u"b\"", u"Unknown", u"", u"N/A"},
        {u"a,1,b,2,MNU,\"N,T\",Excel", u"a", u"b", u"Menu Item", u"\"N", u"T\""},
        // A field that begins with the terminator goes on to the next one.
        {u"\",x\",1,b,2,MNU", u",x", u"b", u"Menu Item", u"N/A", u"N/A"},
        {u"\"\",\",1,b,2,MNU", u"", u"1", u"Unknown", u"", u"N/A"},
        {u"a,1,\",b\",2,MNU", u"a", u",b", u"Menu Item", u"N/A", u"N/A"},
        // Commas are searched whatever their width is.
        {u"a，1，b，2，MNU，NT，Excel,,,,", u"a", u"b", u"Menu Item", u"NT", u"Excel"},
        {u" a b ,1, c ,2,MNU", u"a b", u" c ", u"Menu Item", u"N/A", u"N/A"},
    };
    for (const GlossaryLine &line : kLines) {
        const QString example = Labels(Text(line.category), Text(line.os), Text(line.application));
        ExpectEntry(MakeGlossaryParser()->Parse(Text(line.line)),
                    {line.line, line.word, u"", line.description,
                     reinterpret_cast<const char16_t *>(example.utf16())});
    }
}

TEST(GlossaryParser, KeepsTheSystemOfTheLineBefore)
{
    const auto parser = MakeGlossaryParser();
    const auto exampleOf = [&parser](const QString &line) { return parser->Parse(line)->Example; };
    const QString lacking = u"Print,1,印刷,2,MNU,NT"_s;
    EXPECT_EQ(exampleOf(lacking), Labels(u"Menu Item"_s, u""_s, u"N/A"_s));
    EXPECT_EQ(exampleOf(u"Open,1,開く,2,MNU,Windows,Word,99"_s),
              Labels(u"Menu Item"_s, u"Windows"_s, u"Word"_s));
    EXPECT_EQ(exampleOf(lacking), Labels(u"Menu Item"_s, u"Windows"_s, u"N/A"_s));
    EXPECT_FALSE(parser->Parse(u"a,b,c"_s).has_value());
    EXPECT_EQ(exampleOf(lacking), Labels(u"Menu Item"_s, u"Windows"_s, u"N/A"_s));
    EXPECT_EQ(exampleOf(u"Close,1,閉じる,2,txt"_s), Labels(u"Text"_s, u"N/A"_s, u"N/A"_s));
    EXPECT_EQ(exampleOf(lacking), Labels(u"Menu Item"_s, u"N/A"_s, u"N/A"_s));
}

TEST(GlossaryParser, RejectsALineWithoutItsFields)
{
    const auto parser = MakeGlossaryParser();
    for (const QString &line : {u"a,b,c"_s, u",1,空,2,TXT"_s, u"a,b,c,d"_s, u"x"_s, u"\"a,1,b,2,MNU"_s,
                                u"a,1,\"b,2,MNU"_s, u"a,1,\"b,2\",MNU"_s, u"\"a,1,b,2\",c"_s,
                                u"\",1,b,2,MNU"_s, u"a，1，b，2，MNU"_s, u"\"，,\",\",\",\""_s})
        EXPECT_FALSE(parser->Parse(line).has_value()) << line.toStdString();
}

TEST(GlossaryParser, FailsWhereACharacterIsAskedOfNothing)
{
    const auto parser = MakeGlossaryParser();
    for (const QString &line :
         {u""_s, u"  "_s, u"　"_s, u"\"a,b,c,d\",1,"_s, u"a,1,b,2,"_s, u"a,1,\"b,c\",2, "_s})
        ExpectFailure(*parser, line, RuntimeError::InvalidCall);
}

TEST(GlossaryParser, CountsCommasInAByte)
{
    const auto lineOf = [](int commas) { return u"a,1,b,2,MNU,NT,Excel"_s + QString(commas - 6, u','); };
    const auto parser = MakeGlossaryParser();
    ASSERT_TRUE(parser->Parse(lineOf(255)).has_value());
    ExpectFailure(*parser, lineOf(256), RuntimeError::Overflow);
}

TEST(GlossaryParser, SavesWhatIsTooLongForItsColumn)
{
    const QString term(300, u'a');
    const QString translation(1030, u'訳');
    const QString labels = Labels(u"Menu Item"_s, u"NT"_s, u"Excel"_s);
    const auto parse = [](const QString &word, const QString &description) {
        return *MakeGlossaryParser()->Parse(word + u",1,"_s + description + u",2,MNU,NT,Excel"_s);
    };
    const SourceEntry word = parse(term, u"b"_s);
    EXPECT_EQ(word.Word, term.first(255));
    EXPECT_EQ(word.Example, u"【見出し語続き】"_s + QString(45, u'a') + u"\r\n"_s + labels);

    const SourceEntry description = parse(u"a"_s, translation);
    EXPECT_EQ(description.Description, translation.first(1024));
    EXPECT_EQ(description.Example, u"【訳語続き】"_s + QString(6, u'訳') + u"\r\n"_s + labels);

    const SourceEntry both = parse(term, translation);
    EXPECT_EQ(both.Example,
              u"【見出し語続き】"_s + QString(45, u'a') + u"\r\n【訳語続き】"_s + QString(6, u'訳') + labels);

    EXPECT_EQ(parse(term.first(255), translation.first(1024)).Example, labels);
    EXPECT_EQ(parse(u"a"_s, translation.first(1025)).Example, u"【訳語続き】訳\r\n"_s + labels);
    EXPECT_EQ(parse(term.first(256), u"b"_s).Example, u"【見出し語続き】a\r\n"_s + labels);
}

TEST(GlossaryParser, CutsLongTextsOnACharacter)
{
    const QString term = QString(254, u'a') + u"\U0001F600b"_s;
    const auto entry = MakeGlossaryParser()->Parse(term + u",1,b,2,MNU"_s);
    ASSERT_TRUE(entry.has_value());
    EXPECT_EQ(entry->Word, term.first(254));
    EXPECT_TRUE(entry->Example.startsWith(u"【見出し語続き】\U0001F600b\r\n"_s));
}

TEST(GlossaryParser, LosesLabelsBehindALongRest)
{
    const auto entry = MakeGlossaryParser()->Parse(u"a,1,"_s + QString(3000, u'b') + u",2,MNU"_s);
    ASSERT_TRUE(entry.has_value());
    const StoredRow row = RowOf(*entry);
    EXPECT_EQ(row.Description, QString(1024, u'b'));
    EXPECT_EQ(row.Example, u"【訳語続き】"_s + QString(1018, u'b'));
}

TEST(GlossaryCategoryName, KnowsItsCodes)
{
    const std::pair<QString, QString> names[] = {
        {u"TXT"_s, u"Text"_s},           {u"DOC"_s, u"Documentation"_s},
        {u"doc"_s, u"Documentation"_s},  {u"TXB"_s, u"Static Text"_s},
        {u"TKB"_s, u"Slider Bar"_s},     {u"KwD"_s, u"KeyWord"_s},
        {u"CID"_s, u"ComponentId"_s},    {u"UNK"_s, u"Unknown"_s},
        {u""_s, u"Unknown"_s},           {u" TXT"_s, u"Unknown"_s},
        {u"TX"_s, u"Unknown"_s},         {u"ＴＸＴ"_s, u"Unknown"_s},
        {u"VST"_s, u"VB Script Text"_s}, {u"SHA"_s, u"Shortcut Argument"_s},
    };
    for (const auto &[code, name] : names)
        EXPECT_EQ(GlossaryCategoryName(code), name) << code.toStdString();
}
