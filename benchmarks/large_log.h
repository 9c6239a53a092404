// The logs that the benchmarks read.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace zentar::benchmarks {

// Who speaks in the logs, without colours.
inline constexpr std::array<std::string_view, 20> kSpeakers = {
    "Anarki", "Bones",  "Cadavre", "Daemia", "Visor",   "Grunt",  "Keel",
    "Klesk",  "Lucy",   "Mynx",    "Orbb",   "Patriot", "Ranger", "Razor",
    "Slash",  "Stripe", "TankJr",  "Uriel",  "Wrack",   "Xaero"};

// A log of a Quake 3 server and its console, of which each line is like those that games write:
// items, kills, speech in colours. Made once; gives its path.
std::string LargeLog(const std::string& base, std::uint64_t bytes);

}  // namespace zentar::benchmarks
