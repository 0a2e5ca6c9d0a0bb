#pragma once

#include "platform/controls/twips.h"

/// Places in the main window, in twips of its inner area (below the menu bar).

inline constexpr int kMargin = 120;
inline constexpr int kListTop = 840;
inline constexpr int kPaneTop = 870;
inline constexpr int kListWidth = 3550;
inline constexpr int kPaneLeft = 3720;
inline constexpr int kListToPane = 50;
inline constexpr int kBelowList = 250;
/// How much lower the list is than the pane: when the list is shown again, and after a resize.
inline constexpr int kPaneShorterOnShow = 90;
inline constexpr int kPaneShorterOnResize = 70;
/// What the window leaves of the pane at least.
inline constexpr int kLeastPane = 200;

inline constexpr controls::TwipRect kDictionaryBox{120, 435, 2700, 330};
inline constexpr controls::TwipRect kTargetLabel{2880, 435, 810, 330};

/// A toolbar picture by its number, 1 to 28.
controls::TwipRect PicturePlace(int number);
/// List and pane where nothing was dragged.
controls::TwipRect ListPlace(int innerHeight);
controls::TwipRect PanePlace(int innerWidth, int innerHeight);
controls::TwipRect StatusPlace(int innerWidth, int innerHeight);

struct EntryRow {
    controls::TwipRect entryBox, startButton;
};
/// The entry box and the start button, which end where the pane ends. Kind 0: the entry box takes
/// the button's room. Where there is too little room, nothing gets in front of the entry box's left.
EntryRow PlaceEntry(int paneRight, int kind);

struct Panes {
    controls::TwipRect list, pane;
    bool operator==(const Panes &) const = default;
};
/// List and pane when the user has moved an edge of the list: its right edge takes the pane with it,
/// the others go back to where they were remembered.
Panes FitPane(const Panes &now, const controls::TwipRect &rememberedList, int innerWidth);
