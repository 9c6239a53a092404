#include "platform/win32/win32_window_services.h"

#include <windows.h>

#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "platform/win32/clipboard.h"
#include "platform/win32/file_dialog.h"
#include "platform/win32/input_box.h"
#include "platform/win32/pointer_refresh.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

UINT IconFlag(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Information:
            return MB_ICONINFORMATION;
        case MessageIcon::Exclamation:
            return MB_ICONEXCLAMATION;
        case MessageIcon::Question:
            return MB_ICONQUESTION;
        case MessageIcon::Critical:
            break;
    }
    return MB_ICONERROR;
}

UINT Flags(const Message& message) {
    return IconFlag(message.icon) | (message.buttons == MessageButtons::YesNo ? MB_YESNO : MB_OK) |
           (message.defaultButton == DefaultButton::Second ? MB_DEFBUTTON2 : MB_DEFBUTTON1);
}

struct TitleSearch {
    std::wstring wanted;
    std::wstring room;
    bool found = false;
};

// Asks the system and not the window, which may belong to a program that hangs. Windows' own search
// would take upper and lower case for the same.
BOOL CALLBACK CompareTitle(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<TitleSearch*>(parameter);
    const int length =
        InternalGetWindowText(window, search.room.data(), static_cast<int>(search.room.size()));
    search.found =
        std::wstring_view(search.room).substr(0, static_cast<std::size_t>(length)) == search.wanted;
    return search.found ? FALSE : TRUE;
}

}  // namespace

Answer Win32WindowServices::Ask(const Message& message) {
    const HWND owner = session_.forms.DialogOwner();
    const OtherFormsDisabled others(session_.forms, owner);
    const std::wstring text = Widen(message.text);
    const std::wstring title = Widen(message.title);
    int pressed = 0;
    do {
        pressed = MessageBoxW(owner, text.c_str(), title.c_str(), Flags(message));
        // Wine lets a Yes/No box be cancelled, which is no answer.
    } while (message.buttons == MessageButtons::YesNo && pressed == IDCANCEL);
    if (message.buttons == MessageButtons::Ok) {
        return Answer::Ok;
    }
    return pressed == IDYES ? Answer::Yes : Answer::No;
}

std::optional<std::string> Win32WindowServices::AskText(const TextQuestion& question) {
    return ShowInputBox(question, session_);
}

std::optional<std::string> Win32WindowServices::ChooseFileToOpen(const FileQuestion& question) {
    return ShowFileDialog(question, FilePurpose::Open, session_);
}

std::optional<std::string> Win32WindowServices::ChooseFileToSave(const FileQuestion& question) {
    return ShowFileDialog(question, FilePurpose::Save, session_);
}

std::optional<ColourRef> Win32WindowServices::ChooseColour(ColourRef shown) {
    return colourDialog_.Show(shown);
}

Status Win32WindowServices::PutOnClipboard(const std::string& text) {
    return PutTextOnClipboard(text);
}

bool Win32WindowServices::HasWindowTitled(const std::string& title) {
    TitleSearch search{Widen(title), {}};
    // One more than the title and its end, so that a longer one shows.
    search.room.resize(search.wanted.size() + 2);
    EnumWindows(CompareTitle, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

void Win32WindowServices::Sound(Beep beep) {
    MessageBeep(beep == Beep::Information ? MB_ICONINFORMATION : MB_ICONEXCLAMATION);
}

// Wine remembers that Shift was pressed only for its left and right key, not for either.
std::uint16_t Win32WindowServices::KeyState(PollKey key) {
    constexpr std::array<int, 3> kShift = {VK_SHIFT, VK_LSHIFT, VK_RSHIFT};
    constexpr std::array<int, 3> kControl = {VK_CONTROL, VK_LCONTROL, VK_RCONTROL};
    int state = 0;
    for (const int virtualKey : key == PollKey::Shift ? kShift : kControl) {
        state |= static_cast<std::uint16_t>(GetAsyncKeyState(virtualKey));
    }
    return static_cast<std::uint16_t>(state);
}

bool Win32WindowServices::IsDown(PollKey key) {
    return GetKeyState(key == PollKey::Shift ? VK_SHIFT : VK_CONTROL) < 0;
}

Pointer Win32WindowServices::SetPointer(Pointer pointer) {
    const Pointer before = std::exchange(session_.pointer, pointer);
    if (before != pointer) {
        RefreshPointer();
    }
    return before;
}

void Win32WindowServices::PumpPending() { session_.loop.RunPending(); }

void Win32WindowServices::Sleep(int milliseconds) { ::Sleep(static_cast<DWORD>(milliseconds)); }

}  // namespace zentar
