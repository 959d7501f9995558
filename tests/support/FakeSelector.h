/// A `ucColorSelector` on a component without a desktop: its strip and its popup stand on components of their
/// own, and the platform calls, what is done to the children, and the services' work stand in one log.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/support/FakeComponent.h"
#include "tvok/controls/colorselector/ucColorSelector.h"

namespace tvok::test {

/// A window of its own with the platform of its owner. Writes its moves and heights into the log.
template<class Base>
class FakeWidget : public Base {
public:
    FakeWidget(CallLog& callLog, std::string widgetName, host::Handle handle)
        : log(callLog), name(std::move(widgetName)), window(handle) {}

    CallLog& log;
    std::string name;
    host::Handle window;
    std::function<void()> onResize;
    bool visible = true;
    float left = 0, top = 0, width = 0, height = 0; ///< In twips of 15 to a pixel.
    OLE_COLOR backColor = 0, foreColor = 0;
    std::int16_t appearance = 0, borderStyle = 0;
    bool transparent = true;
    std::shared_ptr<FakeFont> font = std::make_shared<FakeFont>(log);

    host::Handle hWnd() const override { return window; }
    host::Handle hDC() const override { return window + 1; }
    float Left() const override { return left; }
    float Top() const override { return top; }
    float Width() const override { return width; }
    float Height() const override { return height; }
    void Width(float twips) override { Size(twips, height); }
    void Height(float twips) override {
        Note("Height", {twips});
        Size(width, twips);
    }
    void Size(float newWidth, float newHeight) override {
        const bool changes = std::exchange(width, newWidth) != newWidth;
        if ((std::exchange(height, newHeight) != newHeight || changes) && onResize) onResize();
    }
    void Move(float newLeft, float newTop) override {
        Note("Move", {newLeft, newTop});
        left = newLeft;
        top = newTop;
    }
    bool Visible() const override { return visible; }
    void Visible(bool show) override { visible = show; }
    void ZOrder(std::int32_t) override {}
    OLE_COLOR BackColor() const override { return backColor; }
    void BackColor(OLE_COLOR color) override { backColor = color; }
    OLE_COLOR ForeColor() const override { return foreColor; }
    void ForeColor(OLE_COLOR color) override { foreColor = color; }
    host::FontPtr Font() const override { return font; }
    void Font(const host::Font& from) override { font->value = host::ValueOf(from); }
    bool FontTransparent() const override { return transparent; }
    void FontTransparent(bool on) override { transparent = on; }
    std::int16_t Appearance() const override { return appearance; }
    void Appearance(std::int16_t value) override { appearance = value; }
    std::int16_t BorderStyle() const override { return borderStyle; }
    void BorderStyle(std::int16_t style) override { borderStyle = style; }
    std::int16_t MousePointer() const override { return 0; }
    void MousePointer(std::int16_t) override {}
    float TextWidth(std::string_view) const override { return 0; }
    void SetFocus() override {}
    void Refresh() override {}
    void Cls() override {}

private:
    void Note(const std::string& member, const std::vector<float>& twips) {
        std::vector<std::int32_t> values;
        for (const float each : twips) values.push_back(static_cast<std::int32_t>(std::lround(each)));
        log.Add(PlainCall(name + "." + member, values));
    }
};

class FakeChild : public FakeWidget<host::Component> {
public:
    FakeChild(CallLog& callLog, const host::Ambient& surroundings, std::string childName, host::Handle handle,
              host::Control& child)
        : FakeWidget(callLog, std::move(childName), handle), control(child), ambient(surroundings) {
        onResize = [this] { control.Resize(); };
    }
    host::Control& control;
    const host::Ambient& ambient;

    const host::Ambient& Ambient() const override { return ambient; }
    std::unique_ptr<host::PictureWindow> CreatePicture() override {
        auto picture = std::make_unique<FakeWidget<host::PictureWindow>>(log, name + ".picture", window + 2);
        picture->visible = false;
        return picture;
    }
    host::Component& AddChild(host::Control&, std::string_view, const tvok_Rect&,
                              host::PropertyBag*) override {
        throw ObjectError("no children here");
    }
    void RemoveChild(host::Control&) override {}
};

class SilentWindowHook : public host::WindowHook {
public:
    const host::MouseHookRecord* Mouse() const override { return nullptr; }
    void HookSet(std::int32_t&, std::int32_t&, bool&) override {}
    void HookRelease() override {}
};

/// The dialog gives `answer`, after `onDialog`; the strings are those of `texts`, each after `onString`.
class SelectorServices : public FakeServices, private host::StringResources, private host::ColorPicker {
public:
    explicit SelectorServices(CallLog& log) : log_(log) {}
    std::int32_t answer = -1;
    std::function<void()> onDialog, onString;
    std::map<std::int32_t, std::string> texts{{100, "&H80000000&"},
                                              {1000, "Scroll Bar"},
                                              {101, "&H8000000F&"},
                                              {1001, "DeskTop"},
                                              {1015, "Button Face"}};

    std::unique_ptr<host::WindowHook> CreateWindowHook() override {
        return std::make_unique<SilentWindowHook>();
    }
    const host::StringResources& StringResources() const override { return *this; }
    host::ColorPicker& ColorPicker() override { return *this; }

private:
    std::string LoadResString(std::int32_t number) const override {
        log_.Add(PlainCall("LoadResString", {number}));
        if (onString) onString();
        const auto found = texts.find(number);
        return found == texts.end() ? std::string() : found->second;
    }
    std::int32_t PickColor(host::Handle owner) override {
        log_.Add(PlainCall("PickColor", {owner}));
        if (onDialog) onDialog();
        return answer;
    }
    CallLog& log_;
};

/// Brings its children up as a real component does, and notes what is asked of it.
class SelectorComponent : public FakeComponent {
public:
    using FakeComponent::FakeComponent;
    static constexpr host::Handle cFirstChild = 20; ///< The popup's window; 10 further the strip's.

    std::map<std::string, std::unique_ptr<FakeChild>> children;
    bool refusesFocus = false;
    std::function<void()> onFocus;

    xbutton& strip() { return dynamic_cast<xbutton&>(children.at("xbutton1")->control); }
    xPopup& popup() { return dynamic_cast<xPopup&>(children.at("xPopup1")->control); }

    host::Component& AddChild(host::Control& child, std::string_view name, const tvok_Rect&,
                              host::PropertyBag* settings) override {
        const auto handle = cFirstChild + 10 * static_cast<host::Handle>(children.size());
        auto made = std::make_unique<FakeChild>(log, ambient, std::string(name), handle, child);
        FakeChild& result = *made;
        children[std::string(name)] = std::move(made);
        child.Initialize(result);
        child.ReadProperties(*settings);
        child.Resize();
        return result;
    }
    void RemoveChild(host::Control& child) override {
        for (const auto& [name, component] : children) {
            if (&component->control != &child) continue;
            log.Add(PlainCall("RemoveChild", {}, name));
            child.Terminate();
        }
    }
    void SetFocus() override {
        log.Add(PlainCall("base.SetFocus"));
        if (refusesFocus) throw Error("no focus here");
        log.focus = cWindow;
        if (onFocus) onFocus();
    }
    void Cls() override { log.Add(PlainCall("base.Cls")); }
};

/// 200 x 20 pixels unless a test says otherwise: the strip begins at 140.
class FakeSelector {
public:
    explicit FakeSelector(bool userMode = true, std::int32_t width = 200, std::int32_t height = 20)
        : component(userMode, width, height), services(component.log),
          servicesBefore_(host::SetServices(&services)) {
        component.control = owner.get();
        selector.Initialize(component);
        userMode ? selector.ReadProperties(bag) : selector.InitProperties();
        selector.Resize();
        log().Clear();
    }
    ~FakeSelector() {
        if (owner) owner->Terminate();
        owner.reset(); // before the components that its children stand on
        host::SetServices(servicesBefore_);
    }
    FakeSelector(const FakeSelector&) = delete;
    FakeSelector& operator=(const FakeSelector&) = delete;

    SelectorComponent component;
    SelectorServices services;
    FakeBag bag;
    std::unique_ptr<ucColorSelector> owner = std::make_unique<ucColorSelector>();
    ucColorSelector& selector = *owner;

    CallLog& log() { return component.log; }
    host::Handle StripWindow() { return component.strip().hwnd(); }

    Calls TakeDrawing() {
        const Calls calls = log().Drawing();
        log().Clear();
        return calls;
    }
    /// The description as it was painted since the last look, once for each painting.
    std::vector<std::string> TakePaints() {
        std::vector<std::string> texts;
        for (const Call& call : log().Named("DrawTextA"))
            if (call.values[0] == (host::DT_VCENTER | host::DT_SINGLELINE)) texts.push_back(call.text);
        log().Clear();
        return texts;
    }
    /// Whether a paint shows the focus.
    bool ShowsFocus() {
        log().Clear();
        selector.Paint();
        const bool shows = !log().Named("DrawFocusRect").empty();
        log().Clear();
        return shows;
    }
    // What the children tell, as by a user.
    void Press(const std::string& key) { component.strip().events.MouseDown(key); }
    void Click(const std::string& key) { component.strip().events.Click(key); }
    void Preview(OLE_COLOR color) {
        qrosterdata item{.IconBackColor = color};
        component.popup().events.Change(1, item);
    }
    void Close(bool canceled) {
        qrosterdata item;
        component.popup().events.Click(1, item, canceled);
    }

private:
    host::Services* servicesBefore_;
};

} // namespace tvok::test
