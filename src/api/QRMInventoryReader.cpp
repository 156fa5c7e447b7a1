// The inventory reader and the queries of the inventory store.
//
// Reading adds to the store: operating systems, systems and devices equal to
// stored ones are not stored twice, and nothing is ever removed. Faults in
// an "OperatingSystem" or "System" stop the whole read; faults in a "Device"
// drop that device (or application) only.
#include "QRMKitAPI.h"

#include "api/QRMIInventory.h"
#include "api/QRMXMLRead.h"

#include <exception>
#include <memory>
#include <string_view>

using qrm::Failed;
using qrm::ReadAttribute;
using qrm::ReadAttributeNumber;
using qrm::detail::XmlElement;

namespace {

// Adds every direct "Display" child that has a "lang" to `holder`, in order.
// Returns the first QRM_KIT_FAILURE of an add, else QRM_KIT_SUCCESS.
template <class Holder>
QRMKitReturnCode AddLanguageDisplays(const XmlElement& node, Holder& holder)
{
    VELString language;
    for (XmlElement display = node.FirstChildElement("Display"); display;
         display = display.NextSiblingElement("Display")) {
        if (ReadAttribute(display, "lang", language) && Failed(holder.AddDisplayValue(language, display.GetValue()))) {
            return QRM_KIT_FAILURE;
        }
    }
    return QRM_KIT_SUCCESS;
}

// Stores an optional text attribute through `set` when it is present.
template <class Set>
QRMKitReturnCode SetIfPresent(const XmlElement& node, const char* name, Set set)
{
    VELString value;
    return ReadAttribute(node, name, value) ? set(value) : QRM_KIT_SUCCESS;
}

// Stores an optional numeric attribute through `set` when it is present.
template <class Set>
QRMKitReturnCode SetNumberIfPresent(const XmlElement& node, const char* name, unsigned int base, Set set)
{
    unsigned int value = 0;
    return ReadAttributeNumber(node, name, base, value) ? set(value) : QRM_KIT_SUCCESS;
}

QRMKitReturnCode ReadOperatingSystem(const XmlElement& node, QRMIInventory& inventory)
{
    QRMOperatingSystem os;
    VELString text;
    QRMOSArchitectureEnum architecture = QRM_OS_ARCH_X86;
    if (ReadAttribute(node, "osArch", text)) {
        QRMOSArchitectureFromText(text, architecture);
    }
    if (Failed(os.SetArchitecture(architecture)) ||
        Failed(SetIfPresent(node, "osCode", [&os](const VELString& v) { return os.SetCode(v); }))) {
        return QRM_KIT_FAILURE;
    }
    if (!ReadAttribute(node, "osVendor", text) || Failed(os.SetVendor(text))) {
        return QRM_KIT_FAILURE;
    }
    if (Failed(SetIfPresent(node, "majorVersion", [&os](const VELString& v) { return os.SetMajorVersion(v); })) ||
        Failed(SetIfPresent(node, "minorVersion", [&os](const VELString& v) { return os.SetMinorVersion(v); })) ||
        Failed(SetIfPresent(node, "spMajorVersion",
                            [&os](const VELString& v) { return os.SetServicePackMajorVersion(v); })) ||
        Failed(SetIfPresent(node, "spMinorVersion",
                            [&os](const VELString& v) { return os.SetServicePackMinorVersion(v); }))) {
        return QRM_KIT_FAILURE;
    }
    if (ReadAttribute(node, "preinstallationEnvironment", text)) {
        if (!("true" == text || "false" == text) || Failed(os.SetPreInstallEnvironment("true" == text))) {
            return QRM_KIT_FAILURE;
        }
    }
    if (Failed(SetNumberIfPresent(node, "suiteMask", 10, [&os](unsigned int mask) { return os.SetSuiteMask(mask); })) ||
        Failed(AddLanguageDisplays(node, os)) || Failed(inventory.AddOperatingSystem(os))) {
        return QRM_KIT_FAILURE;
    }
    return QRM_KIT_SUCCESS;
}

QRMKitReturnCode ReadSystem(const XmlElement& node, QRMIInventory& inventory)
{
    QRMISystem system;
    if (Failed(AddLanguageDisplays(node, system))) {
        return QRM_KIT_FAILURE;
    }
    unsigned int systemID = 0;
    if (!ReadAttributeNumber(node, "systemID", 16, systemID) || Failed(system.SetSystemID(systemID))) {
        return QRM_KIT_FAILURE;
    }
    VELString text;
    QRMSystemIDTypeEnum type = QRM_SYSTEMID_TYPE_BIOS;
    if (ReadAttribute(node, "systemIDType", text)) {
        QRMSystemIDTypeFromText(text, type);
    }
    if (Failed(SetIfPresent(node, "display", [&system](const VELString& v) { return system.SetDisplay(v); })) ||
        Failed(SetIfPresent(node, "serviceTag", [&system](const VELString& v) { return system.SetServiceTag(v); })) ||
        Failed(system.SetSystemIDType(type)) || Failed(inventory.AddSystem(system))) {
        return QRM_KIT_FAILURE;
    }
    return QRM_KIT_SUCCESS;
}

// Reads one "Application" into the device's shared application object and
// adds a copy of it to the device. Whatever this Application does not set is
// carried over from the one before it: kept for compatibility, callers rely
// on it. `componentType` carries over for the whole inventory read.
void ReadApplication(const XmlElement& node, QRMComponentTypeValueEnum& componentType, QRMIApplication& application,
                     QRMIDevice& device)
{
    AddLanguageDisplays(node, application);
    VELString text;
    if (!ReadAttribute(node, "componentType", text)) {
        return;
    }
    // "SBDL" is no application type: like an unknown text it keeps the type
    // of the previous application.
    if ("SBDL" != text) {
        QRMComponentTypeFromText(text, componentType);
    }
    if (Failed(application.SetComponentType(componentType))) {
        return;
    }
    if (!ReadAttribute(node, "version", text) || Failed(application.SetVersion(text.ReplaceAll(" ", "")))) {
        return;
    }
    if (!ReadAttribute(node, "display", text) || Failed(application.SetDisplay(text))) {
        return;
    }
    if (ReadAttribute(node, "subComponentID", text) && Failed(application.SetSubComponentID(text))) {
        return;
    }
    device.AddApplication(application);
}

// QRM_KIT_FAILURE when the device is dropped (no "display", or a failing
// setter); otherwise the result of storing it.
QRMKitReturnCode ReadDevice(const XmlElement& node, QRMComponentTypeValueEnum& componentType, QRMIInventory& inventory)
{
    QRMIDevice device;
    AddLanguageDisplays(node, device);
    QRMIApplication application;
    for (XmlElement applicationNode = node.FirstChildElement("Application"); applicationNode;
         applicationNode = applicationNode.NextSiblingElement("Application")) {
        ReadApplication(applicationNode, componentType, application, device);
    }

    auto asInt = [](unsigned int value) { return static_cast<int>(value); };
    VELString display;
    if (Failed(SetNumberIfPresent(node, "bus", 10, [&](unsigned int v) { return device.SetBus(asInt(v)); })) ||
        Failed(SetNumberIfPresent(node, "device", 10, [&](unsigned int v) { return device.SetDevice(asInt(v)); })) ||
        Failed(
            SetNumberIfPresent(node, "function", 10, [&](unsigned int v) { return device.SetFunction(asInt(v)); })) ||
        Failed(SetNumberIfPresent(node, "componentID", 10, [&](unsigned int v) { return device.SetComponentID(v); })) ||
        !ReadAttribute(node, "display", display) || Failed(device.SetDisplay(display)) ||
        Failed(
            SetNumberIfPresent(node, "vendorID", 16, [&](unsigned int v) { return device.SetVendorID(asInt(v)); })) ||
        Failed(
            SetNumberIfPresent(node, "deviceID", 16, [&](unsigned int v) { return device.SetDeviceID(asInt(v)); })) ||
        Failed(SetNumberIfPresent(node, "subDeviceID", 16,
                                  [&](unsigned int v) { return device.SetSubDeviceID(asInt(v)); })) ||
        Failed(SetNumberIfPresent(node, "subVendorID", 16,
                                  [&](unsigned int v) { return device.SetSubVendorID(asInt(v)); })) ||
        Failed(SetNumberIfPresent(node, "componentInstance", 10,
                                  [&](unsigned int v) { return device.SetComponentInstance(asInt(v)); }))) {
        return QRM_KIT_FAILURE;
    }
    return inventory.AddDevice(device);
}

}  // namespace

QRMKitReturnCode QRMKitAPI::ParseInventory(const VELFile& file)
try {
    std::unique_ptr<VELXMLDocument> document;
    VELXMLNode* rootNode = nullptr;
    QRMKitReturnCode opened = qrm::OpenDocument(file, document, rootNode);
    if (opened != QRM_KIT_SUCCESS) {
        return opened;
    }
    const XmlElement root = XmlElement::Of(*rootNode);

    VELString text;
    if (!ReadAttribute(root, "lang", text)) {
        return QRM_KIT_FAILURE;
    }
    QRMInventoryLanguageEnum language = QRM_LANG_EN;
    QRMInventoryLanguageFromText(text, language);
    mInventory.SetLanguage(language);
    if (ReadAttribute(root, "schemaVersion", text)) {
        mInventory.SetSchemaVersion(text);
    }
    unsigned int timeStamp = 0;
    if (ReadAttributeNumber(root, "timeStamp", 10, timeStamp)) {
        mInventory.SetTimeStamp(VELTime(timeStamp));
    }

    // The application type carries over from one Application to the next
    // for the whole read.
    QRMComponentTypeValueEnum componentType = QRM_COMPONENT_SBDL;
    QRMKitReturnCode status = QRM_KIT_SUCCESS;
    for (XmlElement child = root.FirstChildElement(); child; child = child.NextSiblingElement()) {
        const std::string_view name = child.Name();
        if (name == "OperatingSystem") {
            status = ReadOperatingSystem(child, mInventory);
            if (Failed(status)) {
                return QRM_KIT_FAILURE;
            }
        } else if (name == "System") {
            status = ReadSystem(child, mInventory);
            if (Failed(status)) {
                return QRM_KIT_FAILURE;
            }
        } else if (name == "Device") {
            // A dropped device is remembered as the last status: when no
            // later entry succeeds, the read reports QRM_KIT_FAILURE.
            status = ReadDevice(child, componentType, mInventory);
        }
    }
    document.reset();
    if (Failed(status)) {
        return QRM_KIT_FAILURE;
    }
    mInventory.SetParsed();
    return QRM_KIT_SUCCESS;
} catch (const std::exception&) {
    // Out of memory: the call fails as a file with a dropped device does:
    // the devices read so far stay stored, and the inventory is not marked
    // parsed by this call.
    return QRM_KIT_FAILURE;
}

QRMKitReturnCode QRMKitAPI::GetInventory(std::vector<QRMIDevice*>& devices) const
{
    if (!mInventory.IsParsed()) {
        return QRM_KIT_FAILURE;
    }
    mInventory.Devices().AppendPointersTo(devices);
    return QRM_KIT_SUCCESS;
}

unsigned int QRMKitAPI::GetSystemIDFromInventory() const
{
    const qrm::detail::OwnedList<QRMISystem>& systems = mInventory.Systems();
    return systems.Size() == 1 ? systems.At(0)->GetSystemID() : 0;
}

void QRMKitAPI::GetInventoryOperatingSystems(std::vector<QRMOperatingSystem>& oses) const
{
    mInventory.OperatingSystems().AppendCopiesTo(oses);
}

void QRMKitAPI::GetInventorySystems(std::vector<QRMISystem>& systems) const
{
    mInventory.Systems().AppendCopiesTo(systems);
}

QRMInventoryLanguageEnum QRMKitAPI::GetInventoryLanguage() const { return mInventory.GetLanguage(); }

VELString QRMKitAPI::GetInventorySchemaVersion() const { return mInventory.GetSchemaVersion(); }

VELTime QRMKitAPI::GetInventoryTimeStamp() const { return mInventory.GetTimeStamp(); }

bool QRMKitAPI::IsInventoryParsed() const { return mInventory.IsParsed(); }
