// How fast the demo list comes up and the filter searches on Windows: windows_benchmark <folder>
//
// The folder takes the demos that are searched; they are made where they are missing.
#include <windows.h>

#include <array>
#include <cstdio>
#include <filesystem>

#include "benchmarks/bare_windows_list.h"
#include "benchmarks/sample_folders.h"
#include "benchmarks/stopwatch.h"
#include "demos/demo_list.h"
#include "platform/form.h"
#include "platform/win32/win32_platform.h"

namespace zentar::benchmarks {

namespace {

constexpr int kList = 1;
constexpr std::array kRows = {
    ControlRow{.id = kList, .kind = ControlKind::ListBox, .rect = {0, 0, 400, 500}}};

std::vector<Rect> AsDesigned(const FormTable& /*table*/, std::span<const ControlRow> rows,
                             Size /*client*/, int /*dpi*/) {
    std::vector<Rect> places;
    for (const ControlRow& row : rows) {
        places.push_back(row.rect);
    }
    return places;
}

void MeasureList(const std::string& folder) {
    Win32Platform platform(GetModuleHandleW(nullptr), AsDesigned);
    const FormTable table{.id = 1, .clientSize = {400, 500}, .controls = kRows, .menus = {}};
    const std::unique_ptr<Form> form = platform.Services().forms.Create(table);
    form->Show();
    ListBox& list = form->GetListBox(kList);
    BareWindowsList bare;
    const std::wstring wideFolder = std::filesystem::path(folder).wstring();
    const double ours = BestMilliseconds([&] {
        list.SetItems(ListDemos(platform.Services().files, folder + "\\", ".dm2", {}).entries);
    });
    const double least = BestMilliseconds([&] { bare.Fill(wideFolder, L".dm2"); });
    std::printf("list of %d demos: %.1f ms, bare %.1f ms, ratio %.2f (target 1.5)\n", list.Count(),
                ours, least, ours / least);
}

void MeasureSearch(const std::string& folder, const char* phrase) {
    Win32FileSystem files;
    std::size_t listed = 0;
    const double took = BestMilliseconds([&] {
        listed = ListDemos(files, folder + "\\", ".dm2",
                           {.showAll = false, .phrase = phrase, .contain = true})
                     .entries.size();
    });
    std::printf("search for \"%s\": %.1f ms, %d listed\n", phrase, took, static_cast<int>(listed));
}

}  // namespace

}  // namespace zentar::benchmarks

int main(int argc, char** argv) {
    using namespace zentar::benchmarks;
    const std::string base = argc > 1 ? argv[1] : "benchmark_data";
    MeasureList(ManyDemos(base));
    const std::string large = LargeDemos(base);
    MeasureSearch(large, "~wow Fred was here");
    MeasureSearch(large, kLastWords);
    return 0;
}
