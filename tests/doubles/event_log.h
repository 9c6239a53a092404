// One list of what happened, shared by all doubles of a test, so that it can assert the order.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace zentar {

// Entries read like calls: "Enumerate C:\Games\Quake2\", "labNumDemos.SetText(Scanning...)",
// "Pump", "Ask Confirm".
class EventLog {
  public:
    void Add(std::string entry) { entries_.push_back(std::move(entry)); }
    void Clear() { entries_.clear(); }

    const std::vector<std::string>& All() const { return entries_; }
    std::size_t Count(const std::string& entry) const;
    bool Has(const std::string& entry) const { return Count(entry) > 0; }

    // For EXPECT_TRUE: whether the steps happened in this order, other entries between them or not.
    testing::AssertionResult Ordered(const std::vector<std::string>& steps) const;

  private:
    std::string Joined() const;

    std::vector<std::string> entries_;
};

}  // namespace zentar
