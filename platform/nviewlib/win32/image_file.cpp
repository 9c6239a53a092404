#include "platform/nviewlib/win32/image_file.h"

#include <windows.h>

#include <string>

#include "platform/nviewlib/win32/resources.h"

namespace nviewlib {
namespace {

constexpr std::wstring_view kNativePrefix = LR"(\\?\)";
constexpr std::wstring_view kSharePrefix = LR"(\\?\UNC\)";

std::wstring Widen(std::string_view utf8) {
    const int bytes = static_cast<int>(utf8.size());
    const int length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, wide.data(), length);
    return wide;
}

// In the form that Windows takes at any length.
std::wstring NativePath(std::string_view path) {
    std::wstring wide = Widen(path);
    if (wide.starts_with(kNativePrefix)) {
        return wide;
    }
    std::wstring full(GetFullPathNameW(wide.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(
        GetFullPathNameW(wide.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    if (full.starts_with(L"\\\\")) {
        return std::wstring(kSharePrefix).append(full, 2);
    }
    return std::wstring(kNativePrefix).append(full);
}

Handle Open(const std::wstring& path, DWORD access, DWORD share, DWORD creation) {
    const HANDLE file =
        CreateFileW(path.c_str(), access, share, nullptr, creation, FILE_ATTRIBUTE_NORMAL, nullptr);
    return Handle(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

bool WriteAll(HANDLE file, std::span<const std::uint8_t> bytes) {
    DWORD written = 0;
    return WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
           written == bytes.size();
}

// Wine lets an administrator replace a read-only file, against the user's wish.
bool IsReadOnly(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

}  // namespace

// Memory of a file that is larger than nearly all goes when the next one is read.
std::uint8_t* FileBytes::RoomFor(std::size_t bytes) {
    constexpr std::size_t kKept = std::size_t{32} << 20U;
    if (bytes > room_ || room_ > kKept) {
        bytes_.reset();
        room_ = 0;
        bytes_ = std::make_unique_for_overwrite<std::uint8_t[]>(bytes);
        room_ = bytes;
    }
    return bytes_.get();
}

bool FileBytes::Read(std::string_view path) {
    size_ = 0;
    const Handle file = Open(NativePath(path), GENERIC_READ,
                             FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING);
    LARGE_INTEGER length{};
    if (!file || !GetFileSizeEx(file.get(), &length) || length.QuadPart > kLongestFile) {
        return false;
    }
    const auto wanted = static_cast<DWORD>(length.QuadPart);
    // A file that gets shorter meanwhile ends where it ends.
    DWORD got = 0;
    if (!ReadFile(file.get(), RoomFor(wanted), wanted, &got, nullptr)) {
        return false;
    }
    size_ = got;
    return true;
}

bool WriteImageFile(std::string_view path, std::span<const std::uint8_t> bytes) {
    const std::wstring native = NativePath(path);
    const std::wstring beside = native + L".zentar-new";
    Handle file = IsReadOnly(native) ? nullptr : Open(beside, GENERIC_WRITE, 0, CREATE_ALWAYS);
    if (!file) {
        return false;
    }
    const bool written = WriteAll(file.get(), bytes);
    file.reset();
    if (written && MoveFileExW(beside.c_str(), native.c_str(), MOVEFILE_REPLACE_EXISTING)) {
        return true;
    }
    DeleteFileW(beside.c_str());
    return false;
}

}  // namespace nviewlib
