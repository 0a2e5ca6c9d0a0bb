#include "presentation/pure/system_report.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

TEST(SystemReport, NamesThePlatformById)
{
    struct Case {
        QString platform, version, name;
    };
    const Case cases[] = {
        {u"1"_s, u"4.0"_s, u"Windows 95/98"_s},
        {u"1"_s, u"4.10"_s, u"Windows 95/98"_s},
        {u"1"_s, u"4.90"_s, u"Windows 95/98"_s},
        {u"2"_s, u"4.0"_s, u"Windows NT/2000"_s},
        {u"2"_s, u"5.0"_s, u"Windows NT/2000"_s},
        {u"2"_s, u"5.1"_s, u"Windows XP"_s},
        {u"2"_s, u"5.2"_s, u"Windows XP"_s},
        {u"2"_s, u"6.0"_s, u"Windows XP"_s},
        {u"2"_s, u"6.12"_s, u"Windows XP"_s},
        {u"2"_s, u"10.0"_s, u"Windows XP"_s},
        {u"1"_s, u"6.0"_s, u"Windows XP"_s},
        {u"0"_s, u"5.0"_s, QString()},
        {u"3"_s, u"5.0"_s, QString()},
        {u"3"_s, u"5.1"_s, u"Windows XP"_s},
        {u"2"_s, QString(), u"Windows NT/2000"_s},
        {u"Debian GNU/Linux 12 (bookworm)"_s, u"6.1"_s, u"Debian GNU/Linux 12 (bookworm)"_s},
        {u"Debian GNU/Linux 12 (bookworm)"_s, u"4.0"_s, u"Debian GNU/Linux 12 (bookworm)"_s},
        {QString(), u"6.1"_s, QString()},
    };
    for (const Case &c : cases)
        EXPECT_EQ(PlatformName(c.platform, c.version), c.name)
            << qPrintable(c.platform) << ' ' << qPrintable(c.version);
}

TEST(SystemReport, NamesTheProcessorByType)
{
    EXPECT_EQ(ProcessorName(386), u"Intel 386"_s);
    EXPECT_EQ(ProcessorName(486), u"Intel 486"_s);
    EXPECT_EQ(ProcessorName(586), u"Intel Pentium"_s);
    for (const int other : {0, -1, 385, 587, 686, 2200, 8664})
        EXPECT_EQ(ProcessorName(other), u"Non-Intel"_s) << other;
}

TEST(SystemReport, HasFourLines)
{
    EXPECT_EQ(SystemReport({.version = u"5.0"_s,
                            .build = u"2195"_s,
                            .platform = u"2"_s,
                            .processor = 586,
                            .memory = 536379392,
                            .load = 43}),
              u"Windows バージョン: 5.0 (Build 2195)\r\nWindows プラットフォーム: Windows NT/2000\r\n"
              u"CPU タイプ: Intel Pentium\r\nRAM: 511.53 MB (43% 使用)"_s);
    EXPECT_EQ(SystemReport({.version = u"6.1"_s,
                            .build = u"6.1.0-28-amd64"_s,
                            .platform = u"Debian GNU/Linux 12 (bookworm)"_s,
                            .processor = 8664,
                            .memory = 16777216000,
                            .load = 100}),
              u"Windows バージョン: 6.1 (Build 6.1.0-28-amd64)\r\n"
              u"Windows プラットフォーム: Debian GNU/Linux 12 (bookworm)\r\n"
              u"CPU タイプ: Non-Intel\r\nRAM: 16,000.00 MB (100% 使用)"_s);
    EXPECT_EQ(SystemReport({}), u"Windows バージョン:  (Build )\r\nWindows プラットフォーム: \r\n"
                                u"CPU タイプ: Non-Intel\r\nRAM: .00 MB (% 使用)"_s);
}

} // namespace
