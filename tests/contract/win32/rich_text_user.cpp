#include "tests/contract/win32/rich_text_user.h"

#include <richedit.h>
#include <richole.h>

#include "platform/win32/win32_text.h"
#include "tests/contract/win32/the_platform.h"
#include "tests/contract/win32/win32_user.h"

namespace zentar {
namespace {

CHARRANGE SelectionOf(HWND editor) {
    CHARRANGE range{};
    SendMessageW(editor, EM_EXGETSEL, 0, reinterpret_cast<LPARAM>(&range));
    return range;
}

void SetSelection(HWND editor, CHARRANGE range) {
    SendMessageW(editor, EM_EXSETSEL, 0, reinterpret_cast<LPARAM>(&range));
}

}  // namespace

HeldKeys::HeldKeys(std::initializer_list<int> keys) {
    GetKeyboardState(before_.data());
    std::array<BYTE, 256> held = before_;
    for (const int key : keys)
        held[static_cast<std::size_t>(key)] = 0x80;
    SetKeyboardState(held.data());
}

HeldKeys::~HeldKeys() { SetKeyboardState(before_.data()); }

RichTextUser::RichTextUser() : form_(ThePlatform().Services().forms.Create(ContractMainTable())) {
    form_->Show();
    Settle();
    Box().SetFocus();
}

RichTextUser::~RichTextUser() {
    form_.reset();
    Settle();
}

HWND RichTextUser::Top() const { return FindTopWindow(ContractMainTable().caption); }

HWND RichTextUser::Editor() const { return FindControlWindow(Top(), kRich); }

void RichTextUser::SelectText(LONG from, LONG to) const { SetSelection(Editor(), {from, to}); }

void RichTextUser::PressIn(HWND window, std::initializer_list<int> held, WPARAM key) {
    const HeldKeys keys(held);
    PostKey(window, key);
    ThePlatform().Services().windows.PumpPending();
}

void RichTextUser::NoteChanges() {
    ControlEvents events;
    events.change = [this] { ++changes_; };
    Box().SetEvents(events);
    changes_ = 0;
}

std::string RichTextUser::FormatOfAll() const {
    const HWND editor = Editor();
    const CHARRANGE before = SelectionOf(editor);
    SetSelection(editor, {0, -1});
    CHARFORMAT2W format{};
    format.cbSize = sizeof format;
    SendMessageW(editor, EM_GETCHARFORMAT, SCF_SELECTION, reinterpret_cast<LPARAM>(&format));
    SetSelection(editor, before);
    const auto unless = [&format](DWORD mask, const std::string& value) {
        return ((format.dwMask & mask) != 0 ? value : "?") + " ";
    };
    constexpr DWORD kLooks = CFM_BOLD | CFM_ITALIC | CFM_UNDERLINE | CFM_STRIKEOUT | CFM_LINK;
    const bool sameLooks = (format.dwMask & kLooks) == kLooks;
    return unless(CFM_FACE, Narrow(format.szFaceName)) +
           unless(CFM_SIZE, std::to_string(format.yHeight)) +
           (sameLooks ? std::to_string(format.dwEffects & kLooks) : "?");
}

int RichTextUser::ObjectsInside() const {
    IRichEditOle* object = nullptr;
    SendMessageW(Editor(), EM_GETOLEINTERFACE, 0, reinterpret_cast<LPARAM>(&object));
    if (object == nullptr)
        return -1;
    const LONG count = object->GetObjectCount();
    object->Release();
    return count;
}

}  // namespace zentar
