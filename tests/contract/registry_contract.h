// What every registry promises.
#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "platform/registry.h"

namespace zentar {

// A registry, and a key of the test's own in it that does not exist yet.
class RegistryWorld {
  public:
    virtual ~RegistryWorld() = default;
    virtual Registry& TheRegistry() = 0;
    virtual std::string Key() const = 0;
};

using RegistryWorldMaker = std::unique_ptr<RegistryWorld> (*)();

class RegistryContract : public testing::TestWithParam<RegistryWorldMaker> {
  protected:
    Registry& TheRegistry() { return world_->TheRegistry(); }
    std::string Key() const { return world_->Key(); }

  private:
    std::unique_ptr<RegistryWorld> world_ = GetParam()();
};

}  // namespace zentar
