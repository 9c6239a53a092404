// Files and folders as the shell's newer calls know them.
#pragma once

#include <shobjidl.h>

#include <optional>
#include <string>

#include "platform/nviewlib/win32/resources.h"

namespace zentar {

// Null when the shell finds nothing at that path.
nviewlib::ComPointer<IShellItem> ItemOf(const std::wstring& path);

// The whole path, however long; nothing for an item that is not of the file system.
std::optional<std::string> PathOf(IShellItem& item);

}  // namespace zentar
