// Memory of reading one catalog: a process that does nothing but Parse.
// Prints one JSON object: the file's size, the peak resident set of the
// process, its resident set before reading (the program itself), and the
// heap the catalog store holds once Parse has returned (the document is
// freed by then).
//
//   qrmkit_catalog_memory FILE
#include <QRMKit.h>

#include <malloc.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <cstdio>

namespace {

long long PeakResidentBytes()
{
    struct rusage usage;
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<long long>(usage.ru_maxrss) * 1024;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: qrmkit_catalog_memory FILE\n");
        return 1;
    }
    struct stat info;
    if (stat(argv[1], &info) != 0) {
        std::fprintf(stderr, "qrmkit_catalog_memory: %s: no such file\n", argv[1]);
        return 1;
    }
    QRMKitAPI* api = QRMKitAPI::Instance();
    VELFile file(argv[1]);
    const long long startResident = PeakResidentBytes();
    const long long heapBefore = static_cast<long long>(mallinfo2().uordblks);
    if (api->Parse(file) != QRM_KIT_SUCCESS) {
        std::fprintf(stderr, "qrmkit_catalog_memory: %s does not parse\n", argv[1]);
        return 1;
    }
    const long long store = static_cast<long long>(mallinfo2().uordblks) - heapBefore;
    std::printf("{\"file_bytes\": %lld, \"peak_resident_bytes\": %lld, \"start_resident_bytes\": %lld, "
                "\"store_bytes\": %lld}\n",
                static_cast<long long>(info.st_size), PeakResidentBytes(), startResident, store);
    return 0;
}
