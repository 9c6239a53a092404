// What the system decodes is looked at first, so that no file takes more memory than one may.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>

#include "fuzz/decoder_check.h"
#include "platform/nviewlib/claimed_size.h"
#include "platform/nviewlib/plain_bmp.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::optional<nviewlib::Claim> claim = nviewlib::ReadClaim({data, size});
    if (claim && nviewlib::Affordable(*claim, size)) {
        const auto pixels = std::int64_t{claim->size.width} * claim->size.height;
        if (claim->size.width < 1 || claim->size.height < 1 || pixels > nviewlib::kMostPixels ||
            claim->decoderBytes < 0) {
            std::abort();
        }
    }
    zentar::fuzz::CheckDecoder(nviewlib::DecodePlainBmp, {data, size});
    return 0;
}
