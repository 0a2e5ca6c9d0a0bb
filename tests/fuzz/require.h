#pragma once

#include <cstdlib>

/// Ends a fuzz run where a promise is broken.
inline void Require(bool condition)
{
    if (!condition)
        std::abort();
}
