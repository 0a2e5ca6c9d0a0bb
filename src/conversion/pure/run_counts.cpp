#include "conversion/pure/run_counts.h"

#include "platform/failure/runtime_error.h"

#include <algorithm>

namespace
{

constexpr std::int32_t kWhole = 100;

} // namespace

std::int16_t ProgressStepOf(std::int32_t lineCount) { return CheckedTo<std::int16_t>(lineCount / kWhole); }

int PercentOf(std::int32_t recordNo, std::int32_t lineCount)
{
    if (lineCount <= 0)
        throw RuntimeError(RuntimeError::DivisionByZero);
    // A source may have grown since its lines were counted.
    return static_cast<int>(std::min<std::int64_t>(std::int64_t{recordNo} * kWhole / lineCount, kWhole));
}

void CountBadRecord(std::int32_t &badCount, std::int32_t greatest)
{
    if (badCount >= greatest)
        throw RuntimeError(RuntimeError::Overflow);
    ++badCount;
}
