#pragma once

#include <QList>
#include <QString>

/// One row of the menu tree, in the order of the bar; entries follow the menu that holds them.
struct MenuRow {
    enum class Kind { Menu, Entry, Separator };
    Kind kind;
    QString name;
    QString caption;
    bool checkable = false;
};

/// The whole menu bar, and behind it the pop-up of the read-aloud picture (the last menu).
const QList<MenuRow> &MenuTable();

/// Tool tips of the toolbar pictures by their numbers, 0 for the start button.
QString PictureToolTip(int number);
/// The tool tip of the stop button.
QString StopToolTip();
