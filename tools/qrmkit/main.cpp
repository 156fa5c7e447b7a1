// qrmkit: which catalog packages update the applications of an inventory.
//
//   qrmkit CATALOG INVENTORY [BUNDLE_TYPE]
#include <QRMKit.h>

#include <iomanip>
#include <iostream>

namespace {

const char* Describe(QRMKitReturnCode code)
{
    switch (code) {
    case QRM_KIT_SUCCESS: return "success";
    case QRM_KIT_FAILURE: return "the file is not a readable document of that kind";
    case QRM_KIT_ALREADY_EXISTS: return "an entry is already present";
    case QRM_KIT_NOT_FOUND: return "the file does not exist";
    case QRM_KIT_ELEMENT_MISSING: return "an entry lacks a required element";
    }
    return "unknown error";
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 3 || argc > 4) {
        std::cerr << "usage: qrmkit CATALOG INVENTORY [BUNDLE_TYPE]\n";
        return 1;
    }
    QRMBundleTypeEnum bundleType = QRM_BUNDLE_BTW64;
    if (argc == 4 && !QRMBundleTypeFromText(VELString(argv[3]), bundleType)) {
        std::cerr << "qrmkit: unknown bundle type " << argv[3] << "\n";
        return 1;
    }
    QRMKitAPI* api = QRMKitAPI::Instance();
    QRMKitReturnCode code = api->Parse(VELFile(argv[1]));
    if (code != QRM_KIT_SUCCESS) {
        std::cerr << "qrmkit: " << argv[1] << ": " << Describe(code) << "\n";
        return 2;
    }
    code = api->ParseInventory(VELFile(argv[2]));
    if (code != QRM_KIT_SUCCESS) {
        std::cerr << "qrmkit: " << argv[2] << ": " << Describe(code) << "\n";
        return 2;
    }
    std::map<QRMIApplication*, QRMSoftwareComponent*> updates;
    if (api->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, bundleType) != QRM_KIT_SUCCESS) {
        std::cerr << "qrmkit: no " << QRMBundleTypeText(bundleType) << " bundle applies to this system\n";
        return 2;
    }
    std::vector<QRMIDevice*> devices;
    api->GetInventory(devices);
    std::cout << std::left << std::setw(34) << "application" << std::setw(12) << "installed" << std::setw(12)
              << "available" << "package\n";
    for (const QRMIDevice* device : devices) {
        std::vector<QRMIApplication*> applications;
        device->GetApplications(applications);
        for (QRMIApplication* application : applications) {
            auto update = updates.find(application);
            if (update == updates.end()) {
                continue;
            }
            std::cout << std::setw(34) << application->GetDisplay().GetUTF8String() << std::setw(12)
                      << application->GetVersion().GetUTF8String() << std::setw(12)
                      << update->second->GetVendorVersion().GetUTF8String()
                      << api->GetBaseLocation().GetUTF8String() << "/" << update->second->GetPath().GetUTF8String()
                      << "\n";
        }
    }
    return 0;
}
