/// An `xPopup` on a test desktop beside a control that has the focus, driven by real input, with its events
/// in one story.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tests/host/desktop/windows/Recorder.h"
#include "tests/support/TestDesktop.h"

namespace tvok::test {

/// `popup.Popup` opens below the owner's place on the screen, left aligned, unless a test says otherwise.
class PopupDesktop {
public:
    explicit PopupDesktop(const std::vector<std::string>& texts = {});

    /// "Change 2 bee", "Click 2 bee", "Click 2 bee canceled", "EnumDATA 3". What is raised after the control
    /// has ended still needs it.
    std::vector<std::string> story;
    TestDesktop desktop;
    Recorder& owner;
    xPopup* popup;
    /// Where the popup hangs from: 100 wide, its bottom at 300.
    static constexpr tvok_Rect cParent{200, 280, 300, 300};

    /// Notes every event in the story; a test may replace any handler.
    void NoteEvents();
    void Add(const std::vector<std::string>& texts);
    /// Opens with left edges aligned, and forgets the story.
    void Open();
    std::vector<std::string> TakeStory() { return std::exchange(story, {}); }
    std::vector<std::string> Texts() const; ///< Of items 1 to `Count`.
    qrosterdata Data(std::int32_t index) const;
    std::vector<std::int32_t> Selected() const; ///< Items with the selection bit.

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
    /// In the middle of the row on the page, 1 for the first; rows of 18 with lines of 1.
    void PressRow(std::int32_t row) { Press(30, RowMiddle(row)); }
    void MoveToRow(std::int32_t row) { MoveTo(30, RowMiddle(row)); }
    void ClickRow(std::int32_t row) { Click(30, RowMiddle(row)); }
    static std::int32_t RowMiddle(std::int32_t row) { return (row - 1) * 19 + 9; }
};

/// "item 1", "item 2" and so on.
std::vector<std::string> Lines(std::int32_t count);

} // namespace tvok::test
