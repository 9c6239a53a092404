// How fast screenshots are listed, shown, converted and dragged: windows_shots_benchmark <folder>
//
// The folder takes the screenshots; they are made where they are missing. Expects the image library
// in the Windows folder. benchmarks/shots_against_convert runs this beside ImageMagick.
#include <windows.h>

#include <psapi.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

#include "benchmarks/bare_windows_list.h"
#include "benchmarks/bare_windows_pictures.h"
#include "benchmarks/quiet_windows.h"
#include "benchmarks/sample_folders.h"
#include "benchmarks/stopwatch.h"
#include "core/text.h"
#include "platform/win32/win32_handle.h"
#include "platform/win32/win32_platform.h"
#include "samples/shot_maker.h"
#include "screenshots/shots_tab.h"
#include "ui/form_bindings.h"
#include "ui/form_tables.h"
#include "ui/layout.h"
#include "ui/resource.h"

namespace zentar::benchmarks {
namespace {

constexpr int kShotsTab = 0;

// The Shots tab in the real main window, over a folder.
class Tab {
  public:
    explicit Tab(const std::string& folder)
        : platform_(GetModuleHandleW(nullptr), LayoutControls),
          quiet_(platform_.Services().windows),
          form_(platform_.Services().forms.Create(MainWindowTable())),
          tab_(
              state_, Services(), ShotsTabControlsOf(*form_), [] {}, [](const BitmapPtr&) {}) {
        state_.WindowsFolder = WithBackslash(platform_.Services().shell.WindowsFolder());
        state_.ProgramFolder = WithBackslash(folder);
        state_.current.ScreenshotFolder = WithBackslash(folder);
        state_.settings.Expert = 1;
        form_->Show();
        form_->GetTab(IDC_SSTab1).SelectTab(kShotsTab);
        quiet_.PumpPending();
    }

    void Refresh() { tab_.RefreshScreenshotList(); }

    // Until it is painted.
    void View(int index) {
        form_->GetListBox(IDC_lstScreenshots).Select(index);
        quiet_.PumpPending();
    }

    ShotsTab& Shots() { return tab_; }
    ProgramState& State() { return state_; }
    Form& Window() { return *form_; }

    Platform Services() {
        const Platform all = platform_.Services();
        return {all.files,  all.shell,    quiet_,       all.locale,
                all.images, all.pictures, all.registry, all.forms};
    }

  private:
    Win32Platform platform_;
    QuietWindows quiet_;
    ProgramState state_;
    std::unique_ptr<Form> form_;
    ShotsTab tab_;
};

void MeasureList(const std::string& folder) {
    Tab tab(folder);
    BareWindowsList bare;
    const std::wstring wideFolder = std::filesystem::path(folder).wstring();
    const double ours = BestMilliseconds([&] { tab.Refresh(); });
    const double least = BestMilliseconds([&] { bare.Fill(wideFolder, L".tga"); });
    std::printf("list of %d shots: %.1f ms, bare %.1f ms, ratio %.2f (target 1.5)\n",
                tab.Window().GetListBox(IDC_lstScreenshots).Count(), ours, least, ours / least);
}

// "huge", "one", "two" are the shots' places in the list.
constexpr int kOne = 1;
constexpr int kTwo = 2;

void MeasureView(Tab& tab) {
    tab.Refresh();
    int shown = kOne;
    const double took = BestMilliseconds([&] {
        shown = kOne + kTwo - shown;
        tab.View(shown);
    });
    std::printf("view: %.1f ms\n", took);
}

void MeasureConversion(Tab& tab, const std::string& folder) {
    tab.View(kOne);
    ProgramState& state = tab.State();
    // Without what comes after the conversion: showing its result.
    class Unlisted : public ShotListView {
      public:
        explicit Unlisted(ShotListView& real)
            : shot_(real.CurrentShot()), actual_(real.picShotActual()) {}
        const Shot& CurrentShot() const override { return shot_; }
        const ActualShot& picShotActual() const override { return actual_; }
        std::vector<std::string> ListedShots() const override { return {}; }
        const std::string& ListedFolder() const override { return shot_.Path; }
        void RefreshScreenshotList() override {}
        void RefreshAndSelect(const std::string& /*shot*/) override {}
        void RefreshAndReselect(const std::string& /*shot*/) override {}
        void DecideDeleteAllWallpaper() override {}

      private:
        Shot shot_;
        ActualShot actual_;
    };
    Unlisted list(tab.Shots());
    ShotConversion conversion(state, tab.Services(), list);
    constexpr int kRuns = 9;
    const double ours = BestMilliseconds(
        [&] { conversion.mnuScreenshotMakeJPEGOnly_Click(); }, kRuns,
        [&] { std::filesystem::remove(std::filesystem::path(folder) / "one.jpg"); });
    // The same pixels, though upside down.
    constexpr std::size_t kHeader = 18;
    std::string pixels =
        samples::MakeTgaShot({.width = 1920, .height = 1080, .number = 1}).substr(kHeader);
    const std::filesystem::path bareJpg = std::filesystem::path(folder) / "bare.jpg";
    const double least = BestMilliseconds([&] { EncodeBareJpg(bareJpg, pixels, 1920, 1080); });
    std::filesystem::remove(bareJpg);
    std::printf("conversion: %.1f ms, bare encoding %.1f ms, ratio %.2f (target 1.5)\n", ours,
                least, ours / least);
}

void MeasureDrag(Tab& tab, const std::string& folder) {
    constexpr int kMoves = 50;
    const BitmapPtr shot = tab.Services().images.Load(folder + "\\huge.tga");
    const std::unique_ptr<Form> form = tab.Services().forms.Create(FullViewTable());
    PictureBox& box = form->GetPictureBox(IDC_picFull);
    box.SetImage(shot);
    form->Show();
    tab.Services().windows.PumpPending();
    const auto drag = [&] {
        for (int move = 0; move < kMoves; ++move) {
            box.MoveImage({-move * 7, -move * 5});
        }
        GdiFlush();
    };
    const double ours = BestMilliseconds(drag);
    // The picture box covers its window.
    BareBlit bare(GetWindow(FindWindowW(L"ZentarForm", L"Zentar - Screenshot"), GW_CHILD), 3840,
                  2160);
    const double least = BestMilliseconds([&] {
        for (int move = 0; move < kMoves; ++move) {
            bare.Draw(move * 7, move * 5);
        }
        GdiFlush();
    });
    std::printf("drag: %.2f ms a move, bare BitBlt %.2f ms, ratio %.2f (target 1.5)\n",
                ours / kMoves, least / kMoves, ours / least);
}

int OpenHandles() {
    return UniqueBitmap::Live() + UniqueMemoryContext::Live() + UniqueFile::Live() +
           UniqueSearch::Live() + UniqueWindow::Live() + UniqueIcon::Live() + UniqueFont::Live();
}

std::size_t PrivateKilobytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    counters.cb = sizeof counters;
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage / 1024;
}

void MeasureMemory(Tab& tab) {
    constexpr int kFew = 10;
    constexpr int kMany = 1000;
    std::size_t kilobytes = 0;
    int handles = 0;
    for (int view = 1; view <= kMany; ++view) {
        tab.View(view % 2 == 0 ? kOne : kTwo);
        if (view == kFew) {
            kilobytes = PrivateKilobytes();
            handles = OpenHandles();
        }
    }
    std::printf("after %d views: %u KB, %d handles; after %d: %u KB, %d handles\n", kFew,
                static_cast<unsigned>(kilobytes), handles, kMany,
                static_cast<unsigned>(PrivateKilobytes()), OpenHandles());
}

}  // namespace
}  // namespace zentar::benchmarks

int main(int argc, char** argv) {
    using namespace zentar::benchmarks;
    const std::string base = argc > 1 ? argv[1] : "benchmark_data";
    MeasureList(ManyShots(base));
    const std::string large = LargeShots(base);
    Tab tab(large);
    MeasureView(tab);
    MeasureConversion(tab, large);
    MeasureDrag(tab, large);
    MeasureMemory(tab);
    return 0;
}
