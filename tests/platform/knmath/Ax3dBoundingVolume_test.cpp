#include "Ax3dBoundingVolume.h"

#include <gtest/gtest.h>

TEST(Ax3dBoundingVolume, SortsItsCorners)
{
    Ax3dBoundingVolume const volume({40.0, -6.0, 5.5}, {-40.0, 6.0, -15.0});
    EXPECT_EQ(volume.min(), AxVector64(-40.0, -6.0, -15.0));
    EXPECT_EQ(volume.max(), AxVector64(40.0, 6.0, 5.5));
    EXPECT_EQ(volume, Ax3dBoundingVolume({-40.0, -6.0, -15.0}, {40.0, 6.0, 5.5}));
}

TEST(Ax3dBoundingVolume, MeasuresItself)
{
    Ax3dBoundingVolume const volume({-40.0, -6.0, -15.0}, {40.0, 6.0, 5.5});
    EXPECT_EQ(volume.length(), 80.0);
    EXPECT_EQ(volume.width(), 12.0);
    EXPECT_EQ(volume.height(), 20.5);
    EXPECT_EQ(volume.offset(), AxVector64(0.0, 0.0, -4.75));
    EXPECT_EQ(volume.offset().z() + volume.lowerExtent(), 5.5);
    EXPECT_EQ(volume.upperExtent(), 10.25);
    EXPECT_EQ(Ax3dBoundingVolume({0.0, 0.0, 0.0}, {2.0, 4.0, 4.0}).radius(), 3.0);
}

TEST(Ax3dBoundingVolume, IsEmptyWithoutSize)
{
    EXPECT_TRUE(Ax3dBoundingVolume().isEmpty());
    EXPECT_TRUE(Ax3dBoundingVolume({1.0, 2.0, 3.0}, {1.0, 2.0, 3.0}).isEmpty());
    EXPECT_FALSE(Ax3dBoundingVolume({1.0, 2.0, 3.0}, {1.0, 2.0, 3.5}).isEmpty());
}
