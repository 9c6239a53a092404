// The folders of files that the benchmarks work on. They are made once and kept.
#pragma once

#include <string>

namespace zentar::benchmarks {

// 1,000 Quake 2 demos of 500 KB, 500 MB in all; each ends with kLastWords.
std::string LargeDemos(const std::string& base);
// 10,000 Quake 2 demos of 8 KB.
std::string ManyDemos(const std::string& base);

// 20,000 screenshots of no pixels and 10,000 preview images, none of which is looked into.
std::string ManyShots(const std::string& base);
// Two TGA screenshots of 1920 x 1080 pixels, "one.tga" and "two.tga", and one of 3840 x 2160,
// "huge.tga".
std::string LargeShots(const std::string& base);

inline constexpr const char* kLastWords = "Fred: well played";

}  // namespace zentar::benchmarks
