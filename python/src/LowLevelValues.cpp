// The low-level layer's value classes: the library's objects with their
// getters, read-only. Every getter reads with the GIL released and the
// library lock held, after making sure the object still exists; what it
// returns by value is a copy Python owns.
#include "LowLevel.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace qrmpy {

namespace {

// The Python class of a library class T, built getter by getter.
template <class T>
class ValueClass {
public:
    ValueClass(py::module_& module, const char* name, const char* doc)
        : mClass(module, name, doc, py::is_final()), mName(name)
    {
        RefuseInstancesFromPython(mClass);
    }

    // A getter reading the object: `read(const T&)` gives what Python gets.
    template <class F>
    ValueClass& Get(const char* method, F read, const char* doc)
    {
        const char* name = mName;
        mClass.def(
            method, [read, name](const Ref<T>& self) { return Read(self, name, read); }, doc);
        return *this;
    }

    // A getter handing out objects held by this one: `read(const Ref<T>&,
    // const T&)` gives views that live as long as this object does.
    template <class F>
    ValueClass& GetParts(const char* method, F read, const char* doc)
    {
        const char* name = mName;
        mClass.def(
            method,
            [read, name](const Ref<T>& self) {
                return Read(self, name, [&](const T& object) { return read(self, object); });
            },
            doc);
        return *this;
    }

    // A query with an argument of a value class.
    template <class A, class F>
    ValueClass& Query(const char* method, const char* argument, F query, const char* doc)
    {
        const char* name = mName;
        mClass.def(
            method,
            [query, name](const Ref<T>& self, const Ref<A>& other) {
                std::optional<bool> result;
                {
                    py::gil_scoped_release released;
                    LibraryLock lock;
                    if (!self.origin.Stale() && !other.origin.Stale()) {
                        result = query(*self.ptr, *other.ptr);
                    }
                }
                if (!result) {
                    ThrowStale(name);
                }
                return *result;
            },
            py::arg(argument), doc);
        return *this;
    }

    // == and != with the library's result; no hash (the objects are values
    // that compare by their contents).
    ValueClass& Equality()
    {
        const char* name = mName;
        auto compare = [name](const Ref<T>& self, const py::object& other, bool equal) -> py::object {
            if (!py::isinstance<Ref<T>>(other)) {
                return py::reinterpret_borrow<py::object>(Py_NotImplemented);
            }
            const Ref<T>& that = other.cast<const Ref<T>&>();
            std::optional<bool> result;
            {
                py::gil_scoped_release released;
                LibraryLock lock;
                if (!self.origin.Stale() && !that.origin.Stale()) {
                    result = equal ? *self.ptr == *that.ptr : *self.ptr != *that.ptr;
                }
            }
            if (!result) {
                ThrowStale(name);
            }
            return py::bool_(*result);
        };
        mClass.def(
            "__eq__", [compare](const Ref<T>& self, const py::object& other) { return compare(self, other, true); },
            py::is_operator(), "The library's equality of the two objects.");
        mClass.def(
            "__ne__", [compare](const Ref<T>& self, const py::object& other) { return compare(self, other, false); },
            py::is_operator(), "The library's inequality of the two objects.");
        mClass.attr("__hash__") = py::none();
        return *this;
    }

    // The hash of a store object: which object it is (the store's objects
    // are handed out as the same Python object while it is alive, so they
    // match as dict keys). Never reads the object.
    ValueClass& IdentityHash()
    {
        mClass.def(
            "__hash__", [](const Ref<T>& self) { return std::hash<const void*>()(self.ptr); },
            "Which store object this is (never reads it).");
        return *this;
    }

    // "Name(Field=value, ...)" from the getters named; "<stale Name>" for an
    // object that is gone.
    ValueClass& Repr(std::vector<const char*> getters)
    {
        const char* name = mName;
        mClass.def(
            "__repr__",
            [name, getters](const py::object& self) {
                const Ref<T>& ref = self.cast<const Ref<T>&>();
                if (ref.origin.Stale()) {
                    return py::str("<stale {}>").format(name);
                }
                py::list fields;
                for (const char* getter : getters) {
                    std::string field(getter);
                    for (const char* prefix : {"Get", "Is", "Has", "Requires"}) {
                        if (field.rfind(prefix, 0) == 0 && field.size() > std::string(prefix).size()) {
                            field = field.substr(std::string(prefix).size());
                            break;
                        }
                    }
                    fields.append(py::str("{}={!r}").format(field, self.attr(getter)()));
                }
                return py::str("{}({})").format(name, py::str(", ").attr("join")(fields));
            },
            "The class and the main fields.");
        return *this;
    }

    ValueClass& Displays()
    {
        return Get(
            "GetDisplayValues",
            [](const T& object) {
                std::vector<QRMDisplay> out;
                object.GetDisplayValues(out);
                return OwnAll(std::move(out));
            },
            "Copies of the texts (QRMDisplay), in order.");
    }

private:
    py::class_<Ref<T>> mClass;
    const char* mName;
};

// Getter helpers: a copy of a value object, copies of a list, views of the
// objects a holder keeps.
template <class T, class R>
auto Copy(R (T::*getter)() const)
{
    return [getter](const T& object) { return Ref<R>::Own((object.*getter)()); };
}

template <class T, class R>
auto Copies(void (T::*getter)(std::vector<R>&) const)
{
    return [getter](const T& object) {
        std::vector<R> out;
        (object.*getter)(out);
        return OwnAll(std::move(out));
    };
}

template <class T, class R>
auto Parts(void (T::*getter)(std::vector<R*>&) const)
{
    return [getter](const Ref<T>& self, const T& object) {
        std::vector<R*> out;
        (object.*getter)(out);
        return PartsOf(self, out);
    };
}

template <class T>
auto Numbers(void (T::*getter)(std::vector<unsigned int>&) const)
{
    return [getter](const T& object) {
        std::vector<unsigned int> out;
        (object.*getter)(out);
        return out;
    };
}

template <std::size_t N>
Bytes BytesOf(const std::array<unsigned char, N>& bytes)
{
    return Bytes{std::string(bytes.begin(), bytes.end())};
}

// The getters every holder of a dependency's fields has.
template <class T>
void DependencyFields(ValueClass<T>& cls)
{
    cls.Get("GetType", &T::GetType, "The dependency's type number.")
        .Get("GetName", &T::GetName, "The package's name.")
        .Get("GetVersion", &T::GetVersion, "The package's version.")
        .Get("GetIdentifier", &T::GetIdentifier, "The package's identifier (a GUID in its text form).")
        .Get("GetPath", &T::GetPath, "The package's path.")
        .Get("GetSize", &T::GetSize, "The package's size.")
        .Get("GetFlags", &T::GetFlags, "The dependency's flags.")
        .Get("GetPCIInfo", Copies<T, QRMPCIInfo>(&T::GetPCIInfo), "Copies of the PCI identities, in order.")
        .Get("GetPnPInfo", Copies<T, QRMPnPInfo>(&T::GetPnPInfo), "Copies of the plug-and-play identities, in order.")
        .Displays();
}

}  // namespace

void DefineValueClasses(py::module_& module)
{
    ValueClass<QRMDisplay>(module, "QRMDisplay", "One localised text: a language tag and the text in that language.")
        .Get("GetLanguage", &QRMDisplay::GetLanguage, "The language tag (\"en\", \"zh-Hans\").")
        .Get("GetValue", &QRMDisplay::GetValue, "The text.")
        .Equality()
        .Repr({"GetLanguage", "GetValue"});

    ValueClass<QRMDeviceApplicability>(module, "QRMDeviceApplicability",
                                       "Where a supported device applies, as a language-tagged text.")
        .Get("GetLanguage", &QRMDeviceApplicability::GetLanguage, "The language tag.")
        .Get("GetValue", &QRMDeviceApplicability::GetValue, "The text.")
        .Equality()
        .Repr({"GetLanguage", "GetValue"});

    ValueClass<QRMName>(module, "QRMName", "The localised names of a catalog entry.")
        .Get("GetDisplayValues", Copies<QRMName, QRMDisplay>(&QRMName::GetDisplayValues),
             "Copies of the names (QRMDisplay), in order.")
        .Equality()
        .Repr({"GetDisplayValues"});

    ValueClass<QRMCategory>(module, "QRMCategory", "A component's category code with its texts.")
        .Get("GetCode", &QRMCategory::GetCode, "The category code (\"BI\", \"SF2\").")
        .Displays()
        .Equality()
        .Repr({"GetCode", "GetDisplayValues"});

    ValueClass<QRMLUCategory>(module, "QRMLUCategory", "A component's second category code with its texts.")
        .Get("GetCode", &QRMLUCategory::GetCode, "The category code.")
        .Displays()
        .Equality()
        .Repr({"GetCode", "GetDisplayValues"});

    ValueClass<QRMComponentType>(module, "QRMComponentType", "A component's type with its texts.")
        .Get("GetValue", &QRMComponentType::GetValue,
             "The type (QRMComponentTypeValueEnum; a plain int for a value outside it).")
        .Displays()
        .Equality()
        .Repr({"GetValue"});

    ValueClass<QRMCriticality>(module, "QRMCriticality", "How urgent a component is, with its texts.")
        .Get("GetValue", &QRMCriticality::GetValue,
             "The level (QRMCriticalityValueEnum; a plain int for a value outside it).")
        .Displays()
        .Equality()
        .Repr({"GetValue"});

    ValueClass<QRMImportantInfo>(module, "QRMImportantInfo", "Where an entry's important notes are published.")
        .Get("GetURL", &QRMImportantInfo::GetURL, "The URL.")
        .Displays()
        .Equality()
        .Repr({"GetURL"});

    ValueClass<QRMInstallInstruction>(module, "QRMInstallInstruction", "How a package is installed.")
        .Get("GetCommand", &QRMInstallInstruction::GetCommand, "The command.")
        .Get("GetArguments", &QRMInstallInstruction::GetArguments, "Its arguments.")
        .Displays()
        .Equality()
        .Repr({"GetCommand", "GetArguments"});

    ValueClass<QRMRevisionHistory>(module, "QRMRevisionHistory", "The localised revision notes of an entry.")
        .Displays()
        .Equality()
        .Repr({"GetDisplayValues"});

    ValueClass<QRMSubComponent>(module, "QRMSubComponent", "A part of a supported device that is updated with it.")
        .Get("GetName", &QRMSubComponent::GetName, "The part's name.")
        .Get("GetVersion", &QRMSubComponent::GetVersion, "The part's version.")
        .Displays()
        .Equality()
        .Repr({"GetName", "GetVersion"});

    ValueClass<QRMBundleContent>(module, "QRMBundleContent", "One package of a bundle: its package id and file name.")
        .Get("GetPackageID", &QRMBundleContent::GetPackageID, "The package id.")
        .Get("GetPath", &QRMBundleContent::GetPath, "The package's file name.")
        .Get("GetIdentifier", &QRMBundleContent::GetIdentifier,
             "The identifier (a GUID in its text form; the catalog reader leaves it nil).")
        .Equality()
        .Repr({"GetPackageID", "GetPath"});

    ValueClass<QRMPCIInfo>(module, "QRMPCIInfo", "One PCI identity.")
        .Get("GetDeviceID", &QRMPCIInfo::GetDeviceID, "The device id.")
        .Get("GetVendorID", &QRMPCIInfo::GetVendorID, "The vendor id.")
        .Get("GetSubDeviceID", &QRMPCIInfo::GetSubDeviceID, "The sub-device id.")
        .Get("GetSubVendorID", &QRMPCIInfo::GetSubVendorID, "The sub-vendor id.")
        .Equality()
        .Repr({"GetVendorID", "GetDeviceID", "GetSubVendorID", "GetSubDeviceID"});

    ValueClass<QRMPnPInfo>(module, "QRMPnPInfo", "One plug-and-play identity.")
        .Get("HasPrimary", &QRMPnPInfo::HasPrimary, "Whether the primary id is present.")
        .Get(
            "GetPrimary", [](const QRMPnPInfo& pnp) { return BytesOf(pnp.GetPrimary()); },
            "The primary id's four bytes (zero when absent).")
        .Get("HasSecondary", &QRMPnPInfo::HasSecondary, "Whether the secondary id is present.")
        .Get(
            "GetSecondary", [](const QRMPnPInfo& pnp) { return BytesOf(pnp.GetSecondary()); },
            "The secondary id's three bytes (zero when absent).")
        .Get(
            "GetValue", [](const QRMPnPInfo& pnp) { return BytesOf(pnp.GetValue()); }, "The value's four bytes.")
        .Equality()
        .Repr({"GetPrimary", "GetSecondary", "GetValue"});

    ValueClass<QRMDependency> dependency(module, "QRMDependency", "A package a supported device's update depends on.");
    DependencyFields(dependency);
    dependency.Equality().Repr({"GetName", "GetVersion", "GetPath"});

    ValueClass<QRMSoftDependency> softDependency(module, "QRMSoftDependency",
                                                 "A dependency with the places it applies to.");
    DependencyFields(softDependency);
    softDependency
        .Get("GetApplicability",
             Copies<QRMSoftDependency, QRMDeviceApplicability>(&QRMSoftDependency::GetApplicability),
             "Copies of the applicability entries, in order.")
        .Equality()
        .Repr({"GetName", "GetVersion", "GetPath"});

    ValueClass<QRMRollbackInformation>(module, "QRMRollbackInformation",
                                       "What a device needs to return to an earlier package.")
        .Get("GetRollbackIdentifier", &QRMRollbackInformation::GetRollbackIdentifier,
             "The rollback package's identifier (GUID text).")
        .Get("GetRollbackVersion", &QRMRollbackInformation::GetRollbackVersion, "The rollback version.")
        .Get("GetPackageIdentifier", &QRMRollbackInformation::GetPackageIdentifier,
             "The package's identifier (GUID text).")
        .Get("GetPackagePath", &QRMRollbackInformation::GetPackagePath, "The package's path.")
        .Get("GetSessionIdentifier", &QRMRollbackInformation::GetSessionIdentifier,
             "The session's identifier (GUID text).")
        .Get("GetSequence", &QRMRollbackInformation::GetSequence, "The sequence number.")
        .Get("GetFlags", &QRMRollbackInformation::GetFlags, "The flags.")
        .Get("GetNote", &QRMRollbackInformation::GetNote, "The note.")
        .Equality()
        .Repr({"GetRollbackVersion", "GetPackagePath", "GetSequence"});

    ValueClass<QRMFMPWrapperInformation>(module, "QRMFMPWrapperInformation",
                                         "How a package is wrapped for firmware delivery.")
        .Get("IsDigitallySigned", &QRMFMPWrapperInformation::IsDigitallySigned, "Whether it is signed.")
        .Get("GetName", &QRMFMPWrapperInformation::GetName, "The wrapper's name.")
        .Get("IsInventorySupported", &QRMFMPWrapperInformation::IsInventorySupported, "Whether inventory is supported.")
        .Get("IsUpdateSupported", &QRMFMPWrapperInformation::IsUpdateSupported, "Whether update is supported.")
        .Get("GetIdentifier", &QRMFMPWrapperInformation::GetIdentifier, "The identifier (GUID text).")
        .Get("GetFilePath", &QRMFMPWrapperInformation::GetFilePath, "The file path.")
        .Get("GetDriverName", &QRMFMPWrapperInformation::GetDriverName, "The driver's name.")
        .Get("GetDriverVersion", &QRMFMPWrapperInformation::GetDriverVersion, "The driver's version.")
        .Get("IsRollbackSupported", &QRMFMPWrapperInformation::IsRollbackSupported, "Whether rollback is supported.")
        .Equality()
        .Repr({"GetName", "GetFilePath", "GetDriverVersion"});

    ValueClass<QRMDevice>(module, "QRMDevice",
                          "One piece of hardware a catalog component supports. A device of a stored component is "
                          "a view into it: stale when the component is.")
        .Get("GetComponentID", &QRMDevice::GetComponentID, "The component id (0: matched by PCI ids).")
        .Get("IsEmbedded", &QRMDevice::IsEmbedded, "Whether the device is embedded.")
        .Get("GetRollbackInformation", Copy(&QRMDevice::GetRollbackInformation), "A copy of the rollback information.")
        .GetParts("GetPCIInfo", Parts(&QRMDevice::GetPCIInfo),
                  "The PCI identities the device holds (views into it), in order.")
        .Get("GetPnPInfo", Copies(&QRMDevice::GetPnPInfo), "Copies of the plug-and-play identities.")
        .Get("GetSubComponents", Copies(&QRMDevice::GetSubComponents), "Copies of the sub-components.")
        .Get("GetDependencies", Copies(&QRMDevice::GetDependencies), "Copies of the dependencies.")
        .Get("GetSoftDependencies", Copies(&QRMDevice::GetSoftDependencies), "Copies of the soft dependencies.")
        .Get("GetApplicability", Copies(&QRMDevice::GetApplicability), "Copies of the applicability entries.")
        .Query<QRMPCIInfo>(
            "HasPCI", "pci_info", [](const QRMDevice& device, const QRMPCIInfo& pci) { return device.HasPCI(pci); },
            "Whether a held PCI identity equals the argument exactly (no wildcards).")
        .Query<QRMPnPInfo>(
            "HasPnP", "pnp_info", [](const QRMDevice& device, const QRMPnPInfo& pnp) { return device.HasPnP(pnp); },
            "Whether a held plug-and-play identity equals the argument exactly.")
        .Displays()
        .Equality()
        .Repr({"GetComponentID", "GetDisplayValues"});

    ValueClass<QRMModel>(module, "QRMModel",
                         "One computer model of a brand, by its system id. A model has no equality of its own.")
        .Get("GetSystemID", &QRMModel::GetSystemID, "The system id.")
        .Get("GetSecondID", &QRMModel::GetSecondID, "The second id.")
        .Get("GetThirdID", &QRMModel::GetThirdID, "The third id.")
        .GetParts("GetSubBrands", Parts(&QRMModel::GetSubBrands), "The brands nested in the model (views into it).")
        .Displays()
        .Repr({"GetSystemID"});

    ValueClass<QRMBrand>(module, "QRMBrand",
                         "A brand of computers with its models. Brands compare their models by identity: a brand is "
                         "unequal to a copy of itself once it holds a model.")
        .Get("GetKey", &QRMBrand::GetKey, "The brand's key.")
        .Get("GetPrefix", &QRMBrand::GetPrefix, "The brand's prefix.")
        .GetParts("GetModels", Parts(&QRMBrand::GetModels), "The models the brand holds (views into it), in order.")
        .Displays()
        .Equality()
        .Repr({"GetKey", "GetPrefix"});

    ValueClass<QRMSupportedSystems>(module, "QRMSupportedSystems",
                                    "The computer brands a component or bundle supports.")
        .GetParts("GetBrands", Parts(&QRMSupportedSystems::GetBrands), "The brands held (views into them), in order.")
        .Get("GetDisplay", &QRMSupportedSystems::GetDisplay, "Whether the systems are shown.")
        .Equality()
        .Repr({"GetDisplay", "GetBrands"});

    ValueClass<QRMOperatingSystem>(module, "QRMOperatingSystem", "One operating system with its versions.")
        .Get("GetCode", &QRMOperatingSystem::GetCode, "The OS code.")
        .Get("GetVendor", &QRMOperatingSystem::GetVendor, "The vendor.")
        .Get("GetArchitecture", &QRMOperatingSystem::GetArchitecture,
             "The architecture (QRMOSArchitectureEnum; a plain int for a value outside it).")
        .Get("GetMajorVersion", &QRMOperatingSystem::GetMajorVersion, "The major version text.")
        .Get("GetMinorVersion", &QRMOperatingSystem::GetMinorVersion, "The minor version text.")
        .Get("GetServicePackMajorVersion", &QRMOperatingSystem::GetServicePackMajorVersion,
             "The service pack's major version text.")
        .Get("GetServicePackMinorVersion", &QRMOperatingSystem::GetServicePackMinorVersion,
             "The service pack's minor version text.")
        .Get("IsForPreInstallEnvironment", &QRMOperatingSystem::IsForPreInstallEnvironment,
             "Whether it is a pre-install environment.")
        .Get("GetSuiteMask", &QRMOperatingSystem::GetSuiteMask, "The suite mask.")
        .Get("GetNumericTags", Numbers(&QRMOperatingSystem::GetNumericTags), "The numeric tags, in order.")
        .Displays()
        .Equality()
        .Repr({"GetCode", "GetVendor", "GetArchitecture", "GetMajorVersion", "GetMinorVersion"});

    ValueClass<QRMSupportedOperatingSystems>(module, "QRMSupportedOperatingSystems",
                                             "The operating systems a component or bundle supports. Equality is "
                                             "all-pairs: two different systems make a list unequal even to itself.")
        .Get("GetOSes", Copies(&QRMSupportedOperatingSystems::GetOSes), "Copies of the operating systems, in order.")
        .Equality()
        .Repr({"GetOSes"});

    ValueClass<QRMInventoryComponent>(module, "QRMInventoryComponent",
                                      "One inventory-collector program of the catalog.")
        .Get("GetSchemaVersion", &QRMInventoryComponent::GetSchemaVersion, "The schema version.")
        .Get("GetReleaseID", &QRMInventoryComponent::GetReleaseID, "The release id.")
        .Get("GetReleaseDate", &QRMInventoryComponent::GetReleaseDate, "The release date, as a count.")
        .Get("GetVendorVersion", &QRMInventoryComponent::GetVendorVersion, "The vendor version.")
        .Get("GetTolvarVersion", &QRMInventoryComponent::GetTolvarVersion, "The second version.")
        .Get("GetOSCode", &QRMInventoryComponent::GetOSCode, "The OS code it is for.")
        .Get("GetMD5Hash", &QRMInventoryComponent::GetMD5Hash, "The hash text.")
        .Get("GetPath", &QRMInventoryComponent::GetPath, "The path.")
        .Get("GetDateTime", &QRMInventoryComponent::GetDateTime, "The date and time, as a count.")
        .Get("GetSize", &QRMInventoryComponent::GetSize, "The size (not read from the catalog: 0).")
        .Equality()
        .Repr({"GetOSCode", "GetPath", "GetVendorVersion"});

    ValueClass<QRMISystem>(module, "QRMISystem", "The identity of the inventoried computer.")
        .Get("GetSystemID", &QRMISystem::GetSystemID, "The system id.")
        .Get("GetSystemIDType", &QRMISystem::GetSystemIDType,
             "The id's type (QRMSystemIDTypeEnum; a plain int for a value outside it).")
        .Get("GetDisplay", &QRMISystem::GetDisplay, "The display name.")
        .Get("GetServiceTag", &QRMISystem::GetServiceTag, "The service tag.")
        .Displays()
        .Equality()
        .Repr({"GetSystemID", "GetSystemIDType", "GetDisplay"});

    ValueClass<QRMIApplication>(module, "QRMIApplication",
                                "An application installed for an inventory device: an object of the inventory store "
                                "(which lives as long as the process). The same stored application is the same "
                                "Python object while that is alive; its hash is which object it is.")
        .Get("GetComponentType", &QRMIApplication::GetComponentType,
             "The type (QRMComponentTypeValueEnum; a plain int for a value outside it).")
        .Get("GetVersion", &QRMIApplication::GetVersion, "The installed version.")
        .Get("GetDisplay", &QRMIApplication::GetDisplay, "The display name.")
        .Get("GetSubComponentID", &QRMIApplication::GetSubComponentID, "The sub-component id.")
        .Displays()
        .Equality()
        .IdentityHash()
        .Repr({"GetComponentType", "GetVersion", "GetDisplay"});

    ValueClass<QRMIDevice>(module, "QRMIDevice",
                           "A device of the inventoried computer: an object of the inventory store (which lives as "
                           "long as the process). The same stored device is the same Python object while that is "
                           "alive; its hash is which object it is. The library's equality makes a device that lists "
                           "applications unequal to itself.")
        .Get("GetBus", &QRMIDevice::GetBus, "The PCI bus.")
        .Get("GetDevice", &QRMIDevice::GetDevice, "The PCI device.")
        .Get("GetFunction", &QRMIDevice::GetFunction, "The PCI function.")
        .Get("GetVendorID", &QRMIDevice::GetVendorID, "The vendor id.")
        .Get("GetDeviceID", &QRMIDevice::GetDeviceID, "The device id.")
        .Get("GetSubVendorID", &QRMIDevice::GetSubVendorID, "The sub-vendor id.")
        .Get("GetSubDeviceID", &QRMIDevice::GetSubDeviceID, "The sub-device id.")
        .Get("GetComponentInstance", &QRMIDevice::GetComponentInstance, "The component instance.")
        .Get("GetComponentID", &QRMIDevice::GetComponentID, "The component id.")
        .Get("GetDisplay", &QRMIDevice::GetDisplay, "The display name.")
        .GetParts("GetApplications", Parts(&QRMIDevice::GetApplications),
                  "The installed applications, in order: the store's own objects (the keys of "
                  "GetApplicableUpdates() are among them).")
        .Displays()
        .Equality()
        .IdentityHash()
        .Repr({"GetDisplay", "GetComponentID"});

    ValueClass<QRMSoftwareBundle>(module, "QRMSoftwareBundle",
                                  "A bundle of the catalog store: stale (every use raises StaleObjectError) after the "
                                  "next Reset or Parse(path). Compared by identity: the library has no equality for "
                                  "bundles.")
        .Get("GetName", Copy(&QRMSoftwareBundle::GetName), "A copy of the names.")
        .Get("GetComponentType", Copy(&QRMSoftwareBundle::GetComponentType), "A copy of the component type.")
        .Get("GetTargetSystems", Copy(&QRMSoftwareBundle::GetTargetSystems), "A copy of the target systems.")
        .Get("GetTargetOSes", Copy(&QRMSoftwareBundle::GetTargetOSes), "A copy of the target operating systems.")
        .Get("GetRevisionHistory", Copy(&QRMSoftwareBundle::GetRevisionHistory), "A copy of the revision history.")
        .Get("GetImportantInfo", Copy(&QRMSoftwareBundle::GetImportantInfo), "A copy of the important information.")
        .Get("GetSchemaVersion", &QRMSoftwareBundle::GetSchemaVersion, "The schema version.")
        .Get("GetReleaseID", &QRMSoftwareBundle::GetReleaseID, "The release id.")
        .Get("GetDateTime", &QRMSoftwareBundle::GetDateTime, "The date and time, as a count.")
        .Get("GetVendorVersion", &QRMSoftwareBundle::GetVendorVersion, "The vendor version.")
        .Get("GetPath", &QRMSoftwareBundle::GetPath, "The path.")
        .Get("GetBundleID", &QRMSoftwareBundle::GetBundleID, "The bundle id.")
        .Get("GetIdentifier", &QRMSoftwareBundle::GetIdentifier, "The identifier (GUID text; nil from the reader).")
        .Get("GetSecondaryIdentifier", &QRMSoftwareBundle::GetSecondaryIdentifier,
             "The secondary identifier (GUID text; nil from the reader).")
        .Get("GetBundleType", &QRMSoftwareBundle::GetBundleType,
             "The bundle type (QRMBundleTypeEnum; a plain int for a value outside it).")
        .Get("GetDescriptionDisplayValues", Copies(&QRMSoftwareBundle::GetDescriptionDisplayValues),
             "Copies of the description's texts (QRMDisplay), in order.")
        .Get("GetContents", Copies(&QRMSoftwareBundle::GetContents), "Copies of the package entries, in order.")
        .Get("GetSupportedSystemIDs", Numbers(&QRMSoftwareBundle::GetSupportedSystemIDs),
             "The system id of every model of every brand of the target systems, in order.")
        .Repr({"GetBundleID", "GetBundleType", "GetPath"});

    ValueClass<QRMSoftwareComponent>(module, "QRMSoftwareComponent",
                                     "An update package of the catalog store: stale (every use raises "
                                     "StaleObjectError) after the next Reset or Parse(path). The same stored "
                                     "component is the same Python object while that is alive; its hash is which "
                                     "object it is.")
        .Get("GetName", Copy(&QRMSoftwareComponent::GetName), "A copy of the names.")
        .Get("GetComponentType", Copy(&QRMSoftwareComponent::GetComponentType), "A copy of the component type.")
        .Get("GetCategory", Copy(&QRMSoftwareComponent::GetCategory), "A copy of the category.")
        .Get("GetLUCategory", Copy(&QRMSoftwareComponent::GetLUCategory), "A copy of the second category.")
        .Get("GetSupportedSystems", Copy(&QRMSoftwareComponent::GetSupportedSystems),
             "A copy of the supported systems.")
        .Get("GetSupportedOperatingSystems", Copy(&QRMSoftwareComponent::GetSupportedOperatingSystems),
             "A copy of the supported operating systems.")
        .Get("GetInstallInstruction", Copy(&QRMSoftwareComponent::GetInstallInstruction),
             "A copy of the install instruction.")
        .Get("GetRevisionHistory", Copy(&QRMSoftwareComponent::GetRevisionHistory), "A copy of the revision history.")
        .Get("GetImportantInfo", Copy(&QRMSoftwareComponent::GetImportantInfo), "A copy of the important information.")
        .Get("GetCriticality", Copy(&QRMSoftwareComponent::GetCriticality), "A copy of the criticality.")
        .Get("GetMSIID", &QRMSoftwareComponent::GetMSIID, "The installer id (GUID text).")
        .Get("GetSchemaVersion", &QRMSoftwareComponent::GetSchemaVersion, "The schema version.")
        .Get("GetReleaseID", &QRMSoftwareComponent::GetReleaseID, "The release id.")
        .Get("GetReleaseDate", &QRMSoftwareComponent::GetReleaseDate, "The release date, as a count.")
        .Get("GetVendorVersion", &QRMSoftwareComponent::GetVendorVersion, "The vendor version.")
        .Get("GetTolvarVersion", &QRMSoftwareComponent::GetTolvarVersion, "The second version.")
        .Get("GetPackageType", &QRMSoftwareComponent::GetPackageType, "The package type.")
        .Get("GetXMLGenVersion", &QRMSoftwareComponent::GetXMLGenVersion, "The generator version.")
        .Get("GetPath", &QRMSoftwareComponent::GetPath, "The package path.")
        .Get("GetPackageID", &QRMSoftwareComponent::GetPackageID, "The package id.")
        .Get("GetDateTime", &QRMSoftwareComponent::GetDateTime, "The date and time, as a count.")
        .Get("GetMD5Hash", &QRMSoftwareComponent::GetMD5Hash, "The hash text, as the catalog has it.")
        .Get("GetSize", &QRMSoftwareComponent::GetSize, "The size.")
        .Get("GetIdentifier", &QRMSoftwareComponent::GetIdentifier, "The identifier (GUID text).")
        .Get("GetPredecessor", &QRMSoftwareComponent::GetPredecessor, "The predecessor's identifier (GUID text).")
        .Get("RequiresReboot", &QRMSoftwareComponent::RequiresReboot, "Whether installing requires a reboot.")
        .Get("RequiresContainerPowerCycle", &QRMSoftwareComponent::RequiresContainerPowerCycle,
             "Whether installing requires a container power cycle.")
        .Get("GetDescriptionDisplayValues", Copies(&QRMSoftwareComponent::GetDescriptionDisplayValues),
             "Copies of the description's texts (QRMDisplay), in order.")
        .GetParts("GetSupportedDevices", Parts(&QRMSoftwareComponent::GetSupportedDevices),
                  "The supported devices (views into the component: stale when it is), in order.")
        .Get("GetWrappers", Copies(&QRMSoftwareComponent::GetWrappers), "Copies of the wrapper records, in order.")
        .Equality()
        .IdentityHash()
        .Repr({"GetPackageID", "GetVendorVersion", "GetPath"});
}

}  // namespace qrmpy
