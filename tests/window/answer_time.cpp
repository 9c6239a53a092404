#include "tests/window/answer_time.h"

#include <cstdint>

namespace zentar::window_tests {
namespace {

using std::chrono::milliseconds;

// What waits for a disk or for other programs on a slow machine answers sooner than that.
constexpr std::chrono::seconds kLongestSilence{60};

milliseconds Of(FILETIME time) {
    constexpr std::uint64_t kPerMillisecond = 10'000;
    const std::uint64_t ticks = std::uint64_t{time.dwHighDateTime} << 32U | time.dwLowDateTime;
    return milliseconds(ticks / kPerMillisecond);
}

milliseconds WorkOf(HANDLE thread) {
    FILETIME created{};
    FILETIME ended{};
    FILETIME kernel{};
    FILETIME user{};
    GetThreadTimes(thread, &created, &ended, &kernel, &user);
    return Of(kernel) + Of(user);
}

}  // namespace

bool AnswersAfter(HWND window, milliseconds longest) {
    const HANDLE thread =
        OpenThread(THREAD_QUERY_INFORMATION, FALSE, GetWindowThreadProcessId(window, nullptr));
    const milliseconds workBefore = WorkOf(thread);
    DWORD_PTR result = 0;
    const bool answers =
        SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL,
                            static_cast<UINT>(milliseconds(kLongestSilence).count()), &result) != 0;
    const milliseconds work = WorkOf(thread) - workBefore;
    CloseHandle(thread);
    return answers && work <= longest;
}

}  // namespace zentar::window_tests
