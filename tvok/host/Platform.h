/// The platform operations that the library's logic draws and works with, by their platform names and with
/// their platform argument order. Any system can stand behind this interface: the software desktop, a
/// recorder that writes every call and passes it on, a native one.
///
/// Conventions. Rectangles and points are pixels. Handles are 32-bit and 0 is none; a handle that names
/// nothing makes an operation do nothing and answer 0 or false, as the native platform does. Colours are
/// 0x00BBGGRR
/// (`GetSysColor` and `TranslateColor` have already been applied). Text is 8-bit text in the system's code
/// page with its length in bytes. One thread: the one that owns the desktop.
#pragma once

#include <cstdint>

#include "tvok/host/constants.h"

/// What the controls need from their surroundings: interfaces, and the platform's constants.
namespace tvok::host {

class Platform {
public:
    virtual ~Platform() = default;

    // Windows.

    virtual bool GetClientRect(Handle hWnd, tvok_Rect& rect) = 0; ///< Left and top are 0.
    virtual bool GetWindowRect(Handle hWnd, tvok_Rect& rect) = 0; ///< In screen coordinates, with borders.
    virtual bool ClientToScreen(Handle hWnd, Point& point) = 0;   ///< From the client area's left top.
    virtual bool ScreenToClient(Handle hWnd, Point& point) = 0;   ///< The way back.
    virtual Handle GetFocus() = 0;                                ///< 0: another thread or program has it.
    virtual Handle
    SetFocus(Handle hWnd) = 0; ///< The window that had the focus. 0 takes it from every window.
    virtual Handle SetCapture(Handle hWnd) = 0; ///< The window that had the capture.
    virtual Handle GetCapture() = 0;            ///< The window that gets all mouse messages, 0 for none.
    virtual bool ReleaseCapture() = 0;          ///< The window that had it hears WM_CAPTURECHANGED.
    virtual Handle GetParent(Handle hWnd) = 0;  ///< 0 for a top-level window.
    virtual Handle SetParent(Handle hChild, Handle hNewParent) = 0; ///< New parent 0: a top-level window.
    /// `hAfter` -1 is the topmost band. `flags` are the SWP bits; 0 moves, sizes, reorders and activates
    /// nothing.
    virtual bool SetWindowPos(Handle hWnd, Handle hAfter, std::int32_t x, std::int32_t y, std::int32_t cx,
                              std::int32_t cy, std::int32_t flags) = 0;
    virtual bool ShowWindow(Handle hWnd, bool show) = 0; ///< Whether it was visible before.
    virtual bool IsWindowVisible(Handle hWnd) = 0;       ///< With all its parents.
    /// The extended style: 8 topmost, 128 tool window (no task bar entry once it floats).
    virtual std::int32_t GetWindowExStyle(Handle hWnd) = 0;
    virtual std::int32_t SetWindowExStyle(Handle hWnd, std::int32_t style) = 0; ///< The style before.

    // Update regions and painting.

    virtual bool InvalidateRect(Handle hWnd, const tvok_Rect* rect, bool erase) = 0; ///< No rectangle: all.
    virtual bool UpdateWindow(Handle hWnd) = 0; ///< Sends WM_PAINT now if something is invalid.
    /// Clips the window's context to the update region, validates it and gives the context; 0 if there is no
    /// window.
    virtual Handle BeginPaint(Handle hWnd, PaintStruct& paint) = 0;
    virtual bool EndPaint(Handle hWnd, const PaintStruct& paint) = 0; ///< Takes the clip off.
    /// Moves the pixels of `scroll` (none: the client area) that are visible and within `clip` by (dx, dy).
    /// `update` gets the box around everything that was uncovered: what came from outside the scroll
    /// rectangle, and what could not be copied because it was hidden. `hUpdateRegion` is not used and is 0.
    virtual bool ScrollDC(Handle hDC, std::int32_t dx, std::int32_t dy, const tvok_Rect* scroll,
                          const tvok_Rect* clip, Handle hUpdateRegion, tvok_Rect* update) = 0;

    // Device contexts and drawing objects.

    virtual Handle GetWindowDC(Handle hWnd) = 0;         ///< Window 0: the screen. Free it with `ReleaseDC`.
    virtual bool ReleaseDC(Handle hWnd, Handle hDC) = 0; ///< Of `GetWindowDC`.
    virtual bool GetDCOrgEx(Handle hDC, Point& point) = 0; ///< The context's origin on the screen.
    virtual std::int32_t GetDeviceCaps(Handle hDC, std::int32_t index) = 0; ///< Such as `LOGPIXELSY`.
    /// `style` such as `PS_SOLID`, `width` in pixels. Free it with `DeleteObject`.
    virtual Handle CreatePen(std::int32_t style, std::int32_t width, std::int32_t color) = 0;
    virtual Handle CreateSolidBrush(std::int32_t color) = 0;     ///< Free it with `DeleteObject`.
    virtual Handle CreateFontIndirectA(const LogFont& font) = 0; ///< Free it with `DeleteObject`.
    virtual Handle GetStockObject(std::int32_t index) = 0;      ///< Never to be freed. 0 where there is none.
    virtual Handle SelectObject(Handle hDC, Handle object) = 0; ///< The object of the same kind before.
    virtual bool DeleteObject(Handle object) = 0;               ///< False for a stock object or one in use.
    /// Copies up to `bytes` of a font's `LogFont`; the number of bytes copied, 0 when it cannot be read.
    virtual std::int32_t GetObjectA(Handle object, std::int32_t bytes, void* buffer) = 0;
    virtual std::int32_t SetTextColor(Handle hDC,
                                      std::int32_t color) = 0; ///< The value before, as the next four.
    virtual std::int32_t SetBkColor(Handle hDC, std::int32_t color) = 0;
    virtual std::int32_t SetBkMode(Handle hDC, std::int32_t mode) = 0;     ///< 1 transparent, 2 opaque.
    virtual std::int32_t SetTextAlign(Handle hDC, std::int32_t align) = 0; ///< Bits such as `TA_RIGHT`.
    virtual std::int32_t SetROP2(Handle hDC, std::int32_t mode) = 0;       ///< Of pens, such as `R2_NOT`.

    // Drawing.

    virtual bool FillRect(Handle hDC, const tvok_Rect& rect, Handle brush) = 0;  ///< Takes no pen.
    virtual bool FrameRect(Handle hDC, const tvok_Rect& rect, Handle brush) = 0; ///< One pixel wide.
    /// Frame by the context's pen, inside by its brush.
    virtual bool Rectangle(Handle hDC, std::int32_t left, std::int32_t top, std::int32_t right,
                           std::int32_t bottom) = 0;
    /// Where `LineTo` starts; `before` may be null.
    virtual bool MoveToEx(Handle hDC, std::int32_t x, std::int32_t y, Point* before) = 0;
    virtual bool LineTo(Handle hDC, std::int32_t x, std::int32_t y) = 0; ///< Without the last point.
    virtual bool DrawFocusRect(Handle hDC, const tvok_Rect& rect) = 0; ///< Twice leaves the pixels as before.
    /// `edge` is a sum of `BDR_` bits, `flags` of `BF_` bits. With `BF_ADJUST` `rect` gets what is inside.
    virtual bool DrawEdge(Handle hDC, tvok_Rect& rect, std::int32_t edge, std::int32_t flags) = 0;
    /// A picture of the system's: `type` such as `DFC_SCROLL`, `state` of `DFCS_` bits.
    virtual bool DrawFrameControl(Handle hDC, tvok_Rect& rect, std::int32_t type, std::int32_t state) = 0;
    /// `options`: 2 fills `rect` with the background colour first, 4 clips to it.
    virtual bool ExtTextOutA(Handle hDC, std::int32_t x, std::int32_t y, std::int32_t options,
                             const tvok_Rect* rect, const char* text, std::int32_t count,
                             const std::int32_t* dx = nullptr) = 0;
    /// The height of the text. With `DT_CALCRECT` nothing is drawn and `rect` gets the size.
    virtual std::int32_t DrawTextA(Handle hDC, const char* text, std::int32_t count, tvok_Rect& rect,
                                   std::int32_t flags) = 0;
    /// `index` is 0-based. `style` 1 draws transparent.
    virtual bool ImageList_Draw(Handle imageList, std::int32_t index, Handle hDC, std::int32_t x,
                                std::int32_t y, std::int32_t style) = 0;

    // System.

    virtual std::int32_t
    GetSysColor(std::int32_t index) = 0; ///< A plain colour of the theme; 0 for an unknown one.
    virtual std::int32_t GetSystemMetrics(std::int32_t index) = 0; ///< Pixels; 0 for an unknown one.
    virtual std::int32_t GetAsyncKeyState(std::int32_t key) = 0;   ///< Not 0 while the key or button is down.
    virtual bool GetCursorPos(Point& point) = 0;                   ///< In screen coordinates.
    /// Puts a message at the end of the queue.
    virtual bool PostMessageA(Handle hWnd, std::int32_t message, std::int32_t wParam,
                              std::int32_t lParam) = 0;
    virtual void DoEvents() = 0; ///< Lets the messages that wait now run, and returns.

    // Arithmetic on rectangles and texts. It has one answer on every platform, so it is not virtual.

    static void CopyRect(tvok_Rect& to, const tvok_Rect& from) { to = from; }
    static void InflateRect(tvok_Rect& rect, std::int32_t dx, std::int32_t dy); ///< Grows on all sides.
    static void OffsetRect(tvok_Rect& rect, std::int32_t dx, std::int32_t dy);  ///< Moves it.
    static bool IntersectRect(tvok_Rect& to, const tvok_Rect& a,
                              const tvok_Rect& b);          ///< Empty: all 0 and false.
    static std::int32_t IsRectEmpty(const tvok_Rect& rect); ///< 1 when it holds no pixel, else 0.
    static bool PtInRect(const tvok_Rect& rect,
                         Point point);              ///< Left and top belong to it, right and bottom do not.
    static std::int32_t lstrlenA(const char* text); ///< Bytes before the zero byte.
};

/// The thread's current platform. Throws `ObjectError` while there is none.
Platform& platform();

/// Sets the thread's current platform and gives the one before. Whoever owns the thread's desktop calls this;
/// the platform has to outlive its being set.
Platform* SetPlatform(Platform* platform);

} // namespace tvok::host
