/// A `pcols` on a component without a desktop: a hook without scrolling, and events and platform calls in one
/// log.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/FakeComponent.h"
#include "tests/support/LoggedWindowHook.h"
#include "tvok/controls/columnbar/pcols.h"
#include "tvok/engine/dgi.h"

namespace tvok::test {

/// 300 x 20 and without columns unless a test says otherwise. The font is 12 points, 16 pixels high.
class FakeBar {
public:
    explicit FakeBar(bool userMode = true, std::int32_t width = 300, std::int32_t height = 20)
        : component(userMode, width, height), services(component.log),
          servicesBefore_(host::SetServices(&services)) {
        component.control = owner.get();
        bar.events.MouseDown = [this](std::int32_t xIndex, std::int32_t lButton) {
            log().Add(PlainCall("MouseDown", {xIndex, lButton}));
        };
        bar.events.Click = [this](std::int32_t xIndex) { log().Add(PlainCall("Click", {xIndex})); };
        bar.Initialize(component);
        if (userMode) {
            bar.ReadProperties(bag);
        } else {
            bar.InitProperties();
        }
        bar.Resize();
        log().Clear();
    }
    ~FakeBar() {
        if (owner) owner->Terminate();
        owner.reset();
        host::SetServices(servicesBefore_);
    }
    FakeBar(const FakeBar&) = delete;
    FakeBar& operator=(const FakeBar&) = delete;

    FakeComponent component;
    WindowHookServices services;
    FakeBag bag;
    std::unique_ptr<pcols> owner = std::make_unique<pcols>();
    pcols& bar = *owner;

    CallLog& log() { return component.log; }

    /// Columns of these widths, which have to fit.
    void Columns(std::initializer_list<std::int32_t> widths) {
        for (const auto width : widths) bar.Add(0, "c", width);
        log().Clear();
    }

    /// Whether the message goes on to the next handler and the window.
    bool Send(std::int32_t message, std::int32_t x = 0, std::int32_t y = 0, std::int32_t buttons = 0) {
        std::int32_t result = 0;
        bool callNext = true;
        services.hook->RtMsg(message, buttons, dgi::LParamFromPoint(x, y), result, callNext);
        return callNext;
    }
    void Press(std::int32_t x, std::int32_t y = 10) { Send(host::WM_LBUTTONDOWN, x, y, 1); }
    void Move(std::int32_t x, std::int32_t y = 10) { Send(host::WM_MOUSEMOVE, x, y); }
    void Release() { Send(host::WM_LBUTTONUP); }

    /// The arguments of the events since the last look, as "MouseDown 2 1".
    std::vector<std::string> TakeEvents() {
        std::vector<std::string> lines;
        for (const Call& call : log().NamedOneOf({"MouseDown", "Click"})) {
            lines.push_back(call.name);
            for (const auto value : call.values) lines.back() += " " + std::to_string(value);
        }
        log().Clear();
        return lines;
    }
    /// How often the whole bar was painted since the last look.
    std::size_t TakePaints() {
        std::size_t paints = 0; // each begins with the font's flags, which make the background opaque
        for (const Call& call : log().Named("SetBkMode")) paints += call.values.back() == host::OPAQUE_BK;
        log().Clear();
        return paints;
    }

private:
    host::Services* servicesBefore_;
};

} // namespace tvok::test
