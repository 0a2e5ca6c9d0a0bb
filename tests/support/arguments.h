#pragma once

#include <QJSValue>
#include <QString>

/// The arguments of one call from a script. One that is missing or undefined takes the default;
/// one without a default, or of the wrong type, raises ScriptError.
class Arguments
{
public:
    Arguments(QString function, QJSValueList values);

    bool Has(int index) const;
    /// Whether the argument is null, undefined or missing.
    bool IsNothing(int index) const;
    QJSValue Value(int index) const;

    QString Text(int index) const;
    QString Text(int index, const QString &otherwise) const;
    double Number(int index) const;
    int Integer(int index) const;
    int Integer(int index, int otherwise) const;
    QJSValue Function(int index) const;
    /// An array's elements.
    QJSValueList List(int index) const;

    /// The property of an object given as the argument; undefined where either is missing.
    QJSValue Option(int index, const QString &name) const;
    bool Flag(int index, const QString &name, bool otherwise) const;

    /// The mistake that argument `index` is, to be thrown.
    [[noreturn]] void Refuse(int index, const QString &wanted) const;

private:
    QString m_function;
    QJSValueList m_values;
};

/// The elements of an array.
QJSValueList Elements(const QJSValue &array);
