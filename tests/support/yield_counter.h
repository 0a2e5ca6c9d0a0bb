#pragma once

#include <QJSValue>
#include <QList>

class Scenario;

/// Counts the program's yields and runs the functions that wait for one of them.
class YieldCounter
{
public:
    explicit YieldCounter(Scenario &scenario) : m_scenario(scenario) {}

    /// Runs the function at the n-th yield from now.
    void RunAt(int n, const QJSValue &function);
    /// One yield of the program.
    void Yield();
    void Clear() { m_waiting.clear(); }
    /// Tells in the output of functions whose yield never came.
    void NoteLeftovers() const;

private:
    struct Waiting {
        int yields;
        QJSValue function;
    };
    Scenario &m_scenario;
    QList<Waiting> m_waiting;
};
