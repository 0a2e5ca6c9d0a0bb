#include "aids/pure/condition_text.h"

#include "platform/text/trim.h"

namespace
{

QString Condition(const QString &marker, const QString &typed)
{
    const QString part = text::Trim(typed);
    return part.isEmpty() ? part : marker + part;
}

} // namespace

QString ComposeSearchText(const QString &word, const QString &meaning, const QString &example)
{
    return text::Trim(word) + Condition(QStringLiteral("/T:"), meaning) +
           Condition(QStringLiteral("/E:"), example);
}
