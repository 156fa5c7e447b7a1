"""Type stubs of qrmkit.lowlevel, the library's own interface."""

import os
from enum import IntEnum
from typing import ClassVar, Dict, List, Optional, Tuple, Union, overload

from ._errors import StaleObjectError as StaleObjectError

PathArg = Union[str, bytes, "os.PathLike[str]", "os.PathLike[bytes]"]
_Code = Union["QRMKitReturnCode", int]

__all__: List[str]


class QRMKitAPI:
    """The library's single entry object: QRMKitAPI.Instance()."""

    @staticmethod
    def Instance() -> "QRMKitAPI":
        """The one API object: the same Python object on every call."""
    def Initialize(self, path: PathArg) -> _Code:
        """Remembers the catalog file; QRM_KIT_NOT_FOUND when it does not exist. Nothing is read."""
    def Reset(self) -> _Code:
        """Empties the catalog store and forgets Initialize; components and bundles handed out become stale."""
    def IsInitialized(self) -> bool:
        """Whether Initialize found its file (and no Reset came since)."""
    @overload
    def Parse(self) -> _Code:
        """Does nothing and returns QRM_KIT_SUCCESS (kept for callers that call it after Initialize)."""
    @overload
    def Parse(self, path: PathArg) -> _Code:
        """Reads a catalog file into the catalog store, replacing what it held."""
    def ParseInventory(self, path: PathArg) -> _Code:
        """Reads an inventory file into the inventory store, adding to what it held."""
    def GetBaseLocation(self) -> str:
        """The catalog's baseLocation."""
    def GetInventoryComponent(self, architecture: int, os_code: str) -> Optional["QRMInventoryComponent"]:
        """A copy of the first inventory component for os_code, or None."""
    def GetInventoryFile(self, architecture: int, os_code: str) -> str:
        """The base location + "/" + the inventory component's path; empty when there is none."""
    def GetApplicableBundle(self, bundle_type: int) -> Optional["QRMSoftwareBundle"]:
        """The first bundle of that type that lists the inventory's system id, or None."""
    def GetGreatestBundleNumber(self, bundle_type: int) -> int:
        """The greatest bundle number among the bundles of that type; 0 when there is none."""
    def GetApplicableUpdates(
        self, architecture: int, bundle_type: int
    ) -> Tuple[_Code, Dict["QRMIApplication", "QRMSoftwareComponent"]]:
        """(code, {application: component}) for the inventory's installed applications."""
    def GetCategoryValues(self) -> Dict[str, str]:
        """{code: text} of the categories of every catalog read."""
    def SetAcronymForCategoryValues(self) -> None:
        """Gives every category a short upper-case acronym."""
    def GetAcronymForCategoryValues(self) -> Dict[str, str]:
        """{acronym: category text}."""
    def ListCatalogAndRVUGeneratedCategoryValues(self) -> Dict[str, List[str]]:
        """{category text: [code, acronym, ...]}."""
    def CompareVersion(self, first: str, second: str) -> int:
        """1 when first is newer, -1 when second is, 0 when equal, -2 when a text is not ASCII."""
    def GetSoftwareComponents(self) -> List["QRMSoftwareComponent"]:
        """The catalog store's components (stale after the next Reset or Parse(path))."""
    def GetSoftwareBundles(self) -> List["QRMSoftwareBundle"]:
        """The catalog store's bundles (stale after the next Reset or Parse(path))."""
    def GetInventoryComponents(self) -> List["QRMInventoryComponent"]:
        """Copies of the catalog's inventory components."""
    def GetCatalogReleaseID(self) -> str:
        """The catalog's releaseID."""
    def GetCatalogVersion(self) -> str:
        """The catalog's version."""
    def GetCatalogDateTime(self) -> int:
        """The catalog's dateTime, as a count."""
    def IsCatalogParsed(self) -> bool:
        """Whether the last Parse(path) read a whole catalog."""
    def GetInventory(self) -> Tuple[_Code, List["QRMIDevice"]]:
        """(code, [devices]) of the inventory store."""
    def GetSystemIDFromInventory(self) -> int:
        """The system id when the inventory store holds exactly one system, else 0."""
    def GetInventoryOperatingSystems(self) -> List["QRMOperatingSystem"]:
        """Copies of the inventory store's operating systems."""
    def GetInventorySystems(self) -> List["QRMISystem"]:
        """Copies of the inventory store's systems."""
    def GetInventoryLanguage(self) -> Union["QRMInventoryLanguageEnum", int]:
        """The inventory's language."""
    def GetInventorySchemaVersion(self) -> str:
        """The inventory's schema version."""
    def GetInventoryTimeStamp(self) -> int:
        """The inventory's time stamp, as a count."""
    def IsInventoryParsed(self) -> bool:
        """Whether an inventory was read successfully."""


class QRMBundleTypeEnum(IntEnum):
    """The "bundleType" of a software bundle."""

    QRM_BUNDLE_BTW32 = 0
    QRM_BUNDLE_BTW64 = 1
    QRM_BUNDLE_BTLX = 2
    QRM_BUNDLE_BTRPM = 3
    QRM_BUNDLE_BTDEB = 4
    QRM_BUNDLE_BTOSIND = 5


class QRMComponentTypeValueEnum(IntEnum):
    """The type of a component or an installed application ("BIOS", "DRVR", ...)."""

    QRM_COMPONENT_SBDL = 0
    QRM_COMPONENT_FRMW = 1
    QRM_COMPONENT_BIOS = 2
    QRM_COMPONENT_APAC = 3
    QRM_COMPONENT_APP = 4
    QRM_COMPONENT_DRVR = 5


class QRMCriticalityValueEnum(IntEnum):
    """How urgent a component is (the catalog's digit is one more than the value)."""

    QRM_CRITICALITY_LEVEL1 = 0
    QRM_CRITICALITY_LEVEL2 = 1
    QRM_CRITICALITY_LEVEL3 = 2
    QRM_CRITICALITY_UNSPECIFIED = 3


class QRMInventoryLanguageEnum(IntEnum):
    """The "lang" of an inventory (any text not listed reads as QRM_LANG_EN)."""

    QRM_LANG_EN = 0
    QRM_LANG_FR = 1
    QRM_LANG_DE = 2
    QRM_LANG_ES = 3
    QRM_LANG_ZH_HANS = 4
    QRM_LANG_ZH_HANT = 5
    QRM_LANG_JA = 6
    QRM_LANG_HI = 7
    QRM_LANG_KN = 8
    QRM_LANG_TE = 9
    QRM_LANG_TA = 10


class QRMKitReturnCode(IntEnum):
    """The result of the library's operations (the value 2 is never returned)."""

    QRM_KIT_SUCCESS = 0
    QRM_KIT_FAILURE = 1
    QRM_KIT_ALREADY_EXISTS = 3
    QRM_KIT_NOT_FOUND = 4
    QRM_KIT_ELEMENT_MISSING = 5


class QRMOSArchitectureEnum(IntEnum):
    """The "osArch" of an operating system."""

    QRM_OS_ARCH_X86 = 0
    QRM_OS_ARCH_X64 = 1
    QRM_OS_ARCH_IA64 = 2
    QRM_OS_ARCH_IA32 = 3


class QRMSystemIDTypeEnum(IntEnum):
    """The "systemIDType" of an inventory system (any text not listed reads as QRM_SYSTEMID_TYPE_BIOS)."""

    QRM_SYSTEMID_TYPE_BIOS = 0
    QRM_SYSTEMID_TYPE_MULTISYSTEMCHASSIS = 1
    QRM_SYSTEMID_TYPE_RAIDCHASSIS = 2
    QRM_SYSTEMID_TYPE_ROUTER = 3
    QRM_SYSTEMID_TYPE_NETWORKSWITCH = 4


class QRMDisplay:
    """One localised text: a language tag and the text in that language."""

    def GetLanguage(self) -> str:
        """The language tag ("en", "zh-Hans")."""
    def GetValue(self) -> str:
        """The text."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMDeviceApplicability:
    """Where a supported device applies, as a language-tagged text."""

    def GetLanguage(self) -> str:
        """The language tag."""
    def GetValue(self) -> str:
        """The text."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMName:
    """The localised names of a catalog entry."""

    def GetDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the names (QRMDisplay), in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMCategory:
    """A component's category code with its texts."""

    def GetCode(self) -> str:
        """The category code ("BI", "SF2")."""
    def GetDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the texts (QRMDisplay), in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMLUCategory:
    """A component's second category code with its texts."""

    def GetCode(self) -> str:
        """The category code."""
    def GetDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the texts (QRMDisplay), in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMComponentType:
    """A component's type with its texts."""

    def GetValue(self) -> Union[QRMComponentTypeValueEnum, int]:
        """The type (QRMComponentTypeValueEnum; a plain int for a value outside it)."""
    def GetDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the texts (QRMDisplay), in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMCriticality:
    """How urgent a component is, with its texts."""

    def GetValue(self) -> Union[QRMCriticalityValueEnum, int]:
        """The level (QRMCriticalityValueEnum; a plain int for a value outside it)."""
    def GetDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the texts (QRMDisplay), in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMImportantInfo:
    """Where an entry's important notes are published."""

    def GetURL(self) -> str:
        """The URL."""
    def GetDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the texts (QRMDisplay), in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMInstallInstruction:
    """How a package is installed."""

    def GetCommand(self) -> str:
        """The command."""
    def GetArguments(self) -> str:
        """Its arguments."""
    def GetDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the texts (QRMDisplay), in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMRevisionHistory:
    """The localised revision notes of an entry."""

    def GetDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the texts (QRMDisplay), in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMSubComponent:
    """A part of a supported device that is updated with it."""

    def GetName(self) -> str:
        """The part's name."""
    def GetVersion(self) -> str:
        """The part's version."""
    def GetDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the texts (QRMDisplay), in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMBundleContent:
    """One package of a bundle: its package id and file name."""

    def GetPackageID(self) -> str:
        """The package id."""
    def GetPath(self) -> str:
        """The package's file name."""
    def GetIdentifier(self) -> str:
        """The identifier (a GUID in its text form; the catalog reader leaves it nil)."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMPCIInfo:
    """One PCI identity."""

    def GetDeviceID(self) -> int:
        """The device id."""
    def GetVendorID(self) -> int:
        """The vendor id."""
    def GetSubDeviceID(self) -> int:
        """The sub-device id."""
    def GetSubVendorID(self) -> int:
        """The sub-vendor id."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMPnPInfo:
    """One plug-and-play identity."""

    def HasPrimary(self) -> bool:
        """Whether the primary id is present."""
    def GetPrimary(self) -> bytes:
        """The primary id's four bytes (zero when absent)."""
    def HasSecondary(self) -> bool:
        """Whether the secondary id is present."""
    def GetSecondary(self) -> bytes:
        """The secondary id's three bytes (zero when absent)."""
    def GetValue(self) -> bytes:
        """The value's four bytes."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMDependency:
    """A package a supported device's update depends on."""

    def GetType(self) -> int:
        """The dependency's type number."""
    def GetName(self) -> str:
        """The package's name."""
    def GetVersion(self) -> str:
        """The package's version."""
    def GetIdentifier(self) -> str:
        """The package's identifier (a GUID in its text form)."""
    def GetPath(self) -> str:
        """The package's path."""
    def GetSize(self) -> int:
        """The package's size."""
    def GetFlags(self) -> int:
        """The dependency's flags."""
    def GetPCIInfo(self) -> List[QRMPCIInfo]:
        """Copies of the PCI identities, in order."""
    def GetPnPInfo(self) -> List[QRMPnPInfo]:
        """Copies of the plug-and-play identities, in order."""
    def GetDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the texts (QRMDisplay), in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMSoftDependency:
    """A dependency with the places it applies to."""

    def GetType(self) -> int:
        """The dependency's type number."""
    def GetName(self) -> str:
        """The package's name."""
    def GetVersion(self) -> str:
        """The package's version."""
    def GetIdentifier(self) -> str:
        """The package's identifier (a GUID in its text form)."""
    def GetPath(self) -> str:
        """The package's path."""
    def GetSize(self) -> int:
        """The package's size."""
    def GetFlags(self) -> int:
        """The dependency's flags."""
    def GetPCIInfo(self) -> List[QRMPCIInfo]:
        """Copies of the PCI identities, in order."""
    def GetPnPInfo(self) -> List[QRMPnPInfo]:
        """Copies of the plug-and-play identities, in order."""
    def GetDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the texts (QRMDisplay), in order."""
    def GetApplicability(self) -> List[QRMDeviceApplicability]:
        """Copies of the applicability entries, in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMRollbackInformation:
    """What a device needs to return to an earlier package."""

    def GetRollbackIdentifier(self) -> str:
        """The rollback package's identifier (GUID text)."""
    def GetRollbackVersion(self) -> str:
        """The rollback version."""
    def GetPackageIdentifier(self) -> str:
        """The package's identifier (GUID text)."""
    def GetPackagePath(self) -> str:
        """The package's path."""
    def GetSessionIdentifier(self) -> str:
        """The session's identifier (GUID text)."""
    def GetSequence(self) -> int:
        """The sequence number."""
    def GetFlags(self) -> int:
        """The flags."""
    def GetNote(self) -> str:
        """The note."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMFMPWrapperInformation:
    """How a package is wrapped for firmware delivery."""

    def IsDigitallySigned(self) -> bool:
        """Whether it is signed."""
    def GetName(self) -> str:
        """The wrapper's name."""
    def IsInventorySupported(self) -> bool:
        """Whether inventory is supported."""
    def IsUpdateSupported(self) -> bool:
        """Whether update is supported."""
    def GetIdentifier(self) -> str:
        """The identifier (GUID text)."""
    def GetFilePath(self) -> str:
        """The file path."""
    def GetDriverName(self) -> str:
        """The driver's name."""
    def GetDriverVersion(self) -> str:
        """The driver's version."""
    def IsRollbackSupported(self) -> bool:
        """Whether rollback is supported."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMDevice:
    """One piece of hardware a catalog component supports. A device of a stored component is a view into it: stale when the component is."""

    def GetComponentID(self) -> int:
        """The component id (0: matched by PCI ids)."""
    def IsEmbedded(self) -> bool:
        """Whether the device is embedded."""
    def GetRollbackInformation(self) -> QRMRollbackInformation:
        """A copy of the rollback information."""
    def GetPCIInfo(self) -> List[QRMPCIInfo]:
        """The PCI identities the device holds (views into it), in order."""
    def GetPnPInfo(self) -> List[QRMPnPInfo]:
        """Copies of the plug-and-play identities."""
    def GetSubComponents(self) -> List[QRMSubComponent]:
        """Copies of the sub-components."""
    def GetDependencies(self) -> List[QRMDependency]:
        """Copies of the dependencies."""
    def GetSoftDependencies(self) -> List[QRMSoftDependency]:
        """Copies of the soft dependencies."""
    def GetApplicability(self) -> List[QRMDeviceApplicability]:
        """Copies of the applicability entries."""
    def HasPCI(self, pci_info: QRMPCIInfo) -> bool:
        """Whether a held PCI identity equals the argument exactly (no wildcards)."""
    def HasPnP(self, pnp_info: QRMPnPInfo) -> bool:
        """Whether a held plug-and-play identity equals the argument exactly."""
    def GetDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the texts (QRMDisplay), in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMModel:
    """One computer model of a brand, by its system id. A model has no equality of its own."""

    def GetSystemID(self) -> int:
        """The system id."""
    def GetSecondID(self) -> int:
        """The second id."""
    def GetThirdID(self) -> int:
        """The third id."""
    def GetSubBrands(self) -> List[QRMBrand]:
        """The brands nested in the model (views into it)."""
    def GetDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the texts (QRMDisplay), in order."""


class QRMBrand:
    """A brand of computers with its models. Brands compare their models by identity: a brand is unequal to a copy of itself once it holds a model."""

    def GetKey(self) -> int:
        """The brand's key."""
    def GetPrefix(self) -> str:
        """The brand's prefix."""
    def GetModels(self) -> List[QRMModel]:
        """The models the brand holds (views into it), in order."""
    def GetDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the texts (QRMDisplay), in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMSupportedSystems:
    """The computer brands a component or bundle supports."""

    def GetBrands(self) -> List[QRMBrand]:
        """The brands held (views into them), in order."""
    def GetDisplay(self) -> bool:
        """Whether the systems are shown."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMOperatingSystem:
    """One operating system with its versions."""

    def GetCode(self) -> str:
        """The OS code."""
    def GetVendor(self) -> str:
        """The vendor."""
    def GetArchitecture(self) -> Union[QRMOSArchitectureEnum, int]:
        """The architecture (QRMOSArchitectureEnum; a plain int for a value outside it)."""
    def GetMajorVersion(self) -> str:
        """The major version text."""
    def GetMinorVersion(self) -> str:
        """The minor version text."""
    def GetServicePackMajorVersion(self) -> str:
        """The service pack's major version text."""
    def GetServicePackMinorVersion(self) -> str:
        """The service pack's minor version text."""
    def IsForPreInstallEnvironment(self) -> bool:
        """Whether it is a pre-install environment."""
    def GetSuiteMask(self) -> int:
        """The suite mask."""
    def GetNumericTags(self) -> List[int]:
        """The numeric tags, in order."""
    def GetDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the texts (QRMDisplay), in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMSupportedOperatingSystems:
    """The operating systems a component or bundle supports. Equality is all-pairs: two different systems make a list unequal even to itself."""

    def GetOSes(self) -> List[QRMOperatingSystem]:
        """Copies of the operating systems, in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMInventoryComponent:
    """One inventory-collector program of the catalog."""

    def GetSchemaVersion(self) -> str:
        """The schema version."""
    def GetReleaseID(self) -> str:
        """The release id."""
    def GetReleaseDate(self) -> int:
        """The release date, as a count."""
    def GetVendorVersion(self) -> str:
        """The vendor version."""
    def GetTolvarVersion(self) -> str:
        """The second version."""
    def GetOSCode(self) -> str:
        """The OS code it is for."""
    def GetMD5Hash(self) -> str:
        """The hash text."""
    def GetPath(self) -> str:
        """The path."""
    def GetDateTime(self) -> int:
        """The date and time, as a count."""
    def GetSize(self) -> int:
        """The size (not read from the catalog: 0)."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMISystem:
    """The identity of the inventoried computer."""

    def GetSystemID(self) -> int:
        """The system id."""
    def GetSystemIDType(self) -> Union[QRMSystemIDTypeEnum, int]:
        """The id's type (QRMSystemIDTypeEnum; a plain int for a value outside it)."""
    def GetDisplay(self) -> str:
        """The display name."""
    def GetServiceTag(self) -> str:
        """The service tag."""
    def GetDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the texts (QRMDisplay), in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    __hash__: ClassVar[None]  # type: ignore[assignment]


class QRMIApplication:
    """An application installed for an inventory device: an object of the inventory store (which lives as long as the process). The same stored application is the same Python object while that is alive; its hash is which object it is."""

    def GetComponentType(self) -> Union[QRMComponentTypeValueEnum, int]:
        """The type (QRMComponentTypeValueEnum; a plain int for a value outside it)."""
    def GetVersion(self) -> str:
        """The installed version."""
    def GetDisplay(self) -> str:
        """The display name."""
    def GetSubComponentID(self) -> str:
        """The sub-component id."""
    def GetDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the texts (QRMDisplay), in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    def __hash__(self) -> int: ...


class QRMIDevice:
    """A device of the inventoried computer: an object of the inventory store (which lives as long as the process). The same stored device is the same Python object while that is alive; its hash is which object it is. The library's equality makes a device that lists applications unequal to itself."""

    def GetBus(self) -> int:
        """The PCI bus."""
    def GetDevice(self) -> int:
        """The PCI device."""
    def GetFunction(self) -> int:
        """The PCI function."""
    def GetVendorID(self) -> int:
        """The vendor id."""
    def GetDeviceID(self) -> int:
        """The device id."""
    def GetSubVendorID(self) -> int:
        """The sub-vendor id."""
    def GetSubDeviceID(self) -> int:
        """The sub-device id."""
    def GetComponentInstance(self) -> int:
        """The component instance."""
    def GetComponentID(self) -> int:
        """The component id."""
    def GetDisplay(self) -> str:
        """The display name."""
    def GetApplications(self) -> List[QRMIApplication]:
        """The installed applications, in order: the store's own objects (the keys of GetApplicableUpdates() are among them)."""
    def GetDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the texts (QRMDisplay), in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    def __hash__(self) -> int: ...


class QRMSoftwareBundle:
    """A bundle of the catalog store: stale (every use raises StaleObjectError) after the next Reset or Parse(path). Compared by identity: the library has no equality for bundles."""

    def GetName(self) -> QRMName:
        """A copy of the names."""
    def GetComponentType(self) -> QRMComponentType:
        """A copy of the component type."""
    def GetTargetSystems(self) -> QRMSupportedSystems:
        """A copy of the target systems."""
    def GetTargetOSes(self) -> QRMSupportedOperatingSystems:
        """A copy of the target operating systems."""
    def GetRevisionHistory(self) -> QRMRevisionHistory:
        """A copy of the revision history."""
    def GetImportantInfo(self) -> QRMImportantInfo:
        """A copy of the important information."""
    def GetSchemaVersion(self) -> str:
        """The schema version."""
    def GetReleaseID(self) -> str:
        """The release id."""
    def GetDateTime(self) -> int:
        """The date and time, as a count."""
    def GetVendorVersion(self) -> str:
        """The vendor version."""
    def GetPath(self) -> str:
        """The path."""
    def GetBundleID(self) -> str:
        """The bundle id."""
    def GetIdentifier(self) -> str:
        """The identifier (GUID text; nil from the reader)."""
    def GetSecondaryIdentifier(self) -> str:
        """The secondary identifier (GUID text; nil from the reader)."""
    def GetBundleType(self) -> Union[QRMBundleTypeEnum, int]:
        """The bundle type (QRMBundleTypeEnum; a plain int for a value outside it)."""
    def GetDescriptionDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the description's texts (QRMDisplay), in order."""
    def GetContents(self) -> List[QRMBundleContent]:
        """Copies of the package entries, in order."""
    def GetSupportedSystemIDs(self) -> List[int]:
        """The system id of every model of every brand of the target systems, in order."""


class QRMSoftwareComponent:
    """An update package of the catalog store: stale (every use raises StaleObjectError) after the next Reset or Parse(path). The same stored component is the same Python object while that is alive; its hash is which object it is."""

    def GetName(self) -> QRMName:
        """A copy of the names."""
    def GetComponentType(self) -> QRMComponentType:
        """A copy of the component type."""
    def GetCategory(self) -> QRMCategory:
        """A copy of the category."""
    def GetLUCategory(self) -> QRMLUCategory:
        """A copy of the second category."""
    def GetSupportedSystems(self) -> QRMSupportedSystems:
        """A copy of the supported systems."""
    def GetSupportedOperatingSystems(self) -> QRMSupportedOperatingSystems:
        """A copy of the supported operating systems."""
    def GetInstallInstruction(self) -> QRMInstallInstruction:
        """A copy of the install instruction."""
    def GetRevisionHistory(self) -> QRMRevisionHistory:
        """A copy of the revision history."""
    def GetImportantInfo(self) -> QRMImportantInfo:
        """A copy of the important information."""
    def GetCriticality(self) -> QRMCriticality:
        """A copy of the criticality."""
    def GetMSIID(self) -> str:
        """The installer id (GUID text)."""
    def GetSchemaVersion(self) -> str:
        """The schema version."""
    def GetReleaseID(self) -> str:
        """The release id."""
    def GetReleaseDate(self) -> int:
        """The release date, as a count."""
    def GetVendorVersion(self) -> str:
        """The vendor version."""
    def GetTolvarVersion(self) -> str:
        """The second version."""
    def GetPackageType(self) -> str:
        """The package type."""
    def GetXMLGenVersion(self) -> str:
        """The generator version."""
    def GetPath(self) -> str:
        """The package path."""
    def GetPackageID(self) -> str:
        """The package id."""
    def GetDateTime(self) -> int:
        """The date and time, as a count."""
    def GetMD5Hash(self) -> str:
        """The hash text, as the catalog has it."""
    def GetSize(self) -> int:
        """The size."""
    def GetIdentifier(self) -> str:
        """The identifier (GUID text)."""
    def GetPredecessor(self) -> str:
        """The predecessor's identifier (GUID text)."""
    def RequiresReboot(self) -> bool:
        """Whether installing requires a reboot."""
    def RequiresContainerPowerCycle(self) -> bool:
        """Whether installing requires a container power cycle."""
    def GetDescriptionDisplayValues(self) -> List[QRMDisplay]:
        """Copies of the description's texts (QRMDisplay), in order."""
    def GetSupportedDevices(self) -> List[QRMDevice]:
        """The supported devices (views into the component: stale when it is), in order."""
    def GetWrappers(self) -> List[QRMFMPWrapperInformation]:
        """Copies of the wrapper records, in order."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    def __hash__(self) -> int: ...
