#pragma once

#include <cstdint>

/// The arithmetic of a conversion's progress.

/// Lines from one percentage to the next; 0 for fewer than 100. Raises 6 beyond 32,767.
std::int16_t ProgressStepOf(std::int32_t lineCount);

/// How much of the lines has been read, in whole percent, at most 100.
int PercentOf(std::int32_t recordNo, std::int32_t lineCount);

/// One more bad record; raises 6 where the greatest number has been reached.
void CountBadRecord(std::int32_t &badCount, std::int32_t greatest);
