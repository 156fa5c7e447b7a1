// The fields a dependency holds, and a soft dependency holds in the same
// way: QRMDependency and QRMSoftDependency both run every test here.
#include "QRMDependency.h"
#include "QRMPCIInfo.h"
#include "QRMPnPInfo.h"
#include "QRMSoftDependency.h"

#include "ModelBuilders.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using builders::MakeGUID;
using builders::MakePCI;
using builders::MakePnP;
using builders::U8;

namespace {

// For a dependency or a soft dependency.
template <class Dependency>
std::vector<QRMPCIInfo> PCIOf(const Dependency& dependency)
{
    std::vector<QRMPCIInfo> out;
    dependency.GetPCIInfo(out);
    return out;
}

template <class Dependency>
std::vector<QRMPnPInfo> PnPOf(const Dependency& dependency)
{
    std::vector<QRMPnPInfo> out;
    dependency.GetPnPInfo(out);
    return out;
}

}  // namespace

// The fields a dependency holds, and a soft dependency holds in the same
// way: both classes run every test of this suite.
template <class Dependency>
class DependencyFields : public ::testing::Test {};
using DependencyClasses = ::testing::Types<QRMDependency, QRMSoftDependency>;
TYPED_TEST_SUITE(DependencyFields, DependencyClasses);

TYPED_TEST(DependencyFields, NewDependencyHasZeroNumbersEmptyTextsNilIdentifierAndEmptyLists)
{
    TypeParam dependency;
    EXPECT_EQ(0u, dependency.GetType());
    EXPECT_EQ("", U8(dependency.GetName()));
    EXPECT_EQ("", U8(dependency.GetVersion()));
    EXPECT_TRUE(dependency.GetIdentifier().IsNil());
    EXPECT_EQ("", U8(dependency.GetPath()));
    EXPECT_EQ(0ULL, dependency.GetSize());
    EXPECT_EQ(0u, dependency.GetFlags());
    EXPECT_TRUE(TextsOf(dependency).empty());
    EXPECT_TRUE(PCIOf(dependency).empty());
    EXPECT_TRUE(PnPOf(dependency).empty());
}

TYPED_TEST(DependencyFields, SettersReturnSuccessAndStoreEveryField)
{
    TypeParam dependency;
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.SetType(3));
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.SetName("Runtime"));
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.SetVersion("4.5"));
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.SetIdentifier(MakeGUID(9)));
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.SetPath("deps/runtime.exe"));
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.SetSize(0x100000000ULL));
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.SetFlags(6));
    EXPECT_EQ(3u, dependency.GetType());
    EXPECT_EQ("Runtime", U8(dependency.GetName()));
    EXPECT_EQ("4.5", U8(dependency.GetVersion()));
    EXPECT_TRUE(dependency.GetIdentifier() == MakeGUID(9));
    EXPECT_EQ("deps/runtime.exe", U8(dependency.GetPath()));
    EXPECT_EQ(0x100000000ULL, dependency.GetSize());
    EXPECT_EQ(6u, dependency.GetFlags());
}

TYPED_TEST(DependencyFields, AddPCIInfoReturnsSuccessThenAlreadyExistsAndGetPCIInfoAppendsCopies)
{
    TypeParam dependency;
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.AddPCIInfo(MakePCI(1, 2, 3, 4)));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, dependency.AddPCIInfo(MakePCI(1, 2, 3, 4)));
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.AddPCIInfo(MakePCI(1, 2, 3, 5)));
    std::vector<QRMPCIInfo> out(1, MakePCI(9, 9, 9, 9));
    dependency.GetPCIInfo(out);
    ASSERT_EQ(3u, out.size());
    EXPECT_TRUE(out[0] == MakePCI(9, 9, 9, 9));
    EXPECT_TRUE(out[1] == MakePCI(1, 2, 3, 4));
    EXPECT_TRUE(out[2] == MakePCI(1, 2, 3, 5));
}

TYPED_TEST(DependencyFields, AddPnPInfoReturnsSuccessThenAlreadyExistsAndGetPnPInfoAppendsCopies)
{
    TypeParam dependency;
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.AddPnPInfo(MakePnP(1)));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, dependency.AddPnPInfo(MakePnP(1)));
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.AddPnPInfo(MakePnP(2)));
    std::vector<QRMPnPInfo> out(1, QRMPnPInfo());
    dependency.GetPnPInfo(out);
    ASSERT_EQ(3u, out.size());
    EXPECT_TRUE(out[0] == QRMPnPInfo());
    EXPECT_TRUE(out[1] == MakePnP(1));
    EXPECT_TRUE(out[2] == MakePnP(2));
}

TYPED_TEST(DependencyFields, DisplayValuesFollowTheOneTextPerLanguageRule)
{
    TypeParam dependency;
    EXPECT_EQ(QRM_KIT_SUCCESS, dependency.AddDisplayValue("en", "Runtime"));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, dependency.AddDisplayValue("en", "Other"));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, dependency.RemoveDisplayValue("de"));
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Runtime"}}), TextsOf(dependency));
}
