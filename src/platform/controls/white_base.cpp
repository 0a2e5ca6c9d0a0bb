#include "platform/controls/white_base.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QWidget>

void controls::UseWhiteBase(QWidget &box)
{
    const QPalette system = QGuiApplication::palette();
    QPalette palette = box.palette();
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Disabled, QPalette::Text, Qt::gray);
    palette.setColor(QPalette::PlaceholderText, Qt::darkGray);
    for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
            palette.setColor(group, role, system.color(QPalette::Active, role));
    box.setPalette(palette);
}

void controls::PaintLightGround(QWidget &control)
{
    constexpr int middle = 128;
    if (control.palette().color(QPalette::Window).lightness() < middle)
        QPainter(&control).fillRect(control.rect(), QColor(0xEF, 0xEF, 0xEF));
}
