#pragma once

#include <QString>
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

/// The name of a search mode, 0 to 6; empty for others.
QString SearchModeName(std::uint8_t mode);

/// The name of a search target, 0 to 2; empty for others.
QString SearchTargetName(std::uint8_t target);
