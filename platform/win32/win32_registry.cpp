#include "platform/win32/win32_registry.h"

#include <windows.h>

#include <algorithm>

#include "platform/win32/elevated_registry.h"
#include "platform/win32/win32_file_error.h"
#include "platform/win32/win32_handle.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

Status StatusOf(LSTATUS error) {
    return error == ERROR_SUCCESS ? Status() : Status(FileErrorOf(static_cast<DWORD>(error)));
}

UniqueKey OpenKey(const std::string& key) {
    HKEY opened = nullptr;
    RegOpenKeyExW(HKEY_LOCAL_MACHINE, Widen(key).c_str(), 0, KEY_QUERY_VALUE | KEY_WOW64_32KEY,
                  &opened);
    return UniqueKey(opened);
}

// Another program may lengthen the value between the two calls.
std::optional<std::wstring> ReadText(HKEY key, const wchar_t* value) {
    for (;;) {
        DWORD type = REG_NONE;
        DWORD bytes = 0;
        if (RegQueryValueExW(key, value, nullptr, &type, nullptr, &bytes) != ERROR_SUCCESS ||
            type != REG_SZ) {
            return std::nullopt;
        }
        // What was written as bytes may end in the middle of a character.
        std::wstring text(bytes / sizeof(wchar_t) + 1, L'\0');
        bytes = static_cast<DWORD>(text.size() * sizeof(wchar_t));
        const LSTATUS read = RegQueryValueExW(key, value, nullptr, &type,
                                              reinterpret_cast<BYTE*>(text.data()), &bytes);
        if (read == ERROR_MORE_DATA) {
            continue;
        }
        if (read != ERROR_SUCCESS || type != REG_SZ) {
            return std::nullopt;
        }
        text.resize(bytes / sizeof(wchar_t));
        text.resize(std::min(text.size(), text.find(L'\0')));
        return text;
    }
}

}  // namespace

std::optional<std::string> Win32Registry::ReadString(const std::string& key,
                                                     const std::string& value) {
    const UniqueKey opened = OpenKey(key);
    if (!opened) {
        return std::nullopt;
    }
    const std::optional<std::wstring> text = ReadText(opened.Get(), Widen(value).c_str());
    return text ? std::optional(Narrow(*text)) : std::nullopt;
}

Status Win32Registry::WriteStrings(const std::string& key,
                                   const std::vector<RegistryString>& strings) {
    HKEY made = nullptr;
    LSTATUS done =
        RegCreateKeyExW(HKEY_LOCAL_MACHINE, Widen(key).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                        KEY_SET_VALUE | KEY_WOW64_32KEY, nullptr, &made, nullptr);
    const UniqueKey owned(made);
    for (const RegistryString& string : strings) {
        if (done == ERROR_SUCCESS) {
            const std::wstring text = Widen(string.text);
            // Without the NUL, which the system then adds by itself.
            done = RegSetValueExW(made, Widen(string.value).c_str(), 0, REG_SZ,
                                  reinterpret_cast<const BYTE*>(text.data()),
                                  static_cast<DWORD>(text.size() * sizeof(wchar_t)));
        }
    }
    if (done != ERROR_ACCESS_DENIED) {
        return StatusOf(done);
    }
    session_.ole.Need();
    return WriteStringsAsAdministrator(key, strings, session_.forms.DialogOwner());
}

}  // namespace zentar
