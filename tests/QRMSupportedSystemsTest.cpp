// QRMSupportedSystems: the list of brands a component or bundle supports,
// with its display flag. Brands match their models by identity, so lists
// whose brands hold models compare unequal even to their copies.
#include "QRMSupportedSystems.h"
#include "QRMBrand.h"
#include "QRMModel.h"

#include "ModelBuilders.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using builders::MakeBrand;
using builders::MakeModel;
using builders::U8;

namespace {

std::vector<QRMModel*> ModelsOf(const QRMBrand& brand)
{
    std::vector<QRMModel*> models;
    brand.GetModels(models);
    return models;
}

std::vector<QRMBrand*> BrandsOf(const QRMSupportedSystems& systems)
{
    std::vector<QRMBrand*> brands;
    systems.GetBrands(brands);
    return brands;
}

}  // namespace

TEST(QRMSupportedSystems, NewListHasDisplayOffAndNoBrands)
{
    QRMSupportedSystems systems;
    EXPECT_FALSE(systems.GetDisplay());
    EXPECT_TRUE(BrandsOf(systems).empty());
}

TEST(QRMSupportedSystems, SetDisplayReturnsSuccessAndStoresTheFlag)
{
    QRMSupportedSystems systems;
    EXPECT_EQ(QRM_KIT_SUCCESS, systems.SetDisplay(true));
    EXPECT_TRUE(systems.GetDisplay());
    EXPECT_EQ(QRM_KIT_SUCCESS, systems.SetDisplay(false));
    EXPECT_FALSE(systems.GetDisplay());
}

TEST(QRMSupportedSystems, AddBrandReturnsSuccessAndAppendsACopyInOrder)
{
    QRMSupportedSystems systems;
    QRMBrand first = MakeBrand("1", "AB");
    QRMBrand second = MakeBrand("2", "CD");
    EXPECT_EQ(QRM_KIT_SUCCESS, systems.AddBrand(first));
    EXPECT_EQ(QRM_KIT_SUCCESS, systems.AddBrand(second));
    std::vector<QRMBrand*> held = BrandsOf(systems);
    ASSERT_EQ(2u, held.size());
    EXPECT_NE(&first, held[0]);
    EXPECT_EQ(1u, held[0]->GetKey());
    EXPECT_EQ("CD", U8(held[1]->GetPrefix()));
    first.SetPrefix("CHANGED");
    EXPECT_EQ("AB", U8(held[0]->GetPrefix()));
}

TEST(QRMSupportedSystems, AddBrandOfAnEqualBrandWithoutModelsReturnsAlreadyExists)
{
    QRMSupportedSystems systems;
    ASSERT_EQ(QRM_KIT_SUCCESS, systems.AddBrand(MakeBrand("1", "AB")));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, systems.AddBrand(MakeBrand("1", "AB")));
    EXPECT_EQ(1u, BrandsOf(systems).size());
}

TEST(QRMSupportedSystems, AddBrandOfABrandWithAnotherPrefixIsAccepted)
{
    QRMSupportedSystems systems;
    ASSERT_EQ(QRM_KIT_SUCCESS, systems.AddBrand(MakeBrand("1", "AB")));
    EXPECT_EQ(QRM_KIT_SUCCESS, systems.AddBrand(MakeBrand("1", "AC")));
    EXPECT_EQ(2u, BrandsOf(systems).size());
}

TEST(QRMSupportedSystems, AddBrandOfACopyOfAHeldBrandWithAModelIsAccepted)
{
    QRMSupportedSystems systems;
    QRMBrand brand = MakeBrand("1", "AB");
    brand.AddModel(MakeModel(0x10));
    ASSERT_EQ(QRM_KIT_SUCCESS, systems.AddBrand(brand));
    QRMBrand copyOfHeld(*BrandsOf(systems)[0]);
    EXPECT_EQ(QRM_KIT_SUCCESS, systems.AddBrand(copyOfHeld));
    EXPECT_EQ(QRM_KIT_SUCCESS, systems.AddBrand(brand));
    EXPECT_EQ(3u, BrandsOf(systems).size());
}

TEST(QRMSupportedSystems, GetBrandsAppendsTheHeldPointersBehindExistingItems)
{
    QRMSupportedSystems systems;
    systems.AddBrand(MakeBrand("1", "AB"));
    QRMBrand outside;
    std::vector<QRMBrand*> out{&outside};
    systems.GetBrands(out);
    ASSERT_EQ(2u, out.size());
    EXPECT_EQ(&outside, out[0]);
    EXPECT_EQ(BrandsOf(systems)[0], out[1]);
    EXPECT_EQ(1u, out[1]->GetKey());
}

TEST(QRMSupportedSystems, TwoNewListsAreEqual)
{
    QRMSupportedSystems a;
    QRMSupportedSystems b;
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
}

TEST(QRMSupportedSystems, DifferentDisplayFlagsMakeThemUnequal)
{
    QRMSupportedSystems a;
    QRMSupportedSystems b;
    b.SetDisplay(true);
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
}

TEST(QRMSupportedSystems, DifferentDisplayFlagsMakeThemUnequalEvenWithEqualBrands)
{
    QRMSupportedSystems a;
    QRMSupportedSystems b;
    a.AddBrand(MakeBrand("1", "AB"));
    b.AddBrand(MakeBrand("1", "AB"));
    a.SetDisplay(true);
    EXPECT_FALSE(a == b);
}

TEST(QRMSupportedSystems, ListsEachHoldingAnEqualBrandAreEqual)
{
    QRMSupportedSystems a;
    QRMSupportedSystems b;
    a.SetDisplay(true);
    b.SetDisplay(true);
    a.AddBrand(MakeBrand("1", "AB"));
    b.AddBrand(MakeBrand("1", "AB"));
    EXPECT_TRUE(a == b);
}

TEST(QRMSupportedSystems, ListsOfDifferentLengthsAreUnequal)
{
    QRMSupportedSystems a;
    QRMSupportedSystems b;
    a.AddBrand(MakeBrand("1", "AB"));
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(b == a);
}

TEST(QRMSupportedSystems, ListsEachHoldingADifferentBrandAreUnequal)
{
    QRMSupportedSystems a;
    QRMSupportedSystems b;
    a.AddBrand(MakeBrand("1", "AB"));
    b.AddBrand(MakeBrand("2", "AB"));
    EXPECT_FALSE(a == b);
}

TEST(QRMSupportedSystems, ListsEachHoldingTheSameTwoDifferentBrandsAreUnequal)
{
    QRMSupportedSystems a;
    QRMSupportedSystems b;
    a.AddBrand(MakeBrand("1", "AB"));
    a.AddBrand(MakeBrand("2", "CD"));
    b.AddBrand(MakeBrand("1", "AB"));
    b.AddBrand(MakeBrand("2", "CD"));
    EXPECT_FALSE(a == b);
    const QRMSupportedSystems& alias = a;
    EXPECT_FALSE(a == alias);
}

TEST(QRMSupportedSystems, ListsEachHoldingABrandWithAModelOfTheSameIdentifiersAreUnequal)
{
    QRMSupportedSystems a;
    QRMSupportedSystems b;
    QRMBrand brand = MakeBrand("1", "AB");
    brand.AddModel(MakeModel(0x10));
    a.AddBrand(brand);
    b.AddBrand(brand);
    EXPECT_FALSE(a == b);
}

TEST(QRMSupportedSystems, ListsWhoseBrandsHoldModelsOfDifferentSystemIdsAreEqual)
{
    QRMSupportedSystems a;
    QRMSupportedSystems b;
    QRMBrand left = MakeBrand("1", "AB");
    left.AddModel(MakeModel(1));
    QRMBrand right = MakeBrand("1", "AB");
    right.AddModel(MakeModel(2));
    a.AddBrand(left);
    b.AddBrand(right);
    EXPECT_TRUE(a == b);
}

TEST(QRMSupportedSystems, CopyCarriesTheFlagAndNewCopiesOfTheBrands)
{
    QRMSupportedSystems source;
    source.SetDisplay(true);
    source.AddBrand(MakeBrand("1", "AB"));
    QRMSupportedSystems copy(source);
    EXPECT_TRUE(copy.GetDisplay());
    std::vector<QRMBrand*> copied = BrandsOf(copy);
    ASSERT_EQ(1u, copied.size());
    EXPECT_NE(BrandsOf(source)[0], copied[0]);
    EXPECT_EQ(1u, copied[0]->GetKey());
    EXPECT_EQ("AB", U8(copied[0]->GetPrefix()));
    EXPECT_TRUE(copy == source);
}

TEST(QRMSupportedSystems, ACopyOfAListWhoseBrandHoldsAModelIsUnequalToTheSource)
{
    QRMSupportedSystems source;
    QRMBrand brand = MakeBrand("1", "AB");
    brand.AddModel(MakeModel(0x10));
    source.AddBrand(brand);
    QRMSupportedSystems copy(source);
    EXPECT_FALSE(copy == source);
    std::vector<QRMModel*> models = ModelsOf(*BrandsOf(copy)[0]);
    ASSERT_EQ(1u, models.size());
    EXPECT_EQ(0x10u, models[0]->GetSystemID());
    EXPECT_NE(ModelsOf(*BrandsOf(source)[0])[0], models[0]);
}

TEST(QRMSupportedSystems, ChangingOrDestroyingACopyLeavesTheSourceUntouched)
{
    QRMSupportedSystems source;
    source.AddBrand(MakeBrand("1", "AB"));
    {
        QRMSupportedSystems copy(source);
        BrandsOf(copy)[0]->SetPrefix("ZZ");
        copy.AddBrand(MakeBrand("2", "CD"));
        copy.SetDisplay(true);
    }
    std::vector<QRMBrand*> held = BrandsOf(source);
    ASSERT_EQ(1u, held.size());
    EXPECT_EQ("AB", U8(held[0]->GetPrefix()));
    EXPECT_FALSE(source.GetDisplay());
}

TEST(QRMSupportedSystems, AssignmentReplacesTheFlagAndTheBrands)
{
    QRMSupportedSystems target;
    target.AddBrand(MakeBrand("1", "OLD"));
    target.AddBrand(MakeBrand("2", "OLD"));
    QRMSupportedSystems source;
    source.SetDisplay(true);
    source.AddBrand(MakeBrand("3", "NEW"));
    target = source;
    EXPECT_TRUE(target.GetDisplay());
    std::vector<QRMBrand*> held = BrandsOf(target);
    ASSERT_EQ(1u, held.size());
    EXPECT_EQ(3u, held[0]->GetKey());
    EXPECT_NE(BrandsOf(source)[0], held[0]);
}

TEST(QRMSupportedSystems, SelfAssignmentEmptiesTheBrandsButKeepsTheFlag)
{
    QRMSupportedSystems systems;
    systems.SetDisplay(true);
    systems.AddBrand(MakeBrand("1", "AB"));
    QRMSupportedSystems& alias = systems;
    systems = alias;
    EXPECT_TRUE(systems.GetDisplay());
    EXPECT_TRUE(BrandsOf(systems).empty());
}
