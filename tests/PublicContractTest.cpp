// The installed headers as a contract: the value classes stand alone (no
// base class, so no conversion between them and no equality across
// classes), and the library's internal templates are not in the global
// namespace, where they could clash with a caller's own names.
#include <QRMKit.h>

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

// A caller may use these names for its own classes: the library's helpers
// live in its own namespace. (Were they still global, this file would not
// compile.)
class QRMOwnedList {};
class QRMSeldom {};
class QRMDisplayList {};
class QRMTextsDisplayList {};
class QRMValuedDisplayList {};
class QRMKitAPITestPeer {};

namespace {

template <class A, class B, class = void>
struct EqualityCompiles : std::false_type {};
template <class A, class B>
struct EqualityCompiles<A, B, std::void_t<decltype(std::declval<const A&>() == std::declval<const B&>())>>
    : std::true_type {};

template <class Node, class = void>
struct HasNavigationByValue : std::false_type {};
template <class Node>
struct HasNavigationByValue<Node, std::void_t<decltype(std::declval<const Node&>().FirstChildElement())>>
    : std::true_type {};

template <class A, class B>
constexpr bool Related = std::is_convertible_v<const A&, const B&> || std::is_convertible_v<const B&, const A&>;

}  // namespace

TEST(PublicContract, ValueClassesWithTextsCannotBeComparedAcrossClasses)
{
    static_assert(!EqualityCompiles<QRMName, QRMIDevice>::value);
    static_assert(!EqualityCompiles<QRMIDevice, QRMIApplication>::value);
    static_assert(!EqualityCompiles<QRMCategory, QRMLUCategory>::value);
    static_assert(!EqualityCompiles<QRMDependency, QRMSoftDependency>::value);
    static_assert(!EqualityCompiles<QRMDisplay, QRMDeviceApplicability>::value);
    static_assert(!EqualityCompiles<QRMOperatingSystem, QRMISystem>::value);
    // Each class still compares with itself.
    static_assert(EqualityCompiles<QRMName, QRMName>::value);
    static_assert(EqualityCompiles<QRMIDevice, QRMIDevice>::value);
    static_assert(EqualityCompiles<QRMSoftDependency, QRMSoftDependency>::value);
    EXPECT_TRUE(QRMName() == QRMName());
}

TEST(PublicContract, ModelHasNoEqualityOfItsOwnAndNoneInherited)
{
    // Two models with different system ids used to compare equal through an
    // inherited text comparison; a model has no equality at all.
    static_assert(!EqualityCompiles<QRMModel, QRMModel>::value);
    QRMModel first;
    QRMModel second;
    first.SetSystemID(1);
    second.SetSystemID(2);
    EXPECT_NE(first.GetSystemID(), second.GetSystemID());
}

TEST(PublicContract, NoValueClassConvertsToAnother)
{
    static_assert(!Related<QRMSoftDependency, QRMDependency>);
    static_assert(!Related<QRMDeviceApplicability, QRMDisplay>);
    static_assert(!Related<QRMName, QRMRevisionHistory>);
    static_assert(!Related<QRMIDevice, QRMIApplication>);
    static_assert(!Related<QRMDevice, QRMIDevice>);
    static_assert(!Related<QRMBrand, QRMModel>);
    static_assert(!std::is_polymorphic_v<QRMIDevice>);
    static_assert(!std::is_polymorphic_v<QRMIApplication>);
    // A soft dependency offers every operation of a dependency itself.
    QRMSoftDependency soft;
    EXPECT_EQ(QRM_KIT_SUCCESS, soft.SetName("Utility"));
    EXPECT_EQ(QRM_KIT_SUCCESS, soft.AddDisplayValue("en", "Text"));
    EXPECT_EQ(QRM_KIT_ALREADY_EXISTS, soft.AddDisplayValue("en", "Other"));
    EXPECT_EQ("Utility", soft.GetName().GetUTF8String());
}

TEST(PublicContract, DocumentNodesComeOnlyFromTheirDocument)
{
    // A node is handed out by its document and answers the documented
    // queries; how it reaches the parser is not part of the contract.
    static_assert(!std::is_default_constructible_v<VELXMLNode>);
    static_assert(!HasNavigationByValue<VELXMLNode>::value);
    VELXMLDocument document;
    EXPECT_EQ(nullptr, document.GetRoot());
}
