#include "tests/window/answer_time.h"

#include <cstdint>

#include "tests/window/waiting.h"

namespace zentar::window_tests {
namespace {

using std::chrono::milliseconds;

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

// What no program wanted, of all processors.
milliseconds IdleTime() {
    FILETIME idle{};
    FILETIME kernel{};
    FILETIME user{};
    GetSystemTimes(&idle, &kernel, &user);
    return Of(idle);
}

}  // namespace

bool AnswersWithin(HWND window, milliseconds longest) {
    const HANDLE thread =
        OpenThread(THREAD_QUERY_INFORMATION, FALSE, GetWindowThreadProcessId(window, nullptr));
    const auto start = std::chrono::steady_clock::now();
    const milliseconds idleBefore = IdleTime();
    const milliseconds workBefore = WorkOf(thread);
    DWORD_PTR result = 0;
    const bool answers =
        SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL,
                            static_cast<UINT>(milliseconds(kPatience).count()), &result) != 0;
    const auto passed = std::chrono::steady_clock::now() - start;
    const milliseconds work = WorkOf(thread) - workBefore;
    const milliseconds idle = IdleTime() - idleBefore;
    CloseHandle(thread);
    const bool isLoaded = idle < passed / 10;
    return answers && (passed <= longest || (isLoaded && work <= longest));
}

}  // namespace zentar::window_tests
