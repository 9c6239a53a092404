#include "tests/window/second_drive.h"

#include <windows.h>

#include <algorithm>
#include <stdexcept>
#include <string_view>

#include "platform/win32/win32_text.h"
#include "tests/contract/win32/path_outside_wine.h"

namespace zentar::window_tests {

namespace {

// Wine shows the whole disk as its drive Z:, too, and tells where on it a file lies.
std::wstring PathOnWinesDisk(const std::filesystem::path& path) {
    const std::optional<std::string> outside = PathOutsideWine(path);
    if (!outside) {
        return {};
    }
    std::wstring onDisk = L"Z:" + Widen(*outside);
    std::replace(onDisk.begin(), onDisk.end(), L'/', L'\\');
    // Its drive C: is a link of that name, which a path of Windows cannot hold.
    constexpr std::wstring_view kLink = LR"(\dosdevices\c:)";
    if (const std::size_t at = onDisk.find(kLink); at != std::wstring::npos) {
        onDisk.replace(at, kLink.size(), LR"(\drive_c)");
    }
    return onDisk;
}

}  // namespace

SecondDrive::SecondDrive(const std::filesystem::path& folder) : root_(PathOnWinesDisk(folder)) {
    for (wchar_t letter = L'R'; root_.empty() && letter >= L'K'; --letter) {
        letter_ = {letter, L':'};
        if (GetDriveTypeW((letter_ + L"\\").c_str()) == DRIVE_NO_ROOT_DIR &&
            DefineDosDeviceW(0, letter_.c_str(), folder.c_str()) != FALSE) {
            root_ = letter_;
        }
    }
    if (root_.empty()) {
        throw std::runtime_error("no second drive, error " + std::to_string(GetLastError()));
    }
}

SecondDrive::~SecondDrive() {
    if (!letter_.empty()) {
        DefineDosDeviceW(DDD_REMOVE_DEFINITION, letter_.c_str(), nullptr);
    }
}

std::string SecondDrive::Root() const { return Narrow(root_) + "\\"; }

}  // namespace zentar::window_tests
