/// A paint of one window that also ends when a handler throws in the middle of it.
#pragma once

#include "tvok/host/Platform.h"

namespace tvok {

class WindowPaint {
public:
    explicit WindowPaint(host::Handle hWnd) : hWnd_(hWnd) { host::platform().BeginPaint(hWnd_, paint_); }
    WindowPaint(const WindowPaint&) = delete;
    WindowPaint& operator=(const WindowPaint&) = delete;
    ~WindowPaint() { host::platform().EndPaint(hWnd_, paint_); }

    /// The box around what has to be painted, in client coordinates.
    const tvok_Rect& rect() const { return paint_.rcPaint; }

private:
    host::Handle hWnd_;
    host::PaintStruct paint_;
};

} // namespace tvok
