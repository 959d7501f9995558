#include "tests/support/FakeRoster.h"

#include <set>

namespace tvok::test {

namespace {

const std::set<std::string> cEvents = {
    "Change",  "Click",   "DblClick", "MouseDown", "MouseMove",
    "MouseUp", "KeyDown", "KeyUp",    "KeyPress",  "EnumSelectedItemCallBack",
    "ExDraw"};

std::string Line(const Call& call) {
    std::string line = call.name;
    for (const auto value : call.values) line += " " + std::to_string(value);
    if (!call.text.empty()) line += " " + call.text;
    return line;
}

/// The line that a story has for a call, empty for none.
std::string StoryLine(const Call& call) {
    if (cEvents.contains(call.name)) return Line(call);
    if (call.name == "ExtTextOutA") return "draw " + call.text;
    if (call.name == "DrawFocusRect") return "focus";
    if (call.name == "ScrollDC") return "ScrollDC " + std::to_string(call.values[2]);
    if (call.name == "Height") return Line(call);
    if (call.name.starts_with("hook.Scroll")) return Line(call).substr(5);
    return {};
}

host::Handle LParam(std::int32_t x, std::int32_t y) {
    return dgi::LParamFromPoint(x, y);
}

} // namespace

FakeRoster::FakeRoster(const FakeRosterSetup& setup, const std::vector<std::string>& texts)
    : component(setup.UserMode, setup.width, setup.height, setup.border) {
    bag.stored = {{"xn", setup.xn},
                  {"MultiSelect", setup.MultiSelect},
                  {"GridlineWidth", setup.GridlineWidth},
                  {"FixedHeight", setup.FixedHeight},
                  {"FixedWidthForLastXn", setup.FixedWidthForLastXn},
                  {"HotTrack", setup.HotTrack}};
    component.control = owner.get();
    list.Initialize(component);
    list.ReadProperties(bag);
    NoteEvents();
    if (!texts.empty()) Add(texts);
    component.log.Clear();
}

FakeRoster::~FakeRoster() {
    End();
}

void FakeRoster::End() {
    if (!owner) return;
    owner->Terminate();
    owner.reset();
    component.control = nullptr;
}

void FakeRoster::NoteEvents() {
    const auto item = [this](const char* name) {
        return
            [this, name](std::int32_t index, qrosterdata& x) { log().Add(PlainCall(name, {index}, x.text)); };
    };
    const auto mouse = [this](const char* name) {
        return [this, name](std::int16_t& button, std::int16_t& shift, float& x, float& y) {
            log().Add(
                PlainCall(name, {button, shift, static_cast<std::int32_t>(x), static_cast<std::int32_t>(y)}));
        };
    };
    const auto key = [this](const char* name) {
        return [this, name](std::int16_t& code, std::int16_t& shift) {
            log().Add(PlainCall(name, {code, shift}));
        };
    };
    list.events.Change = item("Change");
    list.events.Click = item("Click");
    list.events.DblClick = item("DblClick");
    list.events.MouseDown = mouse("MouseDown");
    list.events.MouseMove = mouse("MouseMove");
    list.events.MouseUp = mouse("MouseUp");
    list.events.KeyDown = key("KeyDown");
    list.events.KeyUp = key("KeyUp");
    list.events.KeyPress = [this](std::int16_t& code) { log().Add(PlainCall("KeyPress", {code})); };
    list.events.EnumSelectedItemCallBack = [this](std::int32_t& action, std::int32_t& index) {
        log().Add(PlainCall("EnumSelectedItemCallBack", {action, index}));
    };
    list.events.ExDraw = [this](std::int32_t& message, std::int32_t index, const std::string& itemKey,
                                std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                                std::int32_t) {
        log().Add(PlainCall("ExDraw", {message, index}, itemKey));
    };
}

void FakeRoster::Add(const std::vector<std::string>& texts) {
    for (const auto& text : texts) list.AddItem(0, {.text = text});
    list.Refresh();
    log().Clear();
}

std::vector<std::string> FakeRoster::Texts() const {
    std::vector<std::string> texts;
    for (std::int32_t i = 1; i <= list.Count(); ++i) texts.push_back(Data(i).text);
    return texts;
}

std::vector<std::int32_t> FakeRoster::Selected() const {
    std::vector<std::int32_t> selected;
    for (std::int32_t i = 1; i <= list.Count(); ++i)
        if (list.IsSelected(i)) selected.push_back(i);
    return selected;
}

qrosterdata FakeRoster::Data(std::int32_t index) const {
    qrosterdata data;
    list.GetData(index, data);
    return data;
}

std::vector<std::string> FakeRoster::TakeEvents() {
    std::vector<std::string> lines;
    for (const auto& call : log().NamedOneOf(cEvents)) lines.push_back(Line(call));
    log().Clear();
    return lines;
}

std::vector<std::string> FakeRoster::TakeStory() {
    std::vector<std::string> lines;
    for (const auto& call : log().All())
        if (auto line = StoryLine(call); !line.empty()) lines.push_back(std::move(line));
    log().Clear();
    return lines;
}

std::vector<std::string> FakeRoster::TakeDrawn() {
    std::vector<std::string> texts;
    for (const auto& call : log().Named("ExtTextOutA")) texts.push_back(call.text);
    log().Clear();
    return texts;
}

std::vector<std::string> FakeRoster::TakeHookWrites() {
    std::vector<std::string> lines;
    for (const auto& call : log().All())
        if (call.name.starts_with("hook")) lines.push_back(Line(call).substr(5));
    log().Clear();
    return lines;
}

std::string FakeRoster::TakeEffect() {
    const bool refreshed = !log().Named("hook.ScrollLarge").empty();
    const bool painted = !log().Drawing().empty();
    log().Clear();
    return refreshed ? "refresh" : painted ? "paint" : "";
}

void FakeRoster::Press(std::int32_t x, std::int32_t y, std::int32_t keys) {
    component.Send(host::WM_LBUTTONDOWN, host::MK_LBUTTON | keys, LParam(x, y));
}
void FakeRoster::Move(std::int32_t x, std::int32_t y, std::int32_t word) {
    component.Send(host::WM_MOUSEMOVE, word, LParam(x, y));
}
void FakeRoster::Release(std::int32_t x, std::int32_t y, std::int32_t keys) {
    component.Send(host::WM_LBUTTONUP, keys, LParam(x, y));
}
void FakeRoster::DoubleClick(std::int32_t x, std::int32_t y, std::int32_t keys) {
    component.Send(host::WM_LBUTTONDBLCLK, host::MK_LBUTTON | keys, LParam(x, y));
}
void FakeRoster::ClickRow(std::int32_t row, std::int32_t keys) {
    PressRow(row, keys);
    Release(50, row * 18 - 9, keys);
}
void FakeRoster::Key(std::int32_t code, std::int32_t shift) {
    auto keyCode = static_cast<std::int16_t>(code);
    auto keyShift = static_cast<std::int16_t>(shift);
    list.KeyDown(keyCode, keyShift);
}

std::vector<std::string> Numbered(std::int32_t count) {
    std::vector<std::string> texts;
    for (std::int32_t i = 1; i <= count; ++i) texts.push_back("item " + std::to_string(i));
    return texts;
}

} // namespace tvok::test
