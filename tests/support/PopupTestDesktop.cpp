#include "tests/support/PopupTestDesktop.h"

#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::test {

PopupDesktop::PopupDesktop(const std::vector<std::string>& texts)
    : owner(desktop.form().Add<Recorder>("owner", {20, 20, 100, 30})),
      popup(&desktop.form().Add<xPopup>("popup1", {200, 20, 50, 50})) {
    desktop.form().Add<Recorder>("other", {20, 100, 100, 30});
    desktop.Focus(owner);
    popup->SetParentRect(cParent);
    NoteEvents();
    Add(texts);
}

void PopupDesktop::NoteEvents() {
    popup->events.Change = [this](std::int32_t index, qrosterdata& item) {
        story.push_back("Change " + std::to_string(index) + " " + item.text);
    };
    popup->events.Click = [this](std::int32_t index, qrosterdata& item, bool canceled) {
        story.push_back("Click " + std::to_string(index) + " " + item.text + (canceled ? " canceled" : ""));
    };
}

void PopupDesktop::Add(const std::vector<std::string>& texts) {
    for (const std::string& text : texts) popup->AddItem({.text = text});
}

void PopupDesktop::Open() {
    popup->Popup(false, true);
    desktop.Pump();
    story.clear();
}

std::vector<std::string> PopupDesktop::Texts() const {
    std::vector<std::string> texts;
    for (std::int32_t i = 1; i <= popup->Count(); ++i) texts.push_back(Data(i).text);
    return texts;
}

qrosterdata PopupDesktop::Data(std::int32_t index) const {
    qrosterdata data;
    popup->GetData(index, data);
    return data;
}

std::vector<std::int32_t> PopupDesktop::Selected() const {
    std::vector<std::int32_t> selected;
    for (std::int32_t i = 1; i <= popup->Count(); ++i)
        if ((Data(i).vflag & vflag::Selected) != 0) selected.push_back(i);
    return selected;
}

host::Handle PopupDesktop::Floating() const {
    auto& world = const_cast<PopupDesktop*>(this)->desktop.desktop().world();
    for (const soft::Window* window : world.windows.tops())
        if (window->top()->popup && window->IsVisible()) return window->handle();
    return 0;
}

tvok_Rect PopupDesktop::WindowRect() const {
    tvok_Rect rect;
    host::platform().GetWindowRect(Floating(), rect);
    return rect;
}

tvok_Rect PopupDesktop::ClientRect() const {
    tvok_Rect rect;
    host::platform().GetClientRect(Floating(), rect);
    return rect;
}

std::uint32_t PopupDesktop::PixelAt(std::int32_t x, std::int32_t y) const {
    auto& world = const_cast<PopupDesktop*>(this)->desktop.desktop().world();
    const soft::Window* window = world.windows.Find(Floating());
    return window->top()->surface.Row(window->clientArea().Top + y)[window->clientArea().Left + x];
}

std::vector<std::uint32_t> PopupDesktop::Pixels() const {
    std::vector<std::uint32_t> pixels;
    const tvok_Rect client = ClientRect();
    for (std::int32_t y = 0; y < client.bottom; ++y)
        for (std::int32_t x = 0; x < client.Right; ++x) pixels.push_back(PixelAt(x, y));
    return pixels;
}

void PopupDesktop::MoveTo(std::int32_t x, std::int32_t y) {
    host::Point point{x, y};
    host::platform().ClientToScreen(Floating(), point);
    MoveToScreen(point.x, point.y);
}

void PopupDesktop::MoveToScreen(std::int32_t x, std::int32_t y) {
    desktop.desktop().Input().MouseMove(x, y);
    desktop.Pump();
}

void PopupDesktop::Down() {
    desktop.clock().now += std::chrono::seconds(1);
    desktop.desktop().Input().MouseDown(desktop::MouseButton::Left);
    desktop.Pump();
}

void PopupDesktop::Press(std::int32_t x, std::int32_t y) {
    MoveTo(x, y);
    Down();
}

void PopupDesktop::Click(std::int32_t x, std::int32_t y) {
    Press(x, y);
    Up();
}

std::vector<std::string> Lines(std::int32_t count) {
    std::vector<std::string> texts;
    for (std::int32_t i = 1; i <= count; ++i) texts.push_back("item " + std::to_string(i));
    return texts;
}

} // namespace tvok::test
