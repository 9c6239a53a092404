// What only the real image library shows: its exports, its pixels, and what it takes of the system.
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <thread>

#include <gtest/gtest.h>

#include "platform/nviewlib/win32/image_file.h"
#include "platform/nviewlib/win32/nviewlib.h"
#include "platform/win32/win32_bitmap.h"
#include "platform/win32/win32_image_library.h"
#include "platform/win32/win32_text.h"
#include "screenshots/busy_image.h"
#include "tests/contract/win32/picture_files.h"
#include "tests/contract/win32/process_handles.h"

namespace zentar {
namespace {

namespace fs = std::filesystem;

class NViewLib : public testing::Test {
  protected:
    NViewLib() { EXPECT_TRUE(library_.Present()); }

    ImageLibrary& Library() { return library_; }
    BitmapPtr Load(const std::string& name, const std::string& bytes) {
        return library_.Load(folder_.Write(name, bytes));
    }
    const TestFolder& Folder() const { return folder_; }

    // The names that the library exports, in their order.
    static std::vector<std::string> Exports() {
        const UniqueModule module(LoadLibraryW(BuiltLibrary().c_str()));
        auto* const base = reinterpret_cast<std::uint8_t*>(module.Get());
        const auto* dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
        const auto* headers = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
        const auto& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
        const auto* table =
            reinterpret_cast<IMAGE_EXPORT_DIRECTORY*>(base + directory.VirtualAddress);
        EXPECT_EQ(table->NumberOfFunctions, table->NumberOfNames);
        std::vector<std::string> names;
        const auto* name = reinterpret_cast<DWORD*>(base + table->AddressOfNames);
        for (DWORD i = 0; i < table->NumberOfNames; ++i)
            names.emplace_back(reinterpret_cast<const char*>(base + name[i]));
        return names;
    }

  private:
    TestFolder folder_;
    Win32ImageLibrary library_{Narrow(BuiltLibrary().parent_path().wstring())};
};

void ExpectPattern(const BitmapPtr& picture, Size size, int distance = 0) {
    ASSERT_NE(picture, nullptr);
    ASSERT_EQ(picture->Dimensions(), size);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x)
            ASSERT_LE(Distance(PixelOf(picture, x, y), Pattern(x, y)), distance) << x << "," << y;
    }
}

// Colours that change slowly, which JPG keeps well.
COLORREF Smooth(int x, int y) { return RGB(x % 256, y % 256, (x + y) / 2 % 256); }

}  // namespace

TEST_F(NViewLib, ExportsFourFunctionsAndNoMore) {
    EXPECT_EQ(Exports(), (std::vector<std::string>{"GetHeight", "GetWidth", "NViewLibLoad",
                                                   "NViewLibSaveAsJPG"}));
}

TEST_F(NViewLib, ShowsEveryPixelOfWhatIsStoredWithoutLoss) {
    for (const Size size : {Size{64, 48}, Size{1, 1}, Size{5, 3}, Size{3, 200}}) {
        ExpectPattern(Load("a.tga", TgaOf(size)), size);
        ExpectPattern(Load("a.tga", TgaOf(size, 32)), size);
        ExpectPattern(Load("a.bmp", BmpOf(size)), size);
    }
    const BitmapPtr gif = Load("a.tga", std::string(BusyImage()));
    ASSERT_NE(gif, nullptr);
    EXPECT_EQ(gif->Dimensions(), (Size{320, 240}));
    const BitmapPtr grey = Load("a.pcx", GreyPcxOf({30, 20}, 77));
    ASSERT_NE(grey, nullptr);
    EXPECT_EQ(grey->Dimensions(), (Size{30, 20}));
    EXPECT_EQ(PixelOf(grey, 29, 19), RGB(77, 77, 77));
}

TEST_F(NViewLib, GivesABitmapOf24BitsBottomUpThatTheCallerMayDelete) {
    const UniqueModule module(LoadLibraryW(BuiltLibrary().c_str()));
    const auto load = reinterpret_cast<decltype(&NViewLibLoad)>(
        reinterpret_cast<void*>(GetProcAddress(module.Get(), "NViewLibLoad")));
    const auto width = reinterpret_cast<decltype(&GetWidth)>(
        reinterpret_cast<void*>(GetProcAddress(module.Get(), "GetWidth")));
    const auto height = reinterpret_cast<decltype(&GetHeight)>(
        reinterpret_cast<void*>(GetProcAddress(module.Get(), "GetHeight")));
    const auto save = reinterpret_cast<decltype(&NViewLibSaveAsJPG)>(
        reinterpret_cast<void*>(GetProcAddress(module.Get(), "NViewLibSaveAsJPG")));
    ASSERT_TRUE(load != nullptr && width != nullptr && height != nullptr && save != nullptr);
    const std::string path = Folder().Write("a.tga", TgaOf({7, 4}));
    const HBITMAP bitmap = load(path.c_str(), 0);
    DIBSECTION form{};
    ASSERT_EQ(GetObjectW(bitmap, sizeof form, &form), static_cast<int>(sizeof form));
    EXPECT_EQ(form.dsBm.bmWidth, 7);
    EXPECT_EQ(form.dsBmih.biHeight, 4);
    EXPECT_EQ(form.dsBmih.biBitCount, 24);
    EXPECT_EQ(width(), 7);
    EXPECT_EQ(height(), 4);
    EXPECT_TRUE(DeleteObject(bitmap));
    // The library has the image still.
    const std::string saved = Folder().Name() + "\\a.jpg";
    EXPECT_NE(save(100, saved.c_str()), 0);
    EXPECT_GT(fs::file_size(Widen(saved)), 100U);
    EXPECT_EQ(save(-1, saved.c_str()), 0);
    EXPECT_EQ(save(101, saved.c_str()), 0);
    EXPECT_EQ(save(80, nullptr), 0);
    EXPECT_EQ(load(nullptr, 0), nullptr);
    EXPECT_EQ(width(), 0);
    EXPECT_EQ(height(), 0);
    EXPECT_EQ(save(80, saved.c_str()), 0);
}

TEST_F(NViewLib, AnImageOutlivesTheNextOne) {
    const BitmapPtr first = Load("a.tga", TgaOf({64, 48}));
    const BitmapPtr second = Load("b.tga", TgaOf({10, 10}, 24, Smooth));
    ExpectPattern(first, {64, 48});
    EXPECT_EQ(PixelOf(second, 3, 4), Smooth(3, 4));
}

TEST_F(NViewLib, KnowsAFileByWhatIsInItOrElseByItsName) {
    const Size size{40, 30};
    ExpectPattern(Load("really a bitmap.tga", BmpOf(size)), size);
    ExpectPattern(Load("no ending", TgaOf(size)), size);
    ExpectPattern(Load("really tga.pcx", TgaOf(size)), size);
    EXPECT_NE(Load("really pcx.tga", GreyPcxOf(size, 9)), nullptr);
    EXPECT_NE(Load("UPPER.PCX", GreyPcxOf(size, 9)), nullptr);
}

TEST_F(NViewLib, AJpgLooksAsWhatWasSaved) {
    const Size size{200, 150};
    ASSERT_NE(Load("a.tga", TgaOf(size, 24, Smooth)), nullptr);
    std::uintmax_t length = 0;
    for (const int quality : {10, 80, 100}) {
        const std::string saved = Folder().Name() + "\\" + std::to_string(quality) + ".jpg";
        ASSERT_NE(Load("a.tga", TgaOf(size, 24, Smooth)), nullptr);
        ASSERT_TRUE(Library().SaveAsJpg(quality, saved));
        const BitmapPtr again = Library().Load(saved);
        ASSERT_NE(again, nullptr);
        ASSERT_EQ(again->Dimensions(), size);
        for (int y = 0; y < size.height; ++y) {
            for (int x = 0; x < size.width; ++x)
                ASSERT_LE(Distance(PixelOf(again, x, y), Smooth(x, y)), quality < 80 ? 90 : 16);
        }
        EXPECT_GT(fs::file_size(Widen(saved)), length);
        length = fs::file_size(Widen(saved));
    }
}

TEST_F(NViewLib, ReadsEveryKindOfRealJpg) {
    if (RealFiles("jpg").empty())
        GTEST_SKIP() << "no real files at hand";
    for (const fs::path& file : RealFiles("jpg")) {
        const BitmapPtr picture = Library().Load(Narrow(file.wstring()));
        // Whether a file that ends early still shows its beginning, is for the system to say.
        const bool endsEarly = file.filename().string().find("truncated") != std::string::npos;
        EXPECT_TRUE(picture != nullptr || endsEarly) << file;
    }
}

TEST_F(NViewLib, LongPathsAndNamesInAnyLanguageWork) {
    std::vector<std::wstring> folders{LR"(\\?\)" + Folder().Path().wstring()};
    for (int i = 0; i < 8; ++i) {
        folders.push_back(folders.back() + L"\\снимки экрана, очень длинное имя папки " +
                          std::to_wstring(i));
        ASSERT_TRUE(CreateDirectoryW(folders.back().c_str(), nullptr));
    }
    const std::wstring file = folders.back() + L"\\дуэль Größe \u5c04.tga";
    const std::wstring saved = folders.back() + L"\\дуэль.jpg";
    ASSERT_TRUE(
        CopyFileW(Widen(Folder().Write("a.tga", TgaOf({12, 9}))).c_str(), file.c_str(), TRUE));
    ASSERT_GT(file.size(), 300U);
    ExpectPattern(Library().Load(Narrow(file.substr(4))), {12, 9});
    EXPECT_TRUE(Library().SaveAsJpg(80, Narrow(saved.substr(4))));
    // The file system library of the compiler does not come so deep.
    EXPECT_TRUE(DeleteFileW(saved.c_str()));
    EXPECT_TRUE(DeleteFileW(file.c_str()));
    for (; folders.size() > 1; folders.pop_back())
        EXPECT_TRUE(RemoveDirectoryW(folders.back().c_str()));
}

TEST_F(NViewLib, ReadsAFileThatAnotherProgramStillWrites) {
    const std::string path = Folder().Write("a.tga", TgaOf({12, 9}));
    const UniqueFile writer(CreateFileW(Widen(path).c_str(), GENERIC_READ | GENERIC_WRITE,
                                        FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                        FILE_ATTRIBUTE_NORMAL, nullptr));
    ASSERT_TRUE(writer);
    ExpectPattern(Library().Load(path), {12, 9});
}

TEST_F(NViewLib, AJpgIsNotWrittenOverAReadOnlyFile) {
    ASSERT_NE(Load("a.tga", TgaOf({12, 9})), nullptr);
    const std::string path = Folder().Write("a.jpg", "the user's own");
    SetFileAttributesW(Widen(path).c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_FALSE(Library().SaveAsJpg(80, path));
    EXPECT_EQ(BytesOf(Widen(path)), "the user's own");
    SetFileAttributesW(Widen(path).c_str(), FILE_ATTRIBUTE_HIDDEN);
    EXPECT_TRUE(Library().SaveAsJpg(80, path));
    EXPECT_TRUE(BytesOf(Widen(path)).starts_with("\xFF\xD8\xFF"));
}

// A write of which the disk takes only a part.
TEST_F(NViewLib, AFileThatCannotBeWrittenWholeLeavesTheOlderOne) {
    constexpr std::size_t kPage = 4096;
    auto* const bytes = static_cast<std::uint8_t*>(
        VirtualAlloc(nullptr, 2 * kPage, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
    ASSERT_NE(bytes, nullptr);
    const std::string path = Folder().Write("a.jpg", "the older one");
    EXPECT_TRUE(nviewlib::WriteImageFile(Folder().Name() + "\\b.jpg", {bytes, 2 * kPage}));
    DWORD before = 0;
    ASSERT_TRUE(VirtualProtect(bytes + kPage, kPage, PAGE_NOACCESS, &before));
    EXPECT_FALSE(nviewlib::WriteImageFile(path, {bytes, 2 * kPage}));
    EXPECT_EQ(BytesOf(Widen(path)), "the older one");
    EXPECT_FALSE(fs::exists(Widen(path + ".zentar-new")));
    VirtualFree(bytes, 0, MEM_RELEASE);
}

TEST_F(NViewLib, AFileThatAnotherProgramHoldsStaysAsItWas) {
    ASSERT_NE(Load("a.tga", TgaOf({12, 9})), nullptr);
    const std::string path = Folder().Write("a.jpg", "the older one");
    {
        const UniqueFile reader(CreateFileW(Widen(path).c_str(), GENERIC_READ, FILE_SHARE_READ,
                                            nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                                            nullptr));
        ASSERT_TRUE(reader);
        EXPECT_FALSE(Library().SaveAsJpg(80, path));
    }
    EXPECT_EQ(BytesOf(Widen(path)), "the older one");
    EXPECT_FALSE(fs::exists(Widen(path + ".zentar-new")));
}

TEST_F(NViewLib, FoldersDevicesAndWrongPathsAreNoImages) {
    for (const std::string& path :
         {Folder().Name(), std::string(), std::string("a.tga"), std::string("C:\\nul\\a.tga"),
          std::string("C:\\a\0b.tga", 10), std::string(40'000, 'x')}) {
        EXPECT_EQ(Library().Load(path), nullptr) << path.substr(0, 40);
    }
}

TEST_F(NViewLib, AThousandImagesLeaveNothingBehind) {
    const std::string tga = Folder().Write("a.tga", TgaOf({320, 240}));
    const std::string bmp = Folder().Write("a.bmp", BmpOf({320, 240}));
    const std::string bad = Folder().Write("bad.tga", TgaOf({320, 240}).substr(0, 9000));
    const std::string jpg = Folder().Name() + "\\a.jpg";
    const auto round = [&] {
        ASSERT_NE(Library().Load(tga), nullptr);
        ASSERT_TRUE(Library().SaveAsJpg(80, jpg));
        ASSERT_NE(Library().Load(jpg), nullptr);
        ASSERT_NE(Library().Load(bmp), nullptr);
        ASSERT_EQ(Library().Load(bad), nullptr);
    };
    for (int i = 0; i < 20; ++i)
        round();
    const std::size_t handles = HandlesOf(GetCurrentProcess());
    ASSERT_GT(handles, 0U);
    const int bitmaps = UniqueBitmap::Live();
    const std::size_t memory = MemoryNow();
    for (int i = 0; i < 250; ++i)
        round();
    // The system may start a thread of its own meanwhile; a leak would be hundreds.
    constexpr std::size_t kOfTheSystem = 32;
    EXPECT_LE(HandlesOf(GetCurrentProcess()), handles + kOfTheSystem);
    EXPECT_EQ(UniqueBitmap::Live(), bitmaps);
    // A single image is 230,400 bytes.
    EXPECT_LT(MemoryNow(), memory + (std::size_t{4} << 20U));
}

}  // namespace zentar
