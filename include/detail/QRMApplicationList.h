// Internal to the library: not part of its contract, may change in any
// version. Do not include this header directly.
//
// ApplicationList: the applications of one inventory device, in the order
// they were added, with an index that finds an equal application without
// walking them all while the device is being filled (a device may list
// very many).
#ifndef QRMKIT_DETAIL_APPLICATION_LIST_H
#define QRMKIT_DETAIL_APPLICATION_LIST_H

#include "../QRMIApplication.h"
#include "../QRMKitTypes.h"
#include "QRMOwnedList.h"

#include <memory>
#include <vector>

namespace qrm::detail {

class ApplicationList {
public:
    ApplicationList();
    // A deep copy, in order.
    ApplicationList(const ApplicationList& other);
    ApplicationList& operator=(const ApplicationList& other) = delete;
    ~ApplicationList();

    const OwnedList<QRMIApplication>& Entries() const { return mEntries; }

    // Appends the held applications themselves, in order. From then on a
    // caller may change them, so the index is no longer trusted and adding
    // walks the list again.
    void HandOut(std::vector<QRMIApplication*>& out) const;
    // QRM_KIT_ALREADY_EXISTS when an equal application is held, else appends
    // it and returns QRM_KIT_SUCCESS.
    QRMKitReturnCode AddUnique(QRMIApplication application);
    // Takes out the applications equal to `application`, walking from the
    // front and skipping the entry that moves into a freed place; taken-out
    // applications stay alive until the list is destroyed.
    void RetireEqual(const QRMIApplication& application);

private:
    struct Index;

    OwnedList<QRMIApplication> mEntries;
    mutable std::unique_ptr<Index> mIndex;
    mutable bool mHandedOut;
};

}  // namespace qrm::detail

#endif
