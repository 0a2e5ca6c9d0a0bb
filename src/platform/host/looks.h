#pragma once

#include <QColor>
#include <QFont>
#include <QString>

/// Fonts and colours as the program's settings name them.
namespace host
{

/// Qt's font of a font choice. Behind the family stand Japanese gothics, for a family that the
/// desktop lacks and for characters that the family lacks.
QFont FontOf(const QString &name, int points, bool bold, bool italic, bool strikeout, bool underline);

/// Qt's colour of a 0x00BBGGRR value, and back.
QColor ColorOf(qint32 bgr);
qint32 BgrOf(const QColor &color);

} // namespace host
