// Strings of the registry, written with the rights of an administrator, for which the system asks
// the user.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "platform/registry.h"

namespace zentar {

// Has the system's own tool write the values of a key below HKEY_LOCAL_MACHINE\Software, in the
// view of programs of 32 bits, and waits until it has. The user is asked once, however many there
// are.
Status WriteStringsAsAdministrator(const std::string& key,
                                   const std::vector<RegistryString>& strings, HWND owner);

}  // namespace zentar
