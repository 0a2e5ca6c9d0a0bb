#pragma once

#include <QString>
#include <exception>
#include <utility>

/// A mistake of a script: a wrong argument, a control that is not there. It reaches the script as
/// an exception of its own language.
class ScriptError : public std::exception
{
public:
    explicit ScriptError(QString message) : m_message(std::move(message)), m_what(m_message.toUtf8()) {}
    const QString &Message() const { return m_message; }
    const char *what() const noexcept override { return m_what.constData(); }

private:
    QString m_message;
    QByteArray m_what;
};
