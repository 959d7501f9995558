/// A component without a window, for a control that is to show its settings and nothing else.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "tvok/host/Component.h"

namespace tvok::soft {

void CheckAppearance(std::int16_t appearance); ///< Throws `Error` for other values than 0 and 1.
void CheckBorderStyle(std::int16_t style);

/// A font that keeps what is written to it.
class ProbeFont final : public host::Font {
public:
    std::string Name() const override { return value_.Name; }
    void Name(const std::string& face) override { value_.Name = face; }
    float Size() const override { return value_.Size; }
    void Size(float points) override { value_.Size = points; }
    bool Bold() const override { return value_.Bold; }
    void Bold(bool on) override { value_.Bold = on; }
    bool Italic() const override { return value_.Italic; }
    void Italic(bool on) override { value_.Italic = on; }
    bool Underline() const override { return value_.Underline; }
    void Underline(bool on) override { value_.Underline = on; }
    bool Strikethrough() const override { return value_.Strikethrough; }
    void Strikethrough(bool on) override { value_.Strikethrough = on; }

private:
    host::FontValue value_;
};

/// No handles: what is drawn here goes nowhere. It keeps what is written to it.
template<class Base>
class ProbeWidget : public Base {
public:
    host::Handle hWnd() const override { return 0; }
    host::Handle hDC() const override { return 0; }
    float Left() const override { return left_; }
    float Top() const override { return top_; }
    float Width() const override { return width_; }
    float Height() const override { return height_; }
    void Width(float twips) override { width_ = twips; }
    void Height(float twips) override { height_ = twips; }
    void Size(float width, float height) override { width_ = width, height_ = height; }
    void Move(float left, float top) override { left_ = left, top_ = top; }
    bool Visible() const override { return visible_; }
    void Visible(bool show) override { visible_ = show; }
    void ZOrder(std::int32_t) override {}
    OLE_COLOR BackColor() const override { return backColor_; }
    void BackColor(OLE_COLOR color) override { backColor_ = color; }
    OLE_COLOR ForeColor() const override { return foreColor_; }
    void ForeColor(OLE_COLOR color) override { foreColor_ = color; }
    host::FontPtr Font() const override { return font_; }
    void Font(const host::Font& font) override { host::Assign(*font_, host::ValueOf(font)); }
    bool FontTransparent() const override { return fontTransparent_; }
    void FontTransparent(bool transparent) override { fontTransparent_ = transparent; }
    std::int16_t Appearance() const override { return appearance_; }
    void Appearance(std::int16_t value) override { CheckAppearance(value), appearance_ = value; }
    std::int16_t BorderStyle() const override { return borderStyle_; }
    void BorderStyle(std::int16_t style) override { CheckBorderStyle(style), borderStyle_ = style; }
    std::int16_t MousePointer() const override { return mousePointer_; }
    void MousePointer(std::int16_t pointer) override { mousePointer_ = pointer; }
    float TextWidth(std::string_view) const override { return 0; }
    void SetFocus() override {}
    void Refresh() override {}
    void Cls() override {}

private:
    float left_ = 0, top_ = 0, width_ = 1500, height_ = 1500;
    bool visible_ = false;
    OLE_COLOR backColor_ = 0, foreColor_ = 0;
    host::FontPtr font_ = std::make_shared<ProbeFont>();
    bool fontTransparent_ = true;
    std::int16_t appearance_ = 0, borderStyle_ = 0, mousePointer_ = 0;
};

/// Surroundings at design time.
class ProbeAmbient final : public host::Ambient {
public:
    bool UserMode() const override { return false; }
    host::FontValue Font() const override { return {}; }
    std::string DisplayName() const override { return {}; }
};

/// Brings one control up, and ends it and its children at the end of its own life.
class ProbeComponent final : public ProbeWidget<host::Component> {
public:
    /// Runs `Initialize` and `ReadProperties`, or `InitProperties` without settings. `control` has to outlive
    /// it.
    ProbeComponent(host::Control& control, host::PropertyBag* settings);
    ~ProbeComponent() override;
    ProbeComponent(const ProbeComponent&) = delete;
    ProbeComponent& operator=(const ProbeComponent&) = delete;

    const host::Ambient& Ambient() const override { return ambient_; }
    std::unique_ptr<host::PictureWindow> CreatePicture() override;
    host::Component& AddChild(host::Control& child, std::string_view name, const tvok_Rect& place,
                              host::PropertyBag* settings) override;
    void RemoveChild(host::Control& child) override;

private:
    host::Control& control_;
    ProbeAmbient ambient_;
    std::vector<std::unique_ptr<ProbeComponent>> children_;
};

} // namespace tvok::soft
