#include "presentation/pure/main_layout.h"

#include <algorithm>
#include <array>

namespace
{

constexpr int kPictureWidth = 255;
constexpr int kPictureHeight = 290;
constexpr int kPictureTop = 75;

/// Left edges by number; groups of commands stand apart.
constexpr std::array kPictureLefts{
    0,    120,  500,  880,   1260,  1640,  2020, 2400, // 1 to 7: the ways to search
    2930,                                              // 8: wildcard builder
    3840,                                              // 9: word book
    4370,                                              // 10: read aloud
    5280, 5660, 6040,                                  // 11 to 13: copy, paste, find
    6570, 6950,                                        // 14, 15: list pages
    3310,                                              // 16: composite builder
    7710, 7330,                                        // 17, 18: entry pages, next and previous
    6570, 6950,                                        // 19, 20: entry pages of the incremental search
    8540,                                              // 21: ornament of the web group
    8940, 9340, 9740, 10140, 10540, 10940,             // 22 to 27: the web
    4750,                                              // 28: read-aloud dialog
};

} // namespace

controls::TwipRect PicturePlace(int number)
{
    return {kPictureLefts.at(static_cast<std::size_t>(number)), kPictureTop, kPictureWidth, kPictureHeight};
}

controls::TwipRect ListPlace(int innerHeight)
{
    return {kMargin, kListTop, kListWidth, innerHeight - kListTop - kBelowList};
}

controls::TwipRect PanePlace(int innerWidth, int innerHeight)
{
    return {kPaneLeft, kPaneTop, innerWidth - kMargin - kPaneLeft,
            ListPlace(innerHeight).height - kPaneShorterOnShow};
}

controls::TwipRect StatusPlace(int innerWidth, int innerHeight)
{
    constexpr int height = 240;
    return {0, innerHeight - height, innerWidth, height};
}

EntryRow PlaceEntry(int paneRight, int kind)
{
    constexpr int gap = 50;
    const controls::TwipRect button{std::max(kPaneLeft, paneRight - kPictureWidth), kDictionaryBox.top + 15,
                                    kPictureWidth, kPictureHeight};
    const int right = kind == 1 ? button.left - gap : paneRight;
    return {{kPaneLeft, kDictionaryBox.top, std::max(0, right - kPaneLeft), kDictionaryBox.height}, button};
}

Panes FitPane(const Panes &now, const controls::TwipRect &rememberedList, int innerWidth)
{
    Panes fitted = now;
    auto &[list, pane] = fitted;
    if (list.width != rememberedList.width) {
        pane.left = list.Right() + kListToPane;
        pane.width = innerWidth - kMargin - pane.left;
    }
    list.top = rememberedList.top;
    if (list.left != rememberedList.left) {
        list.left = rememberedList.left;
        list.width = pane.left - list.left - kListToPane;
    }
    list.height = rememberedList.height;
    return fitted;
}
