/// A `qRoster` on a component without a desktop, with its events and its painting in one log.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/FakeComponent.h"
#include "tvok/controls/flatlist/qRoster.h"
#include "tvok/engine/dgi.h"

namespace tvok::test {

struct FakeRosterSetup {
    bool UserMode = true;
    std::int32_t width = 200; ///< Client size: five rows of 18.
    std::int32_t height = 90;
    std::int32_t xn = 1;
    std::int32_t MultiSelect = 0;
    std::int32_t GridlineWidth = 0;
    bool FixedHeight = false;
    bool HotTrack = false;
    bool FixedWidthForLastXn = false;
    std::int32_t border = 0;
};

class FakeRoster {
public:
    explicit FakeRoster(const FakeRosterSetup& setup = {}, const std::vector<std::string>& texts = {});
    ~FakeRoster();

    FakeComponent component;
    FakeBag bag;
    std::unique_ptr<qRoster> owner = std::make_unique<qRoster>();
    qRoster& list = *owner;

    CallLog& log() { return component.log; }
    LoggedHook& hook() { return *component.services.hook; }

    /// Sets the handlers that note the events in the log; a test may replace any.
    void NoteEvents();
    /// Appends the texts, refreshes, and forgets the log.
    void Add(const std::vector<std::string>& texts);
    /// `Terminate`, and the control is gone.
    void End();

    std::vector<std::string> Texts() const;     ///< Of items 1 to `Count`.
    std::vector<std::int32_t> Selected() const; ///< By `IsSelected`.
    qrosterdata Data(std::int32_t index) const; ///< By `GetData`.
    std::vector<std::string> TakeEvents();      ///< Events since the last look, as "Change 2 bee".
    /// Events, texts drawn ("draw bee"), focus rectangles, scrolling and sizes since the last look, in order.
    std::vector<std::string> TakeStory();
    std::vector<std::string> TakeDrawn(); ///< Texts drawn since the last look.
    /// What was done to the hook since the last look, as "ScrollMax 3".
    std::vector<std::string> TakeHookWrites();
    /// "", "paint" or "refresh": what was seen on the screen since the last look.
    std::string TakeEffect();

    // Messages; points are client pixels.
    void Press(std::int32_t x, std::int32_t y, std::int32_t keys = 0);
    void Move(std::int32_t x, std::int32_t y, std::int32_t word = host::MK_LBUTTON);
    void Release(std::int32_t x = 0, std::int32_t y = 0, std::int32_t keys = 0);
    void DoubleClick(std::int32_t x, std::int32_t y, std::int32_t keys = 0); ///< Its second press alone.
    /// On the item at this place of a page of one column, 1 for the first.
    void PressRow(std::int32_t row, std::int32_t keys = 0) { Press(50, row * 18 - 9, keys); }
    void ClickRow(std::int32_t row, std::int32_t keys = 0);
    void MoveToRow(std::int32_t row, std::int32_t word = host::MK_LBUTTON) { Move(50, row * 18 - 9, word); }
    void Key(std::int32_t code, std::int32_t shift = 0);
};

constexpr std::int32_t cShift = host::MK_SHIFT, cControl = host::MK_CONTROL;

/// "item 1", "item 2" and so on.
std::vector<std::string> Numbered(std::int32_t count);

} // namespace tvok::test
