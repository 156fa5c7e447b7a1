// QRMPCIInfo: a supported device's PCI identity (vendor, device, sub-vendor
// and sub-device identifiers) and how two of them compare.
#include "QRMPCIInfo.h"

#include "ModelBuilders.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using builders::MakePCI;

TEST(QRMPCIInfo, NewRecordHasAllFourIdsZero)
{
    QRMPCIInfo pci;
    EXPECT_EQ(0u, pci.GetVendorID());
    EXPECT_EQ(0u, pci.GetDeviceID());
    EXPECT_EQ(0u, pci.GetSubVendorID());
    EXPECT_EQ(0u, pci.GetSubDeviceID());
}

TEST(QRMPCIInfo, SettersReturnSuccessAndStoreEachIdSeparately)
{
    QRMPCIInfo pci;
    EXPECT_EQ(QRM_KIT_SUCCESS, pci.SetVendorID(0x8086));
    EXPECT_EQ(QRM_KIT_SUCCESS, pci.SetDeviceID(0x1000));
    EXPECT_EQ(QRM_KIT_SUCCESS, pci.SetSubVendorID(0x1028));
    EXPECT_EQ(QRM_KIT_SUCCESS, pci.SetSubDeviceID(0xFFFFFFFFu));
    EXPECT_EQ(0x8086u, pci.GetVendorID());
    EXPECT_EQ(0x1000u, pci.GetDeviceID());
    EXPECT_EQ(0x1028u, pci.GetSubVendorID());
    EXPECT_EQ(0xFFFFFFFFu, pci.GetSubDeviceID());
}

TEST(QRMPCIInfo, RecordsWithAllFourIdsEqualAreEqual)
{
    EXPECT_TRUE(MakePCI(1, 2, 3, 4) == MakePCI(1, 2, 3, 4));
    EXPECT_FALSE(MakePCI(1, 2, 3, 4) != MakePCI(1, 2, 3, 4));
}

TEST(QRMPCIInfo, DifferentVendorIdMakesThemUnequal)
{
    EXPECT_FALSE(MakePCI(1, 2, 3, 4) == MakePCI(9, 2, 3, 4));
    EXPECT_TRUE(MakePCI(1, 2, 3, 4) != MakePCI(9, 2, 3, 4));
}

TEST(QRMPCIInfo, DifferentDeviceIdMakesThemUnequal) { EXPECT_FALSE(MakePCI(1, 2, 3, 4) == MakePCI(1, 9, 3, 4)); }

TEST(QRMPCIInfo, DifferentSubVendorIdMakesThemUnequal) { EXPECT_FALSE(MakePCI(1, 2, 3, 4) == MakePCI(1, 2, 9, 4)); }

TEST(QRMPCIInfo, DifferentSubDeviceIdMakesThemUnequal) { EXPECT_FALSE(MakePCI(1, 2, 3, 4) == MakePCI(1, 2, 3, 9)); }

TEST(QRMPCIInfo, AZeroSubIdMatchesOnlyZero)
{
    EXPECT_FALSE(MakePCI(1, 2, 0, 0) == MakePCI(1, 2, 3, 4));
    EXPECT_FALSE(MakePCI(1, 2, 3, 4) == MakePCI(1, 2, 0, 0));
    EXPECT_TRUE(MakePCI(1, 2, 0, 0) == MakePCI(1, 2, 0, 0));
}

TEST(QRMPCIInfo, VendorAndDeviceIdsAreNotInterchangeable)
{
    EXPECT_FALSE(MakePCI(1, 2, 3, 4) == MakePCI(2, 1, 3, 4));
    EXPECT_FALSE(MakePCI(1, 2, 3, 4) == MakePCI(1, 2, 4, 3));
}

TEST(QRMPCIInfo, CopyAndAssignmentCarryAllFourIds)
{
    QRMPCIInfo source = MakePCI(1, 2, 3, 4);
    QRMPCIInfo copy(source);
    EXPECT_TRUE(copy == source);
    QRMPCIInfo assigned;
    assigned = source;
    EXPECT_EQ(1u, assigned.GetVendorID());
    EXPECT_EQ(2u, assigned.GetDeviceID());
    EXPECT_EQ(3u, assigned.GetSubVendorID());
    EXPECT_EQ(4u, assigned.GetSubDeviceID());
    copy.SetVendorID(7);
    EXPECT_EQ(1u, source.GetVendorID());
}
