#include "QRMKitAPI.h"

#include "api/QRMIInventory.h"
#include "api/QRMManifest.h"
#include "api/QRMXMLRead.h"
#include "base/VELXMLElement.h"

#include <exception>
#include <iostream>
#include <memory>
#include <mutex>
#include <string_view>

using qrm::detail::XmlElement;

// The two stores are constructed when the library is loaded, before any call.
QRMKitAPI* QRMKitAPI::mAPI = nullptr;
QRMManifest QRMKitAPI::mCatalogManifest;
QRMIInventory QRMKitAPI::mInventory;

namespace {

std::mutex& InstanceMutex()
{
    static std::mutex mutex;
    return mutex;
}

}  // namespace

// The instance is made once and kept for the life of the process.
QRMKitAPI* QRMKitAPI::Instance()
{
    std::lock_guard<std::mutex> lock(InstanceMutex());
    if (mAPI == nullptr) {
        mAPI = new QRMKitAPI;
    }
    return mAPI;
}

QRMKitAPI::QRMKitAPI() : mInitialized(false) {}

QRMKitAPI::QRMKitAPI(const QRMKitAPI& other) : mInitialized(other.mInitialized) { mCatalogFile = other.mCatalogFile; }

QRMKitAPI& QRMKitAPI::operator=(const QRMKitAPI& other)
{
    mCatalogFile = other.mCatalogFile;
    mInitialized = other.mInitialized;
    return *this;
}

QRMKitAPI::~QRMKitAPI()
{
    // A deleted instance must not be handed out again.
    if (mAPI == this) {
        mAPI = nullptr;
    }
}

QRMKitReturnCode QRMKitAPI::Initialize(const VELFile& file)
{
    if (!file.Exists()) {
        return QRM_KIT_NOT_FOUND;
    }
    mCatalogFile = file;
    mInitialized = true;
    return QRM_KIT_SUCCESS;
}

QRMKitReturnCode QRMKitAPI::Reset()
{
    mCatalogManifest.Clear();
    mInitialized = false;
    return QRM_KIT_SUCCESS;
}

bool QRMKitAPI::IsInitialized() const { return mInitialized; }

QRMKitReturnCode QRMKitAPI::Parse() { return QRM_KIT_SUCCESS; }

QRMKitReturnCode QRMKitAPI::Parse(const VELFile& file)
try {
    mCatalogManifest.Clear();
    std::unique_ptr<VELXMLDocument> document;
    VELXMLNode* root = nullptr;
    QRMKitReturnCode opened = qrm::OpenDocument(file, document, root);
    if (opened != QRM_KIT_SUCCESS) {
        return opened;
    }

    const XmlElement rootElement = XmlElement::Of(*root);
    mCatalogManifest.SetBaseLocation(qrm::AttributeOrEmpty(rootElement, "baseLocation"));
    VELTime dateTime(qrm::AttributeNumber(rootElement, "dateTime", 10));
    mCatalogManifest.SetDateTime(dateTime);
    mCatalogManifest.SetReleaseID(qrm::AttributeOrEmpty(rootElement, "releaseID"));
    mCatalogManifest.SetVersion(qrm::AttributeOrEmpty(rootElement, "version"));

    XmlElement next = rootElement.FirstChildElement();
    while (next) {
        const XmlElement element = next;
        next = element.NextSiblingElement();
        VELXMLNode node = XmlElement::NodeOf(element, document.get());
        VELXMLNode* child = &node;
        const std::string_view name = element.Name();
        if (name == "SoftwareBundle") {
            if (ParseSoftwareBundle(child) == QRM_KIT_ELEMENT_MISSING) {
                return QRM_KIT_ELEMENT_MISSING;
            }
        } else if (name == "SoftwareComponent") {
            if (ParseSoftwareComponent(child) == QRM_KIT_ELEMENT_MISSING) {
                return QRM_KIT_ELEMENT_MISSING;
            }
        } else if (name == "InventoryComponent") {
            ParseInventoryComponent(child);
        }
        // Read: its memory goes back for the entries still to come, so a
        // large catalog never needs its whole document and its whole store
        // at once.
        XmlElement::Discard(node);
    }
    document.reset();
    mCatalogManifest.TrustFileNames();
    mCatalogManifest.SetParsed();
    return QRM_KIT_SUCCESS;
} catch (const std::exception&) {
    // Out of memory: the call fails as a file with a missing element does:
    // what was read so far stays stored, and the catalog is not parsed.
    return QRM_KIT_FAILURE;
}

VELString QRMKitAPI::GetBaseLocation() const
{
    return mCatalogManifest.IsParsed() ? mCatalogManifest.GetBaseLocation() : VELString();
}

void QRMKitAPI::GetSoftwareComponents(std::vector<QRMSoftwareComponent*>& components) const
{
    mCatalogManifest.DistrustFileNames();
    mCatalogManifest.SoftwareComponents().AppendPointersTo(components);
}

void QRMKitAPI::GetSoftwareBundles(std::vector<QRMSoftwareBundle*>& bundles) const
{
    mCatalogManifest.SoftwareBundles().AppendPointersTo(bundles);
}

void QRMKitAPI::GetInventoryComponents(std::vector<QRMInventoryComponent>& components) const
{
    mCatalogManifest.InventoryComponents().AppendCopiesTo(components);
}

VELString QRMKitAPI::GetCatalogReleaseID() const { return mCatalogManifest.GetReleaseID(); }

VELString QRMKitAPI::GetCatalogVersion() const { return mCatalogManifest.GetVersion(); }

VELTime QRMKitAPI::GetCatalogDateTime() const { return mCatalogManifest.GetDateTime(); }

bool QRMKitAPI::IsCatalogParsed() const { return mCatalogManifest.IsParsed(); }

namespace {

// The library's one message, for queries that need a parsed catalog.
void ReportCatalogNotInitialized() { std::cout << "Catalog not initialized" << std::endl; }

}  // namespace

const QRMInventoryComponent* QRMKitAPI::GetInventoryComponent(QRMOSArchitectureEnum /*architecture*/,
                                                              VELString osCode) const
{
    if (!mCatalogManifest.IsParsed()) {
        ReportCatalogNotInitialized();
        return nullptr;
    }
    const qrm::detail::OwnedList<QRMInventoryComponent>& components = mCatalogManifest.InventoryComponents();
    std::size_t index = components.IndexOf(
        [&osCode](const QRMInventoryComponent& component) { return component.GetOSCode() == osCode; });
    if (index == components.Size()) {
        return nullptr;
    }
    return new QRMInventoryComponent(*components.At(index));
}

VELString QRMKitAPI::GetInventoryFile(QRMOSArchitectureEnum architecture, VELString osCode) const
{
    if (!mCatalogManifest.IsParsed()) {
        ReportCatalogNotInitialized();
        return VELString();
    }
    VELString baseLocation = mCatalogManifest.GetBaseLocation();
    std::unique_ptr<const QRMInventoryComponent> component(Instance()->GetInventoryComponent(architecture, osCode));
    if (!component) {
        return VELString();
    }
    return baseLocation + "/" + component->GetPath();
}
