// The images that players and other programs made, where such are at hand.
#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "platform/nviewlib/pcx_decoder.h"
#include "platform/nviewlib/tga_decoder.h"
#include "tests/unit/nviewlib/outcome.h"

namespace nviewlib::testing {

inline std::filesystem::path RealImages() {
    return std::filesystem::path(ZENTAR_TEST_SOURCE_DIR) / ".." / "shared" / "data";
}

inline std::string Slurp(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

// All files of a folder ("tga", "pcx"), whole or broken.
inline std::vector<std::filesystem::path> FilesOf(const std::string& kind) {
    std::vector<std::filesystem::path> paths;
    if (std::filesystem::exists(RealImages() / kind)) {
        for (const auto& entry : std::filesystem::directory_iterator(RealImages() / kind)) {
            if (entry.is_regular_file()) {
                paths.push_back(entry.path());
            }
        }
    }
    return paths;
}

inline Decoder DecoderOf(const std::string& kind) { return kind == "tga" ? DecodeTga : DecodePcx; }

}  // namespace nviewlib::testing
