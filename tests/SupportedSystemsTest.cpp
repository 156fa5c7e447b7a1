// Target systems: computer models, the brands that hold them, and the list
// of brands a component or bundle supports. Brands match their models by
// identity, so a deep copy of a brand with models is another brand.
#include "QRMBrand.h"
#include "QRMModel.h"
#include "QRMSupportedSystems.h"

#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

std::string U8(const VELString& text) { return text.GetUTF8String(); }

QRMModel MakeModel(unsigned int systemID, unsigned int secondID = 0)
{
    QRMModel model;
    model.SetSystemID(systemID);
    model.SetSecondID(secondID);
    return model;
}

QRMBrand MakeBrand(const char* key, const char* prefix)
{
    QRMBrand brand;
    brand.SetKey(key);
    brand.SetPrefix(prefix);
    return brand;
}

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

std::vector<QRMBrand*> SubBrandsOf(const QRMModel& model)
{
    std::vector<QRMBrand*> brands;
    model.GetSubBrands(brands);
    return brands;
}

}  // namespace

// ---- QRMModel

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

// ---- QRMBrand: fields

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

// ---- QRMBrand: equality

TEST(QRMBrandEquality, BrandsWithEqualKeyPrefixAndNoModelsAreEqual)
{
    QRMBrand a = MakeBrand("1", "AB");
    QRMBrand b = MakeBrand("1", "AB");
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
}

TEST(QRMBrandEquality, DifferentKeysMakeThemUnequal)
{
    QRMBrand a = MakeBrand("1", "AB");
    QRMBrand b = MakeBrand("2", "AB");
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
}

TEST(QRMBrandEquality, KeysOfEqualValueWrittenDifferentlyAreEqual)
{
    QRMBrand a = MakeBrand("7", "AB");
    QRMBrand b = MakeBrand("007", "AB");
    EXPECT_TRUE(a == b);
}

TEST(QRMBrandEquality, DifferentPrefixesMakeThemUnequal)
{
    QRMBrand a = MakeBrand("1", "AB");
    QRMBrand b = MakeBrand("1", "ab");
    EXPECT_FALSE(a == b);
}

TEST(QRMBrandEquality, DifferentTextsOfTheSameLanguageMakeThemUnequal)
{
    QRMBrand a = MakeBrand("1", "AB");
    QRMBrand b = MakeBrand("1", "AB");
    a.AddDisplayValue("en", "Workstation");
    b.AddDisplayValue("en", "Laptop");
    EXPECT_FALSE(a == b);
}

TEST(QRMBrandEquality, OneTextEachInDifferentLanguagesCompareEqual)
{
    QRMBrand a = MakeBrand("1", "AB");
    QRMBrand b = MakeBrand("1", "AB");
    a.AddDisplayValue("en", "Workstation");
    b.AddDisplayValue("de", "Arbeitsplatz");
    EXPECT_TRUE(a == b);
}

TEST(QRMBrandEquality, DifferentNumbersOfTextsMakeThemUnequal)
{
    QRMBrand a = MakeBrand("1", "AB");
    QRMBrand b = MakeBrand("1", "AB");
    a.AddDisplayValue("en", "Workstation");
    EXPECT_FALSE(a == b);
}

TEST(QRMBrandEquality, DifferentNumbersOfModelsMakeThemUnequal)
{
    QRMBrand a = MakeBrand("1", "AB");
    QRMBrand b = MakeBrand("1", "AB");
    a.AddModel(MakeModel(0x10));
    EXPECT_FALSE(a == b);
    EXPECT_FALSE(b == a);
}

TEST(QRMBrandEquality, ABrandWithoutModelsEqualsItsDeepCopy)
{
    QRMBrand brand = MakeBrand("1", "AB");
    brand.AddDisplayValue("en", "Workstation");
    QRMBrand copy(brand);
    EXPECT_TRUE(brand == copy);
}

TEST(QRMBrandEquality, ABrandIsUnequalToItsDeepCopyAsSoonAsItHoldsAModel)
{
    QRMBrand brand = MakeBrand("1", "AB");
    brand.AddModel(MakeModel(0x10));
    QRMBrand copy(brand);
    EXPECT_FALSE(brand == copy);
    EXPECT_TRUE(brand != copy);
}

TEST(QRMBrandEquality, BrandsEachHoldingTheirOwnModelWithTheSameIdentifiersAreUnequal)
{
    QRMBrand a = MakeBrand("1", "AB");
    QRMBrand b = MakeBrand("1", "AB");
    a.AddModel(MakeModel(0x10, 2));
    b.AddModel(MakeModel(0x10, 2));
    EXPECT_FALSE(a == b);
}

TEST(QRMBrandEquality, BrandsWhoseModelsShareNoSystemIdAreEqual)
{
    QRMBrand a = MakeBrand("1", "AB");
    QRMBrand b = MakeBrand("1", "AB");
    a.AddModel(MakeModel(1));
    b.AddModel(MakeModel(2));
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
}

TEST(QRMBrandEquality, ModelsWithTheSameSystemIdButDifferentSecondIdDoNotMatch)
{
    QRMBrand a = MakeBrand("1", "AB");
    QRMBrand b = MakeBrand("1", "AB");
    a.AddModel(MakeModel(0x10, 1));
    b.AddModel(MakeModel(0x10, 2));
    EXPECT_TRUE(a == b);
}

TEST(QRMBrandEquality, ModelsMatchingInBothIdentifiersMakeBrandsUnequalWhateverTheirOtherContents)
{
    QRMBrand a = MakeBrand("1", "AB");
    QRMBrand b = MakeBrand("1", "AB");
    QRMModel left = MakeModel(0x10, 1);
    left.SetThirdID(5);
    QRMModel right = MakeModel(0x10, 1);
    right.SetThirdID(6);
    right.AddDisplayValue("en", "Other");
    a.AddModel(left);
    b.AddModel(right);
    EXPECT_FALSE(a == b);
}

TEST(QRMBrandEquality, ABrandHoldingOneModelEqualsItself)
{
    QRMBrand brand = MakeBrand("1", "AB");
    brand.AddModel(MakeModel(0x10));
    const QRMBrand& alias = brand;
    EXPECT_TRUE(brand == alias);
}

TEST(QRMBrandEquality, ABrandHoldingTwoModelsWithTheSameIdentifiersIsUnequalToItself)
{
    QRMBrand brand = MakeBrand("1", "AB");
    brand.AddModel(MakeModel(0x10));
    brand.AddModel(MakeModel(0x10));
    const QRMBrand& alias = brand;
    EXPECT_FALSE(brand == alias);
}

// ---- QRMBrand: copying and assignment

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

// ---- QRMSupportedSystems

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
