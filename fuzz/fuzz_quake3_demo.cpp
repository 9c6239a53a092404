#include <cstddef>
#include <cstdint>

#include "fuzz/plain_demo_reader.h"

namespace {

void Check(std::string_view bytes, bool neverRejected) {
    zentar::fuzz::FuzzFile file(bytes);
    zentar::fuzz::Compare(zentar::fuzz::PlainQuake3(bytes, neverRejected),
                          zentar::ReadQuake3Header(file, neverRejected), file);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    Check(bytes, false);
    Check(bytes, true);
    return 0;
}
