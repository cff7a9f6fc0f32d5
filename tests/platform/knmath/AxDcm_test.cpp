#include "AxDcm.h"

#include <numbers>
#include <random>

#include <gtest/gtest.h>

namespace
{
constexpr double theRight = std::numbers::pi / 2.0;

void expectNear(AxVector64 const& a, AxVector64 const& b)
{
    EXPECT_NEAR(a.x(), b.x(), 1e-12);
    EXPECT_NEAR(a.y(), b.y(), 1e-12);
    EXPECT_NEAR(a.z(), b.z(), 1e-12);
}
} // namespace

TEST(AxDcm, TurnsWorldVectorsIntoTheBody)
{
    AxVector64 const x(1.0, 0.0, 0.0), y(0.0, 1.0, 0.0), z(0.0, 0.0, 1.0);
    EXPECT_EQ(AxDcm() * x, x);
    EXPECT_EQ(AxDcm(AxTaitBryan()), AxDcm());
    expectNear(AxDcm(AxTaitBryan(theRight, 0.0, 0.0)) * y, x);
    expectNear(AxDcm(AxTaitBryan(0.0, theRight, 0.0)) * x, z);
    expectNear(AxDcm(AxTaitBryan(0.0, 0.0, theRight)) * z, y);
    expectNear(AxDcm(AxTaitBryan(theRight, 0.0, theRight)) * z, y);
    expectNear(AxDcm(AxTaitBryan(theRight, theRight, 0.0)) * y, z);
}

TEST(AxDcm, IsUndoneByItsTranspose)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> number(-7.0, 7.0);
    for (int round = 0; round < 100; ++round)
    {
        AxDcm const turn(AxTaitBryan(number(random), number(random), number(random)));
        AxVector64 const v(number(random), number(random), number(random));
        expectNear(turn.transposed() * (turn * v), v);
    }
}
