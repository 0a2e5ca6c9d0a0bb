#include "conversion/pure/run_counts.h"

#include "platform/failure/runtime_error.h"

#include <gtest/gtest.h>
#include <limits>

namespace
{

template <typename Call> qint32 Raised(Call call)
{
    try {
        call();
    } catch (const RuntimeError &failure) {
        return failure.number();
    }
    return 0;
}

TEST(RunCounts, StepsAreHundredthsOfTheLines)
{
    EXPECT_EQ(ProgressStepOf(1), 0);
    EXPECT_EQ(ProgressStepOf(99), 0);
    EXPECT_EQ(ProgressStepOf(100), 1);
    EXPECT_EQ(ProgressStepOf(12'345), 123);
    EXPECT_EQ(ProgressStepOf(3'276'799), 32'767);
    EXPECT_EQ(Raised([] { ProgressStepOf(3'276'800); }), RuntimeError::Overflow);
    EXPECT_EQ(Raised([] { ProgressStepOf(std::numeric_limits<std::int32_t>::max()); }),
              RuntimeError::Overflow);
}

TEST(RunCounts, PercentagesAreCut)
{
    EXPECT_EQ(PercentOf(1, 3), 33);
    EXPECT_EQ(PercentOf(2, 3), 66);
    EXPECT_EQ(PercentOf(3, 3), 100);
    EXPECT_EQ(PercentOf(29, 100), 29);
    EXPECT_EQ(PercentOf(57, 100), 57);
    EXPECT_EQ(PercentOf(std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::max()),
              100);
    EXPECT_EQ(PercentOf(7, 3), 100);
    EXPECT_EQ(Raised([] { PercentOf(0, 0); }), RuntimeError::DivisionByZero);
}

TEST(RunCounts, BadRecordsOverflowAtTheirGreatestNumber)
{
    std::int32_t count = 32'766;
    CountBadRecord(count, 32'767);
    EXPECT_EQ(count, 32'767);
    EXPECT_EQ(Raised([&] { CountBadRecord(count, 32'767); }), RuntimeError::Overflow);
    EXPECT_EQ(count, 32'767);
    CountBadRecord(count, std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(count, 32'768);
}

} // namespace
