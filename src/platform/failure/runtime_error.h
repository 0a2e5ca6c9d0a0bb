#pragma once

#include <QString>
#include <exception>
#include <utility>

/// A run-time failure: the only exception that crosses a function boundary of Wordmere.
class RuntimeError : public std::exception
{
public:
    /// The usual failures by number; the data engine's are negative.
    enum Number : qint32 {
        InvalidCall = 5,
        Overflow = 6,
        SubscriptOutOfRange = 9,
        DivisionByZero = 11,
        TypeMismatch = 13,
        BadFileName = 52,
        FileNotFound = 53,
        DeviceIoError = 57,
        FileExists = 58,
        DiskFull = 61,
        InputPastEnd = 62,
        PermissionDenied = 70,
        PathNotFound = 76,
        ObjectNotSet = 91,
        InvalidFileFormat = 321,
        CannotOpenDatabase = -2147467259,
        InvalidStatement = -2147217900,
        ProviderError = -2147217887,
        NoCurrentRow = 3021,
        ItemNotFound = 3265,
        ObjectClosed = 3704,
        ObjectOpen = 3705,
    };

    /// A failure with the description of the table for `number`.
    explicit RuntimeError(qint32 number, QString source = defaultSource());
    /// A failure with a description of its own.
    RuntimeError(qint32 number, QString source, QString description);

    qint32 number() const { return m_number; }
    const QString &source() const { return m_source; }
    const QString &description() const { return m_description; }
    const char *what() const noexcept override { return m_what.constData(); }

    /// The name that failures of the program's own code bear as their source.
    static QString defaultSource();
    /// The Japanese description of a failure; a general one for a number that the table lacks.
    static QString descriptionOf(qint32 number);

private:
    qint32 m_number;
    QString m_source;
    QString m_description;
    QByteArray m_what;
};

/// Narrows a whole number to the 16- or 8-bit type that a field has; raises 6 when it does not fit.
template <typename To, typename From> To CheckedTo(From value)
{
    if (!std::in_range<To>(value))
        throw RuntimeError(RuntimeError::Overflow);
    return static_cast<To>(value);
}
