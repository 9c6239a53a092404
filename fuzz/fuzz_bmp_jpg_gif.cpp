// What the system decodes is looked at first, so that no file takes more memory than one may.
#include <cstddef>
#include <cstdint>
#include <optional>

#include "fuzz/decoder_check.h"
#include "fuzz/require.h"
#include "platform/nviewlib/claimed_size.h"
#include "platform/nviewlib/plain_bmp.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::optional<nviewlib::Claim> claim = nviewlib::ReadClaim({data, size});
    if (claim && nviewlib::Affordable(*claim, size)) {
        const auto pixels = std::int64_t{claim->size.width} * claim->size.height;
        zentar::fuzz::Require(claim->size.width > 0 && claim->size.height > 0 &&
                              pixels <= nviewlib::kMostPixels && claim->decoderBytes >= 0);
    }
    zentar::fuzz::CheckDecoder(nviewlib::DecodePlainBmp, {data, size});
    return 0;
}
