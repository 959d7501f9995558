/// What components and picture windows are made of: a window, looks, a font.
#pragma once

#include <memory>
#include <string_view>

#include "tvok/host/Component.h"
#include "tvok/host/desktop/windows/ComponentFont.h"
#include "tvok/host/desktop/windows/WindowTree.h"

namespace tvok::soft {

class World;

/// The window outlives nothing of this: after `Leave` the members answer with what they held, and drawing and
/// placing do nothing.
class WidgetCore : public WindowClient {
public:
    WidgetCore(World& world, Window* parent, const tvok_Rect& rect, bool shown);
    ~WidgetCore() override;

    World& world() const { return world_; }
    Window& window() { return window_; }
    const Window& window() const { return window_; }
    void Leave(); ///< Takes the window out of the tree.

    std::int32_t Process(Window& window, const Message& message) override;
    Insets Frame() const override;
    void DrawFrame(Window& window, DeviceContext& context) override;
    std::int32_t EraseColor() const override;
    std::int16_t Pointer() const override { return pointer; }
    void ThemeChanged() override;

    float ToTwips(std::int32_t pixels) const;
    std::int32_t ToPixels(float twips) const;

    void MovePixels(const tvok_Rect& rect);
    void SetAppearance(std::int16_t value);
    void SetBorderStyle(std::int16_t value);
    void SetBackColor(OLE_COLOR color);
    void SetForeColor(OLE_COLOR color);
    void SetFontTransparent(bool transparent);
    void SetPointer(std::int16_t value);
    float TextWidth(std::string_view text) const;
    void FocusHere();
    void Refresh();
    void Cls();

    OLE_COLOR backColor = cButtonFace;
    OLE_COLOR foreColor = cButtonText;
    std::int16_t appearance = 1;
    std::int16_t borderStyle = 0;
    std::int16_t pointer = host::ccDefault;
    bool fontTransparent = true;
    std::shared_ptr<ComponentFont> font;

protected:
    /// The window's own share of a WM_PAINT.
    virtual void Paint() {}

private:
    void ApplyFrame();
    void Wheel(const Message& message);

    World& world_;
    Window window_;
};

/// Gives a `host::Widget` the members that its core has.
template<class Base>
class WidgetWindow : public Base, public WidgetCore {
public:
    using WidgetCore::WidgetCore;

    host::Handle hWnd() const override { return window().handle(); }
    host::Handle hDC() const override { return window().hDC(); }

    float Left() const override { return ToTwips(window().rect().Left); }
    float Top() const override { return ToTwips(window().rect().Top); }
    float Width() const override { return ToTwips(WidthOf(window().rect())); }
    float Height() const override { return ToTwips(HeightOf(window().rect())); }
    void Width(float twips) override { Size(twips, Height()); }
    void Height(float twips) override { Size(Width(), twips); }
    void Size(float width, float height) override {
        const tvok_Rect& rect = window().rect();
        MovePixels({rect.Left, rect.Top, rect.Left + ToPixels(width), rect.Top + ToPixels(height)});
    }
    void Move(float left, float top) override {
        const tvok_Rect& rect = window().rect();
        MovePixels(Moved(rect, ToPixels(left) - rect.Left, ToPixels(top) - rect.Top));
    }
    bool Visible() const override { return window().shown(); }
    void Visible(bool show) override { window().tree().Show(window(), show); }
    void ZOrder(std::int32_t position) override {
        window().tree().Order(window(), position == 0 ? host::HWND_TOP : host::HWND_BOTTOM);
    }

    OLE_COLOR BackColor() const override { return backColor; }
    void BackColor(OLE_COLOR color) override { SetBackColor(color); }
    OLE_COLOR ForeColor() const override { return foreColor; }
    void ForeColor(OLE_COLOR color) override { SetForeColor(color); }
    host::FontPtr Font() const override { return font; }
    void Font(const host::Font& from) override { Assign(*font, ValueOf(from)); }
    bool FontTransparent() const override { return fontTransparent; }
    void FontTransparent(bool transparent) override { SetFontTransparent(transparent); }
    std::int16_t Appearance() const override { return appearance; }
    void Appearance(std::int16_t value) override { SetAppearance(value); }
    std::int16_t BorderStyle() const override { return borderStyle; }
    void BorderStyle(std::int16_t style) override { SetBorderStyle(style); }
    std::int16_t MousePointer() const override { return pointer; }
    void MousePointer(std::int16_t value) override { SetPointer(value); }

    float TextWidth(std::string_view text) const override { return WidgetCore::TextWidth(text); }
    void SetFocus() override { FocusHere(); }
    void Refresh() override { WidgetCore::Refresh(); }
    void Cls() override { WidgetCore::Cls(); }
};

} // namespace tvok::soft
