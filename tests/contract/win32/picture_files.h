// Picture files, the pixels of bitmaps, and what the process takes of the system.
#pragma once

#include <windows.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "platform/bitmap.h"

namespace zentar {

using ColourAt = std::function<COLORREF(int x, int y)>;

// Something that is different everywhere and in all three colours.
COLORREF Pattern(int x, int y);

std::string BmpOf(Size size, const ColourAt& colour = Pattern);
// Type 2 with 24 or 32 bits.
std::string TgaOf(Size size, int bits = 24, const ColourAt& colour = Pattern);
// A PCX of 256 colours, all of its pixels of one grey.
std::string GreyPcxOf(Size size, std::uint8_t grey);

COLORREF PixelOf(const BitmapPtr& picture, int x, int y);
// How far the two are apart where they are so most.
int Distance(COLORREF one, COLORREF other);

// A folder of the test's own, gone afterwards with all that is in it.
class TestFolder {
  public:
    TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;
    ~TestFolder();

    const std::filesystem::path& Path() const { return path_; }
    // The path as the program has it, without a backslash.
    std::string Name() const;
    // Writes a file; gives its path.
    std::string Write(const std::string& name, const std::string& bytes) const;

  private:
    std::filesystem::path path_;
};

std::string BytesOf(const std::filesystem::path& file);
// All files of ../shared/data/<kind>, if that is there.
std::vector<std::filesystem::path> RealFiles(const std::string& kind);

// The library that was built with the tests.
std::filesystem::path BuiltLibrary();

// What this process holds, and has held at most, of the machine's memory.
std::size_t MemoryNow();
std::size_t MostMemory();

}  // namespace zentar
