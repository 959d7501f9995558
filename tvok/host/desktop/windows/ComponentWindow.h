/// The base component of a control on the software desktop.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tvok/host/desktop/windows/WidgetCore.h"

namespace tvok::soft {

class ComponentWindow;

/// A window for a control to draw on. Its component forgets it, or it forgets its component, whoever goes
/// first.
class SoftPicture final : public WidgetWindow<host::PictureWindow> {
public:
    explicit SoftPicture(ComponentWindow& owner);
    ~SoftPicture() override;

    /// The component is going away, and with it the window.
    void OwnerGone();
    Window* FocusByMouse() override;
    /// It may be made to float, and then keeps the size that it was given before.
    std::int32_t LongestSide() const override { return kMaxSurface; }

private:
    ComponentWindow* owner_;
};

class ComponentWindow final : public WidgetWindow<host::Component> {
public:
    ComponentWindow(World& world, Window& parent, host::Control& control, std::string name,
                    const tvok_Rect& rect, bool userMode);
    ~ComponentWindow() override;

    /// Runs the control's `Initialize`, then `ReadProperties` from `settings`; without, from an empty bag, or
    /// at design time `InitProperties`; then `Resize`. When one of them throws, the control has been ended.
    void BringUp(host::PropertyBag* settings);
    /// Takes the focus away from what is inside, which hears of it as of any other loss. For a component that
    /// is removed while its form stays. What a handler throws is ignored.
    void LoseFocus();
    /// Runs the control's `Terminate` and takes the window away. Harmless twice.
    void End();

    host::Control& control() const { return control_; }
    const std::string& name() const { return name_; }

    const host::Ambient& Ambient() const override { return ambient_; }
    std::unique_ptr<host::PictureWindow> CreatePicture() override;
    host::Component& AddChild(host::Control& child, std::string_view name, const tvok_Rect& place,
                              host::PropertyBag* settings) override;
    void RemoveChild(host::Control& child) override;

    std::int32_t Process(Window& window, const Message& message) override;
    Window* FocusByMouse() override { return &window(); }
    void FocusInside(bool inside) override;
    void FrameResized() override;

private:
    friend class SoftPicture;
    class Surroundings final : public host::Ambient {
    public:
        Surroundings(const ComponentWindow& component, bool userMode)
            : component_(component), userMode_(userMode) {}
        bool UserMode() const override { return userMode_; }
        host::FontValue Font() const override;
        std::string DisplayName() const override { return component_.name(); }

    private:
        const ComponentWindow& component_;
        bool userMode_;
    };

    void Paint() override { control_.Paint(); }
    void NeedNotEnded() const; ///< Throws `ObjectError` where it has.
    std::int32_t KeyDown(const Message& message);
    void KeyUp(const Message& message);
    void MousePress(const Message& message, std::int16_t button);
    void MouseRelease(const Message& message, std::int16_t button);
    void TakeMouse();
    struct MouseArguments;

    host::Control& control_;
    std::string name_;
    Surroundings ambient_;
    bool isUp_ = false;
    bool ended_ = false;
    bool armed_ = false; ///< The left button went down here: its way up is a click.
    std::vector<std::unique_ptr<ComponentWindow>> children_;
    std::vector<SoftPicture*> pictures_;
};

} // namespace tvok::soft
