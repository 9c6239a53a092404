// Searching the web for a demo's map.
#pragma once

#include <string>
#include <string_view>

#include "demos/demo_list_view.h"
#include "platform/platform.h"

namespace zentar {

// The address of a web search for words of game text, which "+" separates. Whatever the words hold,
// they are nothing but the search.
std::string MapSearchAddress(std::string_view words);

class MapSearch {
  public:
    MapSearch(const Platform& platform, const DemoListView& list)
        : platform_(platform), list_(list) {}

    // For the selected demo: by its map and the level's name, by the name, by the map.
    void mnuDemosSearchAll_Click();
    void mnuDemosSearchDesc_Click();
    void mnuDemosSearchMap_Click();

  private:
    void Open(const std::string& words);

    Platform platform_;
    const DemoListView& list_;
};

}  // namespace zentar
