#include "tests/window/screen_reader.h"

#include <oleacc.h>

#include <chrono>

#include "platform/win32/accessible_control.h"
#include "platform/win32/win32_text.h"
#include "tests/window/waiting.h"
#include "tests/window/windows_of.h"

namespace zentar::window_tests {
namespace {

using nviewlib::ComPointer;

std::string InWords(LONG role) {
    switch (role) {
        case ROLE_SYSTEM_PUSHBUTTON:
            return "push button";
        case ROLE_SYSTEM_CHECKBUTTON:
            return "check box";
        case ROLE_SYSTEM_RADIOBUTTON:
            return "radio button";
        case ROLE_SYSTEM_LIST:
            return "list";
        case ROLE_SYSTEM_TEXT:
            return "text";
        case ROLE_SYSTEM_GROUPING:
            return "group";
        case ROLE_SYSTEM_GRAPHIC:
            return "picture";
        case ROLE_SYSTEM_PAGETABLIST:
            return "tabs";
        case ROLE_SYSTEM_PROPERTYPAGE:
            return "page";
        default:
            return "role " + std::to_string(role);
    }
}

VARIANT Itself() {
    VARIANT child{};
    child.vt = VT_I4;
    child.lVal = CHILDID_SELF;
    return child;
}

// Newer readers first ask for what UI Automation knows, which is the system's to answer.
ComPointer<IAccessible> Ask(HWND control) {
    SendMessageTimeoutW(control, WM_GETOBJECT, 0, kUiAutomationAsks, SMTO_NORMAL,
                        static_cast<UINT>(std::chrono::milliseconds(kPatience).count()), nullptr);
    return nviewlib::Made<IAccessible>([control](IAccessible** object) {
        return AccessibleObjectFromWindow(control, static_cast<DWORD>(OBJID_CLIENT),
                                          __uuidof(IAccessible), reinterpret_cast<void**>(object));
    });
}

std::string NameOf(IAccessible& object) {
    BSTR text = nullptr;
    if (object.get_accName(Itself(), &text) != S_OK) {
        return {};
    }
    const std::string name = Narrow(std::wstring(text, SysStringLen(text)));
    SysFreeString(text);
    return name;
}

std::string RoleOf(IAccessible& object) {
    VARIANT role{};
    object.get_accRole(Itself(), &role);
    return role.vt == VT_I4 ? InWords(role.lVal) : "no role";
}

}  // namespace

void PrintTo(const Spoken& spoken, std::ostream* out) {
    *out << spoken.control << ": " << spoken.role << " \"" << spoken.name << "\"";
}

Spoken ScreenReader::Of(HWND control) const {
    const ComPointer<IAccessible> object = Ask(control);
    const int id = GetDlgCtrlID(control);
    return object ? Spoken{id, RoleOf(*object), NameOf(*object)} : Spoken{id, "unheard", ""};
}

std::vector<Spoken> ScreenReader::Inside(HWND window) const {
    std::vector<Spoken> all;
    for (const HWND control : Descendants(window)) {
        if (IsWindowVisible(control) && ClassOf(control) != "Static") {
            all.push_back(Of(control));
        }
    }
    std::erase_if(all, [](const Spoken& spoken) { return spoken.role == "page"; });
    return all;
}

}  // namespace zentar::window_tests
