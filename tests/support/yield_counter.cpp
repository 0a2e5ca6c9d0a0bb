#include "yield_counter.h"

#include "scenario.h"

void YieldCounter::RunAt(int n, const QJSValue &function) { m_waiting.append({n, function}); }

void YieldCounter::Yield()
{
    QJSValueList due;
    for (Waiting &waiting : m_waiting)
        if (--waiting.yields == 0)
            due.append(waiting.function);
    // Taken out first, for the functions may yield and arm themselves again.
    m_waiting.removeIf([](const Waiting &waiting) { return waiting.yields <= 0; });
    for (const QJSValue &function : std::as_const(due))
        m_scenario.CallBack(function, {}, QStringLiteral("a function given to atYield"));
}

void YieldCounter::NoteLeftovers() const
{
    for (const Waiting &waiting : m_waiting)
        m_scenario.Note(QStringLiteral("a function given to atYield never ran: %1 yields were missing")
                            .arg(waiting.yields));
}
