#include "platform/win32/bitmap_context.h"

namespace zentar {
namespace {

void Fill(HDC context, const RECT& part, HBRUSH brush) {
    if (part.left < part.right && part.top < part.bottom) {
        FillRect(context, &part, brush);
    }
}

}  // namespace

void PaintBitmap(HDC context, const RECT& wanted, HBITMAP bitmap, const RECT& place,
                 HBRUSH around) {
    RECT shown{};
    if (bitmap == nullptr || !IntersectRect(&shown, &wanted, &place)) {
        Fill(context, wanted, around);
        return;
    }
    const BitmapContext source(bitmap);
    BitBlt(context, shown.left, shown.top, shown.right - shown.left, shown.bottom - shown.top,
           source.Get(), shown.left - place.left, shown.top - place.top, SRCCOPY);
    Fill(context, {wanted.left, wanted.top, wanted.right, shown.top}, around);
    Fill(context, {wanted.left, shown.top, shown.left, shown.bottom}, around);
    Fill(context, {shown.right, shown.top, wanted.right, shown.bottom}, around);
    Fill(context, {wanted.left, shown.bottom, wanted.right, wanted.bottom}, around);
}

}  // namespace zentar
