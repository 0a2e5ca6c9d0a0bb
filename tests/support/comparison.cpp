#include "comparison.h"

#include "arguments.h"

#include <QDateTime>
#include <QJSValueIterator>
#include <cmath>

namespace
{

QString Quoted(const QString &text)
{
    QString quoted(u'"');
    for (const QChar c : text) {
        if (c == u'"' || c == u'\\')
            quoted += u'\\';
        if (c == u'\n')
            quoted += QStringLiteral("\\n");
        else if (c == u'\r')
            quoted += QStringLiteral("\\r");
        else if (c.unicode() < 0x20 || c.isNonCharacter() || c.isSurrogate() || c == QChar(0xA0) ||
                 c == QChar(0x3000))
            quoted += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        else
            quoted += c;
    }
    return quoted + u'"';
}

QStringList MemberNames(const QJSValue &object)
{
    QStringList names;
    QJSValueIterator members(object);
    while (members.hasNext()) {
        members.next();
        names.append(members.name());
    }
    return names;
}

/// Arrays and plain objects are compared by their members; everything else as a whole.
bool IsComposite(const QJSValue &value)
{
    return value.isObject() && !value.isCallable() && !value.isError() && !value.isRegExp() &&
           !value.isDate();
}

class Comparer
{
public:
    explicit Comparer(int limit) : m_limit(limit) {}

    void Compare(const QString &place, const QJSValue &actual, const QJSValue &expected)
    {
        if (IsComposite(actual) && IsComposite(expected) && actual.isArray() == expected.isArray())
            actual.isArray() ? CompareArrays(place, actual, expected)
                             : CompareObjects(place, actual, expected);
        else if (!SameLeaf(actual, expected))
            Report(place, Literal(actual), Literal(expected));
    }

    QStringList Result() const
    {
        QStringList lines = m_lines;
        if (m_count > m_limit)
            lines.append(QStringLiteral("and %1 more differences").arg(m_count - m_limit));
        return lines;
    }

private:
    static bool SameLeaf(const QJSValue &actual, const QJSValue &expected)
    {
        if (actual.isNumber() && expected.isNumber() && std::isnan(actual.toNumber()))
            return std::isnan(expected.toNumber());
        if (actual.isDate() && expected.isDate())
            return actual.toDateTime() == expected.toDateTime();
        return actual.strictlyEquals(expected);
    }

    void CompareArrays(const QString &place, const QJSValue &actual, const QJSValue &expected)
    {
        const QJSValueList left = Elements(actual), right = Elements(expected);
        if (left.size() != right.size())
            Report(place + QStringLiteral(".length"), QString::number(left.size()),
                   QString::number(right.size()));
        for (qsizetype i = 0; i < qMax(left.size(), right.size()); ++i) {
            const QString element = QStringLiteral("%1[%2]").arg(place).arg(i);
            if (i < left.size() && i < right.size())
                Compare(element, left[i], right[i]);
            else
                Report(element, i < left.size() ? Literal(left[i]) : Absent(),
                       i < right.size() ? Literal(right[i]) : Absent());
        }
    }

    void CompareObjects(const QString &place, const QJSValue &actual, const QJSValue &expected)
    {
        const QStringList wanted = MemberNames(expected);
        for (const QString &name : wanted) {
            const QString member = place + u'.' + name;
            if (actual.hasOwnProperty(name))
                Compare(member, actual.property(name), expected.property(name));
            else
                Report(member, Absent(), Literal(expected.property(name)));
        }
        for (const QString &name : MemberNames(actual))
            if (!expected.hasOwnProperty(name))
                Report(place + u'.' + name, Literal(actual.property(name)), Absent());
    }

    static QString Absent() { return QStringLiteral("(absent)"); }

    void Report(const QString &place, const QString &actual, const QString &expected)
    {
        if (++m_count > m_limit)
            return;
        const QString where = place.isEmpty() ? QStringLiteral("value") : place;
        m_lines.append(QStringLiteral("%1: got      %2").arg(where, actual));
        m_lines.append(QStringLiteral("%1  expected %2").arg(QString(where.size(), u' '), expected));
    }

    int m_limit;
    int m_count = 0;
    QStringList m_lines;
};

} // namespace

QStringList Differences(const QJSValue &actual, const QJSValue &expected, int limit)
{
    Comparer comparer(limit);
    comparer.Compare({}, actual, expected);
    return comparer.Result();
}

QString Literal(const QJSValue &value)
{
    if (value.isString())
        return Quoted(value.toString());
    if (!IsComposite(value))
        return value.toString();
    QStringList parts;
    if (value.isArray()) {
        for (const QJSValue &element : Elements(value))
            parts.append(Literal(element));
        return u'[' + parts.join(QStringLiteral(", ")) + u']';
    }
    for (const QString &name : MemberNames(value))
        parts.append(name + QStringLiteral(": ") + Literal(value.property(name)));
    return u'{' + parts.join(QStringLiteral(", ")) + u'}';
}
