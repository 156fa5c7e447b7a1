// The text value of the base layer: construction, UTF-8 conversion, the
// code-unit comparisons and the helpers the readers and the category code
// depend on.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::vector<std::string> UTF8Of(const std::vector<VELString>& texts)
{
    std::vector<std::string> result;
    for (const VELString& text : texts) {
        result.push_back(text.GetUTF8String());
    }
    return result;
}

bool HasReplacementCharacter(const VELString& text)
{
    return text.GetUTF16String().find(u'\xFFFD') != std::u16string::npos;
}

bool HasSurrogate(const VELString& text)
{
    for (char16_t unit : text.GetUTF16String()) {
        if (unit >= 0xD800 && unit <= 0xDFFF) {
            return true;
        }
    }
    return false;
}

}  // namespace

TEST(VELStringConstruction, DefaultIsEmpty)
{
    VELString text;
    EXPECT_EQ(0u, text.GetLength());
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ("", text.GetUTF8String());
}

TEST(VELStringConstruction, FromASCIIKeepsEveryCharacter)
{
    VELString text("SoftwareBundle", VEL_CHAR_ENCODING_UTF8);
    EXPECT_EQ(14u, text.GetLength());
    EXPECT_EQ(u"SoftwareBundle", text.GetUTF16String());
    EXPECT_EQ(1, static_cast<int>(VEL_CHAR_ENCODING_UTF8));
}

TEST(VELStringConstruction, NullPointerGivesEmptyText)
{
    VELString text(static_cast<const char*>(nullptr));
    EXPECT_TRUE(text.IsEmpty());
}

TEST(VELStringConstruction, FromUTF8DecodesNonASCIIIntoCodeUnits)
{
    // "Grüße €" : two-byte and three-byte sequences, one code unit each.
    VELString text("Gr\xC3\xBC\xC3\x9F"
                   "e \xE2\x82\xAC");
    EXPECT_EQ(7u, text.GetLength());
    EXPECT_EQ(u"Gr\u00FC\u00DFe \u20AC", text.GetUTF16String());
}

TEST(VELStringConstruction, InvalidByteBecomesReplacementCharacter)
{
    VELString text("a\xFF"
                   "b");
    EXPECT_EQ(u"a\uFFFDb", text.GetUTF16String());
}

TEST(VELStringConstruction, MalformedSequencesNeverCrashAndGiveReplacementCharacters)
{
    const char* samples[] = {
        "\xC3",                  // truncated two-byte sequence at the end
        "x\xE2\x82",             // truncated three-byte sequence
        "\xC0\xAF",              // overlong encoding of "/"
        "\xED\xA0\x80",          // an encoded surrogate
        "\xF8\x88\x80\x80\x80",  // five-byte form
        "\x80\x80\x80",          // continuation bytes without a lead byte
        "ok\xF4\x90\x80\x80",    // beyond U+10FFFF
    };
    for (const char* sample : samples) {
        VELString text(sample);
        EXPECT_TRUE(HasReplacementCharacter(text)) << "sample " << ::testing::PrintToString(sample);
        EXPECT_FALSE(HasSurrogate(text)) << "sample " << ::testing::PrintToString(sample);
        // The text converts back to well-formed UTF-8.
        VELString again(text.GetUTF8String().c_str());
        EXPECT_EQ(text, again) << "sample " << ::testing::PrintToString(sample);
    }
}

TEST(VELStringConstruction, FromUTF16TakesTheCodeUnitsAsTheyAre)
{
    std::u16string units = {u'a', 0xD800, u'b', 0xDC00, 0xFFFF, 0};
    VELString text(units);
    EXPECT_EQ(6u, text.GetLength());
    EXPECT_EQ(units, text.GetUTF16String());
}

TEST(VELStringConstruction, CopyAndAssignmentAreIndependentValues)
{
    VELString original("first");
    VELString copy(original);
    VELString assigned;
    assigned = original;
    original = VELString("second");
    EXPECT_EQ("first", copy.GetUTF8String());
    EXPECT_EQ("first", assigned.GetUTF8String());
    EXPECT_EQ("second", original.GetUTF8String());
}

TEST(VELStringLength, CountsUTF16CodeUnitsNotBytesOrCharacters)
{
    EXPECT_EQ(3u, VELString("abc").GetLength());
    EXPECT_EQ(1u, VELString("\xC3\xA9").GetLength());          // é: two bytes, one unit
    EXPECT_EQ(1u, VELString("\xE2\x82\xAC").GetLength());      // €: three bytes, one unit
    EXPECT_EQ(2u, VELString("\xF0\x9F\x98\x80").GetLength());  // U+1F600: four bytes, two units
}

TEST(VELStringUTF8, RoundTripKeepsSupplementaryCharacters)
{
    const std::string utf8 = "v1 \xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80 end";
    VELString text(utf8.c_str());
    EXPECT_EQ(utf8, text.GetUTF8String());
    const std::u16string& units = text.GetUTF16String();
    ASSERT_EQ(13u, units.size());
    EXPECT_EQ(0xD83D, units[7]);
    EXPECT_EQ(0xDE00, units[8]);
}

TEST(VELStringUTF8, FromUTF8WithLengthReadsExactlyThatManyBytes)
{
    const char bytes[] = "abc\xC3\xA9"
                         "def";
    VELString text = VELString::FromUTF8(bytes, 5);
    EXPECT_EQ(u"abc\u00E9", text.GetUTF16String());
}

TEST(VELStringUTF8, UnpairedSurrogatesBecomeReplacementCharacters)
{
    EXPECT_EQ("a\xEF\xBF\xBD"
              "b",
              VELString(std::u16string{u'a', 0xD800, u'b'}).GetUTF8String());
    EXPECT_EQ("a\xEF\xBF\xBD"
              "b",
              VELString(std::u16string{u'a', 0xDC00, u'b'}).GetUTF8String());
    EXPECT_EQ("a\xEF\xBF\xBD", VELString(std::u16string{u'a', 0xDBFF}).GetUTF8String());
    // A low surrogate before a high one is no pair: both are replaced.
    EXPECT_EQ("\xEF\xBF\xBD\xEF\xBF\xBD", VELString(std::u16string{0xDC00, 0xD800}).GetUTF8String());
    // A proper pair is encoded as one four-byte sequence.
    EXPECT_EQ("\xF0\x9F\x98\x80", VELString(std::u16string{0xD83D, 0xDE00}).GetUTF8String());
}

TEST(VELStringComparison, EqualityIsExactAndCaseSensitive)
{
    EXPECT_TRUE(VELString("BIOS") == VELString("BIOS"));
    EXPECT_FALSE(VELString("BIOS") == VELString("bios"));
    EXPECT_FALSE(VELString("BIOS") == VELString("BIOS "));
    EXPECT_TRUE(VELString("BIOS") != VELString("bios"));
    EXPECT_FALSE(VELString("BIOS") != VELString("BIOS"));
    EXPECT_TRUE(VELString() == VELString(""));
    // Precomposed é and e followed by a combining accent are different texts.
    EXPECT_TRUE(VELString("\xC3\xA9") != VELString("e\xCC\x81"));
}

TEST(VELStringComparison, LessThanFollowsCodeUnitsWithPrefixFirst)
{
    EXPECT_TRUE(VELString("a") < VELString("b"));
    EXPECT_FALSE(VELString("b") < VELString("a"));
    EXPECT_TRUE(VELString("ab") < VELString("abc"));
    EXPECT_FALSE(VELString("abc") < VELString("ab"));
    EXPECT_TRUE(VELString("") < VELString("a"));
    EXPECT_FALSE(VELString("a") < VELString("a"));
    // Upper case before lower case, digits before letters.
    EXPECT_TRUE(VELString("Z") < VELString("a"));
    EXPECT_TRUE(VELString("9") < VELString("A"));
}

TEST(VELStringComparison, LessThanComparesCodeUnitsAsUnsigned)
{
    VELString high(std::u16string{0xFFFF});
    VELString ascii("z");
    EXPECT_TRUE(ascii < high);
    EXPECT_FALSE(high < ascii);
    // Code-unit order, not code-point order: the surrogate pair of U+1F600
    // (0xD83D 0xDE00) orders before U+FFFD although its code point is larger.
    VELString supplementary(std::u16string{0xD83D, 0xDE00});
    VELString replacement(std::u16string{0xFFFD});
    EXPECT_TRUE(supplementary < replacement);
    EXPECT_FALSE(replacement < supplementary);
}

TEST(VELStringComparison, LiteralOnTheLeftEqualsExactlyAndCaseSensitively)
{
    EXPECT_TRUE("BIOS" == VELString("BIOS"));
    EXPECT_FALSE("bios" == VELString("BIOS"));
    EXPECT_FALSE("BIO" == VELString("BIOS"));
    EXPECT_FALSE("BIOSX" == VELString("BIOS"));
    EXPECT_TRUE("" == VELString());
    EXPECT_FALSE("" == VELString("x"));
    EXPECT_TRUE("bios" != VELString("BIOS"));
    EXPECT_FALSE("BIOS" != VELString("BIOS"));
}

TEST(VELStringComparison, LiteralOnTheRightMirrorsTheLeft)
{
    EXPECT_TRUE(VELString("DRVR") == "DRVR");
    EXPECT_FALSE(VELString("DRVR") == "Drvr");
    EXPECT_FALSE(VELString("DRVR") == "DRV");
    EXPECT_TRUE(VELString("DRVR") != "drvr");
    EXPECT_FALSE(VELString("DRVR") != "DRVR");
}

TEST(VELStringComparison, LiteralNeverMatchesATextWithAnEmbeddedNul)
{
    VELString text(std::u16string{u'A', u'P', u'P', 0});
    EXPECT_FALSE("APP" == text);
    EXPECT_FALSE(text == "APP");
}

TEST(VELStringConcatenation, LiteralOnEitherSide)
{
    EXPECT_EQ(VELString("1.0.0"), VELString("1.0") + ".0");
    EXPECT_EQ(VELString("05"), "0" + VELString("5"));
    EXPECT_EQ(VELString("ab"), VELString("a") + VELString("b"));
    EXPECT_EQ(VELString("x"), VELString("x") + "");
    EXPECT_EQ(VELString("x"), "" + VELString("x"));
}

TEST(VELStringConcatenation, LeavesItsOperandsUnchanged)
{
    VELString base("1.2");
    VELString longer = base + ".0";
    VELString padded = "0" + base;
    EXPECT_EQ("1.2", base.GetUTF8String());
    EXPECT_EQ("1.2.0", longer.GetUTF8String());
    EXPECT_EQ("01.2", padded.GetUTF8String());
}

TEST(VELStringConcatenation, KeepsNonASCIICodeUnits)
{
    VELString text(u"\u00E9\U0001F600");
    EXPECT_EQ(VELString(u"<\u00E9\U0001F600"), "<" + text);
    EXPECT_EQ(VELString(u"\u00E9\U0001F600>"), text + ">");
}

TEST(VELStringSubString, TakesCountUnitsFromStart)
{
    VELString path("dir/sub/file.exe");
    EXPECT_EQ(VELString("file.exe"), path.SubString(8, 8));
    EXPECT_EQ(VELString("exe"), path.SubString(13, 3));
    EXPECT_EQ(VELString("dir"), path.SubString(0, 3));
    EXPECT_EQ(VELString(""), path.SubString(3, 0));
}

TEST(VELStringSubString, StartAtTheLengthGivesEmptyText)
{
    VELString text("name.");
    VELString rest = text.SubString(text.GetLength(), 0);
    EXPECT_TRUE(rest.IsEmpty());
    EXPECT_TRUE(text.SubString(text.GetLength(), 5).IsEmpty());
}

TEST(VELStringSubString, CountBeyondTheEndIsClamped)
{
    EXPECT_EQ(VELString("cd"), VELString("abcd").SubString(2, 100));
    EXPECT_TRUE(VELString("abcd").SubString(10, 2).IsEmpty());
}

TEST(VELStringSubString, WorksOnCodeUnits)
{
    VELString text(u"a\U0001F600b");
    EXPECT_EQ(VELString(std::u16string{0xDE00, u'b'}), text.SubString(2, 2));
}

TEST(VELStringReplaceAll, RemovesEveryBlankAndReturnsTheStringItself)
{
    VELString text(" Intel  Corporation ");
    VELString& result = text.ReplaceAll(VELString(" "), VELString(""));
    EXPECT_EQ(&text, &result);
    EXPECT_EQ(VELString("IntelCorporation"), text);
}

TEST(VELStringReplaceAll, OnlyBlanksGivesEmptyText)
{
    VELString text("    ");
    text.ReplaceAll(VELString(" "), VELString());
    EXPECT_TRUE(text.IsEmpty());
}

TEST(VELStringReplaceAll, EmptyPatternChangesNothing)
{
    VELString text("a b c");
    VELString& result = text.ReplaceAll(VELString(""), VELString("x"));
    EXPECT_EQ(&text, &result);
    EXPECT_EQ(VELString("a b c"), text);
}

TEST(VELStringReplaceAll, ReplacesLeftToRightWithoutOverlap)
{
    VELString text("aaaaa");
    text.ReplaceAll(VELString("aa"), VELString("b"));
    EXPECT_EQ(VELString("bba"), text);
}

TEST(VELStringReplaceAll, ReplacementContainingThePatternIsNotReplacedAgain)
{
    VELString text("x.y");
    text.ReplaceAll(VELString("."), VELString(".."));
    EXPECT_EQ(VELString("x..y"), text);
}

TEST(VELStringReplaceAll, MissingPatternChangesNothing)
{
    VELString text("abc");
    text.ReplaceAll(VELString("zz"), VELString("y"));
    EXPECT_EQ(VELString("abc"), text);
    text.ReplaceAll(VELString("abcd"), VELString("y"));
    EXPECT_EQ(VELString("abc"), text);
}

TEST(VELStringContainsOnlyAlphabets, TrueForLettersOfBothCases)
{
    EXPECT_TRUE(VELString("abcxyz").ContainsOnlyAlphabets());
    EXPECT_TRUE(VELString("ABCXYZ").ContainsOnlyAlphabets());
    EXPECT_TRUE(VELString("BiOs").ContainsOnlyAlphabets());
    EXPECT_TRUE(VELString("a").ContainsOnlyAlphabets());
}

TEST(VELStringContainsOnlyAlphabets, FalseForEmptyText) { EXPECT_FALSE(VELString().ContainsOnlyAlphabets()); }

TEST(VELStringContainsOnlyAlphabets, FalseWithADigitBlankOrOtherCharacter)
{
    EXPECT_FALSE(VELString("abc1").ContainsOnlyAlphabets());
    EXPECT_FALSE(VELString("ab c").ContainsOnlyAlphabets());
    EXPECT_FALSE(VELString(" ").ContainsOnlyAlphabets());
    EXPECT_FALSE(VELString("a-b").ContainsOnlyAlphabets());
    EXPECT_FALSE(VELString("a_b").ContainsOnlyAlphabets());
    EXPECT_FALSE(VELString("@[`{").ContainsOnlyAlphabets());  // neighbours of A-Z and a-z
    EXPECT_FALSE(VELString("caf\xC3\xA9").ContainsOnlyAlphabets());
}

TEST(VELStringRemoveVowels, RemovesAEIOUInBothCasesAndKeepsY)
{
    EXPECT_EQ(VELString("YyBCD"), VELString("AEIOUaeiouYyBCD").RemoveVowels());
    EXPECT_EQ(VELString("Ntwrk"), VELString("Network").RemoveVowels());
    EXPECT_EQ(VELString("Systm Mngmnt"), VELString("System Management").RemoveVowels());
}

TEST(VELStringRemoveVowels, LeavesTheOriginalUnchanged)
{
    VELString original("Audio");
    VELString stripped = original.RemoveVowels();
    EXPECT_EQ(VELString("Audio"), original);
    EXPECT_EQ(VELString("d"), stripped);
}

TEST(VELStringRemoveVowels, OnlyVowelsGivesEmptyAndNoVowelsKeepsAll)
{
    EXPECT_TRUE(VELString("aEiOu").RemoveVowels().IsEmpty());
    EXPECT_EQ(VELString("BCD123 xyz"), VELString("BCD123 xyz").RemoveVowels());
    EXPECT_TRUE(VELString().RemoveVowels().IsEmpty());
}

TEST(VELStringRemoveVowels, KeepsAccentedVowels)
{
    EXPECT_EQ(VELString("\xC3\xA9t"), VELString("\xC3\xA9ta").RemoveVowels());
}

TEST(VELStringCombinations, PairsComeInPositionOrderFirstPositionSlowest)
{
    VELString text("NTWRK");
    char buffer[3] = {};
    std::vector<VELString> out;
    text.ListCombinationsOfString(buffer, 0, text.GetLength() - 1, 0, 2, out);
    std::vector<std::string> expected = {"NT", "NW", "NR", "NK", "TW", "TR", "TK", "WR", "WK", "RK"};
    EXPECT_EQ(expected, UTF8Of(out));
}

TEST(VELStringCombinations, TriplesComeInPositionOrder)
{
    VELString text("NTWRK");
    char buffer[4] = {};
    std::vector<VELString> out;
    text.ListCombinationsOfString(buffer, 0, text.GetLength() - 1, 0, 3, out);
    std::vector<std::string> expected = {"NTW", "NTR", "NTK", "NWR", "NWK", "NRK", "TWR", "TWK", "TRK", "WRK"};
    EXPECT_EQ(expected, UTF8Of(out));
}

TEST(VELStringCombinations, AppendsWithoutClearing)
{
    VELString text("ABC");
    char buffer[4] = {};  // room for the larger selection size and its terminator
    std::vector<VELString> out = {VELString("kept")};
    text.ListCombinationsOfString(buffer, 0, 2, 0, 2, out);
    std::vector<std::string> expected = {"kept", "AB", "AC", "BC"};
    EXPECT_EQ(expected, UTF8Of(out));
    text.ListCombinationsOfString(buffer, 0, 2, 0, 3, out);
    expected.push_back("ABC");
    EXPECT_EQ(expected, UTF8Of(out));
}

TEST(VELStringCombinations, UsesOnlyPositionsFromStartToEnd)
{
    VELString text("ABCDE");
    char buffer[3] = {};
    std::vector<VELString> out;
    text.ListCombinationsOfString(buffer, 1, 3, 0, 2, out);
    std::vector<std::string> expected = {"BC", "BD", "CD"};
    EXPECT_EQ(expected, UTF8Of(out));
}

TEST(VELStringCombinations, SizeOneListsEveryCharacterAndTooLargeListsNothing)
{
    VELString text("XYZ");
    char buffer[5] = {};
    std::vector<VELString> singles;
    text.ListCombinationsOfString(buffer, 0, 2, 0, 1, singles);
    EXPECT_EQ((std::vector<std::string>{"X", "Y", "Z"}), UTF8Of(singles));
    std::vector<VELString> none;
    text.ListCombinationsOfString(buffer, 0, 2, 0, 4, none);
    EXPECT_TRUE(none.empty());
}

TEST(VELStringCombinations, NumberOfSelectionsIsTheBinomialCoefficient)
{
    VELString text("ABCDEFGH");
    char buffer[5] = {};
    std::vector<VELString> out;
    text.ListCombinationsOfString(buffer, 0, 7, 0, 4, out);
    EXPECT_EQ(70u, out.size());  // 8 choose 4
    EXPECT_EQ(VELString("ABCD"), out.front());
    EXPECT_EQ(VELString("EFGH"), out.back());
}
