#pragma once

#include <QtGlobal>
#include <span>
#include <string_view>

/// The frozen table behind text/fold.h, as the generator wrote it; nobody else includes this.
namespace text
{

/// The code points first, first + step ... last all fold to themselves plus delta.
struct FoldRun {
    char32_t first;
    char32_t last;
    char32_t step;
    qint32 delta;
};

/// All code points that the fold changes, ascending by `first`; the runs never cross a plane.
std::span<const FoldRun> FoldRuns();

/// Folded characters in ascending order of weight: symbols, digits, letters, kana, kanji.
std::u16string_view FoldedOrder();

} // namespace text
