#include "platform/win32/event_dispatcher.h"

#include <windows.h>

#include <exception>
#include <utility>

namespace zentar {
namespace {

// A procedure that fails half way (out of memory) is given up; the program goes on, since the
// user's other work is worth more than the message.
void RunGuarded(const std::function<void()>& procedure) {
    try {
        procedure();
    } catch (const std::exception& failure) {
        OutputDebugStringA(failure.what());
    } catch (...) {
        OutputDebugStringA("An event procedure failed.");
    }
}

}  // namespace

void EventDispatcher::SetOnIdle(std::function<void()> onIdle) { onIdle_ = std::move(onIdle); }

void EventDispatcher::Run(const std::function<void()>& procedure) {
    if (!procedure) {
        return;
    }
    const std::function<void()> kept = procedure;
    ++depth_;
    RunGuarded(kept);
    --depth_;
    if (depth_ == 0 && onIdle_) {
        RunGuarded(onIdle_);
    }
}

EventDispatcher::Modal::Modal(EventDispatcher& dispatcher)
    : dispatcher_(dispatcher), outerDepth_(std::exchange(dispatcher.depth_, 0)) {}

EventDispatcher::Modal::~Modal() { dispatcher_.depth_ = outerDepth_; }

}  // namespace zentar
