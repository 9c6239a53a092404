#include "platform/win32/win32_file_error.h"

namespace zentar {
namespace {

// The cross compiler's headers do not have this one by its name, ERROR_DISK_QUOTA_EXCEEDED.
constexpr DWORD kDiskQuotaExceeded = 1295;

}  // namespace

FileError FileErrorOf(DWORD systemError) {
    switch (systemError) {
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_DRIVE:
        case ERROR_NOT_READY:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
        case ERROR_DIRECTORY:
            return FileError::NotFound;
        case ERROR_ACCESS_DENIED:
        case ERROR_WRITE_PROTECT:
        case ERROR_NETWORK_ACCESS_DENIED:
        case ERROR_PRIVILEGE_NOT_HELD:
            return FileError::AccessDenied;
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_USER_MAPPED_FILE:
        case ERROR_DELETE_PENDING:
        case ERROR_BUSY:
            return FileError::InUse;
        case ERROR_ALREADY_EXISTS:
        case ERROR_FILE_EXISTS:
            return FileError::AlreadyExists;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
        case kDiskQuotaExceeded:
            return FileError::NoSpace;
        case ERROR_INVALID_NAME:
        case ERROR_BAD_PATHNAME:
        case ERROR_FILENAME_EXCED_RANGE:
            return FileError::BadName;
        default:
            return FileError::Other;
    }
}

FileError LastFileError() { return FileErrorOf(GetLastError()); }

}  // namespace zentar
