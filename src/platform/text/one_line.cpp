#include "platform/text/one_line.h"

#include <QRegularExpression>

QString text::OneLine(const QString &text)
{
    static const QRegularExpression lineEnds(QStringLiteral("[\\r\\n]+"));
    return text.contains(lineEnds) ? text.split(lineEnds, Qt::SkipEmptyParts).join(u' ') : text;
}
