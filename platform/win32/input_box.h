// A box in which the user types an answer.
#pragma once

#include <optional>
#include <string>

#include "platform/win32/win32_session.h"
#include "platform/window_services.h"

namespace zentar {

// As WindowServices::AskText says.
std::optional<std::string> ShowInputBox(const TextQuestion& question, Win32Session& session);

}  // namespace zentar
