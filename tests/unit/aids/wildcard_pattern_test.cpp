#include "aids/pure/wildcard_pattern.h"

#include "platform/failure/runtime_error.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace
{

struct Case {
    const char16_t *start, *firstGap, *middle, *secondGap, *end, *pattern;
};

constexpr Case kCases[] = {
    {u"", u"", u"", u"", u"", u"%_"},
    {u"ab", u"", u"", u"", u"", u"ab_%"},
    {u"", u"", u"", u"", u"ing", u"%_ing"},
    {u"", u"", u"x", u"", u"", u"%_x_%"},
    {u"a", u"", u"", u"", u"z", u"a%z"},
    {u"a", u"3", u"", u"", u"z", u"a___z"},
    {u"", u"2", u"", u"", u"", u"__"},
    {u"a", u"2", u"", u"", u"", u"a__"},
    {u"a", u"", u"b", u"", u"c", u"a%b%c"},
    {u"a", u"1", u"b", u"2", u"c", u"a_b__c"},
    {u"", u"3", u"x", u"", u"", u"___x_%"},
    {u"50%", u"", u"", u"", u"", u"50[%]_%"},
    {u"", u"1", u"", u"", u"", u"_"},
    {u"", u"99", u"", u"", u"",
     u"___________________________________________________________________________________________________"},
    {u"a", u"1", u"", u"", u"", u"a_"},
    {u"", u"1", u"", u"", u"z", u"_z"},
    {u"a", u"99", u"", u"", u"z",
     u"a___________________________________________________________________________________________________"
     u"z"},
    {u"", u"", u"x", u"1", u"", u"%_x_"},
    {u"", u"", u"x", u"99", u"",
     u"%_x__________________________________________________________________________________________________"
     u"_"},
    {u"", u"1", u"x", u"1", u"", u"_x_"},
    {u"", u"2", u"x", u"", u"z", u"__x%z"},
    {u"", u"", u"x", u"2", u"z", u"%_x__z"},
    {u"", u"", u"x", u"", u"z", u"%_x%z"},
    {u"a", u"", u"x", u"", u"", u"a%x_%"},
    {u"a", u"1", u"x", u"", u"", u"a_x_%"},
    {u"a", u"", u"x", u"1", u"", u"a%x_"},
    {u"a", u"2", u"x", u"3", u"", u"a__x___"},
    {u"a", u"2", u"x", u"", u"z", u"a__x%z"},
    {u"a", u"", u"x", u"2", u"z", u"a%x__z"},
    {u"", u"5", u"x", u"5", u"z", u"_____x_____z"},
    {u"%", u"", u"", u"", u"", u"[%]_%"},
    {u"_", u"", u"", u"", u"", u"[_]_%"},
    {u"", u"", u"%", u"", u"", u"%_[%]_%"},
    {u"", u"", u"_", u"", u"", u"%_[_]_%"},
    {u"", u"", u"", u"", u"%", u"%_[%]"},
    {u"", u"", u"", u"", u"_", u"%_[_]"},
    {u"%%", u"", u"", u"", u"%%", u"[%][%]%[%][%]"},
    {u"__", u"", u"", u"", u"__", u"[_][_]%[_][_]"},
    {u"%_", u"", u"%_", u"", u"%_", u"[%][_]%[%][_]%[%][_]"},
    {u"_", u"1", u"_", u"1", u"_", u"[_]_[_]_[_]"},
    {u"%", u"1", u"%", u"1", u"%", u"[%]_[%]_[%]"},
    {u"100%", u"2", u"_", u"", u"%off", u"100[%]__[_]%[%]off"},
    {u"  ab  ", u"", u"", u"", u"", u"ab_%"},
    {u"　ab　", u"", u"", u"", u"", u"ab_%"},
    {u"a b", u"", u"", u"", u"", u"a b_%"},
    {u"", u"", u"  ", u"", u"", u"%_"},
    {u"   ", u"", u"", u"", u"   ", u"%_"},
    {u"a", u"", u"　", u"", u"z", u"a%z"},
    {u"it's", u"", u"", u"", u"", u"it's_%"},
    {u"[a-z]", u"", u"", u"", u"", u"[a-z]_%"},
    {u"[", u"", u"", u"", u"", u"[_%"},
    {u"[!x]", u"1", u"[0-9]", u"", u"y", u"[!x]_[0-9]%y"},
    {u"*", u"", u"?", u"", u"#", u"*%?%#"},
    {u"漢字", u"", u"", u"", u"", u"漢字_%"},
    {u"", u"", u"", u"", u"する", u"%_する"},
    {u"見", u"1", u"し", u"1", u"語", u"見_し_語"},
    {u"ＡＢ", u"", u"", u"", u"ｚ", u"ＡＢ%ｚ"},
    {u"％", u"", u"＿", u"", u"", u"％%＿_%"},
    {u"ab-", u"", u"", u"", u"-ed", u"ab-%-ed"},
    {u"a", u"9", u"b", u"10", u"c", u"a_________b__________c"},
    {u"a/T:b", u"", u"", u"", u"", u"a/T:b_%"},
    {u"\"", u"", u"\\", u"", u"''", u"\"%\\%''"},
    {u"😀", u"1", u"", u"", u"", u"😀_"},
    {u"pre", u"", u"", u"2", u"fix", u"pre%__fix"},
    {u"", u"", u"", u"3", u"", u"%____"},
    {u"x", u"1", u"", u"1", u"y", u"x__y"},
};

WildcardFields FieldsOf(const Case &c)
{
    return {QString::fromUtf16(c.start), QString::fromUtf16(c.middle), QString::fromUtf16(c.end),
            QString::fromUtf16(c.firstGap), QString::fromUtf16(c.secondGap)};
}

QString Literal(const QString &typed)
{
    QString literal;
    for (const QChar c : typed.trimmed())
        literal += c == u'%' || c == u'_' ? QString(u'[') + c + u']' : QString(c);
    return literal;
}

/// The pattern by what it means: gaps that touch are one, a count wins over an open gap behind it, and
/// an open gap at an end stands for at least one character.
QString Reckoned(const WildcardFields &fields)
{
    const QString start = Literal(fields.start), middle = Literal(fields.middle), end = Literal(fields.end);
    const int first = fields.firstGap.toInt(), second = fields.secondGap.toInt();
    const auto gap = [](int count) { return count == 0 ? QStringLiteral("%") : QString(count, u'_'); };
    QString body, front, back;
    bool opensFront = start.isEmpty() && first == 0, opensBack = end.isEmpty() && second == 0;
    if (!middle.isEmpty()) {
        body = start + gap(first) + middle + gap(second) + end;
    } else if (second == 0) {
        body = start + gap(first) + end;
        opensBack = opensBack && first == 0;
    } else {
        body = start + gap(first) + gap(second) + end;
    }
    if (body == u"%")
        return QStringLiteral("%_");
    if (opensFront)
        body = QStringLiteral("%_") + body.sliced(1);
    if (opensBack)
        body = body.chopped(1) + QStringLiteral("_%");
    return body;
}

} // namespace

TEST(WildcardPattern, FollowsTheSentence)
{
    for (const Case &c : kCases)
        EXPECT_EQ(WildcardPattern(FieldsOf(c)), QString::fromUtf16(c.pattern))
            << QString::fromUtf16(c.pattern).toStdString();
}

TEST(WildcardPattern, MeansWhatTheFieldsSay)
{
    const QStringList texts{QString(),
                            QStringLiteral("a"),
                            QStringLiteral("50%"),
                            QStringLiteral("a_b"),
                            QStringLiteral(" x "),
                            QStringLiteral("%%"),
                            QStringLiteral("__"),
                            QStringLiteral("語"),
                            QStringLiteral("[a]")};
    const QStringList gaps{QString(), QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("37")};
    for (const QString &start : texts)
        for (const QString &middle : texts)
            for (const QString &end : texts)
                for (const QString &first : gaps)
                    for (const QString &second : gaps) {
                        const WildcardFields fields{start, middle, end, first, second};
                        ASSERT_EQ(WildcardPattern(fields), Reckoned(fields))
                            << Reckoned(fields).toStdString();
                    }
}

TEST(WildcardPattern, TakesTheNumberThatAGapBeginsWith)
{
    const auto with = [](const char16_t *gap) {
        return WildcardPattern(
            {QStringLiteral("a"), QString(), QStringLiteral("z"), QString::fromUtf16(gap), QString()});
    };
    EXPECT_EQ(with(u"2"), QStringLiteral("a__z"));
    EXPECT_EQ(with(u"2文字"), QStringLiteral("a__z"));
    EXPECT_EQ(with(u"02"), QStringLiteral("a__z"));
    for (const char16_t *open : {u"", u"0", u"-1", u"文字2", u"x"})
        EXPECT_EQ(with(open), QStringLiteral("a%z")) << QString::fromUtf16(open).toStdString();
}

TEST(WildcardPattern, JoinsPastedLines)
{
    EXPECT_EQ(WildcardPattern({QStringLiteral("a\r\nb\n"), {}, {}, {}, {}}), QStringLiteral("a b_%"));
}

TEST(WildcardPattern, Has255CharactersAtMostWithItsOpenGaps)
{
    const auto lengthWith = [](int count) {
        return WildcardPattern({QString(count, u'a'), {}, {}, {}, {}}).size();
    };
    EXPECT_EQ(lengthWith(253), 255);
    for (const int count : {254, 255, 1000})
        try {
            lengthWith(count);
            ADD_FAILURE() << count;
        } catch (const RuntimeError &failure) {
            EXPECT_EQ(failure.number(), RuntimeError::Overflow) << count;
        }
    // A literal sign takes three characters.
    EXPECT_EQ(WildcardPattern({QString(84, u'%'), {}, {}, {}, {}}).size(), 254);
    EXPECT_THROW(WildcardPattern({QString(85, u'%'), {}, {}, {}, {}}), RuntimeError);
    EXPECT_EQ(WildcardPattern({QString(56, u'a'), {}, QString(), QStringLiteral("99"), QStringLiteral("99")})
                  .size(),
              254);
}
