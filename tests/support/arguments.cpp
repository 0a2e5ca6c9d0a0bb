#include "arguments.h"

#include "script_error.h"

#include <limits>

Arguments::Arguments(QString function, QJSValueList values)
    : m_function(std::move(function)), m_values(std::move(values))
{
}

bool Arguments::Has(int index) const { return !Value(index).isUndefined(); }

bool Arguments::IsNothing(int index) const { return !Has(index) || Value(index).isNull(); }

QJSValue Arguments::Value(int index) const { return m_values.value(index); }

void Arguments::Refuse(int index, const QString &wanted) const
{
    throw ScriptError(QStringLiteral("%1: argument %2 must be %3, not \"%4\"")
                          .arg(m_function)
                          .arg(index + 1)
                          .arg(wanted, Value(index).toString()));
}

QString Arguments::Text(int index) const
{
    const QJSValue value = Value(index);
    if (value.isNumber() || value.isBool())
        return value.toString();
    if (!value.isString())
        Refuse(index, QStringLiteral("a text"));
    return value.toString();
}

QString Arguments::Text(int index, const QString &otherwise) const
{
    return Has(index) ? Text(index) : otherwise;
}

double Arguments::Number(int index) const
{
    if (!Value(index).isNumber())
        Refuse(index, QStringLiteral("a number"));
    return Value(index).toNumber();
}

int Arguments::Integer(int index) const
{
    const double number = Number(index);
    if (!(number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max()))
        Refuse(index, QStringLiteral("a 32-bit number"));
    return static_cast<int>(number);
}

int Arguments::Integer(int index, int otherwise) const { return Has(index) ? Integer(index) : otherwise; }

QJSValue Arguments::Function(int index) const
{
    if (!Value(index).isCallable())
        Refuse(index, QStringLiteral("a function"));
    return Value(index);
}

QJSValueList Arguments::List(int index) const
{
    if (!Value(index).isArray())
        Refuse(index, QStringLiteral("an array"));
    return Elements(Value(index));
}

QJSValue Arguments::Option(int index, const QString &name) const { return Value(index).property(name); }

bool Arguments::Flag(int index, const QString &name, bool otherwise) const
{
    const QJSValue value = Option(index, name);
    return value.isUndefined() ? otherwise : value.toBool();
}

QJSValueList Elements(const QJSValue &array)
{
    QJSValueList elements;
    const quint32 length = array.property(QStringLiteral("length")).toUInt();
    for (quint32 i = 0; i < length; ++i)
        elements.append(array.property(i));
    return elements;
}
