/// A `ucColorSelector` on a test desktop, driven by real input, with a colour dialog and strings that a test
/// may act in.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>

#include "tests/host/desktop/windows/Recorder.h"
#include "tests/support/FloatingTestDesktop.h"
#include "tests/support/NotedServices.h"

namespace tvok::test {

/// The dialog runs `onPick` and gives its answer; without one it is the desktop's own.
class SelectorWatch : public PassedServices, private host::ColorPicker, private host::StringResources {
public:
    std::function<std::int32_t(host::Handle)> onPick;
    std::function<void()> onString;
    host::ColorPicker& ColorPicker() override { return *this; }
    const host::StringResources& StringResources() const override { return *this; }

private:
    std::int32_t PickColor(host::Handle owner) override {
        const auto pick = onPick; // which may replace itself
        return pick ? pick(owner) : next_.ColorPicker().PickColor(owner);
    }
    std::string LoadResString(std::int32_t number) const override {
        if (const auto act = onString) act();
        return next_.StringResources().LoadResString(number);
    }
};

/// It is 20 pixels high inside its frame, with its strip from x 136 to 196.
class SelectorDesktop : public FloatingDesktop {
public:
    static constexpr Placement cPlace{20, 20, 200, 24};
    static constexpr OLE_COLOR cFirst = 0xFF0000; ///< Blue.
    enum Button : std::int32_t { Grid, List, Dialog };

    explicit SelectorDesktop(const Theme& theme = Theme::Classic(), OLE_COLOR first = cFirst)
        : FloatingDesktop(theme), selector(&desktop.form().Add<ucColorSelector>("selector", cPlace)) {
        selector->SelectColor(first);
        desktop.Pump();
    }

    SelectorWatch watch;
    ucColorSelector* selector;

    static constexpr std::int32_t MiddleOf(Button button) { return 136 + 20 * button + 10; }
    /// Presses the button and holds it.
    void PressButton(Button button) {
        desktop.clock().now += std::chrono::seconds(1); // no second press of a double click
        desktop.Press(*selector, MiddleOf(button), 10);
    }
    void ClickButton(Button button) {
        PressButton(button);
        desktop.Release();
    }
    /// Into a cell of the grid, counted from 1, or a row of the list of system colours.
    void MoveToCell(std::int32_t column, std::int32_t row) {
        MoveTo(1 + 11 * (column - 1) + 5, 1 + 11 * (row - 1) + 5);
    }
    void MoveToRow(std::int32_t row) { MoveTo(40, ClientRect().bottom / 8 * (row - 1) + 6); }
    static constexpr OLE_COLOR cRed = 0x0000FF, cGreen = 0x00FF00; ///< In row 5, columns 1 and 9.

    std::uint32_t Swatch() { return desktop.PixelAt(*selector, 10, 10); } ///< 0x00RRGGBB.
    /// The band that shows the focus, by a pixel beside the text.
    bool ShowsFocus() { return desktop.PixelAt(*selector, 130, 2) == Screen(host::COLOR_HIGHLIGHT); }
    /// Whether the edge of a button is that of a pressed one.
    bool IsDown(Button button) {
        const std::int32_t left = 136 + 20 * button;
        return desktop.PixelAt(*selector, left, 0) == desktop.PixelAt(*selector, left + 19, 19);
    }
    host::Handle OwnWindow() const { return desktop.WindowOf(*selector); }
    std::uint32_t Screen(std::int32_t systemColor) {
        const std::int32_t color = host::platform().GetSysColor(systemColor);
        return static_cast<std::uint32_t>((color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF));
    }
};

} // namespace tvok::test
