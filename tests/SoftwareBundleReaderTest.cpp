// Reading "SoftwareBundle" entries of a catalog into the catalog store:
// the required and optional children, the bundle's own attributes, and
// which faults drop one bundle and which abort the whole catalog.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

QRMKitAPI* API() { return QRMKitAPI::Instance(); }

std::string S(const VELString& text) { return text.GetUTF8String(); }

// The texts of a display-carrying object as "language|value", in order.
template <class Holder>
std::vector<std::string> Texts(const Holder& holder)
{
    std::vector<QRMDisplay> displays;
    holder.GetDisplayValues(displays);
    std::vector<std::string> texts;
    for (const QRMDisplay& display : displays) {
        texts.push_back(S(display.GetLanguage()) + "|" + S(display.GetValue()));
    }
    return texts;
}

std::vector<std::string> DescriptionTexts(const QRMSoftwareBundle& bundle)
{
    std::vector<QRMDisplay> displays;
    bundle.GetDescriptionDisplayValues(displays);
    std::vector<std::string> texts;
    for (const QRMDisplay& display : displays) {
        texts.push_back(S(display.GetLanguage()) + "|" + S(display.GetValue()));
    }
    return texts;
}

QRMKitReturnCode ParseEntries(const TempDir& dir, const std::string& entries)
{
    std::string xml = CatalogXML::Document("baseLocation=\"downloads/catalog\"", entries);
    return API()->Parse(VELFile(dir.Write("catalog.xml", xml)));
}

std::vector<std::string> BundleIDs()
{
    std::vector<std::string> ids;
    for (const QRMSoftwareBundle* bundle : StoredBundles()) {
        ids.push_back(S(bundle->GetBundleID()));
    }
    return ids;
}

const std::string kName = "<Name><Display lang=\"en\">Server Bundle</Display></Name>";
const std::string kType = "<ComponentType value=\"SBDL\"/>";
const std::string kContents = "<Contents/>";

std::string BundleXML(const std::string& attributes, const std::string& children)
{
    return "<SoftwareBundle" + (attributes.empty() ? std::string() : " " + attributes) + ">" + children +
           "</SoftwareBundle>";
}

// A bundle with the three required children and `extra` between the
// component type and the contents.
std::string BundleWith(const std::string& extra, const std::string& attributes = "")
{
    return BundleXML(attributes, kName + kType + extra + kContents);
}

// Parses a catalog holding only `bundleXML`, which must be read whole.
bool ParseSingleBundle(const TempDir& dir, const std::string& bundleXML, QRMSoftwareBundle& out)
{
    QRMKitReturnCode result = ParseEntries(dir, bundleXML);
    if (result != QRM_KIT_SUCCESS) {
        ADD_FAILURE() << "Parse returned " << result;
        return false;
    }
    std::vector<QRMSoftwareBundle*> bundles = StoredBundles();
    if (bundles.size() != 1) {
        ADD_FAILURE() << "expected one bundle, found " << bundles.size();
        return false;
    }
    out = *bundles[0];
    return true;
}

std::vector<QRMBrand*> BrandsOf(const QRMSupportedSystems& systems)
{
    std::vector<QRMBrand*> brands;
    systems.GetBrands(brands);
    return brands;
}

std::vector<QRMOperatingSystem> OSesOf(const QRMSupportedOperatingSystems& oses)
{
    std::vector<QRMOperatingSystem> list;
    oses.GetOSes(list);
    return list;
}

std::vector<QRMBundleContent> ContentsOf(const QRMSoftwareBundle& bundle)
{
    std::vector<QRMBundleContent> contents;
    bundle.GetContents(contents);
    return contents;
}

std::vector<unsigned int> SystemIDsOf(const QRMSoftwareBundle& bundle)
{
    std::vector<unsigned int> ids;
    bundle.GetSupportedSystemIDs(ids);
    return ids;
}

// A catalog of three bundles whose middle one is written by `middle`.
QRMKitReturnCode ParseAroundMiddle(const TempDir& dir, const std::string& middle)
{
    return ParseEntries(dir, CatalogXML::Bundle("B1") + middle + CatalogXML::Bundle("B3"));
}

void ExpectAbortAfterFirstBundle(const std::string& leaveOut, const std::string& twice)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_ELEMENT_MISSING, ParseAroundMiddle(dir, CatalogXML::Bundle("B2", leaveOut, twice)));
    EXPECT_EQ(std::vector<std::string>{"B1"}, BundleIDs());
    EXPECT_FALSE(API()->IsCatalogParsed());
}

void ExpectMiddleBundleSkipped(const std::string& middle)
{
    TempDir dir;
    EXPECT_EQ(QRM_KIT_SUCCESS, ParseAroundMiddle(dir, middle));
    EXPECT_EQ((std::vector<std::string>{"B1", "B3"}), BundleIDs());
    EXPECT_TRUE(API()->IsCatalogParsed());
}

}  // namespace

// --- The smallest bundle --------------------------------------------------

TEST(SoftwareBundleReader, BundleWithOnlyRequiredChildrenIsAddedWithEmptyParts)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    ASSERT_TRUE(ParseSingleBundle(dir, BundleXML("", kName + kType + kContents), bundle));
    EXPECT_TRUE(API()->IsCatalogParsed());

    EXPECT_EQ(std::vector<std::string>{"en|Server Bundle"}, Texts(bundle.GetName()));
    EXPECT_EQ(QRM_COMPONENT_SBDL, bundle.GetComponentType().GetValue());
    EXPECT_TRUE(Texts(bundle.GetComponentType()).empty());
    EXPECT_TRUE(DescriptionTexts(bundle).empty());
    EXPECT_TRUE(BrandsOf(bundle.GetTargetSystems()).empty());
    EXPECT_FALSE(bundle.GetTargetSystems().GetDisplay());
    EXPECT_TRUE(OSesOf(bundle.GetTargetOSes()).empty());
    EXPECT_TRUE(Texts(bundle.GetRevisionHistory()).empty());
    EXPECT_EQ("", S(bundle.GetImportantInfo().GetURL()));
    EXPECT_TRUE(ContentsOf(bundle).empty());
    EXPECT_TRUE(SystemIDsOf(bundle).empty());

    EXPECT_EQ("", S(bundle.GetSchemaVersion()));
    EXPECT_EQ("", S(bundle.GetReleaseID()));
    EXPECT_EQ(0u, bundle.GetDateTime().GetValue());
    EXPECT_EQ("", S(bundle.GetVendorVersion()));
    EXPECT_EQ("", S(bundle.GetPath()));
    EXPECT_EQ("", S(bundle.GetBundleID()));
    EXPECT_EQ(QRM_BUNDLE_BTW32, bundle.GetBundleType());
    EXPECT_TRUE(bundle.GetIdentifier().IsNil());
    EXPECT_TRUE(bundle.GetSecondaryIdentifier().IsNil());
}

TEST(SoftwareBundleReader, NameTextAndLanguageComeFromItsDisplay)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string name = "<Name><Display lang=\"de\">Systempaket</Display></Name>";
    ASSERT_TRUE(ParseSingleBundle(dir, BundleXML("", name + kType + kContents), bundle));
    EXPECT_EQ(std::vector<std::string>{"de|Systempaket"}, Texts(bundle.GetName()));
}

// --- Target systems -----------------------------------------------------

TEST(SoftwareBundleReader, SystemIDIsReadAsHexadecimal)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string systems =
        "<TargetSystems><Brand key=\"3\" prefix=\"PE\"><Model systemID=\"04A3\"/></Brand></TargetSystems>";
    ASSERT_TRUE(ParseSingleBundle(dir, BundleWith(systems), bundle));
    EXPECT_EQ(std::vector<unsigned int>{1187u}, SystemIDsOf(bundle));
}

TEST(SoftwareBundleReader, BrandKeyPrefixAndTextsAndModelTextsAreRead)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string systems = "<TargetSystems><Brand key=\"1234\" prefix=\"PE\"><Display lang=\"en\">Servers</Display>"
                          "<Model systemID=\"0A1F\"><Display lang=\"en\">Model 740</Display></Model></Brand>"
                          "</TargetSystems>";
    ASSERT_TRUE(ParseSingleBundle(dir, BundleWith(systems), bundle));
    QRMSupportedSystems targets = bundle.GetTargetSystems();
    std::vector<QRMBrand*> brands = BrandsOf(targets);
    ASSERT_EQ(1u, brands.size());
    EXPECT_EQ(1234u, brands[0]->GetKey());  // decimal, not 0x1234
    EXPECT_EQ("PE", S(brands[0]->GetPrefix()));
    EXPECT_EQ(std::vector<std::string>{"en|Servers"}, Texts(*brands[0]));
    std::vector<QRMModel*> models;
    brands[0]->GetModels(models);
    ASSERT_EQ(1u, models.size());
    EXPECT_EQ(0x0A1Fu, models[0]->GetSystemID());
    EXPECT_EQ(std::vector<std::string>{"en|Model 740"}, Texts(*models[0]));
}

TEST(SoftwareBundleReader, BrandWithoutAttributesOrChildrenHasZeroKeyEmptyPrefixNoModel)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    ASSERT_TRUE(ParseSingleBundle(dir, BundleWith("<TargetSystems><Brand/></TargetSystems>"), bundle));
    QRMSupportedSystems targets = bundle.GetTargetSystems();
    std::vector<QRMBrand*> brands = BrandsOf(targets);
    ASSERT_EQ(1u, brands.size());
    EXPECT_EQ(0u, brands[0]->GetKey());
    EXPECT_EQ("", S(brands[0]->GetPrefix()));
    EXPECT_TRUE(Texts(*brands[0]).empty());
    std::vector<QRMModel*> models;
    brands[0]->GetModels(models);
    EXPECT_TRUE(models.empty());
    EXPECT_TRUE(SystemIDsOf(bundle).empty());
}

TEST(SoftwareBundleReader, ModelWithoutSystemIDHasSystemIDZero)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string systems = "<TargetSystems><Brand key=\"3\"><Model/></Brand></TargetSystems>";
    ASSERT_TRUE(ParseSingleBundle(dir, BundleWith(systems), bundle));
    EXPECT_EQ(std::vector<unsigned int>{0u}, SystemIDsOf(bundle));
}

TEST(SoftwareBundleReader, TwoBrandsInTargetSystemsLeaveNoBrand)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string systems = "<TargetSystems><Brand key=\"3\" prefix=\"PE\"><Model systemID=\"04A3\"/></Brand>"
                          "<Brand key=\"4\" prefix=\"PX\"><Model systemID=\"0500\"/></Brand></TargetSystems>";
    ASSERT_TRUE(ParseSingleBundle(dir, BundleWith(systems), bundle));
    EXPECT_TRUE(BrandsOf(bundle.GetTargetSystems()).empty());
    EXPECT_TRUE(SystemIDsOf(bundle).empty());
}

TEST(SoftwareBundleReader, TwoModelsInABrandLeaveTheBrandWithoutModel)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string systems = "<TargetSystems><Brand key=\"3\" prefix=\"PE\"><Model systemID=\"04A3\"/>"
                          "<Model systemID=\"04A4\"/></Brand></TargetSystems>";
    ASSERT_TRUE(ParseSingleBundle(dir, BundleWith(systems), bundle));
    QRMSupportedSystems targets = bundle.GetTargetSystems();
    std::vector<QRMBrand*> brands = BrandsOf(targets);
    ASSERT_EQ(1u, brands.size());
    EXPECT_EQ(3u, brands[0]->GetKey());
    EXPECT_TRUE(SystemIDsOf(bundle).empty());
}

TEST(SoftwareBundleReader, TwoTargetSystemsElementsCountAsNone)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string systems = "<TargetSystems><Brand key=\"3\"><Model systemID=\"04A3\"/></Brand></TargetSystems>";
    ASSERT_TRUE(ParseSingleBundle(dir, BundleWith(systems + systems), bundle));
    EXPECT_TRUE(BrandsOf(bundle.GetTargetSystems()).empty());
}

// --- Component type ---------------------------------------------------------

TEST(SoftwareBundleReader, ComponentTypeDisplayWithoutLangTakesTheNameLanguage)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string children = "<Name><Display lang=\"fr\">Paquet</Display></Name>"
                           "<ComponentType value=\"BIOS\"><Display>Micrologiciel</Display></ComponentType>" +
                           kContents;
    ASSERT_TRUE(ParseSingleBundle(dir, BundleXML("", children), bundle));
    EXPECT_EQ(QRM_COMPONENT_BIOS, bundle.GetComponentType().GetValue());
    EXPECT_EQ(std::vector<std::string>{"fr|Micrologiciel"}, Texts(bundle.GetComponentType()));
}

TEST(SoftwareBundleReader, ComponentTypeDisplayWithLangKeepsItsOwnLanguage)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string children = "<Name><Display lang=\"fr\">Paquet</Display></Name>"
                           "<ComponentType value=\"FRMW\"><Display lang=\"en\">Firmware</Display></ComponentType>" +
                           kContents;
    ASSERT_TRUE(ParseSingleBundle(dir, BundleXML("", children), bundle));
    EXPECT_EQ(QRM_COMPONENT_FRMW, bundle.GetComponentType().GetValue());
    EXPECT_EQ(std::vector<std::string>{"en|Firmware"}, Texts(bundle.GetComponentType()));
}

TEST(SoftwareBundleReader, ComponentTypeTextsMapToTheirCodes)
{
    TempDir dir;
    const char* texts[] = {"SBDL", "FRMW", "BIOS", "APAC", "APP", "DRVR"};
    std::string entries;
    for (const char* text : texts) {
        entries += BundleXML(std::string("bundleID=\"") + text + "\"",
                             kName + "<ComponentType value=\"" + text + "\"/>" + kContents);
    }
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, entries));
    std::vector<QRMSoftwareBundle*> bundles = StoredBundles();
    ASSERT_EQ(6u, bundles.size());
    const QRMComponentTypeValueEnum expected[] = {QRM_COMPONENT_SBDL, QRM_COMPONENT_FRMW, QRM_COMPONENT_BIOS,
                                                  QRM_COMPONENT_APAC, QRM_COMPONENT_APP,  QRM_COMPONENT_DRVR};
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(texts[i], S(bundles[i]->GetBundleID()));
        EXPECT_EQ(expected[i], bundles[i]->GetComponentType().GetValue()) << texts[i];
    }
}

TEST(SoftwareBundleReader, UnknownComponentTypeTextGivesZero)
{
    TempDir dir;
    const char* texts[] = {"Bogus", "bios", "DRVR ", ""};
    std::string entries;
    for (const char* text : texts) {
        entries += BundleXML("", kName + "<ComponentType value=\"" + text + "\"/>" + kContents);
    }
    entries += BundleXML("", kName + "<ComponentType/>" + kContents);
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, entries));
    std::vector<QRMSoftwareBundle*> bundles = StoredBundles();
    ASSERT_EQ(5u, bundles.size());
    for (const QRMSoftwareBundle* bundle : bundles) {
        EXPECT_EQ(0, static_cast<int>(bundle->GetComponentType().GetValue()));
    }
}

// --- Description, operating systems, revision history, important info ----

TEST(SoftwareBundleReader, DescriptionDisplayGoesToTheDescriptionTexts)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string description = "<Description><Display lang=\"en\">All updates</Display></Description>";
    ASSERT_TRUE(ParseSingleBundle(dir, BundleWith(description), bundle));
    EXPECT_EQ(std::vector<std::string>{"en|All updates"}, DescriptionTexts(bundle));
}

TEST(SoftwareBundleReader, TwoDescriptionsCountAsNone)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string description = "<Description><Display lang=\"en\">All updates</Display></Description>";
    ASSERT_TRUE(ParseSingleBundle(dir, BundleWith(description + description), bundle));
    EXPECT_TRUE(DescriptionTexts(bundle).empty());
}

TEST(SoftwareBundleReader, TargetOperatingSystemCodeVendorAndTextsAreRead)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string oses = "<TargetOSes><OperatingSystem osCode=\"W12\" osVendor=\"ExampleSoft\">"
                       "<Display lang=\"en\">Server OS 12</Display></OperatingSystem></TargetOSes>";
    ASSERT_TRUE(ParseSingleBundle(dir, BundleWith(oses), bundle));
    std::vector<QRMOperatingSystem> list = OSesOf(bundle.GetTargetOSes());
    ASSERT_EQ(1u, list.size());
    EXPECT_EQ("W12", S(list[0].GetCode()));
    EXPECT_EQ("ExampleSoft", S(list[0].GetVendor()));
    EXPECT_EQ(std::vector<std::string>{"en|Server OS 12"}, Texts(list[0]));
    EXPECT_EQ("", S(list[0].GetMajorVersion()));
}

TEST(SoftwareBundleReader, TargetOperatingSystemWithoutAttributesHasEmptyTexts)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    ASSERT_TRUE(ParseSingleBundle(dir, BundleWith("<TargetOSes><OperatingSystem/></TargetOSes>"), bundle));
    std::vector<QRMOperatingSystem> list = OSesOf(bundle.GetTargetOSes());
    ASSERT_EQ(1u, list.size());
    EXPECT_EQ("", S(list[0].GetCode()));
    EXPECT_EQ("", S(list[0].GetVendor()));
    EXPECT_TRUE(Texts(list[0]).empty());
}

TEST(SoftwareBundleReader, TwoTargetOperatingSystemsLeaveNone)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string oses = "<TargetOSes><OperatingSystem osCode=\"W12\"/><OperatingSystem osCode=\"LX\"/></TargetOSes>";
    ASSERT_TRUE(ParseSingleBundle(dir, BundleWith(oses), bundle));
    EXPECT_TRUE(OSesOf(bundle.GetTargetOSes()).empty());
}

TEST(SoftwareBundleReader, RevisionHistoryDisplayIsRead)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string history = "<RevisionHistory><Display lang=\"en\">Second release</Display></RevisionHistory>";
    ASSERT_TRUE(ParseSingleBundle(dir, BundleWith(history), bundle));
    EXPECT_EQ(std::vector<std::string>{"en|Second release"}, Texts(bundle.GetRevisionHistory()));
}

TEST(SoftwareBundleReader, RevisionHistoryWithoutDisplayHasNoTexts)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    ASSERT_TRUE(ParseSingleBundle(dir, BundleWith("<RevisionHistory/>"), bundle));
    EXPECT_TRUE(Texts(bundle.GetRevisionHistory()).empty());
}

TEST(SoftwareBundleReader, ImportantInfoURLIsRead)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string info = "<ImportantInfo URL=\"https://support.example.com/notes?id=7&amp;x=1\"/>";
    ASSERT_TRUE(ParseSingleBundle(dir, BundleWith(info), bundle));
    EXPECT_EQ("https://support.example.com/notes?id=7&x=1", S(bundle.GetImportantInfo().GetURL()));
}

// --- Contents ---------------------------------------------------------------

TEST(SoftwareBundleReader, ContentEntriesAreReadWhateverTheirNamesInOrder)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string children = kName + kType +
                           "<Contents>\n  <Package path=\"a.exe\" packageID=\"PA\"/>\n"
                           "  <Item path=\"sub/b.bin\" packageID=\"PB\"></Item>\n"
                           "  <x path=\"c.exe\"/>\n</Contents>";
    ASSERT_TRUE(ParseSingleBundle(dir, BundleXML("", children), bundle));
    std::vector<QRMBundleContent> contents = ContentsOf(bundle);
    ASSERT_EQ(3u, contents.size());
    EXPECT_EQ("a.exe", S(contents[0].GetPath()));
    EXPECT_EQ("PA", S(contents[0].GetPackageID()));
    EXPECT_EQ("sub/b.bin", S(contents[1].GetPath()));
    EXPECT_EQ("PB", S(contents[1].GetPackageID()));
    EXPECT_EQ("c.exe", S(contents[2].GetPath()));
    EXPECT_EQ("", S(contents[2].GetPackageID()));
    EXPECT_TRUE(contents[0].GetIdentifier().IsNil());
}

TEST(SoftwareBundleReader, DuplicateContentEntriesAreKept)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string children = kName + kType +
                           "<Contents><Package path=\"a.exe\" packageID=\"PA\"/>"
                           "<Package path=\"a.exe\" packageID=\"PA\"/></Contents>";
    ASSERT_TRUE(ParseSingleBundle(dir, BundleXML("", children), bundle));
    std::vector<QRMBundleContent> contents = ContentsOf(bundle);
    ASSERT_EQ(2u, contents.size());
    EXPECT_EQ("a.exe", S(contents[1].GetPath()));
    EXPECT_EQ("PA", S(contents[1].GetPackageID()));
}

TEST(SoftwareBundleReader, ContentsEntriesNestedDeeperAreNotRead)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string children =
        kName + kType + "<Contents><Group path=\"g.exe\"><Package path=\"inner.exe\"/></Group></Contents>";
    ASSERT_TRUE(ParseSingleBundle(dir, BundleXML("", children), bundle));
    std::vector<QRMBundleContent> contents = ContentsOf(bundle);
    ASSERT_EQ(1u, contents.size());
    EXPECT_EQ("g.exe", S(contents[0].GetPath()));
}

// --- The bundle's own attributes --------------------------------------------

TEST(SoftwareBundleReader, BundleAttributesAreRead)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string attributes = "schemaVersion=\"2.1\" releaseID=\"R7XK2\" dateTime=\"1700000000\" vendorVersion=\"A09\" "
                             "path=\"FOLDER01/bundle.xml\" bundleID=\"BID-42\" bundleType=\"BTLX\"";
    ASSERT_TRUE(ParseSingleBundle(dir, BundleWith("", attributes), bundle));
    EXPECT_EQ("2.1", S(bundle.GetSchemaVersion()));
    EXPECT_EQ("R7XK2", S(bundle.GetReleaseID()));
    EXPECT_EQ(1700000000ull, bundle.GetDateTime().GetValue());
    EXPECT_EQ("A09", S(bundle.GetVendorVersion()));
    EXPECT_EQ("FOLDER01/bundle.xml", S(bundle.GetPath()));
    EXPECT_EQ("BID-42", S(bundle.GetBundleID()));
    EXPECT_EQ(QRM_BUNDLE_BTLX, bundle.GetBundleType());
}

TEST(SoftwareBundleReader, DateTimeIsReadAsDecimal)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    ASSERT_TRUE(ParseSingleBundle(dir, BundleWith("", "dateTime=\"0100\""), bundle));
    EXPECT_EQ(100ull, bundle.GetDateTime().GetValue());
}

TEST(SoftwareBundleReader, AttributeTextsAreKeptAsTheyStand)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string attributes = "vendorVersion=\" 1.2 \" bundleID=\"Ünïcode-ID\" path=\"\"";
    ASSERT_TRUE(ParseSingleBundle(dir, BundleWith("", attributes), bundle));
    EXPECT_EQ(" 1.2 ", S(bundle.GetVendorVersion()));
    EXPECT_EQ("Ünïcode-ID", S(bundle.GetBundleID()));
    EXPECT_EQ("", S(bundle.GetPath()));
}

TEST(SoftwareBundleReader, BundleTypeTextsMapToTheirCodes)
{
    TempDir dir;
    const char* texts[] = {"BTW32", "BTW64", "BTLX", "BTRPM", "BTDEB", "BTOSIND"};
    std::string entries;
    for (const char* text : texts) {
        entries += BundleWith("", std::string("bundleType=\"") + text + "\"");
    }
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, entries));
    std::vector<QRMSoftwareBundle*> bundles = StoredBundles();
    ASSERT_EQ(6u, bundles.size());
    const QRMBundleTypeEnum expected[] = {QRM_BUNDLE_BTW32, QRM_BUNDLE_BTW64, QRM_BUNDLE_BTLX,
                                          QRM_BUNDLE_BTRPM, QRM_BUNDLE_BTDEB, QRM_BUNDLE_BTOSIND};
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_EQ(expected[i], bundles[i]->GetBundleType()) << texts[i];
    }
}

TEST(SoftwareBundleReader, UnknownBundleTypeTextGivesZero)
{
    TempDir dir;
    const char* texts[] = {"BTXX", "btw64", "BTW64 ", ""};
    std::string entries;
    for (const char* text : texts) {
        entries += BundleWith("", std::string("bundleType=\"") + text + "\"");
    }
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, entries));
    std::vector<QRMSoftwareBundle*> bundles = StoredBundles();
    ASSERT_EQ(4u, bundles.size());
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(0, static_cast<int>(bundles[i]->GetBundleType())) << texts[i];
    }
}

TEST(SoftwareBundleReader, TwoBundlesWithTheSameBundleIDAreBothAddedInOrder)
{
    TempDir dir;
    std::string first = BundleXML("bundleID=\"SAME\" bundleType=\"BTW64\"",
                                  "<Name><Display lang=\"en\">First</Display></Name>" + kType + kContents);
    std::string second = BundleXML("bundleID=\"SAME\" bundleType=\"BTLX\"",
                                   "<Name><Display lang=\"en\">Second</Display></Name>" + kType + kContents);
    ASSERT_EQ(QRM_KIT_SUCCESS, ParseEntries(dir, first + second));
    std::vector<QRMSoftwareBundle*> bundles = StoredBundles();
    ASSERT_EQ(2u, bundles.size());
    EXPECT_EQ("SAME", S(bundles[0]->GetBundleID()));
    EXPECT_EQ("SAME", S(bundles[1]->GetBundleID()));
    EXPECT_EQ(std::vector<std::string>{"en|First"}, Texts(bundles[0]->GetName()));
    EXPECT_EQ(std::vector<std::string>{"en|Second"}, Texts(bundles[1]->GetName()));
    EXPECT_EQ(QRM_BUNDLE_BTW64, bundles[0]->GetBundleType());
    EXPECT_EQ(QRM_BUNDLE_BTLX, bundles[1]->GetBundleType());
}

// --- Faults -----------------------------------------------------------------

TEST(SoftwareBundleReaderFaults, MissingNameAbortsTheCatalogKeepingEarlierBundles)
{
    ExpectAbortAfterFirstBundle("Name", "");
}

TEST(SoftwareBundleReaderFaults, TwoNamesAbortTheCatalog) { ExpectAbortAfterFirstBundle("", "Name"); }

TEST(SoftwareBundleReaderFaults, MissingComponentTypeAbortsTheCatalog)
{
    ExpectAbortAfterFirstBundle("ComponentType", "");
}

TEST(SoftwareBundleReaderFaults, TwoComponentTypesAbortTheCatalog) { ExpectAbortAfterFirstBundle("", "ComponentType"); }

TEST(SoftwareBundleReaderFaults, MissingContentsAbortsTheCatalog) { ExpectAbortAfterFirstBundle("Contents", ""); }

TEST(SoftwareBundleReaderFaults, TwoContentsAbortTheCatalog) { ExpectAbortAfterFirstBundle("", "Contents"); }

TEST(SoftwareBundleReaderFaults, AbortLeavesLaterComponentsAndInventoryComponentsUnread)
{
    TempDir dir;
    std::string entries = CatalogXML::InventoryComponent("WIN", "a.exe") + CatalogXML::Bundle("B2", "Contents") +
                          CatalogXML::Component("C1") + CatalogXML::InventoryComponent("LX", "b.bin");
    EXPECT_EQ(QRM_KIT_ELEMENT_MISSING, ParseEntries(dir, entries));
    std::vector<QRMSoftwareComponent*> components;
    API()->GetSoftwareComponents(components);
    EXPECT_TRUE(components.empty());
    std::vector<QRMInventoryComponent> inventory;
    API()->GetInventoryComponents(inventory);
    ASSERT_EQ(1u, inventory.size());
    EXPECT_EQ("WIN", S(inventory[0].GetOSCode()));
    EXPECT_TRUE(StoredBundles().empty());
}

TEST(SoftwareBundleReaderFaults, NameWithoutDisplaySkipsOnlyThatBundle)
{
    ExpectMiddleBundleSkipped(BundleXML("bundleID=\"B2\"", "<Name/>" + kType + kContents));
}

TEST(SoftwareBundleReaderFaults, NameWithTwoDisplaysSkipsOnlyThatBundle)
{
    ExpectMiddleBundleSkipped(
        BundleXML("bundleID=\"B2\"",
                  "<Name><Display lang=\"en\">A</Display><Display lang=\"de\">B</Display></Name>" + kType + kContents));
}

TEST(SoftwareBundleReaderFaults, DescriptionWithoutDisplaySkipsOnlyThatBundle)
{
    ExpectMiddleBundleSkipped(BundleWith("<Description/>", "bundleID=\"B2\""));
}

TEST(SoftwareBundleReaderFaults, DescriptionWithTwoDisplaysSkipsOnlyThatBundle)
{
    ExpectMiddleBundleSkipped(
        BundleWith("<Description><Display lang=\"en\">A</Display><Display lang=\"de\">B</Display></Description>",
                   "bundleID=\"B2\""));
}

TEST(SoftwareBundleReaderFaults, NameWithoutDisplayIsCheckedBeforeMissingContents)
{
    // The entry is dropped at its Name, before its missing Contents is seen.
    ExpectMiddleBundleSkipped(BundleXML("bundleID=\"B2\"", "<Name/>" + kType));
}

TEST(SoftwareBundleReaderFaults, MissingContentsIsReportedEvenAfterAnEmptyNameDisplayLanguage)
{
    // A Display without "lang" is no fault: the Name reads with an empty language.
    TempDir dir;
    std::string bundle = BundleXML("bundleID=\"B2\"", "<Name><Display>Nameless</Display></Name>" + kType);
    EXPECT_EQ(QRM_KIT_ELEMENT_MISSING, ParseAroundMiddle(dir, bundle));
    EXPECT_EQ(std::vector<std::string>{"B1"}, BundleIDs());
}

TEST(SoftwareBundleReader, NameDisplayWithoutLangGivesAnEmptyLanguage)
{
    TempDir dir;
    QRMSoftwareBundle bundle;
    std::string children = "<Name><Display>Nameless</Display></Name>" + kType + kContents;
    ASSERT_TRUE(ParseSingleBundle(dir, BundleXML("", children), bundle));
    EXPECT_EQ(std::vector<std::string>{"|Nameless"}, Texts(bundle.GetName()));
}
