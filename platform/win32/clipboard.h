// The clipboard of Windows.
#pragma once

#include <string>

#include "platform/result.h"

namespace zentar {

// As WindowServices::PutOnClipboard says. Waits a little for another program that has the clipboard
// open; when that takes too long, the clipboard keeps what it holds.
Status PutTextOnClipboard(const std::string& text);

}  // namespace zentar
