#include "AxTaitBryan.h"
#include "AxVector64.h"

#include <utility>

#include <gtest/gtest.h>

TEST(AxVector64, Calculates)
{
    AxVector64 const a(1.0, 2.0, 3.0), b(4.0, -5.0, 6.0);
    EXPECT_EQ(a + b, AxVector64(5.0, -3.0, 9.0));
    EXPECT_EQ(a - b, AxVector64(-3.0, 7.0, -3.0));
    EXPECT_EQ(2.0 * a, AxVector64(2.0, 4.0, 6.0));
    EXPECT_EQ(-a, a * -1.0);
    EXPECT_EQ(a.dot(b), 12.0);
    EXPECT_EQ(a.distSquaredTo(b), 67.0);
    EXPECT_EQ(AxVector64(2.0, 3.0, 6.0).length(), 7.0);
    AxVector64 sum = a;
    sum += b;
    sum -= a;
    sum *= 0.5;
    EXPECT_EQ(sum, AxVector64(2.0, -2.5, 3.0));
}

TEST(AxVector64, NamesItsComponents)
{
    AxVector64 vector;
    vector.setX(1.0);
    vector.setY(2.0);
    vector.setZ(3.0);
    EXPECT_EQ(vector, AxVector64(1.0, 2.0, 3.0));
    vector[1] = 4.0;
    EXPECT_EQ(vector.y(), std::as_const(vector)[1]);
}

TEST(AxTaitBryan, NamesItsAngles)
{
    AxTaitBryan angles;
    angles.setPsi(1.0);
    angles.setTheta(2.0);
    angles.setPhi(3.0);
    EXPECT_EQ(angles, AxTaitBryan(1.0, 2.0, 3.0));
    angles[0] = 4.0;
    EXPECT_EQ(angles.psi(), std::as_const(angles)[0]);
    EXPECT_NE(angles, AxTaitBryan(1.0, 2.0, 3.0));
}
