#include "tests/doubles/procedure_stack.h"

#include <algorithm>

namespace zentar {

void ProcedureStack::Run(const std::function<void()>& procedure) {
    ++depth_;
    procedure();
    --depth_;
    RunWaiting();
}

void ProcedureStack::WhenIdle(int level, std::function<void()> later) {
    waiting_.push_back({level, std::move(later)});
    RunWaiting();
}

int ProcedureStack::EnterModal() {
    modals_.push_back(depth_);
    return Level();
}

void ProcedureStack::LeaveModal() {
    modals_.pop_back();
    RunWaiting();
}

void ProcedureStack::RunWaiting() {
    while (depth_ == (modals_.empty() ? 0 : modals_.back())) {
        const auto next = std::find_if(waiting_.begin(), waiting_.end(),
                                       [this](const Waiting& w) { return w.level >= Level(); });
        if (next == waiting_.end())
            return;
        const std::function<void()> later = std::move(next->later);
        waiting_.erase(next);
        later();
    }
}

}  // namespace zentar
