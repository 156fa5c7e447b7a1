// The low-level layer: the library's own interface, names and return codes
// as they are in C++. The API object and the enumerations are here, the
// value classes in LowLevelValues.cpp.
#include "LowLevel.h"

#include <climits>
#include <memory>
#include <string>
#include <utility>

namespace qrmpy {

namespace {

std::atomic<std::uint64_t> gCatalogGeneration{1};

// Python objects the module keeps for the life of the process. They are
// never released: the interpreter may be finalising when static
// destructors run.
py::object* gEnums[static_cast<int>(EnumKind::Count)] = {};
py::object* gEnumMembers[static_cast<int>(EnumKind::Count)] = {};
py::object* gIdentities = nullptr;
py::object* gStaleObjectError = nullptr;
py::object* gInstance = nullptr;

py::tuple IdentityKey(const char* kind, const void* object, const Origin& origin)
{
    return py::make_tuple(py::str(kind), reinterpret_cast<std::uintptr_t>(object), static_cast<int>(origin.store),
                          origin.generation);
}

// A path argument as the library's file: str, bytes or os.PathLike, as the
// file system's bytes.
VELFile ToFile(const py::object& path)
{
    py::object encoded = py::module_::import("os").attr("fsencode")(path);
    return VELFile(encoded.cast<std::string>());
}

// One of the library's enumerations as Python sees it: its IntEnum's name,
// docstring and members (the C++ enumerator names and values).
struct EnumerationTable {
    EnumKind kind;
    const char* name;
    const char* doc;
    std::vector<std::pair<const char*, int>> members;
};

}  // namespace

std::uint64_t CatalogGeneration() { return gCatalogGeneration.load(); }

void NextCatalogGeneration() { gCatalogGeneration.fetch_add(1); }

py::object FindIdentity(const char* kind, const void* object, const Origin& origin)
{
    if (gIdentities == nullptr) {
        gIdentities = new py::object(py::module_::import("weakref").attr("WeakValueDictionary")());
    }
    return gIdentities->attr("get")(IdentityKey(kind, object, origin));
}

void RememberIdentity(const char* kind, const void* object, const Origin& origin, const py::object& python)
{
    if (gIdentities == nullptr) {
        gIdentities = new py::object(py::module_::import("weakref").attr("WeakValueDictionary")());
    }
    (*gIdentities)[IdentityKey(kind, object, origin)] = python;
}

void ThrowStale(const char* className)
{
    if (gStaleObjectError == nullptr) {
        gStaleObjectError = new py::object(py::module_::import("qrmkit._errors").attr("StaleObjectError"));
    }
    std::string message = std::string("this ") + className +
                          " referred into the catalog store, which Reset or Parse has emptied since it was handed out";
    PyErr_SetString(gStaleObjectError->ptr(), message.c_str());
    throw py::error_already_set();
}

py::object EnumValue(EnumKind kind, int value)
{
    py::object number = py::int_(value);
    py::object* members = gEnumMembers[static_cast<int>(kind)];
    if (members == nullptr) {
        return number;
    }
    PyObject* member = PyDict_GetItem(members->ptr(), number.ptr());
    if (member == nullptr) {
        return number;
    }
    return py::reinterpret_borrow<py::object>(member);
}

void DefineEnums(py::module_& module)
{
    const std::vector<EnumerationTable> enumerations = {
        {EnumKind::ReturnCode,
         "QRMKitReturnCode",
         "The result of the library's operations (the value 2 is never returned).",
         {{"QRM_KIT_SUCCESS", QRM_KIT_SUCCESS},
          {"QRM_KIT_FAILURE", QRM_KIT_FAILURE},
          {"QRM_KIT_ALREADY_EXISTS", QRM_KIT_ALREADY_EXISTS},
          {"QRM_KIT_NOT_FOUND", QRM_KIT_NOT_FOUND},
          {"QRM_KIT_ELEMENT_MISSING", QRM_KIT_ELEMENT_MISSING}}},
        {EnumKind::BundleType,
         "QRMBundleTypeEnum",
         "The \"bundleType\" of a software bundle.",
         {{"QRM_BUNDLE_BTW32", QRM_BUNDLE_BTW32},
          {"QRM_BUNDLE_BTW64", QRM_BUNDLE_BTW64},
          {"QRM_BUNDLE_BTLX", QRM_BUNDLE_BTLX},
          {"QRM_BUNDLE_BTRPM", QRM_BUNDLE_BTRPM},
          {"QRM_BUNDLE_BTDEB", QRM_BUNDLE_BTDEB},
          {"QRM_BUNDLE_BTOSIND", QRM_BUNDLE_BTOSIND}}},
        {EnumKind::OSArchitecture,
         "QRMOSArchitectureEnum",
         "The \"osArch\" of an operating system.",
         {{"QRM_OS_ARCH_X86", QRM_OS_ARCH_X86},
          {"QRM_OS_ARCH_X64", QRM_OS_ARCH_X64},
          {"QRM_OS_ARCH_IA64", QRM_OS_ARCH_IA64},
          {"QRM_OS_ARCH_IA32", QRM_OS_ARCH_IA32}}},
        {EnumKind::ComponentType,
         "QRMComponentTypeValueEnum",
         "The type of a component or an installed application (\"BIOS\", \"DRVR\", ...).",
         {{"QRM_COMPONENT_SBDL", QRM_COMPONENT_SBDL},
          {"QRM_COMPONENT_FRMW", QRM_COMPONENT_FRMW},
          {"QRM_COMPONENT_BIOS", QRM_COMPONENT_BIOS},
          {"QRM_COMPONENT_APAC", QRM_COMPONENT_APAC},
          {"QRM_COMPONENT_APP", QRM_COMPONENT_APP},
          {"QRM_COMPONENT_DRVR", QRM_COMPONENT_DRVR}}},
        {EnumKind::Criticality,
         "QRMCriticalityValueEnum",
         "How urgent a component is (the catalog's digit is one more than the value).",
         {{"QRM_CRITICALITY_LEVEL1", QRM_CRITICALITY_LEVEL1},
          {"QRM_CRITICALITY_LEVEL2", QRM_CRITICALITY_LEVEL2},
          {"QRM_CRITICALITY_LEVEL3", QRM_CRITICALITY_LEVEL3},
          {"QRM_CRITICALITY_UNSPECIFIED", QRM_CRITICALITY_UNSPECIFIED}}},
        {EnumKind::InventoryLanguage,
         "QRMInventoryLanguageEnum",
         "The \"lang\" of an inventory (any text not listed reads as QRM_LANG_EN).",
         {{"QRM_LANG_EN", QRM_LANG_EN},
          {"QRM_LANG_FR", QRM_LANG_FR},
          {"QRM_LANG_DE", QRM_LANG_DE},
          {"QRM_LANG_ES", QRM_LANG_ES},
          {"QRM_LANG_ZH_HANS", QRM_LANG_ZH_HANS},
          {"QRM_LANG_ZH_HANT", QRM_LANG_ZH_HANT},
          {"QRM_LANG_JA", QRM_LANG_JA},
          {"QRM_LANG_HI", QRM_LANG_HI},
          {"QRM_LANG_KN", QRM_LANG_KN},
          {"QRM_LANG_TE", QRM_LANG_TE},
          {"QRM_LANG_TA", QRM_LANG_TA}}},
        {EnumKind::SystemIDType,
         "QRMSystemIDTypeEnum",
         "The \"systemIDType\" of an inventory system (any text not listed reads as QRM_SYSTEMID_TYPE_BIOS).",
         {{"QRM_SYSTEMID_TYPE_BIOS", QRM_SYSTEMID_TYPE_BIOS},
          {"QRM_SYSTEMID_TYPE_MULTISYSTEMCHASSIS", QRM_SYSTEMID_TYPE_MULTISYSTEMCHASSIS},
          {"QRM_SYSTEMID_TYPE_RAIDCHASSIS", QRM_SYSTEMID_TYPE_RAIDCHASSIS},
          {"QRM_SYSTEMID_TYPE_ROUTER", QRM_SYSTEMID_TYPE_ROUTER},
          {"QRM_SYSTEMID_TYPE_NETWORKSWITCH", QRM_SYSTEMID_TYPE_NETWORKSWITCH}}},
    };
    py::object intEnum = py::module_::import("enum").attr("IntEnum");
    for (const EnumerationTable& enumeration : enumerations) {
        py::list members;
        for (const auto& member : enumeration.members) {
            members.append(py::make_tuple(member.first, member.second));
        }
        py::object cls = intEnum(enumeration.name, members, py::arg("module") = "qrmkit.lowlevel",
                                 py::arg("qualname") = enumeration.name);
        cls.attr("__doc__") = enumeration.doc;
        py::dict byValue;
        for (const auto& member : enumeration.members) {
            byValue[py::int_(member.second)] = cls.attr(member.first);
        }
        gEnums[static_cast<int>(enumeration.kind)] = new py::object(cls);
        gEnumMembers[static_cast<int>(enumeration.kind)] = new py::object(byValue);
        module.attr(enumeration.name) = cls;
    }
}

void DefineLowLevel(py::module_& module)
{
    DefineEnums(module);
    DefineValueClasses(module);

    // What a getter gives for a value of an enumeration: the library's
    // readers only store listed values, so no document shows a value outside.
    module.def(
        "_enum_value",
        [](const std::string& name, int value) {
            for (int kind = 0; kind < static_cast<int>(EnumKind::Count); ++kind) {
                if (gEnums[kind] != nullptr && gEnums[kind]->attr("__name__").cast<std::string>() == name) {
                    return EnumValue(static_cast<EnumKind>(kind), value);
                }
            }
            throw py::value_error("no such enumeration: " + name);
        },
        py::arg("name"), py::arg("value"), "The member of the enumeration for the value, or the plain int.");

    // How texts cross, unit by unit: the catalog and inventory readers turn
    // a lone surrogate into U+FFFD, so no document can show that one passes
    // through unchanged.
    module.def(
        "_velstring_units",
        [](const VELString& text) {
            std::u16string_view units = text.GetUTF16View();
            return std::vector<unsigned int>(units.begin(), units.end());
        },
        py::arg("text"), "The UTF-16 code units of the library's text made from a str.");
    module.def(
        "_velstring_from_units",
        [](const std::vector<unsigned int>& units) {
            std::u16string text;
            for (unsigned int unit : units) {
                if (unit > 0xFFFF) {
                    throw py::value_error("a UTF-16 code unit is at most 0xFFFF");
                }
                text.push_back(static_cast<char16_t>(unit));
            }
            return VELString(std::move(text));
        },
        py::arg("units"), "The str of the library's text made of these UTF-16 code units.");

    py::class_<QRMKitAPI, std::unique_ptr<QRMKitAPI, py::nodelete>> api(
        module, "QRMKitAPI", py::is_final(),
        "The library's single entry object: QRMKitAPI.Instance(). It owns the catalog store (emptied by Reset and "
        "every Parse(path)) and the inventory store (filled by ParseInventory, never emptied).");
    RefuseInstancesFromPython(api);
    gInstance = new py::object(py::cast(QRMKitAPI::Instance(), py::return_value_policy::reference));

    api.def_static(
        "Instance", []() { return *gInstance; }, "The one API object: the same Python object on every call.");

    // Reading documents into the stores.
    api.def(
        "Initialize",
        [](QRMKitAPI& self, const py::object& path) {
            VELFile file = ToFile(path);
            return Locked([&] {
                MarkStoresTouched();
                return self.Initialize(file);
            });
        },
        py::arg("path"),
        "Remembers the catalog file; QRM_KIT_NOT_FOUND (nothing changed) when it does not exist. Nothing is read.");
    api.def(
        "Reset",
        [](QRMKitAPI& self) {
            return Locked([&] {
                MarkStoresTouched();
                NextCatalogGeneration();
                return self.Reset();
            });
        },
        "Empties the catalog store (its category maps excepted) and forgets Initialize; the inventory store stays. "
        "Components and bundles handed out before become stale.");
    api.def(
        "IsInitialized", [](QRMKitAPI& self) { return Locked([&] { return self.IsInitialized(); }); },
        "Whether Initialize found its file (and no Reset came since).");
    api.def(
        "Parse", [](QRMKitAPI& self) { return Locked([&] { return self.Parse(); }); },
        "Does nothing and returns QRM_KIT_SUCCESS: the file given to Initialize is not read. Kept for callers that "
        "call it after Initialize; use Parse(path).");
    api.def(
        "Parse",
        [](QRMKitAPI& self, const py::object& path) {
            VELFile file = ToFile(path);
            return Locked([&] {
                MarkStoresTouched();
                NextCatalogGeneration();
                return self.Parse(file);
            });
        },
        py::arg("path"),
        "Reads a catalog file into the catalog store, replacing what it held (emptied first, whether the read "
        "succeeds or not: components and bundles handed out before become stale). QRM_KIT_NOT_FOUND for a missing "
        "file, QRM_KIT_FAILURE for one that is not a readable XML document, QRM_KIT_ELEMENT_MISSING for a faulty "
        "entry.");
    api.def(
        "ParseInventory",
        [](QRMKitAPI& self, const py::object& path) {
            VELFile file = ToFile(path);
            return Locked([&] {
                MarkStoresTouched();
                return self.ParseInventory(file);
            });
        },
        py::arg("path"),
        "Reads an inventory file into the inventory store, adding to what earlier calls stored (the store is never "
        "emptied).");

    // The catalog.
    api.def(
        "GetBaseLocation", [](QRMKitAPI& self) { return Locked([&] { return self.GetBaseLocation(); }); },
        "The catalog's baseLocation; empty while no catalog is parsed.");
    api.def(
        "GetInventoryComponent",
        [](QRMKitAPI& self, QRMOSArchitectureEnum architecture, const VELString& osCode) {
            std::unique_ptr<const QRMInventoryComponent> component(
                Locked([&] { return self.GetInventoryComponent(architecture, osCode); }));
            if (!component) {
                return py::object(py::none());
            }
            return py::cast(Ref<QRMInventoryComponent>::Own(std::move(component)));
        },
        py::arg("architecture"), py::arg("os_code"),
        "A copy of the first inventory component whose OS code equals os_code, or None. The architecture is not "
        "consulted. Before a catalog is parsed the library prints \"Catalog not initialized\" and None is returned.");
    api.def(
        "GetInventoryFile",
        [](QRMKitAPI& self, QRMOSArchitectureEnum architecture, const VELString& osCode) {
            return Locked([&] { return self.GetInventoryFile(architecture, osCode); });
        },
        py::arg("architecture"), py::arg("os_code"),
        "The base location + \"/\" + the path of the inventory component for os_code; empty when there is none.");
    api.def(
        "GetApplicableBundle",
        [](QRMKitAPI& self, QRMBundleTypeEnum bundleType) {
            return Locked([&]() -> std::optional<Shared<QRMSoftwareBundle>> {
                const QRMSoftwareBundle* bundle = self.GetApplicableBundle(bundleType);
                if (bundle == nullptr) {
                    return std::nullopt;
                }
                return Shared<QRMSoftwareBundle>{Ref<QRMSoftwareBundle>::InStore(bundle, Store::Catalog)};
            });
        },
        py::arg("bundle_type"),
        "The first bundle of that type, in catalog order, that lists the inventory's system id, or None. It refers "
        "into the catalog store: stale after the next Reset or Parse(path).");
    api.def(
        "GetGreatestBundleNumber",
        [](QRMKitAPI& self, QRMBundleTypeEnum bundleType) {
            return Locked([&] { return self.GetGreatestBundleNumber(bundleType); });
        },
        py::arg("bundle_type"),
        "The greatest number after the last \".\" of the bundle ids of that type; 0 when there is none.");
    api.def(
        "GetApplicableUpdates",
        [](QRMKitAPI& self, QRMOSArchitectureEnum architecture, QRMBundleTypeEnum bundleType) {
            return Locked([&] {
                std::map<QRMIApplication*, QRMSoftwareComponent*> updates;
                QRMKitReturnCode code = self.GetApplicableUpdates(updates, architecture, bundleType);
                std::map<Shared<QRMIApplication>, Shared<QRMSoftwareComponent>> shared;
                for (const auto& entry : updates) {
                    shared.emplace(
                        Shared<QRMIApplication>{Ref<QRMIApplication>::InStore(entry.first, Store::Inventory)},
                        Shared<QRMSoftwareComponent>{Ref<QRMSoftwareComponent>::InStore(entry.second, Store::Catalog)});
                }
                return std::make_pair(code, std::move(shared));
            });
        },
        py::arg("architecture"), py::arg("bundle_type"),
        "(code, {application: component}): for each installed application of the inventory, the catalog component "
        "that updates it. The applications are the very objects GetInventory()'s devices hold; the components refer "
        "into the catalog store. QRM_KIT_FAILURE and an empty dict when the catalog or the inventory is not parsed or "
        "no bundle applies. The architecture is not consulted.");
    api.def(
        "GetCategoryValues",
        [](QRMKitAPI& self) {
            return Locked([&] {
                std::map<VELString, VELString> values;
                self.GetCategoryValues(values);
                return values;
            });
        },
        "{code: text} of the categories of every catalog read since the library was loaded.");
    api.def(
        "SetAcronymForCategoryValues", [](QRMKitAPI& self) { Locked([&] { self.SetAcronymForCategoryValues(); }); },
        "Gives every category a short upper-case acronym; acronyms, once given, are kept for the life of the "
        "library.");
    api.def(
        "GetAcronymForCategoryValues",
        [](QRMKitAPI& self) {
            return Locked([&] {
                std::map<VELString, VELString> acronyms;
                self.GetAcronymForCategoryValues(acronyms);
                return acronyms;
            });
        },
        "SetAcronymForCategoryValues(), then {acronym: category text}.");
    api.def(
        "ListCatalogAndRVUGeneratedCategoryValues",
        [](QRMKitAPI& self) {
            return Locked([&] {
                std::map<VELString, std::vector<VELString>> list;
                self.ListCatalogAndRVUGeneratedCategoryValues(list);
                return list;
            });
        },
        "{category text: [code, acronym, ...]}: each code of the text followed by the first acronym that carries "
        "the text and differs from the code.");
    api.def(
        "CompareVersion",
        [](QRMKitAPI& self, const VELString& first, const VELString& second) {
            return Locked([&] { return self.CompareVersion(first, second); });
        },
        py::arg("first"), py::arg("second"),
        "1 when first is the newer version, -1 when second is, 0 when equal, -2 when a text is not ASCII.");
    api.def(
        "GetSoftwareComponents",
        [](QRMKitAPI& self) {
            return Locked([&] {
                std::vector<QRMSoftwareComponent*> components;
                self.GetSoftwareComponents(components);
                return InStoreAll(components, Store::Catalog);
            });
        },
        "The catalog store's components, in catalog order; they become stale at the next Reset or Parse(path).");
    api.def(
        "GetSoftwareBundles",
        [](QRMKitAPI& self) {
            return Locked([&] {
                std::vector<QRMSoftwareBundle*> bundles;
                self.GetSoftwareBundles(bundles);
                return InStoreAll(bundles, Store::Catalog);
            });
        },
        "The catalog store's bundles, in catalog order; they become stale at the next Reset or Parse(path).");
    api.def(
        "GetInventoryComponents",
        [](QRMKitAPI& self) {
            return OwnAll(Locked([&] {
                std::vector<QRMInventoryComponent> components;
                self.GetInventoryComponents(components);
                return components;
            }));
        },
        "Copies of the catalog's inventory components.");
    api.def(
        "GetCatalogReleaseID", [](QRMKitAPI& self) { return Locked([&] { return self.GetCatalogReleaseID(); }); },
        "The catalog's releaseID.");
    api.def(
        "GetCatalogVersion", [](QRMKitAPI& self) { return Locked([&] { return self.GetCatalogVersion(); }); },
        "The catalog's version.");
    api.def(
        "GetCatalogDateTime", [](QRMKitAPI& self) { return Locked([&] { return self.GetCatalogDateTime(); }); },
        "The catalog's dateTime, as a count.");
    api.def(
        "IsCatalogParsed", [](QRMKitAPI& self) { return Locked([&] { return self.IsCatalogParsed(); }); },
        "Whether the last Parse(path) read a whole catalog.");

    // The inventory.
    api.def(
        "GetInventory",
        [](QRMKitAPI& self) {
            return Locked([&] {
                std::vector<QRMIDevice*> devices;
                QRMKitReturnCode code = self.GetInventory(devices);
                return std::make_pair(code, InStoreAll(devices, Store::Inventory));
            });
        },
        "(code, [devices]): the devices of the inventory store (of every inventory read); QRM_KIT_FAILURE and [] "
        "before an inventory was read successfully. The same store device gives the same Python object.");
    api.def(
        "GetSystemIDFromInventory",
        [](QRMKitAPI& self) { return Locked([&] { return self.GetSystemIDFromInventory(); }); },
        "The system id when the inventory store holds exactly one system, else 0.");
    api.def(
        "GetInventoryOperatingSystems",
        [](QRMKitAPI& self) {
            return OwnAll(Locked([&] {
                std::vector<QRMOperatingSystem> oses;
                self.GetInventoryOperatingSystems(oses);
                return oses;
            }));
        },
        "Copies of the inventory store's operating systems.");
    api.def(
        "GetInventorySystems",
        [](QRMKitAPI& self) {
            return OwnAll(Locked([&] {
                std::vector<QRMISystem> systems;
                self.GetInventorySystems(systems);
                return systems;
            }));
        },
        "Copies of the inventory store's systems.");
    api.def(
        "GetInventoryLanguage", [](QRMKitAPI& self) { return Locked([&] { return self.GetInventoryLanguage(); }); },
        "The inventory's language.");
    api.def(
        "GetInventorySchemaVersion",
        [](QRMKitAPI& self) { return Locked([&] { return self.GetInventorySchemaVersion(); }); },
        "The inventory's schema version.");
    api.def(
        "GetInventoryTimeStamp", [](QRMKitAPI& self) { return Locked([&] { return self.GetInventoryTimeStamp(); }); },
        "The inventory's time stamp, as a count.");
    api.def(
        "IsInventoryParsed", [](QRMKitAPI& self) { return Locked([&] { return self.IsInventoryParsed(); }); },
        "Whether an inventory was read successfully.");
}

}  // namespace qrmpy
