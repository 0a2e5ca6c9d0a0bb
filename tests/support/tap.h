#pragma once

#include <QString>
#include <QStringList>

/// Writes test points to the standard output in the form of TAP 13, one whole line at a time.
class Tap
{
public:
    /// A point, with its diagnostics when it failed.
    void Point(bool passed, const QString &what, const QStringList &diagnostics = {});
    void Note(const QString &text);
    /// The first line of a stream and its last ones.
    void Begin();
    void PlanAndSummary();
    /// The plan alone.
    void Plan();

    int Passed() const { return m_passed; }
    int Failed() const { return m_failed; }

private:
    int m_passed = 0, m_failed = 0;
};
