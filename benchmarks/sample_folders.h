// The folders of files that the benchmarks work on. They are made once and kept.
#pragma once

#include <array>
#include <string>

namespace zentar::benchmarks {

// 1,000 Quake 2 demos of 500 KB, 500 MB in all, or fewer; each ends with kLastWords.
std::string LargeDemos(const std::string& base, int count = 1000);
// 10,000 Quake 2 demos of 8 KB.
std::string ManyDemos(const std::string& base);

// 20,000 screenshots of no pixels and 10,000 preview images, none of which is looked into.
std::string ManyShots(const std::string& base);
// Two TGA screenshots of 1920 x 1080 pixels, "one.tga" and "two.tga", and one of 3840 x 2160,
// "huge.tga".
std::string LargeShots(const std::string& base);

// How the files of such a folder are called, so that no order of the names is the order of the
// folder: "demo7919", without an extension.
std::string SampleName(const std::string& stem, int number, int count);

inline constexpr const char* kLastWords = "Fred: well played";

// What is looked for in the large demos.
struct PhraseCase {
    const char* name;
    const char* phrase;
};

// In the demos' play, bytes with few bits set are frequent, "w" and "~" are rare.
inline constexpr std::array<PhraseCase, 3> kPhraseCases = {
    {{"absent, rare first byte", "~wow Fred was here"},
     {"absent, common first byte", "@ a frequent beginning"},
     {"at the end of each demo", kLastWords}}};

}  // namespace zentar::benchmarks
