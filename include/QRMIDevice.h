// QRMIDevice: one device of the inventoried computer: its PCI location and
// identity, its component id, and the applications installed for it.
#ifndef QRMKIT_I_DEVICE_H
#define QRMKIT_I_DEVICE_H

#include "QRMDisplay.h"
#include "QRMIApplication.h"
#include "QRMKitTypes.h"
#include "VELString.h"
#include "detail/QRMApplicationList.h"
#include "detail/QRMDisplayTexts.h"

#include <vector>

class QRMKIT_API QRMIDevice {
public:
    QRMIDevice();
    // Deep copy, applications included.
    QRMIDevice(const QRMIDevice& other);
    // Copies the display name, the numbers and the texts, but not the
    // applications: the target keeps its own. Kept for compatibility:
    // callers rely on assignment leaving the applications alone.
    QRMIDevice& operator=(const QRMIDevice& other);
    ~QRMIDevice();

    int GetBus() const;
    QRMKitReturnCode SetBus(int bus);
    int GetDevice() const;
    QRMKitReturnCode SetDevice(int device);
    int GetFunction() const;
    QRMKitReturnCode SetFunction(int function);
    int GetVendorID() const;
    QRMKitReturnCode SetVendorID(int vendorID);
    int GetDeviceID() const;
    QRMKitReturnCode SetDeviceID(int deviceID);
    int GetSubVendorID() const;
    QRMKitReturnCode SetSubVendorID(int subVendorID);
    int GetSubDeviceID() const;
    QRMKitReturnCode SetSubDeviceID(int subDeviceID);
    int GetComponentInstance() const;
    QRMKitReturnCode SetComponentInstance(int componentInstance);
    unsigned long long GetComponentID() const;
    QRMKitReturnCode SetComponentID(unsigned long long componentID);
    VELString GetDisplay() const;
    QRMKitReturnCode SetDisplay(VELString display);

    // Appends the held applications themselves, in order, without clearing
    // `out`; they stay valid while the device lives.
    void GetApplications(std::vector<QRMIApplication*>& out) const;
    // QRM_KIT_ALREADY_EXISTS when an equal application is held, else a copy
    // is appended.
    QRMKitReturnCode AddApplication(QRMIApplication application);
    // Takes out the applications equal to `application`, walking from the
    // front and skipping the entry that moves into a freed place. Taken-out
    // applications stay alive (pointers obtained earlier remain valid) until
    // the device is destroyed. Returns QRM_KIT_NOT_FOUND in every case, so a
    // caller cannot tell removal from absence. Kept for compatibility.
    QRMKitReturnCode RemoveApplication(const QRMIApplication& application);

    // The texts, under the display-text rule (QRMDisplay.h).
    QRMKitReturnCode AddDisplayValue(VELString language, VELString value);
    QRMKitReturnCode RemoveDisplayValue(const VELString& language);
    void GetDisplayValues(std::vector<QRMDisplay>& out) const;

    // Display name, the nine numbers, the texts where languages coincide
    // (their counts are not compared); then the devices are unequal as soon
    // as an application of one equals an application of the other. Kept for
    // compatibility: the inventory relies on this rule to store a second copy
    // of a device that lists applications.
    bool operator==(const QRMIDevice& other) const;
    bool operator!=(const QRMIDevice& other) const;

private:
    qrm::detail::DisplayTexts mTexts;
    qrm::detail::ApplicationList mApplications;
    VELString mDisplay;
    int mBus;
    int mDevice;
    int mFunction;
    unsigned long long mComponentID;
    int mVendorID;
    int mDeviceID;
    int mSubDeviceID;
    int mSubVendorID;
    int mComponentInstance;
};

#endif
