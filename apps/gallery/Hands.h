/// A user's hands, for the scenes of a page.
#pragma once

#include <cstdint>
#include <string_view>

#include "tvok/tvok.h"

namespace gallery {

/// Points are pixels of the control's client area. Each verb queues its input; `Desktop::ProcessEvents` runs
/// it.
class Hands {
public:
    Hands(tvok::Desktop& desktop, tvok::Form& form) : desktop_(desktop), form_(form) {}

    /// `heldKey` other than 0 is held meanwhile.
    void Click(const tvok::host::Control& control, tvok::host::Point point, std::int32_t heldKey = 0);
    void Drag(const tvok::host::Control& control, tvok::host::Point from, tvok::host::Point to);
    void Wheel(const tvok::host::Control& control, std::int32_t notches);
    void Press(std::int32_t key);      ///< Down and up again.
    void Type(std::string_view ascii); ///< A key for each character.

private:
    void MoveTo(const tvok::host::Control& control, tvok::host::Point point);

    tvok::Desktop& desktop_;
    tvok::Form& form_;
};

} // namespace gallery
