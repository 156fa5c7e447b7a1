// VELTime: a 64-bit count of seconds.
#include "TestSupport.h"

#include <gtest/gtest.h>

TEST(VELTime, DefaultIsZero) { EXPECT_EQ(0ull, VELTime().GetValue()); }

TEST(VELTime, KeepsTheFullSixtyFourBitValue)
{
    EXPECT_EQ(1763683200ull, VELTime(1763683200ull).GetValue());
    EXPECT_EQ(18446744073709551615ull, VELTime(18446744073709551615ull).GetValue());
    VELTime original(42);
    VELTime copy(original);
    VELTime assigned;
    assigned = original;
    EXPECT_EQ(42ull, copy.GetValue());
    EXPECT_EQ(42ull, assigned.GetValue());
}

TEST(VELTime, EqualityFollowsTheValue)
{
    EXPECT_TRUE(VELTime(5) == VELTime(5));
    EXPECT_FALSE(VELTime(5) != VELTime(5));
    EXPECT_TRUE(VELTime(5) != VELTime(6));
    EXPECT_FALSE(VELTime(5) == VELTime(6));
    EXPECT_TRUE(VELTime() == VELTime(0));
    EXPECT_TRUE(VELTime(0) != VELTime(1ull << 32));
}
