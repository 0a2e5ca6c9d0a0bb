#include "presentation/pure/entry_page.h"

#include <gtest/gtest.h>

TEST(PlainEntryLine, HasEveryPieceInItsPlace)
{
    EXPECT_EQ(
        PlainEntryLine(
            {QStringLiteral("abc"), QStringLiteral("x"), QStringLiteral("D"), QStringLiteral("E")}),
        QStringLiteral("<SPAN ID=sty1>abc</SPAN><SPAN ID=sty2> [x]</SPAN><table width=\"97%\" border=\"0%\">"
                       "<tr><td width=\"2%\"></td><td width=\"98%\"><SPAN ID=sty3>D</SPAN></td> </tr> <tr>"
                       " <td></td> <td><SPAN ID=sty4>【用例】 E</SPAN></td></tr></table>"));
}

TEST(PlainEntryLine, LeavesEmptySpansForWhatIsMissing)
{
    EXPECT_EQ(
        PlainEntryLine({QStringLiteral(" abc　"), QString(), QStringLiteral(" D "), QStringLiteral(" 　")}),
        QStringLiteral("<SPAN ID=sty1>abc</SPAN><SPAN ID=sty2></SPAN><table width=\"97%\" border=\"0%\">"
                       "<tr><td width=\"2%\"></td><td width=\"98%\"><SPAN ID=sty3>D</SPAN></td> </tr> <tr>"
                       " <td></td> <td><SPAN ID=sty4></SPAN></td></tr></table>"));
}

TEST(PlainEntryLine, LetsMarkupAndLineBreaksThrough)
{
    const QString line = PlainEntryLine(
        {QStringLiteral("<b>x</b>"), QStringLiteral("&"), QStringLiteral("a<\r\nb"), QStringLiteral("\"")});
    EXPECT_TRUE(line.contains(QStringLiteral("<SPAN ID=sty1><b>x</b></SPAN><SPAN ID=sty2> [&]</SPAN>")));
    EXPECT_TRUE(line.contains(QStringLiteral("<SPAN ID=sty3>a<\r\nb</SPAN>")));
    EXPECT_TRUE(line.contains(QStringLiteral("【用例】 \"</SPAN>")));
}

TEST(MessagePage, IsTwoLinesWithTheUnclosedBody)
{
    const QStringList lines = MessagePageLines(QStringLiteral("m"));
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0], QStringLiteral("<html lang=\"ja\"><head><meta http-equiv=\"Content-Type\" "
                                       "content=\"text/html;CHARSET=x-sjis\"><title></title></head><BODY "
                                       "oncontextmenu=\"return false\"<p>"));
    EXPECT_EQ(lines[1], QStringLiteral("<FONT COLOR=\"#0000FF\">m</FONT></p></body></html>"));
}

TEST(PageHeader, HasEightLinesWithTheSixRules)
{
    const QStringList lines = PageHeader(DefaultPageFonts());
    ASSERT_EQ(lines.size(), 8);
    EXPECT_EQ(
        lines[0],
        QStringLiteral("<HTML><html lang=\"ja\"><HEAD><META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html;"
                       "CHARSET=x-sjis\"><TITLE></TITLE><STYLE TYPE=\"text/css\">"));
    const QString font = QStringLiteral("font-family: \"ＭＳ Ｐゴシック\"; font-size: 9pt;color: ");
    EXPECT_EQ(lines[1], QStringLiteral("#sty1 {line-height: 1.5; text-decoration: none;") + font +
                            QStringLiteral("Blue;font-weight: bold;font-style: normal;}"));
    EXPECT_EQ(lines[2], QStringLiteral("#sty2 {line-height: 1.5; text-decoration: none;") + font +
                            QStringLiteral("Black;font-weight: normal;font-style: normal;}"));
    EXPECT_EQ(lines[3], QStringLiteral("#sty3 {line-height: 1.5; text-decoration: none;") + font +
                            QStringLiteral("Black;font-weight: normal;font-style: normal;}"));
    EXPECT_EQ(lines[4], QStringLiteral("#sty4 {line-height: 1.5; text-decoration: none;") + font +
                            QStringLiteral("Black;font-weight: normal;font-style: Italic;}"));
    EXPECT_EQ(lines[5], QStringLiteral("#sty5 {line-height: 1.5; text-decoration: none;") + font +
                            QStringLiteral("Red;font-weight: bold;font-style: normal;}"));
    EXPECT_EQ(lines[6], QStringLiteral("#sty6 {line-height: 1.5; text-decoration: Underline;") + font +
                            QStringLiteral("Red;font-weight: bold;font-style: normal;}"));
    EXPECT_EQ(lines[7], QStringLiteral("</STYLE></HEAD><BODY oncontextmenu=\"return false\">"));
}
