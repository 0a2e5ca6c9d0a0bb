#include "platform/host/host.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

namespace
{

constexpr qint64 kShortestTimeBetweenTurns = 5;

std::function<void()> yieldHook;
std::function<void()> beforeTurnHook;
QElapsedTimer sinceLastTurn;

void CallYieldHook()
{
    // A copy, for a hook may put another in its place.
    if (const auto hook = yieldHook)
        hook();
}

void CallBeforeTurnHook()
{
    if (const auto hook = beforeTurnHook)
        hook();
}

void Turn(QEventLoop::ProcessEventsFlags events = QEventLoop::AllEvents)
{
    CallBeforeTurnHook();
    QCoreApplication::processEvents(events);
    sinceLastTurn.start();
}

} // namespace

void host::DoEvents()
{
    CallYieldHook();
    Turn();
}

void host::DoEventsWithoutInput()
{
    CallYieldHook();
    Turn(QEventLoop::ExcludeUserInputEvents);
}

void host::YieldRow()
{
    CallYieldHook();
    if (!sinceLastTurn.isValid() || sinceLastTurn.elapsed() >= kShortestTimeBetweenTurns)
        Turn();
}

void host::SetYieldHook(std::function<void()> hook) { yieldHook = std::move(hook); }

void host::SetBeforeTurnHook(std::function<void()> hook) { beforeTurnHook = std::move(hook); }

void host::Sleep(int milliseconds)
{
    CallBeforeTurnHook();
    QEventLoop loop;
    QTimer::singleShot(qMax(0, milliseconds), Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
    sinceLastTurn.start();
}
