#include "demos/demo_list.h"

#include <memory>
#include <optional>
#include <utility>

#include "core/text.h"
#include "demos/demo_name.h"
#include "demos/phrase_search.h"

namespace zentar {

namespace {

struct FoundDemo {
    std::string fileName;
    std::string entry;
};

std::vector<FoundDemo> DemosIn(FileSystem& files, const std::string& folder,
                               std::string_view extension) {
    std::vector<FoundDemo> demos;
    const auto collect = [&](const FolderEntry& found) {
        if (found.info.isFolder) {
            return;
        }
        if (std::optional<std::string> entry = DemoEntry(found.name, extension)) {
            demos.push_back({found.name, std::move(*entry)});
        }
    };
    // Of a folder that stops answering, those demos are shown that it named before.
    IgnoreFailure(files.Enumerate(folder, collect));
    return demos;
}

bool Passes(FileSystem& files, const std::string& path, PhraseSearch& search, bool contain) {
    const Result<std::unique_ptr<ReadableFile>> opened = files.OpenForReading(path);
    if (!opened.Ok()) {
        return false;
    }
    const Result<bool> found = search.FoundIn(*opened.Value());
    return found.Ok() && found.Value() == contain;
}

}  // namespace

DemoListing ListDemos(FileSystem& files, const std::string& folder, std::string_view extension,
                      const DemoFilter& filter) {
    std::vector<FoundDemo> demos = DemosIn(files, folder, extension);
    std::optional<PhraseSearch> search;
    if (!filter.showAll && !filter.phrase.empty()) {
        search.emplace(filter.phrase);
    }
    DemoListing listing;
    listing.total = demos.size();
    for (FoundDemo& demo : demos) {
        if (!search || Passes(files, folder + demo.fileName, *search, filter.contain)) {
            listing.entries.push_back(std::move(demo.entry));
        }
    }
    SortAlphabetically(listing.entries);
    return listing;
}

}  // namespace zentar
