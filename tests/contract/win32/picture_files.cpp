#include "tests/contract/win32/picture_files.h"

#include <psapi.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "platform/win32/win32_bitmap.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

namespace fs = std::filesystem;

template <typename Header>
void Append(std::string& bytes, const Header& header) {
    bytes.append(reinterpret_cast<const char*>(&header), sizeof header);
}

void AppendPixel(std::string& bytes, COLORREF colour) {
    bytes.push_back(static_cast<char>(GetBValue(colour)));
    bytes.push_back(static_cast<char>(GetGValue(colour)));
    bytes.push_back(static_cast<char>(GetRValue(colour)));
}

void PutWord(std::string& bytes, std::size_t at, int word) {
    bytes[at] = static_cast<char>(word % 256);
    bytes[at + 1] = static_cast<char>(word / 256);
}

PROCESS_MEMORY_COUNTERS Counters() {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters;
}

}  // namespace

COLORREF Pattern(int x, int y) {
    return RGB((x * 7 + y * 3) % 256, (x * 5 + y * 11) % 256, (x + y * 13) % 256);
}

std::string BmpOf(Size size, const ColourAt& colour) {
    const std::size_t pitch = (static_cast<std::size_t>(size.width) * 3 + 3) / 4 * 4;
    BITMAPFILEHEADER file{};
    file.bfType = 0x4D42;
    file.bfOffBits = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
    file.bfSize =
        static_cast<DWORD>(file.bfOffBits + pitch * static_cast<std::size_t>(size.height));
    BITMAPINFOHEADER info{};
    info.biSize = sizeof info;
    info.biWidth = size.width;
    info.biHeight = size.height;
    info.biPlanes = 1;
    info.biBitCount = 24;
    std::string bytes;
    Append(bytes, file);
    Append(bytes, info);
    for (int y = size.height - 1; y >= 0; --y) {
        for (int x = 0; x < size.width; ++x)
            AppendPixel(bytes, colour(x, y));
        bytes.append(pitch - static_cast<std::size_t>(size.width) * 3, '\0');
    }
    return bytes;
}

std::string TgaOf(Size size, int bits, const ColourAt& colour) {
    std::string bytes(18, '\0');
    bytes[2] = 2;
    PutWord(bytes, 12, size.width);
    PutWord(bytes, 14, size.height);
    bytes[16] = static_cast<char>(bits);
    for (int y = size.height - 1; y >= 0; --y) {
        for (int x = 0; x < size.width; ++x) {
            AppendPixel(bytes, colour(x, y));
            if (bits == 32)
                bytes.push_back('\0');
        }
    }
    return bytes;
}

std::string GreyPcxOf(Size size, std::uint8_t grey) {
    std::string bytes(128, '\0');
    bytes[0] = 10;
    bytes[1] = 5;
    bytes[2] = 1;
    bytes[3] = 8;
    PutWord(bytes, 8, size.width - 1);
    PutWord(bytes, 10, size.height - 1);
    bytes[65] = 1;
    PutWord(bytes, 66, size.width);
    for (int i = 0; i < size.width * size.height; ++i)
        bytes += {'\xC1', static_cast<char>(grey)};
    bytes.push_back('\x0C');
    for (int i = 0; i < 256; ++i)
        bytes.append(3, static_cast<char>(i));
    return bytes;
}

COLORREF PixelOf(const BitmapPtr& picture, int x, int y) {
    const nviewlib::Raster pixels = Win32Bitmap::Of(*picture).Pixels();
    const std::uint8_t* pixel = pixels.top + y * pixels.pitch + x * 3;
    return RGB(pixel[2], pixel[1], pixel[0]);
}

int Distance(COLORREF one, COLORREF other) {
    return std::max({std::abs(GetRValue(one) - GetRValue(other)),
                     std::abs(GetGValue(one) - GetGValue(other)),
                     std::abs(GetBValue(one) - GetBValue(other))});
}

TestFolder::TestFolder() {
    static int folders = 0;
    path_ =
        fs::temp_directory_path() / ("zentar-pictures-" + std::to_string(GetCurrentProcessId()) +
                                     "-" + std::to_string(++folders));
    fs::create_directories(path_);
}

TestFolder::~TestFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

std::string TestFolder::Name() const { return Narrow(path_.wstring()); }

std::string TestFolder::Write(const std::string& name, const std::string& bytes) const {
    const fs::path path = path_ / Widen(name);
    std::ofstream(path, std::ios::binary) << bytes;
    return Narrow(path.wstring());
}

std::string BytesOf(const fs::path& file) {
    std::stringstream bytes;
    bytes << std::ifstream(file, std::ios::binary).rdbuf();
    return bytes.str();
}

std::vector<fs::path> RealFiles(const std::string& kind) {
    std::vector<fs::path> files;
    const fs::path folder = fs::path(ZENTAR_TEST_SOURCE_DIR) / ".." / "shared" / "data" / kind;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(folder, none)) {
        if (entry.is_regular_file())
            files.push_back(fs::canonical(entry.path()));
    }
    return files;
}

fs::path BuiltLibrary() {
    wchar_t program[MAX_PATH];
    return fs::path(std::wstring(program, GetModuleFileNameW(nullptr, program, MAX_PATH)))
        .replace_filename("nviewlib.dll");
}

std::size_t MemoryNow() { return Counters().WorkingSetSize; }

std::size_t MostMemory() { return Counters().PeakWorkingSetSize; }

}  // namespace zentar
