#include "AxSimMunition.h"

#include <gtest/gtest.h>

namespace
{
AxSimMunition heat()
{
    AxSimMunition munition;
    munition.setMunitionType(AxObjectType(2, 2, 225, 2, 13, 1, 0, 1));
    munition.setTracerType(AxObjectType(2, 2, 225, 2, 13, 2, 0, 1));
    munition.setWarhead(1000);
    munition.setGuidanceMode("none");
    munition.setMunitionName("120mm-heat");
    return munition;
}
} // namespace

TEST(AxSimMunition, IsThePatternForTheMunitionThatIsAskedAbout)
{
    AxSimMunition pattern;
    pattern.setMunitionType(AxObjectType(2, 2, -1, -1, -1, -1, -1, 1));
    EXPECT_TRUE(pattern.matchPattern(heat()));
    EXPECT_FALSE(heat().matchPattern(pattern));
    EXPECT_TRUE(AxSimMunition().matchPattern(heat()));
    EXPECT_FALSE(heat().matchPattern(AxSimMunition()));
    EXPECT_TRUE(heat().matchPattern(heat()));
}

TEST(AxSimMunition, MustAgreeInEveryFieldThatThePatternGives)
{
    void (*const changes[])(AxSimMunition&) = {
        [](AxSimMunition& m) { m.setMunitionType(AxObjectType(2, 2, 225, 2, 13, 9, 0, 1)); },
        [](AxSimMunition& m) { m.setTracerType(AxObjectType(2, 2, 225, 2, 13, 9, 0, 1)); },
        [](AxSimMunition& m) { m.setWarhead(1100); },
        [](AxSimMunition& m) { m.setGuidanceMode("laser"); },
        [](AxSimMunition& m) { m.setMunitionName("120mm-sabot"); },
    };
    for (auto const& change : changes)
    {
        AxSimMunition other(heat());
        EXPECT_TRUE(other == heat());
        change(other);
        EXPECT_FALSE(heat().matchPattern(other));
        EXPECT_TRUE(other != heat());
    }
}
