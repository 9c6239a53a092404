// The folders of demos that the benchmarks work on. They are made once and kept.
#pragma once

#include <string>

namespace zentar::benchmarks {

// 1,000 Quake 2 demos of 500 KB, 500 MB in all; each ends with kLastWords.
std::string LargeDemos(const std::string& base);
// 10,000 Quake 2 demos of 8 KB.
std::string ManyDemos(const std::string& base);

inline constexpr const char* kLastWords = "Fred: well played";

}  // namespace zentar::benchmarks
