#include "benchmarks/large_executable.h"

#include <cstdint>
#include <random>

namespace zentar::benchmarks {

std::string LargeExecutable(std::size_t length) {
    std::mt19937_64 random(7);
    std::string bytes;
    bytes.reserve(length);
    while (bytes.size() < length) {
        const std::uint64_t next = random();
        if (next % 8 == 0) {
            bytes += "Couldn't load %s.\n";
        } else if (next % 8 < 3) {
            bytes.append(8, '\0');
        } else {
            bytes.append(reinterpret_cast<const char*>(&next), sizeof next);
        }
    }
    bytes.resize(length);
    bytes.replace(PlaceOfMessage(length), kGameMessage.size(), kGameMessage);
    return bytes;
}

}  // namespace zentar::benchmarks
