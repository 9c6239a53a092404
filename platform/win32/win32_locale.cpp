#include "platform/win32/win32_locale.h"

#include <windows.h>

#include <array>

#include "platform/win32/win32_text.h"

namespace zentar {
namespace {

using TextBuffer = std::array<wchar_t, 256>;

// The user's clock at that moment, by the rule for summer time of that year. (One call of Windows
// does all of this, which Wine 8 does not have.)
bool LocalTime(FileTime moment, SYSTEMTIME& local) {
    const FILETIME time{static_cast<DWORD>(moment), static_cast<DWORD>(moment >> 32U)};
    SYSTEMTIME universal{};
    TIME_ZONE_INFORMATION zone{};
    return FileTimeToSystemTime(&time, &universal) &&
           GetTimeZoneInformationForYear(universal.wYear, nullptr, &zone) &&
           SystemTimeToTzSpecificLocalTime(&zone, &universal, &local);
}

}  // namespace

std::string Win32Locale::ThousandsSeparator() {
    TextBuffer text{};
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_STHOUSAND, text.data(),
                    static_cast<int>(text.size()));
    return Narrow(text.data());
}

std::string Win32Locale::GeneralDate(FileTime moment) {
    SYSTEMTIME local{};
    if (!LocalTime(moment, local)) {
        return {};
    }
    TextBuffer date{};
    TextBuffer time{};
    GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &local, nullptr, date.data(),
                    static_cast<int>(date.size()), nullptr);
    GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &local, nullptr, time.data(),
                    static_cast<int>(time.size()));
    return Narrow(date.data()) + " " + Narrow(time.data());
}

}  // namespace zentar
