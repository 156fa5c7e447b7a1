// Memory safety of the removal order across the text holders (a name, a
// category, a revision history, ...): removals in every order follow the
// documented rule, and holders survive mixed removals, copies and
// assignments.
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

std::vector<QRMDisplay*> PointersOf(const QRMName& name)
{
    std::vector<QRMDisplay*> pointers;
    name.GetDisplayValues(pointers);
    return pointers;
}

std::string LanguageOf(const QRMDisplay* display) { return display->GetLanguage().GetUTF8String(); }

}  // namespace

namespace {

// The documented removal order, applied to plain texts: the matching entry
// is taken out, and the entry that then stands at its position (if any)
// reads as empty.
QRMKitReturnCode ModelRemove(TextList& texts, const std::string& language)
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
    const TextList initial{{"en", "A"}, {"fr", "B"}, {"de", "C"}, {"it", "D"}};
    Holder holder;
    AddTexts(holder, initial);
    TextList model = initial;
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
    EXPECT_EQ((TextList{{"", ""}}), TextsOf(categoryAssigned));
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
    EXPECT_EQ((TextList{{"", ""}}), TextsOf(criticality));
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
