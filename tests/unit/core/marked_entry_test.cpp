#include "presentation/pure/marked_entry.h"

#include "core/pure/search_modes.h"
#include "platform/failure/runtime_error.h"

#include <gtest/gtest.h>
#include <string>

namespace
{

QString Line(const char *headword, const char *sound, const char *meaning, const char *example)
{
    return QString::fromUtf8(headword) + QStringLiteral("<SPAN ID=sty2>") + QString::fromUtf8(sound) +
           QStringLiteral("</SPAN><table width=\"97%\" border=\"0%\"><tr><td width=\"2%\"></td>"
                          "<td width=\"98%\">") +
           QString::fromUtf8(meaning) + QStringLiteral("</td> </tr> <tr> <td></td> <td>") +
           QString::fromUtf8(example) + QStringLiteral("</tr></table>");
}

struct Headword {
    int mode;
    const char16_t *word, *sought;
    const char *marked;
};

void ExpectHeadword(const Headword &c)
{
    const EntryFields record{QString::fromUtf16(c.word), {}, {}, {}};
    EXPECT_EQ(MarkedEntryLine(record, {c.mode, 0, QString::fromUtf16(c.sought), {}, {}}).toStdString(),
              Line(c.marked, "", "<SPAN ID=sty3></SPAN>", "<SPAN ID=sty4></SPAN>").toStdString());
}

/// The number of the failure that marking raises; 0 for none.
int FailureOf(const EntryFields &record, const EntryMarks &marks)
{
    try {
        MarkedEntryLine(record, marks);
    } catch (const RuntimeError &failure) {
        return failure.number();
    }
    return 0;
}

} // namespace

TEST(MarkedEntryLine, HasEveryPieceInItsPlace)
{
    EXPECT_EQ(MarkedEntryLine({QStringLiteral("abc"), QStringLiteral("x"), QStringLiteral("D"), QString()},
                              {ModePrefix, 0, QStringLiteral("ab"), {}, {}})
                  .toStdString(),
              R"(<SPAN ID=sty5>ab</SPAN><SPAN ID=sty1>c</SPAN><SPAN ID=sty2> [x]</SPAN>)"
              R"(<table width="97%" border="0%"><tr><td width="2%"></td><td width="98%">)"
              R"(<SPAN ID=sty3>D</SPAN></td> </tr> <tr> <td></td> <td><SPAN ID=sty4></SPAN></tr></table>)");
}

TEST(MarkedEntryLine, TrimsTheFieldsAndLeavesWhatIsInThem)
{
    EXPECT_EQ(MarkedEntryLine({QStringLiteral(" 　a<b　"), QStringLiteral(" "), QStringLiteral(" <i>D\r\n "),
                               QStringLiteral("　E & e ")},
                              {ModeWildcard, 0, {}, {}, {}})
                  .toStdString(),
              Line("<SPAN ID=sty1>a<b</SPAN>", "", "<SPAN ID=sty3><i>D\r\n</SPAN>",
                   "<SPAN ID=sty4>【用例】 E & e</SPAN>")
                  .toStdString());
}

TEST(MarkedEntryLine, MarksHeadwordsByTheMode)
{
    constexpr Headword cases[] = {
        {ModePrefix, u"Apple", u"app", "<SPAN ID=sty5>app</SPAN><SPAN ID=sty1>le</SPAN>"},
        {ModePrefix, u"ＡＢc", u"ab", "<SPAN ID=sty5>ab</SPAN><SPAN ID=sty1>c</SPAN>"},
        {ModePrefix, u"ab", u"ab", "<SPAN ID=sty5>ab</SPAN><SPAN ID=sty1></SPAN>"},
        {ModePrefix, u"ｶﾞス灯", u"ガス", "<SPAN ID=sty5>ガス</SPAN><SPAN ID=sty1>灯</SPAN>"},
        {ModePrefix, u"xyzzys", u"[w-x]", "<SPAN ID=sty5>[w-x]</SPAN><SPAN ID=sty1>s</SPAN>"},
        {ModeMiddle, u"pineAPPLEs", u"apple",
         "<SPAN ID=sty1>pine</SPAN><SPAN ID=sty5>apple</SPAN><SPAN ID=sty1>s</SPAN>"},
        {ModeMiddle, u"aab", u"a", "<SPAN ID=sty1></SPAN><SPAN ID=sty5>a</SPAN><SPAN ID=sty1>ab</SPAN>"},
        {ModeMiddle, u"大ｶﾞス灯", u"がす",
         "<SPAN ID=sty1>大</SPAN><SPAN ID=sty5>がす</SPAN><SPAN ID=sty1>灯</SPAN>"},
        {ModeSuffix, u"pineAPPLE", u"apple", "<SPAN ID=sty1>pine</SPAN><SPAN ID=sty5>apple</SPAN>"},
        {ModeSuffix, u"anan", u"an", "<SPAN ID=sty1>an</SPAN><SPAN ID=sty5>an</SPAN>"},
        {ModeSuffix, u"ガ大ｶﾞ", u"ガ", "<SPAN ID=sty1>ガ大</SPAN><SPAN ID=sty5>ガ</SPAN>"},
        {ModeSuffix, u"anana", u"ana", "<SPAN ID=sty1>an</SPAN><SPAN ID=sty5>ana</SPAN>"},
        {ModeWildcard, u"apple", u"app", "<SPAN ID=sty1>apple</SPAN>"},
    };
    for (const Headword &c : cases)
        ExpectHeadword(c);
}

TEST(MarkedEntryLine, MarksTheFirstMatchOfAMeaningInTheRecordsOwnCharacters)
{
    const EntryFields record{QStringLiteral("w"), {}, QStringLiteral(" an APPLE, an apple "), QString()};
    const std::string expected =
        Line("<SPAN ID=sty1>w</SPAN>", "",
             "<SPAN ID=sty3>an </SPAN><SPAN ID=sty6>APPLE</SPAN><SPAN ID=sty3>, an apple</SPAN>",
             "<SPAN ID=sty4></SPAN>")
            .toStdString();
    EXPECT_EQ(MarkedEntryLine(record, {ModeMeaning, 0, QStringLiteral("apple"), {}, {}}).toStdString(),
              expected);
    EXPECT_EQ(MarkedEntryLine(record, {ModeWildcard, 1, {}, QStringLiteral("apple"), {}}).toStdString(),
              expected);
}

TEST(MarkedEntryLine, MarksTheFirstMatchOfAnExampleBehindItsLabel)
{
    const EntryFields record{
        QStringLiteral("w"), {}, QStringLiteral("D"), QStringLiteral("Ａn apple, an apple")};
    const std::string expected =
        Line("<SPAN ID=sty1>w</SPAN>", "", "<SPAN ID=sty3>D</SPAN>",
             "<SPAN ID=sty4>【用例】 </SPAN><SPAN ID=sty6>Ａn</SPAN><SPAN ID=sty4> apple, an apple</SPAN>")
            .toStdString();
    EXPECT_EQ(MarkedEntryLine(record, {ModeExample, 0, QStringLiteral("an"), {}, {}}).toStdString(),
              expected);
    EXPECT_EQ(MarkedEntryLine(record, {ModeWildcard, 2, {}, {}, QStringLiteral("an")}).toStdString(),
              expected);
}

TEST(MarkedEntryLine, MarksBothConditionsEachWithItsText)
{
    EXPECT_EQ(
        MarkedEntryLine({QStringLiteral("run up"), QStringLiteral("rʌn"), QStringLiteral("走り寄る"),
                         QStringLiteral("to run up")},
                        {ModePrefix, 3, QStringLiteral("run"), QStringLiteral("り"), QStringLiteral("UP")})
            .toStdString(),
        Line("<SPAN ID=sty5>run</SPAN><SPAN ID=sty1> up</SPAN>", " [rʌn]",
             "<SPAN ID=sty3>走</SPAN><SPAN ID=sty6>り</SPAN><SPAN ID=sty3>寄る</SPAN>",
             "<SPAN ID=sty4>【用例】 to run </SPAN><SPAN ID=sty6>up</SPAN><SPAN ID=sty4></SPAN>")
            .toStdString());
}

TEST(MarkedEntryLine, RaisesFiveWhereWhatMustBeMarkedIsNotThere)
{
    const EntryFields record{
        QStringLiteral("word"), {}, QStringLiteral("meaning"), QStringLiteral("example")};
    const QString other = QStringLiteral("[xyz]");
    EXPECT_EQ(FailureOf(record, {ModePrefix, 0, QStringLiteral("other"), {}, {}}), RuntimeError::InvalidCall);
    EXPECT_EQ(FailureOf(record, {ModePrefix, 0, other, {}, {}}), RuntimeError::InvalidCall);
    EXPECT_EQ(FailureOf(record, {ModeMiddle, 0, other, {}, {}}), RuntimeError::InvalidCall);
    EXPECT_EQ(FailureOf(record, {ModeSuffix, 0, other, {}, {}}), RuntimeError::InvalidCall);
    EXPECT_EQ(FailureOf(record, {ModeMeaning, 0, other, {}, {}}), RuntimeError::InvalidCall);
    EXPECT_EQ(FailureOf(record, {ModeExample, 0, other, {}, {}}), RuntimeError::InvalidCall);
    EXPECT_EQ(FailureOf(record, {ModeWildcard, 1, {}, other, {}}), RuntimeError::InvalidCall);
    EXPECT_EQ(FailureOf(record, {ModeWildcard, 2, {}, {}, other}), RuntimeError::InvalidCall);
    EXPECT_EQ(FailureOf({QStringLiteral("w"), {}, {}, {}}, {ModeMeaning, 0, QStringLiteral("x"), {}, {}}),
              RuntimeError::InvalidCall);
    EXPECT_EQ(FailureOf(record, {ModePrefix, 0, QStringLiteral("xyz"), {}, {}}), 0)
        << "the headword of a prefix search is cut by length alone";
}

TEST(MarkedEntryLine, LooksAtNoConditionOfAnotherField)
{
    const EntryFields record{
        QStringLiteral("word"), {}, QStringLiteral("meaning"), QStringLiteral("example")};
    EXPECT_EQ(FailureOf(record, {ModeMeaning, 1, QStringLiteral("mean"), QStringLiteral("none"), {}}), 0);
    EXPECT_EQ(FailureOf(record, {ModeExample, 2, QStringLiteral("exam"), {}, QStringLiteral("none")}), 0);
    EXPECT_EQ(FailureOf(record, {ModeWildcard, 2, {}, QStringLiteral("none"), QStringLiteral("exam")}), 0);
}
