// VELGUID: sixteen bytes, nil by default.
#include "TestSupport.h"

#include <gtest/gtest.h>

TEST(VELGUID, DefaultIsNil)
{
    VELGUID guid;
    EXPECT_TRUE(guid.IsNil());
    EXPECT_EQ(VELGUID::Bytes{}, guid.GetBytes());
}

TEST(VELGUID, BytesAreKeptAndNotNil)
{
    VELGUID::Bytes bytes = {0x12, 0x34, 0x56, 0x78, 0x9a, 0xbc, 0xde, 0xf0,
                            0x01, 0x23, 0x45, 0x67, 0x89, 0xab, 0xcd, 0xef};
    VELGUID guid(bytes);
    EXPECT_FALSE(guid.IsNil());
    EXPECT_EQ(bytes, guid.GetBytes());
    VELGUID copy(guid);
    VELGUID assigned;
    assigned = guid;
    EXPECT_EQ(bytes, copy.GetBytes());
    EXPECT_EQ(bytes, assigned.GetBytes());
}

TEST(VELGUID, EqualityComparesAllBytes)
{
    VELGUID::Bytes bytes{};
    bytes[15] = 1;
    VELGUID last(bytes);
    bytes[15] = 0;
    bytes[0] = 1;
    VELGUID first(bytes);
    EXPECT_TRUE(VELGUID() == VELGUID());
    EXPECT_FALSE(VELGUID() != VELGUID());
    EXPECT_TRUE(last != VELGUID());
    EXPECT_TRUE(first != last);
    EXPECT_FALSE(first == last);
    EXPECT_TRUE(first == VELGUID(bytes));
    EXPECT_FALSE(first != VELGUID(bytes));
}
