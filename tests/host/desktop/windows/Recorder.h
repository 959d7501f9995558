/// A control that notes what happens to it.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tvok/host/Component.h"

namespace tvok::test {

/// Fills its client area with `color` when it is painted, and writes each event as a word and its arguments.
class Recorder : public host::Control {
public:
    std::vector<std::string> log;
    std::int32_t color = 0x336699; ///< 0x00BBGGRR.
    std::function<void(const std::string&)> onEvent;
    host::Component* component = nullptr;
    bool logMoves = false;
    int paints = 0;

    std::vector<std::string> TakeLog() { return std::exchange(log, {}); }

    void Initialize(host::Component& base) override {
        component = &base;
        Note("Initialize");
    }
    void InitProperties() override { Note("InitProperties"); }
    void ReadProperties(host::PropertyBag&) override { Note("ReadProperties"); }
    void Resize() override { Note("Resize"); }
    void Paint() override {
        tvok_Rect rect;
        host::Platform& platform = host::platform();
        platform.GetClientRect(component->hWnd(), rect);
        const host::Handle brush = platform.CreateSolidBrush(color);
        platform.FillRect(component->hDC(), rect, brush);
        platform.DeleteObject(brush);
        ++paints;
        if (onEvent) onEvent("Paint");
    }
    void Terminate() override { Note("Terminate"); }
    void GotFocus() override { Note("GotFocus"); }
    void LostFocus() override { Note("LostFocus"); }
    void EnterFocus() override { Note("EnterFocus"); }
    void ExitFocus() override { Note("ExitFocus"); }
    void KeyDown(std::int16_t& code, std::int16_t& shift) override { Note("KeyDown", code, shift); }
    void KeyPress(std::int16_t& character) override { Note("KeyPress", character); }
    void KeyUp(std::int16_t& code, std::int16_t& shift) override { Note("KeyUp", code, shift); }
    void MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) override {
        Note("MouseDown", button, shift, x, y);
    }
    void MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y) override {
        if (logMoves) Note("MouseMove", button, shift, x, y);
    }
    void MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) override {
        Note("MouseUp", button, shift, x, y);
    }
    void Click() override { Note("Click"); }
    void DblClick() override { Note("DblClick"); }

private:
    template<class... Arguments>
    void Note(std::string line, Arguments... arguments) {
        ((line += " " + std::to_string(static_cast<int>(arguments))), ...);
        log.push_back(line);
        if (onEvent) onEvent(line);
    }
};

} // namespace tvok::test
