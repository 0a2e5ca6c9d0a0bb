#include "platform/text/trim.h"

#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

namespace
{

TEST(Trim, TakesBothBlanksFromTheEnds)
{
    EXPECT_EQ(text::Trim(u" \u3000a b\u3000 "), u"a b"_s);
    EXPECT_EQ(text::LTrim(u" \u3000a "), u"a "_s);
    EXPECT_EQ(text::RTrim(u" a\u3000 "), u" a"_s);
    EXPECT_EQ(text::Trim(u" \u3000"), QString());
    EXPECT_EQ(text::LTrim(u"\u3000"), QString());
    EXPECT_EQ(text::RTrim(u" "), QString());
    EXPECT_EQ(text::Trim(u""), QString());
}

TEST(Trim, LeavesOtherWhiteSpace)
{
    EXPECT_EQ(text::Trim(u"\ta\u00A0"), u"\ta\u00A0"_s);
    EXPECT_EQ(text::Trim(u"\na\r"), u"\na\r"_s);
}

TEST(Trim, CutsAFieldBehindItsLastSignificantCharacter)
{
    EXPECT_EQ(text::LastSignificantPos(QStringView(u"ab\0 \u3000\0", 6)), 2);
    EXPECT_EQ(text::LastSignificantPos(QStringView(u"a\0b  ", 5)), 3);
    EXPECT_EQ(text::LastSignificantPos(QStringView(u" \0\u3000", 3)), 0);
    EXPECT_EQ(text::LastSignificantPos(u""), 0);
    EXPECT_EQ(text::FieldText(QStringView(u"\u3000 ab \0 ", 7)), u"ab"_s);
    EXPECT_EQ(text::FieldText(QStringView(u"\0\0", 2)), QString());
}

TEST(Numbers, AreGroupedByThousands)
{
    EXPECT_EQ(text::GroupedNumber(0), u"0"_s);
    EXPECT_EQ(text::GroupedNumber(999), u"999"_s);
    EXPECT_EQ(text::GroupedNumber(1000), u"1,000"_s);
    EXPECT_EQ(text::GroupedNumber(-999), u"-999"_s);
    EXPECT_EQ(text::GroupedNumber(-123456), u"-123,456"_s);
    EXPECT_EQ(text::GroupedNumber(1234567), u"1,234,567"_s);
    EXPECT_EQ(text::GroupedNumber(std::numeric_limits<qint64>::min()), u"-9,223,372,036,854,775,808"_s);
}

TEST(Numbers, KeepThePlaceOfTheSign)
{
    EXPECT_EQ(text::SignedNumber(0), u" 0"_s);
    EXPECT_EQ(text::SignedNumber(5), u" 5"_s);
    EXPECT_EQ(text::SignedNumber(-5), u"-5"_s);
}

} // namespace
