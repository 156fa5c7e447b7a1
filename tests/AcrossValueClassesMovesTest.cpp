// Moving, copying and assigning the value classes and their owned lists;
// the seldom-used records that devices and components create on first
// change; by-value setters; the duplicate check of an inventory device's
// applications; and the in-place path views.
#include "ModelBuilders.h"
#include "QRMKit.h"
#include "TestSupport.h"
#include "detail/QRMOwnedList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

using builders::MakePCI;

namespace {

std::string Str(const VELString& text) { return text.GetUTF8String(); }

// Returns its argument: lets a test assign an object to itself without the
// compiler noticing.
template <class T>
T& Same(T& value)
{
    return value;
}

// A text long enough to be held on the heap.
VELString Long(const std::string& stem) { return VELString((stem + " that is held on the heap").c_str()); }

// The i-th of a series of distinct PCI records.
QRMPCIInfo NthPCI(unsigned int i) { return MakePCI(0x8086, 0x1000 + i, 0x1028, i * 7); }

void ExpectNthPCI(const QRMPCIInfo& pci, unsigned int i)
{
    EXPECT_EQ(0x8086u, pci.GetVendorID()) << i;
    EXPECT_EQ(0x1000u + i, pci.GetDeviceID()) << i;
    EXPECT_EQ(0x1028u, pci.GetSubVendorID()) << i;
    EXPECT_EQ(i * 7, pci.GetSubDeviceID()) << i;
}

bool IsZeroPCI(const QRMPCIInfo& pci)
{
    return pci.GetVendorID() == 0 && pci.GetDeviceID() == 0 && pci.GetSubVendorID() == 0 && pci.GetSubDeviceID() == 0;
}

QRMPnPInfo MakePnP(unsigned char first)
{
    QRMPnPInfo pnp;
    pnp.SetPrimary(QRMPnPInfo::Primary{{first, 2, 3, 4}});
    pnp.SetValue(QRMPnPInfo::Value{{first, 0, 0, 9}});
    return pnp;
}

QRMSubComponent MakeSubComponent(const char* name)
{
    QRMSubComponent sub;
    sub.SetName(name);
    sub.SetVersion("1.2");
    sub.AddDisplayValue("en", name);
    return sub;
}

QRMDependency MakeDependency(const char* name)
{
    QRMDependency dependency;
    dependency.SetName(name);
    dependency.SetVersion("1.0");
    dependency.SetSize(1234);
    dependency.AddPCIInfo(MakePCI(1, 2, 3, 4));
    return dependency;
}

QRMSoftDependency MakeSoftDependency(const char* name)
{
    QRMSoftDependency dependency;
    dependency.SetName(name);
    dependency.AddApplicability(QRMDeviceApplicability("en", name));
    return dependency;
}

QRMRollbackInformation MakeRollback(const char* version)
{
    QRMRollbackInformation rollback;
    rollback.SetRollbackIdentifier(VELGUID(VELGUID::Bytes{{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}}));
    rollback.SetRollbackVersion(version);
    rollback.SetPackagePath(Long("C:\\rollback\\package"));
    rollback.SetSequence(3);
    return rollback;
}

VELGUID Guid(unsigned char first)
{
    return VELGUID(VELGUID::Bytes{{first, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15}});
}

std::vector<QRMPCIInfo*> PCIOf(const QRMDevice& device)
{
    std::vector<QRMPCIInfo*> out;
    device.GetPCIInfo(out);
    return out;
}

template <class Item>
std::size_t CountOf(const QRMDevice& device, void (QRMDevice::*get)(std::vector<Item>&) const)
{
    std::vector<Item> out;
    (device.*get)(out);
    return out.size();
}

// Every list of the device is empty and its rollback information is new.
void ExpectNoListsAndNewRollback(const QRMDevice& device)
{
    EXPECT_TRUE(PCIOf(device).empty());
    EXPECT_EQ(0u, CountOf(device, &QRMDevice::GetPnPInfo));
    EXPECT_EQ(0u, CountOf(device, &QRMDevice::GetSubComponents));
    EXPECT_EQ(0u, CountOf(device, &QRMDevice::GetDependencies));
    EXPECT_EQ(0u, CountOf(device, &QRMDevice::GetSoftDependencies));
    EXPECT_EQ(0u, CountOf(device, &QRMDevice::GetApplicability));
    EXPECT_TRUE(TextsOf(device).empty());
    EXPECT_TRUE(device.GetRollbackInformation() == QRMRollbackInformation());
}

// A device with `pciCount` distinct PCI records and one entry in every other
// list.
QRMDevice FullDevice(unsigned int pciCount)
{
    QRMDevice device;
    device.SetComponentID(77);
    device.SetEmbedded(true);
    QRMRollbackInformation rollback = MakeRollback("A00");
    device.SetRollbackInformation(rollback);
    for (unsigned int i = 0; i < pciCount; ++i) {
        EXPECT_EQ(QRM_KIT_SUCCESS, device.AddPCIInfo(NthPCI(i)));
    }
    device.AddPnPInfo(MakePnP(1));
    device.AddDisplayValue("en", Long("Network adapter"));
    QRMSubComponent sub = MakeSubComponent("Boot agent");
    device.AddSubComponent(sub);
    QRMDependency dependency = MakeDependency("Runtime");
    device.AddDependency(dependency);
    QRMSoftDependency soft = MakeSoftDependency("Utility");
    device.AddSoftDependency(soft);
    QRMDeviceApplicability applicability("en", "Desktop");
    device.AddApplicability(applicability);
    return device;
}

// The records of FullDevice other than the PCI list.
void ExpectFullRecords(const QRMDevice& device)
{
    EXPECT_EQ(77ULL, device.GetComponentID());
    EXPECT_TRUE(device.IsEmbedded());
    EXPECT_TRUE(device.GetRollbackInformation() == MakeRollback("A00"));
    EXPECT_TRUE(device.HasPnP(MakePnP(1)));
    EXPECT_EQ(1u, CountOf(device, &QRMDevice::GetPnPInfo));
    EXPECT_EQ((std::vector<std::pair<std::string, std::string>>{{"en", Str(Long("Network adapter"))}}),
              TextsOf(device));
    std::vector<QRMSubComponent> subs;
    device.GetSubComponents(subs);
    ASSERT_EQ(1u, subs.size());
    EXPECT_EQ("Boot agent", Str(subs[0].GetName()));
    std::vector<QRMDependency> dependencies;
    device.GetDependencies(dependencies);
    ASSERT_EQ(1u, dependencies.size());
    EXPECT_EQ("Runtime", Str(dependencies[0].GetName()));
    std::vector<QRMSoftDependency> soft;
    device.GetSoftDependencies(soft);
    ASSERT_EQ(1u, soft.size());
    EXPECT_EQ("Utility", Str(soft[0].GetName()));
    std::vector<QRMDeviceApplicability> applicability;
    device.GetApplicability(applicability);
    ASSERT_EQ(1u, applicability.size());
    EXPECT_EQ("Desktop", Str(applicability[0].GetValue()));
}

// One way of giving a device a seldom-used record, with its name.
struct RecordKind {
    const char* name;
    std::function<void(QRMDevice&)> give;
};

std::vector<RecordKind> RecordKinds()
{
    return {
        {"plug-and-play", [](QRMDevice& d) { d.AddPnPInfo(MakePnP(5)); }},
        {"sub-component",
         [](QRMDevice& d) {
             QRMSubComponent sub = MakeSubComponent("Sub");
             d.AddSubComponent(sub);
         }},
        {"dependency",
         [](QRMDevice& d) {
             QRMDependency dependency = MakeDependency("Dep");
             d.AddDependency(dependency);
         }},
        {"soft dependency",
         [](QRMDevice& d) {
             QRMSoftDependency soft = MakeSoftDependency("Soft");
             d.AddSoftDependency(soft);
         }},
        {"applicability",
         [](QRMDevice& d) {
             QRMDeviceApplicability applicability("en", "Laptop");
             d.AddApplicability(applicability);
         }},
        {"rollback information",
         [](QRMDevice& d) {
             QRMRollbackInformation rollback = MakeRollback("B01");
             d.SetRollbackInformation(rollback);
         }},
    };
}

}  // namespace

// ======================================================== owned lists

TEST(OwnedListMoves, MovingHandsOverTheSameObjectsAndLeavesTheSourceEmptyAndUsable)
{
    for (unsigned int count : {1u, 2u, 1000u}) {
        SCOPED_TRACE(count);
        qrm::detail::OwnedList<QRMPCIInfo> source;
        for (unsigned int i = 0; i < count; ++i) {
            source.Append(NthPCI(i));
        }
        std::vector<QRMPCIInfo*> before;
        source.AppendPointersTo(before);

        qrm::detail::OwnedList<QRMPCIInfo> target(std::move(source));
        std::vector<QRMPCIInfo*> after;
        target.AppendPointersTo(after);
        EXPECT_EQ(before, after);
        for (unsigned int i = 0; i < count; ++i) {
            ExpectNthPCI(*target.At(i), i);
        }
        EXPECT_EQ(0u, source.Size());
        EXPECT_TRUE(source.begin() == source.end());
        for (unsigned int i = 0; i < 3; ++i) {
            source.Append(NthPCI(100 + i));
        }
        ASSERT_EQ(3u, source.Size());
        ExpectNthPCI(*source.At(2), 102);

        qrm::detail::OwnedList<QRMPCIInfo> assigned;
        assigned.Append(NthPCI(9999));
        assigned.Append(NthPCI(9998));
        assigned = std::move(target);
        std::vector<QRMPCIInfo*> afterAssignment;
        assigned.AppendPointersTo(afterAssignment);
        EXPECT_EQ(before, afterAssignment);
        EXPECT_EQ(0u, target.Size());
        target.Append(NthPCI(5));
        EXPECT_EQ(1u, target.Size());
    }
}

TEST(OwnedListMoves, SelfMoveAssignmentLeavesAValidList)
{
    qrm::detail::OwnedList<QRMPCIInfo> list;
    list.Append(NthPCI(1));
    list.Append(NthPCI(2));
    list = std::move(Same(list));
    for (QRMPCIInfo* pci : list) {
        EXPECT_NE(nullptr, pci);
    }
    const std::size_t size = list.Size();
    EXPECT_TRUE(size == 2 || size == 0);
    list.Append(NthPCI(3));
    EXPECT_EQ(size + 1, list.Size());
    ExpectNthPCI(*list.At(size), 3);
}

TEST(OwnedListMoves, EntriesTakenOutButKeptMoveWithTheList)
{
    qrm::detail::OwnedList<QRMPCIInfo> source;
    for (unsigned int i = 0; i < 4; ++i) {
        source.Append(NthPCI(i));
    }
    QRMPCIInfo* retired = source.At(1);
    source.Retire(1);
    QRMPCIInfo* removed = source.At(0);
    ASSERT_EQ(QRM_KIT_SUCCESS, source.RemoveClosingUpEqual(NthPCI(0)));
    qrm::detail::OwnedList<QRMPCIInfo> target(std::move(source));
    // Still owned (by the target now): readable until it goes.
    ExpectNthPCI(*retired, 1);
    ExpectNthPCI(*removed, 0);
    ASSERT_EQ(2u, target.Size());
    EXPECT_TRUE(IsZeroPCI(*target.At(0)));
    ExpectNthPCI(*target.At(1), 3);
}

TEST(QRMOwnedListCopies, CopyIsDeepAndInOrderAndSelfAssignmentEmpties)
{
    qrm::detail::OwnedList<QRMPCIInfo> source;
    for (unsigned int i = 0; i < 1000; ++i) {
        source.Append(NthPCI(i));
    }
    qrm::detail::OwnedList<QRMPCIInfo> copy(source);
    ASSERT_EQ(1000u, copy.Size());
    std::set<const QRMPCIInfo*> sourcePointers(source.begin(), source.end());
    for (unsigned int i = 0; i < 1000; ++i) {
        ExpectNthPCI(*copy.At(i), i);
        EXPECT_EQ(0u, sourcePointers.count(copy.At(i))) << i;
    }
    copy.At(0)->SetVendorID(1);
    ExpectNthPCI(*source.At(0), 0);

    qrm::detail::OwnedList<QRMPCIInfo> assigned;
    assigned.Append(NthPCI(5000));
    assigned = source;
    ASSERT_EQ(1000u, assigned.Size());
    ExpectNthPCI(*assigned.At(999), 999);

    assigned = Same(assigned);
    EXPECT_EQ(0u, assigned.Size());
}

TEST(QRMOwnedListEquality, AllPairsRuleAsksAGivenEqualityBothWays)
{
    // With a one-sided relation ("device id not greater") the first list's
    // entries all pass against the second's, but not the other way round.
    qrm::detail::OwnedList<QRMPCIInfo> lower;
    lower.Append(NthPCI(1));
    qrm::detail::OwnedList<QRMPCIInfo> higher;
    higher.Append(NthPCI(2));
    auto notGreater = [](const QRMPCIInfo& left, const QRMPCIInfo& right) {
        return left.GetDeviceID() <= right.GetDeviceID();
    };
    ASSERT_LT(lower.At(0)->GetDeviceID(), higher.At(0)->GetDeviceID());
    EXPECT_FALSE(lower.AllPairsEqual(higher, notGreater));
    EXPECT_FALSE(higher.AllPairsEqual(lower, notGreater));
    EXPECT_TRUE(lower.AllPairsEqual(lower, notGreater));
}

TEST(QRMOwnedListOrder, AThousandEntriesKeepTheirOrderThroughGrowthAndRemoval)
{
    qrm::detail::OwnedList<QRMPCIInfo> list;
    std::vector<QRMPCIInfo*> pointers;
    for (unsigned int i = 0; i < 1000; ++i) {
        EXPECT_EQ(QRM_KIT_SUCCESS, list.AddUnique(NthPCI(i)));
        pointers.push_back(list.At(i));
    }
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, list.AddUnique(NthPCI(500)));
    for (unsigned int i = 0; i < 1000; ++i) {
        ASSERT_EQ(pointers[i], list.At(i)) << i;
    }
    EXPECT_EQ(700u, list.IndexOfEqual(NthPCI(700)));

    // Releasing the first equal entry closes up the list.
    ASSERT_EQ(QRM_KIT_SUCCESS, list.RemoveFirst(NthPCI(10)));
    ASSERT_EQ(999u, list.Size());
    for (unsigned int i = 0; i < 999; ++i) {
        unsigned int original = i < 10 ? i : i + 1;
        ASSERT_EQ(pointers[original], list.At(i)) << i;
        ExpectNthPCI(*list.At(i), original);
    }
    EXPECT_EQ(QRM_KIT_NOT_FOUND, list.RemoveFirst(NthPCI(10)));
}

// ============================================================ devices

TEST(QRMDeviceMoves, MoveConstructionHandsOverTheSamePCIRecordsAndLeavesTheSourceEmpty)
{
    for (unsigned int count : {1u, 1000u}) {
        SCOPED_TRACE(count);
        QRMDevice source = FullDevice(count);
        const std::vector<QRMPCIInfo*> before = PCIOf(source);
        ASSERT_EQ(count, before.size());

        QRMDevice target(std::move(source));
        const std::vector<QRMPCIInfo*> after = PCIOf(target);
        EXPECT_EQ(before, after);
        for (unsigned int i = 0; i < count && i < after.size(); ++i) {
            ExpectNthPCI(*after[i], i);
        }
        ExpectFullRecords(target);
        ExpectNoListsAndNewRollback(source);

        // The emptied source is a working device.
        EXPECT_EQ(QRM_KIT_SUCCESS, source.AddPCIInfo(NthPCI(0)));
        EXPECT_EQ(QRM_KIT_SUCCESS, source.AddPnPInfo(MakePnP(1)));
        EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue("en", "x"));
        ASSERT_EQ(1u, PCIOf(source).size());
        EXPECT_NE(before[0], PCIOf(source)[0]);
        EXPECT_EQ(before, PCIOf(target));
    }
}

TEST(QRMDeviceMoves, MoveAssignmentHandsOverTheSamePCIRecordsAndReplacesTheTargets)
{
    for (unsigned int count : {1u, 1000u}) {
        SCOPED_TRACE(count);
        QRMDevice source = FullDevice(count);
        const std::vector<QRMPCIInfo*> before = PCIOf(source);
        QRMDevice target;
        target.SetComponentID(5);
        target.AddPCIInfo(MakePCI(9, 9, 9, 9));
        target.AddPCIInfo(MakePCI(8, 8, 8, 8));
        target.AddPnPInfo(MakePnP(7));
        target.AddDisplayValue("fr", "Ancien");

        QRMDevice& result = (target = std::move(source));
        EXPECT_EQ(&target, &result);
        EXPECT_EQ(before, PCIOf(target));
        EXPECT_FALSE(target.HasPCI(MakePCI(9, 9, 9, 9)));
        EXPECT_FALSE(target.HasPnP(MakePnP(7)));
        ExpectFullRecords(target);
        ExpectNoListsAndNewRollback(source);
        EXPECT_EQ(QRM_KIT_SUCCESS, source.AddPCIInfo(NthPCI(0)));
    }
}

TEST(QRMDeviceMoves, MoveAssigningADeviceWithoutRecordsDropsTheTargetsRecords)
{
    QRMDevice target = FullDevice(2);
    QRMDevice plain;
    plain.SetComponentID(3);
    target = std::move(plain);
    ExpectNoListsAndNewRollback(target);
    EXPECT_EQ(3ULL, target.GetComponentID());
    QRMDevice expected;
    expected.SetComponentID(3);
    EXPECT_TRUE(target == expected);
}

TEST(QRMDeviceMoves, SelfMoveAssignmentLeavesAWorkingDevice)
{
    QRMDevice device = FullDevice(3);
    device = std::move(Same(device));
    std::vector<QRMPCIInfo*> held = PCIOf(device);
    EXPECT_TRUE(held.size() == 3 || held.empty());
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddPCIInfo(MakePCI(42, 42, 42, 42)));
    EXPECT_TRUE(device.HasPCI(MakePCI(42, 42, 42, 42)));
    EXPECT_EQ(held.size() + 1, PCIOf(device).size());
    QRMDevice copy(device);
    EXPECT_EQ(held.size() + 1, PCIOf(copy).size());
}

TEST(QRMDeviceCopies, CopyIsDeepForAThousandPCIRecordsInOrder)
{
    QRMDevice source = FullDevice(1000);
    const std::vector<QRMPCIInfo*> sourcePointers = PCIOf(source);
    QRMDevice copy(source);
    const std::vector<QRMPCIInfo*> copyPointers = PCIOf(copy);
    ASSERT_EQ(1000u, copyPointers.size());
    std::set<QRMPCIInfo*> fromSource(sourcePointers.begin(), sourcePointers.end());
    for (unsigned int i = 0; i < 1000; ++i) {
        ExpectNthPCI(*copyPointers[i], i);
        EXPECT_EQ(0u, fromSource.count(copyPointers[i])) << i;
    }
    ExpectFullRecords(copy);
    copyPointers[0]->SetVendorID(1);
    copy.AddPnPInfo(MakePnP(9));
    ExpectNthPCI(*sourcePointers[0], 0);
    EXPECT_FALSE(source.HasPnP(MakePnP(9)));

    QRMDevice assigned;
    assigned.AddPCIInfo(MakePCI(9, 9, 9, 9));
    assigned = source;
    const std::vector<QRMPCIInfo*> assignedPointers = PCIOf(assigned);
    ASSERT_EQ(1000u, assignedPointers.size());
    for (unsigned int i = 0; i < 1000; ++i) {
        ExpectNthPCI(*assignedPointers[i], i);
        EXPECT_EQ(0u, fromSource.count(assignedPointers[i])) << i;
    }
    ExpectFullRecords(assigned);
}

TEST(QRMDeviceCopies, SelfAssignmentEmptiesListsAndTextsAndKeepsIdFlagAndRollback)
{
    QRMDevice device = FullDevice(1000);
    device = Same(device);
    EXPECT_EQ(77ULL, device.GetComponentID());
    EXPECT_TRUE(device.IsEmbedded());
    EXPECT_TRUE(device.GetRollbackInformation() == MakeRollback("A00"));
    EXPECT_TRUE(PCIOf(device).empty());
    EXPECT_EQ(0u, CountOf(device, &QRMDevice::GetPnPInfo));
    EXPECT_EQ(0u, CountOf(device, &QRMDevice::GetSubComponents));
    EXPECT_EQ(0u, CountOf(device, &QRMDevice::GetDependencies));
    EXPECT_EQ(0u, CountOf(device, &QRMDevice::GetSoftDependencies));
    EXPECT_EQ(0u, CountOf(device, &QRMDevice::GetApplicability));
    EXPECT_TRUE(TextsOf(device).empty());
}

TEST(QRMDeviceCopies, SelfAssignmentOfADeviceThatNeverHadRecordsKeepsThemNew)
{
    QRMDevice device;
    device.SetComponentID(12);
    device.AddPCIInfo(NthPCI(1));
    device = Same(device);
    EXPECT_EQ(12ULL, device.GetComponentID());
    ExpectNoListsAndNewRollback(device);
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddPnPInfo(MakePnP(1)));
}

TEST(QRMDeviceRemoval, RemovingFromAThousandPCIRecordsKeepsTheDocumentedOrder)
{
    QRMDevice device = FullDevice(1000);
    const std::vector<QRMPCIInfo*> before = PCIOf(device);

    // Not the last: the list closes up and the entry that followed is reset.
    ASSERT_EQ(QRM_KIT_SUCCESS, device.RemovePCIInfo(NthPCI(500)));
    std::vector<QRMPCIInfo*> after = PCIOf(device);
    ASSERT_EQ(999u, after.size());
    for (unsigned int i = 0; i < 500; ++i) {
        ASSERT_EQ(before[i], after[i]) << i;
        ExpectNthPCI(*after[i], i);
    }
    EXPECT_EQ(before[501], after[500]);
    EXPECT_TRUE(IsZeroPCI(*after[500]));
    for (unsigned int i = 501; i < 999; ++i) {
        ASSERT_EQ(before[i + 1], after[i]) << i;
        ExpectNthPCI(*after[i], i + 1);
    }
    EXPECT_FALSE(device.HasPCI(NthPCI(500)));
    EXPECT_FALSE(device.HasPCI(NthPCI(501)));
    EXPECT_TRUE(device.HasPCI(QRMPCIInfo()));
    // The taken-out entry is still readable through the earlier pointer.
    ExpectNthPCI(*before[500], 500);

    // The last: only it goes.
    ASSERT_EQ(QRM_KIT_SUCCESS, device.RemovePCIInfo(NthPCI(999)));
    after = PCIOf(device);
    ASSERT_EQ(998u, after.size());
    EXPECT_EQ(before[998], after[997]);
    ExpectNthPCI(*after[997], 998);
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemovePCIInfo(NthPCI(999)));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddPCIInfo(QRMPCIInfo()));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddPCIInfo(NthPCI(500)));
    ExpectNthPCI(*PCIOf(device).back(), 500);
}

// ---- seldom-used records

TEST(QRMDeviceSeldomRecords, ReadAsNewWhenNeverSet)
{
    QRMDevice device;
    device.SetComponentID(1);
    device.AddPCIInfo(NthPCI(1));
    device.AddDisplayValue("en", "Adapter");
    const QRMDevice& view = device;
    EXPECT_TRUE(view.GetRollbackInformation() == QRMRollbackInformation());
    EXPECT_EQ(0u, CountOf(view, &QRMDevice::GetPnPInfo));
    EXPECT_EQ(0u, CountOf(view, &QRMDevice::GetSubComponents));
    EXPECT_EQ(0u, CountOf(view, &QRMDevice::GetDependencies));
    EXPECT_EQ(0u, CountOf(view, &QRMDevice::GetSoftDependencies));
    EXPECT_EQ(0u, CountOf(view, &QRMDevice::GetApplicability));
    EXPECT_FALSE(view.HasPnP(QRMPnPInfo()));
    QRMDevice copy(device);
    EXPECT_TRUE(copy.GetRollbackInformation() == QRMRollbackInformation());
    EXPECT_EQ(0u, CountOf(copy, &QRMDevice::GetPnPInfo));
}

TEST(QRMDeviceSeldomRecords, EachRecordMakesADeviceDifferFromOneWithout)
{
    for (const RecordKind& kind : RecordKinds()) {
        SCOPED_TRACE(kind.name);
        QRMDevice with;
        with.SetComponentID(4);
        with.AddPCIInfo(NthPCI(1));
        QRMDevice without(with);
        kind.give(with);
        EXPECT_FALSE(with == without);
        EXPECT_FALSE(without == with);
        EXPECT_TRUE(with != without);
        QRMDevice same(without);
        kind.give(same);
        EXPECT_TRUE(with == same);
        EXPECT_TRUE(same == with);
    }
}

TEST(QRMDeviceSeldomRecords, EachRecordSurvivesCopyAndAssignmentBothWays)
{
    for (const RecordKind& kind : RecordKinds()) {
        SCOPED_TRACE(kind.name);
        QRMDevice with;
        with.SetComponentID(4);
        kind.give(with);
        QRMDevice plain;
        plain.SetComponentID(4);

        QRMDevice copy(with);
        EXPECT_TRUE(copy == with);
        EXPECT_FALSE(copy == plain);

        QRMDevice assignedWith(plain);
        assignedWith = with;
        EXPECT_TRUE(assignedWith == with);

        QRMDevice assignedPlain(with);
        assignedPlain = plain;
        EXPECT_TRUE(assignedPlain == plain);
        EXPECT_FALSE(assignedPlain == with);
        ExpectNoListsAndNewRollback(assignedPlain);

        // The copy does not share the records with its source.
        QRMDevice changed(with);
        ASSERT_EQ(QRM_KIT_SUCCESS, changed.AddPnPInfo(MakePnP(77)));
        EXPECT_TRUE(changed.HasPnP(MakePnP(77)));
        EXPECT_FALSE(with.HasPnP(MakePnP(77)));
        EXPECT_TRUE(copy == with);
    }
}

TEST(QRMDeviceSeldomRecords, RecordsAddedAndRemovedAgainCompareLikeNeverSet)
{
    QRMDevice never;
    never.SetComponentID(8);
    QRMDevice emptied(never);
    ASSERT_EQ(QRM_KIT_SUCCESS, emptied.AddPnPInfo(MakePnP(1)));
    ASSERT_EQ(QRM_KIT_SUCCESS, emptied.RemovePnPInfo(MakePnP(1)));
    QRMSubComponent sub = MakeSubComponent("S");
    ASSERT_EQ(QRM_KIT_SUCCESS, emptied.AddSubComponent(sub));
    ASSERT_EQ(QRM_KIT_SUCCESS, emptied.RemoveSubComponent(sub));
    QRMRollbackInformation none;
    emptied.SetRollbackInformation(none);
    EXPECT_TRUE(emptied == never);
    EXPECT_TRUE(never == emptied);

    QRMDevice removedNothing(never);
    QRMDependency dependency = MakeDependency("D");
    EXPECT_EQ(QRM_KIT_NOT_FOUND, removedNothing.RemoveDependency(dependency));
    EXPECT_TRUE(removedNothing == never);
}

TEST(QRMDeviceSeldomRecords, AssigningARecordlessDeviceOverAFullOneLeavesItNew)
{
    QRMDevice target = FullDevice(3);
    QRMDevice source;
    source.SetComponentID(77);
    source.SetEmbedded(true);
    target = source;
    ExpectNoListsAndNewRollback(target);
    EXPECT_TRUE(target == source);
    EXPECT_EQ(QRM_KIT_SUCCESS, target.AddPnPInfo(MakePnP(1)));
    EXPECT_EQ(0u, CountOf(source, &QRMDevice::GetPnPInfo));
}

// ---- by-value setters leave an lvalue argument alone

TEST(AcrossValueClassesByValueSetters, DeviceAddersLeaveTheirArgumentsUnchanged)
{
    QRMDevice device;
    QRMPCIInfo pci = NthPCI(3);
    device.AddPCIInfo(pci);
    ExpectNthPCI(pci, 3);
    QRMPnPInfo pnp = MakePnP(4);
    device.AddPnPInfo(pnp);
    EXPECT_TRUE(pnp == MakePnP(4));
    VELString language("en");
    VELString value = Long("Adapter");
    device.AddDisplayValue(language, value);
    EXPECT_EQ("en", Str(language));
    EXPECT_EQ(Str(Long("Adapter")), Str(value));
    QRMRollbackInformation rollback = MakeRollback("R1");
    device.SetRollbackInformation(rollback);
    EXPECT_TRUE(rollback == MakeRollback("R1"));
    EXPECT_EQ(Str(Long("C:\\rollback\\package")), Str(rollback.GetPackagePath()));
}

TEST(AcrossValueClassesByValueSetters, ComponentSettersLeaveTheirArgumentsUnchanged)
{
    QRMSoftwareComponent component;
    VELString path = Long("FOLDER/driver");
    component.SetPath(path);
    EXPECT_EQ(Str(Long("FOLDER/driver")), Str(path));
    VELString version = Long("xml generator");
    component.SetXMLGenVersion(version);
    EXPECT_EQ(Str(Long("xml generator")), Str(version));
    QRMName name;
    name.AddDisplayValue("en", Long("Driver"));
    name.AddDisplayValue("de", Long("Treiber"));
    component.SetName(name);
    EXPECT_EQ(2u, TextCount(name));
    EXPECT_EQ(2u, TextCount(component.GetName()));
    QRMInstallInstruction instruction;
    instruction.SetCommand(Long("setup.exe"));
    instruction.AddDisplayValue("en", "Run it");
    component.SetInstallInstruction(instruction);
    EXPECT_EQ(Str(Long("setup.exe")), Str(instruction.GetCommand()));
    EXPECT_EQ(1u, TextCount(instruction));
    QRMRevisionHistory history;
    history.AddDisplayValue("en", Long("Fixes"));
    component.SetRevisionHistory(history);
    EXPECT_EQ(1u, TextCount(history));
    QRMOperatingSystem os;
    os.SetCode(Long("WIN"));
    os.AddNumericTag(5);
    QRMSupportedOperatingSystems oses;
    oses.AddOS(os);
    component.SetSupportedOperatingSystems(oses);
    std::vector<QRMOperatingSystem> held;
    oses.GetOSes(held);
    ASSERT_EQ(1u, held.size());
    EXPECT_EQ(Str(Long("WIN")), Str(held[0].GetCode()));
    VELString language("fr");
    VELString text = Long("Pilote");
    component.AddDescriptionDisplayValue(language, text);
    EXPECT_EQ("fr", Str(language));
    EXPECT_EQ(Str(Long("Pilote")), Str(text));
    QRMDevice device = FullDevice(2);
    const std::vector<QRMPCIInfo*> pointers = PCIOf(device);
    component.AddDeviceSupport(device);
    EXPECT_EQ(pointers, PCIOf(device));
    ExpectFullRecords(device);
}

TEST(AcrossValueClassesByValueSetters, OtherSettersLeaveTheirArgumentsUnchanged)
{
    VELString code = Long("code");
    QRMOperatingSystem os;
    os.SetCode(code);
    os.SetVendor(code);
    EXPECT_EQ(Str(Long("code")), Str(code));
    EXPECT_EQ(Str(Long("code")), Str(os.GetVendor()));

    VELString path = Long("bundle/path");
    QRMBundleContent content;
    content.SetPath(path);
    EXPECT_EQ(Str(Long("bundle/path")), Str(path));
    QRMSoftwareBundle bundle;
    bundle.AddContent(content);
    EXPECT_EQ(Str(Long("bundle/path")), Str(content.GetPath()));
    std::vector<QRMBundleContent> contents;
    bundle.GetContents(contents);
    ASSERT_EQ(1u, contents.size());
    EXPECT_EQ(Str(Long("bundle/path")), Str(contents[0].GetPath()));

    VELString version = Long("1.2.3.4.5.6");
    QRMIApplication application;
    application.SetVersion(version);
    application.SetDisplay(version);
    EXPECT_EQ(Str(Long("1.2.3.4.5.6")), Str(version));
    application.AddDisplayValue("en", "App");
    QRMIDevice device;
    device.AddApplication(application);
    EXPECT_EQ(Str(Long("1.2.3.4.5.6")), Str(application.GetVersion()));
    EXPECT_EQ(1u, TextCount(application));
    VELString display = Long("Controller");
    device.SetDisplay(display);
    EXPECT_EQ(Str(Long("Controller")), Str(display));

    VELString language("en");
    VELString value = Long("text");
    QRMDisplay entry(language, value);
    EXPECT_EQ(Str(Long("text")), Str(value));
    EXPECT_EQ(Str(Long("text")), Str(entry.GetValue()));
}

// ========================================================= components

namespace {

QRMSoftwareComponent ComponentWithDevices()
{
    QRMSoftwareComponent component;
    QRMName name;
    name.AddDisplayValue("en", Long("Driver"));
    component.SetName(name);
    component.SetPath(Long("FOLDER/driver"));
    component.AddDescriptionDisplayValue("en", Long("Description"));
    for (unsigned int i = 0; i < 3; ++i) {
        QRMDevice device;
        device.SetComponentID(100 + i);
        device.AddPCIInfo(NthPCI(i));
        component.AddDeviceSupport(std::move(device));
    }
    QRMFMPWrapperInformation wrapper;
    wrapper.SetName(Long("wrapper"));
    component.AddWrapper(wrapper);
    component.SetSize(4096);
    component.SetRequiresReboot(true);
    VELGUID id = Guid(0x31);
    component.SetIdentifier(id);
    return component;
}

std::vector<QRMDevice*> DevicesOf(const QRMSoftwareComponent& component)
{
    std::vector<QRMDevice*> out;
    component.GetSupportedDevices(out);
    return out;
}

std::size_t WrapperCount(const QRMSoftwareComponent& component)
{
    std::vector<QRMFMPWrapperInformation> out;
    component.GetWrappers(out);
    return out.size();
}

// Every seldom-used field of a component reads as new.
void ExpectNewExtras(const QRMSoftwareComponent& component)
{
    EXPECT_TRUE(component.GetInstallInstruction() == QRMInstallInstruction());
    EXPECT_TRUE(component.GetInstallInstruction().GetCommand().IsEmpty());
    EXPECT_EQ(0u, TextCount(component.GetRevisionHistory()));
    EXPECT_EQ(0u, WrapperCount(component));
    EXPECT_TRUE(component.GetMSIID().IsNil());
    EXPECT_TRUE(component.GetIdentifier().IsNil());
    EXPECT_TRUE(component.GetPredecessor().IsNil());
    EXPECT_EQ(0ULL, component.GetSize());
    EXPECT_FALSE(component.RequiresReboot());
    EXPECT_FALSE(component.RequiresContainerPowerCycle());
    EXPECT_TRUE(component.GetXMLGenVersion().IsEmpty());
}

// One way of setting a seldom-used field of a component, to a value that
// differs from new, and another that sets it to its new value.
struct ExtraField {
    const char* name;
    std::function<void(QRMSoftwareComponent&)> set;
    std::function<void(QRMSoftwareComponent&)> setNew;
};

std::vector<ExtraField> ExtraFields()
{
    return {
        {"install instruction",
         [](QRMSoftwareComponent& c) {
             QRMInstallInstruction instruction;
             instruction.SetCommand("setup.exe");
             c.SetInstallInstruction(instruction);
         },
         [](QRMSoftwareComponent& c) { c.SetInstallInstruction(QRMInstallInstruction()); }},
        {"revision history",
         [](QRMSoftwareComponent& c) {
             QRMRevisionHistory history;
             history.AddDisplayValue("en", "Fixes");
             c.SetRevisionHistory(history);
         },
         [](QRMSoftwareComponent& c) { c.SetRevisionHistory(QRMRevisionHistory()); }},
        {"wrapper",
         [](QRMSoftwareComponent& c) {
             QRMFMPWrapperInformation wrapper;
             wrapper.SetName("w");
             c.AddWrapper(wrapper);
         },
         [](QRMSoftwareComponent& c) {
             QRMFMPWrapperInformation wrapper;
             c.AddWrapper(wrapper);
             c.RemoveWrapper(wrapper);
         }},
        {"MSI id",
         [](QRMSoftwareComponent& c) {
             VELGUID id = Guid(0x21);
             c.SetMSIID(id);
         },
         [](QRMSoftwareComponent& c) {
             VELGUID nil;
             c.SetMSIID(nil);
         }},
        {"identifier",
         [](QRMSoftwareComponent& c) {
             VELGUID id = Guid(0x31);
             c.SetIdentifier(id);
         },
         [](QRMSoftwareComponent& c) {
             VELGUID nil;
             c.SetIdentifier(nil);
         }},
        {"predecessor",
         [](QRMSoftwareComponent& c) {
             VELGUID id = Guid(0x41);
             c.SetPredecessor(id);
         },
         [](QRMSoftwareComponent& c) {
             VELGUID nil;
             c.SetPredecessor(nil);
         }},
        {"size", [](QRMSoftwareComponent& c) { c.SetSize(1); }, [](QRMSoftwareComponent& c) { c.SetSize(0); }},
        {"reboot flag", [](QRMSoftwareComponent& c) { c.SetRequiresReboot(true); },
         [](QRMSoftwareComponent& c) { c.SetRequiresReboot(false); }},
        {"power-cycle flag", [](QRMSoftwareComponent& c) { c.SetRequiresContainerPowerCycle(true); },
         [](QRMSoftwareComponent& c) { c.SetRequiresContainerPowerCycle(false); }},
        {"XML generator version", [](QRMSoftwareComponent& c) { c.SetXMLGenVersion("2.0"); },
         [](QRMSoftwareComponent& c) { c.SetXMLGenVersion(VELString()); }},
    };
}

}  // namespace

TEST(QRMSoftwareComponentMoves, MoveConstructionHandsOverTheSameDevicesAndLeavesTheSourceEmpty)
{
    QRMSoftwareComponent source = ComponentWithDevices();
    const std::vector<QRMDevice*> devices = DevicesOf(source);
    ASSERT_EQ(3u, devices.size());
    const std::vector<QRMPCIInfo*> pci = PCIOf(*devices[1]);

    QRMSoftwareComponent target(std::move(source));
    EXPECT_EQ(devices, DevicesOf(target));
    EXPECT_EQ(pci, PCIOf(*DevicesOf(target)[1]));
    EXPECT_EQ(101ULL, DevicesOf(target)[1]->GetComponentID());
    EXPECT_EQ(Str(Long("FOLDER/driver")), Str(target.GetPath()));
    EXPECT_EQ(1u, WrapperCount(target));
    EXPECT_EQ(4096ULL, target.GetSize());
    EXPECT_TRUE(target.RequiresReboot());
    EXPECT_TRUE(target.GetIdentifier() == Guid(0x31));
    EXPECT_EQ(1u, TextCount(target.GetName()));

    EXPECT_TRUE(DevicesOf(source).empty());
    EXPECT_EQ(0u, TextCount(source.GetName()));
    std::vector<QRMDisplay> description;
    source.GetDescriptionDisplayValues(description);
    EXPECT_TRUE(description.empty());
    EXPECT_TRUE(source.GetPath().IsEmpty());
    ExpectNewExtras(source);
    QRMDevice device;
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDeviceSupport(device));
    EXPECT_EQ(1u, DevicesOf(source).size());
}

TEST(QRMSoftwareComponentMoves, MoveAssignmentHandsOverTheSameDevicesAndReplacesTheTargets)
{
    QRMSoftwareComponent source = ComponentWithDevices();
    const std::vector<QRMDevice*> devices = DevicesOf(source);
    QRMSoftwareComponent target;
    QRMDevice old;
    old.SetComponentID(999);
    target.AddDeviceSupport(old);
    VELGUID predecessor = Guid(0x51);
    target.SetPredecessor(predecessor);
    target = std::move(source);
    EXPECT_EQ(devices, DevicesOf(target));
    EXPECT_TRUE(target.GetPredecessor().IsNil());
    EXPECT_EQ(4096ULL, target.GetSize());
    EXPECT_TRUE(DevicesOf(source).empty());
    ExpectNewExtras(source);
}

TEST(QRMSoftwareComponentCopies, CopyHoldsItsOwnDevicesAndRecords)
{
    QRMSoftwareComponent source = ComponentWithDevices();
    const std::vector<QRMDevice*> devices = DevicesOf(source);
    QRMSoftwareComponent copy(source);
    const std::vector<QRMDevice*> copied = DevicesOf(copy);
    ASSERT_EQ(3u, copied.size());
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NE(devices[i], copied[i]);
        EXPECT_EQ(100 + i, copied[i]->GetComponentID());
        EXPECT_NE(PCIOf(*devices[i])[0], PCIOf(*copied[i])[0]);
    }
    EXPECT_EQ(1u, WrapperCount(copy));
    EXPECT_EQ(4096ULL, copy.GetSize());
    copy.SetSize(1);
    copied[0]->SetComponentID(5);
    EXPECT_EQ(4096ULL, source.GetSize());
    EXPECT_EQ(100ULL, devices[0]->GetComponentID());
}

TEST(QRMSoftwareComponentSeldom, ReadAsNewWhenNeverSet)
{
    QRMSoftwareComponent component;
    component.SetPath("FOLDER/x.exe");
    component.SetPackageID("ABC");
    ExpectNewExtras(component);
    QRMSoftwareComponent copy(component);
    ExpectNewExtras(copy);
    QRMSoftwareComponent assigned;
    assigned = component;
    ExpectNewExtras(assigned);
}

TEST(QRMSoftwareComponentSeldom, EachFieldMakesAComponentDifferAndSurvivesCopyAndAssignment)
{
    for (const ExtraField& field : ExtraFields()) {
        SCOPED_TRACE(field.name);
        QRMSoftwareComponent plain;
        plain.SetPath("FOLDER/x.exe");
        QRMSoftwareComponent with(plain);
        field.set(with);
        EXPECT_FALSE(with == plain);
        EXPECT_FALSE(plain == with);
        EXPECT_TRUE(with != plain);

        QRMSoftwareComponent copy(with);
        EXPECT_TRUE(copy == with);
        QRMSoftwareComponent assignedWith(plain);
        assignedWith = with;
        EXPECT_TRUE(assignedWith == with);
        QRMSoftwareComponent assignedPlain(with);
        assignedPlain = plain;
        EXPECT_TRUE(assignedPlain == plain);
        ExpectNewExtras(assignedPlain);

        QRMSoftwareComponent setToNew(plain);
        field.setNew(setToNew);
        EXPECT_TRUE(setToNew == plain);
        EXPECT_TRUE(plain == setToNew);
        ExpectNewExtras(setToNew);
    }
}

TEST(QRMSoftwareComponentSeldom, AllFieldsTogetherComeBackAfterCopyAndMove)
{
    QRMSoftwareComponent component;
    for (const ExtraField& field : ExtraFields()) {
        field.set(component);
    }
    QRMSoftwareComponent copy(component);
    QRMSoftwareComponent moved(std::move(copy));
    for (const QRMSoftwareComponent* c : {&component, &moved}) {
        EXPECT_EQ("setup.exe", Str(c->GetInstallInstruction().GetCommand()));
        EXPECT_EQ(1u, TextCount(c->GetRevisionHistory()));
        EXPECT_EQ(1u, WrapperCount(*c));
        EXPECT_TRUE(c->GetMSIID() == Guid(0x21));
        EXPECT_TRUE(c->GetIdentifier() == Guid(0x31));
        EXPECT_TRUE(c->GetPredecessor() == Guid(0x41));
        EXPECT_EQ(1ULL, c->GetSize());
        EXPECT_TRUE(c->RequiresReboot());
        EXPECT_TRUE(c->RequiresContainerPowerCycle());
        EXPECT_EQ("2.0", Str(c->GetXMLGenVersion()));
    }
    EXPECT_TRUE(moved == component);
    ExpectNewExtras(copy);
}

TEST(QRMSoftwareComponentSeldom, SelfAssignmentOfAComponentWithoutRecordsKeepsThemNew)
{
    QRMSoftwareComponent component;
    component.SetPath("FOLDER/x.exe");
    component = Same(component);
    ExpectNewExtras(component);
    EXPECT_EQ("FOLDER/x.exe", Str(component.GetPath()));
}

TEST(QRMSoftwareComponentSeldom, SelfAssignmentEmptiesWrappersAndKeepsTheOtherRecords)
{
    QRMSoftwareComponent component;
    for (const ExtraField& field : ExtraFields()) {
        field.set(component);
    }
    component = Same(component);
    EXPECT_EQ(0u, WrapperCount(component));
    EXPECT_EQ(1ULL, component.GetSize());
    EXPECT_TRUE(component.GetMSIID() == Guid(0x21));
    EXPECT_TRUE(component.RequiresReboot());
    EXPECT_EQ("2.0", Str(component.GetXMLGenVersion()));
    EXPECT_EQ("setup.exe", Str(component.GetInstallInstruction().GetCommand()));
}

// ================================================= other value classes

TEST(AcrossValueClassesMoves, NameMoveHandsOverTheSameTextObjects)
{
    QRMName source;
    source.AddDisplayValue("en", Long("Driver"));
    source.AddDisplayValue("de", Long("Treiber"));
    std::vector<QRMDisplay*> before;
    source.GetDisplayValues(before);
    QRMName target(std::move(source));
    std::vector<QRMDisplay*> after;
    target.GetDisplayValues(after);
    EXPECT_EQ(before, after);
    EXPECT_EQ(0u, TextCount(source));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddDisplayValue("en", "again"));

    QRMName assigned;
    assigned.AddDisplayValue("fr", "Pilote");
    assigned = std::move(target);
    std::vector<QRMDisplay*> afterAssignment;
    assigned.GetDisplayValues(afterAssignment);
    EXPECT_EQ(before, afterAssignment);
    EXPECT_EQ(Str(Long("Treiber")), Str(afterAssignment[1]->GetValue()));
    EXPECT_EQ(0u, TextCount(target));

    QRMName copy(assigned);
    std::vector<QRMDisplay*> copied;
    copy.GetDisplayValues(copied);
    ASSERT_EQ(2u, copied.size());
    EXPECT_NE(before[0], copied[0]);
    EXPECT_EQ(Str(Long("Driver")), Str(copied[0]->GetValue()));
}

TEST(AcrossValueClassesMoves, OperatingSystemMoveKeepsTagsAndTextsAndEmptiesTheSource)
{
    QRMOperatingSystem source;
    source.SetCode(Long("WIN"));
    source.SetMajorVersion("10");
    source.AddDisplayValue("en", Long("Windows"));
    for (unsigned int tag = 0; tag < 100; ++tag) {
        source.AddNumericTag(tag * 3);
    }
    QRMOperatingSystem copy(source);
    QRMOperatingSystem target(std::move(source));
    std::vector<unsigned int> tags;
    target.GetNumericTags(tags);
    ASSERT_EQ(100u, tags.size());
    for (unsigned int tag = 0; tag < 100; ++tag) {
        EXPECT_EQ(tag * 3, tags[tag]);
    }
    EXPECT_EQ(Str(Long("WIN")), Str(target.GetCode()));
    EXPECT_EQ("10", Str(target.GetMajorVersion()));
    EXPECT_EQ(1u, TextCount(target));
    std::vector<unsigned int> sourceTags;
    source.GetNumericTags(sourceTags);
    EXPECT_TRUE(sourceTags.empty());
    EXPECT_EQ(0u, TextCount(source));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddNumericTag(3));

    std::vector<unsigned int> copiedTags;
    copy.GetNumericTags(copiedTags);
    EXPECT_EQ(tags, copiedTags);
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, copy.AddNumericTag(3));
}

TEST(AcrossValueClassesMoves, SupportedSystemsMoveHandsOverTheSameBrands)
{
    QRMSupportedSystems source;
    source.SetDisplay(true);
    QRMBrand first;
    first.AddDisplayValue("en", "First");
    QRMBrand second;
    second.AddDisplayValue("en", "Second");
    source.AddBrand(first);
    source.AddBrand(second);
    std::vector<QRMBrand*> before;
    source.GetBrands(before);
    ASSERT_EQ(2u, before.size());
    QRMSupportedSystems target(std::move(source));
    std::vector<QRMBrand*> after;
    target.GetBrands(after);
    EXPECT_EQ(before, after);
    EXPECT_TRUE(target.GetDisplay());
    std::vector<QRMBrand*> left;
    source.GetBrands(left);
    EXPECT_TRUE(left.empty());
}

TEST(AcrossValueClassesMoves, BundleMoveKeepsContentsInOrder)
{
    QRMSoftwareBundle source;
    for (int i = 0; i < 50; ++i) {
        QRMBundleContent content;
        content.SetPackageID(VELString(("PKG" + std::to_string(i)).c_str()));
        content.SetPath(Long("path/" + std::to_string(i)));
        source.AddContent(content);
    }
    QRMSoftwareBundle target(std::move(source));
    std::vector<QRMBundleContent> contents;
    target.GetContents(contents);
    ASSERT_EQ(50u, contents.size());
    for (int i = 0; i < 50; ++i) {
        EXPECT_EQ("PKG" + std::to_string(i), Str(contents[i].GetPackageID()));
        EXPECT_EQ(Str(Long("path/" + std::to_string(i))), Str(contents[i].GetPath()));
    }
    std::vector<QRMBundleContent> left;
    source.GetContents(left);
    EXPECT_TRUE(left.empty());
}

// ============================================ inventory applications

namespace {

QRMIApplication App(int i, const char* subComponentID = "")
{
    QRMIApplication application;
    application.SetComponentType(static_cast<QRMComponentTypeValueEnum>(i % 6));
    application.SetVersion(VELString(("1." + std::to_string(i)).c_str()));
    application.SetDisplay(VELString(("Application number " + std::to_string(i)).c_str()));
    application.SetSubComponentID(subComponentID);
    return application;
}

const int kMany = 20000;

QRMIDevice DeviceWithManyApplications()
{
    QRMIDevice device;
    device.SetDisplay("Controller");
    for (int i = 0; i < kMany; ++i) {
        EXPECT_EQ(QRM_KIT_SUCCESS, device.AddApplication(App(i))) << i;
    }
    return device;
}

}  // namespace

TEST(QRMIDeviceApplicationDuplicates, ManyDistinctApplicationsAreKeptAndTheirDuplicatesRefused)
{
    QRMIDevice device = DeviceWithManyApplications();
    for (int i = kMany - 1; i >= 0; --i) {
        ASSERT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddApplication(App(i))) << i;
    }
    for (int i = 0; i < kMany; i += 7) {
        ASSERT_EQ(QRM_KIT_SUCCESS, device.AddApplication(App(i, "sub"))) << i;
        ASSERT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddApplication(App(i, "sub"))) << i;
    }
    const std::vector<QRMIApplication*> held = ApplicationsOf(device);
    const int extra = (kMany + 6) / 7;
    ASSERT_EQ(static_cast<std::size_t>(kMany + extra), held.size());
    for (int i = 0; i < kMany; ++i) {
        ASSERT_TRUE(*held[i] == App(i)) << i;
    }
    for (int k = 0; k < extra; ++k) {
        ASSERT_TRUE(*held[kMany + k] == App(k * 7, "sub")) << k;
    }
}

TEST(QRMIDeviceApplicationDuplicates, DuplicateCheckFollowsTheLanguageMatchingRuleForTexts)
{
    QRMIDevice device;
    QRMIApplication english = App(1);
    english.AddDisplayValue("en", "X");
    ASSERT_EQ(QRM_KIT_SUCCESS, device.AddApplication(english));
    for (int i = 2; i < 1000; ++i) {
        ASSERT_EQ(QRM_KIT_SUCCESS, device.AddApplication(App(i)));
    }
    // Different language only: equal by the rule, so refused.
    QRMIApplication french = App(1);
    french.AddDisplayValue("fr", "Y");
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddApplication(french));
    // Same language, other text: a different application.
    QRMIApplication otherText = App(1);
    otherText.AddDisplayValue("en", "Z");
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddApplication(otherText));
    // A different number of texts: a different application.
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddApplication(App(1)));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddApplication(App(1)));
    EXPECT_EQ(1001u, ApplicationsOf(device).size());
}

TEST(QRMIDeviceApplicationDuplicates, ApplicationChangedThroughAHandedOutPointerIsSeenByTheCheck)
{
    QRMIDevice device = DeviceWithManyApplications();
    std::vector<QRMIApplication*> held = ApplicationsOf(device);
    ASSERT_EQ(static_cast<std::size_t>(kMany), held.size());
    held[12345]->SetVersion("changed");
    QRMIApplication changed = App(12345);
    changed.SetVersion("changed");
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddApplication(changed));
    // The application as it was is no longer held.
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddApplication(App(12345)));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddApplication(App(12345)));
    // A text added through a pointer makes the held one differ as well.
    held[7]->AddDisplayValue("en", "text");
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddApplication(App(7)));
    QRMIApplication withText = App(7);
    withText.AddDisplayValue("en", "text");
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddApplication(withText));
    // Untouched ones are still refused.
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddApplication(App(0)));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddApplication(App(kMany - 1)));
    held = ApplicationsOf(device);
    ASSERT_EQ(static_cast<std::size_t>(kMany + 2), held.size());
    EXPECT_TRUE(*held[kMany] == App(12345));
    EXPECT_TRUE(*held[kMany + 1] == App(7));
}

TEST(QRMIDeviceApplicationDuplicates, ChangeThroughAPointerObtainedBeforeFurtherAddsIsSeen)
{
    QRMIDevice device;
    ASSERT_EQ(QRM_KIT_SUCCESS, device.AddApplication(App(1)));
    std::vector<QRMIApplication*> held = ApplicationsOf(device);
    for (int i = 2; i < 500; ++i) {
        ASSERT_EQ(QRM_KIT_SUCCESS, device.AddApplication(App(i)));
    }
    held[0]->SetDisplay("renamed");
    QRMIApplication renamed = App(1);
    renamed.SetDisplay("renamed");
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddApplication(renamed));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddApplication(App(1)));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddApplication(App(499)));
}

TEST(QRMIDeviceApplicationDuplicates, RemovedApplicationCanBeAddedAgainAtTheEnd)
{
    QRMIDevice device = DeviceWithManyApplications();
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveApplication(App(100)));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddApplication(App(101)));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddApplication(App(100)));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddApplication(App(100)));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveApplication(App(kMany + 5)));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddApplication(App(kMany + 5)));
    const std::vector<QRMIApplication*> held = ApplicationsOf(device);
    ASSERT_EQ(static_cast<std::size_t>(kMany + 1), held.size());
    EXPECT_TRUE(*held[99] == App(99));
    EXPECT_TRUE(*held[100] == App(101));
    EXPECT_TRUE(*held[kMany - 1] == App(100));
    EXPECT_TRUE(*held[kMany] == App(kMany + 5));
}

TEST(QRMIDeviceApplicationDuplicates, RemovalAfterHandOutKeepsTheOldPointerAndReAddsANewObject)
{
    QRMIDevice device;
    for (int i = 0; i < 5; ++i) {
        ASSERT_EQ(QRM_KIT_SUCCESS, device.AddApplication(App(i)));
    }
    const std::vector<QRMIApplication*> before = ApplicationsOf(device);
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveApplication(App(2)));
    EXPECT_TRUE(*before[2] == App(2));  // still readable
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddApplication(App(2)));
    const std::vector<QRMIApplication*> after = ApplicationsOf(device);
    ASSERT_EQ(5u, after.size());
    EXPECT_EQ(before[3], after[2]);
    EXPECT_NE(before[2], after[4]);
    EXPECT_TRUE(*after[4] == App(2));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddApplication(App(2)));
}

TEST(QRMIDeviceApplicationDuplicates, AnEqualCopyMadeThroughAPointerSurvivesRemovalOfTheFirst)
{
    QRMIDevice device;
    ASSERT_EQ(QRM_KIT_SUCCESS, device.AddApplication(App(1)));
    ASSERT_EQ(QRM_KIT_SUCCESS, device.AddApplication(App(2)));
    std::vector<QRMIApplication*> held = ApplicationsOf(device);
    *held[1] = App(1);
    // The walk skips the entry that moves into the freed place.
    EXPECT_EQ(QRM_KIT_NOT_FOUND, device.RemoveApplication(App(1)));
    held = ApplicationsOf(device);
    ASSERT_EQ(1u, held.size());
    EXPECT_TRUE(*held[0] == App(1));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, device.AddApplication(App(1)));
    EXPECT_EQ(QRM_KIT_SUCCESS, device.AddApplication(App(2)));
}

TEST(QRMIDeviceApplicationDuplicates, CopiesOfADeviceRefuseAndAcceptTheSame)
{
    QRMIDevice source = DeviceWithManyApplications();
    QRMIDevice copy(source);
    for (int i = 0; i < kMany; i += 97) {
        ASSERT_EQ(QRM_KIT_ALREADY_EXISTS, copy.AddApplication(App(i))) << i;
    }
    EXPECT_EQ(QRM_KIT_SUCCESS, copy.AddApplication(App(kMany)));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, copy.AddApplication(App(kMany)));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddApplication(App(kMany)));
    EXPECT_EQ(static_cast<std::size_t>(kMany + 1), ApplicationsOf(copy).size());
    EXPECT_EQ(static_cast<std::size_t>(kMany + 1), ApplicationsOf(source).size());
}

TEST(QRMIDeviceApplicationDuplicates, CopyOfADeviceWhoseApplicationWasChangedSeesTheChange)
{
    QRMIDevice source;
    for (int i = 0; i < 1000; ++i) {
        ASSERT_EQ(QRM_KIT_SUCCESS, source.AddApplication(App(i)));
    }
    ApplicationsOf(source)[500]->SetVersion("changed");
    QRMIDevice copy(source);
    QRMIApplication changed = App(500);
    changed.SetVersion("changed");
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, copy.AddApplication(changed));
    EXPECT_EQ(QRM_KIT_SUCCESS, copy.AddApplication(App(500)));
    // The copy's applications are its own: changing one is seen by the copy
    // only.
    std::vector<QRMIApplication*> copied = ApplicationsOf(copy);
    copied[0]->SetVersion("copy only");
    QRMIApplication copyOnly = App(0);
    copyOnly.SetVersion("copy only");
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, copy.AddApplication(copyOnly));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, source.AddApplication(App(0)));
    EXPECT_EQ(QRM_KIT_SUCCESS, source.AddApplication(copyOnly));
}

TEST(QRMIDeviceApplicationDuplicates, AssignmentKeepsTheTargetsOwnApplicationsForTheCheck)
{
    QRMIDevice source = DeviceWithManyApplications();
    QRMIDevice target;
    for (int i = kMany; i < kMany + 100; ++i) {
        ASSERT_EQ(QRM_KIT_SUCCESS, target.AddApplication(App(i)));
    }
    target = source;
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, target.AddApplication(App(kMany + 50)));
    EXPECT_EQ(QRM_KIT_SUCCESS, target.AddApplication(App(5)));
    EXPECT_EQ(101u, ApplicationsOf(target).size());
    EXPECT_EQ("Controller", Str(target.GetDisplay()));
}

// ========================================================= path views

TEST(AcrossValueClassesPathViews, BundleContentPathViewHasTheSameUnitsAsGetPath)
{
    const char* paths[] = {
        "", "a", "abcdefg", "abcdefgh", "FOLDER01/driver_setup_A00.exe", "dir/caf\xC3\xA9/\xF0\x9F\x98\x80.exe"};
    for (const char* path : paths) {
        SCOPED_TRACE(path);
        QRMBundleContent content;
        content.SetPath(path);
        EXPECT_EQ(content.GetPath().GetUTF16View(), content.GetPathView());
        EXPECT_EQ(VELString(path).GetUTF16String(), std::u16string(content.GetPathView()));
        QRMBundleContent copy(content);
        EXPECT_EQ(content.GetPath().GetUTF16String(), std::u16string(copy.GetPathView()));
        QRMBundleContent moved(std::move(copy));
        EXPECT_EQ(content.GetPath().GetUTF16String(), std::u16string(moved.GetPathView()));
    }
    QRMBundleContent content;
    EXPECT_TRUE(content.GetPathView().empty());
    content.SetPath("short");
    content.SetPath(Long("now long"));
    EXPECT_EQ(Long("now long").GetUTF16String(), std::u16string(content.GetPathView()));
    content.SetPath("short");
    EXPECT_EQ(u"short", content.GetPathView());
}

TEST(AcrossValueClassesPathViews, SoftwareComponentPathViewHasTheSameUnitsAsGetPath)
{
    const char* paths[] = {
        "", "a", "abcdefg", "abcdefgh", "FOLDER01/driver_setup_A00.exe", "dir/caf\xC3\xA9/\xF0\x9F\x98\x80.exe"};
    for (const char* path : paths) {
        SCOPED_TRACE(path);
        QRMSoftwareComponent component;
        component.SetPath(path);
        EXPECT_EQ(component.GetPath().GetUTF16View(), component.GetPathView());
        EXPECT_EQ(VELString(path).GetUTF16String(), std::u16string(component.GetPathView()));
        QRMSoftwareComponent copy(component);
        EXPECT_EQ(component.GetPath().GetUTF16String(), std::u16string(copy.GetPathView()));
    }
    QRMSoftwareComponent component;
    EXPECT_TRUE(component.GetPathView().empty());
    component.SetPath(Long("now long"));
    EXPECT_EQ(Long("now long").GetUTF16String(), std::u16string(component.GetPathView()));
    component.SetPath("abc");
    EXPECT_EQ(u"abc", component.GetPathView());
}
