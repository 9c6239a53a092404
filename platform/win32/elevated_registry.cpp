#include "platform/win32/elevated_registry.h"

#include <shellapi.h>

#include <string_view>

#include "platform/win32/win32_file_error.h"
#include "platform/win32/win32_handle.h"
#include "platform/win32/win32_path.h"
#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

// The tool works in a blink; this is for a system that stands still.
constexpr DWORD kLongestWork = 30'000;

// As it stands between double quotes in the tool's files.
std::wstring Escaped(const std::string& text) {
    std::wstring escaped;
    for (const wchar_t character : Widen(text)) {
        if (character == L'\\' || character == L'"') {
            escaped += L'\\';
        }
        escaped += character;
    }
    return escaped;
}

std::wstring ScriptFor(const std::string& key, const std::vector<RegistryString>& strings) {
    constexpr std::string_view kSoftware = "Software\\";
    std::wstring script =
        L"\xFEFFWindows Registry Editor Version 5.00\r\n\r\n"
        L"[HKEY_LOCAL_MACHINE\\Software\\WOW6432Node\\";
    script.append(Widen(key.substr(kSoftware.size()))).append(L"]\r\n");
    for (const RegistryString& string : strings) {
        script.append(L"\"").append(Escaped(string.value)).append(L"\"=\"");
        script.append(Escaped(string.text)).append(L"\"\r\n");
    }
    return script;
}

// A file in the user's folder for such. What an administrator's right was given for must not be
// changed by another program meanwhile: it is held open, which keeps writers out, and compared.
class ScriptFile {
  public:
    explicit ScriptFile(const std::wstring& script) : path_(Path()) {
        DeleteFileW(path_.c_str());
        if (Write(script)) {
            held_ = UniqueFile(CreateFileW(path_.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                           OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
            good_ = Holds(script);
        }
    }
    ~ScriptFile() {
        held_.Reset();
        DeleteFileW(path_.c_str());
    }
    ScriptFile(const ScriptFile&) = delete;
    ScriptFile& operator=(const ScriptFile&) = delete;

    bool Good() const { return good_; }
    const std::wstring& Name() const { return path_; }

  private:
    static std::wstring Path() {
        return TemporaryFolderPath() + L"zentar-" + std::to_wstring(GetCurrentProcessId()) +
               L".reg";
    }
    static DWORD BytesOf(const std::wstring& script) {
        return static_cast<DWORD>(script.size() * sizeof(wchar_t));
    }
    bool Write(const std::wstring& script) const {
        const UniqueFile file(CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                          FILE_ATTRIBUTE_TEMPORARY, nullptr));
        DWORD written = 0;
        return file &&
               WriteFile(file.Get(), script.data(), BytesOf(script), &written, nullptr) != FALSE &&
               written == BytesOf(script);
    }
    bool Holds(const std::wstring& script) const {
        std::wstring read(script.size() + 1, L'\0');
        DWORD bytes = 0;
        if (!held_ || !ReadFile(held_.Get(), read.data(), BytesOf(read), &bytes, nullptr)) {
            return false;
        }
        read.resize(bytes / sizeof(wchar_t));
        return read == script;
    }

    std::wstring path_;
    UniqueFile held_;
    bool good_ = false;
};

std::wstring Tool() {
    std::wstring folder(MAX_PATH, L'\0');
    folder.resize(GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size())));
    return folder + L"\\reg.exe";
}

Status RunTool(const std::wstring& arguments, HWND owner) {
    const std::wstring tool = Tool();
    SHELLEXECUTEINFOW execute{};
    execute.cbSize = sizeof execute;
    execute.fMask = SEE_MASK_NOASYNC | SEE_MASK_FLAG_NO_UI | SEE_MASK_NOCLOSEPROCESS;
    execute.hwnd = owner;
    execute.lpVerb = L"runas";
    execute.lpFile = tool.c_str();
    execute.lpParameters = arguments.c_str();
    execute.nShow = SW_HIDE;
    if (!ShellExecuteExW(&execute)) {
        return FileError::AccessDenied;
    }
    const UniqueProcess process(execute.hProcess);
    DWORD exitCode = 1;
    if (!process || WaitForSingleObject(process.Get(), kLongestWork) != WAIT_OBJECT_0 ||
        !GetExitCodeProcess(process.Get(), &exitCode)) {
        return FileError::Other;
    }
    return exitCode == 0 ? Status() : Status(FileError::AccessDenied);
}

}  // namespace

Status WriteStringsAsAdministrator(const std::string& key,
                                   const std::vector<RegistryString>& strings, HWND owner) {
    const ScriptFile script(ScriptFor(key, strings));
    return script.Good() ? RunTool(L"import \"" + script.Name() + L"\"", owner)
                         : Status(FileError::Other);
}

}  // namespace zentar
