/// A test desktop with a window that floats above its form while a popup is open, and hands for that window.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/TestDesktop.h"

namespace tvok::test {

class FloatingDesktop {
public:
    explicit FloatingDesktop(const Theme& theme = Theme::Classic()) : desktop(theme) {}

    /// What a test notes. What is raised after a control has ended still needs it.
    std::vector<std::string> story;
    TestDesktop desktop;

    std::vector<std::string> TakeStory() { return std::exchange(story, {}); }

    // The floating window; handle 0 while there is none on the screen.
    host::Handle Floating() const;
    bool IsOpen() const { return Floating() != 0; }
    tvok_Rect WindowRect() const;
    tvok_Rect ClientRect() const;
    std::uint32_t PixelAt(std::int32_t x, std::int32_t y) const; ///< Of its client area, 0x00RRGGBB.
    std::vector<std::uint32_t> Pixels() const;

    // A user's hands, in pixels of the floating window's client area.
    void MoveTo(std::int32_t x, std::int32_t y);
    void MoveToScreen(std::int32_t x, std::int32_t y);
    void Down(); ///< Where the pointer is, long after the press before.
    void Up() { desktop.Release(); }
    void Press(std::int32_t x, std::int32_t y);
    void Click(std::int32_t x, std::int32_t y);
};

} // namespace tvok::test
