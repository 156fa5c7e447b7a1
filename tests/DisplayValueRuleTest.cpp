// The display-value rule shared by every class that carries localised texts:
// adding, removing, reading, copying, assigning and comparing the texts. The
// same checks run on each of the value classes.
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

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

typedef std::vector<std::pair<std::string, std::string>> Texts;

// The field each class keeps besides its texts, set and read back as text so
// that one test body covers every class. `variant` picks one of several
// distinct values.
template <class Holder>
struct HolderTraits;

template <>
struct HolderTraits<QRMName> {
    static std::string Name() { return "QRMName"; }
    static QRMKitReturnCode SetScalar(QRMName&, int) { return QRM_KIT_SUCCESS; }
    static std::string Scalar(const QRMName&) { return ""; }
    static std::string Expected(int) { return ""; }
};

template <>
struct HolderTraits<QRMRevisionHistory> {
    static std::string Name() { return "QRMRevisionHistory"; }
    static QRMKitReturnCode SetScalar(QRMRevisionHistory&, int) { return QRM_KIT_SUCCESS; }
    static std::string Scalar(const QRMRevisionHistory&) { return ""; }
    static std::string Expected(int) { return ""; }
};

template <>
struct HolderTraits<QRMCategory> {
    static std::string Name() { return "QRMCategory"; }
    static QRMKitReturnCode SetScalar(QRMCategory& holder, int variant)
    {
        return holder.SetCode(VELString(Expected(variant).c_str()));
    }
    static std::string Scalar(const QRMCategory& holder) { return holder.GetCode().GetUTF8String(); }
    static std::string Expected(int variant) { return "SF" + std::to_string(variant); }
};

template <>
struct HolderTraits<QRMLUCategory> {
    static std::string Name() { return "QRMLUCategory"; }
    static QRMKitReturnCode SetScalar(QRMLUCategory& holder, int variant)
    {
        return holder.SetCode(VELString(Expected(variant).c_str()));
    }
    static std::string Scalar(const QRMLUCategory& holder) { return holder.GetCode().GetUTF8String(); }
    static std::string Expected(int variant) { return "LU" + std::to_string(variant); }
};

template <>
struct HolderTraits<QRMImportantInfo> {
    static std::string Name() { return "QRMImportantInfo"; }
    static QRMKitReturnCode SetScalar(QRMImportantInfo& holder, int variant)
    {
        return holder.SetURL(VELString(Expected(variant).c_str()));
    }
    static std::string Scalar(const QRMImportantInfo& holder) { return holder.GetURL().GetUTF8String(); }
    static std::string Expected(int variant) { return "https://notes.example/" + std::to_string(variant); }
};

template <>
struct HolderTraits<QRMComponentType> {
    static std::string Name() { return "QRMComponentType"; }
    static QRMKitReturnCode SetScalar(QRMComponentType& holder, int variant)
    {
        return holder.SetValue(static_cast<QRMComponentTypeValueEnum>(variant));
    }
    static std::string Scalar(const QRMComponentType& holder)
    {
        return std::to_string(static_cast<int>(holder.GetValue()));
    }
    static std::string Expected(int variant) { return std::to_string(variant); }
};

template <>
struct HolderTraits<QRMCriticality> {
    static std::string Name() { return "QRMCriticality"; }
    static QRMKitReturnCode SetScalar(QRMCriticality& holder, int variant)
    {
        return holder.SetValue(static_cast<QRMCriticalityValueEnum>(variant));
    }
    static std::string Scalar(const QRMCriticality& holder)
    {
        return std::to_string(static_cast<int>(holder.GetValue()));
    }
    static std::string Expected(int variant) { return std::to_string(variant); }
};

template <>
struct HolderTraits<QRMInstallInstruction> {
    static std::string Name() { return "QRMInstallInstruction"; }
    static QRMKitReturnCode SetScalar(QRMInstallInstruction& holder, int variant)
    {
        QRMKitReturnCode command = holder.SetCommand(VELString(("setup" + std::to_string(variant)).c_str()));
        QRMKitReturnCode arguments = holder.SetArguments(VELString(("/s /v" + std::to_string(variant)).c_str()));
        return command != QRM_KIT_SUCCESS ? command : arguments;
    }
    static std::string Scalar(const QRMInstallInstruction& holder)
    {
        return holder.GetCommand().GetUTF8String() + "|" + holder.GetArguments().GetUTF8String();
    }
    static std::string Expected(int variant)
    {
        return "setup" + std::to_string(variant) + "|/s /v" + std::to_string(variant);
    }
};

class HolderNames {
public:
    template <class Holder>
    static std::string GetName(int)
    {
        return HolderTraits<Holder>::Name();
    }
};

template <class Holder>
class DisplayValueRule : public ::testing::Test {
protected:
    typedef HolderTraits<Holder> Traits;
};

typedef ::testing::Types<QRMName, QRMRevisionHistory, QRMCategory, QRMLUCategory, QRMImportantInfo, QRMComponentType,
                         QRMCriticality, QRMInstallInstruction>
    DisplayHolders;

}  // namespace

TYPED_TEST_SUITE(DisplayValueRule, DisplayHolders, HolderNames);

// ---------------------------------------------------------------- adding

TYPED_TEST(DisplayValueRule, NewHolderHasNoTexts)
{
    TypeParam holder;
    EXPECT_EQ(0u, TextCount(holder));
    EXPECT_TRUE(TextsOf(holder).empty());
}

TYPED_TEST(DisplayValueRule, AddAppendsEachNewLanguageAtTheEnd)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("en"), VELString("Driver")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("fr"), VELString("Pilote")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("de"), VELString("Treiber")));
    EXPECT_EQ(3u, TextCount(holder));
    EXPECT_EQ((Texts{{"en", "Driver"}, {"fr", "Pilote"}, {"de", "Treiber"}}), TextsOf(holder));
}

TYPED_TEST(DisplayValueRule, AddingALanguageAgainIsRefusedAndKeepsTheFirstText)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, holder.AddDisplayValue(VELString("en"), VELString("B")));
    EXPECT_EQ((Texts{{"en", "A"}}), TextsOf(holder));
}

TYPED_TEST(DisplayValueRule, AddingAnEarlierLanguageAfterOthersIsRefused)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("fr"), VELString("B")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("de"), VELString("C")));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, holder.AddDisplayValue(VELString("fr"), VELString("X")));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, holder.AddDisplayValue(VELString("de"), VELString("C")));
    EXPECT_EQ((Texts{{"en", "A"}, {"fr", "B"}, {"de", "C"}}), TextsOf(holder));
}

TYPED_TEST(DisplayValueRule, LanguagesDifferingOnlyInCaseAreDifferentLanguages)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("en"), VELString("lower")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("EN"), VELString("upper")));
    EXPECT_EQ((Texts{{"en", "lower"}, {"EN", "upper"}}), TextsOf(holder));
}

TYPED_TEST(DisplayValueRule, EmptyLanguageAndValueAreStoredAsGiven)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString(""), VELString("")));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, holder.AddDisplayValue(VELString(""), VELString("other")));
    EXPECT_EQ((Texts{{"", ""}}), TextsOf(holder));
}

TYPED_TEST(DisplayValueRule, SameDisplayValueAddedTwiceThenRemovedTwice)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("es"), VELString("Controlador")));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, holder.AddDisplayValue(VELString("es"), VELString("Controlador")));
    EXPECT_EQ(1u, TextCount(holder));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.RemoveDisplayValue(VELString("es")));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, holder.RemoveDisplayValue(VELString("es")));
    EXPECT_EQ(0u, TextCount(holder));
    EXPECT_TRUE(TextsOf(holder).empty());
}

// ---------------------------------------------------------------- removing

TYPED_TEST(DisplayValueRule, RemovingFromAnEmptyListReturnsNotFound)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_NOT_FOUND, holder.RemoveDisplayValue(VELString("en")));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, holder.RemoveDisplayValue(VELString("")));
    EXPECT_EQ(0u, TextCount(holder));
}

TYPED_TEST(DisplayValueRule, RemovingAnAbsentLanguageReturnsNotFoundAndChangesNothing)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("fr"), VELString("B")));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, holder.RemoveDisplayValue(VELString("EN")));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, holder.RemoveDisplayValue(VELString("de")));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, holder.RemoveDisplayValue(VELString("")));
    EXPECT_EQ((Texts{{"en", "A"}, {"fr", "B"}}), TextsOf(holder));
}

TYPED_TEST(DisplayValueRule, RemovingTheOnlyEntryEmptiesTheList)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.RemoveDisplayValue(VELString("en")));
    EXPECT_EQ(0u, TextCount(holder));
    EXPECT_TRUE(TextsOf(holder).empty());
}

TYPED_TEST(DisplayValueRule, RemovingTheLastEntryShortensTheListAndKeepsTheOthers)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("fr"), VELString("B")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("de"), VELString("C")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.RemoveDisplayValue(VELString("de")));
    EXPECT_EQ(2u, TextCount(holder));
    EXPECT_EQ((Texts{{"en", "A"}, {"fr", "B"}}), TextsOf(holder));
}

TYPED_TEST(DisplayValueRule, RemovingTheFirstOfTwoLeavesOneClearedEntry)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("fr"), VELString("B")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.RemoveDisplayValue(VELString("en")));
    EXPECT_EQ(1u, TextCount(holder));
    // The entry that followed the removed one has been released: it reads
    // as a new, empty text.
    EXPECT_EQ((Texts{{"", ""}}), TextsOf(holder));
}

TYPED_TEST(DisplayValueRule, RemovingAMiddleEntryClearsTheEntryThatFollowedIt)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("fr"), VELString("B")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("de"), VELString("C")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("it"), VELString("D")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.RemoveDisplayValue(VELString("fr")));
    EXPECT_EQ((Texts{{"en", "A"}, {"", ""}, {"it", "D"}}), TextsOf(holder));
}

TYPED_TEST(DisplayValueRule, ClearedLanguageIsNoLongerFoundAndCanBeAddedAgain)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("fr"), VELString("B")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.RemoveDisplayValue(VELString("en")));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, holder.RemoveDisplayValue(VELString("fr")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("fr"), VELString("B2")));
    EXPECT_EQ((Texts{{"", ""}, {"fr", "B2"}}), TextsOf(holder));
}

TYPED_TEST(DisplayValueRule, ClearedEntryIsFoundByTheEmptyLanguage)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("fr"), VELString("B")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.RemoveDisplayValue(VELString("en")));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, holder.AddDisplayValue(VELString(""), VELString("X")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.RemoveDisplayValue(VELString("")));
    EXPECT_EQ(0u, TextCount(holder));
}

// ---------------------------------------------------------------- reading

TYPED_TEST(DisplayValueRule, GetDisplayValuesKeepsExistingItemsInFront)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("fr"), VELString("B")));

    std::vector<QRMDisplay> out;
    out.push_back(QRMDisplay(VELString("xx"), VELString("kept")));
    holder.GetDisplayValues(out);
    ASSERT_EQ(3u, out.size());
    EXPECT_EQ("xx", out[0].GetLanguage().GetUTF8String());
    EXPECT_EQ("kept", out[0].GetValue().GetUTF8String());
    EXPECT_EQ("en", out[1].GetLanguage().GetUTF8String());
    EXPECT_EQ("A", out[1].GetValue().GetUTF8String());
    EXPECT_EQ("fr", out[2].GetLanguage().GetUTF8String());
    EXPECT_EQ("B", out[2].GetValue().GetUTF8String());
}

TYPED_TEST(DisplayValueRule, GetDisplayValuesCalledTwiceAppendsTwice)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("en"), VELString("A")));
    std::vector<QRMDisplay> out;
    holder.GetDisplayValues(out);
    holder.GetDisplayValues(out);
    ASSERT_EQ(2u, out.size());
    EXPECT_TRUE(out[0] == QRMDisplay(VELString("en"), VELString("A")));
    EXPECT_TRUE(out[1] == QRMDisplay(VELString("en"), VELString("A")));
}

TYPED_TEST(DisplayValueRule, GetDisplayValuesHandsOutCopies)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("en"), VELString("A")));
    std::vector<QRMDisplay> out;
    holder.GetDisplayValues(out);
    ASSERT_EQ(1u, out.size());
    EXPECT_EQ(QRM_KIT_SUCCESS, out[0].SetValue(VELString("changed")));
    EXPECT_EQ(QRM_KIT_SUCCESS, out[0].SetLanguage(VELString("de")));
    EXPECT_EQ((Texts{{"en", "A"}}), TextsOf(holder));
}

// ---------------------------------------------------------------- the other field

TYPED_TEST(DisplayValueRule, SettingTheOtherFieldReturnsSuccessAndLeavesTheTexts)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, TestFixture::Traits::SetScalar(holder, 3));
    EXPECT_EQ(TestFixture::Traits::Expected(3), TestFixture::Traits::Scalar(holder));
    EXPECT_EQ((Texts{{"en", "A"}}), TextsOf(holder));
}

// ---------------------------------------------------------------- copying

TYPED_TEST(DisplayValueRule, CopyHoldsTheSameFieldAndTextsInTheSameOrder)
{
    TypeParam source;
    EXPECT_EQ(QRM_KIT_SUCCESS, TestFixture::Traits::SetScalar(source, 2));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue(VELString("fr"), VELString("B")));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue(VELString("de"), VELString("C")));

    TypeParam copy(source);
    EXPECT_EQ(TestFixture::Traits::Expected(2), TestFixture::Traits::Scalar(copy));
    EXPECT_EQ((Texts{{"en", "A"}, {"fr", "B"}, {"de", "C"}}), TextsOf(copy));
    EXPECT_TRUE(copy == source);
    EXPECT_FALSE(copy != source);
}

TYPED_TEST(DisplayValueRule, ChangingTheCopyLeavesTheSourceUntouched)
{
    TypeParam source;
    EXPECT_EQ(QRM_KIT_SUCCESS, TestFixture::Traits::SetScalar(source, 1));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue(VELString("fr"), VELString("B")));

    TypeParam copy(source);
    EXPECT_EQ(QRM_KIT_SUCCESS, TestFixture::Traits::SetScalar(copy, 5));
    EXPECT_EQ(QRM_KIT_SUCCESS, copy.AddDisplayValue(VELString("it"), VELString("D")));
    EXPECT_EQ(QRM_KIT_SUCCESS, copy.RemoveDisplayValue(VELString("en")));
    EXPECT_EQ((Texts{{"", ""}, {"it", "D"}}), TextsOf(copy));

    EXPECT_EQ(TestFixture::Traits::Expected(1), TestFixture::Traits::Scalar(source));
    EXPECT_EQ((Texts{{"en", "A"}, {"fr", "B"}}), TextsOf(source));
}

TYPED_TEST(DisplayValueRule, ChangingTheSourceLeavesTheCopyUntouched)
{
    TypeParam source;
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue(VELString("fr"), VELString("B")));
    TypeParam copy(source);

    EXPECT_EQ(QRM_KIT_SUCCESS, source.RemoveDisplayValue(VELString("en")));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue(VELString("en"), VELString("Z")));
    EXPECT_EQ((Texts{{"en", "A"}, {"fr", "B"}}), TextsOf(copy));
}

TYPED_TEST(DisplayValueRule, DestroyingTheCopyLeavesTheSourceUntouched)
{
    TypeParam source;
    EXPECT_EQ(QRM_KIT_SUCCESS, TestFixture::Traits::SetScalar(source, 4));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue(VELString("fr"), VELString("B")));
    {
        std::unique_ptr<TypeParam> copy(new TypeParam(source));
        EXPECT_EQ(2u, TextCount(*copy));
        EXPECT_EQ(QRM_KIT_SUCCESS, copy->RemoveDisplayValue(VELString("en")));
    }
    EXPECT_EQ(TestFixture::Traits::Expected(4), TestFixture::Traits::Scalar(source));
    EXPECT_EQ((Texts{{"en", "A"}, {"fr", "B"}}), TextsOf(source));
}

TYPED_TEST(DisplayValueRule, CopyOfAHolderAfterRemovalCopiesTheClearedEntry)
{
    TypeParam source;
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue(VELString("fr"), VELString("B")));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue(VELString("de"), VELString("C")));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.RemoveDisplayValue(VELString("en")));
    TypeParam copy(source);
    EXPECT_EQ((Texts{{"", ""}, {"de", "C"}}), TextsOf(copy));
}

// ---------------------------------------------------------------- assignment

TYPED_TEST(DisplayValueRule, AssignmentCopiesTheFieldAndReplacesTheTexts)
{
    TypeParam source;
    EXPECT_EQ(QRM_KIT_SUCCESS, TestFixture::Traits::SetScalar(source, 2));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue(VELString("fr"), VELString("B")));

    TypeParam target;
    EXPECT_EQ(QRM_KIT_SUCCESS, TestFixture::Traits::SetScalar(target, 7));
    EXPECT_EQ(QRM_KIT_SUCCESS, target.AddDisplayValue(VELString("de"), VELString("Q")));
    EXPECT_EQ(QRM_KIT_SUCCESS, target.AddDisplayValue(VELString("it"), VELString("R")));
    EXPECT_EQ(QRM_KIT_SUCCESS, target.AddDisplayValue(VELString("es"), VELString("S")));

    target = source;
    EXPECT_EQ(TestFixture::Traits::Expected(2), TestFixture::Traits::Scalar(target));
    EXPECT_EQ((Texts{{"en", "A"}, {"fr", "B"}}), TextsOf(target));
    EXPECT_TRUE(target == source);
    EXPECT_EQ((Texts{{"en", "A"}, {"fr", "B"}}), TextsOf(source));
}

TYPED_TEST(DisplayValueRule, AssigningAnEmptyHolderEmptiesTheTexts)
{
    TypeParam target;
    EXPECT_EQ(QRM_KIT_SUCCESS, target.AddDisplayValue(VELString("de"), VELString("Q")));
    EXPECT_EQ(QRM_KIT_SUCCESS, target.AddDisplayValue(VELString("it"), VELString("R")));
    EXPECT_EQ(QRM_KIT_SUCCESS, target.RemoveDisplayValue(VELString("de")));
    target = TypeParam();
    EXPECT_EQ(0u, TextCount(target));
    EXPECT_EQ(TestFixture::Traits::Scalar(TypeParam()), TestFixture::Traits::Scalar(target));
}

TYPED_TEST(DisplayValueRule, ChangingTheAssignedTargetLeavesTheSourceUntouched)
{
    TypeParam source;
    EXPECT_EQ(QRM_KIT_SUCCESS, TestFixture::Traits::SetScalar(source, 1));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue(VELString("fr"), VELString("B")));
    {
        TypeParam target;
        target = source;
        EXPECT_EQ(QRM_KIT_SUCCESS, TestFixture::Traits::SetScalar(target, 9));
        EXPECT_EQ(QRM_KIT_SUCCESS, target.RemoveDisplayValue(VELString("en")));
        EXPECT_EQ(QRM_KIT_SUCCESS, target.AddDisplayValue(VELString("ja"), VELString("J")));
    }
    EXPECT_EQ(TestFixture::Traits::Expected(1), TestFixture::Traits::Scalar(source));
    EXPECT_EQ((Texts{{"en", "A"}, {"fr", "B"}}), TextsOf(source));
}

TYPED_TEST(DisplayValueRule, SelfAssignmentKeepsTheFieldAndEmptiesTheTexts)
{
    TypeParam holder;
    EXPECT_EQ(QRM_KIT_SUCCESS, TestFixture::Traits::SetScalar(holder, 3));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("en"), VELString("A")));
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("fr"), VELString("B")));
    TypeParam& alias = holder;
    holder = alias;
    EXPECT_EQ(TestFixture::Traits::Expected(3), TestFixture::Traits::Scalar(holder));
    EXPECT_EQ(0u, TextCount(holder));
    EXPECT_TRUE(TextsOf(holder).empty());
    // The emptied holder is usable as before.
    EXPECT_EQ(QRM_KIT_SUCCESS, holder.AddDisplayValue(VELString("en"), VELString("C")));
    EXPECT_EQ((Texts{{"en", "C"}}), TextsOf(holder));
}

// ---------------------------------------------------------------- equality

TYPED_TEST(DisplayValueRule, NewHoldersAreEqual)
{
    TypeParam left;
    TypeParam right;
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}

TYPED_TEST(DisplayValueRule, SameTextsInAnyOrderAreEqual)
{
    TypeParam left;
    TypeParam right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.AddDisplayValue(VELString("en"), VELString("X")));
    EXPECT_EQ(QRM_KIT_SUCCESS, left.AddDisplayValue(VELString("de"), VELString("Y")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.AddDisplayValue(VELString("de"), VELString("Y")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.AddDisplayValue(VELString("en"), VELString("X")));
    EXPECT_TRUE(left == right);
    EXPECT_TRUE(right == left);
    EXPECT_FALSE(left != right);
}

TYPED_TEST(DisplayValueRule, SameLanguageWithDifferentTextIsUnequal)
{
    TypeParam left;
    TypeParam right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.AddDisplayValue(VELString("en"), VELString("X")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.AddDisplayValue(VELString("en"), VELString("Z")));
    EXPECT_FALSE(left == right);
    EXPECT_FALSE(right == left);
    EXPECT_TRUE(left != right);
}

TYPED_TEST(DisplayValueRule, DifferentNumbersOfTextsAreUnequal)
{
    TypeParam left;
    TypeParam right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.AddDisplayValue(VELString("en"), VELString("X")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.AddDisplayValue(VELString("en"), VELString("X")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.AddDisplayValue(VELString("de"), VELString("Y")));
    EXPECT_FALSE(left == right);
    EXPECT_FALSE(right == left);
    EXPECT_TRUE(left != right);
    EXPECT_TRUE(TypeParam() != left);
}

TYPED_TEST(DisplayValueRule, TextsInDifferentLanguagesOnlyAreEqual)
{
    TypeParam left;
    TypeParam right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.AddDisplayValue(VELString("en"), VELString("X")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.AddDisplayValue(VELString("de"), VELString("Y")));
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}

TYPED_TEST(DisplayValueRule, LanguagesOnOneSideOnlyDoNotMatterWhenSharedTextsAgree)
{
    TypeParam left;
    TypeParam right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.AddDisplayValue(VELString("en"), VELString("X")));
    EXPECT_EQ(QRM_KIT_SUCCESS, left.AddDisplayValue(VELString("de"), VELString("Y")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.AddDisplayValue(VELString("fr"), VELString("Z")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.AddDisplayValue(VELString("en"), VELString("X")));
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);

    EXPECT_EQ(QRM_KIT_SUCCESS, left.AddDisplayValue(VELString("fr"), VELString("z")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.AddDisplayValue(VELString("it"), VELString("W")));
    EXPECT_FALSE(left == right);
    EXPECT_TRUE(left != right);
}

TYPED_TEST(DisplayValueRule, DifferentOtherFieldMakesHoldersUnequalOnlyWhereThereIsOne)
{
    TypeParam left;
    TypeParam right;
    EXPECT_EQ(QRM_KIT_SUCCESS, left.AddDisplayValue(VELString("en"), VELString("X")));
    EXPECT_EQ(QRM_KIT_SUCCESS, right.AddDisplayValue(VELString("en"), VELString("X")));
    EXPECT_EQ(QRM_KIT_SUCCESS, TestFixture::Traits::SetScalar(left, 1));
    EXPECT_EQ(QRM_KIT_SUCCESS, TestFixture::Traits::SetScalar(right, 2));
    const bool hasOtherField = TestFixture::Traits::Expected(1) != TestFixture::Traits::Expected(2);
    EXPECT_EQ(!hasOtherField, left == right);
    EXPECT_EQ(hasOtherField, left != right);
}
