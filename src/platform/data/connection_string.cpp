#include "platform/data/connection_string.h"

using namespace Qt::StringLiterals;

namespace
{

/// The properties that may follow a value; anything else behind a semicolon belongs to the value.
const QString kFollowers[] = {u";Provider="_s, u";Data Source="_s, u";Jet OLEDB:"_s};

QString ValueOf(const QString &text, const QString &name)
{
    const qsizetype at = text.indexOf(name, 0, Qt::CaseInsensitive);
    if (at < 0)
        return {};
    const qsizetype begin = at + name.size();
    qsizetype end = text.size();
    for (const QString &follower : kFollowers)
        if (const qsizetype next = text.indexOf(follower, begin, Qt::CaseInsensitive);
            next >= 0 && next < end)
            end = next;
    if (end == text.size() && end > begin && text.at(end - 1) == u';')
        --end;
    return text.mid(begin, end - begin);
}

} // namespace

data::ConnectionString data::ParseConnectionString(const QString &text)
{
    return {ValueOf(text, u"Data Source="_s), ValueOf(text, u"Jet OLEDB:Engine Type="_s)};
}
