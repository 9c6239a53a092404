// Files that claim more than they hold take no memory, and those of the largest images not too
// much.
#include <windows.h>

#include <gtest/gtest.h>

#include "platform/nviewlib/win32/imaging_component.h"
#include "platform/win32/win32_image_library.h"
#include "platform/win32/win32_text.h"
#include "tests/contract/win32/picture_files.h"
#include "tests/contract/win32/the_platform.h"

namespace zentar {
namespace {

// An image of 40 million pixels; one of more is none.
constexpr Size kLargest{8000, 5000};
constexpr std::size_t kMegabyte = std::size_t{1} << 20U;

void Put(std::string& bytes, std::size_t at, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i)
        bytes[at + static_cast<std::size_t>(i)] = static_cast<char>(value >> (8 * i));
}

// A bitmap file of 100 bytes that says so of itself.
std::string BmpClaim(std::uint32_t width, std::uint32_t height, std::uint32_t bits,
                     std::uint32_t compression = 0) {
    std::string bytes = BmpOf({4, 3});
    bytes.resize(100);
    Put(bytes, 18, width, 4);
    Put(bytes, 22, height, 4);
    Put(bytes, 28, bits, 2);
    Put(bytes, 30, compression, 4);
    return bytes;
}

std::string TgaClaim(std::uint32_t width, std::uint32_t height, char type) {
    std::string bytes = TgaOf({1, 1});
    bytes[2] = type;
    Put(bytes, 12, width, 2);
    Put(bytes, 14, height, 2);
    return bytes;
}

std::string PcxClaim(std::uint32_t width, std::uint32_t height) {
    std::string bytes = GreyPcxOf({1, 1}, 0);
    Put(bytes, 8, width - 1, 2);
    Put(bytes, 10, height - 1, 2);
    Put(bytes, 66, width, 2);
    return bytes;
}

// A JPEG file's beginning: a frame of one component, and a scan without data.
std::string JpgClaim(int width, int height) {
    const auto high = [](int word) { return static_cast<char>(word / 256); };
    const auto low = [](int word) { return static_cast<char>(word % 256); };
    std::string bytes = "\xFF\xD8";
    bytes += {'\xFF',     '\xC0', 0, 11,     8, high(height), low(height), high(width),
              low(width), 1,      1, '\x11', 0};
    bytes += {'\xFF', '\xDA', 0, 8, 1, 1, 0, 0, 63, 0, 0, 0};
    return bytes + "\xFF\xD9";
}

std::string GifClaim(std::uint32_t width, std::uint32_t height) {
    std::string bytes = "GIF89a";
    bytes += std::string(7, '\0') + "," + std::string(8, '\0') + std::string("\0\2\1\0\0;", 6);
    Put(bytes, 6, width, 2);
    Put(bytes, 8, height, 2);
    Put(bytes, 18, width, 2);
    Put(bytes, 20, height, 2);
    return bytes;
}

std::vector<std::string> Claims() {
    return {BmpClaim(26'843'546, 1, 24),
            BmpClaim(6000, 6000, 24),
            BmpClaim(0x7FFFFFFF, 0x7FFFFFFF, 32),
            BmpClaim(0x80000000, 1, 24),
            BmpClaim(4, 0x80000000, 24),
            BmpClaim(30'000, 1000, 8, 1),
            BmpClaim(30'000, 1000, 24, 4),
            BmpClaim(0, 0, 24),
            TgaClaim(16'384, 2400, 2),
            TgaClaim(65'535, 600, 10),
            TgaClaim(65'535, 65'535, 2),
            PcxClaim(65'535, 600),
            JpgClaim(65'500, 600),
            JpgClaim(65'500, 65'500),
            JpgClaim(0, 0),
            GifClaim(65'535, 600),
            GifClaim(65'535, 65'535)};
}

}  // namespace

TEST(HostileImages, TakeNoMemory) {
    const TestFolder folder;
    Win32ImageLibrary library(Narrow(BuiltLibrary().parent_path().wstring()));
    Pictures& system = ThePlatform().Services().pictures;
    // What is loaded once counts for none of them.
    ASSERT_NE(library.Load(folder.Write("good.bmp", BmpOf({640, 480}))), nullptr);
    const std::size_t most = MostMemory();
    for (const std::string& claim : Claims()) {
        for (const char* name : {"a.tga", "a.pcx"}) {
            EXPECT_EQ(library.Load(folder.Write(name, claim)), nullptr);
        }
        EXPECT_EQ(system.Decode(claim), nullptr);
        bool asked = false;
        EXPECT_FALSE(nviewlib::DecodeBySystem(
            {reinterpret_cast<const std::uint8_t*>(claim.data()), claim.size()},
            [&asked](nviewlib::ImageSize) {
                asked = true;
                return nviewlib::Raster{};
            }));
        EXPECT_FALSE(asked);
    }
    EXPECT_LT(MostMemory(), most + 8 * kMegabyte);
}

TEST(HostileImages, AnImageCutAnywhereIsHarmless) {
    Pictures& system = ThePlatform().Services().pictures;
    const TestFolder folder;
    Win32ImageLibrary library(Narrow(BuiltLibrary().parent_path().wstring()));
    ASSERT_NE(library.Load(folder.Write("a.tga", TgaOf({16, 12}))), nullptr);
    ASSERT_TRUE(library.SaveAsJpg(80, folder.Name() + "\\a.jpg"));
    for (const std::string& whole : {BmpOf({9, 7}), BytesOf(folder.Path() / "a.jpg")}) {
        EXPECT_NE(system.Decode(whole), nullptr);
        for (std::size_t length = 0; length < whole.size(); length += 3)
            static_cast<void>(system.Decode(whole.substr(0, length)));
    }
}

TEST(HostileImages, TheLargestImageTakesLessThanHalfAGigabyte) {
    const TestFolder folder;
    Win32ImageLibrary library(Narrow(BuiltLibrary().parent_path().wstring()));
    const std::string path = [&folder] {
        std::string bytes = TgaOf({1, 1}, 32);
        bytes.resize(18);
        Put(bytes, 12, kLargest.width, 2);
        Put(bytes, 14, kLargest.height, 2);
        bytes.resize(bytes.size() + std::size_t{4} * kLargest.width * kLargest.height, '\x55');
        return folder.Write("large.tga", bytes);
    }();
    for (int i = 0; i < 2; ++i) {
        const BitmapPtr picture = library.Load(path);
        ASSERT_NE(picture, nullptr);
        EXPECT_EQ(picture->Dimensions(), kLargest);
    }
    EXPECT_LT(MostMemory(), 512 * kMegabyte);
}

TEST(HostileImages, AnImageOfMorePixelsOrAFileOfMoreBytesIsNone) {
    const TestFolder folder;
    Win32ImageLibrary library(Narrow(BuiltLibrary().parent_path().wstring()));
    std::string bytes = TgaOf({1, 1});
    bytes.resize(18 + std::size_t{8001} * 5000 * 3);
    Put(bytes, 12, 8001, 2);
    Put(bytes, 14, 5000, 2);
    EXPECT_EQ(library.Load(folder.Write("pixels.tga", bytes)), nullptr);
    bytes = TgaOf({4, 3});
    bytes.resize(208 * kMegabyte + 1);
    EXPECT_EQ(library.Load(folder.Write("bytes.tga", bytes)), nullptr);
    bytes.resize(bytes.size() - 1);
    EXPECT_NE(library.Load(folder.Write("bytes.tga", bytes)), nullptr);
}

}  // namespace zentar
