#include <cstddef>
#include <cstdint>

#include "fuzz/plain_demo_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    zentar::fuzz::FuzzFile file(bytes);
    zentar::fuzz::Compare(zentar::fuzz::PlainQuake2(bytes), zentar::ReadQuake2Header(file), file);
    return 0;
}
