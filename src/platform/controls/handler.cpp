#include "platform/controls/handler.h"

#include <QList>
#include <utility>

namespace
{

constexpr qint32 kInternalFailure = 51;

int running = 0;
std::function<void(const RuntimeError &)> failureHandler;
QList<std::function<void()>> waitingActions;

/// Nothing may leave the default handling itself, for above it is the event loop alone.
void HandleFailure(const RuntimeError &failure) noexcept
{
    try {
        if (const auto handler = failureHandler)
            handler(failure);
        else
            qCritical("%s", failure.what());
    } catch (const std::exception &second) {
        qCritical("%s", second.what());
    } catch (...) {
        qCritical("The handling of a failure failed.");
    }
}

void RunGuarded(const std::function<void()> &handler) noexcept
{
    try {
        handler();
    } catch (const RuntimeError &failure) {
        HandleFailure(failure);
    } catch (const std::exception &other) {
        HandleFailure(
            RuntimeError(kInternalFailure, RuntimeError::defaultSource(), QString::fromUtf8(other.what())));
    } catch (...) {
        HandleFailure(RuntimeError(kInternalFailure));
    }
}

} // namespace

void controls::RunHandler(const std::function<void()> &handler)
{
    ++running;
    RunGuarded(handler);
    --running;
    while (running == 0 && !waitingActions.isEmpty())
        RunGuarded(waitingActions.takeFirst());
}

void controls::SetFailureHandler(std::function<void(const RuntimeError &)> handler)
{
    failureHandler = std::move(handler);
}

int controls::RunningHandlers() { return running; }

void controls::WhenNoHandlerRuns(std::function<void()> action)
{
    if (running == 0)
        action();
    else
        waitingActions.append(std::move(action));
}
