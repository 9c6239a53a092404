// A picture in the form that Windows draws.
#pragma once

#include <windows.h>

#include <memory>

#include "platform/bitmap.h"
#include "platform/nviewlib/raster.h"
#include "platform/win32/win32_handle.h"

namespace zentar {

// A bitmap whose pixels the program sees: 24 bits each, in lines that stand bottom up in memory.
class Win32Bitmap : public Bitmap {
  public:
    // Takes over a bitmap of that form; null for any other.
    static std::shared_ptr<Win32Bitmap> Take(UniqueBitmap handle);
    // A black one, whose maker then sets its pixels; null when there is no such size, or memory is
    // short.
    static std::shared_ptr<Win32Bitmap> Make(Size size);
    // Every bitmap of the program is one of these.
    static const Win32Bitmap& Of(const Bitmap& bitmap) {
        return static_cast<const Win32Bitmap&>(bitmap);
    }

    Size Dimensions() const override { return size_; }
    HBITMAP Handle() const { return handle_.Get(); }
    nviewlib::Raster Pixels() const;
    // How many bytes a line takes.
    std::size_t Pitch() const { return pitch_; }

  private:
    Win32Bitmap(UniqueBitmap handle, const BITMAP& form);

    UniqueBitmap handle_;
    Size size_;
    std::uint8_t* lowestLine_;
    std::size_t pitch_;
};

}  // namespace zentar
