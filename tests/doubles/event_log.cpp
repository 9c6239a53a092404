#include "tests/doubles/event_log.h"

#include <algorithm>

namespace zentar {

std::size_t EventLog::Count(const std::string& entry) const {
    return static_cast<std::size_t>(std::count(entries_.begin(), entries_.end(), entry));
}

testing::AssertionResult EventLog::Ordered(const std::vector<std::string>& steps) const {
    auto next = entries_.begin();
    for (const std::string& step : steps) {
        next = std::find(next, entries_.end(), step);
        if (next == entries_.end()) {
            return testing::AssertionFailure()
                   << "\"" << step << "\" did not happen in its turn; all that happened:\n"
                   << Joined();
        }
        ++next;
    }
    return testing::AssertionSuccess();
}

std::string EventLog::Joined() const {
    std::string joined;
    for (const std::string& entry : entries_)
        joined += "  " + entry + "\n";
    return joined;
}

}  // namespace zentar
