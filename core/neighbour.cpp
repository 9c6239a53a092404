#include "core/neighbour.h"

#include <algorithm>

namespace zentar {

std::string NeighbourOf(const std::string& entry, const std::vector<std::string>& entries) {
    const auto at = std::find(entries.begin(), entries.end(), entry);
    if (at == entries.end() || entries.size() == 1) {
        return {};
    }
    return at + 1 == entries.end() ? *(at - 1) : *(at + 1);
}

}  // namespace zentar
