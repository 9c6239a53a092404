#include "screenshots/shot_list.h"

#include <string_view>
#include <unordered_set>

#include "core/text.h"
#include "screenshots/shot_name.h"

namespace zentar {
namespace {

void Count(ShotListing& listing, std::string_view name) {
    const std::string extension = ShotExtension(name);
    if (extension == ".tga") {
        ++listing.tga;
    } else if (extension == ".jpg") {
        ++listing.jpg;
    } else {
        ++listing.pcx;
    }
}

// The base names of preview images, found by those of shots whatever the case of either.
class PreviewNames {
  public:
    void Add(std::string_view preview) {
        preview.remove_suffix(kPreviewExtension.size());
        names_.insert(LowerCase(preview));
    }
    bool HasOneFor(std::string_view shot) const {
        return !names_.empty() && names_.contains(LowerCase(BaseNameOf(shot)));
    }

  private:
    std::unordered_set<std::string> names_;
};

}  // namespace

ShotListing ListShots(FileSystem& files, const std::string& folder) {
    ShotListing listing;
    PreviewNames previews;
    // The folder tells of the previews, too: asking for each would take far longer.
    const auto collect = [&](const FolderEntry& found) {
        if (found.info.isFolder) {
            return;
        }
        if (IsShot(found.name)) {
            listing.entries.push_back(found.name);
        } else if (found.info.length > 0 && IsPreview(found.name)) {
            previews.Add(found.name);
        }
    };
    // Of a folder that stops answering, those shots are shown that it named before.
    IgnoreFailure(files.Enumerate(folder, collect));
    for (std::string& entry : listing.entries) {
        Count(listing, entry);
        if (previews.HasOneFor(entry)) {
            entry += kPreviewMarker;
        }
    }
    SortAlphabetically(listing.entries);
    return listing;
}

std::string CountText(const ShotListing& listing) {
    return "Total: " + std::to_string(listing.entries.size()) +
           "  (tga=" + std::to_string(listing.tga) + ",  jpg=" + std::to_string(listing.jpg) +
           ",  pcx=" + std::to_string(listing.pcx) + ").";
}

}  // namespace zentar
