#include "platform/host/looks.h"

QFont host::FontOf(const QString &name, int points, bool bold, bool italic, bool strikeout, bool underline)
{
    QFont font;
    font.setFamilies({name, QStringLiteral("IPAPGothic"), QStringLiteral("Noto Sans CJK JP")});
    if (points > 0)
        font.setPointSize(points);
    font.setBold(bold);
    font.setItalic(italic);
    font.setStrikeOut(strikeout);
    font.setUnderline(underline);
    return font;
}

QColor host::ColorOf(qint32 bgr) { return {bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF}; }

qint32 host::BgrOf(const QColor &color) { return color.red() | color.green() << 8 | color.blue() << 16; }
