// Real JPEG files look as ImageMagick shows them, where the tests run under Wine beside it.
#include <windows.h>

#include <chrono>
#include <optional>
#include <thread>

#include <gtest/gtest.h>

#include "platform/win32/win32_handle.h"
#include "platform/win32/win32_image_library.h"
#include "platform/win32/win32_text.h"
#include "tests/contract/win32/path_outside_wine.h"
#include "tests/contract/win32/picture_files.h"
#include "tests/contract/win32/the_platform.h"

namespace zentar {
namespace {

namespace fs = std::filesystem;

constexpr auto kPatience = std::chrono::seconds(30);
// The levels by which two decoders may differ in the mean: they raise the resolution of the colours
// in different ways.
constexpr double kMostMeanDifference = 6;
// In a smaller picture that is most of what there is to see.
constexpr int kLeastSide = 16;

// Has a shell outside of Wine run a command. It does not wait.
bool RunOutside(const std::string& command) {
    std::wstring line = L"sh -c \"" + Widen(command) + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(L"Z:\\bin\\sh", line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &started)) {
        return false;
    }
    const UniqueProcess process(started.hProcess);
    const UniqueProcess thread(started.hThread);
    return true;
}

bool Appears(const fs::path& file) {
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (!fs::exists(file)) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
}

double MeanDifference(const BitmapPtr& one, const BitmapPtr& other) {
    const Size size = one->Dimensions();
    double sum = 0;
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x)
            sum += Distance(PixelOf(one, x, y), PixelOf(other, x, y));
    }
    return sum / size.width / size.height;
}

}  // namespace

TEST(OtherDecoder, ShowsRealJpgsLikewise) {
    const TestFolder folder;
    const fs::path copy = folder.Path() / "a.jpg";
    const fs::path shown = folder.Path() / "a.bmp";
    const std::optional<std::string> outside = PathOutsideWine(folder.Path());
    if (!outside || !fs::exists("Z:\\usr\\bin\\convert") || RealFiles("jpg").empty())
        GTEST_SKIP() << "no other decoder, or no real files, at hand";
    Win32ImageLibrary library(Narrow(BuiltLibrary().parent_path().wstring()));
    int compared = 0;
    for (const fs::path& file : RealFiles("jpg")) {
        fs::copy_file(file, copy, fs::copy_options::overwrite_existing);
        fs::remove(shown);
        ASSERT_TRUE(RunOutside("cd '" + *outside +
                               "' && convert a.jpg -colorspace sRGB -type TrueColor BMP3:b.bmp;"
                               " mv b.bmp a.bmp"));
        ASSERT_TRUE(Appears(shown)) << file;
        const BitmapPtr ours = library.Load(Narrow(copy.wstring()));
        const BitmapPtr theirs = ThePlatform().Services().pictures.Decode(BytesOf(shown));
        ASSERT_NE(theirs, nullptr) << file;
        if (ours == nullptr || ours->Dimensions().width < kLeastSide ||
            ours->Dimensions().height < kLeastSide) {
            continue;
        }
        ASSERT_EQ(ours->Dimensions(), theirs->Dimensions()) << file;
        EXPECT_LE(MeanDifference(ours, theirs), kMostMeanDifference) << file;
        ++compared;
    }
    EXPECT_GT(compared, 10);
}

}  // namespace zentar
