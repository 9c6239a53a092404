#include "platform/win32/file_rights.h"

#include <windows.h>

namespace zentar {

FileRights RightsOf(const std::wstring& nativePath) {
    DWORD size = 0;
    GetFileSecurityW(nativePath.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    FileRights rights(size);
    if (size == 0 || !GetFileSecurityW(nativePath.c_str(), DACL_SECURITY_INFORMATION, rights.data(),
                                       size, &size)) {
        rights.clear();
    }
    return rights;
}

void SetRights(const std::wstring& nativePath, FileRights rights) {
    if (rights.empty()) {
        return;
    }
    // What was inherited from the folder stays known as that.
    SetSecurityDescriptorControl(rights.data(), SE_DACL_AUTO_INHERIT_REQ, SE_DACL_AUTO_INHERIT_REQ);
    SetFileSecurityW(nativePath.c_str(), DACL_SECURITY_INFORMATION, rights.data());
}

}  // namespace zentar
