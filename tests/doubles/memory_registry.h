// A registry in memory.
#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/registry.h"
#include "tests/doubles/event_log.h"

namespace zentar {

class MemoryRegistry : public Registry {
  public:
    explicit MemoryRegistry(EventLog* log = nullptr) : log_(log) {}

    std::optional<std::string> ReadString(const std::string& key,
                                          const std::string& value) override {
        const auto found = strings.find({key, value});
        return found == strings.end() ? std::nullopt : std::optional(found->second);
    }
    Status WriteStrings(const std::string& key,
                        const std::vector<RegistryString>& written) override {
        for (const RegistryString& string : written) {
            if (log_ != nullptr) {
                log_->Add("WriteString " + key + " " + string.value);
            }
            if (writeAnswer.Ok()) {
                strings[{key, string.value}] = string.text;
            }
        }
        return writeAnswer;
    }

    std::map<std::pair<std::string, std::string>, std::string> strings;  // by key and value
    Status writeAnswer;

  private:
    EventLog* log_;
};

}  // namespace zentar
