#include "platform/win32/rich_text_box.h"

#include <algorithm>
#include <utility>

#include "platform/rtf/coloured_text.h"
#include "platform/rtf/rtf_reader.h"
#include "platform/rtf/rtf_writer.h"
#include "platform/win32/event_dispatcher.h"
#include "platform/win32/focus_keeper.h"
#include "platform/win32/rich_text_box_border.h"
#include "platform/win32/rich_text_box_clipboard.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

bool IsDown(int key) { return GetKeyState(key) < 0; }

// The message that the key stands for, of those about the clipboard.
UINT ClipboardMessage(WPARAM key) {
    const bool control = IsDown(VK_CONTROL) && !IsDown(VK_MENU);
    const bool shift = IsDown(VK_SHIFT);
    if ((control && key == 'V') || (shift && key == VK_INSERT)) {
        return WM_PASTE;
    }
    if (control && (key == 'C' || key == VK_INSERT)) {
        return WM_COPY;
    }
    return (control && key == 'X') || (shift && key == VK_DELETE) ? WM_CUT : WM_NULL;
}

// The editor has many more keys with Ctrl: for sizes, alignments, lists. It does not look whether
// that is a part of the AltGr key, with which characters are typed.
bool IsFormattingKey(WPARAM key) {
    if (!IsDown(VK_CONTROL)) {
        return false;
    }
    constexpr std::wstring_view kLetters = L"AYZ";
    const bool letter = key >= '0' && key <= 'Z';
    const bool known = kLetters.find(static_cast<wchar_t>(key)) != std::wstring_view::npos &&
                       !IsDown(VK_SHIFT) && !IsDown(VK_MENU);
    const bool sign =
        (key >= VK_OEM_1 && key <= VK_OEM_102) || (key >= VK_MULTIPLY && key <= VK_DIVIDE);
    return (letter && !known) || sign || key == VK_SPACE;
}

int LengthOf(const std::string& text) { return static_cast<int>(Widen(text).size()); }

}  // namespace

// What happens to the editor meanwhile is no news to the program yet.
class Win32RichTextBox::Busy {
  public:
    explicit Busy(Win32RichTextBox& box) : box_(box) { ++box_.busy_; }
    ~Busy() { --box_.busy_; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

  private:
    Win32RichTextBox& box_;
};

Win32RichTextBox::Win32RichTextBox(const ControlPlace& place) : ControlBase(place) {
    Replace({{place.row.caption, kBlack}});
}

ControlStyle Win32RichTextBox::Style() const {
    const ControlStyle editor = RichTextEditor::Style();
    return editor.windowClass != nullptr
               ? editor
               : ControlStyle{L"STATIC", WS_TABSTOP | WS_GROUP | SS_NOPREFIX | SS_NOTIFY,
                              WS_EX_CLIENTEDGE};
}

void Win32RichTextBox::OnMade() {
    if (RichTextEditor::Style().windowClass == nullptr) {
        return;
    }
    const Busy busy(*this);
    editor_.emplace(Handle());
    ShowBackground();
    editor_->SetContent(content_.runs);
    editor_->Select({caret_, caret_});
    changed_ = false;
}

RichText Win32RichTextBox::Content() const { return editor_ ? editor_->Content() : content_; }

std::string Win32RichTextBox::Text() const {
    std::string text;
    for (const ColouredRun& run : Content().runs) {
        text += run.text;
    }
    return text;
}

void Win32RichTextBox::SetText(const std::string& text) {
    const std::vector<ColouredRun> before = Content().runs;
    Replace({{text, kBlack}});
    if (content_.runs != before) {
        Raise(&ControlEvents::change);
    }
}

void Win32RichTextBox::SetContent(const std::vector<ColouredRun>& runs) {
    Replace(runs);
    Raise(&ControlEvents::change);
}

// Without an editor the text goes the same way from format to format, so that it will be the same.
void Win32RichTextBox::Replace(const std::vector<ColouredRun>& runs) {
    const Busy busy(*this);
    const std::vector<ColouredRun> fitting = FirstRuns(runs, kMostRichText);
    if (editor_) {
        editor_->SetContent(fitting);
        content_ = editor_->Content();
    } else {
        content_.runs = ReadRtf(WriteRtf(fitting)).value_or(std::vector<ColouredRun>());
        content_.endColour = content_.runs.empty() ? kBlack : content_.runs.back().colour;
        caret_ = 0;
    }
    changed_ = false;
}

void Win32RichTextBox::ColourSelection(ColourRef colour) {
    NeedWindow();
    if (!editor_) {
        return;
    }
    const Busy busy(*this);
    editor_->ColourSelection(colour);
    content_ = editor_->Content();
    changed_ = false;
}

int Win32RichTextBox::Caret() const {
    return editor_ ? static_cast<int>(editor_->Selection().cpMax) : caret_;
}

// The colour that was chosen for what is typed next does not survive a move, be it to the same
// place.
void Win32RichTextBox::PutCaret(int place) {
    if (!editor_) {
        caret_ = std::clamp(place, 0, LengthOf(Text()));
        return;
    }
    const LONG wanted = std::clamp<LONG>(place, 0, editor_->Length());
    const CHARRANGE now = editor_->Selection();
    if (now.cpMin != wanted || now.cpMax != wanted) {
        editor_->Select({wanted, wanted});
    }
}

void Win32RichTextBox::SetBackground(Colour colour) {
    if (colours_.SetBackground(colour)) {
        ShowBackground();
    }
}

COLORREF Win32RichTextBox::ShownBackground() const {
    return Rgb(Enabled() ? colours_.Background() : SystemColour::ButtonFace);
}

void Win32RichTextBox::RedrawBorder() const {
    RedrawWindow(Handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_NOCHILDREN);
}

void Win32RichTextBox::ShowBackground() {
    if (editor_) {
        editor_->SetBackground(ShownBackground());
        RedrawBorder();
    } else {
        Redraw(true);
    }
}

HBRUSH Win32RichTextBox::OnColour(HDC context) { return colours_.Apply(Handle(), context); }

void Win32RichTextBox::Insert(const std::vector<ColouredRun>& runs) {
    const Busy busy(*this);
    editor_->Insert(runs);
    changed_ = true;
}

void Win32RichTextBox::Paste() {
    const std::vector<ColouredRun> runs = RunsOnClipboard(Handle(), editor_->TypingColour());
    if (!runs.empty()) {
        Insert(runs);
    }
}

// False when what is selected, if anything is, is not on the clipboard now.
bool Win32RichTextBox::Copy() const {
    const std::vector<ColouredRun> runs = editor_->Selected();
    return runs.empty() || PutRunsOnClipboard(Handle(), runs);
}

// An emptied box begins in black again.
void Win32RichTextBox::NoteContent() {
    changed_ = false;
    RichText content = editor_->Content();
    if (content.runs == content_.runs) {
        return;
    }
    if (content.runs.empty()) {
        const Busy busy(*this);
        editor_->Select({0, 0});
        editor_->ColourSelection(kBlack);
        content.endColour = kBlack;
        changed_ = false;
    }
    content_ = std::move(content);
    Raise(&ControlEvents::change);
}

void Win32RichTextBox::OnCommand(WORD code) {
    if (code == EN_CHANGE) {
        changed_ = true;
    } else if (code == EN_SETFOCUS && !Host().Focus().Restoring()) {
        Raise(&ControlEvents::gotFocus);
    }
}

// What would make something else of the text than characters and colours.
std::optional<LRESULT> Win32RichTextBox::OnForbiddenMessage(UINT message, WPARAM wParam) const {
    const auto unless = [](bool forbidden) {
        return forbidden ? std::optional<LRESULT>(0) : std::nullopt;
    };
    switch (message) {
        case WM_CHAR:
            return unless(wParam != VK_BACK && StandsAsBlank(static_cast<char32_t>(wParam)));
        case WM_KEYDOWN:
            return unless(IsFormattingKey(wParam));
        case WM_MOUSEWHEEL:
            return unless((GET_KEYSTATE_WPARAM(wParam) & MK_CONTROL) != 0);  // would zoom
        case WM_GETDLGCODE:
            // Tab leaves what is selected as it is.
            return DLGC_WANTCHARS | DLGC_WANTARROWS;
        default:
            return std::nullopt;
    }
}

// What the editor would do with the clipboard of its own accord.
std::optional<LRESULT> Win32RichTextBox::OnClipboardMessage(UINT message) {
    switch (message) {
        case WM_COPY:
            Copy();
            return 0;
        case WM_CUT:
            if (Copy()) {
                Send(WM_CLEAR);
            }
            return 0;
        case WM_PASTE:
        case EM_PASTESPECIAL:
            Paste();
            return 0;
        case EM_CANPASTE:
            return ClipboardHoldsText() ? TRUE : FALSE;
        default:
            return std::nullopt;
    }
}

// What another program gives to the box, for example one that reads the screen.
std::optional<LRESULT> Win32RichTextBox::OnTextMessage(UINT message, LPARAM lParam) {
    const auto text = [lParam] {
        const auto* given = reinterpret_cast<const wchar_t*>(lParam);
        return given == nullptr ? std::string() : Narrow(given);
    };
    switch (message) {
        case EM_REPLACESEL:
            Insert({{text(), editor_->TypingColour()}});
            return 0;
        case WM_SETTEXT:
            SetText(text());
            return TRUE;
        default:
            return std::nullopt;
    }
}

// What comes after the editor's own handling.
void Win32RichTextBox::OnHandledMessage(UINT message) {
    switch (message) {
        case WM_SETFONT:
            editor_->UseItsFont();
            break;
        case WM_ENABLE:
        case WM_SYSCOLORCHANGE:
            ShowBackground();
            break;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            RedrawBorder();
            break;
        default:
            break;
    }
}

// The system draws what is inside of the border: the scroll bar.
std::optional<LRESULT> Win32RichTextBox::OnBorder() const {
    if (!DrawStyledBorder(Handle(), ShownBackground())) {
        return std::nullopt;
    }
    RECT inside{};
    GetWindowRect(Handle(), &inside);
    const int width = BorderWidth(Handle());
    InflateRect(&inside, -width, -width);
    const UniqueRegion region(CreateRectRgnIndirect(&inside));
    return DefWindowProcW(Handle(), WM_NCPAINT, reinterpret_cast<WPARAM>(region.Get()), 0);
}

std::optional<LRESULT> Win32RichTextBox::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!editor_ || message == WM_GETOBJECT) {
        return ControlBase::OnMessage(message, wParam, lParam);
    }
    std::optional<LRESULT> answer =
        OnClipboardMessage(message == WM_KEYDOWN ? ClipboardMessage(wParam) : message);
    if (!answer) {
        answer = OnTextMessage(message, lParam);
    }
    if (!answer) {
        answer = OnForbiddenMessage(message, wParam);
    }
    if (!answer && message == WM_NCPAINT) {
        answer = OnBorder();
    }
    if (!answer && message == WM_SETCURSOR && Host().ShowsHourglass()) {
        // The editor would show its own pointer; the system asks the form.
        answer = DefWindowProcW(Handle(), message, wParam, lParam);
    }
    if (!answer) {
        const Busy busy(*this);
        answer = PassOn(message, wParam, lParam);
        OnHandledMessage(message);
    }
    // The program may set another text now, which the editor would not expect while it changes its
    // own.
    if (changed_ && busy_ == 0) {
        NoteContent();
    }
    return answer;
}

}  // namespace zentar
