// The visual styles of Windows, which a program gets only when its manifest asks for them; that of
// the tests does not.
#pragma once

#include <windows.h>

#include "tests/contract/win32/picture_files.h"

namespace zentar {

// Windows that are made while this stands have them.
class VisualStyles {
  public:
    VisualStyles();
    ~VisualStyles();
    VisualStyles(const VisualStyles&) = delete;
    VisualStyles& operator=(const VisualStyles&) = delete;

  private:
    TestFolder folder_;
    HANDLE context_ = INVALID_HANDLE_VALUE;
    ULONG_PTR cookie_ = 0;
};

}  // namespace zentar
