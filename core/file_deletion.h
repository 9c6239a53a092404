// Deleting files whatever their attributes.
#pragma once

#include <string>

#include "platform/file_system.h"

namespace zentar {

// Hidden and read-only files go, too: of a read-only one of his own the user has been asked before.
Status ForceDelete(FileSystem& files, const std::string& path);

}  // namespace zentar
