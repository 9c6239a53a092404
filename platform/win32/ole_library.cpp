#include "platform/win32/ole_library.h"

#include <windows.h>

#include <ole2.h>

namespace zentar {

OleLibrary::~OleLibrary() {
    if (loaded_) {
        OleUninitialize();
    }
}

void OleLibrary::Need() {
    if (!asked_) {
        asked_ = true;
        loaded_ = SUCCEEDED(OleInitialize(nullptr));
    }
}

}  // namespace zentar
