// QRMSubComponent: a part of a supported device, with its name, version
// and texts.
#include "QRMSubComponent.h"

#include "ModelBuilders.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using builders::U8;

TEST(QRMSubComponent, NewSubComponentHasEmptyTextsAndNoDisplayValues)
{
    QRMSubComponent sub;
    EXPECT_EQ("", U8(sub.GetName()));
    EXPECT_EQ("", U8(sub.GetVersion()));
    EXPECT_TRUE(TextsOf(sub).empty());
}

TEST(QRMSubComponent, SettersReturnSuccessAndStoreTheTexts)
{
    QRMSubComponent sub;
    EXPECT_EQ(QRM_KIT_SUCCESS, sub.SetName("Boot agent"));
    EXPECT_EQ(QRM_KIT_SUCCESS, sub.SetVersion("1.2.3"));
    EXPECT_EQ("Boot agent", U8(sub.GetName()));
    EXPECT_EQ("1.2.3", U8(sub.GetVersion()));
}

TEST(QRMSubComponent, EqualTextsAndDisplayValuesAreEqual)
{
    QRMSubComponent a;
    QRMSubComponent b;
    for (QRMSubComponent* sub : {&a, &b}) {
        sub->SetName("Boot agent");
        sub->SetVersion("1.2");
        sub->AddDisplayValue("en", "Agent");
    }
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
}

TEST(QRMSubComponent, DifferentNameMakesThemUnequal)
{
    QRMSubComponent a;
    QRMSubComponent b;
    a.SetName("Boot agent");
    b.SetName("Boot Agent");
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
}

TEST(QRMSubComponent, DifferentVersionMakesThemUnequal)
{
    QRMSubComponent a;
    QRMSubComponent b;
    a.SetVersion("1.2");
    b.SetVersion("1.3");
    EXPECT_FALSE(a == b);
}

TEST(QRMSubComponent, DisplayValuesCompareByTheLanguageMatchingRule)
{
    QRMSubComponent a;
    QRMSubComponent b;
    a.AddDisplayValue("en", "Agent");
    b.AddDisplayValue("fr", "Agent FR");
    EXPECT_TRUE(a == b);

    QRMSubComponent c;
    c.AddDisplayValue("en", "Other");
    EXPECT_FALSE(a == c);

    QRMSubComponent d;
    d.AddDisplayValue("en", "Agent");
    d.AddDisplayValue("de", "Agent DE");
    EXPECT_FALSE(a == d);
}

TEST(QRMSubComponent, CopyIsDeepAndIndependent)
{
    QRMSubComponent source;
    source.SetName("Boot agent");
    source.SetVersion("1.2");
    source.AddDisplayValue("en", "Agent");
    {
        QRMSubComponent copy(source);
        EXPECT_TRUE(copy == source);
        EXPECT_EQ("Boot agent", U8(copy.GetName()));
        EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Agent"}}), TextsOf(copy));
        copy.SetName("Changed");
        copy.RemoveDisplayValue("en");
    }
    EXPECT_EQ("Boot agent", U8(source.GetName()));
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", "Agent"}}), TextsOf(source));
}

TEST(QRMSubComponent, SelfAssignmentEmptiesTheDisplayValuesButKeepsTheTexts)
{
    QRMSubComponent sub;
    sub.SetName("Boot agent");
    sub.SetVersion("1.2");
    sub.AddDisplayValue("en", "Agent");
    QRMSubComponent& alias = sub;
    sub = alias;
    EXPECT_EQ("Boot agent", U8(sub.GetName()));
    EXPECT_EQ("1.2", U8(sub.GetVersion()));
    EXPECT_TRUE(TextsOf(sub).empty());
}
