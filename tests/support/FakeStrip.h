/// An `xbutton` on a component without a desktop: its focus hook, its events and the platform calls in one
/// log.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/FakeComponent.h"
#include "tests/support/LoggedWindowHook.h"
#include "tvok/controls/buttonstrip/xbutton.h"

namespace tvok::test {

/// Also writes sizes in twips into the log.
class SizedComponent : public FakeComponent {
public:
    using FakeComponent::FakeComponent;
    void Size(float width, float height) override {
        log.Add(PlainCall("Size", {static_cast<std::int32_t>(width), static_cast<std::int32_t>(height)}));
        FakeComponent::Size(width, height);
    }
};

/// 20 pixels high unless a test says otherwise.
class FakeStrip {
public:
    explicit FakeStrip(std::string_view settings = {}, bool userMode = true, std::int32_t height = 20)
        : component(userMode, 100, height), services(component.log),
          servicesBefore_(host::SetServices(&services)) {
        component.control = owner.get();
        strip.Initialize(component);
        if (userMode) {
            strip.ReadProperties(bag);
        } else {
            strip.InitProperties();
        }
        NoteEvents();
        strip.SetButtons(settings);
        log().Clear();
    }
    ~FakeStrip() {
        End();
        host::SetServices(servicesBefore_);
    }
    FakeStrip(const FakeStrip&) = delete;
    FakeStrip& operator=(const FakeStrip&) = delete;

    SizedComponent component;
    WindowHookServices services;
    FakeBag bag;
    std::unique_ptr<xbutton> owner = std::make_unique<xbutton>();
    xbutton& strip = *owner;

    CallLog& log() { return component.log; }
    std::int32_t PixelWidth() const { return component.log.window.Right - component.log.window.Left; }

    /// `Terminate`, and the control is gone.
    void End() {
        if (!owner) return;
        owner->Terminate();
        owner.reset();
        component.control = nullptr;
    }

    void NoteEvents() {
        strip.events.MouseDown = [this](const std::string& key) {
            log().Add(PlainCall("MouseDown", {}, key));
        };
        strip.events.Click = [this](const std::string& key) { log().Add(PlainCall("Click", {}, key)); };
        strip.events.KeyDown = [this](std::int16_t& code, std::int16_t& shift) {
            log().Add(PlainCall("KeyDown", {code, shift}));
        };
    }

    // What a component tells its control. Points are client pixels; buttons as the component counts them.
    void Press(std::int32_t x, std::int32_t y = 10, std::int16_t button = 1) {
        Mouse(&host::Control::MouseDown, x, y, button);
    }
    void Move(std::int32_t x, std::int32_t y = 10, std::int16_t buttons = 1) {
        Mouse(&host::Control::MouseMove, x, y, buttons);
    }
    void LetGo(std::int32_t x = 0, std::int32_t y = 10, std::int16_t button = 1) {
        Mouse(&host::Control::MouseUp, x, y, button);
    }
    void Message(std::int32_t message) {
        std::int32_t result = 0;
        bool callNext = true;
        services.hook->RtMsg(message, 0, 0, result, callNext);
        EXPECT_TRUE(callNext);
    }

    Calls TakeDrawing() {
        const Calls calls = log().Drawing();
        log().Clear();
        return calls;
    }
    /// Which buttons of squares of 20 were drawn since the last look, as "1 down".
    std::vector<std::string> TakeFaces() {
        std::vector<std::string> lines;
        for (const Call& call : log().Named("DrawEdge"))
            lines.push_back(std::to_string(call.rect.Left / 20 + 1) +
                            (call.values[0] == host::EDGE_SUNKEN ? " down" : " up"));
        log().Clear();
        return lines;
    }
    /// Events since the last look, as "MouseDown a".
    std::vector<std::string> TakeEvents() {
        std::vector<std::string> lines;
        for (const Call& call : log().NamedOneOf({"MouseDown", "Click"}))
            lines.push_back(call.name + " " + call.text);
        log().Clear();
        return lines;
    }

private:
    using MouseMember = void (host::Control::*)(std::int16_t&, std::int16_t&, float&, float&);
    void Mouse(MouseMember member, std::int32_t x, std::int32_t y, std::int16_t button) {
        std::int16_t shift = 0;
        float left = static_cast<float>(x) * services.twipsX;
        float top = static_cast<float>(y) * services.twipsY;
        (owner.get()->*member)(button, shift, left, top);
    }
    host::Services* servicesBefore_;
};

} // namespace tvok::test
