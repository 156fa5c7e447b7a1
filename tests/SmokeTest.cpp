#include "TestSupport.h"

#include <gtest/gtest.h>

TEST(Smoke, InstanceIsASingleton)
{
    EXPECT_EQ(QRMKitAPI::Instance(), QRMKitAPI::Instance());
}
