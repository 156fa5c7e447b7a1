# The "qrmkit updates --json" answer computed with xml.etree.ElementTree alone: the baseline the Python package is timed against.
"""Prints the JSON document of `qrmkit updates --json --catalog C --inventory I`,
reading both files with ElementTree the way the library reads them (numbers,
defaults, entries dropped or stored once). A failure ends with a message and
the tool's exit status, not with its JSON error document.

    /usr/bin/python3 bench/etree_updates.py --catalog C --inventory I [--bundle-type auto|BTW64|...]
"""
import argparse
import json
import re
import sys
from types import SimpleNamespace
import xml.etree.ElementTree as ET

BUNDLE_TYPES = ["BTW32", "BTW64", "BTLX", "BTRPM", "BTDEB", "BTOSIND"]  # the order "auto" tries them in
COMPONENT_TYPES = ["SBDL", "FRMW", "BIOS", "APAC", "APP", "DRVR"]
SYSTEM_ID_TYPES = ["BIOS", "MULTISYSTEMCHASSIS", "RAIDCHASSIS", "ROUTER", "NETWORKSWITCH"]
EXCLUDED_COMPONENT_ID = 2331  # devices with this component id are never updated
STATUS_WORDS = {1: "newer", 0: "same", -1: "older"}

NUMBER_10 = re.compile(r"[ \t\n\v\f\r]*([+-]?)()([0-9]*)")
NUMBER_16 = re.compile(r"[ \t\n\v\f\r]*([+-]?)(0[xX])?([0-9A-Fa-f]*)")
SEPARATORS = re.compile(r"[._-]+")


class Failure(Exception):
    def __init__(self, message, status=2):
        super().__init__(message)
        self.status = status


def number(text, base):
    """An unsigned 32-bit number read as the library reads it: spaces, a sign,
    "0x" in hex, digits; 0 when missing or without digits, 2**32-1 on overflow."""
    if text is None:
        return 0
    sign, _, digits = (NUMBER_16 if base == 16 else NUMBER_10).match(text).groups()
    if not digits:
        return 0
    value = int(digits, base)
    if value > 0xFFFFFFFF:
        return 0xFFFFFFFF
    return (-value) & 0xFFFFFFFF if sign == "-" else value


def compare_versions(first, second):
    """1, 0, -1 (newer, same, older), -2 when not ASCII. Fields cut at ".-_"
    compare as texts left-padded with "0"; more fields beat a prefix."""
    if first == second:
        return 0
    if not (first.isascii() and second.isascii()):
        return -2
    a = [field for field in SEPARATORS.split(first.split("\0")[0]) if field]
    b = [field for field in SEPARATORS.split(second.split("\0")[0]) if field]
    for x, y in zip(a, b):
        width = max(len(x), len(y))
        x, y = x.rjust(width, "0"), y.rjust(width, "0")
        if x != y:
            return 1 if x > y else -1
    return (len(a) > len(b)) - (len(a) < len(b))


def only_child(element, name):
    """The child of that name when there is exactly one, else None."""
    found = element.findall(name)
    return found[0] if len(found) == 1 else None


def texts_of(element):
    """The texts of the element's "Display" children that have a "lang", by
    language; the first text of a language is kept."""
    texts = {}
    for display in element.findall("Display"):
        language = display.get("lang")
        if language is not None:
            texts.setdefault(language, display.text or "")
    return texts


def texts_agree(a, b):
    return all(b[language] == value for language, value in a.items() if language in b)


def texts_same(a, b):
    return len(a) == len(b) and texts_agree(a, b)


# ---------------------------------------------------------------- catalog

def read_name_and_type(element, entry):
    """Sets the name and type; False when the entry is dropped (a Name or
    Description without one Display). No Name or ComponentType: no catalog."""
    name = only_child(element, "Name")
    component_type = only_child(element, "ComponentType")
    if name is None:
        raise Failure("a SoftwareBundle or SoftwareComponent has no single Name")
    display = only_child(name, "Display")
    if display is None:
        return False
    entry.name = display.text or ""
    if component_type is None:
        raise Failure("a SoftwareBundle or SoftwareComponent has no single ComponentType")
    value = component_type.get("value")
    entry.type = value if value in COMPONENT_TYPES else "SBDL"
    description = only_child(element, "Description")
    return description is None or only_child(description, "Display") is not None


def read_bundle(element):
    bundle = SimpleNamespace()
    if not read_name_and_type(element, bundle):
        return None
    bundle.system_ids = []
    targets = only_child(element, "TargetSystems")
    brand = only_child(targets, "Brand") if targets is not None else None
    model = only_child(brand, "Model") if brand is not None else None
    if model is not None:
        bundle.system_ids.append(number(model.get("systemID"), 16))
    contents = only_child(element, "Contents")
    if contents is None:
        raise Failure("a SoftwareBundle has no single Contents")
    bundle.packages = [package.get("path", "") for package in contents]
    bundle.id = element.get("bundleID", "")
    bundle.path = element.get("path", "")
    bundle.vendor_version = element.get("vendorVersion", "")
    bundle_type = element.get("bundleType")
    bundle.bundle_type = bundle_type if bundle_type in BUNDLE_TYPES else "BTW32"
    return bundle


def read_component(element):
    component = SimpleNamespace()
    if not read_name_and_type(element, component):
        return None
    category = only_child(element, "Category")
    if category is None:
        raise Failure("a SoftwareComponent has no single Category")
    component.category_code = category.get("value", "")
    # The category text is the Display's first child node: a text, or an element's name.
    display = only_child(category, "Display")
    component.category_text = ""
    if display is not None:
        component.category_text = display.text or (display[0].tag if len(display) else "")
    devices = only_child(element, "SupportedDevices")
    if devices is None:
        raise Failure("a SoftwareComponent has no single SupportedDevices")
    component.devices = []
    for device in devices:
        pcis = [(number(pci.get("vendorID"), 16), number(pci.get("deviceID"), 16),
                 number(pci.get("subVendorID"), 16), number(pci.get("subDeviceID"), 16))
                for pci in device.findall("PCIInfo")]
        component.devices.append((number(device.get("componentID"), 10), pcis))
    criticality = only_child(element, "Criticality")
    value = criticality.get("value") if criticality is not None else None
    component.criticality = value if value in ("1", "2", "3") else "unspecified"
    component.version = element.get("vendorVersion", "")
    component.release_id = element.get("releaseID", "")
    component.package_id = element.get("packageID", "")
    component.path = element.get("path", "")
    return component


def read_catalog(path):
    root = ET.parse(path).getroot()
    bundles, components = [], []
    for element in root:
        if element.tag == "SoftwareBundle":
            bundle = read_bundle(element)
            if bundle is not None:
                bundles.append(bundle)
        elif element.tag == "SoftwareComponent":
            component = read_component(element)
            if component is not None:
                components.append(component)
    return root.get("baseLocation", ""), root.get("releaseID", ""), bundles, components


# ---------------------------------------------------------------- inventory

def same_application(a, b):
    return a[:4] == b[:4] and texts_same(a[4], b[4])


def read_applications(device_element, component_type):
    """The applications (type, version, display, sub-component id, texts), each
    once; what an Application does not state carries over from the one before."""
    applications, texts, sub_id = [], {}, ""
    for element in device_element.findall("Application"):
        for language, value in texts_of(element).items():
            texts.setdefault(language, value)
        text = element.get("componentType")
        if text is None:
            continue
        if text != "SBDL" and text in COMPONENT_TYPES:
            component_type = text
        version, display = element.get("version"), element.get("display")
        if version is None or display is None:
            continue
        sub_id = element.get("subComponentID", sub_id)
        application = (component_type, version.replace(" ", ""), display, sub_id, dict(texts))
        if not any(same_application(application, held) for held in applications):
            applications.append(application)
    return applications, component_type


def same_device(device, held):
    """Devices with the same numbers, display and texts count as the same
    device, and the second is not stored, unless they share an application."""
    return texts_agree(device.texts, held.texts) and not any(
        same_application(a, b) for a in device.applications for b in held.applications)


def read_inventory(path):
    """The system id (0 unless exactly one system is listed) and the devices."""
    root = ET.parse(path).getroot()
    if root.get("lang") is None:
        raise Failure(path + ": not a readable inventory (no \"lang\")")
    systems, devices, by_identity = [], [], {}
    component_type = "SBDL"
    failed = False
    for element in root:
        if element.tag == "OperatingSystem":
            if element.get("osVendor") is None or element.get("preinstallationEnvironment", "true") not in (
                    "true", "false"):
                raise Failure(path + ": not a readable inventory (a faulty OperatingSystem)")
            failed = False
        elif element.tag == "System":
            if element.get("systemID") is None:
                raise Failure(path + ": not a readable inventory (a System without systemID)")
            id_type = element.get("systemIDType")
            system = (number(element.get("systemID"), 16), id_type if id_type in SYSTEM_ID_TYPES else "BIOS",
                      element.get("display", ""), element.get("serviceTag", ""), texts_of(element))
            if not any(system[:4] == held[:4] and texts_same(system[4], held[4]) for held in systems):
                systems.append(system)
            failed = False
        elif element.tag == "Device":
            device = SimpleNamespace()
            device.texts = texts_of(element)
            device.applications, component_type = read_applications(element, component_type)
            device.display = element.get("display")
            failed = device.display is None
            if failed:
                continue
            device.component_id = number(element.get("componentID"), 10)
            device.sub_vendor_id = number(element.get("subVendorID"), 16)
            device.sub_device_id = number(element.get("subDeviceID"), 16)
            device.pci = (number(element.get("vendorID"), 16), number(element.get("deviceID"), 16))
            identity = (device.component_id, device.pci, device.sub_vendor_id, device.sub_device_id,
                        number(element.get("bus"), 10), number(element.get("device"), 10),
                        number(element.get("function"), 10), number(element.get("componentInstance"), 10),
                        device.display)
            held = by_identity.setdefault(identity, [])
            if not any(same_device(device, other) for other in held):
                held.append(device)
                devices.append(device)
    if failed:
        raise Failure(path + ": not a readable inventory (its last Device has no display)")
    return (systems[0][0] if len(systems) == 1 else 0), devices


# ---------------------------------------------------------------- updates

def choose_bundle(bundles, system_id, requested):
    """The first bundle of the type, in catalog order, for the system; with
    "auto" of the first type that has one."""
    for bundle_type in (BUNDLE_TYPES if requested == "auto" else [requested]):
        for bundle in bundles:
            if bundle.bundle_type == bundle_type and system_id in bundle.system_ids:
                return bundle
    return None


def candidates_of(bundle, components):
    """(component, sub-vendor, sub-device) by component id and by PCI ids, in
    the order of the bundle's packages, then catalog order: the first found wins
    among equal versions. Packages name components by the file name of their path."""
    by_file_name = {}
    for component in components:
        by_file_name.setdefault(component.path.rsplit("/", 1)[-1], []).append(component)
    by_component_id, by_pci = {}, {}
    for package in bundle.packages:
        for component in by_file_name.get(package, ()):
            for component_id, pcis in component.devices:
                if component_id != 0:
                    by_component_id.setdefault(component_id, []).append((component, 0, 0))
                for vendor_id, device_id, sub_vendor_id, sub_device_id in pcis:
                    by_pci.setdefault((vendor_id, device_id), []).append((component, sub_vendor_id, sub_device_id))
    return by_component_id, by_pci


def best_package(device, application, candidates):
    """The first matching component, replaced only by a newer one."""
    best = None
    for component, sub_vendor_id, sub_device_id in candidates:
        if component.type != application[0]:
            continue
        if device.component_id == 0 and not (
                (sub_vendor_id, sub_device_id) == (device.sub_vendor_id, device.sub_device_id)
                or (sub_vendor_id == 0 and sub_device_id == 0)):
            continue
        if best is None or (component is not best and compare_versions(component.version, best.version) == 1):
            best = component
    return best


def updates_document(catalog_path, inventory_path, requested):
    base, release, bundles, components = read_catalog(catalog_path)
    system_id, devices = read_inventory(inventory_path)
    bundle = choose_bundle(bundles, system_id, requested)
    if bundle is None:
        what = "no bundle of any type" if requested == "auto" else "no " + requested + " bundle"
        raise Failure("%s: %s in %s applies to the system" % (inventory_path, what, catalog_path), 4)
    by_component_id, by_pci = candidates_of(bundle, components)

    updates, counts, applications = [], {"newer": 0, "same": 0, "older": 0, "unknown": 0}, 0
    for device in devices:
        applications += len(device.applications)
        if device.component_id == EXCLUDED_COMPONENT_ID:
            continue
        if device.component_id != 0:
            candidates = by_component_id.get(device.component_id, ())
        else:
            candidates = by_pci.get(device.pci, ())
        for application in device.applications:
            component = best_package(device, application, candidates)
            if component is None:
                continue
            status = STATUS_WORDS.get(compare_versions(component.version, application[1]), "unknown")
            counts[status] += 1
            updates.append({
                "device": device.display, "application": application[2],
                "installed_version": application[1], "available_version": component.version,
                "status": status, "component_type": component.type, "criticality": component.criticality,
                "category": {"code": component.category_code, "text": component.category_text},
                "name": component.name, "package_id": component.package_id, "path": component.path,
                "location": base + "/" + component.path, "release_id": component.release_id,
            })

    return {
        "schema_version": 1, "catalog": catalog_path, "inventory": inventory_path, "catalog_release": release,
        "system_id": "%04X" % system_id if system_id else None,  # null unless exactly one system
        "base_location": base,
        "bundle": {"id": bundle.id, "type": bundle.bundle_type,
                   "selection": "auto" if requested == "auto" else "requested",
                   "path": bundle.path, "vendor_version": bundle.vendor_version, "packages": len(bundle.packages)},
        "updates": updates,
        "summary": {"updates": len(updates), **counts, "applications": applications,
                    "without_update": applications - len(updates)},
    }


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--catalog", required=True)
    parser.add_argument("--inventory", required=True)
    parser.add_argument("--bundle-type", default="auto", choices=["auto"] + BUNDLE_TYPES)
    args = parser.parse_args()
    try:
        document = updates_document(args.catalog, args.inventory, args.bundle_type)
    except (Failure, ET.ParseError, OSError) as error:
        print("etree_updates: %s" % error, file=sys.stderr)
        return getattr(error, "status", 2)
    sys.stdout.buffer.write((json.dumps(document, indent=2, ensure_ascii=False) + "\n").encode("utf-8"))
    return 0


if __name__ == "__main__":
    sys.exit(main())
