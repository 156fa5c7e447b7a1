// QRMName: the held display objects a name hands out as pointers, and how
// they follow additions, removals, copies and assignments.
#include "QRMName.h"

#include "TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

std::vector<QRMDisplay*> PointersOf(const QRMName& name)
{
    std::vector<QRMDisplay*> pointers;
    name.GetDisplayValues(pointers);
    return pointers;
}

std::string LanguageOf(const QRMDisplay* display) { return display->GetLanguage().GetUTF8String(); }
std::string ValueOf(const QRMDisplay* display) { return display->GetValue().GetUTF8String(); }

}  // namespace

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
    EXPECT_EQ((TextList{{"en", "Changed"}}), TextsOf(name));
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
    TextList fromPointers;
    for (const QRMDisplay* display : PointersOf(name)) {
        fromPointers.emplace_back(LanguageOf(display), ValueOf(display));
    }
    EXPECT_EQ((TextList{{"", ""}, {"de", "C"}}), fromPointers);
    EXPECT_EQ(fromPointers, TextsOf(name));
}
