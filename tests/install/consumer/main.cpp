// A caller of the installed library: reads a catalog and compares versions.
#include <QRMKit.h>

#include <iostream>

int main(int argc, char** argv)
{
    if (argc != 2) {
        return 1;
    }
    QRMKitAPI* api = QRMKitAPI::Instance();
    if (api->Parse(VELFile(argv[1])) != QRM_KIT_SUCCESS) {
        return 2;
    }
    std::cout << api->GetBaseLocation().GetUTF8String() << " "
              << api->CompareVersion(VELString("1.2.10"), VELString("1.2.9")) << "\n";
    return 0;
}
