#include "platform/text/number_format.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

struct Case {
    double value;
    QString pattern;
    QString text;
};

class FormatNumber : public testing::TestWithParam<Case>
{
};

TEST_P(FormatNumber, FollowsThePattern)
{
    EXPECT_EQ(text::FormatNumber(GetParam().value, GetParam().pattern), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    WithTwoDecimals, FormatNumber,
    testing::Values(Case{0, u"##,###.00"_s, u".00"_s}, Case{0.5, u"##,###.00"_s, u".50"_s},
                    Case{1, u"##,###.00"_s, u"1.00"_s}, Case{999.994, u"##,###.00"_s, u"999.99"_s},
                    Case{999.995, u"##,###.00"_s, u"1,000.00"_s}, Case{0.125, u"##,###.00"_s, u".13"_s},
                    Case{0.375, u"##,###.00"_s, u".38"_s}, Case{1.005, u"##,###.00"_s, u"1.01"_s},
                    Case{2047.48828125, u"##,###.00"_s, u"2,047.49"_s},
                    Case{16384, u"##,###.00"_s, u"16,384.00"_s},
                    Case{1048576, u"##,###.00"_s, u"1,048,576.00"_s},
                    Case{-1234.5, u"##,###.00"_s, u"-1,234.50"_s}, Case{-0.001, u"##,###.00"_s, u".00"_s},
                    Case{1e15, u"##,###.00"_s, u"1,000,000,000,000,000.00"_s}));

INSTANTIATE_TEST_SUITE_P(
    Whole, FormatNumber,
    testing::Values(Case{0, u"###"_s, QString()}, Case{0.4, u"###"_s, QString()}, Case{0.5, u"###"_s, u"1"_s},
                    Case{7, u"###"_s, u"7"_s}, Case{100, u"###"_s, u"100"_s}, Case{1234, u"###"_s, u"1234"_s},
                    Case{99.5, u"###"_s, u"100"_s}, Case{-3, u"###"_s, u"-3"_s}, Case{0, u"#,##0"_s, u"0"_s},
                    Case{1234567, u"#,##0"_s, u"1,234,567"_s}, Case{5, u"000"_s, u"005"_s}));

INSTANTIATE_TEST_SUITE_P(WithDecimalsThatMayLack, FormatNumber,
                         testing::Values(Case{1.5, u"0.0#"_s, u"1.5"_s}, Case{1.25, u"0.0#"_s, u"1.25"_s},
                                         Case{1, u"0.0#"_s, u"1.0"_s}, Case{1, u"0.##"_s, u"1."_s}));

} // namespace
