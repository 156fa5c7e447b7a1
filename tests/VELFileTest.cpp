// VELFile: a path, and whether a regular file is there.
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
