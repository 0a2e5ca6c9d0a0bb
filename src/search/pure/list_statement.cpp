#include "search/pure/list_statement.h"

#include "core/pure/search_modes.h"
#include "platform/text/trim.h"
#include "search/pure/like_text.h"

#include <QStringList>

namespace
{

bool SearchesTexts(int mode) { return mode == ModeMeaning || mode == ModeExample; }

QString LikeCondition(const QString &column, const QString &pattern)
{
    return column + QStringLiteral(" Like '") + pattern + u'\'';
}

} // namespace

QString ContainsPattern(const QString &typed) { return u'%' + EscapeForLike(typed) + u'%'; }

QString WordPatternFor(int mode, const QString &word)
{
    const QString more = QStringLiteral("%_%");
    switch (mode) {
    case ModePrefix: return EscapeForLike(word) + more;
    case ModeMiddle: return more + EscapeForLike(word) + more;
    case ModeSuffix: return more + EscapeForLike(word);
    case ModeWildcard: return QString(word).replace(u'\'', QStringLiteral("''"));
    default: return ContainsPattern(word);
    }
}

int CompositeKindFor(int mode, const QString &meaning, const QString &example)
{
    if (mode == ModeIncremental || SearchesTexts(mode))
        return 0;
    return (text::Trim(meaning).isEmpty() ? 0 : 1) + (text::Trim(example).isEmpty() ? 0 : 2);
}

QString ListStatement(const ListRequest &request)
{
    const QString description = QStringLiteral("Description"), example = QStringLiteral("Example");
    QStringList conditions;
    if (request.target == TargetWords || request.target == TargetPhrases)
        conditions.append(QStringLiteral("WordPhrase = ") + QString::number(request.target));
    if (request.mode == ModeMeaning) {
        conditions.append(LikeCondition(description, request.wordPattern));
    } else if (request.mode == ModeExample) {
        conditions.append(LikeCondition(example, request.wordPattern));
    } else {
        conditions.append(LikeCondition(QStringLiteral("Word"), request.wordPattern));
        if ((request.compositeKind & 1) != 0)
            conditions.append(LikeCondition(description, request.meaningPattern));
        if ((request.compositeKind & 2) != 0)
            conditions.append(LikeCondition(example, request.examplePattern));
    }
    return QStringLiteral("SELECT TOP ") + QString::number(request.maximum) +
           QStringLiteral(" * FROM Dictionary WHERE ") + conditions.join(QStringLiteral(" AND ")) +
           (SearchesTexts(request.mode) ? QString() : QStringLiteral(" ORDER BY Word ASC"));
}
