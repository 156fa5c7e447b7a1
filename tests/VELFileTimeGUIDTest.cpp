// The file, time and GUID values of the base layer.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>

TEST(VELFile, DefaultHasEmptyPathAndDoesNotExist)
{
    VELFile file;
    EXPECT_TRUE(file.GetPath().IsEmpty());
    EXPECT_FALSE(file.Exists());
}

TEST(VELFile, ExistsForARegularFile)
{
    TempDir dir;
    std::string path = dir.Write("catalog.xml", "<Manifest/>");
    EXPECT_TRUE(VELFile(path).Exists());
    EXPECT_TRUE(VELFile(path.c_str()).Exists());
    EXPECT_TRUE(VELFile(VELString(path.c_str())).Exists());
}

TEST(VELFile, ExistsForAnEmptyRegularFile)
{
    TempDir dir;
    EXPECT_TRUE(VELFile(dir.Write("empty.xml", "")).Exists());
}

TEST(VELFile, DoesNotExistForAMissingPath)
{
    TempDir dir;
    EXPECT_FALSE(VELFile(dir.PathOf("missing.xml")).Exists());
    EXPECT_FALSE(VELFile(dir.PathOf("no/such/dir/file.xml")).Exists());
}

TEST(VELFile, DoesNotExistForADirectory)
{
    TempDir dir;
    dir.Write("sub/inner.xml", "<a/>");
    EXPECT_FALSE(VELFile(dir.Path()).Exists());
    EXPECT_FALSE(VELFile(dir.PathOf("sub")).Exists());
}

TEST(VELFile, ExistsForANonASCIIFileName)
{
    TempDir dir;
    std::string path = dir.Write("katalog-\xC3\xA9t\xC3\xA9.xml", "<a/>");
    EXPECT_TRUE(VELFile(path).Exists());
    EXPECT_TRUE(VELFile(VELString(path.c_str())).Exists());
}

TEST(VELFile, EveryConstructorKeepsThePath)
{
    const std::string path = "/some/where/catalog.xml";
    EXPECT_EQ(VELString(path.c_str()), VELFile(path).GetPath());
    EXPECT_EQ(VELString(path.c_str()), VELFile(path.c_str()).GetPath());
    EXPECT_EQ(VELString(path.c_str()), VELFile(VELString(path.c_str())).GetPath());
}

TEST(VELFile, CopyAndAssignmentKeepThePath)
{
    TempDir dir;
    std::string path = dir.Write("a.xml", "<a/>");
    VELFile original(path);
    VELFile copy(original);
    VELFile assigned;
    assigned = original;
    EXPECT_EQ(original.GetPath(), copy.GetPath());
    EXPECT_EQ(original.GetPath(), assigned.GetPath());
    EXPECT_TRUE(copy.Exists());
    EXPECT_TRUE(assigned.Exists());
    assigned = VELFile(dir.PathOf("b.xml"));
    EXPECT_EQ(VELString(path.c_str()), original.GetPath());
    EXPECT_FALSE(assigned.Exists());
}

TEST(VELFile, PathWithEmbeddedNulDoesNotExist)
{
    TempDir dir;
    std::string path = dir.Write("a.xml", "<a/>");
    std::u16string units = VELString(path.c_str()).GetUTF16String();
    units.push_back(0);
    units += u"tail";
    EXPECT_FALSE(VELFile(VELString(units)).Exists());
}

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
