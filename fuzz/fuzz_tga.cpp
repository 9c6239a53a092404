#include <cstddef>
#include <cstdint>

#include "fuzz/decoder_check.h"
#include "platform/nviewlib/tga_decoder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zentar::fuzz::CheckDecoder(nviewlib::DecodeTga, {data, size});
    return 0;
}
