#include "platform/win32/win32_image_library.h"

#include <optional>
#include <utility>

#include "platform/win32/win32_bitmap.h"
#include "platform/win32/win32_path.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

// Keeps Windows from telling the user itself that a file is no library.
class QuietErrors {
  public:
    QuietErrors() { SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &before_); }
    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;
    ~QuietErrors() { SetThreadErrorMode(before_, nullptr); }

  private:
    DWORD before_ = 0;
};

template <typename Function>
bool Find(HMODULE library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library, name)));
    return function != nullptr;
}

// Without a limit of its length.
std::optional<std::string> LibraryPath(const std::string& path) {
    const std::optional<std::wstring> native = NativePath(path);
    return native ? std::optional<std::string>(Narrow(*native)) : std::nullopt;
}

bool IsFile(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

}  // namespace

Win32ImageLibrary::Win32ImageLibrary(const std::string& folder) {
    if (const std::optional<std::wstring> native = NativePath(folder + "\\nviewlib.dll")) {
        file_ = PlainPath(*native);
    }
}

// What the library itself needs comes with the system.
bool Win32ImageLibrary::LoadLibraryFile() {
    if (module_) {
        return true;
    }
    const QuietErrors quiet;
    UniqueModule module(LoadLibraryExW(file_.c_str(), nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32));
    Functions functions;
    if (!module || !Find(module.Get(), "NViewLibLoad", functions.load) ||
        !Find(module.Get(), "GetWidth", functions.width) ||
        !Find(module.Get(), "GetHeight", functions.height) ||
        !Find(module.Get(), "NViewLibSaveAsJPG", functions.saveAsJpg)) {
        return false;
    }
    module_ = std::move(module);
    functions_ = functions;
    return true;
}

bool Win32ImageLibrary::Present() { return IsFile(file_) && LoadLibraryFile(); }

BitmapPtr Win32ImageLibrary::Load(const std::string& path) {
    const std::optional<std::string> file = LibraryPath(path);
    if (!LoadLibraryFile()) {
        return nullptr;
    }
    // Also where there can be no such file, so that no former image stays the current one.
    const auto bitmap =
        Win32Bitmap::Take(UniqueBitmap(functions_.load(file ? file->c_str() : nullptr, 0)));
    const Size size{functions_.width(), functions_.height()};
    return bitmap && bitmap->Dimensions() == size ? bitmap : nullptr;
}

bool Win32ImageLibrary::SaveAsJpg(int quality, const std::string& path) {
    const std::optional<std::string> file = LibraryPath(path);
    return file && LoadLibraryFile() && functions_.saveAsJpg(quality, file->c_str()) != 0;
}

}  // namespace zentar
