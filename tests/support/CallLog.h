/// A platform without a screen: it keeps every call as a record, answers plausibly, and watches that drawing
/// objects are selected back and freed. For tests that prove order and arguments of what is drawn.
#pragma once

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tvok/host/Platform.h"

namespace tvok::test {

/// One call. What a drawing call draws with (colours, pen, mode) is resolved at that moment and stands in
/// `values`, in the order that the makers below name.
struct Call {
    std::string name;
    tvok_Rect rect{};
    std::vector<std::int32_t> values{};
    std::string text{};

    friend bool operator==(const Call&, const Call&) = default;
};
std::ostream& operator<<(std::ostream& out, const Call& call);

using Calls = std::vector<Call>;

/// How a text is drawn: the state of the context at that moment.
struct TextLook {
    std::int32_t textColor = 0;
    std::int32_t backColor = 0;
    std::int32_t align = 0;
    std::int32_t backMode = 2;
};

// Makers of the records that drawing calls leave.
Call FillRectCall(const tvok_Rect& rect, std::int32_t color);
Call FrameRectCall(const tvok_Rect& rect, std::int32_t color);
/// `fill` -1 is the hollow brush.
Call RectangleCall(const tvok_Rect& rect, std::int32_t penStyle, std::int32_t penWidth, std::int32_t penColor,
                   std::int32_t fill, std::int32_t rasterOperation);
Call TextCall(std::int32_t x, std::int32_t y, const tvok_Rect& rect, const std::string& text,
              const TextLook& look, std::int32_t options = 6);
Call FocusCall(const tvok_Rect& rect, std::int32_t textColor, std::int32_t backColor);
Call ImageCall(std::int32_t list, std::int32_t index, std::int32_t x, std::int32_t y, std::int32_t style = 1);
/// A record with values alone, for anything else.
Call PlainCall(const std::string& name, std::vector<std::int32_t> values = {}, const std::string& text = {});

/// The colour that `CallLog` gives for a system colour: unlike any plain colour of the tests.
constexpr std::int32_t Sys(std::int32_t index) {
    return 0x00ABC000 + index;
}

class CallLog : public host::Platform {
public:
    // What the platform answers.
    tvok_Rect client{0, 0, 300, 100};
    tvok_Rect window{50, 60, 354, 164}; ///< Client area 2 pixels inside on every side.
    host::Handle focus = 0;
    host::Point contextOrigin{52, 62};
    std::map<std::int32_t, std::int32_t> metrics;
    std::set<std::int32_t> keysDown;
    std::int32_t keyDownValue = -32768;
    std::int32_t verticalDpi = 96;
    bool guiFontReadable = true;
    host::LogFont guiFont;
    std::function<void(const std::string&)> onCall; ///< Before each call is answered; may throw.

    /// Every call in order, those of callbacks among them.
    const Calls& All() const { return calls_; }
    /// The calls that put something on the screen or reach a host, in order.
    Calls Drawing() const;
    Calls Named(const std::string& name) const;
    Calls NamedOneOf(const std::set<std::string>& names) const;
    void Clear() { calls_.clear(); }
    void Add(Call call) { calls_.push_back(std::move(call)); }

    // The context as it was left.
    std::int32_t textColor = 0, backColor = 0xFFFFFF, backMode = 1, textAlign = 0, rasterOperation = 0;
    host::Handle pen = cFirstPen, brush = cFirstBrush;
    static constexpr host::Handle cFirstPen = 501, cFirstBrush = 502;

    /// Created drawing objects that were not freed.
    std::size_t LiveObjects() const { return objects_.size(); }
    /// Objects that were freed while selected, or freed twice, or contexts that were not given back.
    std::int32_t Slips() const { return slips_ + openContexts_; }

    bool GetClientRect(host::Handle hWnd, tvok_Rect& rect) override;
    bool GetWindowRect(host::Handle hWnd, tvok_Rect& rect) override;
    bool ClientToScreen(host::Handle hWnd, host::Point& point) override;
    bool ScreenToClient(host::Handle hWnd, host::Point& point) override;
    host::Handle GetFocus() override;
    host::Handle SetFocus(host::Handle hWnd) override;
    host::Handle SetCapture(host::Handle hWnd) override;
    host::Handle GetCapture() override;
    bool ReleaseCapture() override;
    host::Handle GetParent(host::Handle hWnd) override;
    host::Handle SetParent(host::Handle hChild, host::Handle hNewParent) override;
    bool SetWindowPos(host::Handle hWnd, host::Handle hAfter, std::int32_t x, std::int32_t y, std::int32_t cx,
                      std::int32_t cy, std::int32_t flags) override;
    bool ShowWindow(host::Handle hWnd, bool show) override;
    bool IsWindowVisible(host::Handle hWnd) override;
    std::int32_t GetWindowExStyle(host::Handle hWnd) override;
    std::int32_t SetWindowExStyle(host::Handle hWnd, std::int32_t style) override;
    bool InvalidateRect(host::Handle hWnd, const tvok_Rect* rect, bool erase) override;
    bool UpdateWindow(host::Handle hWnd) override;
    host::Handle BeginPaint(host::Handle hWnd, host::PaintStruct& paint) override;
    bool EndPaint(host::Handle hWnd, const host::PaintStruct& paint) override;
    bool ScrollDC(host::Handle hDC, std::int32_t dx, std::int32_t dy, const tvok_Rect* scroll,
                  const tvok_Rect* clip, host::Handle hUpdateRegion, tvok_Rect* update) override;
    host::Handle GetWindowDC(host::Handle hWnd) override;
    bool ReleaseDC(host::Handle hWnd, host::Handle hDC) override;
    bool GetDCOrgEx(host::Handle hDC, host::Point& point) override;
    std::int32_t GetDeviceCaps(host::Handle hDC, std::int32_t index) override;
    host::Handle CreatePen(std::int32_t style, std::int32_t width, std::int32_t color) override;
    host::Handle CreateSolidBrush(std::int32_t color) override;
    host::Handle CreateFontIndirectA(const host::LogFont& font) override;
    host::Handle GetStockObject(std::int32_t index) override;
    host::Handle SelectObject(host::Handle hDC, host::Handle object) override;
    bool DeleteObject(host::Handle object) override;
    std::int32_t GetObjectA(host::Handle object, std::int32_t bytes, void* buffer) override;
    std::int32_t SetTextColor(host::Handle hDC, std::int32_t color) override;
    std::int32_t SetBkColor(host::Handle hDC, std::int32_t color) override;
    std::int32_t SetBkMode(host::Handle hDC, std::int32_t mode) override;
    std::int32_t SetTextAlign(host::Handle hDC, std::int32_t align) override;
    std::int32_t SetROP2(host::Handle hDC, std::int32_t mode) override;
    bool FillRect(host::Handle hDC, const tvok_Rect& rect, host::Handle brush) override;
    bool FrameRect(host::Handle hDC, const tvok_Rect& rect, host::Handle brush) override;
    bool Rectangle(host::Handle hDC, std::int32_t left, std::int32_t top, std::int32_t right,
                   std::int32_t bottom) override;
    bool MoveToEx(host::Handle hDC, std::int32_t x, std::int32_t y, host::Point* before) override;
    bool LineTo(host::Handle hDC, std::int32_t x, std::int32_t y) override;
    bool DrawFocusRect(host::Handle hDC, const tvok_Rect& rect) override;
    bool DrawEdge(host::Handle hDC, tvok_Rect& rect, std::int32_t edge, std::int32_t flags) override;
    bool DrawFrameControl(host::Handle hDC, tvok_Rect& rect, std::int32_t type, std::int32_t state) override;
    bool ExtTextOutA(host::Handle hDC, std::int32_t x, std::int32_t y, std::int32_t options,
                     const tvok_Rect* rect, const char* text, std::int32_t count,
                     const std::int32_t* dx) override;
    std::int32_t DrawTextA(host::Handle hDC, const char* text, std::int32_t count, tvok_Rect& rect,
                           std::int32_t flags) override;
    bool ImageList_Draw(host::Handle imageList, std::int32_t index, host::Handle hDC, std::int32_t x,
                        std::int32_t y, std::int32_t style) override;
    std::int32_t GetSysColor(std::int32_t index) override;
    std::int32_t GetSystemMetrics(std::int32_t index) override;
    std::int32_t GetAsyncKeyState(std::int32_t key) override;
    bool GetCursorPos(host::Point& point) override;
    bool PostMessageA(host::Handle hWnd, std::int32_t message, std::int32_t wParam,
                      std::int32_t lParam) override;
    void DoEvents() override;

private:
    struct Object {
        bool isPen = false;
        std::int32_t style = 0;
        std::int32_t width = 0;
        std::int32_t color = 0;
    };
    void Note(const std::string& name, std::vector<std::int32_t> values = {}, const tvok_Rect& rect = {},
              const std::string& text = {});
    host::Handle Create(const Object& object);
    std::int32_t Exchange(const std::string& name, std::int32_t& field, std::int32_t value);
    std::int32_t ColorOf(host::Handle object) const;

    Calls calls_;
    std::map<host::Handle, Object> objects_;
    host::Handle nextObject_ = 1000;
    host::Handle capture_ = 0;
    std::int32_t slips_ = 0;
    std::int32_t openContexts_ = 0;
};

} // namespace tvok::test
