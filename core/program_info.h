// Who makes the program, and where it lives on the web.
#pragma once

#include <string>
#include <string_view>

namespace zentar {

// The build defines ZENTAR_VERSION_TEXT, ZENTAR_WEB_SITE and ZENTAR_MAP_SEARCH.
inline constexpr const char* kVersion = "v" ZENTAR_VERSION_TEXT " BETA";
inline constexpr std::string_view kVersionLine = "Zentar v" ZENTAR_VERSION_TEXT " BETA";
inline constexpr std::string_view kAuthors = "The Zentar developers";
inline constexpr std::string_view kWebSite = ZENTAR_WEB_SITE;
// A web search, up to its parameter that takes the words.
inline constexpr std::string_view kMapSearch = ZENTAR_MAP_SEARCH;

// In the files that the program makes.
inline std::string WebSiteLine() { return "Web Site: " + std::string(kWebSite); }

}  // namespace zentar
