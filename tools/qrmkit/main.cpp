// qrmkit: reads a catalog and reports its base location; compares versions.
//
//   qrmkit CATALOG [VERSION1 VERSION2]
#include <QRMKit.h>

#include <iostream>

namespace {

const char* Describe(QRMKitReturnCode code)
{
    switch (code) {
    case QRM_KIT_SUCCESS: return "success";
    case QRM_KIT_FAILURE: return "the file is not a well-formed XML document";
    case QRM_KIT_ALREADY_EXISTS: return "an entry is already present";
    case QRM_KIT_NOT_FOUND: return "the file does not exist";
    case QRM_KIT_ELEMENT_MISSING: return "an entry lacks a required element";
    }
    return "unknown error";
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2 && argc != 4) {
        std::cerr << "usage: qrmkit CATALOG [VERSION1 VERSION2]\n";
        return 1;
    }
    QRMKitAPI* api = QRMKitAPI::Instance();
    QRMKitReturnCode code = api->Initialize(VELFile(argv[1]));
    if (code == QRM_KIT_SUCCESS) {
        code = api->Parse(VELFile(argv[1]));
    }
    if (code != QRM_KIT_SUCCESS) {
        std::cerr << "qrmkit: " << argv[1] << ": " << Describe(code) << "\n";
        return 2;
    }
    std::cout << "catalog:       " << argv[1] << "\n";
    std::cout << "base location: " << api->GetBaseLocation().GetUTF8String() << "\n";
    std::cout << "release:       " << api->GetCatalogReleaseID().GetUTF8String() << "\n";
    if (argc == 4) {
        int order = api->CompareVersion(VELString(argv[2]), VELString(argv[3]));
        const char* sign = order == 1 ? ">" : order == -1 ? "<" : order == 0 ? "=" : "?";
        std::cout << "versions:      " << argv[2] << " " << sign << " " << argv[3] << "\n";
    }
    return 0;
}
