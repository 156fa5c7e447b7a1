// The tool's unpacking of compressed documents and archives: any bytes give
// either the unpacked document (no larger than the limit) or a ToolError
// with a message naming the input; never a crash, a leak or unbounded
// memory.
#include "Input.h"
#include "Library.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

// Small enough that every input stays far below the fuzzer's memory limit.
constexpr std::size_t kLimit = std::size_t(16) << 20;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    try {
        const std::string document = qrmtool::Unpack("input", bytes, kLimit);
        if (document.size() > kLimit) {
            std::abort();
        }
    } catch (const qrmtool::ToolError& error) {
        const std::string message = error.what();
        if (message.rfind("input: ", 0) != 0 || error.File() != "input") {
            std::abort();  // every refusal names the input
        }
    }
    return 0;
}
