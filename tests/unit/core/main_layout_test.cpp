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

TEST(MainLayout, EntryBoxWithoutRoomStaysInItsPlace)
{
    for (const int kind : {0, 1})
        for (const int paneRight : {-500, 0, 200, kPaneLeft, kPaneLeft + 100}) {
            const EntryRow row = PlaceEntry(paneRight, kind);
            EXPECT_EQ(row.entryBox.left, kPaneLeft) << paneRight;
            EXPECT_GE(row.entryBox.width, 0) << paneRight;
            EXPECT_GE(row.startButton.left, kPaneLeft) << paneRight;
            EXPECT_EQ(row.startButton.width, 255) << paneRight;
        }
}

TEST(MainLayout, PaneFollowsTheListsRightEdgeAndTheOthersSnapBack)
{
    const TwipRect remembered{120, 840, 3550, 6000};
    const TwipRect pane{3720, 870, 8000, 5910};
    constexpr int inner = 11840;
    struct Case {
        const char *what;
        TwipRect list;
        Panes expected;
    };
    const Case cases[] = {
        {"nothing moved", remembered, {remembered, pane}},
        {"the right edge", {120, 840, 4500, 6000}, {{120, 840, 4500, 6000}, {4670, 870, 7050, 5910}}},
        {"the right edge back", {120, 840, 1500, 6000}, {{120, 840, 1500, 6000}, {1670, 870, 10050, 5910}}},
        {"the whole list upwards", {120, 700, 3550, 6000}, {remembered, pane}},
        {"the upper edge", {120, 600, 3550, 6240}, {remembered, pane}},
        {"the lower edge", {120, 840, 3550, 5000}, {remembered, pane}},
        // The list ends 50 before the pane, wherever its left edge was dropped.
        {"the left edge", {620, 840, 3050, 6000}, {{120, 840, 3550, 6000}, {3720, 870, 8000, 5910}}},
        {"the left edge outwards", {0, 840, 3670, 6000}, {{120, 840, 3550, 6000}, {3720, 870, 8000, 5910}}},
        {"two edges", {120, 840, 5000, 5500}, {{120, 840, 5000, 6000}, {5170, 870, 6550, 5910}}},
        {"a corner", {300, 900, 4000, 5500}, {{120, 840, 4180, 6000}, {4350, 870, 7370, 5910}}},
    };
    for (const Case &each : cases)
        EXPECT_EQ(FitPane({each.list, pane}, remembered, inner), each.expected) << each.what;
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
