#pragma once

#include "platform/failure/runtime_error.h"

#include <functional>

namespace controls
{

/// Runs an event handler. A failure that leaves it goes to the default handling and no further;
/// any other exception does as a failure of the number 51.
void RunHandler(const std::function<void()> &handler);

/// The default handling of failures.
void SetFailureHandler(std::function<void(const RuntimeError &)> handler);

/// How many handlers are running, nested ones included.
int RunningHandlers();

/// Runs the action when no handler runs: at once, or when the outermost one has returned.
void WhenNoHandlerRuns(std::function<void()> action);

} // namespace controls
