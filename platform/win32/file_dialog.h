// The system's dialogs in which the user picks or names a file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/win32/win32_session.h"
#include "platform/window_services.h"

namespace zentar {

enum class FilePurpose : std::uint8_t { Open, Save };

// As WindowServices::ChooseFileToOpen and ChooseFileToSave say.
std::optional<std::string> ShowFileDialog(const FileQuestion& question, FilePurpose purpose,
                                          Win32Session& session);

}  // namespace zentar
