// Reading speed: the catalog parse against the floor it cannot beat, the XML
// parser loading the same file and walking every element and attribute once;
// and the share of the parse that goes to the well-formedness checks the XML
// layer adds to that parser.
//
//   qrmkit_bench --catalog=FILE [--inventory=FILE] [benchmark flags]
#include <QRMKit.h>

#include "base/VELXMLWellFormed.h"

#include <benchmark/benchmark.h>
#include <pugixml.hpp>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace {

std::string gCatalog;
std::string gInventory;

// Loads the file and touches every element name, attribute name and value.
void BM_XMLParserLoadAndWalk(benchmark::State& state)
{
    for (auto _ : state) {
        pugi::xml_document document;
        pugi::xml_parse_result result = document.load_file(gCatalog.c_str());
        if (!result) {
            state.SkipWithError("the catalog does not load");
            return;
        }
        std::size_t touched = 0;
        pugi::xml_node node = document.document_element();
        while (node) {
            if (node.type() == pugi::node_element) {
                touched += std::strlen(node.name());
                for (pugi::xml_attribute attribute : node.attributes()) {
                    touched += std::strlen(attribute.name()) + std::strlen(attribute.value());
                }
            }
            if (node.first_child()) {
                node = node.first_child();
            } else {
                while (node && !node.next_sibling()) {
                    node = node.parent();
                }
                if (node) {
                    node = node.next_sibling();
                }
            }
        }
        benchmark::DoNotOptimize(touched);
    }
}

// The checks Parse makes before the XML parser reads the text: decoding and
// well-formedness, on the catalog's bytes already in memory. With
// `beyondAscii`, a comment holding a character beyond ASCII is put before
// the root, as a catalog with texts in other languages has them early on:
// names are read character by character only in tags that hold such
// characters, so the checks must cost about the same.
void BM_WellFormednessCheck(benchmark::State& state, bool beyondAscii)
{
    FILE* file = std::fopen(gCatalog.c_str(), "rb");
    std::string bytes;
    char chunk[1 << 16];
    for (std::size_t got = 0; file != nullptr && (got = std::fread(chunk, 1, sizeof chunk, file)) > 0;) {
        bytes.append(chunk, got);
    }
    if (file != nullptr) {
        std::fclose(file);
    }
    if (beyondAscii) {
        const std::size_t declarationEnd = bytes.find("?>");
        if (declarationEnd == std::string::npos) {
            state.SkipWithError("the catalog has no XML declaration to put the comment after");
            return;
        }
        bytes.insert(declarationEnd + 2, "<!-- \xC3\xA9t\xC3\xA9 -->");
    }
    // The bytes are copied once: Parse reads them from the file into such a
    // buffer anyway, and UTF-8 text is checked where it lies.
    qrm::detail::XmlBytes text;
    void* copy = pugi::get_memory_allocation_function()(bytes.size());
    std::memcpy(copy, bytes.data(), bytes.size());
    text.Reset(copy, bytes.size());
    for (auto _ : state) {
        qrm::detail::XmlFault fault;
        if (!qrm::detail::DecodeXmlText(text, fault) || !qrm::detail::CheckXmlText(text.Data(), text.Size(), fault)) {
            state.SkipWithError(("the catalog is not well-formed: " + fault.what).c_str());
            return;
        }
    }
}

void BM_Parse(benchmark::State& state)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    for (auto _ : state) {
        if (api->Parse(VELFile(gCatalog)) != QRM_KIT_SUCCESS) {
            state.SkipWithError("the catalog does not parse");
            return;
        }
    }
    std::vector<QRMSoftwareComponent*> components;
    api->GetSoftwareComponents(components);
    state.counters["components"] = static_cast<double>(components.size());
}

// The inventory store accumulates for the life of the process, so every
// measurement reads the inventory in a fresh child process.
void BM_ParseInventory(benchmark::State& state)
{
    for (auto _ : state) {
        int channel[2];
        if (::pipe(channel) != 0) {
            state.SkipWithError("no pipe");
            return;
        }
        pid_t child = ::fork();
        if (child == 0) {
            ::close(channel[0]);
            auto start = std::chrono::steady_clock::now();
            QRMKitReturnCode code = QRMKitAPI::Instance()->ParseInventory(VELFile(gInventory));
            double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
            if (code != QRM_KIT_SUCCESS) {
                seconds = -1;
            }
            ssize_t written = ::write(channel[1], &seconds, sizeof seconds);
            ::_exit(written == sizeof seconds ? 0 : 1);
        }
        ::close(channel[1]);
        double seconds = -1;
        ssize_t got = ::read(channel[0], &seconds, sizeof seconds);
        ::close(channel[0]);
        int status = 0;
        ::waitpid(child, &status, 0);
        if (got != sizeof seconds || seconds < 0) {
            state.SkipWithError("the inventory does not parse");
            return;
        }
        state.SetIterationTime(seconds);
    }
}

// Reads the catalog and the inventory once, then measures the query alone.
void BM_ApplicableUpdates(benchmark::State& state)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    if (api->Parse(VELFile(gCatalog)) != QRM_KIT_SUCCESS) {
        state.SkipWithError("the catalog does not parse");
        return;
    }
    std::size_t entries = 0;
    for (auto _ : state) {
        std::map<QRMIApplication*, QRMSoftwareComponent*> updates;
        if (api->GetApplicableUpdates(updates, QRM_OS_ARCH_X64, QRM_BUNDLE_BTW64) != QRM_KIT_SUCCESS) {
            state.SkipWithError("no bundle applies to the inventory");
            return;
        }
        entries = updates.size();
    }
    std::vector<QRMIDevice*> devices;
    api->GetInventory(devices);
    state.counters["devices"] = static_cast<double>(devices.size());
    state.counters["updates"] = static_cast<double>(entries);
}

void BM_CategoryQueries(benchmark::State& state)
{
    QRMKitAPI* api = QRMKitAPI::Instance();
    if (api->Parse(VELFile(gCatalog)) != QRM_KIT_SUCCESS) {
        state.SkipWithError("the catalog does not parse");
        return;
    }
    for (auto _ : state) {
        std::map<VELString, VELString> values;
        std::map<VELString, VELString> acronyms;
        std::map<VELString, std::vector<VELString>> list;
        api->GetCategoryValues(values);
        api->GetAcronymForCategoryValues(acronyms);
        api->ListCatalogAndRVUGeneratedCategoryValues(list);
        benchmark::DoNotOptimize(list.size());
    }
}

}  // namespace

int main(int argc, char** argv)
{
    std::vector<char*> rest;
    for (int i = 0; i < argc; ++i) {
        std::string argument = argv[i];
        if (argument.rfind("--catalog=", 0) == 0) {
            gCatalog = argument.substr(10);
        } else if (argument.rfind("--inventory=", 0) == 0) {
            gInventory = argument.substr(12);
        } else {
            rest.push_back(argv[i]);
        }
    }
    if (gCatalog.empty()) {
        std::cerr << "usage: qrmkit_bench --catalog=FILE [--inventory=FILE] [benchmark flags]\n";
        return 1;
    }
    benchmark::RegisterBenchmark("XMLParserLoadAndWalk", BM_XMLParserLoadAndWalk)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("Parse", BM_Parse)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("WellFormednessCheck", BM_WellFormednessCheck, false)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("WellFormednessCheckBeyondASCII", BM_WellFormednessCheck, true)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("CategoryQueries", BM_CategoryQueries)->Unit(benchmark::kMillisecond);
    if (!gInventory.empty()) {
        benchmark::RegisterBenchmark("ParseInventory", BM_ParseInventory)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
        // The inventory store keeps what it reads: read it once, here.
        if (QRMKitAPI::Instance()->ParseInventory(VELFile(gInventory)) != QRM_KIT_SUCCESS) {
            std::cerr << "qrmkit_bench: " << gInventory << " does not parse\n";
            return 1;
        }
        benchmark::RegisterBenchmark("ApplicableUpdates", BM_ApplicableUpdates)->Unit(benchmark::kMillisecond);
    }
    int count = static_cast<int>(rest.size());
    benchmark::Initialize(&count, rest.data());
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
