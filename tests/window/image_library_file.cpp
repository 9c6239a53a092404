#include "tests/window/image_library_file.h"

#include <windows.h>

#include "tests/window/zentar_home.h"

namespace zentar::window_tests {
namespace {

namespace fs = std::filesystem;

fs::path LibraryFile() { return WindowsFolder() / "nviewlib.dll"; }

fs::path SetAside() { return WindowsFolder() / "nviewlib.dll.aside"; }

}  // namespace

fs::path WindowsFolder() {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetWindowsDirectoryW(path.data(), static_cast<UINT>(path.size())));
    return path;
}

void PutImageLibraryInPlace() {
    const fs::path built = BuildFolder() / "nviewlib.dll";
    // A program that uses it keeps it from being replaced.
    if (!fs::exists(LibraryFile()) || ReadBytes(LibraryFile()) != ReadBytes(built)) {
        fs::copy_file(built, LibraryFile(), fs::copy_options::overwrite_existing);
    }
}

WithoutImageLibrary::WithoutImageLibrary() { fs::rename(LibraryFile(), SetAside()); }

WithoutImageLibrary::~WithoutImageLibrary() {
    std::error_code comesBackWithTheNextTest;
    fs::rename(SetAside(), LibraryFile(), comesBackWithTheNextTest);
}

}  // namespace zentar::window_tests
