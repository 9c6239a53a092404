// The picture services of Windows.
#pragma once

#include "platform/pictures.h"
#include "platform/win32/win32_session.h"

namespace zentar {

class Win32Pictures : public Pictures {
  public:
    explicit Win32Pictures(Win32Session& session) : session_(session) {}

    BitmapPtr Decode(std::string_view file) override;
    BitmapPtr Stretch(const Bitmap& picture, Size size) override;
    Result<std::string> EncodeBmp(const Bitmap& picture) override;

  private:
    Win32Session& session_;
};

}  // namespace zentar
