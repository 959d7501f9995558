/// A `qRosterex` on a component without a desktop: a row source that keeps what was asked for, and every
/// event and platform call in one log.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/support/FakeComponent.h"
#include "tests/support/LargeListServices.h"
#include "tvok/controls/largelist/qRosterex.h"
#include "tvok/engine/dgi.h"

namespace tvok::test {

struct LargeListSetup {
    bool UserMode = true;
    std::int32_t width = 200; ///< Five rows of 20 and nothing over.
    std::int32_t height = 100;
    std::int32_t GridlineWidth = 0;
    std::int32_t MultiSelect = 0;
    std::int32_t CX_TEXT = 20;
    bool HotTrack = false;
    std::int32_t columns = 1; ///< Each 100 wide.
    std::int32_t border = 2;  ///< What the log answers for the client origin.
};

class FakeLargeList {
public:
    explicit FakeLargeList(const LargeListSetup& setup = {}, std::int32_t rows = 0)
        : component(setup.UserMode, setup.width, setup.height, setup.border), services(component.log),
          servicesBefore_(host::SetServices(&services)) {
        component.log.metrics = {{2, 16}, {3, 12}};
        bag.stored = {{"ItemHeight", 20},
                      {"GridlineWidth", setup.GridlineWidth},
                      {"MultiSelect", setup.MultiSelect},
                      {"CX_TEXT", setup.CX_TEXT},
                      {"HotTrack", setup.HotTrack}};
        component.control = owner.get();
        list.Initialize(component);
        list.ReadProperties(bag);
        for (std::int32_t c = 1; c <= setup.columns; ++c) list.HeaderAdd(0, "column", 100);
        NoteEvents();
        if (setup.UserMode) {
            list.ViewMode(1);
            list.Count(rows);
        }
        Forget();
    }
    ~FakeLargeList() {
        if (owner) owner->Terminate();
        owner.reset();
        host::SetServices(servicesBefore_);
    }
    FakeLargeList(const FakeLargeList&) = delete;
    FakeLargeList& operator=(const FakeLargeList&) = delete;

    FakeComponent component;
    LargeListServices services;
    FakeBag bag;
    std::unique_ptr<qRosterex> owner = std::make_unique<qRosterex>();
    qRosterex& list = *owner;
    std::vector<std::int32_t> asked; ///< The rows of `EnumDATA`, in order.
    std::function<void(std::int32_t&, qrosterdata&)> fill = [](std::int32_t& row, qrosterdata& record) {
        record = {.text = "row " + std::to_string(row), .IconPos = 0, .bColor = 0xFFFFFF, .fcolor = 0x112233};
    };

    CallLog& log() { return component.log; }
    TwoBarHook& hook() { return *services.hook; }
    void Forget() {
        component.log.Clear();
        asked.clear();
    }

    void NoteEvents() {
        const auto note = [this](const char* name) {
            return [this, name](std::int32_t value) { component.log.Add(PlainCall(name, {value})); };
        };
        list.events.Setup = note("Setup");
        list.events.Change = note("Change");
        list.events.Click = note("Click");
        list.events.DblClick = note("DblClick");
        list.events.KeySeek = [this](std::int16_t key, std::int32_t row, std::int32_t&) {
            component.log.Add(PlainCall("KeySeek", {key, row}));
        };
        list.events.EnumDATA = [this](std::int32_t& row, qrosterdata& record) {
            asked.push_back(row);
            if (fill) fill(row, record);
        };
    }

    std::vector<std::int32_t> TakeAsked() { return std::exchange(asked, {}); }
    /// Events since the last look, as "Change 2".
    std::vector<std::string> TakeEvents() {
        return Take({"Setup", "Change", "Click", "DblClick", "KeySeek"});
    }
    /// What was done to the hook since the last look, as "ScrollMax 3".
    std::vector<std::string> TakeHookWrites() {
        std::vector<std::string> lines;
        for (const Call& call : log().All())
            if (call.name.starts_with("hook.")) lines.push_back(Line(call).substr(5));
        log().Clear();
        return lines;
    }
    /// Vertical distances of the scrolling since the last look.
    std::vector<std::int32_t> TakeScrolls() {
        std::vector<std::int32_t> distances;
        for (const Call& call : log().Named("ScrollDC")) distances.push_back(call.values[2]);
        log().Clear();
        return distances;
    }
    bool SelectedWhenPainted(std::int32_t row) {
        log().Clear();
        list.DrawItem(row);
        const auto texts = log().Named("ExtTextOutA");
        return !texts.empty() && texts.front().values[4] == Sys(13);
    }

    // Messages; points are client pixels.
    void Send(std::int32_t message, std::int32_t x, std::int32_t y, std::int32_t buttons) {
        if (services.hook == nullptr) return; // a list that has ended hears nothing
        std::int32_t result = 0;
        bool process = true;
        hook().events.RtMsg(message, buttons, dgi::LParamFromPoint(x, y), result, process);
    }
    void Press(std::int32_t x, std::int32_t y, std::int32_t keys = 0) { Send(513, x, y, 1 | keys); }
    void Move(std::int32_t x, std::int32_t y, std::int32_t buttons = 1) { Send(512, x, y, buttons); }
    void Release(std::int32_t x = 50, std::int32_t y = 0, std::int32_t keys = 0) { Send(514, x, y, keys); }
    void DoubleClick(std::int32_t x, std::int32_t y, std::int32_t keys = 0) { Send(515, x, y, 1 | keys); }
    /// In the middle of this slot of a list without a header and without grid lines.
    void PressSlot(std::int32_t slot, std::int32_t keys = 0) { Press(50, slot * 20 - 10, keys); }
    void MoveToSlot(std::int32_t slot, std::int32_t buttons = 1) { Move(50, slot * 20 - 10, buttons); }
    void Key(std::int32_t code, std::int32_t shift = 0) {
        auto keyCode = static_cast<std::int16_t>(code);
        auto shiftBits = static_cast<std::int16_t>(shift);
        list.KeyDown(keyCode, shiftBits);
    }
    void PaintMessage(const tvok_Rect& rect) {
        component.log.invalid = rect;
        Send(15, 0, 0, 0);
    }

private:
    static std::string Line(const Call& call) {
        std::string line = call.name;
        for (const auto value : call.values) line += " " + std::to_string(value);
        return line;
    }
    std::vector<std::string> Take(const std::set<std::string>& names) {
        std::vector<std::string> lines;
        for (const Call& call : log().NamedOneOf(names)) lines.push_back(Line(call));
        log().Clear();
        return lines;
    }
    host::Services* servicesBefore_;
};

using Rows = std::vector<std::int32_t>;
using Lines = std::vector<std::string>;

} // namespace tvok::test
