#include "platform/win32/picture_box.h"

#include <windowsx.h>

#include <utility>

#include "platform/win32/bitmap_context.h"
#include "platform/win32/event_dispatcher.h"
#include "platform/win32/win32_bitmap.h"
#include "platform/win32/window_class.h"

namespace zentar {
namespace {

const wchar_t* BoxClass(HINSTANCE instance) {
    WNDCLASSEXW windowClass{};
    windowClass.style = CS_DBLCLKS | CS_OWNDC;
    windowClass.lpfnWndProc = DefWindowProcW;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = L"ZentarPictureBox";
    return RegisterWindowClass(windowClass);
}

// None when the system lacks the memory.
UniqueBitmap CopyForScreen(HWND window, const Win32Bitmap& bitmap) {
    const Size size = bitmap.Dimensions();
    const WindowContext screen(window);
    UniqueBitmap copy(CreateCompatibleBitmap(screen.Get(), size.width, size.height));
    if (!copy) {
        return copy;
    }
    const BitmapContext to(copy.Get());
    const BitmapContext from(bitmap.Handle());
    const BOOL copied = BitBlt(to.Get(), 0, 0, size.width, size.height, from.Get(), 0, 0, SRCCOPY);
    return copied ? std::move(copy) : UniqueBitmap();
}

}  // namespace

Win32PictureBox::Win32PictureBox(const ControlPlace& place)
    : ControlBase(place), cursor_(place.instance, place.row.cursor) {}

ControlStyle Win32PictureBox::Style() const {
    return {BoxClass(Instance()), WS_TABSTOP | WS_GROUP};
}

void Win32PictureBox::SetImage(BitmapPtr image) {
    onScreen_.Reset();
    image_ = std::move(image);
    if (image_) {
        onScreen_ = CopyForScreen(NeedWindow(), Win32Bitmap::Of(*image_));
    }
    Redraw(false);
}

// At once: a dragged picture that waits until no more mouse messages come lags behind. And without
// the ceremony of WM_PAINT, which takes as long as the drawing.
void Win32PictureBox::MoveImage(Point to) {
    const RECT before = ImageRect();
    place_ = to;
    const RECT after = ImageRect();
    const RECT view{0, 0, View().width, View().height};
    RECT changed{};
    UnionRect(&changed, &before, &after);
    if (IntersectRect(&changed, &changed, &view)) {
        const WindowContext context(NeedWindow());
        Draw(context.Get(), changed);
    }
}

Size Win32PictureBox::View() const {
    RECT client{};
    GetClientRect(NeedWindow(), &client);
    return {client.right, client.bottom};
}

RECT Win32PictureBox::ImageRect() const {
    const Size size = image_ ? image_->Dimensions() : Size{};
    return {place_.x, place_.y, place_.x + size.width, place_.y + size.height};
}

void Win32PictureBox::Paint() const {
    PAINTSTRUCT paint{};
    const HDC context = BeginPaint(Handle(), &paint);
    Draw(context, paint.rcPaint);
    EndPaint(Handle(), &paint);
}

void Win32PictureBox::Draw(HDC context, const RECT& wanted) const {
    HBITMAP bitmap = onScreen_.Get();
    if (bitmap == nullptr && image_) {
        bitmap = Win32Bitmap::Of(*image_).Handle();
    }
    PaintBitmap(context, wanted, bitmap, ImageRect(),
                static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
}

void Win32PictureBox::Press(Point at) {
    leftDown_ = true;
    SetCapture(Handle());
    RaiseDown(MouseButton::Left, at);
}

void Win32PictureBox::RaiseDown(MouseButton button, Point at) {
    if (mouse_.down) {
        Host().Dispatcher().Run([down = mouse_.down, button, at] { down(button, at); });
    }
}

void Win32PictureBox::LeftIsUp() const {
    if (leftDown_) {
        ReleaseCapture();  // which tells of it
    }
}

// The mouse's messages go elsewhere, whoever wanted that.
void Win32PictureBox::EndDrag() {
    if (std::exchange(leftDown_, false)) {
        Host().Dispatcher().Run(mouse_.up);
    }
}

std::optional<LRESULT> Win32PictureBox::OnMouse(UINT message, Point at) {
    switch (message) {
        case WM_LBUTTONDOWN:
            Press(at);
            return 0;
        case WM_MOUSEMOVE:
            if (leftDown_ && mouse_.drag) {
                Host().Dispatcher().Run([drag = mouse_.drag, at] { drag(at); });
            }
            return 0;
        case WM_LBUTTONUP:
            LeftIsUp();
            return 0;
        case WM_LBUTTONDBLCLK:
            Raise(&ControlEvents::doubleClick);
            return 0;
        case WM_RBUTTONDOWN:
        case WM_RBUTTONDBLCLK:
            // The window may be gone before the left one comes up.
            LeftIsUp();
            RaiseDown(MouseButton::Right, at);
            return 0;
        default:
            return std::nullopt;
    }
}

std::optional<LRESULT> Win32PictureBox::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            Paint();
            return 0;
        case WM_PRINTCLIENT:
            Draw(reinterpret_cast<HDC>(wParam), {0, 0, View().width, View().height});
            return 0;
        case WM_ERASEBKGND:
            return TRUE;
        case WM_SETCURSOR:
            if (!Host().ShowsHourglass() && cursor_.Choose(lParam)) {
                return TRUE;
            }
            break;
        case WM_CAPTURECHANGED:
            EndDrag();
            return 0;
        default:
            if (const auto answer =
                    OnMouse(message, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)})) {
                return answer;
            }
            break;
    }
    return ControlBase::OnMessage(message, wParam, lParam);
}

}  // namespace zentar
