// Numbers and dates as the user's Windows writes them.
#pragma once

#include "platform/locale.h"

namespace zentar {

class Win32Locale : public Locale {
  public:
    std::string ThousandsSeparator() override;
    std::string GeneralDate(FileTime moment) override;
};

}  // namespace zentar
