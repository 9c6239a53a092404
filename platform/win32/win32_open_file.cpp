#include "platform/win32/win32_open_file.h"

#include <windows.h>

#include <algorithm>
#include <utility>

#include "platform/win32/win32_file_error.h"
#include "platform/win32/win32_handle.h"

namespace zentar {
namespace {

// What one call of the system is asked for; network drives refuse very large ones.
constexpr std::size_t kLargestTransfer = std::size_t{16} << 20U;

DWORD Portion(std::size_t bytes) { return static_cast<DWORD>(std::min(bytes, kLargestTransfer)); }

class Win32ReadableFile : public ReadableFile {
  public:
    explicit Win32ReadableFile(UniqueFile file) : file_(std::move(file)) {}

    Result<std::size_t> ReadAt(std::uint64_t offset, std::span<std::byte> into) override {
        std::size_t done = 0;
        while (done < into.size()) {
            OVERLAPPED at{};
            at.Offset = static_cast<DWORD>(offset + done);
            at.OffsetHigh = static_cast<DWORD>((offset + done) >> 32U);
            DWORD got = 0;
            if (!ReadFile(file_.Get(), into.data() + done, Portion(into.size() - done), &got,
                          &at)) {
                const DWORD error = GetLastError();
                if (error != ERROR_HANDLE_EOF) {
                    return FileErrorOf(error);
                }
            }
            if (got == 0) {
                break;
            }
            done += got;
        }
        return done;
    }

    Result<std::uint64_t> Length() override {
        LARGE_INTEGER length{};
        if (!GetFileSizeEx(file_.Get(), &length)) {
            return LastFileError();
        }
        return static_cast<std::uint64_t>(length.QuadPart);
    }

  private:
    UniqueFile file_;
};

class Win32WritableFile : public WritableFile {
  public:
    explicit Win32WritableFile(UniqueFile file) : file_(std::move(file)) {}

    Status Write(std::string_view bytes) override {
        std::int64_t done = 0;
        while (!bytes.empty()) {
            DWORD written = 0;
            const bool went = WriteFile(file_.Get(), bytes.data(), Portion(bytes.size()), &written,
                                        nullptr) != FALSE;
            const Status failure = went ? FileError::NoSpace : LastFileError();
            done += written;
            if (!went || written == 0) {
                TakeBack(done);
                return failure;
            }
            bytes.remove_prefix(written);
        }
        return {};
    }

    Status Flush() override {
        return FlushFileBuffers(file_.Get()) ? Status() : Status(LastFileError());
    }

    Status Close() override { return file_.Reset() ? Status() : Status(LastFileError()); }

  private:
    // The last bytes that were written, of a text whose rest did not go.
    void TakeBack(std::int64_t bytes) {
        LARGE_INTEGER back{};
        back.QuadPart = -bytes;
        if (bytes > 0 && SetFilePointerEx(file_.Get(), back, nullptr, FILE_CURRENT)) {
            SetEndOfFile(file_.Get());
        }
    }

    UniqueFile file_;
};

// Empties the file, or moves behind its end. Creating over an existing file would do the former
// too, but fails for a hidden one.
bool Prepare(HANDLE file, WriteMode mode) {
    switch (mode) {
        case WriteMode::Truncate:
            return SetEndOfFile(file) != FALSE;
        case WriteMode::Append:
            return SetFilePointerEx(file, LARGE_INTEGER{}, nullptr, FILE_END) != FALSE;
        case WriteMode::CreateNew:
            break;
    }
    return true;
}

}  // namespace

Result<std::unique_ptr<ReadableFile>> OpenReadableFile(const std::wstring& nativePath) {
    UniqueFile file(CreateFileW(nativePath.c_str(), GENERIC_READ,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) {
        return LastFileError();
    }
    return std::unique_ptr<ReadableFile>(std::make_unique<Win32ReadableFile>(std::move(file)));
}

Result<std::unique_ptr<WritableFile>> OpenWritableFile(const std::wstring& nativePath,
                                                       WriteMode mode) {
    UniqueFile file(CreateFileW(nativePath.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                mode == WriteMode::CreateNew ? CREATE_NEW : OPEN_ALWAYS,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file || !Prepare(file.Get(), mode)) {
        return LastFileError();
    }
    return std::unique_ptr<WritableFile>(std::make_unique<Win32WritableFile>(std::move(file)));
}

Status OverwriteFile(const std::wstring& nativePath, std::uint64_t offset, std::string_view bytes) {
    const UniqueFile file(CreateFileW(nativePath.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    LARGE_INTEGER length{};
    if (!file || !GetFileSizeEx(file.Get(), &length)) {
        return LastFileError();
    }
    const auto end = static_cast<std::uint64_t>(length.QuadPart);
    if (offset > end || bytes.size() > kLargestTransfer) {
        return FileError::Other;
    }
    OVERLAPPED at{};
    at.Offset = static_cast<DWORD>(offset);
    at.OffsetHigh = static_cast<DWORD>(offset >> 32U);
    DWORD written = 0;
    if (!WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, &at) ||
        !FlushFileBuffers(file.Get())) {
        return LastFileError();
    }
    return written == bytes.size() ? Status() : Status(FileError::NoSpace);
}

}  // namespace zentar
