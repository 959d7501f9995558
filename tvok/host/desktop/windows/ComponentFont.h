/// The font object of a component.
#pragma once

#include <array>

#include "tvok/host/Font.h"
#include "tvok/host/desktop/gdi/DeviceContext.h"

namespace tvok::soft {

class World;

/// Keeps one drawing object for each combination of bold, italic, underline and strikethrough that was used,
/// so that a painter switches among them for the cost of selecting one.
class ComponentFont final : public host::Font {
public:
    /// Both have to live until `Detach`.
    ComponentFont(World& world, DeviceContext& context);
    ~ComponentFont() override { Detach(); }

    /// The context is going away: what is written later is kept and has no further effect.
    void Detach();
    /// The theme's resolution changed: makes the drawing objects anew.
    void Renew() {
        Forget();
        Select();
    }

    std::string Name() const override { return value_.Name; }
    void Name(const std::string& face) override;
    float Size() const override { return value_.Size; }
    void Size(float points) override;
    bool Bold() const override { return value_.Bold; }
    void Bold(bool on) override { Switch(value_.Bold, on); }
    bool Italic() const override { return value_.Italic; }
    void Italic(bool on) override { Switch(value_.Italic, on); }
    bool Underline() const override { return value_.Underline; }
    void Underline(bool on) override { Switch(value_.Underline, on); }
    bool Strikethrough() const override { return value_.Strikethrough; }
    void Strikethrough(bool on) override { Switch(value_.Strikethrough, on); }

private:
    void Switch(bool& property, bool on) {
        if (property == on) return;
        property = on;
        Select();
    }
    void Select();
    void Forget();
    host::Handle Create() const;

    World& world_;
    DeviceContext* context_;
    host::FontValue value_;
    std::array<host::Handle, 16> handles_{};
};

} // namespace tvok::soft
