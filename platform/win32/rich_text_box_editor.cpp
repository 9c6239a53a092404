#include "platform/win32/rich_text_box_editor.h"

#include <richole.h>
#include <tom.h>

#include <algorithm>
#include <new>
#include <string>
#include <utility>

#include "platform/rtf/rtf_reader.h"
#include "platform/rtf/rtf_writer.h"
#include "platform/utf16.h"
#include "platform/win32/rich_text_box_library.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

// No library of MinGW has it.
constexpr GUID kTextDocumentId = {
    0x8CC497C0, 0xA1DF, 0x11CE, {0x80, 0x98, 0x00, 0xAA, 0x00, 0x47, 0xBE, 0x5D}};

DWORD CALLBACK TakeBytes(DWORD_PTR into, BYTE* bytes, LONG count, LONG* taken) {
    try {
        reinterpret_cast<std::string*>(into)->append(reinterpret_cast<char*>(bytes),
                                                     static_cast<std::size_t>(count));
    } catch (...) {
        return ERROR_OUTOFMEMORY;  // nothing is thrown across the editor
    }
    *taken = count;
    return 0;
}

DWORD CALLBACK GiveBytes(DWORD_PTR from, BYTE* bytes, LONG room, LONG* given) {
    auto& rest = *reinterpret_cast<std::string_view*>(from);
    const std::size_t count = std::min(rest.size(), static_cast<std::size_t>(room));
    std::copy_n(rest.begin(), count, reinterpret_cast<char*>(bytes));
    rest.remove_prefix(count);
    *given = static_cast<LONG>(count);
    return 0;
}

// The editor's text is one line, which what is put into it must not end.
std::string WithoutLineEnd(std::string rtf) {
    constexpr std::string_view kEnd = "\\par\r\n}";
    if (const std::size_t end = rtf.rfind(kEnd); end != std::string::npos) {
        rtf.replace(end, kEnd.size(), "}");
    }
    return rtf;
}

}  // namespace

std::vector<ColouredRun> FirstRuns(const std::vector<ColouredRun>& runs, int room) {
    auto left = static_cast<std::size_t>(std::max(room, 0));
    std::vector<ColouredRun> first;
    for (const ColouredRun& run : runs) {
        std::wstring text = Widen(run.text);
        if (text.size() > left) {
            text.resize(left > 0 && IsFirstHalf(text[left - 1]) ? left - 1 : left);
            first.push_back({Narrow(text), run.colour});
            break;
        }
        left -= text.size();
        first.push_back(run);
    }
    return first;
}

// Nothing is drawn meanwhile: the user would see selections that are none of theirs.
class RichTextEditor::DrawingStopped {
  public:
    explicit DrawingStopped(const RichTextEditor& editor)
        : editor_(editor), seen_(IsWindowVisible(editor.window_) != FALSE) {
        if (seen_) {
            editor_.Send(WM_SETREDRAW, FALSE);
        }
    }
    ~DrawingStopped() {
        if (seen_) {
            editor_.Send(WM_SETREDRAW, TRUE);
            RedrawWindow(editor_.window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
        }
    }
    DrawingStopped(const DrawingStopped&) = delete;
    DrawingStopped& operator=(const DrawingStopped&) = delete;

  private:
    const RichTextEditor& editor_;
    bool seen_;
};

// What is done meanwhile is no step of its own for the user who undoes things.
class RichTextEditor::UndoPaused {
  public:
    explicit UndoPaused(const RichTextEditor& editor) {
        IRichEditOle* object = nullptr;
        if (editor.Send(EM_GETOLEINTERFACE, 0, reinterpret_cast<LPARAM>(&object)) == 0 ||
            object == nullptr) {
            return;
        }
        void* document = nullptr;
        if (SUCCEEDED(object->QueryInterface(kTextDocumentId, &document))) {
            document_ = static_cast<ITextDocument*>(document);
            Undo(tomSuspend);
        }
        object->Release();
    }
    ~UndoPaused() {
        if (document_ != nullptr) {
            Undo(tomResume);
            document_->Release();
        }
    }
    UndoPaused(const UndoPaused&) = delete;
    UndoPaused& operator=(const UndoPaused&) = delete;

  private:
    void Undo(long how) const {
        long count = 0;
        document_->Undo(how, &count);
    }

    ITextDocument* document_ = nullptr;
};

// What is selected stays marked when the user goes to the colours.
ControlStyle RichTextEditor::Style() {
    return {RichEditorClass(),
            WS_TABSTOP | WS_GROUP | WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL | ES_NOHIDESEL |
                ES_NOOLEDRAGDROP,
            WS_EX_CLIENTEDGE};
}

RichTextEditor::RichTextEditor(HWND window) : window_(window) {
    // It is not to choose fonts or languages, nor to correct what is typed.
    constexpr LRESULT kOwnIdeas = IMF_AUTOKEYBOARD | IMF_AUTOFONT | IMF_AUTOFONTSIZEADJUST |
                                  IMF_DUALFONT | IMF_SPELLCHECKING | IMF_TKBPREDICTION;
    Send(EM_SETLANGOPTIONS, 0, Send(EM_GETLANGOPTIONS) & ~kOwnIdeas);
    Send(EM_AUTOURLDETECT, FALSE);
    Send(EM_EXLIMITTEXT, 0, kMostRichText);
    Send(EM_SETEVENTMASK, 0, ENM_CHANGE);
}

RichText RichTextEditor::Content() const {
    RichText content{StreamOut(0), kBlack};
    content.endColour = content.runs.empty() ? TypingColour() : content.runs.back().colour;
    return content;
}

// The code page is one that every reader knows; of its own accord the editor takes the program's,
// which is UTF-8.
std::vector<ColouredRun> RichTextEditor::StreamOut(WPARAM how) const {
    constexpr WPARAM kCodePage = SF_USECODEPAGE | 1252U << 16U;
    std::string rtf;
    EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&rtf), 0, TakeBytes};
    Send(EM_STREAMOUT, SF_RTF | kCodePage | how, reinterpret_cast<LPARAM>(&stream));
    if (stream.dwError != 0) {
        throw std::bad_alloc();
    }
    return ReadRtf(rtf).value_or(std::vector<ColouredRun>());
}

void RichTextEditor::SetContent(const std::vector<ColouredRun>& runs) {
    const DrawingStopped stopped(*this);
    StreamIn(runs, SF_RTF);
    Select({0, 0});
    if (Length() == 0) {
        ColourSelection(kBlack);
    }
    UseItsFont();
}

void RichTextEditor::Insert(const std::vector<ColouredRun>& runs) {
    const DrawingStopped stopped(*this);
    const CHARRANGE before = Selection();
    const LONG room = kMostRichText - Length() + before.cpMax - before.cpMin;
    StreamIn(FirstRuns(runs, room), SF_RTF | SFF_SELECTION);
    const LONG end = Selection().cpMax;
    const UndoPaused paused(*this);
    Select({before.cpMin, end});
    SetFormat(FontFormat(), SCF_SELECTION);
    Select({end, end});
}

void RichTextEditor::ColourSelection(ColourRef colour) {
    CHARFORMAT2W format{};
    format.dwMask = CFM_COLOR;
    format.crTextColor = colour;
    SetFormat(format, SCF_SELECTION);
}

ColourRef RichTextEditor::TypingColour() const {
    const CHARFORMAT2W format = Format(SCF_SELECTION);
    return (format.dwEffects & CFE_AUTOCOLOR) != 0 ? kBlack : format.crTextColor;
}

// Where everything is selected, the editor counts the end of the last line as well.
CHARRANGE RichTextEditor::Selection() const {
    CHARRANGE range{};
    Send(EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
    const LONG length = Length();
    return {std::min(range.cpMin, length), std::min(range.cpMax, length)};
}

void RichTextEditor::Select(CHARRANGE range) {
    Send(EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
    Send(EM_SCROLLCARET);
}

void RichTextEditor::UseItsFont() {
    SetFormat(FontFormat(), SCF_ALL);
    Send(EM_EMPTYUNDOBUFFER);
}

void RichTextEditor::SetBackground(COLORREF colour) {
    Send(EM_SETBKGNDCOLOR, 0, static_cast<LPARAM>(colour));
}

LONG RichTextEditor::Length() const {
    GETTEXTLENGTHEX how{GTL_NUMCHARS | GTL_PRECISE, 1200};  // 1200 is UTF-16
    return static_cast<LONG>(Send(EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&how)));
}

void RichTextEditor::StreamIn(const std::vector<ColouredRun>& runs, WPARAM how) {
    const std::string rtf = WithoutLineEnd(WriteRtf(runs));
    std::string_view rest = rtf;
    EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&rest), 0, GiveBytes};
    Send(EM_STREAMIN, how, reinterpret_cast<LPARAM>(&stream));
}

void RichTextEditor::SetFormat(CHARFORMAT2W format, WPARAM which) {
    format.cbSize = sizeof format;
    Send(EM_SETCHARFORMAT, which, reinterpret_cast<LPARAM>(&format));
}

CHARFORMAT2W RichTextEditor::Format(WPARAM which) const {
    CHARFORMAT2W format{};
    format.cbSize = sizeof format;
    Send(EM_GETCHARFORMAT, which, reinterpret_cast<LPARAM>(&format));
    return format;
}

// Everything but the colour.
CHARFORMAT2W RichTextEditor::FontFormat() const {
    CHARFORMAT2W format = Format(SCF_DEFAULT);
    format.dwMask = (CFM_EFFECTS | CFM_FACE | CFM_SIZE | CFM_CHARSET | CFM_WEIGHT | CFM_OFFSET |
                     CFM_BACKCOLOR) &
                    ~CFM_COLOR;
    return format;
}

}  // namespace zentar
