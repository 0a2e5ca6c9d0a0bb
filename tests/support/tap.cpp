#include "tap.h"

#include <cstdio>

namespace
{

void WriteLine(const QString &line)
{
    QByteArray bytes = line.toUtf8();
    bytes.append('\n');
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

/// A description on one line, without what TAP reads as a directive.
QString Description(QString what)
{
    what.replace(u'\r', u' ').replace(u'\n', u' ').replace(u'#', QStringLiteral("\\#"));
    return what;
}

} // namespace

void Tap::Begin() { WriteLine(QStringLiteral("TAP version 13")); }

void Tap::Point(bool passed, const QString &what, const QStringList &diagnostics)
{
    ++(passed ? m_passed : m_failed);
    WriteLine(QStringLiteral("%1ok %2 - %3")
                  .arg(passed ? QString() : QStringLiteral("not "))
                  .arg(m_passed + m_failed)
                  .arg(Description(what)));
    for (const QString &line : diagnostics)
        Note(line);
}

void Tap::Note(const QString &text)
{
    for (QString line : text.split(u'\n')) {
        line.remove(u'\r');
        WriteLine(QStringLiteral("# ") + line);
    }
}

void Tap::Plan() { WriteLine(QStringLiteral("1..%1").arg(m_passed + m_failed)); }

void Tap::PlanAndSummary()
{
    Plan();
    WriteLine(QStringLiteral("%1 passed, %2 failed").arg(m_passed).arg(m_failed));
}
