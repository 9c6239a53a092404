// nviewlib.dll, as the program uses it.
#pragma once

#include <windows.h>

#include <string>

#include "platform/image_library.h"
#include "platform/win32/win32_handle.h"

namespace zentar {

class Win32ImageLibrary : public ImageLibrary {
  public:
    // In that folder the library is looked for, whenever it is needed. Once it is loaded it stays
    // so.
    explicit Win32ImageLibrary(const std::string& folder);

    bool Present() override;
    BitmapPtr Load(const std::string& path) override;
    bool SaveAsJpg(int quality, const std::string& path) override;

  private:
    struct Functions {
        HBITMAP (*load)(const char* path, int progress) = nullptr;
        int (*width)() = nullptr;
        int (*height)() = nullptr;
        int (*saveAsJpg)(int quality, const char* path) = nullptr;
    };

    bool LoadLibraryFile();

    std::wstring file_;
    UniqueModule module_;
    Functions functions_;
};

}  // namespace zentar
