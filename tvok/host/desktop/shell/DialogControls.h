/// The small controls that the desktop's own dialogs are made of.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tvok/host/Component.h"
#include "tvok/host/desktop/shell/ColorSpace.h"
#include "tvok/records/Event.h"

namespace tvok::soft {

/// What they have in common: a component, the focus, and points in pixels.
class DialogControl : public host::Control {
public:
    void Initialize(host::Component& component) override { component_ = &component; }
    void Terminate() override { component_ = nullptr; }
    void GotFocus() override { SetFocused(true); }
    void LostFocus() override { SetFocused(false); }
    void Paint() override;
    void MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void DblClick() override { Point(last_); }

    void Repaint() const;

protected:
    host::Handle hDC() const { return component_->hDC(); }
    tvok_Rect Client() const;
    bool IsFocused() const { return focused_; }
    bool IsPressed() const { return pressed_; }

    virtual void Draw(const tvok_Rect& client) = 0;
    virtual void Point(host::Point) {}   ///< The left button went down here, or moved here while down.
    virtual void Release(host::Point) {} ///< It came up here, after it went down on this control.

private:
    void SetFocused(bool focused);
    host::Point Pixels(float x, float y) const;

    host::Component* component_ = nullptr; ///< Null once the dialog is over.
    host::Point last_;
    bool focused_ = false;
    bool pressed_ = false;
};

class PushButton : public DialogControl {
public:
    explicit PushButton(std::string caption) : caption_(std::move(caption)) {}
    Event<> Click; ///< By mouse, space or Enter.

    void KeyDown(std::int16_t& keyCode, std::int16_t& shift) override;

protected:
    void Draw(const tvok_Rect& client) override;
    void Point(host::Point point) override;
    void Release(host::Point point) override;

private:
    std::string caption_;
    bool under_ = false; ///< The pointer is over the button that it pressed.
};

/// Rows of colours to choose from.
class SwatchGrid : public DialogControl {
public:
    SwatchGrid(std::vector<OLE_COLOR> colors, std::int32_t columns)
        : colors_(std::move(colors)), columns_(columns) {}
    Event<OLE_COLOR> Pick;

    void KeyDown(std::int16_t& keyCode, std::int16_t& shift) override;
    tvok_Rect CellOf(std::int32_t index) const; ///< In client pixels, with its margin.

protected:
    void Draw(const tvok_Rect& client) override;
    void Point(host::Point point) override;

private:
    std::int32_t Count() const { return static_cast<std::int32_t>(colors_.size()); }
    void Choose(std::int32_t index);

    std::vector<OLE_COLOR> colors_;
    std::int32_t columns_;
    std::int32_t current_ = -1;
};

/// All hues from left to right, and saturations from the bottom up, at half lightness.
class HueField : public DialogControl {
public:
    Event<double, double> Pick; ///< Hue and saturation.
    void Show(double hue, double saturation);
    void KeyDown(std::int16_t& keyCode, std::int16_t& shift) override;

protected:
    void Draw(const tvok_Rect& client) override;
    void Point(host::Point point) override;

private:
    void DrawMark(const tvok_Rect& client) const;

    double hue_ = 0;
    double saturation_ = 0;
};

/// One hue and saturation from dark below to light above.
class LightnessBar : public DialogControl {
public:
    Event<double> Pick;
    void Show(HslColor color);
    void KeyDown(std::int16_t& keyCode, std::int16_t& shift) override;

protected:
    void Draw(const tvok_Rect& client) override;
    void Point(host::Point point) override;

private:
    HslColor color_;
};

/// One colour.
class ColorSample : public DialogControl {
public:
    void Show(OLE_COLOR color);

protected:
    void Draw(const tvok_Rect& client) override;

private:
    OLE_COLOR color_ = 0;
};

} // namespace tvok::soft
