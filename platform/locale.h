// How the user's system writes numbers and dates.
#pragma once

#include <string>

#include "platform/file_system.h"

namespace zentar {

class Locale {
  public:
    virtual ~Locale() = default;
    // The separator between groups of three digits, for instance ",". May be empty.
    virtual std::string ThousandsSeparator() = 0;
    // Short date, a blank, long time, in the user's time zone.
    virtual std::string GeneralDate(FileTime moment) = 0;
};

}  // namespace zentar
