"""qrmkit.lowlevel, the library's own interface: return codes, getters,
texts, stale objects, and the library's process-wide behaviours.

The library keeps process-wide stores, so every check runs in an interpreter
of its own: a script (the prelude below, then the test's lines) asserting as
it goes, whose exit status and output the test reads."""

import json
import subprocess
import sys
import textwrap
from pathlib import Path

import qrmkit
import qrmkit.lowlevel
from conftest import EXAMPLES, run_tool

PACKAGE = Path(qrmkit.__file__).parent
CATALOG = EXAMPLES / "catalog.xml"
INVENTORY = EXAMPLES / "inventory.xml"

PRELUDE = """\
import gc, json, os, sys, threading
import qrmkit
from qrmkit import lowlevel
from qrmkit.lowlevel import *
from qrmkit._qrmkit import lowlevel as _ll

CATALOG = {catalog!r}
INVENTORY = {inventory!r}
TMP = {tmp!r}
api = QRMKitAPI.Instance()
SUCCESS = QRMKitReturnCode.QRM_KIT_SUCCESS
X64 = QRMOSArchitectureEnum.QRM_OS_ARCH_X64
BTW64 = QRMBundleTypeEnum.QRM_BUNDLE_BTW64


def public_methods(obj):
    return [name for name in dir(type(obj)) if not name.startswith("_")]


def raises_stale(call):
    try:
        call()
    except qrmkit.StaleObjectError:
        return True
    return False

"""


def run(script, tmp_path=None, helpers=""):
    """Runs the prelude, the helpers and the script in a fresh interpreter;
    its standard output, once it has exited with status 0."""
    prelude = PRELUDE.format(catalog=str(CATALOG), inventory=str(INVENTORY), tmp=str(tmp_path or ""))
    code = prelude + textwrap.dedent(helpers) + textwrap.dedent(script)
    done = subprocess.run([sys.executable, "-c", code], stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          timeout=120, check=False)
    output = done.stdout.decode("utf-8", "replace")
    listing = "\n".join(f"{number:4} {line}" for number, line in enumerate(code.splitlines(), 1))
    assert done.returncode == 0, f"exit status {done.returncode}:\n{output}\n{listing}"
    return output


def write_catalog(tmp_path, name, replace):
    text = CATALOG.read_text(encoding="utf-8")
    for old, new in replace:
        assert old in text
        text = text.replace(old, new, 1)
    path = tmp_path / name
    path.write_text(text, encoding="utf-8")
    return path


# ---------------------------------------------------------------- the API object


def test_the_api_object_is_one_and_cannot_be_made():
    run("""
        assert QRMKitAPI.Instance() is api is lowlevel.QRMKitAPI.Instance()
        try:
            QRMKitAPI()
        except TypeError:
            pass
        else:
            raise AssertionError("QRMKitAPI() made an object")
        assert lowlevel.StaleObjectError is qrmkit.StaleObjectError
    """)


def test_only_the_library_makes_objects():
    run("""
        import copy, pickle
        classes = [getattr(lowlevel, name) for name in lowlevel.__all__]
        classes = [cls for cls in classes if isinstance(cls, type) and cls.__module__.startswith("qrmkit._qrmkit")]
        assert QRMKitAPI in classes and QRMDisplay in classes and QRMSoftwareComponent in classes
        for cls in classes:
            for make in (lambda: cls(), lambda: cls.__new__(cls), lambda: object.__new__(cls)):
                try:
                    make()
                except TypeError:
                    pass
                else:
                    raise AssertionError(f"{cls.__name__} made from Python")
            try:
                type("Derived", (cls,), {})
            except TypeError:
                pass
            else:
                raise AssertionError(f"{cls.__name__} subclassed")
        api.Parse(CATALOG)
        component = api.GetSoftwareComponents()[0]
        for call in (lambda: pickle.dumps(component), lambda: copy.copy(component),
                     lambda: copy.deepcopy(component.GetName()), lambda: QRMDisplay.GetValue(component),
                     lambda: component.GetName().GetDisplayValues()[0].GetValue.__func__(api)):
            try:
                call()
            except (TypeError, AttributeError):
                pass
            else:
                raise AssertionError("accepted")
    """)


def test_return_codes_are_the_intenum_and_equal_the_librarys(tmp_path):
    (tmp_path / "not-xml.xml").write_text("this is not XML <<<")
    run("""
        assert [(m.name, int(m)) for m in QRMKitReturnCode] == [
            ("QRM_KIT_SUCCESS", 0), ("QRM_KIT_FAILURE", 1), ("QRM_KIT_ALREADY_EXISTS", 3),
            ("QRM_KIT_NOT_FOUND", 4), ("QRM_KIT_ELEMENT_MISSING", 5)]
        code = api.Parse(CATALOG)
        assert type(code) is QRMKitReturnCode and code is SUCCESS and code == 0, repr(code)
        assert api.Parse(os.path.join(TMP, "missing.xml")) is QRMKitReturnCode.QRM_KIT_NOT_FOUND
        assert api.Parse(TMP) == 4  # a directory is not a file
        assert api.Parse(os.path.join(TMP, "not-xml.xml")) is QRMKitReturnCode.QRM_KIT_FAILURE
        assert not api.IsCatalogParsed()
        # str, bytes and os.PathLike paths
        import pathlib
        assert api.Parse(os.fsencode(CATALOG)) is SUCCESS
        assert api.Parse(pathlib.Path(CATALOG)) is SUCCESS and api.IsCatalogParsed()
        try:
            api.Parse(42)
        except TypeError:
            pass
        else:
            raise AssertionError("Parse(42) accepted")
        # Parse() does nothing, whatever Initialize remembered.
        assert api.Initialize(os.path.join(TMP, "missing.xml")) is QRMKitReturnCode.QRM_KIT_NOT_FOUND
        assert not api.IsInitialized()
        assert api.Initialize(os.path.join(TMP, "not-xml.xml")) is SUCCESS and api.IsInitialized()
        assert api.Parse() is SUCCESS and api.IsCatalogParsed()
        assert api.Reset() is SUCCESS and not api.IsInitialized() and not api.IsCatalogParsed()
        # No inventory yet.
        assert api.GetInventory() == (QRMKitReturnCode.QRM_KIT_FAILURE, [])
        assert api.GetApplicableUpdates(X64, BTW64) == (QRMKitReturnCode.QRM_KIT_FAILURE, {})
        assert api.ParseInventory(os.path.join(TMP, "missing.xml")) is QRMKitReturnCode.QRM_KIT_NOT_FOUND
        assert api.ParseInventory(INVENTORY) is SUCCESS and api.IsInventoryParsed()
    """, tmp_path=tmp_path)


def test_a_faulty_catalog_entry_is_element_missing(tmp_path):
    write_catalog(tmp_path, "faulty.xml", [("<Contents>", "<Contents/><Contents>")])
    run("""
        assert api.Parse(os.path.join(TMP, "faulty.xml")) is QRMKitReturnCode.QRM_KIT_ELEMENT_MISSING
        assert not api.IsCatalogParsed()
    """, tmp_path=tmp_path)


def test_the_example_catalog_and_inventory_read_as_the_library_has_them():
    run("""
        assert api.Parse(CATALOG) is SUCCESS and api.ParseInventory(INVENTORY) is SUCCESS
        assert len(api.GetSoftwareComponents()) == 48
        assert api.GetSystemIDFromInventory() == 0x0A6B
        bundle = api.GetApplicableBundle(BTW64)
        assert isinstance(bundle, QRMSoftwareBundle) and bundle.GetBundleID() == "S740W64.00041"
        assert bundle.GetBundleType() is BTW64
        assert api.GetApplicableBundle(1) is bundle  # a plain int, and the same object again
        assert api.GetApplicableBundle(99) is None
        assert 0x0A6B in bundle.GetSupportedSystemIDs()
        assert api.GetGreatestBundleNumber(BTW64) == 45  # S740W64.00041, S750W64.00043, T360W64.00045
        assert api.GetBaseLocation() == "updates.example.com/catalog"
        assert api.GetCatalogReleaseID() == "R2026-11" and api.GetCatalogVersion() == "26.11.00"
        assert api.GetCatalogDateTime() == 1763683200 and type(api.GetCatalogDateTime()) is int
        assert api.GetInventoryTimeStamp() == 1763700000
        assert api.GetInventoryLanguage() is QRMInventoryLanguageEnum.QRM_LANG_EN
        assert api.GetInventorySchemaVersion() == "1.0"
        [system] = api.GetInventorySystems()
        assert (system.GetSystemID(), system.GetDisplay(), system.GetServiceTag()) == (0x0A6B, "S740", "ABC1234")
        assert system.GetSystemIDType() is QRMSystemIDTypeEnum.QRM_SYSTEMID_TYPE_BIOS
        [os_] = api.GetInventoryOperatingSystems()
        assert (os_.GetCode(), os_.GetArchitecture(), os_.GetSuiteMask()) == ("W22", X64, 400)
        assert [d.GetValue() for d in os_.GetDisplayValues()] == ["Server OS 2022"]

        collectors = api.GetInventoryComponents()
        assert collectors and all(isinstance(c, QRMInventoryComponent) for c in collectors)
        first = collectors[0]
        found = api.GetInventoryComponent(X64, first.GetOSCode())
        assert found == first and found is not first
        assert api.GetInventoryComponent(0, "no such code") is None
        assert api.GetInventoryFile(X64, first.GetOSCode()) == api.GetBaseLocation() + "/" + first.GetPath()

        component = api.GetSoftwareComponents()[0]
        assert component.GetPackageID() == "PKG-BIOS_S740" and component.GetVendorVersion() == "2.4.1"
        assert component.GetComponentType().GetValue() is QRMComponentTypeValueEnum.QRM_COMPONENT_BIOS
        assert component.GetCriticality().GetValue() is QRMCriticalityValueEnum.QRM_CRITICALITY_LEVEL2
        assert component.GetCategory().GetCode() == "BI"
        assert component.GetName().GetDisplayValues()[0].GetValue() == "S740 System BIOS"
        assert component.GetMSIID() == "00000000-0000-0000-0000-000000000000"
        [device] = component.GetSupportedDevices()
        assert isinstance(device, QRMDevice) and device.GetComponentID() == 159
        [brand] = component.GetSupportedSystems().GetBrands()
        assert [m.GetSystemID() for m in brand.GetModels()] == [0x0A6B]
        assert "PKG-BIOS_S740" in repr(component) and "S740W64.00041" in repr(bundle)
        contents = bundle.GetContents()
        assert len(contents) == 22 and contents[0].GetPath() == "BIOS_S740_2.4.1.EXE"

        categories = api.GetCategoryValues()
        assert categories["BI"] == "BIOS"
        acronyms = api.GetAcronymForCategoryValues()
        assert all(key.isupper() for key in acronyms) and "BIOS" in acronyms.values()
        listed = api.ListCatalogAndRVUGeneratedCategoryValues()
        assert listed["BIOS"][0] == "BI" and all(isinstance(v, list) for v in listed.values())
        assert api.SetAcronymForCategoryValues() is None
    """)


def test_the_applicable_updates_are_the_tools_and_their_keys_the_inventorys_applications():
    output = run("""
        api.Parse(CATALOG)
        api.ParseInventory(INVENTORY)
        code, updates = api.GetApplicableUpdates(X64, BTW64)
        assert code is SUCCESS and len(updates) == 10
        code, devices = api.GetInventory()
        assert code is SUCCESS
        applications = [a for d in devices for a in d.GetApplications()]
        for application, component in updates.items():
            assert isinstance(application, QRMIApplication) and isinstance(component, QRMSoftwareComponent)
            assert any(application is a for a in applications)
            assert application in applications
        assert all(updates[a] is not None for a in applications if a in updates)
        components = api.GetSoftwareComponents()
        assert all(any(c is k for k in components) for c in updates.values())
        # Plain ints do as well as the members.
        assert api.GetApplicableUpdates(1, 1) == (code, updates)
        print(json.dumps(sorted([a.GetVersion(), c.GetPackageID()] for a, c in updates.items())))
    """)
    pairs = json.loads(output.splitlines()[-1])
    document, status = run_tool("updates", "--json", "--catalog", str(CATALOG), "--inventory", str(INVENTORY),
                                "--bundle-type", "BTW64")
    assert status == 0
    assert pairs == sorted([u["installed_version"], u["package_id"]] for u in document["updates"])


def test_compare_version_gives_the_librarys_order():
    run("""
        cases = [("1.2.10", "1.2.9", 1), ("1.2.9", "1.2.10", -1), ("01.2", "1.2", 0), ("1.0", "1.0.0", -1),
                 ("a", "B", 1), ("1.2-3", "1.2.3", 0), ("1.\\u00e9", "1.0", -2), ("1", "\\U0001F600", -2),
                 ("\\ud800", "1", -2), ("", "", 0)]
        for first, second, expected in cases:
            assert api.CompareVersion(first, second) == expected, (first, second)
            if "\\ud800" not in first:
                assert qrmkit.compare_version(first, second) == expected
        try:
            api.CompareVersion(b"1", "2")
        except TypeError:
            pass
        else:
            raise AssertionError("bytes taken as a text")
    """)


def test_enumerations_are_intenums_that_take_and_give_ints():
    run("""
        import enum
        for cls, names in [(QRMBundleTypeEnum, ["QRM_BUNDLE_BTW32", "QRM_BUNDLE_BTW64", "QRM_BUNDLE_BTLX",
                                                "QRM_BUNDLE_BTRPM", "QRM_BUNDLE_BTDEB", "QRM_BUNDLE_BTOSIND"]),
                           (QRMOSArchitectureEnum, ["QRM_OS_ARCH_X86", "QRM_OS_ARCH_X64", "QRM_OS_ARCH_IA64",
                                                    "QRM_OS_ARCH_IA32"]),
                           (QRMComponentTypeValueEnum, ["QRM_COMPONENT_SBDL", "QRM_COMPONENT_FRMW",
                                                        "QRM_COMPONENT_BIOS", "QRM_COMPONENT_APAC",
                                                        "QRM_COMPONENT_APP", "QRM_COMPONENT_DRVR"]),
                           (QRMCriticalityValueEnum, ["QRM_CRITICALITY_LEVEL1", "QRM_CRITICALITY_LEVEL2",
                                                      "QRM_CRITICALITY_LEVEL3", "QRM_CRITICALITY_UNSPECIFIED"])]:
            assert issubclass(cls, enum.IntEnum)
            assert [(m.name, m.value) for m in cls] == [(n, i) for i, n in enumerate(names)]
        assert len(QRMInventoryLanguageEnum) == 11 and QRMInventoryLanguageEnum.QRM_LANG_TA == 10
        assert QRMSystemIDTypeEnum.QRM_SYSTEMID_TYPE_NETWORKSWITCH == 4
        assert QRMBundleTypeEnum.__module__ == "qrmkit.lowlevel"
        api.Parse(CATALOG)
        api.ParseInventory(INVENTORY)
        # Arguments outside an enumeration reach the library as they are.
        assert api.GetGreatestBundleNumber(77) == 0
        assert api.GetApplicableUpdates(-5, 77)[0] is QRMKitReturnCode.QRM_KIT_FAILURE
        for bad in ("BTW64", 1.0, 2 ** 40, None):
            try:
                api.GetApplicableBundle(bad)
            except TypeError:
                pass
            else:
                raise AssertionError(f"{bad!r} taken as a bundle type")
        # A value outside an enumeration comes back as the plain int.
        assert _ll._enum_value("QRMKitReturnCode", 4) is QRMKitReturnCode.QRM_KIT_NOT_FOUND
        for name in ("QRMKitReturnCode", "QRMBundleTypeEnum", "QRMComponentTypeValueEnum", "QRMSystemIDTypeEnum"):
            for value in (2, 99, -1):
                if name != "QRMKitReturnCode" and value == 2:
                    continue
                outside = _ll._enum_value(name, value)
                assert type(outside) is int and outside == value, (name, value, outside)
        code, devices = api.GetInventory()
        types = [a.GetComponentType() for d in devices for a in d.GetApplications()]
        assert types and all(type(t) is QRMComponentTypeValueEnum for t in types)
    """)


# ---------------------------------------------------------------- texts


def test_texts_cross_unit_for_unit(tmp_path):
    write_catalog(tmp_path, "texts.xml", [
        ("<![CDATA[S740 update bundle for Windows x64]]>", "a&#x1F600;b\U0001F601c"),
        ('osCode="W22"', 'osCode="&#x1F600;\u00e9"'),
    ])
    inventory = INVENTORY.read_text(encoding="utf-8").replace('display="BIOS"/>', 'display="\U00010348 &#x10FFFF;"/>')
    (tmp_path / "texts-inventory.xml").write_text(inventory, encoding="utf-8")
    run("""
        assert api.Parse(os.path.join(TMP, "texts.xml")) is SUCCESS
        name = api.GetSoftwareBundles()[0].GetName().GetDisplayValues()[0].GetValue()
        # Non-BMP characters come back whole.
        assert name == "a\\U0001F600b\\U0001F601c", ascii(name)
        # A str argument reaches the library as the same code units.
        codes = [c.GetOSCode() for c in api.GetInventoryComponents()]
        code = "\\U0001F600\\u00e9"
        if code in codes:
            assert api.GetInventoryComponent(X64, code).GetOSCode() == code
        assert api.GetInventoryComponent(X64, "\\ud83d") is None
        assert api.ParseInventory(os.path.join(TMP, "texts-inventory.xml")) is SUCCESS
        displays = [a.GetDisplay() for d in api.GetInventory()[1] for a in d.GetApplications()]
        assert "\\U00010348 \\U0010FFFF" in displays
        # Unit for unit, lone surrogates included, both ways.
        for text in ["", "abc", "\\u00e9", "\\U0001F600", "x\\ud800y", "\\udfff", "\\ud800\\ud800", "\\uffff"]:
            units = list(text.encode("utf-16-le", "surrogatepass"))
            units = [units[i] | units[i + 1] << 8 for i in range(0, len(units), 2)]
            assert _ll._velstring_units(text) == units, ascii(text)
            assert _ll._velstring_from_units(units) == text, ascii(text)
        assert _ll._velstring_from_units([0xD83D, 0xDE00]) == "\\U0001F600"
        assert _ll._velstring_from_units([0xDE00, 0xD83D]) == "\\ude00\\ud83d"
    """, tmp_path=tmp_path)


# ---------------------------------------------------------------- stale objects


STALE_TOUCH = """
def touch_everything(obj, others):
    # Every method, repr, ==, != and hash of a stale object: StaleObjectError
    # or a harmless answer, never a crash.
    for name in public_methods(obj):
        method = getattr(obj, name)
        if name in ("HasPCI", "HasPnP"):
            if others.get(name) is not None:
                assert raises_stale(lambda: method(others[name])), name
        else:
            assert raises_stale(method), f"{type(obj).__name__}.{name}"
    text = repr(obj)
    assert "stale" in text and type(obj).__name__ in text, text
    if "__eq__" in type(obj).__dict__:
        assert raises_stale(lambda: obj == obj) and raises_stale(lambda: obj != obj)
    if type(obj).__hash__ is not None:
        hash(obj)
    assert obj != 42
"""


def test_store_objects_become_stale_at_reset_and_raise(tmp_path):
    run(helpers=STALE_TOUCH, script="""
        api.Parse(CATALOG)
        api.ParseInventory(INVENTORY)
        components = api.GetSoftwareComponents()
        bundles = api.GetSoftwareBundles()
        bundle = api.GetApplicableBundle(BTW64)
        code, updates = api.GetApplicableUpdates(X64, BTW64)
        code, devices = api.GetInventory()
        supported = [d for c in components for d in c.GetSupportedDevices()]
        pcis = [p for d in supported for p in d.GetPCIInfo()]
        assert pcis, "the example has devices matched by PCI ids"
        brands = components[0].GetSupportedSystems().GetBrands()
        models = brands[0].GetModels()
        name = components[0].GetName()  # a copy: stays valid
        collectors = api.GetInventoryComponents()
        others = {"HasPCI": pcis[0], "HasPnP": None}
        assert api.Parse() is SUCCESS  # the no-op changes nothing
        assert components[0].GetPackageID() == "PKG-BIOS_S740"

        assert api.Reset() is SUCCESS
        stale = components + bundles + [bundle] + list(updates.values()) + supported + pcis
        for obj in stale:
            touch_everything(obj, others)
        # Views into copies, copies and the inventory store stay valid.
        assert brands[0].GetModels()[0].GetSystemID() == models[0].GetSystemID() == 0x0A6B
        assert name.GetDisplayValues()[0].GetValue() == "S740 System BIOS"
        assert collectors[0].GetOSCode()
        for application in updates:
            assert application.GetVersion()
        assert all(d.GetDisplay() for d in devices)
        # A stale key still finds its entry (hash and identity need no read).
        assert updates[next(iter(updates))] is not None
        try:
            components[0].GetPath()
        except StaleObjectError as error:
            assert "QRMSoftwareComponent" in str(error) and error.code == "stale-object"
            assert isinstance(error, qrmkit.Error) and isinstance(error, ReferenceError)
        else:
            raise AssertionError("no StaleObjectError")
        # Comparing a live component with a stale one raises too.
        api.Parse(CATALOG)
        fresh = api.GetSoftwareComponents()
        assert fresh[0] is not components[0]
        assert raises_stale(lambda: fresh[0] == components[0])
        assert raises_stale(lambda: fresh[0].GetSupportedDevices()[0] == supported[0])
        gc.collect()
        print("ok")
    """)


def test_parsing_another_catalog_makes_old_components_stale(tmp_path):
    write_catalog(tmp_path, "other.xml", [('releaseID="R2026-11"', 'releaseID="OTHER"')])
    run(helpers=STALE_TOUCH, script="""
        assert api.Parse(CATALOG) is SUCCESS
        old = api.GetSoftwareComponents()
        old_bundle = api.GetSoftwareBundles()[0]
        assert api.Parse(os.path.join(TMP, "other.xml")) is SUCCESS
        assert api.GetCatalogReleaseID() == "OTHER"
        new = api.GetSoftwareComponents()
        assert len(new) == len(old) and all(n is not o for n, o in zip(new, old))
        assert new[0].GetPackageID() == "PKG-BIOS_S740"
        for obj in old + [old_bundle]:
            touch_everything(obj, {})
        # A read that fails empties the store just the same.
        assert api.Parse(os.path.join(TMP, "missing.xml")) is QRMKitReturnCode.QRM_KIT_NOT_FOUND
        assert raises_stale(new[0].GetPackageID) and api.GetSoftwareComponents() == []
        # Initialize reads nothing: what Parse stored stays valid.
        assert api.Parse(CATALOG) is SUCCESS
        kept = api.GetSoftwareComponents()[0]
        assert api.Initialize(CATALOG) is SUCCESS
        assert kept.GetPackageID() == "PKG-BIOS_S740"
    """, tmp_path=tmp_path)


def test_store_objects_keep_their_identity():
    run("""
        api.Parse(CATALOG)
        api.ParseInventory(INVENTORY)
        first = api.GetSoftwareComponents()
        again = api.GetSoftwareComponents()
        assert all(a is b for a, b in zip(first, again))
        assert first[0].GetSupportedDevices()[0] is again[0].GetSupportedDevices()[0]
        assert api.GetInventory()[1][0] is api.GetInventory()[1][0]
        devices = api.GetInventory()[1]
        by_device = {d: d.GetDisplay() for d in devices}
        assert by_device[api.GetInventory()[1][0]] == devices[0].GetDisplay()
        # Copies are values: unhashable, equal by the library's rule.
        name = first[0].GetName()
        assert name == first[0].GetName() and name is not first[0].GetName()
        try:
            hash(name)
        except TypeError:
            pass
        else:
            raise AssertionError("a copy is hashable")
        assert hash(first[0]) == hash(again[0])
        bundle = api.GetSoftwareBundles()[0]
        assert bundle == bundle and bundle != api.GetSoftwareBundles()[1]  # identity: no equality in C++
    """)


def test_threads_reading_while_another_parses_never_crash():
    run("""
        api.Parse(CATALOG)
        api.ParseInventory(INVENTORY)
        stop = threading.Event()
        counts = {"read": 0, "stale": 0}
        failures = []

        def reader():
            while not stop.is_set():
                for component in api.GetSoftwareComponents():
                    try:
                        component.GetVendorVersion()
                        component.GetSupportedDevices()
                        repr(component)
                        counts["read"] += 1
                    except StaleObjectError:
                        counts["stale"] += 1
                    except Exception as error:  # noqa: BLE001
                        failures.append(repr(error))

        threads = [threading.Thread(target=reader) for _ in range(3)]
        for thread in threads:
            thread.start()
        for _ in range(30):
            assert api.Parse(CATALOG) is SUCCESS
            api.GetApplicableUpdates(X64, BTW64)
        stop.set()
        for thread in threads:
            thread.join()
        assert not failures, failures
        assert counts["read"] > 0, counts
    """)


# ---------------------------------------------------------------- the library's behaviours


def test_the_inventory_store_only_grows(tmp_path):
    other = INVENTORY.read_text(encoding="utf-8").replace('systemID="0A6B"', 'systemID="0B12"').replace(
        'display="BIOS">', 'display="Other BIOS">')
    (tmp_path / "other.xml").write_text(other, encoding="utf-8")
    run("""
        assert api.ParseInventory(INVENTORY) is SUCCESS
        code, first = api.GetInventory()
        assert api.GetSystemIDFromInventory() == 0x0A6B
        assert api.Reset() is SUCCESS
        assert api.GetInventory()[1] == first  # Reset leaves the inventory store alone
        assert all(a is b for a, b in zip(api.GetInventory()[1], first))
        # The same inventory again: devices that list applications are stored twice.
        assert api.ParseInventory(INVENTORY) is SUCCESS
        code, twice = api.GetInventory()
        assert len(twice) > len(first)
        assert all(a is b for a, b in zip(twice, first))
        # Another inventory adds its devices; two systems make the id 0.
        assert api.ParseInventory(os.path.join(TMP, "other.xml")) is SUCCESS
        code, more = api.GetInventory()
        assert len(more) > len(twice) and "Other BIOS" in [d.GetDisplay() for d in more]
        assert api.GetSystemIDFromInventory() == 0
        assert len(api.GetInventorySystems()) == 2
        # A device that lists applications is unequal to itself; its key still works.
        device = next(d for d in more if d.GetApplications())
        assert not (device == device) and device != device
        assert {device: 1}[device] == 1
    """, tmp_path=tmp_path)


def test_the_librarys_odd_equalities_are_kept():
    run("""
        api.Parse(CATALOG)
        components = api.GetSoftwareComponents()
        # Lists compare all-pairs: two different operating systems make a
        # list, and the component holding it, unequal to themselves.
        two = next(c for c in components if len(c.GetSupportedOperatingSystems().GetOSes()) == 2)
        oses = two.GetSupportedOperatingSystems()
        assert not (oses == oses) and oses != oses
        assert not (two == two)
        one = next((c for c in components if len(c.GetSupportedOperatingSystems().GetOSes()) == 1), None)
        if one is not None:
            assert one.GetSupportedOperatingSystems() == one.GetSupportedOperatingSystems()
        # Brands match their models by identity: unequal to a copy once they hold one.
        brand = components[0].GetSupportedSystems().GetBrands()[0]
        assert brand.GetModels() and brand == brand
        assert brand != components[0].GetSupportedSystems().GetBrands()[0]
        # Display texts: equal where a language is on both sides.
        assert components[0].GetCategory() == components[0].GetCategory()
        names = [c.GetName() for c in components]
        text = [n.GetDisplayValues()[0].GetValue() for n in names]
        other = next(i for i, t in enumerate(text) if t != text[0])
        assert names[0] != names[other] and not (names[0] == names[other])
        assert names[0] == components[0].GetName()
        assert (QRMDisplay.__hash__, QRMName.__hash__) == (None, None)
    """)


def test_categories_outlive_reset(tmp_path):
    write_catalog(tmp_path, "renamed.xml", [('<Category value="BI">', '<Category value="ZZB">')])
    run("""
        api.Parse(CATALOG)
        before = api.GetCategoryValues()
        api.Reset()
        assert api.GetCategoryValues() == before
        api.Parse(os.path.join(TMP, "renamed.xml"))
        after = api.GetCategoryValues()
        assert set(before) <= set(after)
    """, tmp_path=tmp_path)


def test_reading_a_document_marks_the_stores_touched():
    run("""
        assert not qrmkit._qrmkit._stores_touched()
        api.CompareVersion("1", "2")
        api.GetSoftwareComponents()
        assert not qrmkit._qrmkit._stores_touched()
        api.Parse(CATALOG)
        assert qrmkit._qrmkit._stores_touched()
        # The high-level layer then answers from a fresh interpreter, without these stores.
        api.ParseInventory(INVENTORY)
        assert len(qrmkit.updates(CATALOG, INVENTORY, "BTW64")) == 10
    """)
    for call in ("api.Reset()", "api.ParseInventory(INVENTORY)", "api.Initialize(CATALOG)"):
        run(f"""
            assert not qrmkit._qrmkit._stores_touched()
            {call}
            assert qrmkit._qrmkit._stores_touched()
        """)
