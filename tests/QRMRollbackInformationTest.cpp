// QRMRollbackInformation: what a supported device records to undo an
// update, and how two such records compare.
#include "QRMRollbackInformation.h"

#include "ModelBuilders.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using builders::MakeGUID;
using builders::U8;

namespace {

QRMRollbackInformation MakeRollback()
{
    QRMRollbackInformation rollback;
    rollback.SetRollbackIdentifier(MakeGUID(1));
    rollback.SetRollbackVersion("A01");
    rollback.SetPackageIdentifier(MakeGUID(20));
    rollback.SetPackagePath("pkg/old.exe");
    rollback.SetSessionIdentifier(MakeGUID(40));
    rollback.SetSequence(0xFFFF);
    rollback.SetFlags(0x81);
    rollback.SetNote("keep");
    return rollback;
}

}  // namespace

TEST(QRMRollbackInformation, NewRecordHasNilIdentifiersEmptyTextsAndZeroNumbers)
{
    QRMRollbackInformation rollback;
    EXPECT_TRUE(rollback.GetRollbackIdentifier().IsNil());
    EXPECT_TRUE(rollback.GetPackageIdentifier().IsNil());
    EXPECT_TRUE(rollback.GetSessionIdentifier().IsNil());
    EXPECT_EQ("", U8(rollback.GetRollbackVersion()));
    EXPECT_EQ("", U8(rollback.GetPackagePath()));
    EXPECT_EQ("", U8(rollback.GetNote()));
    EXPECT_EQ(0u, rollback.GetSequence());
    EXPECT_EQ(0u, rollback.GetFlags());
}

TEST(QRMRollbackInformation, SettersReturnSuccessAndStoreEveryField)
{
    QRMRollbackInformation rollback;
    EXPECT_EQ(QRM_KIT_SUCCESS, rollback.SetRollbackIdentifier(MakeGUID(1)));
    EXPECT_EQ(QRM_KIT_SUCCESS, rollback.SetRollbackVersion("A01"));
    EXPECT_EQ(QRM_KIT_SUCCESS, rollback.SetPackageIdentifier(MakeGUID(20)));
    EXPECT_EQ(QRM_KIT_SUCCESS, rollback.SetPackagePath("pkg/old.exe"));
    EXPECT_EQ(QRM_KIT_SUCCESS, rollback.SetSessionIdentifier(MakeGUID(40)));
    EXPECT_EQ(QRM_KIT_SUCCESS, rollback.SetSequence(0xFFFF));
    EXPECT_EQ(QRM_KIT_SUCCESS, rollback.SetFlags(0x81));
    EXPECT_EQ(QRM_KIT_SUCCESS, rollback.SetNote("keep"));
    EXPECT_TRUE(rollback.GetRollbackIdentifier() == MakeGUID(1));
    EXPECT_EQ("A01", U8(rollback.GetRollbackVersion()));
    EXPECT_TRUE(rollback.GetPackageIdentifier() == MakeGUID(20));
    EXPECT_EQ("pkg/old.exe", U8(rollback.GetPackagePath()));
    EXPECT_TRUE(rollback.GetSessionIdentifier() == MakeGUID(40));
    EXPECT_EQ(0xFFFFu, rollback.GetSequence());
    EXPECT_EQ(0x81u, rollback.GetFlags());
    EXPECT_EQ("keep", U8(rollback.GetNote()));
}

TEST(QRMRollbackInformation, RecordsWithEveryFieldEqualAreEqual)
{
    EXPECT_TRUE(MakeRollback() == MakeRollback());
    EXPECT_FALSE(MakeRollback() != MakeRollback());
    EXPECT_TRUE(QRMRollbackInformation() == QRMRollbackInformation());
}

TEST(QRMRollbackInformation, DifferentRollbackIdentifierMakesThemUnequal)
{
    QRMRollbackInformation other = MakeRollback();
    other.SetRollbackIdentifier(MakeGUID(2));
    EXPECT_FALSE(MakeRollback() == other);
    EXPECT_TRUE(MakeRollback() != other);
}

TEST(QRMRollbackInformation, DifferentRollbackVersionMakesThemUnequal)
{
    QRMRollbackInformation other = MakeRollback();
    other.SetRollbackVersion("a01");
    EXPECT_FALSE(MakeRollback() == other);
}

TEST(QRMRollbackInformation, DifferentPackageIdentifierMakesThemUnequal)
{
    QRMRollbackInformation other = MakeRollback();
    other.SetPackageIdentifier(MakeGUID(21));
    EXPECT_FALSE(MakeRollback() == other);
}

TEST(QRMRollbackInformation, DifferentPackagePathMakesThemUnequal)
{
    QRMRollbackInformation other = MakeRollback();
    other.SetPackagePath("pkg/new.exe");
    EXPECT_FALSE(MakeRollback() == other);
}

TEST(QRMRollbackInformation, DifferentSessionIdentifierMakesThemUnequal)
{
    QRMRollbackInformation other = MakeRollback();
    other.SetSessionIdentifier(VELGUID());
    EXPECT_FALSE(MakeRollback() == other);
}

TEST(QRMRollbackInformation, DifferentSequenceMakesThemUnequal)
{
    QRMRollbackInformation other = MakeRollback();
    other.SetSequence(0xFFFE);
    EXPECT_FALSE(MakeRollback() == other);
}

TEST(QRMRollbackInformation, DifferentFlagsMakeThemUnequal)
{
    QRMRollbackInformation other = MakeRollback();
    other.SetFlags(0x80);
    EXPECT_FALSE(MakeRollback() == other);
}

TEST(QRMRollbackInformation, DifferentNoteMakesThemUnequal)
{
    QRMRollbackInformation other = MakeRollback();
    other.SetNote("drop");
    EXPECT_FALSE(MakeRollback() == other);
}

TEST(QRMRollbackInformation, CopyAndAssignmentCarryEveryField)
{
    QRMRollbackInformation source = MakeRollback();
    QRMRollbackInformation copy(source);
    EXPECT_TRUE(copy == source);
    QRMRollbackInformation assigned;
    assigned = source;
    EXPECT_TRUE(assigned == source);
    EXPECT_EQ("keep", U8(assigned.GetNote()));
    copy.SetNote("changed");
    EXPECT_EQ("keep", U8(source.GetNote()));
}
