// How long the code of a coloured text takes after a change: windows_q3_text_benchmark
//
// Against reading the text's characters and colours from the editor, which no way of making the
// code can do without.
#include <windows.h>

#include <cstdio>
#include <memory>

#include "benchmarks/motley_text.h"
#include "benchmarks/quiet_windows.h"
#include "benchmarks/stopwatch.h"
#include "platform/win32/win32_platform.h"
#include "q3tools/q3_text_tab.h"
#include "ui/form_bindings.h"
#include "ui/form_tables.h"
#include "ui/layout.h"
#include "ui/resource.h"

namespace zentar::benchmarks {
namespace {

constexpr int kQ3TextTab = 3;

void Measure() {
    Win32Platform platform(GetModuleHandleW(nullptr), LayoutControls);
    QuietWindows quiet(platform.Services().windows);
    const std::unique_ptr<Form> form = platform.Services().forms.Create(MainWindowTable());
    ProgramState state;
    Q3TextTab tab(state, platform.Services(), Q3TextControlsOf(*form));
    form->Show();
    form->GetTab(IDC_SSTab1).SelectTab(kQ3TextTab);
    quiet.PumpPending();
    RichTextBox& editor = form->GetRichTextBox(IDC_rtbQ3Text);
    for (const int characters : {40, 10'000}) {
        editor.SetContent(MotleyText(characters));
        quiet.PumpPending();
        const double ours = BestMilliseconds([&] { tab.BuildQ3TextCode(); });
        RichText content;
        const double least = BestMilliseconds([&] { content = editor.Content(); });
        std::printf("code of %d characters: %.2f ms, reading %.2f ms, ratio %.2f (target 2.0)\n",
                    characters, ours, least, ours / least);
    }
}

}  // namespace
}  // namespace zentar::benchmarks

int main() {
    zentar::benchmarks::Measure();
    return 0;
}
