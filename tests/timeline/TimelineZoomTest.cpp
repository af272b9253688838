#include "timeline/TimelineZoom.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(TimelineZoom, keepsTheMiddleOfTheViewInPlace)
{
    using TimelineZoom::xKeepingMiddle;
    // The middle, 1000 at a scale of 2, is at 1500 at a scale of 3.
    EXPECT_EQ(xKeepingMiddle(750, 500, 2, 3), 1250);
    EXPECT_EQ(xKeepingMiddle(1250, 500, 3, 2), 750);
    EXPECT_EQ(xKeepingMiddle(0, 500, 1, 4), 750);
    EXPECT_EQ(xKeepingMiddle(0, 500, 4, 1), 0) << "never before the beginning";
    EXPECT_EQ(xKeepingMiddle(0, 500, 0, 2), 250) << "no scale yet counts as 1";
    EXPECT_EQ(xKeepingMiddle(1e300, 500, 1e-300, 1e300), 0) << "not a position";
}

TEST(TimelineZoom, aPinchStaysWithinItsRange)
{
    using TimelineZoom::scaleAfterMagnification;
    EXPECT_EQ(scaleAfterMagnification(2.0, 0.1), 3.0);
    EXPECT_EQ(scaleAfterMagnification(3.0, 0.0), 3.0);
    EXPECT_EQ(scaleAfterMagnification(1.2, -0.1), 1.0);
    EXPECT_EQ(scaleAfterMagnification(5.0, -1.0), 1.0) << "a factor below 0";
    EXPECT_EQ(scaleAfterMagnification(9.0, 0.1), 10.0);
    EXPECT_EQ(scaleAfterMagnification(40.0, 0.0), 10.0) << "a menu command went beyond";
    EXPECT_EQ(scaleAfterMagnification(0.0, 0.1), 1.0);
    // Both the factor and the result are numbers of single precision.
    EXPECT_EQ(scaleAfterMagnification(1.7, 0.01), static_cast<float>(1.05F * 1.7));
    EXPECT_EQ(scaleAfterMagnification(2.0, std::numeric_limits<double>::infinity()), 10.0);
}
