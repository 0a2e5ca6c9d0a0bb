#include "presentation/pure/main_layout.h"

#include <gtest/gtest.h>

using controls::TwipRect;

namespace
{

bool Overlap(const TwipRect &a, const TwipRect &b)
{
    return a.left < b.Right() && b.left < a.Right() && a.top < b.Bottom() && b.top < a.Bottom();
}

/// Pictures that take another's place by design.
bool MayShare(int a, int b) { return (a == 14 && b == 19) || (a == 15 && b == 20); }

} // namespace

TEST(MainLayout, PicturesStandApart)
{
    for (int a = 1; a <= 28; ++a)
        for (int b = a + 1; b <= 28; ++b)
            EXPECT_TRUE(MayShare(a, b) || !Overlap(PicturePlace(a), PicturePlace(b))) << a << " and " << b;
}

TEST(MainLayout, WebPicturesStandInOneRow)
{
    for (int number = 22; number <= 27; ++number)
        EXPECT_EQ(PicturePlace(number).left, 8940 + 400 * (number - 22));
}

TEST(MainLayout, PaneEndsInsideTheWindowBesideTheList)
{
    const TwipRect list = ListPlace(8000);
    const TwipRect pane = PanePlace(11880, 8000);
    EXPECT_EQ(list, (TwipRect{120, 840, 3550, 8000 - 840 - 250}));
    EXPECT_EQ(pane, (TwipRect{3720, 870, 11880 - 120 - 3720, 8000 - 840 - 250 - 90}));
}

TEST(MainLayout, EntryBoxEndsWithThePaneOrBeforeTheButton)
{
    const EntryRow whole = PlaceEntry(11760, 0);
    EXPECT_EQ(whole.entryBox.Right(), 11760);
    const EntryRow shared = PlaceEntry(11760, 1);
    EXPECT_EQ(shared.startButton.Right(), 11760);
    EXPECT_EQ(shared.entryBox.Right() + 50, shared.startButton.left);
    EXPECT_EQ(shared.entryBox.left, kPaneLeft);
}

TEST(Twips, RoundToWholePixels)
{
    EXPECT_EQ(controls::Pixels(0), 0);
    EXPECT_EQ(controls::Pixels(7), 0);
    EXPECT_EQ(controls::Pixels(8), 1);
    EXPECT_EQ(controls::Pixels(-8), -1);
    EXPECT_EQ(controls::Pixels(12000), 800);
    EXPECT_EQ(controls::Twips(237), 3555);
    EXPECT_EQ(controls::PixelRect({120, 840, 3550, 150}), QRect(8, 56, 237, 10));
}
