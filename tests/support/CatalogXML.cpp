#include "CatalogXML.h"

#include <utility>
#include <vector>

namespace {

typedef std::vector<std::pair<std::string, std::string>> Children;

std::string Element(const std::string& open, const Children& children, const std::string& close,
                    const std::string& leaveOut, const std::string& twice)
{
    std::string xml = open;
    for (const auto& child : children) {
        if (child.first == leaveOut) {
            continue;
        }
        xml += child.second;
        if (child.first == twice) {
            xml += child.second;
        }
    }
    return xml + close;
}

}  // namespace

namespace CatalogXML {

std::string Bundle(const std::string& bundleID, const std::string& leaveOut, const std::string& twice)
{
    Children children = {
        {"Name", "<Name><Display lang=\"en\">Bundle " + bundleID + "</Display></Name>"},
        {"ComponentType", "<ComponentType value=\"SBDL\"><Display lang=\"en\">System Bundle</Display></ComponentType>"},
        {"Contents", "<Contents><Package path=\"" + bundleID + "-a.exe\" packageID=\"" + bundleID + "A\"/></Contents>"},
    };
    return Element("<SoftwareBundle bundleID=\"" + bundleID + "\" bundleType=\"BTW64\" path=\"" + bundleID +
                       ".xml\" dateTime=\"1700000000\">",
                   children, "</SoftwareBundle>", leaveOut, twice);
}

std::string Component(const std::string& packageID, const std::string& leaveOut, const std::string& twice)
{
    Children children = {
        {"Name", "<Name><Display lang=\"en\">Component " + packageID + "</Display></Name>"},
        {"ComponentType", "<ComponentType value=\"BIOS\"><Display lang=\"en\">BIOS</Display></ComponentType>"},
        {"Category", "<Category value=\"BI\"><Display lang=\"en\">BIOS</Display></Category>"},
        {"SupportedDevices", "<SupportedDevices><Device componentID=\"159\" embedded=\"1\">"
                             "<PCIInfo deviceID=\"0A6B\" vendorID=\"8086\" subDeviceID=\"04A3\" subVendorID=\"1028\"/>"
                             "<Display lang=\"en\">Device</Display></Device></SupportedDevices>"},
    };
    return Element("<SoftwareComponent packageID=\"" + packageID + "\" path=\"" + packageID +
                       ".exe\" vendorVersion=\"1.0.0\" dateTime=\"1700000000\">",
                   children, "</SoftwareComponent>", leaveOut, twice);
}

std::string InventoryComponent(const std::string& osCode, const std::string& path)
{
    return "<InventoryComponent osCode=\"" + osCode + "\" path=\"" + path + "\"/>";
}

std::string Document(const std::string& rootAttributes, const std::string& entries, const std::string& rootName)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<" + rootName +
           (rootAttributes.empty() ? "" : " " + rootAttributes) + ">" + entries + "</" + rootName + ">\n";
}

}  // namespace CatalogXML
