#pragma once

#include <cstdint>

/// Tells that a search found as many hits as it keeps, in the words of the current mode.
void ShowListLimitMessage(std::int16_t &maxListCount);
