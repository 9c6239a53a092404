// HKEY_LOCAL_MACHINE of Windows, in the view of programs of 32 bits.
#pragma once

#include "platform/registry.h"
#include "platform/win32/win32_session.h"

namespace zentar {

class Win32Registry : public Registry {
  public:
    explicit Win32Registry(Win32Session& session) : session_(session) {}

    std::optional<std::string> ReadString(const std::string& key,
                                          const std::string& value) override;
    Status WriteStrings(const std::string& key,
                        const std::vector<RegistryString>& strings) override;

  private:
    Win32Session& session_;
};

}  // namespace zentar
