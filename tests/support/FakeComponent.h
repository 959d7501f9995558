/// A base component and a platform with one window, without a desktop: sizes, update region, scrolling and
/// focus behave as a control needs them, and every call stands in one log.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "tests/support/FakeHost.h"
#include "tvok/host/Component.h"

namespace tvok::test {

/// A `FakeHook` that writes what is done to it into the log as calls "hook.ScrollMax" and so on.
class LoggedHook : public FakeHook {
public:
    LoggedHook(CallLog& log, LoggedHook*& place) : log_(log), place_(place) {
        place_ = this;
        log_.Add(PlainCall("hook created"));
    }
    ~LoggedHook() override {
        place_ = nullptr;
        log_.Add(PlainCall("hook released"));
    }
    LoggedHook(const LoggedHook&) = delete;
    LoggedHook& operator=(const LoggedHook&) = delete;

    using FakeHook::ScrollHMax;
    using FakeHook::ScrollHValue;
    using FakeHook::ScrollLarge;
    using FakeHook::ScrollMax;
    using FakeHook::ScrollValue;

    bool attached = false;

    void HookMode(std::int32_t mode) override { log_.Add(PlainCall("hook.HookMode", {mode})); }
    void HookAttach(host::Handle hWnd, bool& flag) override {
        log_.Add(PlainCall("hook.HookAttach", {hWnd, flag}));
        attached = true;
    }
    void HookDetach() override {
        log_.Add(PlainCall("hook.HookDetach"));
        attached = false;
    }
    void ScrollValue(std::int32_t written) override {
        log_.Add(PlainCall("hook.ScrollValue", {written}));
        FakeHook::ScrollValue(written);
    }
    void ScrollMax(std::int32_t written) override {
        log_.Add(PlainCall("hook.ScrollMax", {written}));
        FakeHook::ScrollMax(written);
    }
    void ScrollLarge(std::int32_t page) override {
        log_.Add(PlainCall("hook.ScrollLarge", {page}));
        FakeHook::ScrollLarge(page);
    }
    void ScrollHMax(std::int32_t written) override { log_.Add(PlainCall("hook.ScrollHMax", {written})); }
    void ScrollHValue(std::int32_t written) override { log_.Add(PlainCall("hook.ScrollHValue", {written})); }

private:
    CallLog& log_;
    LoggedHook*& place_;
};

class HookServices : public FakeServices {
public:
    explicit HookServices(CallLog& log) : log_(log) {}
    LoggedHook* hook = nullptr; ///< The hook that lives, if any.
    std::unique_ptr<host::MessageHook> CreateMessageHook() override {
        return std::make_unique<LoggedHook>(log_, hook);
    }

private:
    CallLog& log_;
};

/// Keeps an update rectangle; `UpdateWindow` sends WM_PAINT through the hook, `ScrollDC` answers with the
/// band that it uncovers.
class WindowLog : public CallLog {
public:
    explicit WindowLog(HookServices*& services) : services_(services) {}

    bool InvalidateRect(host::Handle hWnd, const tvok_Rect* rect, bool erase) override;
    bool UpdateWindow(host::Handle hWnd) override;
    host::Handle BeginPaint(host::Handle hWnd, host::PaintStruct& paint) override;
    bool ScrollDC(host::Handle hDC, std::int32_t dx, std::int32_t dy, const tvok_Rect* scroll,
                  const tvok_Rect* clip, host::Handle region, tvok_Rect* update) override;

    tvok_Rect invalid{}; ///< Empty: nothing is to be painted.

private:
    HookServices*& services_;
};

/// One component of a control, with its surroundings current on this thread as long as it lives.
class FakeComponent : public host::Component {
public:
    static constexpr host::Handle cWindow = 7, cContext = 8;

    /// A window of this client size in pixels, with a border of `border` pixels on every side.
    FakeComponent(bool userMode, std::int32_t width, std::int32_t height, std::int32_t border = 0);
    ~FakeComponent() override;
    FakeComponent(const FakeComponent&) = delete;
    FakeComponent& operator=(const FakeComponent&) = delete;

    HookServices* servicesPlace = nullptr;
    WindowLog log{servicesPlace};
    HookServices services{log};
    host::Control* control = nullptr; ///< Gets `Resize`.
    struct Surroundings : host::Ambient {
        bool userMode = true;
        host::FontValue font{"Ambient Sans", 12, false, false, false, false};
        bool UserMode() const override { return userMode; }
        host::FontValue Font() const override { return font; }
        std::string DisplayName() const override { return "roster1"; }
    };
    Surroundings ambient;
    std::shared_ptr<FakeFont> font = std::make_shared<FakeFont>(log);
    std::int16_t pointer = 0; ///< `MousePointer` as it was written last.

    /// Sends a message to the hooked window; what the handler leaves of "goes on to normal processing".
    bool Send(std::int32_t message, std::int32_t wParam = 0, std::int32_t lParam = 0, bool process = true);
    std::int32_t PixelHeight() const { return log.window.bottom - log.window.Top; }
    void SetPixelSize(std::int32_t width, std::int32_t height); ///< Outer size; raises `Resize` on a change.

    host::Handle hWnd() const override { return cWindow; }
    host::Handle hDC() const override { return cContext; }
    float Left() const override { return 0; }
    float Top() const override { return 0; }
    float Width() const override { return static_cast<float>(log.window.Right - log.window.Left) * 15; }
    float Height() const override { return static_cast<float>(PixelHeight()) * 15; }
    void Width(float twips) override;
    void Height(float twips) override;
    void Size(float width, float height) override;
    void Move(float, float) override {}
    bool Visible() const override { return true; }
    void Visible(bool) override {}
    void ZOrder(std::int32_t) override {}
    OLE_COLOR BackColor() const override { return backColor_; }
    void BackColor(OLE_COLOR color) override;
    OLE_COLOR ForeColor() const override { return foreColor_; }
    void ForeColor(OLE_COLOR color) override;
    host::FontPtr Font() const override { return font; }
    void Font(const host::Font& from) override;
    bool FontTransparent() const override { return fontTransparent_; }
    void FontTransparent(bool transparent) override;
    std::int16_t Appearance() const override { return appearance_; }
    void Appearance(std::int16_t appearance) override;
    std::int16_t BorderStyle() const override { return borderStyle_; }
    void BorderStyle(std::int16_t style) override;
    std::int16_t MousePointer() const override { return pointer; }
    void MousePointer(std::int16_t shape) override { pointer = shape; }
    float TextWidth(std::string_view text) const override { return static_cast<float>(text.size()) * 90; }
    void SetFocus() override {}
    void Refresh() override {}
    void Cls() override {}
    const host::Ambient& Ambient() const override { return ambient; }
    std::unique_ptr<host::PictureWindow> CreatePicture() override { return nullptr; }
    host::Component& AddChild(host::Control&, std::string_view, const tvok_Rect&,
                              host::PropertyBag*) override {
        throw ObjectError("no children here");
    }
    void RemoveChild(host::Control&) override {}

private:
    std::int32_t border_;
    OLE_COLOR backColor_ = 0;
    OLE_COLOR foreColor_ = 0;
    bool fontTransparent_ = false;
    std::int16_t appearance_ = 0;
    std::int16_t borderStyle_ = 0;
    host::Platform* platformBefore_ = nullptr;
    host::Services* servicesBefore_ = nullptr;
};

} // namespace tvok::test
