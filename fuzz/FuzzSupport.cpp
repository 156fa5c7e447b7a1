#include "FuzzSupport.h"

#include "ReferenceUpdates.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iostream>
#include <set>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qrmfuzz {

void Fail(const char* what)
{
    std::fprintf(stderr, "==qrmkit-fuzz== broken promise: %s\n", what);
    std::fflush(stderr);
    std::abort();
}

// ---- Scratch files ----

namespace {

[[noreturn]] void SystemFailure(const char* what)
{
    std::perror(what);
    std::exit(2);
}

}  // namespace

ScratchFile::ScratchFile(const char* stem) : mFd(-1), mNamed(false)
{
    // In memory first: writing it costs no file system work, and nothing is
    // left behind when the process dies. The library opens it again by path.
    const std::string name = std::string("qrmkit-fuzz-") + stem;
    mFd = ::memfd_create(name.c_str(), MFD_CLOEXEC);
    if (mFd >= 0) {
        mPath = "/proc/self/fd/" + std::to_string(mFd);
        struct stat info;
        if (::stat(mPath.c_str(), &info) == 0 && S_ISREG(info.st_mode)) {
            return;
        }
        ::close(mFd);
    }

    const char* dir = std::getenv("TMPDIR");
    if (dir == nullptr || *dir == '\0') {
        dir = "/tmp";
    }
    std::string pattern = std::string(dir) + "/" + name + "-XXXXXX";
    std::vector<char> path(pattern.begin(), pattern.end());
    path.push_back('\0');
    mFd = ::mkstemp(path.data());
    if (mFd < 0) {
        std::fprintf(stderr, "cannot create a scratch file %s: %s\n", pattern.c_str(), std::strerror(errno));
        std::exit(2);
    }
    mPath = path.data();
    mNamed = true;
}

ScratchFile::~ScratchFile()
{
    ::close(mFd);
    if (mNamed) {
        ::unlink(mPath.c_str());
    }
}

void ScratchFile::Write(const uint8_t* data, std::size_t size)
{
    // Overwritten in place, then cut to size: the pages already held are
    // used again.
    std::size_t done = 0;
    while (done < size) {
        ssize_t written = ::pwrite(mFd, data + done, size - done, static_cast<off_t>(done));
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            SystemFailure("pwrite");
        }
        done += static_cast<std::size_t>(written);
    }
    if (::ftruncate(mFd, static_cast<off_t>(size)) != 0) {
        SystemFailure("ftruncate");
    }
}

// ---- Standard output ----

namespace StdoutWatch {
namespace {

ScratchFile* gCapture = nullptr;
const char kMessage[] = "Catalog not initialized\n";

[[noreturn]] void Unexpected(const std::string& text)
{
    std::fprintf(stderr, "unexpected output: %s\n", text.c_str());
    Fail("the library wrote something other than \"Catalog not initialized\" lines to standard output");
}

}  // namespace

void Install()
{
    if (gCapture != nullptr) {
        return;
    }
    static ScratchFile capture("stdout");
    gCapture = &capture;
    std::cout.flush();
    std::fflush(stdout);
    // Appending, so that emptying the file between inputs is enough; the
    // descriptor stays open for reading.
    const int fd = capture.Descriptor();
    if (::fcntl(fd, F_SETFL, O_APPEND) != 0 || ::dup2(fd, STDOUT_FILENO) < 0) {
        SystemFailure("redirecting standard output");
    }
}

std::size_t TakeMessages()
{
    std::cout.flush();
    std::fflush(stdout);
    const int fd = gCapture->Descriptor();
    struct stat info;
    if (::fstat(fd, &info) != 0) {
        SystemFailure("fstat");
    }
    const std::size_t size = static_cast<std::size_t>(info.st_size);
    if (size == 0) {
        return 0;
    }
    std::string text(size, '\0');
    if (::pread(fd, &text[0], size, 0) != static_cast<ssize_t>(size) || ::ftruncate(fd, 0) != 0) {
        SystemFailure("reading captured output");
    }
    const std::size_t length = sizeof(kMessage) - 1;
    if (size % length != 0) {
        Unexpected(text);
    }
    for (std::size_t at = 0; at < size; at += length) {
        if (text.compare(at, length, kMessage) != 0) {
            Unexpected(text);
        }
    }
    return size / length;
}

}  // namespace StdoutWatch

// ---- Walks ----

namespace {

volatile uint64_t gSink = 0;

uint64_t Mix(uint64_t seed, uint64_t value) { return (seed ^ value) * 0x100000001b3ull + 0x9e3779b97f4a7c15ull; }

// A language-tagged text: QRMDisplay, or QRMDeviceApplicability.
template <class Text>
uint64_t WalkText(const Text& text, const char* what)
{
    Text copy(text);
    Text assigned;
    assigned = text;
    Check((copy == text) != (copy != text), what);
    return Mix(Hash(text.GetLanguage()), Hash(assigned.GetValue()));
}

uint64_t Walk(const QRMDisplay& display) { return WalkText(display, "QRMDisplay: != is not the negation of =="); }

uint64_t Walk(const QRMDeviceApplicability& entry)
{
    return WalkText(entry, "QRMDeviceApplicability: != is not the negation of ==");
}

// The texts of anything that carries them.
template <class Holder>
uint64_t WalkTexts(const Holder& holder)
{
    std::vector<QRMDisplay> texts;
    holder.GetDisplayValues(texts);
    uint64_t h = texts.size();
    for (const QRMDisplay& text : texts) {
        h = Mix(h, Walk(text));
    }
    return h;
}

template <class T>
uint64_t CopyAndCompare(const T& value, const char* what)
{
    T copy(value);
    T assigned;
    assigned = value;
    bool equal = copy == value;
    Check(equal != (copy != value), what);
    Check((assigned == value) != (assigned != value), what);
    return equal;
}

uint64_t Walk(const VELGUID& guid)
{
    uint64_t h = guid.IsNil();
    for (unsigned char byte : guid.GetBytes()) {
        h = Mix(h, byte);
    }
    return h;
}

uint64_t Walk(const QRMPCIInfo& pci)
{
    uint64_t h = Mix(pci.GetDeviceID(), pci.GetVendorID());
    h = Mix(h, pci.GetSubDeviceID());
    h = Mix(h, pci.GetSubVendorID());
    return Mix(h, CopyAndCompare(pci, "QRMPCIInfo: != is not the negation of =="));
}

uint64_t Walk(const QRMPnPInfo& pnp)
{
    uint64_t h = pnp.HasPrimary();
    if (pnp.HasPrimary()) {
        for (unsigned char byte : pnp.GetPrimary()) {
            h = Mix(h, byte);
        }
    }
    if (pnp.HasSecondary()) {
        for (unsigned char byte : pnp.GetSecondary()) {
            h = Mix(h, byte);
        }
    }
    for (unsigned char byte : pnp.GetValue()) {
        h = Mix(h, byte);
    }
    return Mix(h, CopyAndCompare(pnp, "QRMPnPInfo: != is not the negation of =="));
}

// The fields a dependency and a soft dependency share.
template <class Dependency>
uint64_t WalkDependency(const Dependency& dependency)
{
    uint64_t h = WalkTexts(dependency);
    h = Mix(h, dependency.GetType());
    h = Mix(h, Hash(dependency.GetName()));
    h = Mix(h, Hash(dependency.GetVersion()));
    h = Mix(h, Walk(dependency.GetIdentifier()));
    h = Mix(h, Hash(dependency.GetPath()));
    h = Mix(h, dependency.GetSize());
    h = Mix(h, dependency.GetFlags());
    std::vector<QRMPCIInfo> pcis;
    dependency.GetPCIInfo(pcis);
    for (const QRMPCIInfo& pci : pcis) {
        h = Mix(h, Walk(pci));
    }
    std::vector<QRMPnPInfo> pnps;
    dependency.GetPnPInfo(pnps);
    for (const QRMPnPInfo& pnp : pnps) {
        h = Mix(h, Walk(pnp));
    }
    return h;
}

uint64_t Walk(const QRMDependency& dependency)
{
    return Mix(WalkDependency(dependency), CopyAndCompare(dependency, "QRMDependency: != is not the negation of =="));
}

uint64_t Walk(const QRMSoftDependency& dependency)
{
    uint64_t h = WalkDependency(dependency);
    std::vector<QRMDeviceApplicability> applicability;
    dependency.GetApplicability(applicability);
    for (const QRMDeviceApplicability& entry : applicability) {
        h = Mix(h, Walk(entry));
    }
    return Mix(h, CopyAndCompare(dependency, "QRMSoftDependency: != is not the negation of =="));
}

uint64_t Walk(const QRMSubComponent& sub)
{
    uint64_t h = Mix(WalkTexts(sub), Hash(sub.GetName()));
    h = Mix(h, Hash(sub.GetVersion()));
    return Mix(h, CopyAndCompare(sub, "QRMSubComponent: != is not the negation of =="));
}

uint64_t Walk(const QRMRollbackInformation& rollback)
{
    uint64_t h = Walk(rollback.GetRollbackIdentifier());
    h = Mix(h, Hash(rollback.GetRollbackVersion()));
    h = Mix(h, Walk(rollback.GetPackageIdentifier()));
    h = Mix(h, Hash(rollback.GetPackagePath()));
    h = Mix(h, Walk(rollback.GetSessionIdentifier()));
    h = Mix(h, rollback.GetSequence());
    h = Mix(h, rollback.GetFlags());
    h = Mix(h, Hash(rollback.GetNote()));
    return Mix(h, CopyAndCompare(rollback, "QRMRollbackInformation: != is not the negation of =="));
}

uint64_t Walk(const QRMDevice& device)
{
    uint64_t h = Mix(WalkTexts(device), device.GetComponentID());
    h = Mix(h, device.IsEmbedded());
    h = Mix(h, Walk(device.GetRollbackInformation()));
    std::vector<QRMPCIInfo*> pcis;
    device.GetPCIInfo(pcis);
    for (const QRMPCIInfo* pci : pcis) {
        h = Mix(h, Walk(*pci));
        h = Mix(h, device.HasPCI(*pci));
    }
    std::vector<QRMPnPInfo> pnps;
    device.GetPnPInfo(pnps);
    for (const QRMPnPInfo& pnp : pnps) {
        h = Mix(h, Walk(pnp));
        h = Mix(h, device.HasPnP(pnp));
    }
    std::vector<QRMSubComponent> subs;
    device.GetSubComponents(subs);
    for (const QRMSubComponent& sub : subs) {
        h = Mix(h, Walk(sub));
    }
    std::vector<QRMDependency> dependencies;
    device.GetDependencies(dependencies);
    for (const QRMDependency& dependency : dependencies) {
        h = Mix(h, Walk(dependency));
    }
    std::vector<QRMSoftDependency> softDependencies;
    device.GetSoftDependencies(softDependencies);
    for (const QRMSoftDependency& dependency : softDependencies) {
        h = Mix(h, Walk(dependency));
    }
    std::vector<QRMDeviceApplicability> applicability;
    device.GetApplicability(applicability);
    for (const QRMDeviceApplicability& entry : applicability) {
        h = Mix(h, Walk(entry));
    }
    return Mix(h, CopyAndCompare(device, "QRMDevice: != is not the negation of =="));
}

uint64_t Walk(const QRMBrand& brand, int depth);

uint64_t Walk(const QRMModel& model, int depth)
{
    uint64_t h = Mix(WalkTexts(model), model.GetSystemID());
    h = Mix(h, model.GetSecondID());
    h = Mix(h, model.GetThirdID());
    std::vector<QRMBrand*> subBrands;
    model.GetSubBrands(subBrands);
    if (depth < 8) {
        for (const QRMBrand* brand : subBrands) {
            h = Mix(h, Walk(*brand, depth + 1));
        }
    }
    QRMModel copy(model);
    QRMModel assigned;
    assigned = model;
    return Mix(h, copy.GetSystemID() + assigned.GetSystemID());
}

uint64_t Walk(const QRMBrand& brand, int depth)
{
    uint64_t h = Mix(WalkTexts(brand), brand.GetKey());
    h = Mix(h, Hash(brand.GetPrefix()));
    std::vector<QRMModel*> models;
    brand.GetModels(models);
    for (const QRMModel* model : models) {
        h = Mix(h, Walk(*model, depth + 1));
    }
    return Mix(h, CopyAndCompare(brand, "QRMBrand: != is not the negation of =="));
}

uint64_t Walk(const QRMSupportedSystems& systems)
{
    uint64_t h = systems.GetDisplay();
    std::vector<QRMBrand*> brands;
    systems.GetBrands(brands);
    for (const QRMBrand* brand : brands) {
        h = Mix(h, Walk(*brand, 0));
    }
    return Mix(h, CopyAndCompare(systems, "QRMSupportedSystems: != is not the negation of =="));
}

uint64_t Walk(const QRMSupportedOperatingSystems& oses)
{
    std::vector<QRMOperatingSystem> list;
    oses.GetOSes(list);
    uint64_t h = list.size();
    for (const QRMOperatingSystem& os : list) {
        h = Mix(h, qrmfuzz::Walk(os));
    }
    return Mix(h, CopyAndCompare(oses, "QRMSupportedOperatingSystems: != is not the negation of =="));
}

uint64_t Walk(const QRMFMPWrapperInformation& wrapper)
{
    uint64_t h = wrapper.IsDigitallySigned();
    h = Mix(h, Hash(wrapper.GetName()));
    h = Mix(h, wrapper.IsInventorySupported());
    h = Mix(h, wrapper.IsUpdateSupported());
    h = Mix(h, Walk(wrapper.GetIdentifier()));
    h = Mix(h, Hash(wrapper.GetFilePath()));
    h = Mix(h, Hash(wrapper.GetDriverName()));
    h = Mix(h, Hash(wrapper.GetDriverVersion()));
    h = Mix(h, wrapper.IsRollbackSupported());
    return Mix(h, CopyAndCompare(wrapper, "QRMFMPWrapperInformation: != is not the negation of =="));
}

uint64_t Walk(const QRMName& name)
{
    uint64_t h = WalkTexts(name);
    std::vector<QRMDisplay*> held;
    name.GetDisplayValues(held);
    for (const QRMDisplay* display : held) {
        h = Mix(h, Walk(*display));
    }
    return h;
}

uint64_t Walk(const QRMBundleContent& content)
{
    uint64_t h = Mix(Hash(content.GetPackageID()), Hash(content.GetPath()));
    h = Mix(h, Walk(content.GetIdentifier()));
    return Mix(h, CopyAndCompare(content, "QRMBundleContent: != is not the negation of =="));
}

}  // namespace

uint64_t Hash(const VELString& text) { return std::hash<std::u16string>()(text.GetUTF16String()) ^ text.GetLength(); }

void Consume(uint64_t value) { gSink = gSink + value; }

uint64_t Walk(const QRMOperatingSystem& os)
{
    uint64_t h = Mix(WalkTexts(os), Hash(os.GetCode()));
    h = Mix(h, Hash(os.GetVendor()));
    h = Mix(h, static_cast<uint64_t>(os.GetArchitecture()));
    h = Mix(h, Hash(os.GetMajorVersion()));
    h = Mix(h, Hash(os.GetMinorVersion()));
    h = Mix(h, Hash(os.GetServicePackMajorVersion()));
    h = Mix(h, Hash(os.GetServicePackMinorVersion()));
    h = Mix(h, os.IsForPreInstallEnvironment());
    h = Mix(h, os.GetSuiteMask());
    std::vector<unsigned int> tags;
    os.GetNumericTags(tags);
    for (unsigned int tag : tags) {
        h = Mix(h, tag);
    }
    return Mix(h, CopyAndCompare(os, "QRMOperatingSystem: != is not the negation of =="));
}

uint64_t Walk(const QRMSoftwareComponent& component)
{
    uint64_t h = Walk(component.GetName());
    QRMComponentType type = component.GetComponentType();
    h = Mix(h, Mix(WalkTexts(type), static_cast<uint64_t>(type.GetValue())));
    h = Mix(h, CopyAndCompare(type, "QRMComponentType: != is not the negation of =="));
    QRMCategory category = component.GetCategory();
    h = Mix(h, Mix(WalkTexts(category), Hash(category.GetCode())));
    h = Mix(h, CopyAndCompare(category, "QRMCategory: != is not the negation of =="));
    QRMLUCategory luCategory = component.GetLUCategory();
    h = Mix(h, Mix(WalkTexts(luCategory), Hash(luCategory.GetCode())));
    h = Mix(h, CopyAndCompare(luCategory, "QRMLUCategory: != is not the negation of =="));
    h = Mix(h, Walk(component.GetSupportedSystems()));
    h = Mix(h, Walk(component.GetSupportedOperatingSystems()));
    QRMInstallInstruction instruction = component.GetInstallInstruction();
    h = Mix(h, Mix(Hash(instruction.GetCommand()), Hash(instruction.GetArguments())));
    h = Mix(h, WalkTexts(instruction));
    h = Mix(h, CopyAndCompare(instruction, "QRMInstallInstruction: != is not the negation of =="));
    h = Mix(h, WalkTexts(component.GetRevisionHistory()));
    QRMImportantInfo info = component.GetImportantInfo();
    h = Mix(h, Mix(WalkTexts(info), Hash(info.GetURL())));
    h = Mix(h, CopyAndCompare(info, "QRMImportantInfo: != is not the negation of =="));
    QRMCriticality criticality = component.GetCriticality();
    h = Mix(h, Mix(WalkTexts(criticality), static_cast<uint64_t>(criticality.GetValue())));
    h = Mix(h, CopyAndCompare(criticality, "QRMCriticality: != is not the negation of =="));
    h = Mix(h, Walk(component.GetMSIID()));
    h = Mix(h, Hash(component.GetSchemaVersion()));
    h = Mix(h, Hash(component.GetReleaseID()));
    h = Mix(h, component.GetReleaseDate().GetValue());
    h = Mix(h, Hash(component.GetVendorVersion()));
    h = Mix(h, Hash(component.GetTolvarVersion()));
    h = Mix(h, Hash(component.GetPackageType()));
    h = Mix(h, Hash(component.GetXMLGenVersion()));
    h = Mix(h, Hash(component.GetPath()));
    h = Mix(h, Hash(component.GetPackageID()));
    h = Mix(h, component.GetDateTime().GetValue());
    h = Mix(h, Hash(component.GetMD5Hash()));
    h = Mix(h, component.GetSize());
    h = Mix(h, Walk(component.GetIdentifier()));
    h = Mix(h, Walk(component.GetPredecessor()));
    h = Mix(h, component.RequiresReboot());
    h = Mix(h, component.RequiresContainerPowerCycle());
    std::vector<QRMDisplay> description;
    component.GetDescriptionDisplayValues(description);
    for (const QRMDisplay& display : description) {
        h = Mix(h, Walk(display));
    }
    std::vector<QRMDevice*> devices;
    component.GetSupportedDevices(devices);
    for (const QRMDevice* device : devices) {
        h = Mix(h, Walk(*device));
    }
    std::vector<QRMFMPWrapperInformation> wrappers;
    component.GetWrappers(wrappers);
    for (const QRMFMPWrapperInformation& wrapper : wrappers) {
        h = Mix(h, Walk(wrapper));
    }
    return Mix(h, CopyAndCompare(component, "QRMSoftwareComponent: != is not the negation of =="));
}

uint64_t Walk(const QRMSoftwareBundle& bundle)
{
    uint64_t h = Walk(bundle.GetName());
    QRMComponentType type = bundle.GetComponentType();
    h = Mix(h, Mix(WalkTexts(type), static_cast<uint64_t>(type.GetValue())));
    h = Mix(h, Walk(bundle.GetTargetSystems()));
    h = Mix(h, Walk(bundle.GetTargetOSes()));
    h = Mix(h, WalkTexts(bundle.GetRevisionHistory()));
    QRMImportantInfo info = bundle.GetImportantInfo();
    h = Mix(h, Mix(WalkTexts(info), Hash(info.GetURL())));
    h = Mix(h, Hash(bundle.GetSchemaVersion()));
    h = Mix(h, Hash(bundle.GetReleaseID()));
    h = Mix(h, bundle.GetDateTime().GetValue());
    h = Mix(h, Hash(bundle.GetVendorVersion()));
    h = Mix(h, Hash(bundle.GetPath()));
    h = Mix(h, Hash(bundle.GetBundleID()));
    h = Mix(h, Walk(bundle.GetIdentifier()));
    h = Mix(h, Walk(bundle.GetSecondaryIdentifier()));
    h = Mix(h, static_cast<uint64_t>(bundle.GetBundleType()));
    std::vector<QRMDisplay> description;
    bundle.GetDescriptionDisplayValues(description);
    for (const QRMDisplay& display : description) {
        h = Mix(h, Walk(display));
    }
    std::vector<QRMBundleContent> contents;
    bundle.GetContents(contents);
    for (const QRMBundleContent& content : contents) {
        h = Mix(h, Walk(content));
    }
    std::vector<unsigned int> systemIDs;
    bundle.GetSupportedSystemIDs(systemIDs);
    for (unsigned int id : systemIDs) {
        h = Mix(h, id);
    }
    QRMSoftwareBundle copy(bundle);
    QRMSoftwareBundle assigned;
    assigned = bundle;
    Check(copy.GetBundleID() == bundle.GetBundleID() && assigned.GetBundleType() == bundle.GetBundleType(),
          "QRMSoftwareBundle: a copy differs from its original");
    return h;
}

uint64_t Walk(const QRMInventoryComponent& component)
{
    uint64_t h = Hash(component.GetSchemaVersion());
    h = Mix(h, Hash(component.GetReleaseID()));
    h = Mix(h, component.GetReleaseDate().GetValue());
    h = Mix(h, Hash(component.GetVendorVersion()));
    h = Mix(h, Hash(component.GetTolvarVersion()));
    h = Mix(h, Hash(component.GetOSCode()));
    h = Mix(h, Hash(component.GetMD5Hash()));
    h = Mix(h, Hash(component.GetPath()));
    h = Mix(h, component.GetDateTime().GetValue());
    h = Mix(h, component.GetSize());
    // Plain fields only: a copy must equal its original.
    QRMInventoryComponent copy(component);
    Check(copy == component && !(copy != component), "QRMInventoryComponent: a copy is not equal to its original");
    return h;
}

uint64_t Walk(const QRMIApplication& application)
{
    uint64_t h = Mix(WalkTexts(application), static_cast<uint64_t>(application.GetComponentType()));
    h = Mix(h, Hash(application.GetVersion()));
    h = Mix(h, Hash(application.GetDisplay()));
    h = Mix(h, Hash(application.GetSubComponentID()));
    return Mix(h, CopyAndCompare(application, "QRMIApplication: != is not the negation of =="));
}

uint64_t Walk(const QRMIDevice& device)
{
    uint64_t h = WalkTexts(device);
    h = Mix(h, static_cast<uint64_t>(device.GetBus()));
    h = Mix(h, static_cast<uint64_t>(device.GetDevice()));
    h = Mix(h, static_cast<uint64_t>(device.GetFunction()));
    h = Mix(h, static_cast<uint64_t>(device.GetVendorID()));
    h = Mix(h, static_cast<uint64_t>(device.GetDeviceID()));
    h = Mix(h, static_cast<uint64_t>(device.GetSubVendorID()));
    h = Mix(h, static_cast<uint64_t>(device.GetSubDeviceID()));
    h = Mix(h, static_cast<uint64_t>(device.GetComponentInstance()));
    h = Mix(h, device.GetComponentID());
    h = Mix(h, Hash(device.GetDisplay()));
    std::vector<QRMIApplication*> applications;
    device.GetApplications(applications);
    for (const QRMIApplication* application : applications) {
        h = Mix(h, Walk(*application));
    }
    return Mix(h, CopyAndCompare(device, "QRMIDevice: != is not the negation of =="));
}

uint64_t Walk(const QRMISystem& system)
{
    uint64_t h = Mix(WalkTexts(system), system.GetSystemID());
    h = Mix(h, static_cast<uint64_t>(system.GetSystemIDType()));
    h = Mix(h, Hash(system.GetDisplay()));
    h = Mix(h, Hash(system.GetServiceTag()));
    return Mix(h, CopyAndCompare(system, "QRMISystem: != is not the negation of =="));
}

// ---- Applicable updates ----

void CheckApplicableUpdates(QRMKitAPI& api)
{
    const bool catalogParsed = api.IsCatalogParsed();
    const bool inventoryParsed = api.IsInventoryParsed();

    std::vector<QRMIDevice*> devices;
    QRMKitReturnCode listed = api.GetInventory(devices);
    Check(listed == (inventoryParsed ? QRM_KIT_SUCCESS : QRM_KIT_FAILURE),
          "GetInventory: result does not follow the inventory's parsed flag");
    std::map<const QRMIApplication*, const QRMIDevice*> owners;
    for (const QRMIDevice* device : devices) {
        std::vector<QRMIApplication*> applications;
        device->GetApplications(applications);
        for (const QRMIApplication* application : applications) {
            owners[application] = device;
        }
    }
    std::vector<QRMSoftwareComponent*> components;
    api.GetSoftwareComponents(components);
    std::set<const QRMSoftwareComponent*> stored(components.begin(), components.end());
    std::vector<QRMSoftwareBundle*> bundles;
    api.GetSoftwareBundles(bundles);

    for (int type = QRM_BUNDLE_BTW32; type <= QRM_BUNDLE_BTOSIND + 1; ++type) {
        QRMBundleTypeEnum bundleType = static_cast<QRMBundleTypeEnum>(type);

        // The first bundle of the type that lists the system id; the
        // greatest number after the last "." of the bundle ids of the type.
        const QRMSoftwareBundle* expectedBundle = reference::ApplicableBundle(api, bundleType);
        unsigned int greatest = 0;
        for (const QRMSoftwareBundle* candidate : bundles) {
            if (candidate->GetBundleType() != bundleType) {
                continue;
            }
            const std::u16string id = candidate->GetBundleID().GetUTF16String();
            const std::size_t dot = id.rfind(u'.');
            const unsigned int number =
                VELString(dot == std::u16string::npos ? id : id.substr(dot + 1)).GetIntValue(std::dec);
            greatest = std::max(greatest, number);
        }
        const QRMSoftwareBundle* bundle = api.GetApplicableBundle(bundleType);
        Check(bundle == expectedBundle,
              "GetApplicableBundle: not the first bundle of the type that lists the inventory's system id");
        Check(api.GetGreatestBundleNumber(bundleType) == greatest,
              "GetGreatestBundleNumber: not the greatest number after the last \".\" of the bundle ids");

        // A sentinel entry shows that the map is never cleared.
        std::map<QRMIApplication*, QRMSoftwareComponent*> updates;
        updates[nullptr] = nullptr;
        QRMKitReturnCode result =
            api.GetApplicableUpdates(updates, static_cast<QRMOSArchitectureEnum>(type % 4), bundleType);
        const bool expected = catalogParsed && inventoryParsed && bundle != nullptr;
        Check(result == (expected ? QRM_KIT_SUCCESS : QRM_KIT_FAILURE),
              "GetApplicableUpdates: result does not follow the parsed flags and the applicable bundle");
        Check(updates.count(nullptr) == 1 && updates[nullptr] == nullptr,
              "GetApplicableUpdates: the caller's entries were not kept");
        if (result != QRM_KIT_SUCCESS) {
            Check(updates.size() == 1, "GetApplicableUpdates: the map was changed by a failing call");
            continue;
        }
        std::vector<QRMBundleContent> contents;
        bundle->GetContents(contents);
        std::set<std::u16string> packages;
        for (const QRMBundleContent& content : contents) {
            packages.insert(content.GetPath().GetUTF16String());
        }
        for (const auto& entry : updates) {
            if (entry.first == nullptr) {
                continue;
            }
            auto owner = owners.find(entry.first);
            Check(owner != owners.end(), "GetApplicableUpdates: a key that is no stored application");
            Check(owner->second->GetComponentID() != 2331,
                  "GetApplicableUpdates: a device with component id 2331 was matched");
            Check(stored.count(entry.second) == 1, "GetApplicableUpdates: a value that is no stored component");
            Check(entry.second->GetComponentType().GetValue() == entry.first->GetComponentType(),
                  "GetApplicableUpdates: a component of another type than the application");
            Check(packages.count(reference::FileName(entry.second->GetPath())) == 1,
                  "GetApplicableUpdates: a component whose file is not a package of the applicable bundle");
            Check(reference::Supports(*entry.second, *owner->second),
                  "GetApplicableUpdates: a component that does not support the application's device");
        }

        // The whole answer against the plain walk.
        const reference::Matcher matcher(api, *bundle, components);
        for (std::size_t i = 0; i < devices.size(); ++i) {
            std::vector<QRMIApplication*> applications;
            devices[i]->GetApplications(applications);
            for (QRMIApplication* application : applications) {
                QRMSoftwareComponent* best = matcher.Best(*devices[i], *application);
                auto found = updates.find(application);
                Check(best == (found == updates.end() ? nullptr : found->second),
                      "GetApplicableUpdates: not the newest of the components that the bundle, the device and "
                      "the type select (first found among equals)");
            }
        }
    }
}

// ---- Fixed documents ----

const char kFixedCatalog[] = R"(<?xml version="1.0" encoding="utf-8"?>
<Manifest baseLocation="updates.example.com/catalog" dateTime="1763683200" releaseID="FUZZ" version="1.0">
  <SoftwareBundle bundleID="S740W64.00041" bundleType="BTW64" path="b/w64.exe" dateTime="1763683200">
    <Name><Display lang="en">Windows bundle</Display></Name>
    <ComponentType value="SBDL"><Display lang="en">System Bundle</Display></ComponentType>
    <TargetSystems><Brand key="3" prefix="SRV"><Display lang="en">Servers</Display>
      <Model systemID="0A6B"><Display lang="en">S740</Display></Model></Brand></TargetSystems>
    <TargetOSes><OperatingSystem osCode="W22" osVendor="Example"><Display lang="en">Windows</Display></OperatingSystem></TargetOSes>
    <Contents>
      <Package path="BIOS.EXE" packageID="P1"/><Package path="BIOS2.EXE" packageID="P2"/>
      <Package path="NICFW.EXE" packageID="P3"/><Package path="NICDRV.EXE" packageID="P4"/>
      <Package path="RAID.EXE" packageID="P5"/><Package path="AGENT.EXE" packageID="P6"/>
      <Package path="SKIP.EXE" packageID="P7"/><Package path="APP.EXE" packageID="P8"/>
    </Contents>
  </SoftwareBundle>
  <SoftwareBundle bundleID="ANY.00007" bundleType="BTLX" path="b/lx.bin">
    <Name><Display lang="en">Bundle for system id 0</Display></Name>
    <ComponentType value="SBDL"/>
    <TargetSystems><Brand key="1" prefix="ANY"><Model systemID="0"/></Brand></TargetSystems>
    <Contents>
      <Package path="BIOS.EXE" packageID="P1"/><Package path="NICFW.EXE" packageID="P3"/>
      <Package path="NICDRV.EXE" packageID="P4"/><Package path="RAID.EXE" packageID="P5"/>
      <Package path="AGENT.EXE" packageID="P6"/><Package path="SKIP.EXE" packageID="P7"/>
      <Package path="APP.EXE" packageID="P8"/>
    </Contents>
  </SoftwareBundle>
  <SoftwareBundle bundleID="NOSYS.9" bundleType="BTW32">
    <Name><Display lang="en">Bundle without systems</Display></Name>
    <ComponentType value="SBDL"/>
    <Contents><Package path="BIOS.EXE" packageID="P1"/></Contents>
  </SoftwareBundle>
  <SoftwareComponent packageID="P1" path="F1/BIOS/BIOS.EXE" vendorVersion="2.4.1" dateTime="1763683200" releaseDate="1763596800">
    <Name><Display lang="en">System BIOS</Display></Name>
    <ComponentType value="BIOS"><Display lang="en">BIOS</Display></ComponentType>
    <Category value="BI"><Display lang="en">BIOS</Display></Category>
    <SupportedDevices><Device componentID="159" embedded="1"><Display lang="en">BIOS</Display></Device></SupportedDevices>
    <SupportedSystems display="1"><Brand key="3" prefix="SRV"><Model systemID="0A6B"/></Brand></SupportedSystems>
    <SupportedOperatingSystems><OperatingSystem osArch="x64" osCode="W22" osVendor="Example" majorVersion="10" minorVersion="0"/></SupportedOperatingSystems>
    <Criticality value="2"/>
  </SoftwareComponent>
  <SoftwareComponent packageID="P2" path="BIOS2.EXE" vendorVersion="2.10">
    <Name><Display lang="en">System BIOS, newer</Display></Name>
    <ComponentType value="BIOS"/>
    <Category value="BI"><Display lang="en">BIOS</Display></Category>
    <SupportedDevices><Device componentID="159"/></SupportedDevices>
  </SoftwareComponent>
  <SoftwareComponent packageID="P3" path="F3/FRMW/NICFW.EXE" vendorVersion="22.5.7">
    <Name><Display lang="en">Adapter firmware</Display></Name>
    <ComponentType value="FRMW"/>
    <Category value="NI"><Display lang="en">Network</Display></Category>
    <SupportedDevices><Device componentID="0" embedded="0">
      <PCIInfo deviceID="1593" vendorID="8086" subDeviceID="0000" subVendorID="0000"/>
      <PCIInfo deviceID="165F" vendorID="14E4" subDeviceID="1F5B" subVendorID="1028"/>
    </Device></SupportedDevices>
  </SoftwareComponent>
  <SoftwareComponent packageID="P4" path="NICDRV.EXE" vendorVersion="1.13.10">
    <Name><Display lang="en">Adapter driver</Display></Name>
    <ComponentType value="DRVR"/>
    <Category value="Network Drivers"><Display lang="en">Network Drivers</Display></Category>
    <LUCategory value="NET"><Display lang="en">Network</Display></LUCategory>
    <SupportedDevices><Device componentID="0"><PCIInfo deviceID="1593" vendorID="8086" subDeviceID="0A6B" subVendorID="1028"/></Device>
      <Device><PCIInfo deviceID="0536" vendorID="102B" subDeviceID="0A6B" subVendorID="1028"/></Device></SupportedDevices>
    <ImportantInfo URL="https://updates.example.com/notes"/>
  </SoftwareComponent>
  <SoftwareComponent packageID="P5" path="RAID.EXE" vendorVersion="52.26.0">
    <Name><Display lang="en">RAID firmware</Display></Name>
    <ComponentType value="FRMW"/>
    <Category value="SF"><Display lang="en">Storage</Display></Category>
    <SupportedDevices><Device componentID="25227"/><Device componentID="0">
      <PCIInfo deviceID="10E2" vendorID="1000" subDeviceID="2171" subVendorID="1028"/></Device></SupportedDevices>
  </SoftwareComponent>
  <SoftwareComponent packageID="P6" path="AGENT.EXE" vendorVersion="11.0.2">
    <Name><Display lang="en">Agent</Display></Name>
    <ComponentType value="APAC"/>
    <Category value="SM"><Display lang="en">Systems Management</Display></Category>
    <SupportedDevices><Device componentID="18981"/></SupportedDevices>
  </SoftwareComponent>
  <SoftwareComponent packageID="P7" path="SKIP.EXE" vendorVersion="9.9">
    <Name><Display lang="en">Excluded device</Display></Name>
    <ComponentType value="DRVR"/>
    <Category value="A1E"><Display lang="en">Other</Display></Category>
    <SupportedDevices><Device componentID="2331"/></SupportedDevices>
  </SoftwareComponent>
  <SoftwareComponent packageID="P8" path="APP.EXE" vendorVersion="5.2.0">
    <Name><Display lang="en">Update agent</Display></Name>
    <ComponentType value="APP"/>
    <Category value="Netbook"><Display lang="en">Netbook Tools</Display></Category>
    <SupportedDevices><Device componentID="101"/></SupportedDevices>
  </SoftwareComponent>
  <SoftwareComponent packageID="P9" path="NOTLISTED.EXE" vendorVersion="99">
    <Name><Display lang="en">Not in any bundle</Display></Name>
    <ComponentType value="BIOS"/>
    <Category value="BI"><Display lang="en">BIOS</Display></Category>
    <SupportedDevices><Device componentID="159"/></SupportedDevices>
  </SoftwareComponent>
  <InventoryComponent osCode="W22" path="collectors/invcol_w64.exe" vendorVersion="19.1.0"/>
  <InventoryComponent osCode="RH9" path="collectors/invcol_lx.bin"/>
</Manifest>
)";

const char kFixedInventory[] = R"(<?xml version="1.0" encoding="utf-8"?>
<SVMInventory lang="en" schemaVersion="1.0" timeStamp="1763700000">
  <OperatingSystem osArch="x64" osCode="W22" osVendor="Example" majorVersion="10" minorVersion="0"
                   spMajorVersion="0" spMinorVersion="0" preinstallationEnvironment="false" suiteMask="400">
    <Display lang="en">Server OS 2022</Display>
  </OperatingSystem>
  <System systemID="0A6B" display="S740" serviceTag="ABC1234" systemIDType="BIOS"/>
  <Device componentID="159" display="BIOS">
    <Application componentType="BIOS" version="2.3.9" display="BIOS"/>
  </Device>
  <Device componentID="25227" display="Remote access controller">
    <Application componentType="FRMW" version="7.10.30" display="Remote access controller firmware"/>
  </Device>
  <Device vendorID="8086" deviceID="1593" subVendorID="1028" subDeviceID="0A6B" bus="59" device="0" function="0"
          display="Dual-port 25GbE adapter">
    <Application componentType="FRMW" version="22.0.9" display="25GbE adapter firmware"/>
    <Application componentType="DRVR" version="1.13.2" display="25GbE adapter driver"/>
  </Device>
  <Device vendorID="1000" deviceID="10E2" subVendorID="1028" subDeviceID="2171" bus="24" device="0" function="0"
          display="RAID controller">
    <Application componentType="FRMW" version="52.22.0" display="RAID controller firmware"/>
    <Application componentType="DRVR" version="7.726.4" display="RAID controller driver"/>
  </Device>
  <Device vendorID="14E4" deviceID="165F" subVendorID="1028" subDeviceID="1F5B" bus="4" device="0" function="1"
          display="Quad-port 1GbE adapter">
    <Application componentType="FRMW" version="21.85.0" display="1GbE adapter firmware"/>
  </Device>
  <Device vendorID="102B" deviceID="0536" subVendorID="1028" subDeviceID="0A6B" bus="3" device="0" function="0"
          display="Video controller">
    <Application componentType="DRVR" version="9. 15 .1" display="Video driver"/>
  </Device>
  <Device componentID="18981" display="Systems management agent">
    <Application componentType="APAC" version="10.3.0" display="Systems management agent"/>
  </Device>
  <Device componentID="101" display="Update agent">
    <Application componentType="APP" version="5.1.4" display="Update agent"/>
  </Device>
  <Device componentID="2331" display="Excluded device">
    <Application componentType="DRVR" version="1.0" display="Excluded driver"/>
  </Device>
</SVMInventory>
)";

}  // namespace qrmfuzz
