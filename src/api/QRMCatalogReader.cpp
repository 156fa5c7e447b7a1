// The readers of the catalog's entries: "SoftwareBundle",
// "SoftwareComponent" and "InventoryComponent".
//
// Each reader builds its entry step by step in document order and hands it
// to the catalog store. A required child that is missing (or repeated: only
// exactly one counts) gives QRM_KIT_ELEMENT_MISSING, which aborts the whole
// catalog; a "Name" or "Description" without exactly one "Display" gives
// QRM_KIT_FAILURE, which drops this entry only.
#include "QRMKitAPI.h"

#include "QRMKit.h"
#include "api/QRMManifest.h"
#include "api/QRMXMLRead.h"

#include <memory>

using qrm::AttributeNumber;
using qrm::AttributeOrEmpty;
using qrm::Element;
using qrm::Failed;
using qrm::SingleChild;
using qrm::detail::XmlElement;

namespace {

template <class Node>
VELTime TimeAttribute(const Node& node, const char* name)
{
    return VELTime(AttributeNumber(node, name, 10));
}

// Adds the "lang" and text of the element's "Display" child (exactly one),
// when it has one, to `holder`. QRM_KIT_FAILURE only when the add fails.
template <class Node, class Holder>
QRMKitReturnCode AddOptionalDisplay(const Node& node, Holder& holder)
{
    XmlElement display = SingleChild(node, "Display");
    if (display.IsNull()) {
        return QRM_KIT_SUCCESS;
    }
    return holder.AddDisplayValue(AttributeOrEmpty(display, "lang"), display.GetValue());
}

// "Name", "ComponentType" and "Description", which bundles and components
// share. `language` carries the Name's language over to a ComponentType
// "Display" that has no "lang" of its own.
template <class Entry>
QRMKitReturnCode ReadNameTypeDescription(const Element& node, Entry& entry)
{
    XmlElement nameNode = SingleChild(node, "Name");
    if (nameNode.IsNull()) {
        return QRM_KIT_ELEMENT_MISSING;
    }
    XmlElement nameDisplay = SingleChild(nameNode, "Display");
    if (nameDisplay.IsNull()) {
        return QRM_KIT_FAILURE;
    }
    VELString language = AttributeOrEmpty(nameDisplay, "lang");
    QRMName name;
    if (Failed(name.AddDisplayValue(language, nameDisplay.GetValue()))) {
        return QRM_KIT_FAILURE;
    }
    entry.SetName(std::move(name));

    XmlElement typeNode = SingleChild(node, "ComponentType");
    if (typeNode.IsNull()) {
        return QRM_KIT_ELEMENT_MISSING;
    }
    QRMComponentTypeValueEnum code = QRM_COMPONENT_SBDL;
    QRMComponentTypeFromText(AttributeOrEmpty(typeNode, "value"), code);
    QRMComponentType componentType;
    if (XmlElement typeDisplay = SingleChild(typeNode, "Display")) {
        typeDisplay.GetAttributeValue("lang", language);
        if (Failed(componentType.AddDisplayValue(language, typeDisplay.GetValue()))) {
            return QRM_KIT_FAILURE;
        }
    }
    if (Failed(componentType.SetValue(code))) {
        return QRM_KIT_FAILURE;
    }
    entry.SetComponentType(std::move(componentType));

    if (XmlElement description = SingleChild(node, "Description")) {
        XmlElement display = SingleChild(description, "Display");
        if (display.IsNull()) {
            return QRM_KIT_FAILURE;
        }
        if (Failed(entry.AddDescriptionDisplayValue(AttributeOrEmpty(display, "lang"), display.GetValue()))) {
            return QRM_KIT_FAILURE;
        }
    }
    return QRM_KIT_SUCCESS;
}

// One "Brand" (exactly one) of "TargetSystems" or "SupportedSystems", with
// at most one "Model", added to `systems`.
QRMKitReturnCode ReadBrand(const XmlElement& systemsNode, QRMSupportedSystems& systems)
{
    XmlElement brandNode = SingleChild(systemsNode, "Brand");
    if (brandNode.IsNull()) {
        return QRM_KIT_SUCCESS;
    }
    QRMBrand brand;
    if (Failed(brand.SetKey(AttributeOrEmpty(brandNode, "key"))) ||
        Failed(brand.SetPrefix(AttributeOrEmpty(brandNode, "prefix"))) ||
        Failed(AddOptionalDisplay(brandNode, brand))) {
        return QRM_KIT_FAILURE;
    }
    if (XmlElement modelNode = SingleChild(brandNode, "Model")) {
        QRMModel model;
        if (Failed(model.SetSystemID(AttributeNumber(modelNode, "systemID", 16))) ||
            Failed(AddOptionalDisplay(modelNode, model))) {
            return QRM_KIT_FAILURE;
        }
        brand.AddModel(std::move(model));
    }
    systems.AddBrand(std::move(brand));
    return QRM_KIT_SUCCESS;
}

template <class Entry>
void ReadImportantInfo(const Element& node, Entry& entry)
{
    if (XmlElement infoNode = SingleChild(node, "ImportantInfo")) {
        QRMImportantInfo info;
        info.SetURL(AttributeOrEmpty(infoNode, "URL"));
        entry.SetImportantInfo(std::move(info));
    }
}

QRMKitReturnCode ReadDevice(const XmlElement& deviceNode, QRMDevice& device)
{
    if (Failed(device.SetComponentID(AttributeNumber(deviceNode, "componentID", 10))) ||
        Failed(device.SetEmbedded(AttributeNumber(deviceNode, "embedded", 10) != 0))) {
        return QRM_KIT_FAILURE;
    }
    for (XmlElement pciNode = deviceNode.FirstChildElement("PCIInfo"); pciNode;
         pciNode = pciNode.NextSiblingElement("PCIInfo")) {
        QRMPCIInfo pci;
        if (Failed(pci.SetDeviceID(AttributeNumber(pciNode, "deviceID", 16))) ||
            Failed(pci.SetVendorID(AttributeNumber(pciNode, "vendorID", 16))) ||
            Failed(pci.SetSubDeviceID(AttributeNumber(pciNode, "subDeviceID", 16))) ||
            Failed(pci.SetSubVendorID(AttributeNumber(pciNode, "subVendorID", 16))) ||
            Failed(device.AddPCIInfo(std::move(pci)))) {
            return QRM_KIT_FAILURE;
        }
    }
    return AddOptionalDisplay(deviceNode, device);
}

QRMKitReturnCode ReadOperatingSystem(const XmlElement& node, QRMOSArchitectureEnum& architecture,
                                     QRMOperatingSystem& os)
{
    Element osNode(node);
    // An unknown "osArch" keeps the architecture of the entry before it:
    // kept for compatibility with catalogs that state it once.
    QRMOSArchitectureFromText(AttributeOrEmpty(osNode, "osArch"), architecture);
    if (Failed(os.SetArchitecture(architecture)) || Failed(os.SetCode(AttributeOrEmpty(osNode, "osCode"))) ||
        Failed(os.SetVendor(AttributeOrEmpty(osNode, "osVendor"))) ||
        Failed(os.SetMajorVersion(AttributeOrEmpty(osNode, "majorVersion"))) ||
        Failed(os.SetMinorVersion(AttributeOrEmpty(osNode, "minorVersion"))) ||
        Failed(os.SetServicePackMajorVersion(AttributeOrEmpty(osNode, "spMajorVersion"))) ||
        Failed(os.SetServicePackMinorVersion(AttributeOrEmpty(osNode, "spMinorVersion")))) {
        return QRM_KIT_FAILURE;
    }
    return AddOptionalDisplay(osNode, os);
}

}  // namespace

QRMKitReturnCode QRMKitAPI::ParseSoftwareBundle(VELXMLNode*& node)
{
    // Built in place and handed over to the store, never copied.
    std::unique_ptr<QRMSoftwareBundle> entry(new QRMSoftwareBundle);
    QRMSoftwareBundle& bundle = *entry;
    const XmlElement root = XmlElement::Of(*node);
    const Element element(root);
    QRMKitReturnCode result = ReadNameTypeDescription(element, bundle);
    if (result != QRM_KIT_SUCCESS) {
        return result;
    }

    if (XmlElement targetSystems = SingleChild(element, "TargetSystems")) {
        QRMSupportedSystems systems;
        if (Failed(ReadBrand(targetSystems, systems))) {
            return QRM_KIT_FAILURE;
        }
        bundle.SetTargetSystems(std::move(systems));
    }

    if (XmlElement targetOSes = SingleChild(element, "TargetOSes")) {
        QRMSupportedOperatingSystems oses;
        if (XmlElement osNode = SingleChild(targetOSes, "OperatingSystem")) {
            QRMOperatingSystem os;
            if (Failed(os.SetCode(AttributeOrEmpty(osNode, "osCode"))) ||
                Failed(os.SetVendor(AttributeOrEmpty(osNode, "osVendor"))) || Failed(AddOptionalDisplay(osNode, os)) ||
                Failed(oses.AddOS(std::move(os)))) {
                return QRM_KIT_FAILURE;
            }
        }
        if (Failed(bundle.SetTargetOSes(std::move(oses)))) {
            return QRM_KIT_FAILURE;
        }
    }

    if (XmlElement historyNode = SingleChild(element, "RevisionHistory")) {
        QRMRevisionHistory history;
        AddOptionalDisplay(historyNode, history);
        bundle.SetRevisionHistory(std::move(history));
    }

    ReadImportantInfo(element, bundle);

    XmlElement contentsNode = SingleChild(element, "Contents");
    if (contentsNode.IsNull()) {
        return QRM_KIT_ELEMENT_MISSING;
    }
    for (XmlElement package = contentsNode.FirstChildElement(); package; package = package.NextSiblingElement()) {
        QRMBundleContent content;
        if (Failed(content.SetPath(AttributeOrEmpty(package, "path")))) {
            return QRM_KIT_FAILURE;
        }
        content.SetPackageID(AttributeOrEmpty(package, "packageID"));
        bundle.AddContent(std::move(content));
    }

    if (Failed(bundle.SetSchemaVersion(AttributeOrEmpty(element, "schemaVersion"))) ||
        Failed(bundle.SetReleaseID(AttributeOrEmpty(element, "releaseID"))) ||
        Failed(bundle.SetDateTime(TimeAttribute(element, "dateTime"))) ||
        Failed(bundle.SetVendorVersion(AttributeOrEmpty(element, "vendorVersion"))) ||
        Failed(bundle.SetPath(AttributeOrEmpty(element, "path"))) ||
        Failed(bundle.SetBundleID(AttributeOrEmpty(element, "bundleID")))) {
        return QRM_KIT_FAILURE;
    }
    QRMBundleTypeEnum bundleType = QRM_BUNDLE_BTW32;
    QRMBundleTypeFromText(AttributeOrEmpty(element, "bundleType"), bundleType);
    bundle.SetBundleType(bundleType);

    mCatalogManifest.AddSoftwareBundle(std::move(entry));
    return QRM_KIT_SUCCESS;
}

QRMKitReturnCode QRMKitAPI::ParseSoftwareComponent(VELXMLNode*& node)
{
    // Built in place and handed over to the store, never copied.
    std::unique_ptr<QRMSoftwareComponent> entry(new QRMSoftwareComponent);
    QRMSoftwareComponent& component = *entry;
    const XmlElement root = XmlElement::Of(*node);
    const Element element(root);
    QRMKitReturnCode result = ReadNameTypeDescription(element, component);
    if (result != QRM_KIT_SUCCESS) {
        return result;
    }

    // The category text is the first child node of its "Display" (a CDATA
    // or text node's text, an element's name), not the Display's value.
    XmlElement categoryNode = SingleChild(element, "Category");
    if (categoryNode.IsNull()) {
        return QRM_KIT_ELEMENT_MISSING;
    }
    QRMCategory category;
    category.SetCode(AttributeOrEmpty(categoryNode, "value"));
    VELString categoryText;
    if (XmlElement display = SingleChild(categoryNode, "Display")) {
        categoryText = display.GetFirstChildNodeName();
        if (Failed(category.AddDisplayValue(AttributeOrEmpty(display, "lang"), categoryText))) {
            return QRM_KIT_FAILURE;
        }
    }
    VELString categoryCode = category.GetCode();
    component.SetCategory(std::move(category));

    if (XmlElement luNode = SingleChild(element, "LUCategory")) {
        QRMLUCategory luCategory;
        luCategory.SetCode(AttributeOrEmpty(luNode, "value"));
        if (Failed(AddOptionalDisplay(luNode, luCategory))) {
            return QRM_KIT_FAILURE;
        }
        component.SetLUCategory(std::move(luCategory));
    }

    XmlElement devicesNode = SingleChild(element, "SupportedDevices");
    if (devicesNode.IsNull()) {
        return QRM_KIT_ELEMENT_MISSING;
    }
    for (XmlElement deviceNode = devicesNode.FirstChildElement(); deviceNode;
         deviceNode = deviceNode.NextSiblingElement()) {
        QRMDevice device;
        if (Failed(ReadDevice(deviceNode, device))) {
            return QRM_KIT_FAILURE;
        }
        component.AddDeviceSupport(std::move(device));
    }

    if (XmlElement systemsNode = SingleChild(element, "SupportedSystems")) {
        QRMSupportedSystems systems;
        if (Failed(systems.SetDisplay(AttributeNumber(systemsNode, "display", 10) != 0)) ||
            Failed(ReadBrand(systemsNode, systems)) || Failed(component.SetSupportedSystems(std::move(systems)))) {
            return QRM_KIT_FAILURE;
        }
    }

    if (XmlElement osesNode = SingleChild(element, "SupportedOperatingSystems")) {
        QRMSupportedOperatingSystems oses;
        QRMOSArchitectureEnum architecture = QRM_OS_ARCH_X86;
        for (XmlElement osNode = osesNode.FirstChildElement(); osNode; osNode = osNode.NextSiblingElement()) {
            QRMOperatingSystem os;
            if (Failed(ReadOperatingSystem(osNode, architecture, os))) {
                return QRM_KIT_FAILURE;
            }
            oses.AddOS(std::move(os));
        }
        component.SetSupportedOperatingSystems(std::move(oses));
    }

    ReadImportantInfo(element, component);

    QRMCriticality criticality;
    criticality.SetValue(QRM_CRITICALITY_UNSPECIFIED);
    if (XmlElement criticalityNode = SingleChild(element, "Criticality")) {
        QRMCriticalityValueEnum value = QRM_CRITICALITY_UNSPECIFIED;
        QRMCriticalityFromText(AttributeOrEmpty(criticalityNode, "value"), value);
        criticality.SetValue(value);
        if (Failed(AddOptionalDisplay(criticalityNode, criticality))) {
            return QRM_KIT_FAILURE;
        }
    }
    component.SetCriticality(std::move(criticality));

    component.SetSchemaVersion(AttributeOrEmpty(element, "schemaVersion"));
    component.SetReleaseID(AttributeOrEmpty(element, "releaseID"));
    component.SetDateTime(TimeAttribute(element, "dateTime"));
    component.SetVendorVersion(AttributeOrEmpty(element, "vendorVersion"));
    component.SetReleaseDate(TimeAttribute(element, "releaseDate"));
    component.SetMD5Hash(AttributeOrEmpty(element, "hashMD5"));
    component.SetTolvarVersion(AttributeOrEmpty(element, "tolvarVersion"));
    component.SetPackageID(AttributeOrEmpty(element, "packageID"));
    component.SetPackageType(AttributeOrEmpty(element, "packageType"));
    component.SetPath(AttributeOrEmpty(element, "path"));

    // The first text recorded for a code stays.
    mCatalogManifest.AddCategoryValue(categoryCode, categoryText);
    mCatalogManifest.AddSoftwareComponent(std::move(entry));
    return QRM_KIT_SUCCESS;
}

QRMKitReturnCode QRMKitAPI::ParseInventoryComponent(VELXMLNode*& node)
{
    const XmlElement element = XmlElement::Of(*node);
    QRMInventoryComponent component;
    if (Failed(component.SetSchemaVersion(AttributeOrEmpty(element, "schemaVersion"))) ||
        Failed(component.SetReleaseID(AttributeOrEmpty(element, "releaseID"))) ||
        Failed(component.SetDateTime(TimeAttribute(element, "dateTime"))) ||
        Failed(component.SetVendorVersion(AttributeOrEmpty(element, "vendorVersion"))) ||
        Failed(component.SetReleaseDate(TimeAttribute(element, "releaseDate"))) ||
        Failed(component.SetMD5Hash(AttributeOrEmpty(element, "hashMD5"))) ||
        Failed(component.SetTolvarVersion(AttributeOrEmpty(element, "tolvarVersion"))) ||
        Failed(component.SetOSCode(AttributeOrEmpty(element, "osCode"))) ||
        Failed(component.SetPath(AttributeOrEmpty(element, "path")))) {
        return QRM_KIT_FAILURE;
    }
    mCatalogManifest.AddInventoryComponent(component);
    return QRM_KIT_SUCCESS;
}
