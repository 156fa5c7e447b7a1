"""The library's own interface, in this process: ``QRMKitAPI`` and its
value classes with the names, arguments and results they have in C++.

    >>> from qrmkit import lowlevel
    >>> api = lowlevel.QRMKitAPI.Instance()
    >>> api.Parse("catalog.xml")
    <QRMKitReturnCode.QRM_KIT_SUCCESS: 0>
    >>> api.ParseInventory("inventory.xml")
    <QRMKitReturnCode.QRM_KIT_SUCCESS: 0>
    >>> code, updates = api.GetApplicableUpdates(
    ...     lowlevel.QRMOSArchitectureEnum.QRM_OS_ARCH_X64, lowlevel.QRMBundleTypeEnum.QRM_BUNDLE_BTW64)
    >>> for application, component in updates.items():
    ...     print(application.GetVersion(), "->", component.GetVendorVersion())

How the C++ interface reads in Python:

- **Return codes** are members of the ``IntEnum`` :class:`QRMKitReturnCode`
  and compare equal to the library's numbers (``QRM_KIT_SUCCESS == 0``).
  Nothing here raises for a code: test it as a C++ caller does. The other
  enumerations are ``IntEnum`` classes too; arguments take their members or
  plain ints, and a value the library returns outside an enumeration comes
  back as a plain int.
- **Out-parameters** become results: a list for a vector, a dict for a map
  (``{str: str}``, ``{application: component}``), and a tuple ``(code,
  value)`` for a call that also returns a code (``GetInventory()``,
  ``GetApplicableUpdates()``). A null pointer is ``None``.
- **Texts** are ``str`` both ways, unit for unit: a text holds UTF-16 code
  units, and a lone surrogate among them is a lone surrogate character in
  Python. Times are ints (their count), GUIDs ``str`` in the form
  ``"00112233-4455-6677-8899-aabbccddeeff"`` (the sixteen bytes in order).
  Paths are ``str``, ``bytes`` or ``os.PathLike``.
- **Objects of the stores.** The components and bundles the API hands out
  (``GetSoftwareComponents()``, ``GetSoftwareBundles()``,
  ``GetApplicableBundle()``, the values of ``GetApplicableUpdates()``), and
  what is read through them, refer into the catalog store, which ``Reset()``
  and ``Parse(path)`` empty (whether the read succeeds or not). Used after
  that, they raise :class:`qrmkit.StaleObjectError`; ``repr()`` shows them as
  stale. The devices of ``GetInventory()`` and their applications (the keys of
  ``GetApplicableUpdates()``) belong to the inventory store, which the library
  never empties: they stay valid. The same store object is the same Python
  object while that one is alive, and hashes by which object it is, so the
  keys of ``GetApplicableUpdates()`` are found among the devices'
  applications. Everything else a getter returns is a copy Python owns.
- **Read-only.** The getters are bound, the setters are not: this layer
  reads the library's objects and never changes them. ``==`` and ``!=`` give
  the library's equality where a class has one, including its surprises
  (lists compare all-pairs, so a component supporting two operating systems is
  unequal to itself); such objects are not hashable unless they belong to a
  store.
- **Threads.** Every call releases the GIL and takes the library's lock, so
  calls from several threads run one at a time in the library and never hold
  up Python meanwhile.

The library keeps process-wide state: the inventory store only grows (a
second ``ParseInventory`` adds its devices), categories and acronyms outlive
``Reset()``. Once a document has been read here, :mod:`qrmkit`'s functions
compute their answers in fresh interpreters, never seeing these stores.
"""

from __future__ import annotations

from ._errors import StaleObjectError
from ._qrmkit import lowlevel as _lowlevel

__all__ = [
    "QRMKitAPI",
    "QRMBundleTypeEnum",
    "QRMComponentTypeValueEnum",
    "QRMCriticalityValueEnum",
    "QRMInventoryLanguageEnum",
    "QRMKitReturnCode",
    "QRMOSArchitectureEnum",
    "QRMSystemIDTypeEnum",
    "QRMBrand",
    "QRMBundleContent",
    "QRMCategory",
    "QRMComponentType",
    "QRMCriticality",
    "QRMDependency",
    "QRMDevice",
    "QRMDeviceApplicability",
    "QRMDisplay",
    "QRMFMPWrapperInformation",
    "QRMIApplication",
    "QRMIDevice",
    "QRMISystem",
    "QRMImportantInfo",
    "QRMInstallInstruction",
    "QRMInventoryComponent",
    "QRMLUCategory",
    "QRMModel",
    "QRMName",
    "QRMOperatingSystem",
    "QRMPCIInfo",
    "QRMPnPInfo",
    "QRMRevisionHistory",
    "QRMRollbackInformation",
    "QRMSoftDependency",
    "QRMSoftwareBundle",
    "QRMSoftwareComponent",
    "QRMSubComponent",
    "QRMSupportedOperatingSystems",
    "QRMSupportedSystems",
    "StaleObjectError",
]

QRMKitAPI = _lowlevel.QRMKitAPI
QRMBundleTypeEnum = _lowlevel.QRMBundleTypeEnum
QRMComponentTypeValueEnum = _lowlevel.QRMComponentTypeValueEnum
QRMCriticalityValueEnum = _lowlevel.QRMCriticalityValueEnum
QRMInventoryLanguageEnum = _lowlevel.QRMInventoryLanguageEnum
QRMKitReturnCode = _lowlevel.QRMKitReturnCode
QRMOSArchitectureEnum = _lowlevel.QRMOSArchitectureEnum
QRMSystemIDTypeEnum = _lowlevel.QRMSystemIDTypeEnum
QRMBrand = _lowlevel.QRMBrand
QRMBundleContent = _lowlevel.QRMBundleContent
QRMCategory = _lowlevel.QRMCategory
QRMComponentType = _lowlevel.QRMComponentType
QRMCriticality = _lowlevel.QRMCriticality
QRMDependency = _lowlevel.QRMDependency
QRMDevice = _lowlevel.QRMDevice
QRMDeviceApplicability = _lowlevel.QRMDeviceApplicability
QRMDisplay = _lowlevel.QRMDisplay
QRMFMPWrapperInformation = _lowlevel.QRMFMPWrapperInformation
QRMIApplication = _lowlevel.QRMIApplication
QRMIDevice = _lowlevel.QRMIDevice
QRMISystem = _lowlevel.QRMISystem
QRMImportantInfo = _lowlevel.QRMImportantInfo
QRMInstallInstruction = _lowlevel.QRMInstallInstruction
QRMInventoryComponent = _lowlevel.QRMInventoryComponent
QRMLUCategory = _lowlevel.QRMLUCategory
QRMModel = _lowlevel.QRMModel
QRMName = _lowlevel.QRMName
QRMOperatingSystem = _lowlevel.QRMOperatingSystem
QRMPCIInfo = _lowlevel.QRMPCIInfo
QRMPnPInfo = _lowlevel.QRMPnPInfo
QRMRevisionHistory = _lowlevel.QRMRevisionHistory
QRMRollbackInformation = _lowlevel.QRMRollbackInformation
QRMSoftDependency = _lowlevel.QRMSoftDependency
QRMSoftwareBundle = _lowlevel.QRMSoftwareBundle
QRMSoftwareComponent = _lowlevel.QRMSoftwareComponent
QRMSubComponent = _lowlevel.QRMSubComponent
QRMSupportedOperatingSystems = _lowlevel.QRMSupportedOperatingSystems
QRMSupportedSystems = _lowlevel.QRMSupportedSystems

del _lowlevel
