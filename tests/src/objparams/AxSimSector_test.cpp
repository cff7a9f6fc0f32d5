#include "AxSimSector.h"

#include "RecordFixture.h"

#include <numbers>

namespace
{
constexpr double thePi = std::numbers::pi;
}

TEST(AxSimSector, DefaultIsTheQuarterAhead)
{
    AxSimSector const sector("s", nullptr);
    EXPECT_EQ(sector.sectorSize(), thePi / 2.0);
    EXPECT_EQ(sector.centerVector(), AxVector64(1.0, 0.0, 0.0));
    EXPECT_TRUE(sector.inSector(AxVector64(1.0, 1.0, 0.0))) << "the edge is inside";
    EXPECT_TRUE(sector.inSector(AxVector64(1.0, -1.0, 0.0)));
    EXPECT_FALSE(sector.inSector(AxVector64(1.0, 1.001, 0.0)));
    EXPECT_TRUE(sector.inSector(AxVector64())) << "the zero vector is inside";
    EXPECT_TRUE(sector.inSector(AxVector64(1e-200, 1e-200, 0.0)));
}

TEST(AxSimSector, BodyAndSectorAnglesInvert)
{
    for (double center : {0.0, 1.0, -3.0, thePi, 7.0})
    {
        for (double size : {0.0, 0.5, thePi, 6.0})
        {
            AxSimSector sector("s", nullptr);
            sector.setSector(center, size);
            for (double angle = -3.1; angle < 3.1; angle += 0.3)
            {
                double const inside = sector.bodyToSector(angle);
                EXPECT_GE(inside, 0.0);
                EXPECT_LT(inside, 2.0 * thePi);
                EXPECT_NEAR(sector.sectorToBody(inside), angle, 1e-9);
                bool const byDirection = sector.inSector(AxVector64(std::cos(angle), std::sin(angle), 0.0));
                EXPECT_EQ(sector.inSector(angle), byDirection) << center << ' ' << size << ' ' << angle;
            }
            EXPECT_EQ(sector.bodyToSector(center - size / 2.0), 0.0);
            EXPECT_TRUE(sector.inSector(center + size / 2.0));
        }
    }
}

TEST(AxSimSector, FullCircleHoldsEverything)
{
    AxSimSector sector("s", nullptr);
    sector.setSector(1.0, 2.0 * thePi);
    EXPECT_TRUE(sector.inSector(-2.0) && sector.inSector(AxVector64(-1.0, -1.0, 0.0)));
}

TEST(AxSimSector, DirectionsFollowReadingCopyingAndReset)
{
    AxSimSector sector("s", nullptr);
    readFrom(sector, "(s (sector-center 1.5707963267948966) (sector-size 0.2))");
    EXPECT_NEAR(sector.centerVector().y(), 1.0, 1e-15);
    EXPECT_TRUE(sector.inSector(AxVector64(0.0, 1.0, 0.0)));
    AxSimSector const copy(sector);
    EXPECT_TRUE(copy == sector);
    EXPECT_TRUE(copy.inSector(AxVector64(0.0, 1.0, 0.0)));
    sector.reset();
    EXPECT_FALSE(sector.inSector(AxVector64(0.0, 1.0, 0.0)));
    EXPECT_EQ(sector.sectorSize(), thePi / 2.0);
}

TEST(AxSimSector, PositionsAreTurnedIntoTheBodyFrame)
{
    AxSimSector const sector("s", nullptr);
    AxDcm const facingRight(AxTaitBryan(thePi / 2.0, 0.0, 0.0));
    EXPECT_TRUE(sector.inSector({5.0, 5.0, 0.0}, {5.0, 9.0, 0.0}, facingRight));
    EXPECT_FALSE(sector.inSector({5.0, 5.0, 0.0}, {9.0, 5.0, 0.0}, facingRight));
}
