#include "platform/win32/image_box.h"

#include <windowsx.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/win32/bitmap_context.h"
#include "platform/win32/panel.h"
#include "platform/win32/picture_scaler.h"

namespace zentar {
namespace {

constexpr int kBorder = 1;  // pixels

Size SizeOf(const RECT& rect) { return {rect.right - rect.left, rect.bottom - rect.top}; }

// The largest rectangle of the picture's proportions, in the middle of the room.
RECT Fit(Size picture, const RECT& room) {
    const Size most = SizeOf(room);
    const double scale = std::min(static_cast<double>(most.width) / picture.width,
                                  static_cast<double>(most.height) / picture.height);
    const auto length = [scale](int pixels) {
        return static_cast<LONG>(std::max(1L, std::lround(pixels * scale)));
    };
    const LONG width = length(picture.width);
    const LONG height = length(picture.height);
    const LONG left = room.left + (most.width - width) / 2;
    const LONG top = room.top + (most.height - height) / 2;
    return {left, top, left + width, top + height};
}

}  // namespace

Win32ImageBox::Win32ImageBox(const ControlPlace& place)
    : ControlBase(place), cursor_(place.instance, place.row.cursor) {}

ControlStyle Win32ImageBox::Style() const { return {PanelClass(Instance()), WS_GROUP}; }

void Win32ImageBox::SetImage(BitmapPtr image) {
    if (image == image_) {
        return;
    }
    image_ = std::move(image);
    scaled_.reset();
    Redraw(false);
}

void Win32ImageBox::OnLayout() { Redraw(false); }

RECT Win32ImageBox::Client() const {
    RECT client{};
    GetClientRect(Handle(), &client);
    return client;
}

void Win32ImageBox::Paint() {
    PAINTSTRUCT paint{};
    const HDC context = BeginPaint(Handle(), &paint);
    Draw(context, paint.rcPaint);
    EndPaint(Handle(), &paint);
}

// The border is the one that frames have.
void Win32ImageBox::Draw(HDC context, const RECT& wanted) {
    const RECT client = Client();
    FrameRect(context, &client, GetSysColorBrush(COLOR_BTNSHADOW));
    RECT room = client;
    InflateRect(&room, -kBorder, -kBorder);
    RECT part{};
    if (!IntersectRect(&part, &room, &wanted)) {
        return;
    }
    const HBRUSH behind = SurfaceBrush(InnerSurface());
    if (!image_) {
        FillRect(context, &part, behind);
        return;
    }
    const RECT place = Fit(image_->Dimensions(), room);
    Scale(place);
    PaintBitmap(context, part, scaled_ ? scaled_->Handle() : nullptr, place, behind);
}

// Once for each picture and size: painting again only copies.
void Win32ImageBox::Scale(const RECT& place) {
    if (!scaled_ || scaled_->Dimensions() != SizeOf(place)) {
        scaled_ = ScalePicture(Win32Bitmap::Of(*image_), SizeOf(place));
    }
}

void Win32ImageBox::Press() {
    pressed_ = true;
    SetCapture(Handle());
}

// A button that went down elsewhere, on a window that was closed by that, is no click here.
void Win32ImageBox::Release(POINT at) {
    if (!std::exchange(pressed_, false)) {
        return;
    }
    ReleaseCapture();
    const RECT client = Client();
    if (PtInRect(&client, at)) {
        Raise(&ControlEvents::click);
    }
}

std::optional<LRESULT> Win32ImageBox::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            Paint();
            return 0;
        case WM_PRINTCLIENT:
            Draw(reinterpret_cast<HDC>(wParam), Client());
            return 0;
        case WM_ERASEBKGND:
            return TRUE;
        case WM_SETCURSOR:
            if (!Host().ShowsHourglass() && cursor_.Choose(lParam)) {
                return TRUE;
            }
            break;
        case WM_LBUTTONDOWN:
            Press();
            return 0;
        case WM_LBUTTONUP:
            Release({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
            return 0;
        case WM_CAPTURECHANGED:
            pressed_ = false;
            return 0;
        default:
            break;
    }
    return ControlBase::OnMessage(message, wParam, lParam);
}

}  // namespace zentar
