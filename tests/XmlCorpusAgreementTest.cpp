// The XML layer against xmllint on the well-formedness corpus
// (tests/xml-corpus/, written by its make_corpus.py): for every file, the
// library's parser must accept exactly the documents that
// `xmllint --noout --nonet` accepts and refuse the others. A few files are
// exceptions on purpose; for those the library must decide the opposite of
// xmllint, and docs/quality.md must say why.
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <sys/wait.h>

namespace {

const char* const kCorpusDir = QRMKIT_XML_CORPUS_DIR;
const char* const kQualityDoc = QRMKIT_QUALITY_DOC;
const char* const kQualitySection = "## Well-formedness: where the library and xmllint differ";

// Files on which the library decides the opposite of xmllint on purpose,
// with the reason. Each must appear in docs/quality.md, in the section above.
const std::map<std::string, std::string>& Exceptions()
{
    static const std::map<std::string, std::string> exceptions = {
        {"internal-subset-entity-used.xml",
         "the library never expands declared entities, so a document that relies on them is refused"},
        {"encoding-windows-1252.xml",
         "the library reads UTF-8, UTF-16, ISO-8859-1 and US-ASCII only; a document in another encoding is refused"},
        {"utf16le-bytes-declared-utf8.xml",
         "a declaration that names an encoding the document is not in is refused; xmllint ignores it"},
        {"nul-after-root.xml", "NUL is no character XML allows; xmllint ends the document at a NUL after the root"},
        {"us-ascii-non-ascii-after-root.xml",
         "a document declared US-ASCII holds only ASCII; xmllint ends the document at bytes it cannot decode"},
        {"utf16le-no-bom-declared-utf8.xml",
         "a declaration that names an encoding the document is not in is refused; xmllint ignores it"},
        {"utf16le-high-surrogate-at-end.xml",
         "an unpaired surrogate is no character; xmllint leaves a character cut at the end of the document out"},
    };
    return exceptions;
}

// The corpus files (*.xml), sorted by name.
std::vector<std::string> CorpusFiles()
{
    std::vector<std::string> names;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(kCorpusDir, error)) {
        if (entry.is_regular_file() && entry.path().extension() == ".xml") {
            names.push_back(entry.path().filename().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string PathOf(const std::string& name) { return std::string(kCorpusDir) + "/" + name; }

// Wraps a path in single quotes for the shell.
std::string ShellQuoted(const std::string& text)
{
    std::string quoted = "'";
    for (char c : text) {
        if (c == '\'') {
            quoted += "'\\''";
        } else {
            quoted += c;
        }
    }
    return quoted + "'";
}

bool XmllintIsInstalled() { return std::system("command -v xmllint >/dev/null 2>&1") == 0; }

// xmllint's decision on a file: true when it finds the document well-formed.
// Fails the test (and answers false) when xmllint cannot give one.
bool XmllintAccepts(const std::string& path, bool& decided)
{
    decided = false;
    int status = std::system(("xmllint --noout --nonet " + ShellQuoted(path) + " >/dev/null 2>&1").c_str());
    if (status == -1 || !WIFEXITED(status)) {
        ADD_FAILURE() << "xmllint did not run to its end on " << path;
        return false;
    }
    int code = WEXITSTATUS(status);
    if (code == 126 || code == 127) {
        ADD_FAILURE() << "xmllint could not be started (exit code " << code
                      << "): install libxml2-utils (scripts/setup)";
        return false;
    }
    decided = true;
    return code == 0;
}

// The library's decision on a file: true when Parse returns a document and
// leaves the error code at 0.
bool LibraryAccepts(const std::string& path, std::string& errorText)
{
    int errorCode = 0;
    VELString text;
    std::unique_ptr<VELXMLDocument> document(VELDOMParser::Parse(VELFile(path), errorCode, text));
    errorText = text.GetUTF8String();
    return errorCode == 0 && document != nullptr;
}

const char* Verdict(bool accepted) { return accepted ? "accepted" : "refused"; }

// The test name of a corpus file: its name without ".xml", each character
// outside [A-Za-z0-9] made '_'.
std::string CaseName(const std::string& fileName)
{
    std::string name = fileName.substr(0, fileName.size() - 4);
    for (char& c : name) {
        if (!std::isalnum(static_cast<unsigned char>(c))) {
            c = '_';
        }
    }
    return name;
}

class XmlCorpusAgreement : public testing::TestWithParam<std::string> {};

TEST_P(XmlCorpusAgreement, LibraryDecidesAsXmllint)
{
    ASSERT_TRUE(XmllintIsInstalled()) << "xmllint not found: install libxml2-utils (scripts/setup); "
                                         "the corpus cannot be judged without it";
    const std::string name = GetParam();
    const std::string path = PathOf(name);

    bool decided = false;
    bool xmllint = XmllintAccepts(path, decided);
    ASSERT_TRUE(decided);
    std::string errorText;
    bool library = LibraryAccepts(path, errorText);

    auto exception = Exceptions().find(name);
    if (exception == Exceptions().end()) {
        EXPECT_EQ(xmllint, library) << name << ": xmllint " << Verdict(xmllint) << " it, the library "
                                    << Verdict(library) << " it" << (library ? "" : " (" + errorText + ")");
    } else {
        EXPECT_NE(xmllint, library) << name << " is an exception (" << exception->second
                                    << "), yet the library decides as xmllint: it " << Verdict(library)
                                    << " it; remove it from the exceptions and docs/quality.md";
    }
}

INSTANTIATE_TEST_SUITE_P(XmlCorpus, XmlCorpusAgreement, testing::ValuesIn(CorpusFiles()),
                         [](const testing::TestParamInfo<std::string>& info) { return CaseName(info.param); });

TEST(XmlCorpus, HoldsTheCorpusAndEveryException)
{
    std::vector<std::string> files = CorpusFiles();
    EXPECT_GE(files.size(), 70u) << "the corpus in " << kCorpusDir << " is missing or incomplete";
    for (const auto& exception : Exceptions()) {
        EXPECT_TRUE(std::binary_search(files.begin(), files.end(), exception.first))
            << "the exception " << exception.first << " names no corpus file";
    }
}

TEST(XmlCorpus, EveryExceptionIsExplainedInTheQualityGuide)
{
    std::ifstream in(kQualityDoc, std::ios::binary);
    ASSERT_TRUE(in) << "cannot read " << kQualityDoc;
    std::stringstream contents;
    contents << in.rdbuf();
    const std::string text = contents.str();

    std::size_t start = text.find(kQualitySection);
    ASSERT_NE(std::string::npos, start) << kQualityDoc << " has no section \"" << kQualitySection << "\"";
    std::size_t end = text.find("\n## ", start + 1);
    const std::string section = text.substr(start, end == std::string::npos ? std::string::npos : end - start);
    for (const auto& exception : Exceptions()) {
        EXPECT_NE(std::string::npos, section.find("`" + exception.first + "`"))
            << "the exception " << exception.first << " is not explained in that section of " << kQualityDoc;
    }
}

}  // namespace
