#include "presentation/pure/entry_page.h"

#include <gtest/gtest.h>

namespace
{

TEST(StyleColorName, NamesTheSixteenColoursAndTakesEveryOtherForBlack)
{
    struct Case {
        qint32 color;
        const char *name;
    };
    const Case cases[] = {
        {0x000080, "Maroon"}, {0x0000FF, "Red"},     {0x008000, "Green"}, {0x008080, "Olive"},
        {0x00FF00, "Lime"},   {0x00FFFF, "Yellow"},  {0x800000, "Navy"},  {0xFFFFFF, "White"},
        {0x800080, "Purple"}, {0x808000, "Teal"},    {0x808080, "Gray"},  {0xC0C0C0, "Silver"},
        {0xFF0000, "Blue"},   {0xFF00FF, "Fuchsia"}, {0xFFFF00, "Aqua"},  {0x000000, "Black"},
        {0x000001, "Black"},  {0x0000FE, "Black"},   {0xFFFFFE, "Black"}, {-1, "Black"},
        {0x00A0FF, "Black"},  {0x7FFFFFFF, "Black"}, {0x123456, "Black"},
    };
    for (const Case &test : cases)
        EXPECT_EQ(StyleColorName(test.color), QString::fromLatin1(test.name)) << std::hex << test.color;
}

TEST(PageHeader, WritesEachStyleFromItsFont)
{
    PageFonts fonts = DefaultPageFonts();
    fonts[0] = {QStringLiteral("ＭＳ 明朝"), 24, 0xFF00FF, 0, -1, -1, -1};
    fonts[5] = {QStringLiteral("A\"B"), -3, 0x123456, -1, 0, 0, 0};
    const QStringList lines = PageHeader(fonts);
    ASSERT_EQ(lines.size(), 8);
    EXPECT_EQ(lines[1], QStringLiteral("#sty1 {line-height: 1.5; text-decoration: Underline;font-family: "
                                       "\"ＭＳ 明朝\"; font-size: 24pt;color: Fuchsia;font-weight: normal;"
                                       "font-style: Italic;}"));
    EXPECT_EQ(lines[6], QStringLiteral("#sty6 {line-height: 1.5; text-decoration: none;font-family: "
                                       "\"A\"B\"; font-size: -3pt;color: Black;font-weight: bold;"
                                       "font-style: normal;}"));
    EXPECT_EQ(lines.mid(2, 4), PageHeader(DefaultPageFonts()).mid(2, 4));
}

} // namespace
