#include "search/pure/like_text.h"

QString EscapeForLike(const QString &typed)
{
    QString escaped = typed;
    escaped.replace(u'%', QStringLiteral("[%]"));
    escaped.replace(u'_', QStringLiteral("[_]"));
    escaped.replace(u'\'', QStringLiteral("''"));
    return escaped;
}

QString LimitedIncrementalStatement(int target, const QString &typed, int count)
{
    return QStringLiteral("SELECT TOP ") + QString::number(count) +
           QStringLiteral(" * FROM Dictionary WHERE WordPhrase = ") + QString::number(target) +
           QStringLiteral(" AND Word like '") + EscapeForLike(typed) +
           QStringLiteral("%' ORDER BY Word, AutoID ASC");
}
