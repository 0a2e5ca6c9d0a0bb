#pragma once

#include <cstdint>

/// The ways to search, as `SearchMode` counts them.
enum SearchModeNumber : std::uint8_t {
    ModeIncremental = 0,
    ModePrefix = 1,
    ModeMiddle = 2,
    ModeSuffix = 3,
    ModeMeaning = 4,
    ModeExample = 5,
    ModeWildcard = 6,
    ModeWeb = 7
};

/// What is searched, as `SearchTarget` counts it.
enum SearchTargetNumber : std::uint8_t { TargetAll = 0, TargetWords = 1, TargetPhrases = 2 };
