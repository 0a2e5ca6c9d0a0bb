#include "platform/controls/progress_bar.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

using controls::ProgressBar;

namespace
{

TEST(ProgressBar, PaintsAtTheNextTurn)
{
    ProgressBar bar;
    bar.SetRange(0, 10);
    bar.SetValue(3);
    bar.SetValue(7);
    EXPECT_EQ(bar.Value(), 7);
    EXPECT_NE(bar.value(), 7);
    QCoreApplication::processEvents();
    EXPECT_EQ(bar.value(), 7);
    bar.SetValue(10);
    QCoreApplication::processEvents();
    EXPECT_EQ(bar.value(), 10);
}

TEST(ProgressBar, StaysInItsRange)
{
    ProgressBar bar;
    bar.SetRange(0, 10);
    bar.SetValue(11);
    EXPECT_EQ(bar.Value(), 10);
    bar.SetValue(-1);
    EXPECT_EQ(bar.Value(), 0);
    bar.SetValue(10);
    bar.SetRange(0, 5);
    EXPECT_EQ(bar.Value(), 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(bar.value(), 0);
}

} // namespace
