// The values that games and drivers keep for the whole machine: HKEY_LOCAL_MACHINE, as programs of
// 32 bits see it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/result.h"

namespace zentar {

struct RegistryString {
    std::string value;  // its name
    std::string text;
};

class Registry {
  public:
    virtual ~Registry() = default;

    // The text of a plain string value, up to its first NUL; nothing when there is no such key or
    // value, or it is of another type. `key` has no backslash at its end.
    virtual std::optional<std::string> ReadString(const std::string& key,
                                                  const std::string& value) = 0;
    // Makes the key, which is below "Software", if need be. Where that takes the rights of an
    // administrator, the system asks the user for them, once; a user who declines is an ordinary
    // failure.
    virtual Status WriteStrings(const std::string& key,
                                const std::vector<RegistryString>& strings) = 0;
};

}  // namespace zentar
