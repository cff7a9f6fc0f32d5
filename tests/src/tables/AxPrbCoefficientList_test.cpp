#include "AxPrbCoefficientList.h"

#include "AxSinkScope.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{
AxPrbProbabilityCoefficients polynomial(std::vector<double> const& coefficients)
{
    AxPrbProbabilityCoefficients made("hit", nullptr);
    made.setCoefficients(static_cast<int>(coefficients.size()), coefficients.data());
    return made;
}
} // namespace

TEST(AxPrbProbabilityCoefficients, EvaluatesFromTheHighestPowerAndClamps)
{
    struct
    {
        std::vector<double> coefficients;
        double range;
        double expected;
    } const cases[] = {
        {{}, 5.0, 0.0},
        {{0.75}, 5.0, 0.75},
        {{-0.001, 1.0}, 2000.0, 0.0},
        {{-0.001, 1.0}, -5.0, 1.0},
        {{-0.001, 1.0}, 250.0, 0.75},
        {{0.01, -0.1, 0.5}, 10.0, 0.5},
    };
    for (auto const& c : cases)
    {
        EXPECT_DOUBLE_EQ(polynomial(c.coefficients).probability(c.range), c.expected);
    }
    EXPECT_TRUE(std::isnan(polynomial({NAN}).probability(1.0)));
}

TEST(AxPrbProbabilityCoefficients, SolvesForItsReach)
{
    AxSinkScope warnings(AxWarn);
    EXPECT_EQ(polynomial({0.75}).solveForMaximum(), 0.75);
    EXPECT_DOUBLE_EQ(polynomial({-0.001, 1.0}).solveForMaximum(), 1000.0);
    EXPECT_EQ(polynomial({-1.0, 0.0, 4.0}).solveForMaximum(), 2.0);
    EXPECT_EQ(polynomial({1.0, -3.0, 2.0}).solveForMaximum(), 2.0);
    EXPECT_TRUE(std::isnan(polynomial({1.0, 0.0, 1.0}).solveForMaximum()));
    EXPECT_TRUE(std::isinf(polynomial({0.0, 1.0}).solveForMaximum()));
    EXPECT_EQ(warnings.text(), "");
    EXPECT_EQ(polynomial({1.0, 2.0, 3.0, 4.0}).solveForMaximum(), 0.0);
    EXPECT_EQ(polynomial({}).solveForMaximum(), 0.0);
    EXPECT_EQ(warnings.text(), " 4 level polynomial not supported.\n 0 level polynomial not supported.\n");
}

TEST(AxPrbProbabilityCoefficients, ReportsAccessOutsideTheSet)
{
    AxSinkScope warnings(AxWarn);
    EXPECT_EQ(polynomial({}).coefficient(0), 0.0);
    EXPECT_EQ(warnings.text(), "attempt to access uninitialized coefficient list\n");
    warnings.clear();
    AxPrbProbabilityCoefficients two = polynomial({1.0, 2.0});
    EXPECT_EQ(two.coefficient(1), 2.0);
    EXPECT_EQ(two.coefficient(2), 0.0);
    two.setCoefficient(-1, 5.0);
    EXPECT_EQ(warnings.text(), "attempt to access coefficient list out of bounds\n"
                               "attempt to access coefficient list out of bounds\n");
    two.setNumCoefficients(2000000000);
    EXPECT_EQ(two.numCoefficients(), 1000);
    std::vector<double> many(1500);
    many.back() = 0.25;
    two.setCoefficients(1500, many.data());
    EXPECT_EQ(two.numCoefficients(), 1500);
    EXPECT_EQ(two.probability(1.0), 0.25);
    two.setCoefficients(2, nullptr);
    EXPECT_EQ(two.numCoefficients(), 0);
    two.setNumCoefficients(-3);
    EXPECT_EQ(two.numCoefficients(), 0);
    EXPECT_EQ(two.coefficients(), nullptr);
}

TEST(AxPrbCoefficientList, ReadsAndWritesPolynomialsOfAnyLength)
{
    AxPrbCoefficientList list("coefficients", nullptr);
    readFrom(list, "(coefficients (hit -0.0005 1) (kill) (seen 1 2 3 4 5))");
    EXPECT_EQ(list.writtenText(), "(coefficients\n  (hit -0.0005 1.0)\n  (kill)\n  (seen 1.0 2.0 3.0 4.0 5.0))\n");
    AxPrbCoefficientList copy(list);
    EXPECT_TRUE(copy == list);
    copy.lookup("hit")->setCoefficient(0, 0.0);
    EXPECT_FALSE(copy == list);
}

TEST(AxPrbCoefficientList, KeepsWhatIsNoPolynomialUnread)
{
    AxSinkScope warnings(AxWarn);
    AxPrbCoefficientList list("coefficients", nullptr);
    readFrom(list, "(coefficients (hit -0.0005 one) (kill 0.5))");
    EXPECT_EQ(list.count(), 1);
    EXPECT_NE(warnings.text().find("test.ope:1:28: error: a polynomial expects numbers"), std::string::npos);
    EXPECT_EQ(list.writtenText(), "(coefficients\n  (hit -0.0005 one)\n  (kill 0.5))\n");

    readFrom(list, "(coefficients (hit (1 2)) (kill $k 0.5) (seen $s) (none ($n 1 2)))");
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(list.writtenText(), "(coefficients\n  (hit (1 2))\n  (kill $k 0.5)\n  (seen $s)\n  (none ($n 1 2)))\n");

    readFrom(list, "(coefficients (3 4 5) (kill 0.5))");
    EXPECT_EQ(list.writtenText(), "(coefficients\n  (3 4 5)\n  (kill 0.5))\n");
}

TEST(AxPrbCoefficientList, FillsTheRowAnewEachTime)
{
    AxPrbCoefficientList list;
    readFrom(list, "(coefficients (hit -0.001 1.0) (kill 0.25))");
    AxPrbRangeTableEntry out;
    out.addProbability("hit", 0.9);
    EXPECT_TRUE(list.getProbabilities(500.0, &out));
    EXPECT_EQ(out.count(), 2);
    EXPECT_EQ(out.range(), 500.0);
    EXPECT_DOUBLE_EQ(out.probability("hit"), 0.5);
    EXPECT_EQ(out.probability("kill"), 0.25);
    EXPECT_DOUBLE_EQ(list.maxRangeValue(), 1000.0);

    AxSinkScope warnings(AxWarn);
    EXPECT_FALSE(list.getProbabilities(500.0, nullptr));
    EXPECT_EQ(warnings.text(), "AxPrbCoefficientList::getProbabilities - can't fill in null entry\n");
}

TEST(AxPrbCoefficientList, ReachIgnoresNegativeAndUnrealRoots)
{
    AxPrbCoefficientList list;
    EXPECT_EQ(list.maxRangeValue(), 0.0);
    readFrom(list, "(coefficients (a 1.0 5.0) (b 1.0 0.0 1.0))");
    EXPECT_EQ(list.maxRangeValue(), 0.0);
}
