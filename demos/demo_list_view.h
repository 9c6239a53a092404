// The demo list, as the commands on demos use it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "demos/demo_info.h"

namespace zentar {

class DemoListView {
  public:
    virtual ~DemoListView() = default;

    // Its Item is empty when no demo is selected.
    virtual const DemoInfo& SelectedDemo() const = 0;
    virtual std::vector<std::string> ListedDemos() const = 0;
    // Of a listed entry. The list may still be that of another mod than the current one.
    virtual std::string PathOfListed(const std::string& entry) const = 0;
    // Lists the demos of the current mod anew. Nothing is selected afterwards, unless a reselection
    // is pending.
    virtual void RefreshDemoList() = 0;
    // The next rebuild of the list selects this entry, should it then be there.
    virtual void SetPendingReselection(const std::string& entry) = 0;
    // Asks whether the selected file, which is no demo, should be renamed out of the list.
    virtual void OfferNotADemoRename() = 0;
    // Runs a command on demos, unless another one is under way.
    virtual void RunCommand(const std::function<void()>& command) = 0;
};

}  // namespace zentar
