// What the individual display-value holders add to the shared rule: the held
// objects a name hands out, the code, URL, enumerated value and install texts
// and how they take part in equality, and memory safety of the removal order.
#include "QRMCategory.h"
#include "QRMComponentType.h"
#include "QRMCriticality.h"
#include "QRMImportantInfo.h"
#include "QRMInstallInstruction.h"
#include "QRMLUCategory.h"
#include "QRMName.h"
#include "QRMRevisionHistory.h"

#include "TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

typedef std::vector<std::pair<std::string, std::string>> Texts;

std::vector<QRMDisplay*> PointersOf(const QRMName& name)
{
    std::vector<QRMDisplay*> pointers;
    name.GetDisplayValues(pointers);
    return pointers;
}

std::string LanguageOf(const QRMDisplay* display) { return display->GetLanguage().GetUTF8String(); }
std::string ValueOf(const QRMDisplay* display) { return display->GetValue().GetUTF8String(); }

template <class Holder>
void AddTexts(Holder& holder, const Texts& texts)
{
    for (const auto& text : texts) {
        ASSERT_EQ(QRM_KIT_SUCCESS,
                  holder.AddDisplayValue(VELString(text.first.c_str()), VELString(text.second.c_str())));
    }
}

}  // namespace

// ====================================================================== QRMName

TEST(QRMNameDisplayPointers, NewNameHandsOutNoPointers)
{
    QRMName name;
    EXPECT_TRUE(PointersOf(name).empty());
}

TEST(QRMNameDisplayPointers, HandsOutTheHeldObjectsInOrder)
{
    QRMName name;
    AddTexts(name, {{"en", "A"}, {"fr", "B"}, {"de", "C"}});
    std::vector<QRMDisplay*> pointers = PointersOf(name);
    ASSERT_EQ(3u, pointers.size());
    EXPECT_EQ("en", LanguageOf(pointers[0]));
    EXPECT_EQ("A", ValueOf(pointers[0]));
    EXPECT_EQ("fr", LanguageOf(pointers[1]));
    EXPECT_EQ("B", ValueOf(pointers[1]));
    EXPECT_EQ("de", LanguageOf(pointers[2]));
    EXPECT_EQ("C", ValueOf(pointers[2]));
    EXPECT_NE(pointers[0], pointers[1]);
    EXPECT_NE(pointers[1], pointers[2]);
}

TEST(QRMNameDisplayPointers, CallingTwiceAppendsEachPointerTwice)
{
    QRMName name;
    AddTexts(name, {{"en", "A"}, {"fr", "B"}});
    std::vector<QRMDisplay*> pointers;
    name.GetDisplayValues(pointers);
    name.GetDisplayValues(pointers);
    ASSERT_EQ(4u, pointers.size());
    EXPECT_EQ(pointers[0], pointers[2]);
    EXPECT_EQ(pointers[1], pointers[3]);
    EXPECT_NE(pointers[0], pointers[1]);
}

TEST(QRMNameDisplayPointers, ExistingPointersStayInFront)
{
    QRMName name;
    AddTexts(name, {{"en", "A"}});
    QRMDisplay own(VELString("xx"), VELString("mine"));
    std::vector<QRMDisplay*> pointers{&own};
    name.GetDisplayValues(pointers);
    ASSERT_EQ(2u, pointers.size());
    EXPECT_EQ(&own, pointers[0]);
    EXPECT_EQ("en", LanguageOf(pointers[1]));
    EXPECT_EQ("mine", ValueOf(&own));
}

TEST(QRMNameDisplayPointers, ChangesThroughAPointerShowInTheName)
{
    QRMName name;
    AddTexts(name, {{"en", "A"}});
    std::vector<QRMDisplay*> pointers = PointersOf(name);
    ASSERT_EQ(1u, pointers.size());
    EXPECT_EQ(QRM_KIT_SUCCESS, pointers[0]->SetValue(VELString("Changed")));
    EXPECT_EQ((Texts{{"en", "Changed"}}), TextsOf(name));
}

TEST(QRMNameDisplayPointers, PointersStayTheSameWhenMoreTextsAreAdded)
{
    QRMName name;
    AddTexts(name, {{"en", "A"}, {"fr", "B"}});
    std::vector<QRMDisplay*> before = PointersOf(name);
    AddTexts(name, {{"de", "C"}, {"it", "D"}, {"es", "E"}, {"ja", "F"}, {"hi", "G"}});
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, name.AddDisplayValue(VELString("en"), VELString("Z")));
    std::vector<QRMDisplay*> after = PointersOf(name);
    ASSERT_EQ(7u, after.size());
    EXPECT_EQ(before[0], after[0]);
    EXPECT_EQ(before[1], after[1]);
    EXPECT_EQ("A", ValueOf(after[0]));
}

TEST(QRMNameDisplayPointers, RemovingTheFirstOfTwoKeepsTheSecondPointerAndClearsIt)
{
    QRMName name;
    AddTexts(name, {{"en", "A"}, {"fr", "B"}});
    std::vector<QRMDisplay*> before = PointersOf(name);
    ASSERT_EQ(2u, before.size());

    EXPECT_EQ(QRM_KIT_SUCCESS, name.RemoveDisplayValue(VELString("en")));
    std::vector<QRMDisplay*> after = PointersOf(name);
    ASSERT_EQ(1u, after.size());
    EXPECT_EQ(before[1], after[0]);
    EXPECT_EQ("", LanguageOf(after[0]));
    EXPECT_EQ("", ValueOf(after[0]));
}

TEST(QRMNameDisplayPointers, RemovingTheLastOfTwoKeepsTheFirstPointerUntouched)
{
    QRMName name;
    AddTexts(name, {{"en", "A"}, {"fr", "B"}});
    std::vector<QRMDisplay*> before = PointersOf(name);

    EXPECT_EQ(QRM_KIT_SUCCESS, name.RemoveDisplayValue(VELString("fr")));
    std::vector<QRMDisplay*> after = PointersOf(name);
    ASSERT_EQ(1u, after.size());
    EXPECT_EQ(before[0], after[0]);
    EXPECT_EQ("en", LanguageOf(after[0]));
    EXPECT_EQ("A", ValueOf(after[0]));
}

TEST(QRMNameDisplayPointers, RemovingAMiddleEntryClosesUpAndClearsTheFollower)
{
    QRMName name;
    AddTexts(name, {{"en", "A"}, {"fr", "B"}, {"de", "C"}});
    std::vector<QRMDisplay*> before = PointersOf(name);

    EXPECT_EQ(QRM_KIT_SUCCESS, name.RemoveDisplayValue(VELString("fr")));
    std::vector<QRMDisplay*> after = PointersOf(name);
    ASSERT_EQ(2u, after.size());
    EXPECT_EQ(before[0], after[0]);
    EXPECT_EQ(before[2], after[1]);
    EXPECT_EQ("en", LanguageOf(after[0]));
    EXPECT_EQ("A", ValueOf(after[0]));
    EXPECT_EQ("", LanguageOf(after[1]));
    EXPECT_EQ("", ValueOf(after[1]));
}

TEST(QRMNameDisplayPointers, RemovingTheOnlyEntryLeavesNoPointers)
{
    QRMName name;
    AddTexts(name, {{"en", "A"}});
    EXPECT_EQ(QRM_KIT_SUCCESS, name.RemoveDisplayValue(VELString("en")));
    EXPECT_TRUE(PointersOf(name).empty());
    EXPECT_EQ(QRM_KIT_NOT_FOUND, name.RemoveDisplayValue(VELString("en")));
}

TEST(QRMNameDisplayPointers, RemovingAnAbsentLanguageKeepsEveryPointer)
{
    QRMName name;
    AddTexts(name, {{"en", "A"}, {"fr", "B"}});
    std::vector<QRMDisplay*> before = PointersOf(name);
    EXPECT_EQ(QRM_KIT_NOT_FOUND, name.RemoveDisplayValue(VELString("Fr")));
    EXPECT_EQ(before, PointersOf(name));
    EXPECT_EQ("B", ValueOf(before[1]));
}

TEST(QRMNameDisplayPointers, CopyHoldsOtherObjectsWithTheSameContentsInOrder)
{
    QRMName source;
    AddTexts(source, {{"en", "A"}, {"fr", "B"}});
    QRMName copy(source);
    std::vector<QRMDisplay*> sourcePointers = PointersOf(source);
    std::vector<QRMDisplay*> copyPointers = PointersOf(copy);
    ASSERT_EQ(2u, copyPointers.size());
    for (std::size_t i = 0; i < copyPointers.size(); ++i) {
        EXPECT_NE(sourcePointers[i], copyPointers[i]);
        EXPECT_TRUE(*sourcePointers[i] == *copyPointers[i]);
    }
    EXPECT_EQ(sourcePointers.end(), std::find(sourcePointers.begin(), sourcePointers.end(), copyPointers[0]));
    EXPECT_EQ(sourcePointers.end(), std::find(sourcePointers.begin(), sourcePointers.end(), copyPointers[1]));
}

TEST(QRMNameDisplayPointers, ChangingTheCopyThroughItsPointersLeavesTheSourceUntouched)
{
    QRMName source;
    AddTexts(source, {{"en", "A"}, {"fr", "B"}});
    std::vector<QRMDisplay*> sourcePointers = PointersOf(source);
    {
        QRMName copy(source);
        for (QRMDisplay* display : PointersOf(copy)) {
            EXPECT_EQ(QRM_KIT_SUCCESS, display->SetValue(VELString("overwritten")));
        }
        EXPECT_EQ(QRM_KIT_SUCCESS, copy.RemoveDisplayValue(VELString("en")));
    }
    EXPECT_EQ(sourcePointers, PointersOf(source));
    EXPECT_EQ("A", ValueOf(sourcePointers[0]));
    EXPECT_EQ("B", ValueOf(sourcePointers[1]));
    EXPECT_EQ("en", LanguageOf(sourcePointers[0]));
    EXPECT_EQ("fr", LanguageOf(sourcePointers[1]));
}

TEST(QRMNameDisplayPointers, AssignmentHoldsCopiesOfTheSourceObjects)
{
    QRMName source;
    AddTexts(source, {{"en", "A"}, {"fr", "B"}});
    QRMName target;
    AddTexts(target, {{"de", "Q"}});
    target = source;
    std::vector<QRMDisplay*> sourcePointers = PointersOf(source);
    std::vector<QRMDisplay*> targetPointers = PointersOf(target);
    ASSERT_EQ(2u, targetPointers.size());
    EXPECT_NE(sourcePointers[0], targetPointers[0]);
    EXPECT_NE(sourcePointers[1], targetPointers[1]);
    EXPECT_EQ("en", LanguageOf(targetPointers[0]));
    EXPECT_EQ("A", ValueOf(targetPointers[0]));
    EXPECT_EQ("fr", LanguageOf(targetPointers[1]));
    EXPECT_EQ("B", ValueOf(targetPointers[1]));
}

TEST(QRMNameDisplayPointers, SelfAssignmentLeavesAnEmptyList)
{
    QRMName name;
    AddTexts(name, {{"en", "A"}, {"fr", "B"}});
    QRMName& alias = name;
    name = alias;
    EXPECT_TRUE(PointersOf(name).empty());
    EXPECT_EQ(0u, TextCount(name));
    EXPECT_TRUE(name == QRMName());
}

TEST(QRMNameDisplayPointers, PointersAndCopiesShowTheSameTexts)
{
    QRMName name;
    AddTexts(name, {{"en", "A"}, {"fr", "B"}, {"de", "C"}});
    EXPECT_EQ(QRM_KIT_SUCCESS, name.RemoveDisplayValue(VELString("en")));
    Texts fromPointers;
    for (const QRMDisplay* display : PointersOf(name)) {
        fromPointers.emplace_back(LanguageOf(display), ValueOf(display));
    }
    EXPECT_EQ((Texts{{"", ""}, {"de", "C"}}), fromPointers);
    EXPECT_EQ(fromPointers, TextsOf(name));
}

// ====================================================================== codes

TEST(QRMCategoryCode, NewCategoryHasAnEmptyCode)
{
    QRMCategory category;
    EXPECT_TRUE(category.GetCode().IsEmpty());
}

TEST(QRMCategoryCode, SetCodeReturnsSuccessAndGetCodeGivesItBack)
{
    QRMCategory category;
    EXPECT_EQ(QRM_KIT_SUCCESS, category.SetCode(VELString("BI")));
    EXPECT_EQ("BI", category.GetCode().GetUTF8String());
    EXPECT_EQ(QRM_KIT_SUCCESS, category.SetCode(VELString("")));
    EXPECT_EQ("", category.GetCode().GetUTF8String());
}

TEST(QRMCategoryEquality, EqualCodesWithTextsInDifferentLanguagesAreEqual)
{
    QRMCategory left;
    QRMCategory right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetCode(VELString("SF2")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCode(VELString("SF2")));
    AddTexts(left, {{"en", "X"}});
    AddTexts(right, {{"de", "Y"}});
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}

TEST(QRMCategoryEquality, EqualCodesWithDifferentTextsInOneLanguageAreUnequal)
{
    QRMCategory left;
    QRMCategory right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetCode(VELString("SF2")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCode(VELString("SF2")));
    AddTexts(left, {{"en", "X"}});
    AddTexts(right, {{"en", "Z"}});
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TEST(QRMCategoryEquality, OneEntryAgainstTwoEntriesIsUnequal)
{
    QRMCategory left;
    QRMCategory right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetCode(VELString("SF2")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCode(VELString("SF2")));
    AddTexts(left, {{"en", "X"}});
    AddTexts(right, {{"en", "X"}, {"de", "Y"}});
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
    EXPECT_FALSE(right == left);
}

TEST(QRMCategoryEquality, DifferentCodesAreUnequalWithEqualTexts)
{
    QRMCategory left;
    QRMCategory right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetCode(VELString("BI")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCode(VELString("SF2")));
    AddTexts(left, {{"en", "X"}});
    AddTexts(right, {{"en", "X"}});
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TEST(QRMCategoryEquality, CodesDifferingOnlyInCaseAreUnequal)
{
    QRMCategory left;
    QRMCategory right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetCode(VELString("bi")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCode(VELString("BI")));
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TEST(QRMCategoryEquality, OrderOfEntriesDoesNotMatter)
{
    QRMCategory left;
    QRMCategory right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetCode(VELString("NI")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCode(VELString("NI")));
    AddTexts(left, {{"en", "Network"}, {"fr", "Réseau"}, {"de", "Netzwerk"}});
    AddTexts(right, {{"de", "Netzwerk"}, {"en", "Network"}, {"fr", "Réseau"}});
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}

TEST(QRMLUCategoryCode, SetCodeReturnsSuccessAndGetCodeGivesItBack)
{
    QRMLUCategory category;
    EXPECT_TRUE(category.GetCode().IsEmpty());
    EXPECT_EQ(QRM_KIT_SUCCESS, category.SetCode(VELString("DV")));
    EXPECT_EQ("DV", category.GetCode().GetUTF8String());
}

TEST(QRMLUCategoryEquality, CodeIsComparedBeforeTheTexts)
{
    QRMLUCategory left;
    QRMLUCategory right;
    AddTexts(left, {{"en", "X"}});
    AddTexts(right, {{"de", "Y"}});
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetCode(VELString("DV")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCode(VELString("DV")));
    EXPECT_TRUE(left == right);
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCode(VELString("DW")));
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TEST(QRMImportantInfoURL, SetURLReturnsSuccessAndGetURLGivesItBack)
{
    QRMImportantInfo info;
    EXPECT_TRUE(info.GetURL().IsEmpty());
    EXPECT_EQ(QRM_KIT_SUCCESS, info.SetURL(VELString("https://notes.example/a b?x=1")));
    EXPECT_EQ("https://notes.example/a b?x=1", info.GetURL().GetUTF8String());
}

TEST(QRMImportantInfoEquality, DifferentURLsAreUnequalWithEqualTexts)
{
    QRMImportantInfo left;
    QRMImportantInfo right;
    AddTexts(left, {{"en", "Read me"}});
    AddTexts(right, {{"en", "Read me"}});
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetURL(VELString("https://a.example/")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetURL(VELString("https://b.example/")));
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetURL(VELString("https://a.example/")));
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}

TEST(QRMImportantInfoEquality, EqualURLsWithConflictingTextsAreUnequal)
{
    QRMImportantInfo left;
    QRMImportantInfo right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetURL(VELString("https://a.example/")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetURL(VELString("https://a.example/")));
    AddTexts(left, {{"en", "Read me"}});
    AddTexts(right, {{"en", "Ignore me"}});
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

// ====================================================================== values

TEST(QRMComponentTypeValue, NewComponentTypeHoldsZero)
{
    QRMComponentType type;
    EXPECT_EQ(QRM_COMPONENT_SBDL, type.GetValue());
    EXPECT_EQ(0, static_cast<int>(type.GetValue()));
}

TEST(QRMComponentTypeValue, SetValueReturnsSuccessForEveryEnumerator)
{
    const QRMComponentTypeValueEnum values[] = {QRM_COMPONENT_SBDL, QRM_COMPONENT_FRMW, QRM_COMPONENT_BIOS,
                                                QRM_COMPONENT_APAC, QRM_COMPONENT_APP,  QRM_COMPONENT_DRVR};
    QRMComponentType type;
    for (QRMComponentTypeValueEnum value : values) {
        EXPECT_EQ(QRM_KIT_SUCCESS, type.SetValue(value));
        EXPECT_EQ(value, type.GetValue());
    }
}

TEST(QRMComponentTypeValue, OutOfRangeValuesAreStoredUnchecked)
{
    QRMComponentType type;
    EXPECT_EQ(QRM_KIT_SUCCESS, type.SetValue(static_cast<QRMComponentTypeValueEnum>(42)));
    EXPECT_EQ(42, static_cast<int>(type.GetValue()));
    EXPECT_EQ(QRM_KIT_SUCCESS, type.SetValue(static_cast<QRMComponentTypeValueEnum>(-1)));
    EXPECT_EQ(-1, static_cast<int>(type.GetValue()));
}

TEST(QRMComponentTypeEquality, DifferentValuesAreUnequalWhateverTheTexts)
{
    QRMComponentType left;
    QRMComponentType right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetValue(QRM_COMPONENT_FRMW));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetValue(QRM_COMPONENT_BIOS));
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);

    AddTexts(left, {{"en", "Firmware"}});
    AddTexts(right, {{"en", "Firmware"}});
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);

    AddTexts(left, {{"de", "X"}});
    AddTexts(right, {{"fr", "Y"}});
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TEST(QRMComponentTypeEquality, EqualValuesCompareByTheTexts)
{
    QRMComponentType left;
    QRMComponentType right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetValue(static_cast<QRMComponentTypeValueEnum>(42)));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetValue(static_cast<QRMComponentTypeValueEnum>(42)));
    AddTexts(left, {{"en", "X"}});
    AddTexts(right, {{"en", "X"}});
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
    EXPECT_EQ(QRM_KIT_SUCCESS, right.RemoveDisplayValue(VELString("en")));
    AddTexts(right, {{"en", "Z"}});
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TEST(QRMCriticalityValue, NewCriticalityHoldsZero)
{
    QRMCriticality criticality;
    EXPECT_EQ(QRM_CRITICALITY_LEVEL1, criticality.GetValue());
    EXPECT_EQ(0, static_cast<int>(criticality.GetValue()));
}

TEST(QRMCriticalityValue, SetValueReturnsSuccessForEveryEnumerator)
{
    const QRMCriticalityValueEnum values[] = {QRM_CRITICALITY_LEVEL1, QRM_CRITICALITY_LEVEL2, QRM_CRITICALITY_LEVEL3,
                                              QRM_CRITICALITY_UNSPECIFIED};
    QRMCriticality criticality;
    for (QRMCriticalityValueEnum value : values) {
        EXPECT_EQ(QRM_KIT_SUCCESS, criticality.SetValue(value));
        EXPECT_EQ(value, criticality.GetValue());
    }
}

TEST(QRMCriticalityValue, OutOfRangeValuesAreStoredUnchecked)
{
    QRMCriticality criticality;
    EXPECT_EQ(QRM_KIT_SUCCESS, criticality.SetValue(static_cast<QRMCriticalityValueEnum>(42)));
    EXPECT_EQ(42, static_cast<int>(criticality.GetValue()));
}

TEST(QRMCriticalityEquality, DifferentValuesAreUnequalWhateverTheTexts)
{
    QRMCriticality left;
    QRMCriticality right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetValue(QRM_CRITICALITY_LEVEL2));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetValue(QRM_CRITICALITY_LEVEL3));
    AddTexts(left, {{"en", "Urgent"}});
    AddTexts(right, {{"en", "Urgent"}});
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetValue(QRM_CRITICALITY_LEVEL2));
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}

// ====================================================================== install instruction

TEST(QRMInstallInstructionTexts, NewInstructionHasEmptyCommandAndArguments)
{
    QRMInstallInstruction instruction;
    EXPECT_TRUE(instruction.GetCommand().IsEmpty());
    EXPECT_TRUE(instruction.GetArguments().IsEmpty());
}

TEST(QRMInstallInstructionTexts, SettersReturnSuccessAndGettersGiveTheTextsBack)
{
    QRMInstallInstruction instruction;
    EXPECT_EQ(QRM_KIT_SUCCESS, instruction.SetCommand(VELString("setup.exe")));
    EXPECT_EQ(QRM_KIT_SUCCESS, instruction.SetArguments(VELString("/s /f")));
    EXPECT_EQ("setup.exe", instruction.GetCommand().GetUTF8String());
    EXPECT_EQ("/s /f", instruction.GetArguments().GetUTF8String());
}

TEST(QRMInstallInstructionEquality, EqualCommandArgumentsAndTextsAreEqual)
{
    QRMInstallInstruction left;
    QRMInstallInstruction right;
    for (QRMInstallInstruction* instruction : {&left, &right}) {
        EXPECT_EQ(QRM_KIT_SUCCESS, instruction->SetCommand(VELString("run")));
        EXPECT_EQ(QRM_KIT_SUCCESS, instruction->SetArguments(VELString("-q")));
    }
    AddTexts(left, {{"en", "Install"}});
    AddTexts(right, {{"en", "Install"}});
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}

TEST(QRMInstallInstructionEquality, DifferentCommandsAreUnequal)
{
    QRMInstallInstruction left;
    QRMInstallInstruction right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetCommand(VELString("run")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCommand(VELString("Run")));
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetArguments(VELString("-q")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetArguments(VELString("-q")));
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TEST(QRMInstallInstructionEquality, DifferentArgumentsAreUnequal)
{
    QRMInstallInstruction left;
    QRMInstallInstruction right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetCommand(VELString("run")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCommand(VELString("run")));
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetArguments(VELString("-q")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetArguments(VELString("-v")));
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TEST(QRMInstallInstructionEquality, CommandAndArgumentsSwappedAreUnequal)
{
    QRMInstallInstruction left;
    QRMInstallInstruction right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetCommand(VELString("a")));
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetArguments(VELString("b")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCommand(VELString("b")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetArguments(VELString("a")));
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TEST(QRMInstallInstructionEquality, ConflictingTextsAreUnequal)
{
    QRMInstallInstruction left;
    QRMInstallInstruction right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.SetCommand(VELString("run")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.SetCommand(VELString("run")));
    AddTexts(left, {{"en", "Install"}});
    AddTexts(right, {{"en", "Remove"}});
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TEST(QRMInstallInstructionCopy, CopyAndAssignmentCarryCommandAndArguments)
{
    QRMInstallInstruction source;
    EXPECT_EQ(QRM_KIT_SUCCESS, source.SetCommand(VELString("run")));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.SetArguments(VELString("-q")));
    AddTexts(source, {{"en", "Install"}});

    QRMInstallInstruction copy(source);
    EXPECT_EQ("run", copy.GetCommand().GetUTF8String());
    EXPECT_EQ("-q", copy.GetArguments().GetUTF8String());

    QRMInstallInstruction target;
    EXPECT_EQ(QRM_KIT_SUCCESS, target.SetCommand(VELString("old")));
    EXPECT_EQ(QRM_KIT_SUCCESS, target.SetArguments(VELString("--old")));
    target = source;
    EXPECT_EQ("run", target.GetCommand().GetUTF8String());
    EXPECT_EQ("-q", target.GetArguments().GetUTF8String());
    EXPECT_EQ((Texts{{"en", "Install"}}), TextsOf(target));

    EXPECT_EQ(QRM_KIT_SUCCESS, target.SetCommand(VELString("changed")));
    EXPECT_EQ("run", source.GetCommand().GetUTF8String());
}

// ====================================================================== memory

namespace {

// The documented removal order, applied to plain texts: the matching entry
// is taken out, and the entry that then stands at its position (if any)
// reads as empty.
QRMKitReturnCode ModelRemove(Texts& texts, const std::string& language)
{
    auto found =
        std::find_if(texts.begin(), texts.end(),
                     [&language](const std::pair<std::string, std::string>& entry) { return entry.first == language; });
    if (found == texts.end()) {
        return QRM_KIT_NOT_FOUND;
    }
    std::size_t index = static_cast<std::size_t>(found - texts.begin());
    texts.erase(found);
    if (index < texts.size()) {
        texts[index] = std::make_pair(std::string(), std::string());
    }
    return QRM_KIT_SUCCESS;
}

template <class Holder>
void RemoveEveryOrderAndMatchTheModel(const std::vector<std::string>& order)
{
    const Texts initial{{"en", "A"}, {"fr", "B"}, {"de", "C"}, {"it", "D"}};
    Holder holder;
    AddTexts(holder, initial);
    Texts model = initial;
    for (const std::string& language : order) {
        EXPECT_EQ(ModelRemove(model, language), holder.RemoveDisplayValue(VELString(language.c_str())));
        EXPECT_EQ(model.size(), TextCount(holder));
        EXPECT_EQ(model, TextsOf(holder));
    }
    Holder copy(holder);
    EXPECT_EQ(model, TextsOf(copy));
    Holder assigned;
    AddTexts(assigned, {{"ja", "J"}, {"hi", "H"}});
    EXPECT_EQ(QRM_KIT_SUCCESS, assigned.RemoveDisplayValue(VELString("ja")));
    assigned = holder;
    EXPECT_EQ(model, TextsOf(assigned));
    holder = Holder();
    EXPECT_EQ(0u, TextCount(holder));
    EXPECT_EQ(model, TextsOf(copy));
}

}  // namespace

TEST(AcrossTextHoldersDisplayValueMemory, RemovalInEveryOrderFollowsTheRemovalRuleOnAName)
{
    std::vector<std::string> order{"de", "en", "fr", "it", ""};
    std::sort(order.begin(), order.end());
    int permutations = 0;
    do {
        RemoveEveryOrderAndMatchTheModel<QRMName>(order);
        ++permutations;
    } while (std::next_permutation(order.begin(), order.end()));
    EXPECT_EQ(120, permutations);
}

TEST(AcrossTextHoldersDisplayValueMemory, RemovalInEveryOrderFollowsTheRemovalRuleOnOtherHolders)
{
    std::vector<std::string> order{"de", "en", "fr", "it"};
    do {
        RemoveEveryOrderAndMatchTheModel<QRMCategory>(order);
        RemoveEveryOrderAndMatchTheModel<QRMComponentType>(order);
        RemoveEveryOrderAndMatchTheModel<QRMInstallInstruction>(order);
        RemoveEveryOrderAndMatchTheModel<QRMRevisionHistory>(order);
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST(AcrossTextHoldersDisplayValueMemory, HoldersSurviveMixedRemovalsCopiesAndAssignments)
{
    std::unique_ptr<QRMName> name(new QRMName);
    AddTexts(*name, {{"en", "A"}, {"fr", "B"}, {"de", "C"}});
    std::vector<QRMDisplay*> kept = PointersOf(*name);
    EXPECT_EQ(QRM_KIT_SUCCESS, name->RemoveDisplayValue(VELString("fr")));  // clears "de"
    EXPECT_EQ(QRM_KIT_SUCCESS, name->RemoveDisplayValue(VELString("en")));  // clears the cleared one
    ASSERT_EQ(1u, TextCount(*name));
    EXPECT_EQ(kept[2], PointersOf(*name)[0]);
    EXPECT_EQ("", LanguageOf(kept[2]));
    EXPECT_EQ(QRM_KIT_SUCCESS, name->AddDisplayValue(VELString("es"), VELString("E")));
    EXPECT_EQ(QRM_KIT_SUCCESS, name->RemoveDisplayValue(VELString("es")));  // the last: released
    EXPECT_EQ(1u, TextCount(*name));

    QRMCategory category;
    EXPECT_EQ(QRM_KIT_SUCCESS, category.SetCode(VELString("AS")));
    AddTexts(category, {{"en", "A"}, {"fr", "B"}});
    EXPECT_EQ(QRM_KIT_SUCCESS, category.RemoveDisplayValue(VELString("en")));
    std::unique_ptr<QRMCategory> categoryCopy(new QRMCategory(category));
    QRMCategory categoryAssigned;
    categoryAssigned = *categoryCopy;
    categoryCopy.reset();
    EXPECT_EQ((Texts{{"", ""}}), TextsOf(categoryAssigned));
    EXPECT_EQ("AS", categoryAssigned.GetCode().GetUTF8String());
    QRMCategory& categoryAlias = categoryAssigned;
    categoryAssigned = categoryAlias;
    EXPECT_EQ(0u, TextCount(categoryAssigned));
    EXPECT_EQ("AS", categoryAssigned.GetCode().GetUTF8String());

    QRMCriticality criticality;
    AddTexts(criticality, {{"en", "A"}, {"fr", "B"}, {"de", "C"}, {"it", "D"}});
    EXPECT_EQ(QRM_KIT_SUCCESS, criticality.RemoveDisplayValue(VELString("it")));
    EXPECT_EQ(QRM_KIT_SUCCESS, criticality.RemoveDisplayValue(VELString("en")));
    EXPECT_EQ(QRM_KIT_SUCCESS, criticality.RemoveDisplayValue(VELString("")));  // clears "de"
    EXPECT_EQ((Texts{{"", ""}}), TextsOf(criticality));
    {
        QRMCriticality copy(criticality);
        QRMCriticality second;
        second = copy;
        second = criticality;
        EXPECT_TRUE(second == criticality);
    }

    QRMImportantInfo info;
    QRMLUCategory luCategory;
    QRMRevisionHistory history;
    QRMInstallInstruction instruction;
    AddTexts(info, {{"en", "A"}, {"fr", "B"}});
    AddTexts(luCategory, {{"en", "A"}, {"fr", "B"}});
    AddTexts(history, {{"en", "A"}, {"fr", "B"}});
    AddTexts(instruction, {{"en", "A"}, {"fr", "B"}});
    EXPECT_EQ(QRM_KIT_SUCCESS, info.RemoveDisplayValue(VELString("en")));
    EXPECT_EQ(QRM_KIT_SUCCESS, luCategory.RemoveDisplayValue(VELString("fr")));
    EXPECT_EQ(QRM_KIT_SUCCESS, history.RemoveDisplayValue(VELString("en")));
    EXPECT_EQ(QRM_KIT_SUCCESS, history.RemoveDisplayValue(VELString("")));
    EXPECT_EQ(QRM_KIT_SUCCESS, instruction.RemoveDisplayValue(VELString("en")));
    EXPECT_EQ(1u, TextCount(info));
    EXPECT_EQ(1u, TextCount(luCategory));
    EXPECT_EQ(0u, TextCount(history));
    EXPECT_EQ(1u, TextCount(instruction));

    QRMName other(*name);
    *name = other;
    name.reset();
    EXPECT_EQ(1u, TextCount(other));
}
