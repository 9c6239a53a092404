// Who makes the program, and where it lives on the web.
#pragma once

#include <string>
#include <string_view>

namespace zentar {

inline constexpr std::string_view kVersionLine = "Zentar v0.99 BETA";
inline constexpr std::string_view kAuthors = "The Zentar developers";
// Set at build time with -DZENTAR_WEB_SITE=…
inline constexpr std::string_view kWebSite = ZENTAR_WEB_SITE;
// A web search, up to its parameter that takes the words. Set with -DZENTAR_MAP_SEARCH=…
inline constexpr std::string_view kMapSearch = ZENTAR_MAP_SEARCH;

// In the files that the program makes.
inline std::string WebSiteLine() { return "Web Site: " + std::string(kWebSite); }

}  // namespace zentar
