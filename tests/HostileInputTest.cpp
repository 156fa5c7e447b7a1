// Files that are not what a caller promised: empty, not a regular file,
// missing, binary, badly encoded, with NUL bytes, with content after the root
// element, with entity references (each of which fails the document) and
// entity declarations that must never be expanded or fetched. Each read must
// give its exact result, leave the stores in a state every query can answer
// from, and keep the process's memory within a bound proportional to the
// input.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

QRMKitAPI* API() { return QRMKitAPI::Instance(); }

const std::string kExampleCatalog = std::string(QRMKIT_EXAMPLES_DIR) + "/catalog.xml";
const std::string kExampleInventory = std::string(QRMKIT_EXAMPLES_DIR) + "/inventory.xml";

// The texts a small catalog is made from; each test replaces some of them.
struct CatalogTexts {
    std::string declaration = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n";
    std::string doctype;
    std::string baseLocation = "updates.example.net";
    std::string releaseID = "R1";
    std::string version = "1.0";
    std::string bundleName = "Bundle";
    std::string componentName = "Component";
    std::string categoryText = "BIOS";
    std::string vendorVersion = "2.4.1";
    std::string componentPath = "dir/PKG.EXE";
    std::string collectorPath = "collectors/w22.exe";
};

// One bundle for system 0A6B listing PKG.EXE, one BIOS component for
// component id 159 whose file is PKG.EXE, one collector for W22.
std::string Catalog(const CatalogTexts& t)
{
    return t.declaration + t.doctype + "<Manifest baseLocation=\"" + t.baseLocation + "\" releaseID=\"" + t.releaseID +
           "\" version=\"" + t.version +
           "\" dateTime=\"1700000000\">\n"
           "<SoftwareBundle bundleID=\"B.00007\" bundleType=\"BTW64\" path=\"b.exe\">"
           "<Name><Display lang=\"en\">" +
           t.bundleName +
           "</Display></Name><ComponentType value=\"SBDL\"/>"
           "<TargetSystems><Brand key=\"1\" prefix=\"P\"><Model systemID=\"0A6B\"/></Brand></TargetSystems>"
           "<Contents><Package path=\"PKG.EXE\" packageID=\"P1\"/></Contents></SoftwareBundle>\n"
           "<SoftwareComponent path=\"" +
           t.componentPath + "\" vendorVersion=\"" + t.vendorVersion +
           "\" packageID=\"P1\"><Name><Display lang=\"en\">" + t.componentName +
           "</Display></Name><ComponentType value=\"BIOS\"/>"
           "<Category value=\"BI\"><Display lang=\"en\">" +
           t.categoryText +
           "</Display></Category>"
           "<SupportedDevices><Device componentID=\"159\"/></SupportedDevices></SoftwareComponent>\n"
           "<InventoryComponent osCode=\"W22\" path=\"" +
           t.collectorPath + "\"/>\n</Manifest>\n";
}

struct InventoryTexts {
    std::string declaration = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n";
    std::string doctype;
    std::string lang = "en";
    std::string schemaVersion = "1.0";
    std::string osVendor = "Example";
    std::string osDisplay = "Server OS";
    std::string systemDisplay = "S740";
    std::string deviceDisplay = "BIOS";
    std::string applicationVersion = "2.3.9";
    std::string applicationDisplay = "BIOS";
};

// One operating system, system 0A6B, and device 159 with one BIOS.
std::string Inventory(const InventoryTexts& t)
{
    return t.declaration + t.doctype + "<SVMInventory lang=\"" + t.lang + "\" schemaVersion=\"" + t.schemaVersion +
           "\" timeStamp=\"1700000000\">\n"
           "<OperatingSystem osArch=\"x64\" osCode=\"W22\" osVendor=\"" +
           t.osVendor + "\"><Display lang=\"en\">" + t.osDisplay +
           "</Display></OperatingSystem>\n"
           "<System systemID=\"0A6B\" display=\"" +
           t.systemDisplay +
           "\"/>\n"
           "<Device componentID=\"159\" display=\"" +
           t.deviceDisplay + "\"><Application componentType=\"BIOS\" version=\"" + t.applicationVersion +
           "\" display=\"" + t.applicationDisplay + "\"/></Device>\n</SVMInventory>\n";
}

template <class Holder>
std::string DisplayTexts(const Holder& holder)
{
    std::vector<QRMDisplay> displays;
    holder.GetDisplayValues(displays);
    std::string text;
    for (const QRMDisplay& display : displays) {
        text += display.GetLanguage().GetUTF8String() + "=" + display.GetValue().GetUTF8String() + "\n";
    }
    return text;
}

std::string FirstDisplayText(const QRMName& name)
{
    std::vector<QRMDisplay> displays;
    name.GetDisplayValues(displays);
    return displays.empty() ? std::string("<none>") : displays.front().GetValue().GetUTF8String();
}

// Every text the two stores hand out, one after the other.
std::string EveryStoredText()
{
    std::string all;
    auto add = [&all](const VELString& text) { all += text.GetUTF8String() + "\n"; };
    add(API()->GetBaseLocation());
    add(API()->GetCatalogReleaseID());
    add(API()->GetCatalogVersion());
    for (const QRMSoftwareBundle* bundle : StoredBundles()) {
        all += DisplayTexts(bundle->GetName());
        add(bundle->GetBundleID());
        add(bundle->GetPath());
        add(bundle->GetVendorVersion());
        add(bundle->GetReleaseID());
        add(bundle->GetSchemaVersion());
        std::vector<QRMBundleContent> contents;
        bundle->GetContents(contents);
        for (const QRMBundleContent& content : contents) {
            add(content.GetPath());
            add(content.GetPackageID());
        }
    }
    for (const QRMSoftwareComponent* component : StoredComponents()) {
        all += DisplayTexts(component->GetName());
        all += DisplayTexts(component->GetCategory());
        add(component->GetCategory().GetCode());
        add(component->GetVendorVersion());
        add(component->GetPath());
        add(component->GetPackageID());
        add(component->GetReleaseID());
        add(component->GetSchemaVersion());
    }
    std::vector<QRMInventoryComponent> collectors;
    API()->GetInventoryComponents(collectors);
    for (const QRMInventoryComponent& collector : collectors) {
        add(collector.GetPath());
        add(collector.GetOSCode());
        add(collector.GetVendorVersion());
        add(collector.GetReleaseID());
    }
    std::map<VELString, VELString> categories;
    API()->GetCategoryValues(categories);
    for (const auto& category : categories) {
        add(category.first);
        add(category.second);
    }
    add(API()->GetInventorySchemaVersion());
    for (const QRMIDevice* device : StoredDevices()) {
        add(device->GetDisplay());
        all += DisplayTexts(*device);
        for (const QRMIApplication* application : ApplicationsOf(*device)) {
            add(application->GetVersion());
            add(application->GetDisplay());
            add(application->GetSubComponentID());
            all += DisplayTexts(*application);
        }
    }
    std::vector<QRMISystem> systems;
    API()->GetInventorySystems(systems);
    for (const QRMISystem& system : systems) {
        add(system.GetDisplay());
        add(system.GetServiceTag());
        all += DisplayTexts(system);
    }
    std::vector<QRMOperatingSystem> oses;
    API()->GetInventoryOperatingSystems(oses);
    for (const QRMOperatingSystem& os : oses) {
        add(os.GetCode());
        add(os.GetVendor());
        all += DisplayTexts(os);
    }
    return all;
}

// Reads the catalog text and checks that the one component it holds is
// chosen for the BIOS of the example inventory.
void ExpectTheSmallCatalogGivesItsUpdate()
{
    ASSERT_TRUE(API()->IsCatalogParsed());
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(kExampleInventory)));
    std::map<QRMIApplication*, QRMSoftwareComponent*> updates;
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    ASSERT_EQ(1u, updates.size());
    EXPECT_EQ(StoredComponents().front(), updates.begin()->second);
    EXPECT_EQ(VELString("BIOS"), updates.begin()->first->GetDisplay());
}

// Reads the inventory text and checks that its one application gets the
// component of a catalog that lists it.
void ExpectTheSmallInventoryGetsItsUpdate()
{
    ASSERT_TRUE(API()->IsInventoryParsed());
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
    std::map<QRMIApplication*, QRMSoftwareComponent*> updates;
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    ASSERT_EQ(1u, updates.size());
    EXPECT_EQ(VELString("FOLDER01/BIOS/BIOS_S740_2.4.1.EXE"), updates.begin()->second->GetPath());
}

// Byte sequences that are not UTF-8: a stray continuation byte, a byte never
// used, an overlong NUL, an encoded surrogate, a sequence cut short, a
// five-byte form, and a code point above U+10FFFF.
const std::vector<std::string> kInvalidUTF8 = {
    "\x80", "\xFF", "\xC0\x80", "\xED\xA0\x80", "\xE2\x82", "\xF8\x88\x80\x80\x80", "\xF4\x90\x80\x80",
};

// "a", then e acute, the euro sign and a character beyond U+FFFF, then "z".
const std::string kValidNonASCII = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80z";

// A document and what it holds, for the messages of a failing check.
struct Labelled {
    std::string label;
    std::string xml;
};

// A text of the small catalog or inventory that a file can set.
template <class Texts>
struct TextField {
    const char* name;
    std::string Texts::*text;
};

const std::vector<TextField<CatalogTexts>> kCatalogFields = {
    {"baseLocation", &CatalogTexts::baseLocation},
    {"releaseID", &CatalogTexts::releaseID},
    {"version", &CatalogTexts::version},
    {"bundleName", &CatalogTexts::bundleName},
    {"componentName", &CatalogTexts::componentName},
    {"categoryText", &CatalogTexts::categoryText},
    {"vendorVersion", &CatalogTexts::vendorVersion},
    {"componentPath", &CatalogTexts::componentPath},
    {"collectorPath", &CatalogTexts::collectorPath},
};

const std::vector<TextField<InventoryTexts>> kInventoryFields = {
    {"lang", &InventoryTexts::lang},
    {"schemaVersion", &InventoryTexts::schemaVersion},
    {"osVendor", &InventoryTexts::osVendor},
    {"osDisplay", &InventoryTexts::osDisplay},
    {"systemDisplay", &InventoryTexts::systemDisplay},
    {"deviceDisplay", &InventoryTexts::deviceDisplay},
    {"applicationVersion", &InventoryTexts::applicationVersion},
    {"applicationDisplay", &InventoryTexts::applicationDisplay},
};

// The document `build` writes with `doctype` and the field named `name` set
// to `text`.
template <class Texts>
Labelled DocumentWith(const std::vector<TextField<Texts>>& fields, std::string (*build)(const Texts&),
                      const std::string& doctype, const std::string& name, const std::string& text)
{
    Texts texts;
    texts.doctype = doctype;
    const auto field = std::find_if(fields.begin(), fields.end(),
                                    [&](const TextField<Texts>& candidate) { return name == candidate.name; });
    if (field == fields.end()) {
        ADD_FAILURE() << "no field " << name;
        return {name, build(texts)};
    }
    texts.*(field->text) = text;
    return {name + "=" + text, build(texts)};
}

Labelled CatalogWith(const std::string& doctype, const std::string& name, const std::string& text)
{
    return DocumentWith(kCatalogFields, Catalog, doctype, name, text);
}

Labelled InventoryWith(const std::string& doctype, const std::string& name, const std::string& text)
{
    return DocumentWith(kInventoryFields, Inventory, doctype, name, text);
}

// Reads each document after the example catalog: each read fails and leaves
// no catalog behind. Returns the size of the largest document.
std::size_t ExpectEachCatalogFailsAndEmptiesTheStore(const TempDir& dir, const std::vector<Labelled>& documents)
{
    std::size_t largest = 0;
    for (const Labelled& document : documents) {
        SCOPED_TRACE(document.label.substr(0, 200));
        largest = std::max(largest, document.xml.size());
        EXPECT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
        EXPECT_EQ(QRM_KIT_FAILURE, API()->Parse(VELFile(dir.Write("hostile.xml", document.xml))));
        ExpectNoCatalog();
    }
    return largest;
}

// Reads each document, first into the empty inventory store and then after
// the example inventory: each read fails and stores nothing, so the store
// stays empty and then holds the example inventory alone, as it was (the
// inventory store is never emptied). Returns the size of the largest
// document.
std::size_t ExpectEachInventoryFailsAndStoresNothing(const TempDir& dir, const std::vector<Labelled>& documents)
{
    std::size_t largest = 0;
    for (const Labelled& document : documents) {
        SCOPED_TRACE(document.label.substr(0, 200));
        largest = std::max(largest, document.xml.size());
        EXPECT_EQ(QRM_KIT_FAILURE, API()->ParseInventory(VELFile(dir.Write("hostile.xml", document.xml))));
        ExpectNoInventory();
    }
    EXPECT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(kExampleInventory)));
    const std::size_t devices = StoredDevices().size();
    const std::string example = EveryStoredText();
    for (const Labelled& document : documents) {
        SCOPED_TRACE(document.label.substr(0, 200));
        EXPECT_EQ(QRM_KIT_FAILURE, API()->ParseInventory(VELFile(dir.Write("hostile.xml", document.xml))));
        EXPECT_TRUE(API()->IsInventoryParsed());
        EXPECT_EQ(devices, StoredDevices().size());
        EXPECT_EQ(0x0A6Bu, API()->GetSystemIDFromInventory());
        EXPECT_EQ(example, EveryStoredText());
    }
    // The example inventory still gets the example catalog's ten updates.
    EXPECT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
    std::map<QRMIApplication*, QRMSoftwareComponent*> updates;
    EXPECT_EQ(QRM_KIT_SUCCESS, API()->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64));
    EXPECT_EQ(10u, updates.size());
    return largest;
}

// Deterministic bytes of every value, "<" and NUL included.
std::string Garbage(std::size_t size, unsigned int seed)
{
    std::string bytes(size, '\0');
    unsigned int state = seed;
    for (char& byte : bytes) {
        state = state * 1664525u + 1013904223u;
        byte = static_cast<char>(state >> 24);
    }
    return bytes;
}

std::string WithByte(std::string text, std::size_t position, char byte)
{
    text.insert(position, 1, byte);
    return text;
}

// A document type declaration whose entities would grow to 3 * 10^9
// characters if expanded, and a parameter entity that would define one more;
// with `referenceMore`, the declaration refers to that parameter entity.
std::string Laughs(bool referenceMore)
{
    return std::string("<!DOCTYPE Root [\n"
                       "  <!ENTITY lol \"lol\">\n"
                       "  <!ENTITY lol1 \"&lol;&lol;&lol;&lol;&lol;&lol;&lol;&lol;&lol;&lol;\">\n"
                       "  <!ENTITY lol2 \"&lol1;&lol1;&lol1;&lol1;&lol1;&lol1;&lol1;&lol1;&lol1;&lol1;\">\n"
                       "  <!ENTITY lol3 \"&lol2;&lol2;&lol2;&lol2;&lol2;&lol2;&lol2;&lol2;&lol2;&lol2;\">\n"
                       "  <!ENTITY lol4 \"&lol3;&lol3;&lol3;&lol3;&lol3;&lol3;&lol3;&lol3;&lol3;&lol3;\">\n"
                       "  <!ENTITY lol5 \"&lol4;&lol4;&lol4;&lol4;&lol4;&lol4;&lol4;&lol4;&lol4;&lol4;\">\n"
                       "  <!ENTITY lol6 \"&lol5;&lol5;&lol5;&lol5;&lol5;&lol5;&lol5;&lol5;&lol5;&lol5;\">\n"
                       "  <!ENTITY lol7 \"&lol6;&lol6;&lol6;&lol6;&lol6;&lol6;&lol6;&lol6;&lol6;&lol6;\">\n"
                       "  <!ENTITY lol8 \"&lol7;&lol7;&lol7;&lol7;&lol7;&lol7;&lol7;&lol7;&lol7;&lol7;\">\n"
                       "  <!ENTITY lol9 \"&lol8;&lol8;&lol8;&lol8;&lol8;&lol8;&lol8;&lol8;&lol8;&lol8;\">\n"
                       "  <!ENTITY % more \"<!ENTITY boom '&lol9;&lol9;'>\">\n") +
           (referenceMore ? "  %more;\n" : "") + "]>\n";
}

// One entity of 100,000 characters, to be referenced many times.
std::string WideEntity() { return "<!DOCTYPE Root [\n  <!ENTITY wide \"" + std::string(100000, 'w') + "\">\n]>\n"; }

// Entities that name a local file, absolutely and relatively, an external
// document type and a parameter entity that would pull it in; with
// `referenceRemote`, the declaration refers to that parameter entity.
std::string ExternalEntities(const TempDir& dir, bool referenceRemote)
{
    return "<!DOCTYPE Root SYSTEM \"file://" + dir.PathOf("secret.dtd") +
           "\" [\n"
           "  <!ENTITY file SYSTEM \"file://" +
           dir.PathOf("secret.txt") +
           "\">\n"
           "  <!ENTITY rel SYSTEM \"secret.txt\">\n"
           "  <!ENTITY pub PUBLIC \"-//Example//Secret//EN\" \"secret.txt\">\n"
           "  <!ENTITY % remote SYSTEM \"file://" +
           dir.PathOf("secret.dtd") + "\">\n" + (referenceRemote ? "  %remote;\n" : "") + "]>\n";
}

// An inclusion of the file secret.txt as text.
const std::string kInclude =
    "<xi:include xmlns:xi=\"http://www.w3.org/2001/XInclude\" href=\"secret.txt\" parse=\"text\"/>";

const char* const kSecret = "TOP-SECRET-7d41";

void WriteSecrets(const TempDir& dir)
{
    dir.Write("secret.txt", kSecret);
    dir.Write("secret.dtd", std::string("<!ENTITY leak \"") + kSecret + "\">\n");
}

}  // namespace

// ---------------------------------------------------------------- catalog

TEST(HostileCatalogFile, EmptyFileFailsAndEmptiesTheStore)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
    EXPECT_EQ(QRM_KIT_FAILURE, API()->Parse(VELFile(dir.Write("empty.xml", ""))));
    ExpectNoCatalog();
    ExpectExampleUpdates();
}

TEST(HostileCatalogFile, FileOfBlanksOnlyFails)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_FAILURE, API()->Parse(VELFile(dir.Write("blank.xml", "  \n\t\r\n  "))));
    ExpectNoCatalog();
}

TEST(HostileCatalogFile, DeclarationAndCommentWithoutRootFail)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_FAILURE,
              API()->Parse(VELFile(dir.Write("noroot.xml", "<?xml version=\"1.0\"?>\n<!-- nothing -->\n"))));
    ExpectNoCatalog();
}

TEST(HostileCatalogFile, DirectoryIsNotFound)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->Initialize(VELFile(dir.Path())));
    EXPECT_FALSE(API()->IsInitialized());
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->Parse(VELFile(dir.Path())));
    ExpectNoCatalog();
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->Parse(VELFile(dir.Path() + "/")));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->Parse(VELFile("/")));
    ExpectNoCatalog();
    ExpectExampleUpdates();
}

TEST(HostileCatalogFile, MissingFileIsNotFound)
{
    TempDir dir;
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->Parse(VELFile(dir.PathOf("absent.xml"))));
    ExpectNoCatalog();
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->Parse(VELFile("")));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->Parse(VELFile(VELString())));
    // A path that runs through a regular file.
    std::string file = dir.Write("file.xml", Catalog(CatalogTexts()));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->Parse(VELFile(file + "/catalog.xml")));
    // A symbolic link to nothing.
    ASSERT_EQ(0, ::symlink(dir.PathOf("nowhere.xml").c_str(), dir.PathOf("dangling.xml").c_str()));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->Parse(VELFile(dir.PathOf("dangling.xml"))));
    ExpectNoCatalog();
    ExpectExampleUpdates();
}

TEST(HostileCatalogFile, SpecialFilesAreNotFoundAndNeverRead)
{
    TempDir dir;
    // Opening a pipe without a writer, or reading an endless device, would
    // block or never end: none of them is a regular file.
    ASSERT_EQ(0, ::mkfifo(dir.PathOf("pipe.xml").c_str(), 0600));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->Parse(VELFile(dir.PathOf("pipe.xml"))));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->Initialize(VELFile(dir.PathOf("pipe.xml"))));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->Parse(VELFile("/dev/zero")));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->Parse(VELFile("/dev/null")));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->Parse(VELFile("/dev/urandom")));
    ExpectNoCatalog();
}

TEST(HostileCatalogFile, FileThatHoldsLessThanItsSizeFails)
{
    // A kernel attribute file states a size of a whole page and holds a few
    // bytes: reading stops short of the stated size.
    const char* const path = "/sys/devices/system/cpu/online";
    struct stat info;
    ASSERT_EQ(0, ::stat(path, &info));
    ASSERT_TRUE(S_ISREG(info.st_mode));
    ASSERT_EQ(4096, info.st_size);
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
    EXPECT_EQ(QRM_KIT_FAILURE, API()->Parse(VELFile(path)));
    ExpectNoCatalog();
    EXPECT_EQ(QRM_KIT_FAILURE, API()->ParseInventory(VELFile(path)));
    ExpectNoInventory();
}

TEST(HostileCatalogFile, BinaryGarbageFails)
{
    TempDir dir;
    const std::size_t before = PeakResidentBytes();
    std::size_t largest = 0;
    for (unsigned int seed = 1; seed <= 8; ++seed) {
        std::string bytes = Garbage(std::size_t(1) << (9 + seed), seed);
        largest = bytes.size();
        ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
        EXPECT_EQ(QRM_KIT_FAILURE, API()->Parse(VELFile(dir.Write("garbage.bin", bytes)))) << "seed " << seed;
        ExpectNoCatalog();
    }
    // Garbage behind a good start, and behind each of the byte-order marks.
    const std::string noise = Garbage(4096, 99);
    for (const std::string& start :
         {std::string("<?xml version=\"1.0\"?>\n<Manifest baseLocation=\"x\">"), std::string("\xEF\xBB\xBF"),
          std::string("\xFF\xFE"), std::string("\xFE\xFF"), std::string("<")}) {
        EXPECT_EQ(QRM_KIT_FAILURE, API()->Parse(VELFile(dir.Write("garbage.xml", start + noise))));
        ExpectNoCatalog();
    }
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(largest, 64));
    ExpectExampleUpdates();
}

TEST(HostileCatalogFile, InvalidUTF8InAnyFieldFailsTheWholeDocument)
{
    TempDir dir;
    std::vector<Labelled> documents;
    for (const TextField<CatalogTexts>& field : kCatalogFields) {
        for (const std::string& bytes : kInvalidUTF8) {
            documents.push_back(CatalogWith("", field.name, "a" + bytes + "z"));
        }
    }
    ExpectEachCatalogFailsAndEmptiesTheStore(dir, documents);
    ExpectExampleUpdates();
}

TEST(HostileCatalogFile, ValidNonASCIITextInTheSameFieldsIsReadAsWritten)
{
    TempDir dir;
    CatalogTexts texts;
    texts.baseLocation = kValidNonASCII;
    texts.releaseID = kValidNonASCII;
    texts.componentName = kValidNonASCII;
    texts.categoryText = kValidNonASCII;
    texts.vendorVersion = kValidNonASCII;
    texts.collectorPath = kValidNonASCII;
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("utf8.xml", Catalog(texts)))));
    const VELString text = VELString::FromUTF8(kValidNonASCII.data(), kValidNonASCII.size());
    ASSERT_EQ(6u, text.GetUTF16String().size());
    EXPECT_EQ(text, API()->GetBaseLocation());
    EXPECT_EQ(text, API()->GetCatalogReleaseID());
    ASSERT_EQ(1u, StoredComponents().size());
    const QRMSoftwareComponent& component = *StoredComponents().front();
    EXPECT_EQ(kValidNonASCII, FirstDisplayText(component.GetName()));
    EXPECT_EQ(text, component.GetVendorVersion());
    std::map<VELString, VELString> categories;
    API()->GetCategoryValues(categories);
    ASSERT_EQ(1u, categories.count(VELString("BI")));
    EXPECT_EQ(text, categories[VELString("BI")]);
    EXPECT_EQ(text + VELString("/") + text, API()->GetInventoryFile(QRM_OS_ARCH_X64, VELString("W22")));
    // A version that is not ASCII has no order.
    EXPECT_EQ(-2, API()->CompareVersion(component.GetVendorVersion(), VELString("1.0")));
    EXPECT_EQ(-2, API()->CompareVersion(VELString("1.0"), component.GetVendorVersion()));
    ExpectTheSmallCatalogGivesItsUpdate();
}

TEST(HostileCatalogFile, InvalidUTF8InAnElementOrAttributeNameFailsTheWholeDocument)
{
    TempDir dir;
    const std::string xml = Catalog(CatalogTexts());
    // An entry, a required child of an entry, the root, an attribute.
    std::string component = xml;
    component.replace(component.find("<SoftwareComponent "), 19,
                      "<Software\xFF"
                      "Component ");
    component.replace(component.find("</SoftwareComponent>"), 20,
                      "</Software\xFF"
                      "Component>");
    std::string category = xml;
    category.replace(category.find("<Category value"), 9, "<Cat\xC3gory");
    category.replace(category.find("</Category>"), 11, "</Cat\xC3gory>");
    std::string root = xml;
    root.replace(root.find("<Manifest "), 10,
                 "<Mani\xED\xA0\x80"
                 "fest ");
    root.replace(root.find("</Manifest>"), 11,
                 "</Mani\xED\xA0\x80"
                 "fest>");
    std::string attribute = xml;
    attribute.replace(attribute.find(" packageID=\"P1\"><Name>"), 11, " package\x80ID=");
    ExpectEachCatalogFailsAndEmptiesTheStore(
        dir, {{"component", component}, {"category", category}, {"root", root}, {"attribute", attribute}});
    ExpectExampleUpdates();
}

TEST(HostileCatalogFile, UTF16WithADanglingByteAfterTheDocumentIsReadWhole)
{
    TempDir dir;
    CatalogTexts texts;
    texts.declaration = "<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n";
    texts.baseLocation = "caf\xC3\xA9";
    for (const std::string& encoded : {ToUTF16LE(Catalog(texts)), ToUTF16BE(Catalog(texts))}) {
        const std::string odd = encoded + "x";
        ASSERT_EQ(1u, odd.size() % 2);
        ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("utf16.xml", odd))));
        EXPECT_EQ(VELString(std::u16string(u"caf\u00E9")), API()->GetBaseLocation());
        EXPECT_EQ(1u, StoredComponents().size());
        EXPECT_EQ(1u, StoredBundles().size());
    }
    ExpectTheSmallCatalogGivesItsUpdate();
}

TEST(HostileCatalogFile, UTF16CutToAnOddLengthFails)
{
    TempDir dir;
    CatalogTexts texts;
    texts.declaration = "<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n";
    for (const std::string& encoded : {ToUTF16LE(Catalog(texts)), ToUTF16BE(Catalog(texts))}) {
        // The last cut ends inside the root's end tag.
        for (std::size_t size : {std::size_t(1), std::size_t(3), encoded.size() / 2 + 1, encoded.size() - 5}) {
            std::string cut = encoded.substr(0, size | 1);
            ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
            EXPECT_EQ(QRM_KIT_FAILURE, API()->Parse(VELFile(dir.Write("cut.xml", cut)))) << cut.size();
            ExpectNoCatalog();
        }
    }
}

TEST(HostileCatalogFile, UTF16WithAByteSlippedInFails)
{
    TempDir dir;
    CatalogTexts texts;
    texts.declaration = "<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n";
    for (const std::string& encoded : {ToUTF16LE(Catalog(texts)), ToUTF16BE(Catalog(texts))}) {
        // Right after the byte-order mark, and in the middle: every code
        // unit after it is read from the wrong pair of bytes.
        for (std::size_t position : {std::size_t(2), encoded.size() / 2}) {
            std::string slipped = WithByte(encoded, position, '<');
            ASSERT_EQ(1u, slipped.size() % 2);
            EXPECT_EQ(QRM_KIT_FAILURE, API()->Parse(VELFile(dir.Write("slipped.xml", slipped)))) << position;
            ExpectNoCatalog();
        }
    }
}

TEST(HostileCatalogFile, NulBytesInTheDocumentFail)
{
    TempDir dir;
    const std::string xml = Catalog(CatalogTexts());
    const std::vector<std::size_t> positions = {
        0,                                    // first byte
        xml.find("?>") + 1,                   // inside the declaration
        xml.find("updates.example.net") + 7,  // inside an attribute value
        xml.find("<SoftwareComponent"),       // between two entries
        xml.find("Component</Display>") + 4,  // inside a text
        xml.find("<Name>") + 3,               // inside an element name
        xml.rfind("</Manifest>") + 5,         // inside the root's end tag
    };
    for (std::size_t position : positions) {
        ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(kExampleCatalog)));
        EXPECT_EQ(QRM_KIT_FAILURE, API()->Parse(VELFile(dir.Write("nul.xml", WithByte(xml, position, '\0')))))
            << "NUL at " << position;
        ExpectNoCatalog();
    }
    ExpectExampleUpdates();
}

TEST(HostileCatalogFile, AnythingAfterTheRootElementFailsTheDocument)
{
    // What follows the root element, behind a NUL byte or not, is not part
    // of the document: a file that holds it is no catalog.
    TempDir dir;
    const std::string xml = Catalog(CatalogTexts());
    const std::string more = "<SoftwareComponent path=\"x\"/><Manifest baseLocation=\"other\"/>";
    std::vector<Labelled> documents;
    for (const std::string& tail :
         {std::string(1, '\0'), std::string(1, '\0') + "\n", std::string(1, '\0') + more,
          std::string("\n") + '\0' + more, more, std::string("<Manifest baseLocation=\"other\"/>"),
          std::string("trailing text\n"), std::string("</Manifest>\n"), std::string("&amp;")}) {
        documents.push_back({"tail " + tail, xml + tail});
    }
    ExpectEachCatalogFailsAndEmptiesTheStore(dir, documents);
    ExpectExampleUpdates();
}

TEST(HostileCatalogFile, BlanksCommentsAndProcessingInstructionsAfterTheRootElementAreRead)
{
    TempDir dir;
    const std::string xml = Catalog(CatalogTexts()) + "\n<!-- after the root -->\n<?after the root?>\r\n\t \n";
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("tail.xml", xml))));
    EXPECT_EQ(VELString("updates.example.net"), API()->GetBaseLocation());
    EXPECT_EQ(1u, StoredComponents().size());
    EXPECT_EQ(1u, StoredBundles().size());
    ExpectTheSmallCatalogGivesItsUpdate();
}

TEST(HostileCatalogFile, UndefinedEntityReferencesFailTheDocument)
{
    TempDir dir;
    std::vector<Labelled> documents;
    for (const TextField<CatalogTexts>& field : kCatalogFields) {
        documents.push_back(CatalogWith("", field.name, "a&undefined;b"));
    }
    // Next to a predefined one, a name of HTML, predefined names in other
    // cases.
    for (const char* text : {"x &amp; &unknown; y", "&nbsp;", "&AMP;", "&Lt;"}) {
        documents.push_back(CatalogWith("", "categoryText", text));
    }
    ExpectEachCatalogFailsAndEmptiesTheStore(dir, documents);
    ExpectExampleUpdates();
}

TEST(HostileCatalogFile, PredefinedEntitiesAndCharacterReferencesAreReadAsTheirCharacters)
{
    TempDir dir;
    CatalogTexts texts;
    texts.baseLocation = "a&amp;b";
    texts.componentName = "&#x65E5;&#26412;";
    texts.categoryText = "x &amp; &lt;&gt;&apos;&quot; &#65;&#x42; y";
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("references.xml", Catalog(texts)))));
    EXPECT_EQ(VELString("a&b"), API()->GetBaseLocation());
    ASSERT_EQ(1u, StoredComponents().size());
    EXPECT_EQ("\xE6\x97\xA5\xE6\x9C\xAC", FirstDisplayText(StoredComponents().front()->GetName()));
    std::map<VELString, VELString> categories;
    API()->GetCategoryValues(categories);
    EXPECT_EQ(VELString("x & <>'\" AB y"), categories[VELString("BI")]);
    ExpectTheSmallCatalogGivesItsUpdate();
}

TEST(HostileCatalogFile, ExponentialEntityReferencesFailWithinBoundedMemory)
{
    TempDir dir;
    const std::string laughs = Laughs(false);
    CatalogTexts more;
    more.doctype = Laughs(true);
    const std::size_t before = PeakResidentBytes();
    const std::size_t largest =
        ExpectEachCatalogFailsAndEmptiesTheStore(dir, {CatalogWith(laughs, "baseLocation", "&lol9;"),
                                                       CatalogWith(laughs, "bundleName", "&lol9;&lol9;"),
                                                       CatalogWith(laughs, "componentName", "&boom;"),
                                                       CatalogWith(laughs, "categoryText", "&lol9;"),
                                                       CatalogWith(laughs, "vendorVersion", "&lol9;"),
                                                       // The parameter-entity reference in the declaration alone.
                                                       {"%more;", Catalog(more)}});
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(largest, 64));
    ExpectExampleUpdates();
}

TEST(HostileCatalogFile, ExponentialEntitiesDeclaredButNeverReferencedAreReadAndNeverExpanded)
{
    TempDir dir;
    CatalogTexts texts;
    texts.doctype = Laughs(false);
    const std::string xml = Catalog(texts);
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("laughs.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    EXPECT_EQ(VELString("updates.example.net"), API()->GetBaseLocation());
    ASSERT_EQ(1u, StoredBundles().size());
    EXPECT_EQ("Bundle", FirstDisplayText(StoredBundles().front()->GetName()));
    ASSERT_EQ(1u, StoredComponents().size());
    EXPECT_EQ("Component", FirstDisplayText(StoredComponents().front()->GetName()));
    EXPECT_EQ(VELString("2.4.1"), StoredComponents().front()->GetVendorVersion());
    EXPECT_LT(EveryStoredText().size(), 10000u);
    ExpectTheSmallCatalogGivesItsUpdate();
}

TEST(HostileCatalogFile, OneWideEntityReferencedManyTimesFailsWithinBoundedMemory)
{
    TempDir dir;
    // 2 * 10^9 characters if expanded.
    const std::size_t before = PeakResidentBytes();
    const std::size_t largest = ExpectEachCatalogFailsAndEmptiesTheStore(
        dir, {CatalogWith(WideEntity(), "baseLocation", Repeat("&wide;", 20000))});
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(largest, 64));
    ExpectExampleUpdates();
}

TEST(HostileCatalogFile, OneWideEntityDeclaredButNeverReferencedIsRead)
{
    TempDir dir;
    CatalogTexts texts;
    texts.doctype = WideEntity();
    const std::string xml = Catalog(texts);
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("wide.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    EXPECT_EQ(VELString("updates.example.net"), API()->GetBaseLocation());
    EXPECT_LT(EveryStoredText().size(), 10000u);
    ExpectTheSmallCatalogGivesItsUpdate();
}

TEST(HostileCatalogFile, ExternalEntityReferencesFailAndNeverReadTheFilesTheyName)
{
    TempDir dir;
    WriteSecrets(dir);
    const std::string external = ExternalEntities(dir, false);
    CatalogTexts remote;
    remote.doctype = ExternalEntities(dir, true);
    ExpectEachCatalogFailsAndEmptiesTheStore(dir, {CatalogWith(external, "baseLocation", "&file;"),
                                                   CatalogWith(external, "releaseID", "&rel;"),
                                                   CatalogWith(external, "version", "&leak;"),
                                                   CatalogWith(external, "bundleName", "&pub;"),
                                                   CatalogWith(external, "componentName", "&file;&rel;&leak;&pub;"),
                                                   CatalogWith(external, "categoryText", "&file;"),
                                                   CatalogWith(external, "vendorVersion", "&leak;"),
                                                   CatalogWith(external, "componentPath", "dir/&rel;"),
                                                   CatalogWith(external, "collectorPath", "&file;"),
                                                   // The parameter-entity reference in the declaration alone.
                                                   {"%remote;", Catalog(remote)}});
    const std::string stored = EveryStoredText();
    EXPECT_EQ(std::string::npos, stored.find(kSecret)) << stored;
    ExpectExampleUpdates();
}

TEST(HostileCatalogFile, ExternalEntitiesDeclaredButNeverReferencedAreReadAndTheFilesNeverRead)
{
    TempDir dir;
    WriteSecrets(dir);
    CatalogTexts texts;
    texts.doctype = ExternalEntities(dir, false);
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("external.xml", Catalog(texts)))));
    const std::string stored = EveryStoredText();
    EXPECT_EQ(std::string::npos, stored.find(kSecret)) << stored;
    EXPECT_EQ(VELString("updates.example.net"), API()->GetBaseLocation());
    EXPECT_EQ(VELString("R1"), API()->GetCatalogReleaseID());
    EXPECT_EQ(VELString("1.0"), API()->GetCatalogVersion());
    ASSERT_EQ(1u, StoredComponents().size());
    EXPECT_EQ("Component", FirstDisplayText(StoredComponents().front()->GetName()));
    EXPECT_EQ(VELString("updates.example.net/collectors/w22.exe"),
              API()->GetInventoryFile(QRM_OS_ARCH_X64, VELString("W22")));
    ExpectTheSmallCatalogGivesItsUpdate();
}

TEST(HostileCatalogFile, XIncludeElementIsReadAsAPlainElementAndNeverPullsTheFileIn)
{
    TempDir dir;
    WriteSecrets(dir);
    std::string xml = Catalog(CatalogTexts());
    // Among the entries, and inside a text that the catalog stores.
    xml.insert(xml.find("</Manifest>"), kInclude);
    xml.insert(xml.find("BIOS</Display></Category>"), kInclude);
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->Parse(VELFile(dir.Write("include.xml", xml))));
    const std::string stored = EveryStoredText();
    EXPECT_EQ(std::string::npos, stored.find(kSecret)) << stored;
    EXPECT_EQ(1u, StoredBundles().size());
    ASSERT_EQ(1u, StoredComponents().size());
    // A category's text is the first child node of its Display: here the
    // name of the inclusion element, not the text of the file it names.
    std::map<VELString, VELString> categories;
    API()->GetCategoryValues(categories);
    EXPECT_EQ(VELString("xi:include"), categories[VELString("BI")]);
    std::vector<QRMInventoryComponent> collectors;
    API()->GetInventoryComponents(collectors);
    ASSERT_EQ(1u, collectors.size());
    EXPECT_EQ(VELString("collectors/w22.exe"), collectors[0].GetPath());
    ExpectTheSmallCatalogGivesItsUpdate();
}

// -------------------------------------------------------------- inventory

TEST(HostileInventoryFile, EmptyFileFails)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_FAILURE, API()->ParseInventory(VELFile(dir.Write("empty.xml", ""))));
    ExpectNoInventory();
    ExpectExampleUpdates();
}

TEST(HostileInventoryFile, DeclarationWithoutRootFails)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_FAILURE,
              API()->ParseInventory(VELFile(dir.Write("noroot.xml", "<?xml version=\"1.0\"?>\n  \n"))));
    ExpectNoInventory();
}

TEST(HostileInventoryFile, DirectoryIsNotFound)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->ParseInventory(VELFile(dir.Path())));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->ParseInventory(VELFile(dir.Path() + "/")));
    ExpectNoInventory();
    ExpectExampleUpdates();
}

TEST(HostileInventoryFile, MissingFileIsNotFound)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->ParseInventory(VELFile(dir.PathOf("absent.xml"))));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->ParseInventory(VELFile("")));
    std::string file = dir.Write("file.xml", Inventory(InventoryTexts()));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->ParseInventory(VELFile(file + "/inventory.xml")));
    ASSERT_EQ(0, ::symlink(dir.PathOf("nowhere.xml").c_str(), dir.PathOf("dangling.xml").c_str()));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->ParseInventory(VELFile(dir.PathOf("dangling.xml"))));
    ExpectNoInventory();
    ExpectExampleUpdates();
}

TEST(HostileInventoryFile, SpecialFilesAreNotFoundAndNeverRead)
{
    TempDir dir;
    ASSERT_EQ(0, ::mkfifo(dir.PathOf("pipe.xml").c_str(), 0600));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->ParseInventory(VELFile(dir.PathOf("pipe.xml"))));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->ParseInventory(VELFile("/dev/zero")));
    EXPECT_EQ(QRM_KIT_NOT_FOUND, API()->ParseInventory(VELFile("/dev/null")));
    ExpectNoInventory();
}

TEST(HostileInventoryFile, BinaryGarbageFails)
{
    TempDir dir;
    const std::size_t before = PeakResidentBytes();
    std::size_t largest = 0;
    for (unsigned int seed = 11; seed <= 18; ++seed) {
        std::string bytes = Garbage(std::size_t(1) << (seed - 1), seed);
        largest = bytes.size();
        EXPECT_EQ(QRM_KIT_FAILURE, API()->ParseInventory(VELFile(dir.Write("garbage.bin", bytes)))) << seed;
    }
    const std::string noise = Garbage(4096, 7);
    EXPECT_EQ(QRM_KIT_FAILURE,
              API()->ParseInventory(VELFile(dir.Write("garbage.xml", "<SVMInventory lang=\"en\">" + noise))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(largest, 64));
    ExpectNoInventory();
    ExpectExampleUpdates();
}

TEST(HostileInventoryFile, InvalidUTF8InAnyFieldOrElementNameFailsTheWholeDocument)
{
    TempDir dir;
    std::vector<Labelled> documents;
    for (const TextField<InventoryTexts>& field : kInventoryFields) {
        for (const std::string& bytes : kInvalidUTF8) {
            documents.push_back(InventoryWith("", field.name, "a" + bytes + "z"));
        }
    }
    // In the language code, between its two letters.
    documents.push_back(InventoryWith("", "lang", "e\xFFn"));
    std::string element = Inventory(InventoryTexts());
    element.replace(element.find("<Device "), 8,
                    "<Dev\xC3"
                    "ce ");
    element.replace(element.find("</Device>"), 9,
                    "</Dev\xC3"
                    "ce>");
    documents.push_back({"element name", element});
    ExpectEachInventoryFailsAndStoresNothing(dir, documents);
}

TEST(HostileInventoryFile, ValidNonASCIITextInTheSameFieldsIsReadAsWritten)
{
    TempDir dir;
    InventoryTexts texts;
    texts.schemaVersion = kValidNonASCII;
    texts.osVendor = kValidNonASCII;
    texts.systemDisplay = kValidNonASCII;
    texts.deviceDisplay = kValidNonASCII;
    texts.applicationVersion = kValidNonASCII;
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("utf8.xml", Inventory(texts)))));
    const VELString text = VELString::FromUTF8(kValidNonASCII.data(), kValidNonASCII.size());
    ASSERT_EQ(6u, text.GetUTF16String().size());
    EXPECT_EQ(QRM_LANG_EN, API()->GetInventoryLanguage());
    EXPECT_EQ(text, API()->GetInventorySchemaVersion());
    std::vector<QRMOperatingSystem> oses;
    API()->GetInventoryOperatingSystems(oses);
    ASSERT_EQ(1u, oses.size());
    EXPECT_EQ(text, oses[0].GetVendor());
    std::vector<QRMISystem> systems;
    API()->GetInventorySystems(systems);
    ASSERT_EQ(1u, systems.size());
    EXPECT_EQ(text, systems[0].GetDisplay());
    EXPECT_EQ(0x0A6Bu, API()->GetSystemIDFromInventory());
    ASSERT_EQ(1u, StoredDevices().size());
    EXPECT_EQ(text, StoredDevices()[0]->GetDisplay());
    ASSERT_EQ(1u, ApplicationsOf(*StoredDevices()[0]).size());
    const VELString version = ApplicationsOf(*StoredDevices()[0])[0]->GetVersion();
    EXPECT_EQ(text, version);
    // A version that is not ASCII has no order.
    EXPECT_EQ(-2, API()->CompareVersion(version, VELString("2.4.1")));
    ExpectTheSmallInventoryGetsItsUpdate();
}

TEST(HostileInventoryFile, UTF16WithADanglingByteAfterTheDocumentIsReadWhole)
{
    TempDir dir;
    InventoryTexts texts;
    texts.declaration = "<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n";
    texts.deviceDisplay = "\xE6\x97\xA5\xE6\x9C\xAC";
    const std::string odd = ToUTF16BE(Inventory(texts)) + "x";
    ASSERT_EQ(1u, odd.size() % 2);
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("utf16.xml", odd))));
    ASSERT_EQ(1u, StoredDevices().size());
    EXPECT_EQ(VELString(std::u16string(u"\u65E5\u672C")), StoredDevices()[0]->GetDisplay());
    ExpectTheSmallInventoryGetsItsUpdate();
}

TEST(HostileInventoryFile, UTF16CutToAnOddLengthFails)
{
    TempDir dir;
    InventoryTexts texts;
    texts.declaration = "<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n";
    for (const std::string& encoded : {ToUTF16LE(Inventory(texts)), ToUTF16BE(Inventory(texts))}) {
        for (std::size_t size : {std::size_t(1), encoded.size() / 3, encoded.size() - 5}) {
            std::string cut = encoded.substr(0, size | 1);
            EXPECT_EQ(QRM_KIT_FAILURE, API()->ParseInventory(VELFile(dir.Write("cut.xml", cut)))) << cut.size();
        }
        std::string slipped = WithByte(encoded, 2, 'x');
        EXPECT_EQ(QRM_KIT_FAILURE, API()->ParseInventory(VELFile(dir.Write("slipped.xml", slipped))));
    }
    ExpectNoInventory();
    ExpectExampleUpdates();
}

TEST(HostileInventoryFile, NulBytesInTheDocumentFail)
{
    TempDir dir;
    const std::string xml = Inventory(InventoryTexts());
    const std::vector<std::size_t> positions = {
        0,
        xml.find("lang=\"en\"") + 7,
        xml.find("<Device"),
        xml.find("version=\"2.3.9\"") + 10,
        xml.find("Server OS") + 6,
        xml.rfind("</SVMInventory>") + 3,
    };
    for (std::size_t position : positions) {
        EXPECT_EQ(QRM_KIT_FAILURE, API()->ParseInventory(VELFile(dir.Write("nul.xml", WithByte(xml, position, '\0')))))
            << "NUL at " << position;
    }
    ExpectNoInventory();
    ExpectExampleUpdates();
}

TEST(HostileInventoryFile, AnythingAfterTheRootElementFailsTheDocument)
{
    TempDir dir;
    const std::string xml = Inventory(InventoryTexts());
    const std::string more = "<Device componentID=\"1\" display=\"Injected\"/><System systemID=\"1\"/>";
    std::vector<Labelled> documents;
    for (const std::string& tail : {std::string(1, '\0'), std::string(1, '\0') + more, more,
                                    std::string("<SVMInventory lang=\"fr\"/>"), std::string("trailing text\n")}) {
        documents.push_back({"tail " + tail, xml + tail});
    }
    ExpectEachInventoryFailsAndStoresNothing(dir, documents);
}

TEST(HostileInventoryFile, BlanksCommentsAndProcessingInstructionsAfterTheRootElementAreRead)
{
    TempDir dir;
    const std::string xml = Inventory(InventoryTexts()) + "\n<!-- after the root -->\n<?after the root?>\r\n\t \n";
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("tail.xml", xml))));
    EXPECT_EQ(0x0A6Bu, API()->GetSystemIDFromInventory());
    ASSERT_EQ(1u, StoredDevices().size());
    EXPECT_EQ(VELString("BIOS"), StoredDevices()[0]->GetDisplay());
    ExpectTheSmallInventoryGetsItsUpdate();
}

TEST(HostileInventoryFile, UndefinedEntityReferencesFailTheDocument)
{
    TempDir dir;
    std::vector<Labelled> documents;
    for (const TextField<InventoryTexts>& field : kInventoryFields) {
        documents.push_back(InventoryWith("", field.name, "a&undefined;b"));
    }
    documents.push_back(InventoryWith("", "lang", "&lang;"));
    documents.push_back(InventoryWith("", "applicationVersion", "2 . &minor; .9"));
    ExpectEachInventoryFailsAndStoresNothing(dir, documents);
}

TEST(HostileInventoryFile, ExponentialEntityReferencesFailWithinBoundedMemory)
{
    TempDir dir;
    const std::string laughs = Laughs(false);
    InventoryTexts more;
    more.doctype = Laughs(true);
    const std::size_t before = PeakResidentBytes();
    const std::size_t largest =
        ExpectEachInventoryFailsAndStoresNothing(dir, {InventoryWith(laughs, "lang", "&lol9;"),
                                                       InventoryWith(laughs, "deviceDisplay", "&lol9;"),
                                                       InventoryWith(laughs, "applicationVersion", "&boom;"),
                                                       InventoryWith(laughs, "osDisplay", "&lol9;&lol9;"),
                                                       // The parameter-entity reference in the declaration alone.
                                                       {"%more;", Inventory(more)}});
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(largest, 64));
}

TEST(HostileInventoryFile, ExponentialEntitiesDeclaredButNeverReferencedAreReadAndNeverExpanded)
{
    TempDir dir;
    InventoryTexts texts;
    texts.doctype = Laughs(false);
    const std::string xml = Inventory(texts);
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("laughs.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    EXPECT_EQ(QRM_LANG_EN, API()->GetInventoryLanguage());
    ASSERT_EQ(1u, StoredDevices().size());
    EXPECT_EQ(VELString("BIOS"), StoredDevices()[0]->GetDisplay());
    ASSERT_EQ(1u, ApplicationsOf(*StoredDevices()[0]).size());
    EXPECT_EQ(VELString("2.3.9"), ApplicationsOf(*StoredDevices()[0])[0]->GetVersion());
    EXPECT_LT(EveryStoredText().size(), 10000u);
    ExpectTheSmallInventoryGetsItsUpdate();
}

TEST(HostileInventoryFile, OneWideEntityReferencedManyTimesFailsWithinBoundedMemory)
{
    TempDir dir;
    // 2 * 10^9 characters if expanded.
    const std::size_t before = PeakResidentBytes();
    const std::size_t largest = ExpectEachInventoryFailsAndStoresNothing(
        dir, {InventoryWith(WideEntity(), "applicationVersion", Repeat("&wide; ", 20000))});
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(largest, 64));
}

TEST(HostileInventoryFile, OneWideEntityDeclaredButNeverReferencedIsRead)
{
    TempDir dir;
    InventoryTexts texts;
    texts.doctype = WideEntity();
    const std::string xml = Inventory(texts);
    const std::size_t before = PeakResidentBytes();
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("wide.xml", xml))));
    EXPECT_LT(PeakResidentBytes(), before + MemoryAllowance(xml.size(), 64));
    ASSERT_EQ(1u, StoredDevices().size());
    ASSERT_EQ(1u, ApplicationsOf(*StoredDevices()[0]).size());
    EXPECT_EQ(VELString("2.3.9"), ApplicationsOf(*StoredDevices()[0])[0]->GetVersion());
    EXPECT_LT(EveryStoredText().size(), 10000u);
    ExpectTheSmallInventoryGetsItsUpdate();
}

TEST(HostileInventoryFile, ExternalEntityReferencesFailAndNeverReadTheFilesTheyName)
{
    TempDir dir;
    WriteSecrets(dir);
    const std::string external = ExternalEntities(dir, false);
    InventoryTexts remote;
    remote.doctype = ExternalEntities(dir, true);
    ExpectEachInventoryFailsAndStoresNothing(dir, {InventoryWith(external, "schemaVersion", "&file;"),
                                                   InventoryWith(external, "osVendor", "&file;"),
                                                   InventoryWith(external, "osDisplay", "&rel;"),
                                                   InventoryWith(external, "systemDisplay", "&leak;"),
                                                   InventoryWith(external, "deviceDisplay", "&file;"),
                                                   InventoryWith(external, "applicationVersion", "&rel;"),
                                                   InventoryWith(external, "applicationDisplay", "&pub;"),
                                                   // The parameter-entity reference in the declaration alone.
                                                   {"%remote;", Inventory(remote)}});
    const std::string stored = EveryStoredText();
    EXPECT_EQ(std::string::npos, stored.find(kSecret)) << stored;
}

TEST(HostileInventoryFile, ExternalEntitiesDeclaredButNeverReferencedAreReadAndTheFilesNeverRead)
{
    TempDir dir;
    WriteSecrets(dir);
    InventoryTexts texts;
    texts.doctype = ExternalEntities(dir, false);
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("external.xml", Inventory(texts)))));
    const std::string stored = EveryStoredText();
    EXPECT_EQ(std::string::npos, stored.find(kSecret)) << stored;
    EXPECT_EQ(VELString("1.0"), API()->GetInventorySchemaVersion());
    ASSERT_EQ(1u, StoredDevices().size());
    EXPECT_EQ(VELString("BIOS"), StoredDevices()[0]->GetDisplay());
    ASSERT_EQ(1u, ApplicationsOf(*StoredDevices()[0]).size());
    EXPECT_EQ(VELString("2.3.9"), ApplicationsOf(*StoredDevices()[0])[0]->GetVersion());
    ExpectTheSmallInventoryGetsItsUpdate();
}

TEST(HostileInventoryFile, XIncludeElementIsReadAsAPlainElementAndNeverPullsTheFileIn)
{
    TempDir dir;
    WriteSecrets(dir);
    std::string xml = Inventory(InventoryTexts());
    // Among a device's applications, and inside a text the inventory stores.
    xml.insert(xml.find("</Device>"), kInclude);
    xml.insert(xml.find("Server OS</Display>"), kInclude);
    ASSERT_EQ(QRM_KIT_SUCCESS, API()->ParseInventory(VELFile(dir.Write("include.xml", xml))));
    const std::string stored = EveryStoredText();
    EXPECT_EQ(std::string::npos, stored.find(kSecret)) << stored;
    std::vector<QRMOperatingSystem> oses;
    API()->GetInventoryOperatingSystems(oses);
    ASSERT_EQ(1u, oses.size());
    EXPECT_EQ("en=Server OS\n", DisplayTexts(oses[0]));
    ASSERT_EQ(1u, StoredDevices().size());
    ASSERT_EQ(1u, ApplicationsOf(*StoredDevices()[0]).size());
    EXPECT_EQ(VELString("2.3.9"), ApplicationsOf(*StoredDevices()[0])[0]->GetVersion());
    ExpectTheSmallInventoryGetsItsUpdate();
}
