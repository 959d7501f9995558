/// An `xPopup` on a test desktop beside a control that has the focus, driven by real input, with its events
/// in one story.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tests/host/desktop/windows/Recorder.h"
#include "tests/support/FloatingTestDesktop.h"

namespace tvok::test {

/// `popup.Popup` opens below the owner's place on the screen, left aligned, unless a test says otherwise.
/// Its story tells "Change 2 bee", "Click 2 bee", "Click 2 bee canceled", "EnumDATA 3".
class PopupDesktop : public FloatingDesktop {
public:
    explicit PopupDesktop(const std::vector<std::string>& texts = {});

    Recorder& owner;
    xPopup* popup;
    /// Where the popup hangs from: 100 wide, its bottom at 300.
    static constexpr tvok_Rect cParent{200, 280, 300, 300};

    /// Notes every event in the story; a test may replace any handler.
    void NoteEvents();
    void Add(const std::vector<std::string>& texts);
    /// Opens with left edges aligned, and forgets the story.
    void Open();
    std::vector<std::string> Texts() const; ///< Of items 1 to `Count`.
    qrosterdata Data(std::int32_t index) const;
    std::vector<std::int32_t> Selected() const; ///< Items with the selection bit.

    // A user's hands.
    /// In the middle of the row on the page, 1 for the first; rows of 18 with lines of 1.
    void PressRow(std::int32_t row) { Press(30, RowMiddle(row)); }
    void MoveToRow(std::int32_t row) { MoveTo(30, RowMiddle(row)); }
    void ClickRow(std::int32_t row) { Click(30, RowMiddle(row)); }
    static std::int32_t RowMiddle(std::int32_t row) { return (row - 1) * 19 + 9; }
};

/// "item 1", "item 2" and so on.
std::vector<std::string> Lines(std::int32_t count);

} // namespace tvok::test
