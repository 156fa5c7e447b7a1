// QRMPnPInfo: a supported device's plug-and-play identity, with its optional
// primary and secondary parts, and how two of them compare.
#include "QRMPnPInfo.h"

#include "ModelBuilders.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using builders::MakePnP;

TEST(QRMPnPInfo, NewRecordHasNoOptionalPartsAndAZeroValue)
{
    QRMPnPInfo pnp;
    EXPECT_FALSE(pnp.HasPrimary());
    EXPECT_FALSE(pnp.HasSecondary());
    EXPECT_EQ((QRMPnPInfo::Primary{{0, 0, 0, 0}}), pnp.GetPrimary());
    EXPECT_EQ((QRMPnPInfo::Secondary{{0, 0, 0}}), pnp.GetSecondary());
    EXPECT_EQ((QRMPnPInfo::Value{{0, 0, 0, 0}}), pnp.GetValue());
}

TEST(QRMPnPInfo, SettersReturnSuccessAndStoreTheBytes)
{
    QRMPnPInfo pnp;
    EXPECT_EQ(QRM_KIT_SUCCESS, pnp.SetPrimary(QRMPnPInfo::Primary{{1, 2, 3, 4}}));
    EXPECT_EQ(QRM_KIT_SUCCESS, pnp.SetSecondary(QRMPnPInfo::Secondary{{5, 6, 7}}));
    EXPECT_EQ(QRM_KIT_SUCCESS, pnp.SetValue(QRMPnPInfo::Value{{8, 9, 10, 255}}));
    EXPECT_TRUE(pnp.HasPrimary());
    EXPECT_TRUE(pnp.HasSecondary());
    EXPECT_EQ((QRMPnPInfo::Primary{{1, 2, 3, 4}}), pnp.GetPrimary());
    EXPECT_EQ((QRMPnPInfo::Secondary{{5, 6, 7}}), pnp.GetSecondary());
    EXPECT_EQ((QRMPnPInfo::Value{{8, 9, 10, 255}}), pnp.GetValue());
}

TEST(QRMPnPInfo, ClearingTheOptionalPartsReturnsSuccessAndMakesThemAbsent)
{
    QRMPnPInfo pnp = MakePnP(1);
    EXPECT_EQ(QRM_KIT_SUCCESS, pnp.ClearPrimary());
    EXPECT_FALSE(pnp.HasPrimary());
    EXPECT_EQ((QRMPnPInfo::Primary{{0, 0, 0, 0}}), pnp.GetPrimary());
    EXPECT_TRUE(pnp.HasSecondary());
    EXPECT_EQ(QRM_KIT_SUCCESS, pnp.ClearSecondary());
    EXPECT_FALSE(pnp.HasSecondary());
    EXPECT_EQ((QRMPnPInfo::Value{{6, 1, 7, 8}}), pnp.GetValue());
}

TEST(QRMPnPInfo, RecordsWithEqualPartsAreEqual)
{
    EXPECT_TRUE(MakePnP(1) == MakePnP(1));
    EXPECT_FALSE(MakePnP(1) != MakePnP(1));
}

TEST(QRMPnPInfo, TwoNewRecordsWithBothOptionalPartsAbsentAreEqual)
{
    QRMPnPInfo a;
    QRMPnPInfo b;
    EXPECT_TRUE(a == b);
}

TEST(QRMPnPInfo, AbsentPrimaryOnBothSidesCompareEqualWhateverWasOnceStored)
{
    QRMPnPInfo a = MakePnP(1);
    QRMPnPInfo b = MakePnP(1);
    a.SetPrimary(QRMPnPInfo::Primary{{9, 9, 9, 9}});
    a.ClearPrimary();
    b.ClearPrimary();
    EXPECT_TRUE(a == b);
}

TEST(QRMPnPInfo, PrimaryPresentOnOneSideOnlyMakesThemUnequal)
{
    QRMPnPInfo present = MakePnP(1);
    QRMPnPInfo absent = MakePnP(1);
    absent.ClearPrimary();
    EXPECT_FALSE(present == absent);
    EXPECT_FALSE(absent == present);
    EXPECT_TRUE(present != absent);
}

TEST(QRMPnPInfo, APrimaryOfZeroBytesIsStillUnequalToAnAbsentOne)
{
    QRMPnPInfo zero;
    zero.SetPrimary(QRMPnPInfo::Primary{{0, 0, 0, 0}});
    QRMPnPInfo absent;
    EXPECT_FALSE(zero == absent);
}

TEST(QRMPnPInfo, DifferentPrimaryBytesMakeThemUnequal)
{
    QRMPnPInfo a = MakePnP(1);
    QRMPnPInfo b = MakePnP(1);
    b.SetPrimary(QRMPnPInfo::Primary{{1, 1, 2, 4}});
    EXPECT_FALSE(a == b);
}

TEST(QRMPnPInfo, SecondaryPresentOnOneSideOnlyMakesThemUnequal)
{
    QRMPnPInfo present = MakePnP(1);
    QRMPnPInfo absent = MakePnP(1);
    absent.ClearSecondary();
    EXPECT_FALSE(present == absent);
    EXPECT_FALSE(absent == present);
}

TEST(QRMPnPInfo, DifferentSecondaryBytesMakeThemUnequal)
{
    QRMPnPInfo a = MakePnP(1);
    QRMPnPInfo b = MakePnP(1);
    b.SetSecondary(QRMPnPInfo::Secondary{{4, 5, 2}});
    EXPECT_FALSE(a == b);
}

TEST(QRMPnPInfo, DifferentValueBytesMakeThemUnequal)
{
    QRMPnPInfo a = MakePnP(1);
    QRMPnPInfo b = MakePnP(1);
    b.SetValue(QRMPnPInfo::Value{{6, 1, 7, 9}});
    EXPECT_FALSE(a == b);
}

TEST(QRMPnPInfo, CopyHasItsOwnOptionalPartsOnlyWhereTheSourceHasThem)
{
    QRMPnPInfo source = MakePnP(1);
    source.ClearSecondary();
    QRMPnPInfo copy(source);
    EXPECT_TRUE(copy.HasPrimary());
    EXPECT_FALSE(copy.HasSecondary());
    EXPECT_TRUE(copy == source);
    copy.SetPrimary(QRMPnPInfo::Primary{{7, 7, 7, 7}});
    EXPECT_EQ((QRMPnPInfo::Primary{{1, 1, 2, 3}}), source.GetPrimary());
}

TEST(QRMPnPInfo, AssignmentTakesOverPresenceAndBytesOfTheSource)
{
    QRMPnPInfo target = MakePnP(2);
    QRMPnPInfo source;
    source.SetSecondary(QRMPnPInfo::Secondary{{1, 2, 3}});
    target = source;
    EXPECT_FALSE(target.HasPrimary());
    EXPECT_TRUE(target.HasSecondary());
    EXPECT_EQ((QRMPnPInfo::Secondary{{1, 2, 3}}), target.GetSecondary());
    EXPECT_EQ((QRMPnPInfo::Value{{0, 0, 0, 0}}), target.GetValue());
    EXPECT_TRUE(target == source);
}
