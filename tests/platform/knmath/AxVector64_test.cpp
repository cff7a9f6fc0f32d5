#include "AxVector64.h"

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
