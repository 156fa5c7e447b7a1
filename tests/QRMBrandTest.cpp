// QRMBrand: a brand's key, prefix, texts and models. Brands match their
// models by identity, so a deep copy of a brand with models is another
// brand.
#include "QRMBrand.h"
#include "QRMModel.h"

#include "FieldDifferences.h"
#include "ModelBuilders.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <ostream>
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

using BrandDifference = FieldDifference<QRMBrand>;

const BrandDifference kBrandDifferences[] = {
    {"DifferentKeysMakeThemUnequal", [](QRMBrand&, QRMBrand& right) { right.SetKey("2"); }, false},
    {"KeysOfEqualValueWrittenDifferentlyAreEqual",
     [](QRMBrand& left, QRMBrand& right) {
         left.SetKey("7");
         right.SetKey("007");
     },
     true},
    {"DifferentPrefixesMakeThemUnequal", [](QRMBrand&, QRMBrand& right) { right.SetPrefix("ab"); }, false},
    {"DifferentTextsOfTheSameLanguageMakeThemUnequal",
     [](QRMBrand& left, QRMBrand& right) {
         left.AddDisplayValue("en", "Workstation");
         right.AddDisplayValue("en", "Laptop");
     },
     false},
    {"OneTextEachInDifferentLanguagesCompareEqual",
     [](QRMBrand& left, QRMBrand& right) {
         left.AddDisplayValue("en", "Workstation");
         right.AddDisplayValue("de", "Arbeitsplatz");
     },
     true},
    {"DifferentNumbersOfTextsMakeThemUnequal",
     [](QRMBrand& left, QRMBrand&) { left.AddDisplayValue("en", "Workstation"); }, false},
    {"DifferentNumbersOfModelsMakeThemUnequal", [](QRMBrand& left, QRMBrand&) { left.AddModel(MakeModel(0x10)); },
     false},
    {"BrandsEachHoldingTheirOwnModelWithTheSameIdentifiersAreUnequal",
     [](QRMBrand& left, QRMBrand& right) {
         left.AddModel(MakeModel(0x10, 2));
         right.AddModel(MakeModel(0x10, 2));
     },
     false},
    {"BrandsWhoseModelsShareNoSystemIdAreEqual",
     [](QRMBrand& left, QRMBrand& right) {
         left.AddModel(MakeModel(1));
         right.AddModel(MakeModel(2));
     },
     true},
    {"ModelsWithTheSameSystemIdButDifferentSecondIdDoNotMatch",
     [](QRMBrand& left, QRMBrand& right) {
         left.AddModel(MakeModel(0x10, 1));
         right.AddModel(MakeModel(0x10, 2));
     },
     true},
    {"ModelsMatchingInBothIdentifiersMakeBrandsUnequalWhateverTheirOtherContents",
     [](QRMBrand& left, QRMBrand& right) {
         QRMModel leftModel = MakeModel(0x10, 1);
         leftModel.SetThirdID(5);
         QRMModel rightModel = MakeModel(0x10, 1);
         rightModel.SetThirdID(6);
         rightModel.AddDisplayValue("en", "Other");
         left.AddModel(leftModel);
         right.AddModel(rightModel);
     },
     false},
};

class QRMBrandEquality : public testing::TestWithParam<BrandDifference> {};

}  // namespace

TEST(QRMBrandFields, NewBrandHasKeyZeroEmptyPrefixNoTextsAndNoModels)
{
    QRMBrand brand;
    EXPECT_EQ(0u, brand.GetKey());
    EXPECT_EQ("", U8(brand.GetPrefix()));
    EXPECT_TRUE(TextsOf(brand).empty());
    EXPECT_TRUE(ModelsOf(brand).empty());
}

TEST(QRMBrandFields, SetKeyReturnsSuccessAndStoresTheDecimalValueOfTheText)
{
    QRMBrand brand;
    EXPECT_EQ(QRM_KIT_SUCCESS, brand.SetKey("42"));
    EXPECT_EQ(42u, brand.GetKey());
    EXPECT_EQ(QRM_KIT_SUCCESS, brand.SetKey("010"));
    EXPECT_EQ(10u, brand.GetKey());
}

TEST(QRMBrandFields, SetKeyReadsDigitsUpToTheFirstNonDigit)
{
    QRMBrand brand;
    EXPECT_EQ(QRM_KIT_SUCCESS, brand.SetKey("  17abc"));
    EXPECT_EQ(17u, brand.GetKey());
    EXPECT_EQ(QRM_KIT_SUCCESS, brand.SetKey("0x1F"));
    EXPECT_EQ(0u, brand.GetKey());
}

TEST(QRMBrandFields, SetKeyOfTextWithoutANumberStoresZero)
{
    QRMBrand brand;
    brand.SetKey("5");
    EXPECT_EQ(QRM_KIT_SUCCESS, brand.SetKey("none"));
    EXPECT_EQ(0u, brand.GetKey());
    brand.SetKey("5");
    EXPECT_EQ(QRM_KIT_SUCCESS, brand.SetKey(""));
    EXPECT_EQ(0u, brand.GetKey());
}

TEST(QRMBrandFields, SetPrefixReturnsSuccessAndStoresTheText)
{
    QRMBrand brand;
    EXPECT_EQ(QRM_KIT_SUCCESS, brand.SetPrefix("XPS"));
    EXPECT_EQ("XPS", U8(brand.GetPrefix()));
}

TEST(QRMBrandFields, AddDisplayValueFollowsTheOneTextPerLanguageRule)
{
    QRMBrand brand;
    EXPECT_EQ(QRM_KIT_SUCCESS, brand.AddDisplayValue("en", "Workstation"));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, brand.AddDisplayValue("en", "Laptop"));
    EXPECT_EQ(QRM_KIT_SUCCESS, brand.AddDisplayValue("de", "Arbeitsplatz"));
    EXPECT_EQ(QRM_KIT_SUCCESS, brand.RemoveDisplayValue("de"));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, brand.RemoveDisplayValue("de"));
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Workstation"}}), TextsOf(brand));
}

TEST(QRMBrandFields, AddModelReturnsSuccessAndAppendsACopyInOrder)
{
    QRMBrand brand;
    QRMModel first = MakeModel(0x10);
    QRMModel second = MakeModel(0x20);
    EXPECT_EQ(QRM_KIT_SUCCESS, brand.AddModel(first));
    EXPECT_EQ(QRM_KIT_SUCCESS, brand.AddModel(second));
    std::vector<QRMModel*> held = ModelsOf(brand);
    ASSERT_EQ(2u, held.size());
    EXPECT_NE(&first, held[0]);
    EXPECT_EQ(0x10u, held[0]->GetSystemID());
    EXPECT_EQ(0x20u, held[1]->GetSystemID());
    first.SetSystemID(0x99);
    EXPECT_EQ(0x10u, held[0]->GetSystemID());
}

TEST(QRMBrandFields, AddModelAppendsEvenAModelWithTheSameIdentifiers)
{
    QRMBrand brand;
    QRMModel model = MakeModel(0x10);
    EXPECT_EQ(QRM_KIT_SUCCESS, brand.AddModel(model));
    EXPECT_EQ(QRM_KIT_SUCCESS, brand.AddModel(model));
    EXPECT_EQ(2u, ModelsOf(brand).size());
}

TEST(QRMBrandFields, GetModelsAppendsTheHeldPointersBehindExistingItems)
{
    QRMBrand brand;
    brand.AddModel(MakeModel(0x10));
    QRMModel outside;
    std::vector<QRMModel*> out{&outside};
    brand.GetModels(out);
    ASSERT_EQ(2u, out.size());
    EXPECT_EQ(&outside, out[0]);
    EXPECT_EQ(ModelsOf(brand)[0], out[1]);
    EXPECT_EQ(0x10u, out[1]->GetSystemID());
}

TEST_F(QRMBrandEquality, BrandsWithEqualKeyPrefixAndNoModelsAreEqual)
{
    QRMBrand a = MakeBrand("1", "AB");
    QRMBrand b = MakeBrand("1", "AB");
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
}

TEST_P(QRMBrandEquality, FieldDiffers) { ExpectDifference(GetParam(), MakeBrand("1", "AB"), MakeBrand("1", "AB")); }

INSTANTIATE_TEST_SUITE_P(, QRMBrandEquality, testing::ValuesIn(kBrandDifferences), NameOfDifference());

TEST_F(QRMBrandEquality, ABrandWithoutModelsEqualsItsDeepCopy)
{
    QRMBrand brand = MakeBrand("1", "AB");
    brand.AddDisplayValue("en", "Workstation");
    QRMBrand copy(brand);
    EXPECT_TRUE(brand == copy);
}

TEST_F(QRMBrandEquality, ABrandIsUnequalToItsDeepCopyAsSoonAsItHoldsAModel)
{
    QRMBrand brand = MakeBrand("1", "AB");
    brand.AddModel(MakeModel(0x10));
    QRMBrand copy(brand);
    EXPECT_FALSE(brand == copy);
    EXPECT_TRUE(brand != copy);
}

TEST_F(QRMBrandEquality, ABrandHoldingOneModelEqualsItself)
{
    QRMBrand brand = MakeBrand("1", "AB");
    brand.AddModel(MakeModel(0x10));
    const QRMBrand& alias = brand;
    EXPECT_TRUE(brand == alias);
}

TEST_F(QRMBrandEquality, ABrandHoldingTwoModelsWithTheSameIdentifiersIsUnequalToItself)
{
    QRMBrand brand = MakeBrand("1", "AB");
    brand.AddModel(MakeModel(0x10));
    brand.AddModel(MakeModel(0x10));
    const QRMBrand& alias = brand;
    EXPECT_FALSE(brand == alias);
}

TEST(QRMBrandCopy, CopyHoldsNewModelsWithTheSameContents)
{
    QRMBrand source = MakeBrand("1", "AB");
    source.AddDisplayValue("en", "Workstation");
    QRMModel model = MakeModel(0x10, 2);
    model.SetThirdID(3);
    model.AddDisplayValue("en", "Tower");
    source.AddModel(model);
    QRMBrand copy(source);
    EXPECT_EQ(1u, copy.GetKey());
    EXPECT_EQ("AB", U8(copy.GetPrefix()));
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Workstation"}}), TextsOf(copy));
    std::vector<QRMModel*> copied = ModelsOf(copy);
    ASSERT_EQ(1u, copied.size());
    EXPECT_NE(ModelsOf(source)[0], copied[0]);
    EXPECT_EQ(0x10u, copied[0]->GetSystemID());
    EXPECT_EQ(2u, copied[0]->GetSecondID());
    EXPECT_EQ(3u, copied[0]->GetThirdID());
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Tower"}}), TextsOf(*copied[0]));
}

TEST(QRMBrandCopy, ChangingOrDestroyingACopyLeavesTheSourceUntouched)
{
    QRMBrand source = MakeBrand("1", "AB");
    source.AddModel(MakeModel(0x10));
    {
        QRMBrand copy(source);
        ModelsOf(copy)[0]->SetSystemID(0x77);
        copy.AddModel(MakeModel(0x20));
        copy.SetPrefix("ZZ");
    }
    std::vector<QRMModel*> held = ModelsOf(source);
    ASSERT_EQ(1u, held.size());
    EXPECT_EQ(0x10u, held[0]->GetSystemID());
    EXPECT_EQ("AB", U8(source.GetPrefix()));
}

TEST(QRMBrandCopy, AssignmentReplacesKeyPrefixTextsAndModels)
{
    QRMBrand target = MakeBrand("1", "OLD");
    target.AddDisplayValue("fr", "Ancien");
    target.AddModel(MakeModel(0x01));
    target.AddModel(MakeModel(0x02));
    QRMBrand source = MakeBrand("2", "NEW");
    source.AddDisplayValue("en", "New");
    source.AddModel(MakeModel(0x30));
    target = source;
    EXPECT_EQ(2u, target.GetKey());
    EXPECT_EQ("NEW", U8(target.GetPrefix()));
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "New"}}), TextsOf(target));
    std::vector<QRMModel*> held = ModelsOf(target);
    ASSERT_EQ(1u, held.size());
    EXPECT_EQ(0x30u, held[0]->GetSystemID());
    EXPECT_NE(ModelsOf(source)[0], held[0]);
}

TEST(QRMBrandCopy, SelfAssignmentEmptiesTextsAndModelsButKeepsKeyAndPrefix)
{
    QRMBrand brand = MakeBrand("9", "AB");
    brand.AddDisplayValue("en", "Workstation");
    brand.AddModel(MakeModel(0x10));
    QRMBrand& alias = brand;
    brand = alias;
    EXPECT_EQ(9u, brand.GetKey());
    EXPECT_EQ("AB", U8(brand.GetPrefix()));
    EXPECT_TRUE(TextsOf(brand).empty());
    EXPECT_TRUE(ModelsOf(brand).empty());
}
