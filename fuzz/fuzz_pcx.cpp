#include <cstddef>
#include <cstdint>

#include "fuzz/decoder_check.h"
#include "platform/nviewlib/pcx_decoder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zentar::fuzz::CheckDecoder(nviewlib::DecodePcx, {data, size});
    return 0;
}
