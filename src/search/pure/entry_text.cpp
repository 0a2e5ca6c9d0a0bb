#include "search/pure/entry_text.h"

#include <QRegularExpression>

QString OneLine(const QString &text)
{
    static const QRegularExpression lineEnds(QStringLiteral("[\\r\\n]+"));
    return text.contains(lineEnds) ? text.split(lineEnds, Qt::SkipEmptyParts).join(u' ') : text;
}
