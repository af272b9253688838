#include "foundation/Log.h"

#include <gtest/gtest.h>

TEST(LogTest, KeepsEachTextOnOneLine)
{
    testing::internal::CaptureStderr();
    Log::line(u"Unable to open \u201CMy\nCard\u201D\r\t\u2028\u0085\x1b[2J");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Unable to open “My Card”     [2J\n");
}

TEST(LogTest, HandsItsLinesToTheInnermostCollector)
{
    const Log::Collector outer;
    {
        const Log::Collector inner;
        Log::line(u"one");
        EXPECT_EQ(inner.lines(), QStringList{QStringLiteral("one")});
    }
    Log::line(u"two");
    EXPECT_EQ(outer.lines(), QStringList{QStringLiteral("two")});
}
