#!/usr/bin/env python3
"""Writes a catalog and a matching inventory, deterministically from a seed.

The catalog has bundles for several systems and bundle types, each listing
packages of the catalog's components; components of every type with names,
descriptions, categories (CDATA), supported devices (by component id or by
several PCI identities), supported systems and operating systems,
criticality, long paths and hashes. The inventory describes one system whose
devices match a good share of its bundle's components, by component id and
by PCI ids, with installed versions older than, equal to or newer than the
catalog's.

With --fleet DIR it also writes one inventory per computer into DIR
(inventory-00000.xml, ...), for the same catalog options and seed: 20 to 60
devices each, most computers of one of the catalog's systems, about 10 % of
a system the catalog has no bundle for. The fleet comes from its own random
generator, so the catalog and the single inventory are the same with or
without it, and --fleet may be given without --catalog.

    bench/generate.py --components 30000 --catalog big.xml --inventory inv.xml
    bench/generate.py --target-mb 100 --catalog big.xml --inventory inv.xml
    bench/generate.py --target-mb 100 --fleet fleet/ --computers 10000
"""
import argparse
import os
import random
import sys

COMPONENT_TYPES = ["BIOS", "FRMW", "DRVR", "APAC", "APP"]
BUNDLE_TYPES = ["BTW64", "BTLX", "BTW32", "BTRPM", "BTDEB", "BTOSIND"]
CATEGORIES = [
    ("BI", "BIOS"), ("NI", "Network"), ("SF2", "Storage Controllers"), ("AS", "Audio"),
    ("CS", "Chipset"), ("VI", "Video"), ("SM", "Systems Management"), ("SE", "Security"),
    ("IN", "Input Devices"), ("FC", "Fibre Channel"), ("Netbook", "Netbook Tools"),
    ("Network", "Network Drivers"), ("P2", "Power Management"), ("Serial ATA", "Serial ATA"),
    ("UT", "Utilities"), ("DP", "Diagnostics"), ("RA", "Remote Access"), ("OS", "OS Collector"),
    ("SK", "Smart Card"), ("TPM", "Trusted Platform"),
]
OSES = [("W22", "x64"), ("W19", "x64"), ("W16", "x64"), ("RH9", "x64"), ("SL15", "x64"), ("U22", "x64")]
LANGS = ["en", "de", "fr", "ja", "zh-Hans"]
WORDS = ("update firmware driver adapter controller storage network improves fixes security "
         "stability performance support adds resolves issue boot memory power thermal").split()


def words(rng, count):
    return " ".join(rng.choice(WORDS) for _ in range(count))


def version(rng):
    return "%d.%d.%d" % (rng.randint(1, 30), rng.randint(0, 20), rng.randint(0, 99))


def older(rng, text):
    parts = [int(p) for p in text.split(".")]
    choice = rng.random()
    if choice < 0.6 and parts[-1] > 0:
        parts[-1] -= 1
    elif choice < 0.8:
        return text
    else:
        parts[-1] += 1
    return ".".join(str(p) for p in parts)


def hexid(rng, digits=4):
    return "%0*X" % (digits, rng.randrange(16 ** digits))


class Component:
    pass


def make_components(rng, count, systems):
    components = []
    for index in range(count):
        c = Component()
        c.index = index
        c.type = COMPONENT_TYPES[index % len(COMPONENT_TYPES)]
        c.version = version(rng)
        c.category = rng.choice(CATEGORIES)
        c.name = "%s %s %d" % (c.category[1], words(rng, 3), index)
        c.file = "%s_%s_%s_WN64_%s_A%02d.EXE" % (
            c.category[0].replace(" ", ""), c.type, hexid(rng, 5), c.version, rng.randint(0, 9))
        c.path = "FOLDER%07dM/%d/%s" % (rng.randrange(10 ** 7), rng.randint(1, 9), c.file)
        c.systems = rng.sample(systems, min(len(systems), rng.randint(1, 4)))
        if c.type == "BIOS":
            c.component_ids = [159]
            c.pci = []
        elif c.type in ("APAC", "APP"):
            c.component_ids = [rng.randint(1000, 40000)]
            c.pci = []
        else:
            c.component_ids = [0]
            vendor = rng.choice(["8086", "14E4", "1000", "10DE", "1077", "15B3"])
            device = hexid(rng)
            c.pci = [(device, vendor, "0000", "0000")]
            for _ in range(rng.randint(1, 4)):
                c.pci.append((device, vendor, hexid(rng), rng.choice(["1028", "103C", "17AA"])))
        components.append(c)
    return components


def write_component(out, rng, c):
    out.write('  <SoftwareComponent schemaVersion="3.0" releaseID="%s" dateTime="%d" vendorVersion="%s" '
              'releaseDate="%d" hashMD5="%032x" tolvarVersion="%s" packageID="%s" packageType="LWXP" '
              'path="%s" size="%d" xmlGenVersion="2.0.14">\n' % (
                  hexid(rng, 5), 1700000000 + rng.randrange(10 ** 7), c.version,
                  1700000000 + rng.randrange(10 ** 7), rng.getrandbits(128), c.version,
                  hexid(rng, 5), c.path, rng.randrange(10 ** 8)))
    # A name is read only when it has exactly one "Display".
    out.write('    <Name><Display lang="%s"><![CDATA[%s]]></Display></Name>\n' % (rng.choice(LANGS), c.name))
    out.write('    <ComponentType value="%s"><Display lang="en"><![CDATA[%s]]></Display></ComponentType>\n'
              % (c.type, c.type.title()))
    out.write('    <Description><Display lang="en"><![CDATA[%s]]></Display></Description>\n'
              % words(rng, rng.randint(20, 60)))
    out.write('    <Category value="%s"><Display lang="en"><![CDATA[%s]]></Display></Category>\n' % c.category)
    out.write('    <LUCategory value="%s"><Display lang="en"><![CDATA[%s]]></Display></LUCategory>\n'
              % (c.category[0] + "_LU", c.category[1]))
    out.write('    <SupportedDevices>\n')
    for component_id in c.component_ids:
        out.write('      <Device componentID="%d" embedded="%d">\n' % (component_id, rng.randint(0, 1)))
        for pci in c.pci:
            out.write('        <PCIInfo deviceID="%s" vendorID="%s" subDeviceID="%s" subVendorID="%s"/>\n' % pci)
        out.write('        <Display lang="en"><![CDATA[%s]]></Display>\n' % c.name)
        out.write('      </Device>\n')
    out.write('    </SupportedDevices>\n')
    out.write('    <SupportedSystems display="1">\n')
    out.write('      <Brand key="3" prefix="SRV"><Display lang="en"><![CDATA[Servers]]></Display>\n')
    out.write('        <Model systemID="%s"><Display lang="en"><![CDATA[M%s]]></Display></Model>\n'
              % (c.systems[0], c.systems[0]))
    out.write('      </Brand>\n    </SupportedSystems>\n')
    out.write('    <SupportedOperatingSystems>\n')
    for code, arch in rng.sample(OSES, 3):
        out.write('      <OperatingSystem osArch="%s" osCode="%s" osVendor="Example" majorVersion="10" '
                  'minorVersion="0" spMajorVersion="0" spMinorVersion="0">'
                  '<Display lang="en"><![CDATA[%s]]></Display></OperatingSystem>\n' % (arch, code, code))
    out.write('    </SupportedOperatingSystems>\n')
    out.write('    <ImportantInfo URL="https://updates.example.com/notes/%s"/>\n' % c.file.lower())
    out.write('    <Criticality value="%d"><Display lang="en"><![CDATA[%s]]></Display></Criticality>\n'
              % (rng.randint(1, 3), rng.choice(["Urgent", "Recommended", "Optional"])))
    out.write('  </SoftwareComponent>\n')


def write_catalog(out, rng, components, systems, packages, bundle_types):
    out.write('<?xml version="1.0" encoding="utf-8"?>\n')
    out.write('<Manifest baseLocation="updates.example.com/catalog" dateTime="1763683200" '
              'releaseID="R%d" version="26.11.00">\n' % rng.randrange(10 ** 6))
    by_system = {s: [c for c in components if s in c.systems] for s in systems}
    number = 0
    for system in systems:
        for bundle_type in bundle_types:
            number += 1
            pool = by_system[system]
            chosen = rng.sample(pool, min(len(pool), packages))
            out.write('  <SoftwareBundle schemaVersion="3.0" releaseID="%s" dateTime="1763683200" '
                      'vendorVersion="26.11.%02d" path="bundles/%s-%s.exe" bundleID="SRV%s.%05d" '
                      'bundleType="%s">\n' % (hexid(rng, 5), number % 100, system, bundle_type, system,
                                              number, bundle_type))
            out.write('    <Name><Display lang="en"><![CDATA[Update bundle for system %s (%s)]]></Display></Name>\n'
                      % (system, bundle_type))
            out.write('    <ComponentType value="SBDL"><Display lang="en"><![CDATA[System Bundle]]></Display></ComponentType>\n')
            out.write('    <Description><Display lang="en"><![CDATA[%s]]></Display></Description>\n' % words(rng, 12))
            out.write('    <TargetSystems><Brand key="3" prefix="SRV"><Display lang="en"><![CDATA[Servers]]></Display>'
                      '<Model systemID="%s"><Display lang="en"><![CDATA[M%s]]></Display></Model></Brand></TargetSystems>\n'
                      % (system, system))
            out.write('    <TargetOSes><OperatingSystem osCode="W22" osVendor="Example">'
                      '<Display lang="en"><![CDATA[Server OS]]></Display></OperatingSystem></TargetOSes>\n')
            out.write('    <RevisionHistory><Display lang="en"><![CDATA[%s]]></Display></RevisionHistory>\n'
                      % words(rng, 8))
            out.write('    <ImportantInfo URL="https://updates.example.com/bundles/%s"/>\n' % system)
            out.write('    <Contents>\n')
            for c in chosen:
                out.write('      <Package path="%s" packageID="%s"/>\n' % (c.file, hexid(rng, 5)))
            out.write('    </Contents>\n  </SoftwareBundle>\n')
    for c in components:
        write_component(out, rng, c)
    for code, _ in OSES:
        out.write('  <InventoryComponent schemaVersion="3.0" releaseID="%s" dateTime="1763683200" '
                  'vendorVersion="19.1.0" releaseDate="1763596800" hashMD5="%032x" tolvarVersion="19.1.0" '
                  'osCode="%s" path="collectors/invcol_%s.exe"/>\n' % (hexid(rng, 5), rng.getrandbits(128),
                                                                       code, code.lower()))
    out.write('</Manifest>\n')


def system_pool(components, system):
    return [c for c in components if system in c.systems]


def write_inventory(out, rng, system, candidates, devices):
    """Writes an inventory of `devices` devices for `system`; device i is
    candidates[i] (70 % of the time, while there are candidates) or else
    a device no component matches."""
    out.write('<?xml version="1.0" encoding="utf-8"?>\n')
    out.write('<SVMInventory lang="en" schemaVersion="1.0" timeStamp="1763700000">\n')
    out.write('  <OperatingSystem osArch="x64" osCode="W22" osVendor="Example" majorVersion="10" '
              'minorVersion="0" spMajorVersion="0" spMinorVersion="0" preinstallationEnvironment="false" '
              'suiteMask="400"><Display lang="en">Server OS 2022</Display></OperatingSystem>\n')
    out.write('  <System systemID="%s" display="M%s" serviceTag="ABC%04d" systemIDType="BIOS"/>\n'
              % (system, system, rng.randrange(10000)))
    for index in range(devices):
        if index < len(candidates) and rng.random() < 0.7:
            c = candidates[index]
        else:
            c = None
        if c is not None and c.pci:
            device_id, vendor, sub_device, sub_vendor = rng.choice(c.pci)
            if sub_device == "0000":
                sub_device, sub_vendor = hexid(rng), "1028"
            out.write('  <Device vendorID="%s" deviceID="%s" subVendorID="%s" subDeviceID="%s" bus="%d" '
                      'device="0" function="%d" display="%s">\n' % (
                          vendor, device_id, sub_vendor, sub_device, rng.randint(0, 255), index % 8, c.name))
            out.write('    <Application componentType="%s" version="%s" display="%s"/>\n'
                      % (c.type, older(rng, c.version), c.name))
        elif c is not None:
            out.write('  <Device componentID="%d" display="%s">\n' % (c.component_ids[0], c.name))
            out.write('    <Application componentType="%s" version="%s" display="%s"/>\n'
                      % (c.type, older(rng, c.version), c.name))
        else:
            out.write('  <Device vendorID="%s" deviceID="%s" subVendorID="1028" subDeviceID="%s" '
                      'display="Unlisted device %d">\n' % (hexid(rng), hexid(rng), hexid(rng), index))
            out.write('    <Application componentType="DRVR" version="%s" display="Unlisted driver %d"/>\n'
                      % (version(rng), index))
        out.write('  </Device>\n')
    out.write('</SVMInventory>\n')


def write_fleet(directory, rng, components, systems, computers, utf16):
    """Writes one inventory per computer into directory."""
    os.makedirs(directory, exist_ok=True)
    pools = {system: system_pool(components, system) for system in systems}
    # System ids that have no bundle in the catalog.
    unbundled = [s for s in ("0F%02X" % i for i in range(256)) if s not in systems]
    width = max(5, len(str(computers - 1)))
    for number in range(computers):
        if rng.random() < 0.1:
            # Real devices, but of a model the catalog has no bundle for.
            system = rng.choice(unbundled)
            pool = pools[rng.choice(systems)]
        else:
            system = rng.choice(systems)
            pool = pools[system]
        devices = rng.randint(20, 60)
        inventory = Sink()
        write_inventory(inventory, rng, system, rng.sample(pool, min(len(pool), devices)), devices)
        inventory.save(os.path.join(directory, "inventory-%0*d.xml" % (width, number)), utf16)


class Sink:
    """Collects text, then writes it as UTF-8 or UTF-16LE with a byte-order mark."""

    def __init__(self):
        self.parts = []

    def write(self, text):
        self.parts.append(text)

    def save(self, path, utf16):
        text = "".join(self.parts)
        with open(path, "wb") as out:
            if utf16:
                out.write(b"\xff\xfe" + text.replace('encoding="utf-8"', 'encoding="utf-16"').encode("utf-16-le"))
            else:
                out.write(text.encode("utf-8"))
        return len(text)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--components", type=int, default=0, help="number of components")
    parser.add_argument("--target-mb", type=float, default=100.0,
                        help="size of the catalog when --components is not given")
    parser.add_argument("--systems", type=int, default=8, help="number of systems")
    parser.add_argument("--packages", type=int, default=400, help="packages per bundle")
    parser.add_argument("--bundle-types", type=int, default=3, help="bundle types per system")
    parser.add_argument("--devices", type=int, default=200, help="inventory devices")
    parser.add_argument("--utf16", action="store_true", help="write UTF-16LE with a byte-order mark")
    parser.add_argument("--catalog")
    parser.add_argument("--inventory", help="needs --catalog")
    parser.add_argument("--fleet", metavar="DIR", help="write one inventory per computer into DIR")
    parser.add_argument("--computers", type=int, default=10000, help="computers of the fleet")
    args = parser.parse_args()
    if not args.catalog and not args.fleet:
        parser.error("give --catalog, --fleet or both")
    if args.inventory and not args.catalog:
        parser.error("--inventory needs --catalog")

    rng = random.Random(args.seed)
    systems = ["%04X" % (0x0A00 + 0x11 * i) for i in range(args.systems)]
    components = args.components or max(10, int(args.target_mb * 1000 * 1000 / 2590))
    comps = make_components(rng, components, systems)
    if args.catalog:
        catalog = Sink()
        write_catalog(catalog, rng, comps, systems, args.packages, BUNDLE_TYPES[:args.bundle_types])
        catalog.save(args.catalog, args.utf16)
    if args.inventory:
        pool = system_pool(comps, systems[0])
        rng.shuffle(pool)
        inventory = Sink()
        write_inventory(inventory, rng, systems[0], pool, args.devices)
        inventory.save(args.inventory, args.utf16)
    if args.fleet:
        write_fleet(args.fleet, random.Random("fleet %d" % args.seed), comps, systems, args.computers, args.utf16)


if __name__ == "__main__":
    sys.exit(main())
