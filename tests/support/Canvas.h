/// A control that does nothing but keep what its component tells it, in order.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tvok/host/Component.h"

namespace tvok::test {

class Canvas : public host::Control {
public:
    host::Component* component = nullptr;
    std::vector<std::string> story;

    /// What happened since the last look.
    std::vector<std::string> TakeStory() { return std::exchange(story, {}); }

    void Initialize(host::Component& base) override {
        component = &base;
        story.emplace_back("Initialize");
    }
    void InitProperties() override { story.emplace_back("InitProperties"); }
    void ReadProperties(host::PropertyBag&) override { story.emplace_back("ReadProperties"); }
    void WriteProperties(host::PropertyBag&) override { story.emplace_back("WriteProperties"); }
    void Resize() override { story.emplace_back("Resize"); }
    void Paint() override { story.emplace_back("Paint"); }
    void Terminate() override { story.emplace_back("Terminate"); }
    void GotFocus() override { story.emplace_back("GotFocus"); }
    void LostFocus() override { story.emplace_back("LostFocus"); }
    void KeyDown(std::int16_t& keyCode, std::int16_t& shift) override { Tell("KeyDown", keyCode, shift); }
    void KeyPress(std::int16_t& keyAscii) override {
        story.push_back("KeyPress " + std::to_string(keyAscii));
    }
    void KeyUp(std::int16_t& keyCode, std::int16_t& shift) override { Tell("KeyUp", keyCode, shift); }
    void MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) override {
        Tell("MouseDown", button, shift, x, y);
    }
    void MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y) override {
        Tell("MouseMove", button, shift, x, y);
    }
    void MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) override {
        Tell("MouseUp", button, shift, x, y);
    }

private:
    template<class... Numbers>
    void Tell(std::string line, Numbers... numbers) {
        ((line += " " + std::to_string(static_cast<int>(numbers))), ...);
        story.push_back(std::move(line));
    }
};

} // namespace tvok::test
