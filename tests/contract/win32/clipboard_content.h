// What another program put on the clipboard, or takes from it.
#pragma once

#include <string>

namespace zentar {

struct ClipboardContent {
    std::string rtf;    // empty: none
    std::wstring text;  // likewise
};

// False when the clipboard did not take it. What it held before is gone.
bool PutOnClipboard(const ClipboardContent& content);
ClipboardContent OnClipboard();

}  // namespace zentar
