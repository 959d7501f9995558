/// A headless desktop with a pinned font and a held clock, and verbs that say what a user does. Every verb
/// sends real input through the message queue and pumps it, unless its name ends in Queued.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tvok/tvok.h"

namespace tvok::test {

class HeldClock : public Clock {
public:
    std::chrono::milliseconds Now() const override { return now; }
    std::chrono::milliseconds now{1000};
};

/// How a `qRoster` is to start; the fields are its properties.
struct RosterSetup {
    std::int32_t xn = 1;
    std::int32_t MultiSelect = 0;
    std::int32_t GridlineWidth = 1;
    bool GridlineOnBorder = false;
    bool FixedHeight = false;
    bool HotTrack = false;
    Placement place{0, 0, 300, 200};
};

/// The fonts of pictures, by their files: the same pixels on every machine.
inline constexpr const char* cDejaVuSans = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
inline constexpr const char* cNotoSansCjk = "/usr/share/fonts/opentype/noto/NotoSansCJK-Regular.ttc";

class TestDesktop {
public:
    /// One font for all texts, English, 1280 x 1024, a form of 640 x 480 at (100, 100).
    explicit TestDesktop(const Theme& theme = Theme::Classic(), const char* fontFile = cDejaVuSans);
    ~TestDesktop();

    tvok::Desktop& desktop() { return *desktop_; }
    tvok::Form& form() { return *form_; }
    HeldClock& clock() { return clock_; }

    /// A `qRoster` on the form with these items, refreshed. `BorderStyle` is 0, so that client and window
    /// agree.
    qRoster& Roster(const RosterSetup& setup = {}, const std::vector<std::string>& texts = {});

    host::Handle WindowOf(const host::Control& control) const;

    // A user's hands. Points are client pixels of the control.
    void MoveTo(const host::Control& control, std::int32_t x, std::int32_t y);
    void Press(const host::Control& control, std::int32_t x,
               std::int32_t y); ///< Moves there and presses left.
    void Release();             ///< Where the pointer is.
    void Click(const host::Control& control, std::int32_t x, std::int32_t y);
    void DoubleClick(const host::Control& control, std::int32_t x, std::int32_t y);
    void RightClick(const host::Control& control, std::int32_t x, std::int32_t y);
    void Drag(const host::Control& control, host::Point from, host::Point to, std::int32_t steps = 8);
    void Wheel(std::int32_t notches);
    void Key(std::int32_t virtualKey);     ///< Down and up, with its character where it has one.
    void HoldKey(std::int32_t virtualKey); ///< Down, until `LetGoKey`.
    void LetGoKey(std::int32_t virtualKey);
    void Type(std::string_view text); ///< Each letter as key down, character and key up.
    void Focus(const host::Control& control);
    void FocusAway();                          ///< To a second control of the form made for it.
    void Pass(std::chrono::milliseconds time); ///< Moves the clock on, and pumps: auto-repeat runs.
    void Pump();                               ///< Runs all messages that wait.

    // Looking.
    std::uint32_t PixelAt(const host::Control& control, std::int32_t x, std::int32_t y); ///< 0x00RRGGBB.
    /// All pixels of the control's client area that are visible, row by row.
    std::vector<std::uint32_t> Pixels(const host::Control& control);
    /// The same for the whole control, with its frame and scroll bars.
    std::vector<std::uint32_t> PixelsWithFrame(const host::Control& control);

    /// The platform calls that `action` causes, one readable line each.
    std::vector<std::string> Trace(const std::function<void()>& action);

private:
    HeldClock clock_;
    std::unique_ptr<tvok::Desktop> desktop_;
    tvok::Form* form_ = nullptr;
    host::Control* elsewhere_ = nullptr;
};

/// Positions of the items that are selected.
std::vector<std::int32_t> SelectedItems(const qRoster& roster);

/// Compares `lines` with the file tests/golden/`name`.trace; a difference shows both. With the environment
/// TVOK_UPDATE_GOLDENS=1 the file is rewritten instead; a missing file fails.
void ExpectTrace(std::string_view name, const std::vector<std::string>& lines);
/// The same for pixels and tests/golden/`name`.png; a failure writes the actual picture and the difference.
void ExpectPicture(std::string_view name, TestDesktop& desktop, const host::Control& control);
/// The same for the whole control, with its frame and scroll bars.
void ExpectPictureWithFrame(std::string_view name, TestDesktop& desktop, const host::Control& control);

} // namespace tvok::test
