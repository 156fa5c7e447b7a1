// QRMFMPWrapperInformation: the firmware wrapper a component names; its
// fields and how two compare.
#include "QRMSoftwareComponent.h"

#include "FieldDifferences.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <ostream>

#include <string>
#include <utility>
#include <vector>

namespace {

typedef std::vector<std::pair<std::string, std::string>> Texts;

std::string Str(const VELString& text) { return text.GetUTF8String(); }

VELGUID Guid(unsigned char fill)
{
    VELGUID::Bytes bytes;
    bytes.fill(fill);
    return VELGUID(bytes);
}

QRMFMPWrapperInformation WrapperNamed(const char* name)
{
    QRMFMPWrapperInformation wrapper;
    wrapper.SetName(VELString(name));
    return wrapper;
}

using WrapperDifference = FieldDifference<QRMFMPWrapperInformation>;

const WrapperDifference kWrapperDifferences[] = {
    {"DigitallySignedFlagMakesWrappersUnequal",
     [](QRMFMPWrapperInformation&, QRMFMPWrapperInformation& right) { right.SetDigitallySigned(true); }, false},
    {"NameMakesWrappersUnequal",
     [](QRMFMPWrapperInformation& left, QRMFMPWrapperInformation& right) {
         left = WrapperNamed("a");
         right = WrapperNamed("A");
     },
     false},
    {"InventorySupportedFlagMakesWrappersUnequal",
     [](QRMFMPWrapperInformation&, QRMFMPWrapperInformation& right) { right.SetInventorySupported(true); }, false},
    {"UpdateSupportedFlagMakesWrappersUnequal",
     [](QRMFMPWrapperInformation&, QRMFMPWrapperInformation& right) { right.SetUpdateSupported(true); }, false},
    {"IdentifierMakesWrappersUnequal",
     [](QRMFMPWrapperInformation& left, QRMFMPWrapperInformation& right) {
         left.SetIdentifier(Guid(1));
         right.SetIdentifier(Guid(2));
     },
     false},
    {"FilePathMakesWrappersUnequal",
     [](QRMFMPWrapperInformation&, QRMFMPWrapperInformation& right) { right.SetFilePath(VELString("p")); }, false},
    {"DriverNameMakesWrappersUnequal",
     [](QRMFMPWrapperInformation&, QRMFMPWrapperInformation& right) { right.SetDriverName(VELString("d")); }, false},
    {"DriverVersionMakesWrappersUnequal",
     [](QRMFMPWrapperInformation&, QRMFMPWrapperInformation& right) { right.SetDriverVersion(VELString("1")); }, false},
    {"RollbackSupportedFlagMakesWrappersUnequal",
     [](QRMFMPWrapperInformation&, QRMFMPWrapperInformation& right) { right.SetRollbackSupported(true); }, false},
};

class QRMFMPWrapperInformationEquality : public testing::TestWithParam<WrapperDifference> {};

}  // namespace

// ================================================================ defaults

// ========================================================= getters, setters

// ============================================================== description

// ========================================================= supported devices

// ================================================================= wrappers

// ========================================================== wrapper fields

TEST(QRMFMPWrapperInformationFields, NewWrapperHasClearFlagsEmptyTextsAndNilGuid)
{
    QRMFMPWrapperInformation wrapper;
    EXPECT_FALSE(wrapper.IsDigitallySigned());
    EXPECT_FALSE(wrapper.IsInventorySupported());
    EXPECT_FALSE(wrapper.IsUpdateSupported());
    EXPECT_FALSE(wrapper.IsRollbackSupported());
    EXPECT_EQ("", Str(wrapper.GetName()));
    EXPECT_EQ("", Str(wrapper.GetFilePath()));
    EXPECT_EQ("", Str(wrapper.GetDriverName()));
    EXPECT_EQ("", Str(wrapper.GetDriverVersion()));
    EXPECT_TRUE(wrapper.GetIdentifier().IsNil());
    EXPECT_TRUE(wrapper == QRMFMPWrapperInformation());
}

TEST(QRMFMPWrapperInformationFields, EverySetterReturnsSuccessAndItsValueComesBack)
{
    QRMFMPWrapperInformation wrapper;
    EXPECT_EQ(QRM_KIT_SUCCESS, wrapper.SetDigitallySigned(true));
    EXPECT_EQ(QRM_KIT_SUCCESS, wrapper.SetName(VELString("name")));
    EXPECT_EQ(QRM_KIT_SUCCESS, wrapper.SetInventorySupported(true));
    EXPECT_EQ(QRM_KIT_SUCCESS, wrapper.SetUpdateSupported(true));
    EXPECT_EQ(QRM_KIT_SUCCESS, wrapper.SetIdentifier(Guid(0x12)));
    EXPECT_EQ(QRM_KIT_SUCCESS, wrapper.SetFilePath(VELString("a/b.cap")));
    EXPECT_EQ(QRM_KIT_SUCCESS, wrapper.SetDriverName(VELString("drv")));
    EXPECT_EQ(QRM_KIT_SUCCESS, wrapper.SetDriverVersion(VELString("1.2")));
    EXPECT_EQ(QRM_KIT_SUCCESS, wrapper.SetRollbackSupported(true));
    EXPECT_TRUE(wrapper.IsDigitallySigned());
    EXPECT_EQ("name", Str(wrapper.GetName()));
    EXPECT_TRUE(wrapper.IsInventorySupported());
    EXPECT_TRUE(wrapper.IsUpdateSupported());
    EXPECT_TRUE(wrapper.GetIdentifier() == Guid(0x12));
    EXPECT_EQ("a/b.cap", Str(wrapper.GetFilePath()));
    EXPECT_EQ("drv", Str(wrapper.GetDriverName()));
    EXPECT_EQ("1.2", Str(wrapper.GetDriverVersion()));
    EXPECT_TRUE(wrapper.IsRollbackSupported());
}

TEST(QRMFMPWrapperInformationFields, CopyCarriesEveryFieldAndComparesEqual)
{
    QRMFMPWrapperInformation wrapper;
    wrapper.SetDigitallySigned(true);
    wrapper.SetName(VELString("name"));
    wrapper.SetUpdateSupported(true);
    wrapper.SetIdentifier(Guid(0x12));
    wrapper.SetDriverVersion(VELString("1.2"));
    QRMFMPWrapperInformation copy(wrapper);
    EXPECT_TRUE(copy == wrapper);
    EXPECT_FALSE(copy != wrapper);
    EXPECT_EQ("name", Str(copy.GetName()));
    EXPECT_TRUE(copy.GetIdentifier() == Guid(0x12));
    QRMFMPWrapperInformation assigned;
    assigned = wrapper;
    EXPECT_TRUE(assigned == wrapper);
    EXPECT_EQ("1.2", Str(assigned.GetDriverVersion()));
}

TEST_P(QRMFMPWrapperInformationEquality, FieldDiffers)
{
    ExpectDifference(GetParam(), QRMFMPWrapperInformation(), QRMFMPWrapperInformation());
}

INSTANTIATE_TEST_SUITE_P(, QRMFMPWrapperInformationEquality, testing::ValuesIn(kWrapperDifferences),
                         NameOfDifference());

// ================================================================= equality

// ================================================ copying and assignment
