// Reading a text as an unsigned number in decimal or hexadecimal. The value
// must be exactly what extracting an unsigned int from a string stream with
// the same manipulator stores, whatever the text holds.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <locale>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace {

unsigned int StreamValue(const std::string& text, bool hexadecimal)
{
    unsigned int value = 0;
    std::istringstream stream(text);
    if (hexadecimal) {
        stream >> std::hex >> value;
    } else {
        stream >> std::dec >> value;
    }
    return value;
}

unsigned int Dec(const char* text) { return VELString(text).GetIntValue(std::dec); }
unsigned int Hex(const char* text) { return VELString(text).GetIntValue(std::hex); }

void ExpectSameAsStream(const std::string& text)
{
    VELString value(text.c_str());
    EXPECT_EQ(StreamValue(text, false), value.GetIntValue(std::dec))
        << "decimal reading of " << ::testing::PrintToString(text);
    EXPECT_EQ(StreamValue(text, true), value.GetIntValue(std::hex))
        << "hexadecimal reading of " << ::testing::PrintToString(text);
}

std::vector<std::string> HandPickedTexts()
{
    return {
        "",
        " ",
        "\t",
        "\n",
        " \t\n ",
        "0",
        "00",
        "000000000000000000000000001",
        "1",
        "9",
        "10",
        "255",
        "ff",
        "FF",
        "fF",
        "g",
        "G",
        "x",
        "X",
        "0x",
        "0X",
        "0x0",
        "0x1F",
        "0X1f",
        "0xg",
        "0x 1",
        "00x1F",
        "0xx1",
        "x1F",
        "-0x1F",
        "+0x1F",
        "+0",
        "-0",
        "+",
        "-",
        "+-1",
        "-+1",
        "--1",
        "++1",
        " -1",
        "-1",
        "-2",
        "-4294967295",
        "-4294967296",
        "-99999999999",
        "4294967295",
        "4294967296",
        "4294967297",
        "42949672950",
        "99999999999999999999999999",
        "000004294967295",
        "000004294967296",
        "ffffffff",
        "FFFFFFFF",
        "100000000",
        "0xffffffff",
        "0x100000000",
        "-0xffffffff",
        "-ffffffff",
        "12abc",
        "12.5",
        ".5",
        "1e5",
        "0.0",
        "1 2",
        " 12",
        "\t\n12",
        "12 ",
        "0 x1F",
        "abc",
        "ABC",
        "a.b",
        "deadbeef",
        "DEADBEEF",
        "-deadbeef",
        "0xdeadbeef1",
        "1-",
        "1+",
        "0-1",
        "0+1",
        "0x-1",
        "0x+1",
        "-0x",
        "+0x",
        "-0",
        "-00",
        "-0g",
        "0000000000000000000000000000000000000000",
        "0x0000000000000000000000000001",
        "18446744073709551615",
        "18446744073709551616",
        "-18446744073709551615",
    };
}

}  // namespace

TEST(VELStringIntValue, HexadecimalDigitsWithLeadingZero)
{
    EXPECT_EQ(1187u, Hex("04A3"));
    EXPECT_EQ(32902u, Hex("8086"));
    EXPECT_EQ(2667u, Hex("0A6B"));
}

TEST(VELStringIntValue, DecimalStopsAtTheFirstNonDigit)
{
    EXPECT_EQ(4u, Dec("04A3"));
    EXPECT_EQ(12u, Dec("12abc"));
    EXPECT_EQ(8086u, Dec("8086"));
}

TEST(VELStringIntValue, HexPrefixIsReadOnlyInHexadecimal)
{
    EXPECT_EQ(31u, Hex("0x1F"));
    EXPECT_EQ(31u, Hex("0X1f"));
    EXPECT_EQ(0u, Dec("0x1F"));
}

TEST(VELStringIntValue, MinusNegatesModuloTwoToTheThirtyTwo)
{
    EXPECT_EQ(4294967295u, Dec("-1"));
    EXPECT_EQ(4294967294u, Dec("-2"));
    EXPECT_EQ(0u, Dec("-0"));
}

TEST(VELStringIntValue, OverflowGivesTheMaximum)
{
    EXPECT_EQ(4294967295u, Dec("4294967296"));
    EXPECT_EQ(4294967295u, Dec("99999999999999999999999999"));
    EXPECT_EQ(4294967295u, Hex("100000000"));
    EXPECT_EQ(4294967295u, Dec("4294967295"));
}

TEST(VELStringIntValue, EmptyTextGivesZero)
{
    EXPECT_EQ(0u, Dec(""));
    EXPECT_EQ(0u, Hex(""));
    EXPECT_EQ(0u, VELString().GetIntValue(std::dec));
}

TEST(VELStringIntValue, NonNumericTextGivesZero)
{
    EXPECT_EQ(0u, Dec("soon"));
    EXPECT_EQ(0u, Hex("xyz"));
    EXPECT_EQ(0u, Dec("   "));
    EXPECT_EQ(0u, Dec("-"));
}

TEST(VELStringIntValue, LeadingWhiteSpaceIsSkipped)
{
    EXPECT_EQ(12u, Dec(" 12"));
    EXPECT_EQ(12u, Dec("\t\n 12"));
    EXPECT_EQ(18u, Hex(" 12"));
}

TEST(VELStringIntValue, NonASCIITextNeverThrows)
{
    EXPECT_NO_THROW(VELString("\xC3\xA9"
                              "12")
                        .GetIntValue(std::dec));
    EXPECT_EQ(0u, VELString("\xC3\xA9"
                            "12")
                      .GetIntValue(std::dec));
    EXPECT_EQ(12u, VELString("12\xC3\xA9").GetIntValue(std::dec));
}

TEST(VELStringIntValue, HandPickedTextsMatchStreamExtraction)
{
    for (const std::string& text : HandPickedTexts()) {
        ExpectSameAsStream(text);
    }
}

TEST(VELStringIntValue, RandomTextsMatchStreamExtraction)
{
    const std::string alphabet = " \t\n+-0123456789abcdefABCDEFxXg.";
    const std::string digits = "0123456789";
    const std::string hexDigits = "0123456789abcdefABCDEF";
    std::mt19937 random(20240611u);
    auto pick = [&random](const std::string& from) {
        std::uniform_int_distribution<std::size_t> index(0, from.size() - 1);
        return from[index(random)];
    };
    std::uniform_int_distribution<int> lengths(0, 25);
    std::uniform_int_distribution<int> shapes(0, 5);
    std::uniform_int_distribution<int> runs(1, 25);
    const char* prefixes[] = {"", "", " ", "\t", "+", "-", "0", "00", "0x", "0X", "-0x", "+0", " -"};
    std::uniform_int_distribution<std::size_t> prefixIndex(0, sizeof(prefixes) / sizeof(prefixes[0]) - 1);

    for (int round = 0; round < 20000; ++round) {
        std::string text;
        switch (shapes(random)) {
        case 0:
        case 1: {
            // Any characters of the alphabet.
            int length = lengths(random);
            for (int i = 0; i < length; ++i) {
                text.push_back(pick(alphabet));
            }
            break;
        }
        case 2: {
            // A prefix, then a long decimal run that may overflow.
            text = prefixes[prefixIndex(random)];
            int length = runs(random);
            for (int i = 0; i < length; ++i) {
                text.push_back(pick(digits));
            }
            break;
        }
        case 3: {
            // A prefix, then a hexadecimal run, then anything.
            text = prefixes[prefixIndex(random)];
            int length = runs(random) % 12;
            for (int i = 0; i < length; ++i) {
                text.push_back(pick(hexDigits));
            }
            if (random() % 2 == 0) {
                text.push_back(pick(alphabet));
            }
            break;
        }
        case 4: {
            // Leading zeros before digits.
            text = prefixes[prefixIndex(random)];
            text.append(static_cast<std::size_t>(runs(random) % 15), '0');
            int length = runs(random) % 11;
            for (int i = 0; i < length; ++i) {
                text.push_back(pick(digits));
            }
            break;
        }
        default: {
            // Numbers around the 32-bit limit.
            static const char* const limits[] = {"4294967295", "4294967296", "ffffffff",
                                                 "100000000",  "429496729",  "FFFFFFFF0"};
            text = prefixes[prefixIndex(random)];
            text += limits[random() % 6];
            if (random() % 2 == 0) {
                text.push_back(pick(alphabet));
            }
            break;
        }
        }
        ExpectSameAsStream(text);
        if (::testing::Test::HasFailure()) {
            break;  // one failing text is enough to see the difference
        }
    }
}

namespace {

// A global locale that groups digits by thousands with ",".
struct ThousandsGrouping : std::numpunct<char> {
    char do_thousands_sep() const override { return ','; }
    std::string do_grouping() const override { return "\3"; }
};

class GroupingLocale {
public:
    GroupingLocale() : mOld(std::locale::global(std::locale(std::locale::classic(), new ThousandsGrouping))) {}
    ~GroupingLocale() { std::locale::global(mOld); }
    GroupingLocale(const GroupingLocale&) = delete;
    GroupingLocale& operator=(const GroupingLocale&) = delete;

private:
    std::locale mOld;
};

}  // namespace

TEST(VELStringIntValue, AProgramGetsTheNumberTheLibrarysOwnReadersGet)
{
    // QRMBrand::SetKey reads its text inside the library; this program passes
    // its own std::dec. Under a locale that groups digits, a stream would
    // read "1,000" as 1000; the library reads 1.
    GroupingLocale grouping;
    for (const char* text : {"1,000", "42", " 7x", "-3", "", "4294967296"}) {
        QRMBrand brand;
        ASSERT_EQ(brand.SetKey(VELString(text)), QRM_KIT_SUCCESS);
        EXPECT_EQ(VELString(text).GetIntValue(std::dec), brand.GetKey()) << text;
    }
}

TEST(VELStringIntValue, AGlobalLocaleThatGroupsDigitsChangesNothing)
{
    GroupingLocale grouping;
    EXPECT_EQ(VELString("1,000").GetIntValue(std::dec), 1U);
    EXPECT_EQ(VELString("1,000").GetIntValue(std::hex), 1U);
    EXPECT_EQ(VELString("1,000").GetIntValue(std::oct), 1U);
    EXPECT_EQ(VELString("17").GetIntValue(std::oct), 15U);
    QRMBrand brand;
    brand.SetKey(VELString("1,000"));
    EXPECT_EQ(brand.GetKey(), 1U);
}
