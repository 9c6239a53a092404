#include "demos/demo_name.h"

#include "core/text.h"

namespace zentar {

namespace {

// What an entry's extension looks like once the markers stand before it.
constexpr std::string_view kMarked48 = " .dm3";
constexpr std::string_view kMarked66 = "  .dm3";

std::string WithOtherEnd(std::string_view name, std::size_t drop, std::string_view end) {
    return std::string(name.substr(0, name.size() - drop)).append(end);
}

std::string Marked(std::string_view fileName) {
    if (EndsWithAnyCase(fileName, kDm48)) {
        return WithOtherEnd(fileName, kDm48.size(), kMarked48);
    }
    if (EndsWithAnyCase(fileName, kDm66)) {
        return WithOtherEnd(fileName, kDm66.size(), kMarked66);
    }
    return std::string(fileName);
}

}  // namespace

std::optional<std::string> DemoEntry(std::string_view fileName, std::string_view extension) {
    std::string name = Marked(fileName);
    if (extension.empty() || !EndsWithAnyCase(name, extension)) {
        return std::nullopt;
    }
    name.resize(name.size() - extension.size());
    // "duel .dm3" would stand for "duel.dm_48", which is then what a deletion would hit.
    return EndsWithAnyCase(fileName, RealExtension(name, extension)) ? std::optional(name)
                                                                     : std::nullopt;
}

std::string_view RealExtension(std::string_view entry, std::string_view extension) {
    // Blanks at the end of another game's demo name are part of the name.
    if (extension != kDm3) {
        return extension;
    }
    // Two blanks end in one blank too, so they are looked for first.
    if (entry.ends_with("  ")) {
        return kDm66;
    }
    return entry.ends_with(' ') ? kDm48 : kDm3;
}

std::string_view EntryMarkers(std::string_view realExtension) {
    if (realExtension == kDm66) {
        return "  ";
    }
    return realExtension == kDm48 ? " " : "";
}

std::string RealPath(std::string_view folder, std::string_view entry, std::string_view extension) {
    const std::string_view real = RealExtension(entry, extension);
    entry.remove_suffix(EntryMarkers(real).size());
    return std::string(folder).append(entry).append(real);
}

}  // namespace zentar
