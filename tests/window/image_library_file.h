// The image library in the Windows folder, as an installation puts it there.
#pragma once

#include <filesystem>

namespace zentar::window_tests {

// In its place from now on, in the version that was built.
void PutImageLibraryInPlace();

std::filesystem::path WindowsFolder();

// Takes the library away for as long as this lives.
class WithoutImageLibrary {
  public:
    WithoutImageLibrary();
    ~WithoutImageLibrary();
    WithoutImageLibrary(const WithoutImageLibrary&) = delete;
    WithoutImageLibrary& operator=(const WithoutImageLibrary&) = delete;
};

}  // namespace zentar::window_tests
