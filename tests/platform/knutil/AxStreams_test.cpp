#include "AxStreams.h"

#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "AxSinkScope.h"

TEST(AxStreams, HandsOutWholeLines)
{
    std::vector<std::string> lines;
    AxSinkScope const scope(AxWarn, [&](std::string const& line) { lines.push_back(line); });
    AxWarn("one %d", 1);
    EXPECT_TRUE(lines.empty());
    AxWarn("\ntwo\nthr");
    AxWarn << "ee" << AxEndl;
    EXPECT_EQ(lines, (std::vector<std::string>{"one 1\n", "two\n", "three\n"}));
}

TEST(AxStreams, WritesEveryKindOfValue)
{
    AxSinkScope scope(AxInfo);
    char const* const null = nullptr;
    AxInfo << AxString("s") << ' ' << AxSymbolString("y") << ' ' << AxFilename("a\\b") << ' ' << std::string("t")
           << null << ' ' << -1 << ' ' << 18446744073709551615ULL << ' ' << 0.5 << ' ' << true << false << AxEndl;
    EXPECT_EQ(scope.text(), "s y a\\b t -1 18446744073709551615 0.5 truefalse\n");
}

TEST(AxStreams, FormatsTextsOfAnyLength)
{
    AxSinkScope scope(AxVerbose);
    for (std::size_t const length : {511U, 512U, 100000U})
    {
        scope.clear();
        std::string const text(length, 'x');
        AxVerbose("%s\n", text.c_str());
        EXPECT_EQ(scope.text(), text + "\n");
    }
}

TEST(AxStreams, IsSilentWithoutASinkExceptForWarnings)
{
    EXPECT_TRUE(AxWarn.isActive());
    EXPECT_FALSE(AxInfo.isActive());
    EXPECT_FALSE(AxVerbose.isActive());
    testing::internal::CaptureStderr();
    AxWarn("to the error stream\n");
    AxInfo("dropped\n");
    AxInfo << "dropped" << 'x' << -1 << 1U << 0.5 << AxEndl << "not kept for a later sink";
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "to the error stream\n");
    AxSinkScope scope(AxInfo);
    AxInfo << AxEndl;
    EXPECT_EQ(scope.text(), "\n");
}

TEST(AxStreams, OutlivesSinksThatThrowReplaceThemselvesOrWrite)
{
    std::string seen;
    AxSinkScope const scope(AxWarn,
                            [&](std::string const& line)
                            {
                                AxWarn.setSink([&](std::string const& later) { seen += later; });
                                AxWarn << "nested " << AxString(line);
                                throw std::runtime_error("sink");
                            });
    AxWarn("first\nsecond\n");
    EXPECT_EQ(seen, "nested first\nsecond\n");
}

TEST(AxStreams, GivesThePreviousSinkBack)
{
    AxSinkScope outer(AxWarn);
    {
        AxSinkScope inner(AxWarn);
        AxWarn("in");
        EXPECT_EQ(inner.text(), "in");
    }
    AxWarn("out\n");
    EXPECT_EQ(outer.text(), "out\n");
}
