/// The area that the designed form stands on, with the handles of the form's own size.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "apps/gallery/design/DesignedForm.h"
#include "apps/gallery/design/geometry.h"
#include "tvok/tvok.h"

namespace gallery {

/// A control that has the designed form inside. While the form itself is selected, three handles behind its
/// right and bottom edges resize it, to the grid unless Alt or Shift is held.
class DesignArea : public tvok::host::Control {
public:
    std::function<void()> pressed; ///< A press beside the form.
    std::function<void()> focused; ///< It got the focus, which belongs to the form.
    std::function<void()> ended;   ///< The gallery's form is ending.

    void Show(DesignedForm& design); ///< The form inside. It lives as long as this control.
    void ShowHandles(bool show);
    void Refresh(); ///< After the form got another size.

    void Initialize(tvok::host::Component& component) override;
    void Paint() override;
    void Terminate() override;
    void GotFocus() override;
    void MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) override;
    void DblClick() override {}

private:
    tvok::Placement Outer() const; ///< Of the form with its frame, in pixels of this control.
    tvok::tvok_Rect Handle(Grip grip) const;
    std::optional<Grip> GripUnder(tvok::host::Point point) const;

    tvok::host::Component* component_ = nullptr;
    DesignedForm* design_ = nullptr;
    bool handles_ = true;
    std::optional<Grip> dragged_;
    tvok::host::Point start_;
    tvok::Placement before_; ///< The form's size when the button went down.
};

} // namespace gallery
