/// The buttons of a strip: what its setting text says of each, and where it stands.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tvok/records/Array.h"
#include "tvok/records/tvok_declare.h"

namespace tvok {

/// Values of `StripButton::kind`. Any other number is a button without a face, with edge and caption alone.
namespace buttonkind {
inline constexpr std::int16_t Caption = 0;
inline constexpr std::int16_t Image = 1;
inline constexpr std::int16_t Symbol = 2;
} // namespace buttonkind

/// Bits of `StripButton::state`.
namespace buttonstate {
inline constexpr std::int16_t Pressed = 1;   ///< Held by the mouse, wherever the pointer is now.
inline constexpr std::int16_t DrawnDown = 2; ///< What is on the screen is the pressed face.
} // namespace buttonstate

/// One button, as the setting text describes it.
struct StripButton {
    std::string text{}; ///< Caption; empty for images and symbols.
    std::string key{};  ///< What events give to the host. Need not be unique.
    /// Image: its number from 0. Symbol: 0 drop-down arrow, 1 right arrow, 2 close cross, others none.
    std::int32_t value = 0;
    std::int16_t kind = buttonkind::Caption;
    std::int16_t state = 0;
    tvok_Rect rect{}; ///< Pixels of the control's client area.
};

/// A row of squares, counted from 1. The array behind it never shrinks: what was set once stays beyond
/// `Count` until something is set over it.
class ButtonRow {
public:
    /// Reads a text of fields between "|", three to a button: caption or number, key, kind. Blanks around
    /// captions and keys go; a number is read by the numeric scan, so what is none is 0. Fields at the end
    /// that are fewer than three are ignored. Each button is a square of `size` pixels, right of the one
    /// before. Gives the width of all.
    ///
    /// Never fails. A number that does not fit its place leaves there what the array had in it, and a place
    /// that does not fit 32 bits is not taken. There are 32767 buttons at most; a further one takes the place
    /// of the last.
    std::int32_t Set(std::string_view settings, std::int32_t size);
    void Clear(); ///< Also empties the array.

    std::int32_t Count() const { return count_; }
    /// Also beyond `Count`, as far as the array reaches; `SubscriptError` further on.
    StripButton& operator[](std::int32_t index) { return buttons_[index]; }
    const StripButton& operator[](std::int32_t index) const { return buttons_[index]; }

    /// The first button that has this point, 0 for none. Left and top of a button belong to it.
    std::int32_t ButtonAt(std::int32_t x, std::int32_t y) const;
    void Release(); ///< No button of the array is held or drawn down any more.

private:
    StripButton& Append();

    Array<StripButton> buttons_; ///< Entry 0 is no button.
    std::int16_t count_ = 0;
};

} // namespace tvok
