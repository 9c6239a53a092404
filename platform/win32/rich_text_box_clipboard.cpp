#include "platform/win32/rich_text_box_clipboard.h"

#include <richedit.h>

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

#include "platform/rtf/rtf_reader.h"
#include "platform/rtf/rtf_writer.h"
#include "platform/win32/opened_clipboard.h"
#include "platform/win32/rich_text_box_editor.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

UINT RichTextFormat() {
    static const UINT format = RegisterClipboardFormatW(CF_RTF);
    return format;
}

// The bytes of a format, as long as this and the clipboard stand.
class ClipboardBytes {
  public:
    explicit ClipboardBytes(UINT format) : memory_(GetClipboardData(format)) {
        if (memory_ != nullptr) {
            bytes_ = static_cast<const char*>(GlobalLock(memory_));
        }
    }
    ~ClipboardBytes() {
        if (bytes_ != nullptr) {
            GlobalUnlock(memory_);
        }
    }
    ClipboardBytes(const ClipboardBytes&) = delete;
    ClipboardBytes& operator=(const ClipboardBytes&) = delete;

    std::string_view Get() const {
        return bytes_ == nullptr ? std::string_view()
                                 : std::string_view(bytes_, GlobalSize(memory_));
    }

  private:
    HGLOBAL memory_;
    const char* bytes_ = nullptr;
};

// The text ends with a zero, or with the memory.
std::vector<ColouredRun> PlainRuns(std::string_view bytes, ColourRef colour) {
    const auto* units = reinterpret_cast<const wchar_t*>(bytes.data());
    const std::size_t most =
        std::min<std::size_t>(bytes.size() / sizeof(wchar_t), kMostRichText + 1);
    std::wstring_view text(units, std::find(units, units + most, L'\0'));
    while (!text.empty() && (text.back() == L'\r' || text.back() == L'\n')) {
        text.remove_suffix(1);
    }
    if (text.empty()) {
        return {};
    }
    return {{Narrow(text), colour}};
}

}  // namespace

bool ClipboardHoldsText() {
    return IsClipboardFormatAvailable(RichTextFormat()) ||
           IsClipboardFormatAvailable(CF_UNICODETEXT);
}

std::vector<ColouredRun> RunsOnClipboard(HWND owner, ColourRef colour) {
    const OpenedClipboard clipboard(owner);
    if (!clipboard) {
        return {};
    }
    const ClipboardBytes rtf(RichTextFormat());
    std::optional<std::vector<ColouredRun>> runs = ReadRtf(rtf.Get());
    if (runs && !runs->empty()) {
        return *runs;
    }
    return PlainRuns(ClipboardBytes(CF_UNICODETEXT).Get(), colour);
}

bool PutRunsOnClipboard(HWND owner, const std::vector<ColouredRun>& runs) {
    const std::string rtf = WriteRtf(runs);
    std::wstring text;
    for (const ColouredRun& run : runs) {
        text += Widen(run.text);
    }
    OpenedClipboard clipboard(owner);
    return clipboard && EmptyClipboard() &&
           clipboard.Put(RichTextFormat(), rtf.c_str(), rtf.size() + 1) &&
           clipboard.Put(CF_UNICODETEXT, text.c_str(), (text.size() + 1) * sizeof(wchar_t));
}

}  // namespace zentar
