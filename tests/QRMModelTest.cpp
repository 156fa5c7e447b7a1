// QRMModel: a computer model's identifiers, its texts and the sub-brands it
// holds; copies are deep.
#include "QRMModel.h"
#include "QRMBrand.h"

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

std::vector<QRMBrand*> SubBrandsOf(const QRMModel& model)
{
    std::vector<QRMBrand*> brands;
    model.GetSubBrands(brands);
    return brands;
}

}  // namespace

TEST(QRMModel, NewModelHasZeroIdentifiersNoTextsAndNoSubBrands)
{
    QRMModel model;
    EXPECT_EQ(0u, model.GetSystemID());
    EXPECT_EQ(0u, model.GetSecondID());
    EXPECT_EQ(0u, model.GetThirdID());
    EXPECT_TRUE(TextsOf(model).empty());
    EXPECT_TRUE(SubBrandsOf(model).empty());
}

TEST(QRMModel, SettersReturnSuccessAndStoreTheIdentifiers)
{
    QRMModel model;
    EXPECT_EQ(QRM_KIT_SUCCESS, model.SetSystemID(0x04A3u));
    EXPECT_EQ(QRM_KIT_SUCCESS, model.SetSecondID(7u));
    EXPECT_EQ(QRM_KIT_SUCCESS, model.SetThirdID(0xFFFFFFFFu));
    EXPECT_EQ(0x04A3u, model.GetSystemID());
    EXPECT_EQ(7u, model.GetSecondID());
    EXPECT_EQ(0xFFFFFFFFu, model.GetThirdID());
}

TEST(QRMModel, AddDisplayValueFollowsTheOneTextPerLanguageRule)
{
    QRMModel model;
    EXPECT_EQ(QRM_KIT_SUCCESS, model.AddDisplayValue("en", "Tower 7"));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, model.AddDisplayValue("en", "Tower 8"));
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Tower 7"}}), TextsOf(model));
}

TEST(QRMModel, AddSubBrandStoresACopyAndRefusesAnEqualBrand)
{
    QRMModel model;
    QRMBrand brand = MakeBrand("3", "AB");
    EXPECT_EQ(QRM_KIT_SUCCESS, model.AddSubBrand(brand));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, model.AddSubBrand(MakeBrand("3", "AB")));
    EXPECT_EQ(QRM_KIT_SUCCESS, model.AddSubBrand(MakeBrand("4", "AB")));
    std::vector<QRMBrand*> held = SubBrandsOf(model);
    ASSERT_EQ(2u, held.size());
    EXPECT_NE(&brand, held[0]);
    EXPECT_EQ(3u, held[0]->GetKey());
    EXPECT_EQ(4u, held[1]->GetKey());
}

TEST(QRMModel, GetSubBrandsAppendsTheHeldPointersBehindExistingItems)
{
    QRMModel model;
    model.AddSubBrand(MakeBrand("3", "AB"));
    QRMBrand outside;
    std::vector<QRMBrand*> out{&outside};
    model.GetSubBrands(out);
    ASSERT_EQ(2u, out.size());
    EXPECT_EQ(&outside, out[0]);
    EXPECT_EQ(SubBrandsOf(model)[0], out[1]);
    EXPECT_EQ(3u, out[1]->GetKey());
}

TEST(QRMModel, CopyDeepCopiesIdentifiersTextsAndSubBrands)
{
    QRMModel source = MakeModel(0x10, 2);
    source.SetThirdID(9);
    source.AddDisplayValue("en", "Tower");
    source.AddSubBrand(MakeBrand("3", "AB"));
    QRMModel copy(source);
    EXPECT_EQ(0x10u, copy.GetSystemID());
    EXPECT_EQ(2u, copy.GetSecondID());
    EXPECT_EQ(9u, copy.GetThirdID());
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Tower"}}), TextsOf(copy));
    std::vector<QRMBrand*> copied = SubBrandsOf(copy);
    std::vector<QRMBrand*> original = SubBrandsOf(source);
    ASSERT_EQ(1u, copied.size());
    ASSERT_EQ(1u, original.size());
    EXPECT_NE(original[0], copied[0]);
    EXPECT_EQ(3u, copied[0]->GetKey());
    EXPECT_EQ("AB", U8(copied[0]->GetPrefix()));
}

TEST(QRMModel, ChangingACopiedSubBrandLeavesTheSourceUntouched)
{
    QRMModel source = MakeModel(0x10);
    source.AddSubBrand(MakeBrand("3", "AB"));
    {
        QRMModel copy(source);
        SubBrandsOf(copy)[0]->SetPrefix("ZZ");
        copy.AddSubBrand(MakeBrand("5", "CD"));
    }
    std::vector<QRMBrand*> held = SubBrandsOf(source);
    ASSERT_EQ(1u, held.size());
    EXPECT_EQ("AB", U8(held[0]->GetPrefix()));
}

TEST(QRMModel, AssignmentReplacesIdentifiersTextsAndSubBrands)
{
    QRMModel target = MakeModel(1, 1);
    target.AddDisplayValue("fr", "Ancien");
    target.AddSubBrand(MakeBrand("1", "OLD"));
    QRMModel source = MakeModel(2, 3);
    source.SetThirdID(4);
    source.AddDisplayValue("en", "New");
    source.AddSubBrand(MakeBrand("2", "NEW"));
    target = source;
    EXPECT_EQ(2u, target.GetSystemID());
    EXPECT_EQ(3u, target.GetSecondID());
    EXPECT_EQ(4u, target.GetThirdID());
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "New"}}), TextsOf(target));
    std::vector<QRMBrand*> held = SubBrandsOf(target);
    ASSERT_EQ(1u, held.size());
    EXPECT_EQ("NEW", U8(held[0]->GetPrefix()));
    EXPECT_NE(SubBrandsOf(source)[0], held[0]);
}

TEST(QRMModel, SelfAssignmentEmptiesTextsAndSubBrandsButKeepsIdentifiers)
{
    QRMModel model = MakeModel(5, 6);
    model.SetThirdID(7);
    model.AddDisplayValue("en", "Tower");
    model.AddSubBrand(MakeBrand("1", "AB"));
    QRMModel& alias = model;
    model = alias;
    EXPECT_EQ(5u, model.GetSystemID());
    EXPECT_EQ(6u, model.GetSecondID());
    EXPECT_EQ(7u, model.GetThirdID());
    EXPECT_TRUE(TextsOf(model).empty());
    EXPECT_TRUE(SubBrandsOf(model).empty());
}
