// Which entry of a list is selected when the selected one goes.
#pragma once

#include <string>
#include <vector>

namespace zentar {

// The entry after it, or before it if it is the last one; empty when it is the only one, or none.
std::string NeighbourOf(const std::string& entry, const std::vector<std::string>& entries);

}  // namespace zentar
