// What every locale promises.
#pragma once

#include <memory>

#include <gtest/gtest.h>

#include "platform/locale.h"

namespace zentar {

using LocaleMaker = std::unique_ptr<Locale> (*)();

class LocaleContract : public testing::TestWithParam<LocaleMaker> {
  protected:
    std::unique_ptr<Locale> locale_ = GetParam()();
};

}  // namespace zentar
