// VELString storage: short texts held inside the object, longer ones on the
// heap. Every operation must give the same results on both sides of that
// boundary and when a text moves from one form to the other.
#include "VELString.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <ios>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

// Lengths around the in-place limit of seven code units, and far beyond it.
const std::size_t kLengths[] = {0, 1, 6, 7, 8, 9, 64, 100000};

// `count` code units cycling through the lower-case letters, starting at
// `first` (a different `first` gives a different text of the same length).
std::u16string Units(std::size_t count, char16_t first = u'a')
{
    std::u16string units;
    units.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        units.push_back(static_cast<char16_t>(u'a' + (first - u'a' + i) % 26));
    }
    return units;
}

std::string Bytes(std::size_t count, char first = 'a')
{
    std::string bytes;
    for (char16_t unit : Units(count, static_cast<char16_t>(first))) {
        bytes.push_back(static_cast<char>(unit));
    }
    return bytes;
}

// Returns its argument: lets a test assign an object to itself without the
// compiler noticing.
template <class T>
T& Same(T& value)
{
    return value;
}

// The text's length agrees with its units and it can still be changed,
// copied and compared: the object is in a valid state.
void ExpectUsable(VELString& text)
{
    EXPECT_EQ(text.GetUTF16View().size(), static_cast<std::size_t>(text.GetLength()));
    EXPECT_EQ(text.GetUTF16View(), std::u16string_view(text.GetUTF16String()));
    EXPECT_EQ(text.GetLength() == 0, text.IsEmpty());
    text = VELString("reused!");
    EXPECT_EQ(u"reused!", text.GetUTF16View());
    text = VELString(Units(20));
    EXPECT_EQ(Units(20), text.GetUTF16String());
    VELString copy(text);
    EXPECT_TRUE(copy == text);
}

}  // namespace

// ---- Size and construction

TEST(VELStringStorage, ObjectIsTwentyFourBytesOnSixtyFourBitSystems)
{
    if (sizeof(void*) != 8) {
        GTEST_SKIP() << "not a 64-bit system";
    }
    EXPECT_EQ(24u, sizeof(VELString));
}

TEST(VELStringStorage, DefaultConstructedTextIsEmpty)
{
    VELString text;
    EXPECT_EQ(0u, text.GetLength());
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_TRUE(text.GetUTF16View().empty());
    EXPECT_EQ(std::u16string(), text.GetUTF16String());
    EXPECT_EQ(std::string(), text.GetUTF8String());
    EXPECT_TRUE(text == VELString(""));
    EXPECT_TRUE(text == "");
    EXPECT_FALSE(text == "a");
    EXPECT_FALSE(text < VELString());
}

TEST(VELStringStorage, UTF16ConstructionKeepsEveryUnitAtEachLength)
{
    for (std::size_t length : kLengths) {
        SCOPED_TRACE(length);
        const std::u16string units = Units(length);
        VELString text(units);
        EXPECT_EQ(length, static_cast<std::size_t>(text.GetLength()));
        EXPECT_EQ(length == 0, text.IsEmpty());
        EXPECT_EQ(std::u16string_view(units), text.GetUTF16View());
        EXPECT_EQ(units, text.GetUTF16String());
        EXPECT_EQ(Bytes(length), text.GetUTF8String());
    }
}

TEST(VELStringStorage, UTF16RvalueConstructionKeepsEveryUnitAtEachLength)
{
    for (std::size_t length : kLengths) {
        SCOPED_TRACE(length);
        VELString text{std::u16string(Units(length, u'c'))};
        EXPECT_EQ(length, static_cast<std::size_t>(text.GetLength()));
        EXPECT_EQ(Units(length, u'c'), text.GetUTF16String());
    }
}

TEST(VELStringStorage, UTF8ConstructionKeepsEveryCharacterAtEachLength)
{
    for (std::size_t length : kLengths) {
        SCOPED_TRACE(length);
        const std::string bytes = Bytes(length);
        VELString fromLiteral(bytes.c_str());
        VELString fromBytes = VELString::FromUTF8(bytes.data(), bytes.size());
        EXPECT_EQ(Units(length), fromLiteral.GetUTF16String());
        EXPECT_EQ(Units(length), fromBytes.GetUTF16String());
        EXPECT_EQ(bytes, fromBytes.GetUTF8String());
        EXPECT_TRUE(fromLiteral == fromBytes);
    }
}

TEST(VELStringStorage, FromUTF8ReadsOnlyTheGivenNumberOfBytes)
{
    const char bytes[] = {'a', 'b', 'c', 'd', 'e', 'f', 'g', 'h', 'i', 'j'};  // no terminator
    EXPECT_EQ(u"abcdefg", VELString::FromUTF8(bytes, 7).GetUTF16View());
    EXPECT_EQ(u"abcdefgh", VELString::FromUTF8(bytes, 8).GetUTF16View());
    EXPECT_EQ(u"abcdefghij", VELString::FromUTF8(bytes, 10).GetUTF16View());
    EXPECT_TRUE(VELString::FromUTF8(bytes, 0).IsEmpty());
    EXPECT_TRUE(VELString::FromUTF8(nullptr, 5).IsEmpty());
}

TEST(VELStringStorage, EmbeddedNulUnitsAreKeptInPlaceAndOnTheHeap)
{
    const std::u16string shortUnits(u"ab\0cd\0", 6);
    const std::u16string sevenUnits(u"\0\0\0\0\0\0\0", 7);
    const std::u16string longUnits(u"abc\0\0defg\0", 10);
    VELString shortText(shortUnits);
    VELString seven(sevenUnits);
    VELString longText(longUnits);
    EXPECT_EQ(6u, shortText.GetLength());
    EXPECT_EQ(7u, seven.GetLength());
    EXPECT_EQ(10u, longText.GetLength());
    EXPECT_EQ(shortUnits, shortText.GetUTF16String());
    EXPECT_EQ(sevenUnits, seven.GetUTF16String());
    EXPECT_EQ(longUnits, longText.GetUTF16String());
    EXPECT_EQ(std::string("ab\0cd\0", 6), shortText.GetUTF8String());
    EXPECT_EQ(std::string("abc\0\0defg\0", 10), longText.GetUTF8String());
    EXPECT_FALSE(seven.IsEmpty());
    EXPECT_FALSE(seven == VELString());
    EXPECT_TRUE(VELString() < seven);
    EXPECT_FALSE(shortText == "ab");
    EXPECT_FALSE(longText == "abc");
    VELString copy(longText);
    EXPECT_TRUE(copy == longText);
    EXPECT_EQ(longUnits, copy.GetUTF16String());
    // A NUL unit orders before every other unit.
    EXPECT_TRUE(VELString(std::u16string(u"ab\0", 3)) < VELString(u"ab\x01"));
    EXPECT_TRUE(VELString(u"ab") < VELString(std::u16string(u"ab\0", 3)));
}

// ---- Copy and assignment

TEST(VELStringStorage, CopyIsEqualAndIndependentAtEachLength)
{
    for (std::size_t length : kLengths) {
        SCOPED_TRACE(length);
        VELString source(Units(length));
        VELString copy(source);
        EXPECT_TRUE(copy == source);
        EXPECT_EQ(Units(length), copy.GetUTF16String());
        copy.ReplaceAll(VELString("a"), VELString("ZZ"));
        EXPECT_EQ(Units(length), source.GetUTF16String());
        if (length > 0) {
            EXPECT_FALSE(copy == source);
        }
    }
}

TEST(VELStringStorage, CopyAssignmentBetweenEveryPairOfLengths)
{
    for (std::size_t from : kLengths) {
        for (std::size_t to : kLengths) {
            SCOPED_TRACE(std::to_string(from) + " into " + std::to_string(to));
            VELString source(Units(from, u'k'));
            VELString target(Units(to, u'b'));
            VELString& result = (target = source);
            EXPECT_EQ(&target, &result);
            EXPECT_EQ(Units(from, u'k'), target.GetUTF16String());
            EXPECT_EQ(from, static_cast<std::size_t>(target.GetLength()));
            EXPECT_EQ(Units(from, u'k'), source.GetUTF16String());
            source = VELString("changed");
            EXPECT_EQ(Units(from, u'k'), target.GetUTF16String());
        }
    }
}

TEST(VELStringStorage, SelfCopyAssignmentKeepsTheText)
{
    for (std::size_t length : kLengths) {
        SCOPED_TRACE(length);
        VELString text(Units(length));
        text = Same(text);
        EXPECT_EQ(Units(length), text.GetUTF16String());
        EXPECT_EQ(length, static_cast<std::size_t>(text.GetLength()));
    }
}

// ---- Moves

TEST(VELStringStorage, MoveConstructionTakesTheTextAndLeavesTheSourceEmptyAndUsable)
{
    for (std::size_t length : kLengths) {
        SCOPED_TRACE(length);
        VELString source(Units(length));
        VELString target(std::move(source));
        EXPECT_EQ(Units(length), target.GetUTF16String());
        EXPECT_EQ(length, static_cast<std::size_t>(target.GetLength()));
        EXPECT_TRUE(source.IsEmpty());
        EXPECT_EQ(0u, source.GetLength());
        EXPECT_TRUE(source == VELString());
        ExpectUsable(source);
        EXPECT_EQ(Units(length), target.GetUTF16String());
    }
}

TEST(VELStringStorage, MoveAssignmentBetweenEveryPairOfLengths)
{
    for (std::size_t from : kLengths) {
        for (std::size_t to : kLengths) {
            SCOPED_TRACE(std::to_string(from) + " into " + std::to_string(to));
            VELString source(Units(from, u'k'));
            VELString target(Units(to, u'b'));
            VELString& result = (target = std::move(source));
            EXPECT_EQ(&target, &result);
            EXPECT_EQ(Units(from, u'k'), target.GetUTF16String());
            EXPECT_TRUE(source.IsEmpty());
            ExpectUsable(source);
            EXPECT_EQ(Units(from, u'k'), target.GetUTF16String());
        }
    }
}

TEST(VELStringStorage, SelfMoveAssignmentLeavesAValidObject)
{
    for (std::size_t length : kLengths) {
        SCOPED_TRACE(length);
        VELString text(Units(length));
        text = std::move(Same(text));
        const std::u16string after = text.GetUTF16String();
        EXPECT_TRUE(after == Units(length) || after.empty()) << "unexpected contents after a self-move";
        ExpectUsable(text);
    }
}

TEST(VELStringStorage, TextsKeepTheirUnitsWhenAVectorGrowsAndSwaps)
{
    std::vector<VELString> texts;
    std::vector<std::u16string> expected;
    for (std::size_t i = 0; i < 300; ++i) {
        expected.push_back(Units(i % 17, static_cast<char16_t>(u'a' + i % 26)));
        texts.emplace_back(expected.back());
    }
    for (std::size_t i = 0; i < texts.size(); ++i) {
        ASSERT_EQ(expected[i], texts[i].GetUTF16String()) << i;
    }
    std::swap(texts[3], texts[250]);  // 3 units with 12 units
    EXPECT_EQ(expected[250], texts[3].GetUTF16String());
    EXPECT_EQ(expected[3], texts[250].GetUTF16String());
}

// ---- Comparison

TEST(VELStringStorage, EqualityAcrossTheBoundaryIsExact)
{
    EXPECT_TRUE(VELString("abcdefg") == VELString(u"abcdefg"));
    EXPECT_TRUE(VELString("abcdefgh") == VELString(u"abcdefgh"));
    EXPECT_FALSE(VELString("abcdefg") == VELString("abcdefgh"));
    EXPECT_FALSE(VELString("abcdefgh") == VELString("abcdefg"));
    EXPECT_FALSE(VELString("abcdefgh") == VELString("abcdefgi"));
    EXPECT_FALSE(VELString("abcdefg") == VELString("abcdefh"));
    EXPECT_TRUE(VELString("abcdefgh") != VELString("abcdefgi"));
    EXPECT_TRUE(VELString("abcdefghijk") == "abcdefghijk");
    EXPECT_FALSE(VELString("abcdefghijk") == "abcdefghij");
    EXPECT_TRUE("abcdefg" == VELString("abcdefg"));
    EXPECT_TRUE("abcdefgh" != VELString("abcdefg"));
}

TEST(VELStringStorage, ATextThatShrankIntoPlaceEqualsTheSameTextBuiltDirectly)
{
    VELString shrunk("abcdefghijkl");
    shrunk.ReplaceAll(VELString("hijkl"), VELString());
    EXPECT_EQ(7u, shrunk.GetLength());
    EXPECT_TRUE(shrunk == VELString("abcdefg"));
    EXPECT_FALSE(shrunk < VELString("abcdefg"));
    EXPECT_FALSE(VELString("abcdefg") < shrunk);

    VELString overwritten("abcdefg");
    overwritten = VELString("ab");
    EXPECT_TRUE(overwritten == VELString("ab"));
    EXPECT_TRUE(overwritten == "ab");
    EXPECT_TRUE(overwritten < VELString("abc"));
    EXPECT_EQ(2u, overwritten.GetLength());
}

TEST(VELStringStorage, OrderingIsByCodeUnitWithThePrefixFirstOnBothSidesOfTheBoundary)
{
    EXPECT_TRUE(VELString("abcdefg") < VELString("abcdefgh"));
    EXPECT_FALSE(VELString("abcdefgh") < VELString("abcdefg"));
    EXPECT_TRUE(VELString("abcdefgh") < VELString("abcdefgi"));
    EXPECT_TRUE(VELString("abcdefgh") < VELString("abcdefh"));
    EXPECT_TRUE(VELString("abcdefg") < VELString("b"));
    EXPECT_TRUE(VELString(Units(100)) < VELString(Units(101)));
    EXPECT_FALSE(VELString(Units(101)) < VELString(Units(100)));
    EXPECT_FALSE(VELString(Units(100)) < VELString(Units(100)));
    // Units compare as unsigned: U+FFFF after U+0061, U+E000 after U+D800.
    EXPECT_TRUE(VELString(u"aaaaaaaa") < VELString(u"aaaaaaa\xFFFF"));
    EXPECT_TRUE(VELString(u"\xD800") < VELString(u"\xE000"));
    EXPECT_TRUE(VELString(u"zzzzzzzzz") < VELString(u"\xE000"));
}

TEST(VELStringStorage, MapKeysOfMixedLengthsComeInCodeUnitOrder)
{
    std::map<VELString, int> map;
    const char* keys[] = {"abcdefgh", "abc", "abcdefg", "b", "", "abcdefgha", "abcdefff", "abd"};
    for (int i = 0; i < 8; ++i) {
        map[VELString(keys[i])] = i;
    }
    std::vector<std::string> order;
    for (const auto& entry : map) {
        order.push_back(entry.first.GetUTF8String());
    }
    EXPECT_EQ((std::vector<std::string>{"", "abc", "abcdefff", "abcdefg", "abcdefgh", "abcdefgha", "abd", "b"}), order);
    EXPECT_EQ(0, map[VELString("abcdefgh")]);
    EXPECT_EQ(5, map[VELString("abcdefgha")]);
}

// ---- ReplaceAll across the boundary

TEST(VELStringStorage, ReplaceAllGrowingPastSevenUnitsMovesTheTextToTheHeap)
{
    VELString text("abcdefg");
    VELString& result = text.ReplaceAll(VELString("g"), VELString("gh"));
    EXPECT_EQ(&text, &result);
    EXPECT_EQ(u"abcdefgh", text.GetUTF16View());
    EXPECT_EQ(8u, text.GetLength());

    VELString sixToSeven("abcdef");
    sixToSeven.ReplaceAll(VELString("f"), VELString("fg"));
    EXPECT_EQ(u"abcdefg", sixToSeven.GetUTF16View());
    EXPECT_EQ(7u, sixToSeven.GetLength());

    VELString many("a.b.c");
    many.ReplaceAll(VELString("."), VELString("...."));
    EXPECT_EQ(u"a....b....c", many.GetUTF16View());
    EXPECT_EQ(11u, many.GetLength());
}

TEST(VELStringStorage, ReplaceAllShrinkingToSevenUnitsOrFewerBringsTheTextInPlace)
{
    VELString toSeven("abcdefgh");
    toSeven.ReplaceAll(VELString("h"), VELString());
    EXPECT_EQ(u"abcdefg", toSeven.GetUTF16View());
    EXPECT_EQ(7u, toSeven.GetLength());

    VELString version("1 . 2 . 3 . 4");
    version.ReplaceAll(VELString(" "), VELString(""));
    EXPECT_EQ(u"1.2.3.4", version.GetUTF16View());

    VELString toEmpty("        ");
    toEmpty.ReplaceAll(VELString(" "), VELString());
    EXPECT_TRUE(toEmpty.IsEmpty());
    EXPECT_TRUE(toEmpty == VELString());

    VELString longOne(Units(100000));
    longOne.ReplaceAll(VELString(Units(99998)), VELString("X"));
    EXPECT_EQ(3u, longOne.GetLength());
    const std::u16string expectedTail = Units(100000).substr(99998);
    EXPECT_EQ(u"X" + expectedTail, longOne.GetUTF16String());
}

TEST(VELStringStorage, ReplaceAllOnAHundredThousandUnits)
{
    VELString text(Units(100000));
    text.ReplaceAll(VELString("a"), VELString("AA"));
    const std::size_t as = (100000 + 25) / 26;  // positions 0, 26, 52, ...
    EXPECT_EQ(100000u + as, text.GetLength());
    std::u16string expected;
    for (char16_t unit : Units(100000)) {
        if (unit == u'a') {
            expected += u"AA";
        } else {
            expected.push_back(unit);
        }
    }
    EXPECT_EQ(expected, text.GetUTF16String());
    text.ReplaceAll(VELString("AA"), VELString("a"));
    EXPECT_EQ(Units(100000), text.GetUTF16String());
}

TEST(VELStringStorage, ReplaceAllWithThePatternOrTheReplacementBeingTheTextItself)
{
    VELString whole("abcdefghij");
    whole.ReplaceAll(whole, VELString("x"));
    EXPECT_EQ(u"x", whole.GetUTF16View());

    VELString inPlace("aXa");
    inPlace.ReplaceAll(VELString("X"), inPlace);
    EXPECT_EQ(u"aaXaa", inPlace.GetUTF16View());

    VELString growing("aXa");
    growing.ReplaceAll(VELString("a"), growing);
    EXPECT_EQ(u"aXaXaXa", growing.GetUTF16View());
    growing.ReplaceAll(VELString("X"), growing);
    EXPECT_EQ(u"aaXaXaXaaaXaXaXaaaXaXaXaa", growing.GetUTF16View());
}

// ---- SubString

TEST(VELStringStorage, SubStringAssignedBackToTheSameVariable)
{
    VELString shortText("abcdefg");
    shortText = shortText.SubString(2, 5);
    EXPECT_EQ(u"cdefg", shortText.GetUTF16View());

    VELString heapToPlace("0123456789abcdef");
    heapToPlace = heapToPlace.SubString(2, 5);
    EXPECT_EQ(u"23456", heapToPlace.GetUTF16View());
    EXPECT_EQ(5u, heapToPlace.GetLength());

    VELString heapToHeap("0123456789abcdef");
    heapToHeap = heapToHeap.SubString(1, 10);
    EXPECT_EQ(u"123456789a", heapToHeap.GetUTF16View());

    VELString clamped("0123456789");
    clamped = clamped.SubString(3, 100);
    EXPECT_EQ(u"3456789", clamped.GetUTF16View());

    VELString past("0123456789");
    past = past.SubString(10, 1);
    EXPECT_TRUE(past.IsEmpty());

    VELString large(Units(100000));
    large = large.SubString(50000, 50000);
    EXPECT_EQ(Units(100000).substr(50000), large.GetUTF16String());
}

TEST(VELStringStorage, SubStringOfEveryLengthAndStart)
{
    const std::u16string units = Units(12);
    VELString text(units);
    for (unsigned int start = 0; start <= 13; ++start) {
        for (unsigned int count = 0; count <= 13; ++count) {
            SCOPED_TRACE(std::to_string(start) + "," + std::to_string(count));
            std::u16string expected = start < units.size() ? units.substr(start, count) : std::u16string();
            VELString part = text.SubString(start, count);
            EXPECT_EQ(expected, part.GetUTF16String());
            EXPECT_EQ(expected.size(), static_cast<std::size_t>(part.GetLength()));
        }
    }
    EXPECT_EQ(units, text.GetUTF16String());
}

// ---- UTF-8 conversion

TEST(VELStringStorage, FromUTF8CountsUnitsNotBytesForTheBoundary)
{
    // U+00E9 takes 2 bytes and 1 unit; U+1F600 takes 4 bytes and 2 units.
    VELString accented("\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9");  // 14 bytes
    EXPECT_EQ(7u, accented.GetLength());
    EXPECT_EQ(std::u16string(7, u'\u00E9'), accented.GetUTF16String());

    VELString threeFaces("\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80");
    EXPECT_EQ(6u, threeFaces.GetLength());
    EXPECT_EQ(u"\xD83D\xDE00\xD83D\xDE00\xD83D\xDE00", threeFaces.GetUTF16View());

    VELString sevenUnits("a\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80");
    EXPECT_EQ(7u, sevenUnits.GetLength());
    EXPECT_EQ(u"a\xD83D\xDE00\xD83D\xDE00\xD83D\xDE00", sevenUnits.GetUTF16View());

    VELString fourFaces("\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80");
    EXPECT_EQ(8u, fourFaces.GetLength());
    EXPECT_EQ(u"\xD83D\xDE00\xD83D\xDE00\xD83D\xDE00\xD83D\xDE00", fourFaces.GetUTF16View());
    EXPECT_EQ("\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80\xF0\x9F\x98\x80", fourFaces.GetUTF8String());

    const std::string mixed = "x\xE2\x82\xAC\xF0\x9F\x98\x80y";  // x, euro sign, face, y
    VELString fromBytes = VELString::FromUTF8(mixed.data(), mixed.size());
    EXPECT_EQ(u"x\u20AC\xD83D\xDE00y", fromBytes.GetUTF16View());
    EXPECT_EQ(mixed, fromBytes.GetUTF8String());
}

TEST(VELStringStorage, FromUTF8OfAHundredThousandNonASCIICharacters)
{
    std::string bytes;
    for (int i = 0; i < 100000; ++i) {
        bytes += "\xC3\xA9";
    }
    VELString text = VELString::FromUTF8(bytes.data(), bytes.size());
    EXPECT_EQ(100000u, text.GetLength());
    EXPECT_EQ(std::u16string(100000, u'\u00E9'), text.GetUTF16String());
    EXPECT_EQ(bytes, text.GetUTF8String());
}

TEST(VELStringStorage, InvalidUTF8BecomesReplacementCharactersInPlaceAndOnTheHeap)
{
    VELString lone("\xFF");
    EXPECT_EQ(u"\xFFFD", lone.GetUTF16View());

    VELString truncated("ab\xC3");
    EXPECT_EQ(u"ab\xFFFD", truncated.GetUTF16View());

    VELString sevenWithBad("abcdef\xFF");
    EXPECT_EQ(u"abcdef\xFFFD", sevenWithBad.GetUTF16View());
    EXPECT_EQ(7u, sevenWithBad.GetLength());

    VELString eightWithBad("abcdefg\xFF");
    EXPECT_EQ(u"abcdefg\xFFFD", eightWithBad.GetUTF16View());
    EXPECT_EQ(8u, eightWithBad.GetLength());

    VELString longWithBad("abcdefghij\x80klmnop");
    EXPECT_EQ(u"abcdefghij\xFFFDklmnop", longWithBad.GetUTF16View());
    EXPECT_EQ("abcdefghij\xEF\xBF\xBDklmnop", longWithBad.GetUTF8String());

    const char bytes[] = {'a', '\xE2', '\x82'};  // a, then a cut-off three-byte sequence
    VELString cut = VELString::FromUTF8(bytes, sizeof bytes);
    EXPECT_EQ(u"a\xFFFD", cut.GetUTF16View());
}

// ---- Numbers

TEST(VELStringStorage, GetIntValueReadsInPlaceAndHeapTexts)
{
    EXPECT_EQ(42u, VELString("42").GetIntValue(std::dec));
    EXPECT_EQ(1234567u, VELString("1234567").GetIntValue(std::dec));
    EXPECT_EQ(12345678u, VELString("12345678").GetIntValue(std::dec));
    EXPECT_EQ(7u, VELString("      7").GetIntValue(std::dec));
    EXPECT_EQ(7u, VELString("        7").GetIntValue(std::dec));
    EXPECT_EQ(12345678u, VELString("        12345678 trailing").GetIntValue(std::dec));
    EXPECT_EQ(0xFFu, VELString("0xFF").GetIntValue(std::hex));
    EXPECT_EQ(0xFFFFFFFu, VELString("FFFFFFF").GetIntValue(std::hex));
    EXPECT_EQ(0xDEADBEEFu, VELString("0x0000DEADBEEF").GetIntValue(std::hex));
    EXPECT_EQ(0xFFFFFFFFu, VELString("99999999999").GetIntValue(std::dec));
    EXPECT_EQ(0xFFFFFFFFu, VELString("-1").GetIntValue(std::dec));
    EXPECT_EQ(0u, VELString("abcdefgh").GetIntValue(std::dec));
    EXPECT_EQ(0u, VELString().GetIntValue(std::dec));
    VELString shrunk("1 2 3 4 5");
    shrunk.ReplaceAll(VELString(" "), VELString());
    EXPECT_EQ(12345u, shrunk.GetIntValue(std::dec));
}

// ---- Concatenation

TEST(VELStringStorage, ConcatenationAcrossTheBoundary)
{
    EXPECT_EQ(u"abcdefg", (VELString("abcd") + "efg").GetUTF16View());
    EXPECT_EQ(u"abcdefgh", (VELString("abcd") + "efgh").GetUTF16View());
    EXPECT_EQ(8u, (VELString("abcd") + "efgh").GetLength());
    EXPECT_EQ(u"0abcdefg", ("0" + VELString("abcdefg")).GetUTF16View());
    EXPECT_EQ(u"abcdefghij.0", (VELString("abcdefghij") + ".0").GetUTF16View());
    EXPECT_EQ(u"abcdefg", (VELString("abcdefg") + "").GetUTF16View());
    EXPECT_EQ(u"abcdefgh", ("" + VELString("abcdefgh")).GetUTF16View());
    EXPECT_TRUE((VELString() + "").IsEmpty());
    EXPECT_EQ(u"abcdefgh", (VELString("abcd") + VELString("efgh")).GetUTF16View());
    EXPECT_EQ(u"a\u00E9", (VELString("a") + "\xC3\xA9").GetUTF16View());

    const VELString left(Units(100000));
    const VELString joined = left + "!";
    EXPECT_EQ(100001u, joined.GetLength());
    EXPECT_EQ(Units(100000) + u"!", joined.GetUTF16String());
    EXPECT_EQ(Units(100000), left.GetUTF16String());
    EXPECT_EQ(200000u, (left + left).GetLength());
}

TEST(VELStringStorage, ConcatenationKeepsEmbeddedNulUnits)
{
    VELString withNul(std::u16string(u"a\0b", 3));
    VELString joined = withNul + "cdefg";
    EXPECT_EQ(8u, joined.GetLength());
    EXPECT_EQ(std::u16string(u"a\0bcdefg", 8), joined.GetUTF16String());
}
