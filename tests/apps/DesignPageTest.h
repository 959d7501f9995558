/// The page "design" in the gallery's window, with a user's hands and a form of three controls.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "apps/gallery/Window.h"
#include "apps/gallery/design/DesignPage.h"
#include "tests/support/TestDesktop.h"

namespace gallery {

class DesignPageTest : public testing::Test {
protected:
    explicit DesignPageTest(Panes panes = Panes::None)
        : window_(Window::Open(desktop_.desktop(), "design", panes)) {
        folder_ = std::filesystem::temp_directory_path() / ("tvok_design_" + std::to_string(std::rand()));
        std::filesystem::create_directories(folder_);
        Pump();
        // Three controls with room around them.
        tvok::FormFile simple{"Form", 320, 240, {}};
        simple.controls.push_back({"TextBox", "a", {16, 16, 80, 24}, {}});
        simple.controls.push_back({"TextBox", "b", {16, 56, 80, 24}, {}});
        simple.controls.push_back({"iLabel", "c", {120, 16, 80, 64}, {}});
        model().Replace(simple);
        Pump();
    }
    ~DesignPageTest() override { std::filesystem::remove_all(folder_); }

    DesignPage& page() { return dynamic_cast<DesignPage&>(window_->page()); }
    Designer& designer() { return page().designer(); }
    DesignedForm& model() { return designer().model(); }
    tvok::Form& form() { return designer().form(); }
    tvok::Placement PlaceOf(const std::string& name) { return form().PlacementOf(*form().Find(name)); }
    const Designer::Names& Selected() { return designer().Selected(); }
    tvok::desktop::Input& Input() { return desktop_.desktop().Input(); }
    void Pump() { desktop_.Pump(); }

    void MoveOn(tvok::host::Handle hWnd, std::int32_t x, std::int32_t y) {
        tvok::host::Point point{x, y};
        tvok::host::platform().ClientToScreen(hWnd, point);
        Input().MouseMove(point.x, point.y);
        Pump();
    }
    void MoveTo(std::int32_t x, std::int32_t y) { MoveOn(form().hWnd(), x, y); }
    void Press(std::int32_t x, std::int32_t y) {
        desktop_.clock().now += std::chrono::seconds(1); // no double click
        MoveTo(x, y);
        Input().MouseDown(tvok::desktop::MouseButton::Left);
        Pump();
    }
    void Release() {
        Input().MouseUp(tvok::desktop::MouseButton::Left);
        Pump();
    }
    void Click(std::int32_t x, std::int32_t y) {
        Press(x, y);
        Release();
    }
    void Drag(tvok::host::Point from, tvok::host::Point to) {
        Press(from.x, from.y);
        for (int step = 1; step <= 4; ++step)
            MoveTo(from.x + (to.x - from.x) * step / 4, from.y + (to.y - from.y) * step / 4);
        Release();
    }
    template<class Action>
    void Holding(std::int32_t key, const Action& action) {
        desktop_.HoldKey(key);
        action();
        desktop_.LetGoKey(key);
    }
    void Control(std::int32_t key) {
        Holding(tvok::host::VK_CONTROL, [&] { desktop_.Key(key); });
    }
    tvok::qRoster& Palette() { return *window_->form().Find<tvok::qRoster>("design.types"); }
    tvok::TextBox& Field(const char* name) { return *window_->form().Find<tvok::TextBox>(name); }
    tvok::host::Handle Area() {
        return window_->form().ComponentOf(*window_->form().Find("design.area")).hWnd();
    }
    /// Clicks the command with this number in the bar.
    void Command(std::int32_t number) {
        desktop_.clock().now += std::chrono::seconds(1);
        const auto& bar = *window_->form().Find("design.commands");
        MoveOn(window_->form().ComponentOf(bar).hWnd(), CommandBar::CommandWidth * (number - 1) + 20, 12);
        Input().MouseDown(tvok::desktop::MouseButton::Left);
        Input().MouseUp(tvok::desktop::MouseButton::Left);
        Pump();
    }
    static constexpr std::int32_t New = 1, Open = 2, Save = 3, Undo = 4, Redo = 5, Run = 6;
    std::string FileNamed(const std::string& name) const { return (folder_ / name).string(); }
    static std::string TextOf(const std::string& file) {
        std::ifstream stream(file);
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }

    tvok::test::TestDesktop desktop_;
    std::shared_ptr<Window> window_;
    std::filesystem::path folder_;
};

} // namespace gallery
