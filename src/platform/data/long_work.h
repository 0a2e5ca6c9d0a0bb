#pragma once

#include "platform/data/session.h"

#include <functional>

namespace data
{

/// Does work that takes its time in statements of the session: the busy hook around it, the progress
/// hook about every 50 ms within it. What the progress hook raises ends the work and is passed on.
void DoLongWork(Session &session, const std::function<void()> &work);

/// While it lives, long work is part of the opening of a dictionary.
class Opening
{
public:
    Opening();
    ~Opening();
    Opening(const Opening &) = delete;
    Opening &operator=(const Opening &) = delete;
};

/// Within long work that is none of SQLite's, to be called far more often than every 50 ms: about that often
/// it calls the progress hook. What that raises is passed on.
void LetEventsThrough();

/// Within long work, waits for what another thread does: the progress hook about every 50 ms until the
/// condition holds. What the hook raises ends the waiting and is passed on.
void AwaitLongWork(const std::function<bool()> &isDone);

} // namespace data
