// Files that are open.
#pragma once

#include <memory>
#include <string>

#include "platform/file_system.h"

namespace zentar {

Result<std::unique_ptr<ReadableFile>> OpenReadableFile(const std::wstring& nativePath);
Result<std::unique_ptr<WritableFile>> OpenWritableFile(const std::wstring& nativePath,
                                                       WriteMode mode);
// Through to the disk.
Status OverwriteFile(const std::wstring& nativePath, std::uint64_t offset, std::string_view bytes);

}  // namespace zentar
