// QRMInstallInstruction: its command and arguments, equality, and copies.
#include "QRMInstallInstruction.h"

#include "TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

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
    EXPECT_EQ((TextList{{"en", "Install"}}), TextsOf(target));

    EXPECT_EQ(QRM_KIT_SUCCESS, target.SetCommand(VELString("changed")));
    EXPECT_EQ("run", source.GetCommand().GetUTF8String());
}
