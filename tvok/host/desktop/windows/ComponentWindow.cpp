#include "tvok/host/desktop/windows/ComponentWindow.h"

#include <algorithm>

#include "tvok/host/MemoryBag.h"
#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::soft {

struct ComponentWindow::MouseArguments {
    MouseArguments(const ComponentWindow& component, const Message& message, std::int16_t which)
        : button(which), shift(component.world().input.ShiftBits()),
          x(component.ToTwips(LowWord(message.lParam))), y(component.ToTwips(HighWord(message.lParam))) {}
    std::int16_t button;
    std::int16_t shift;
    float x;
    float y;
};

SoftPicture::SoftPicture(ComponentWindow& owner)
    : WidgetWindow(owner.world(), &owner.window(), tvok_Rect{}, false), owner_(&owner) {
    owner.pictures_.push_back(this);
}

SoftPicture::~SoftPicture() {
    if (owner_) std::erase(owner_->pictures_, this);
}

void SoftPicture::OwnerGone() {
    owner_ = nullptr;
    Leave();
}

/// A popup leaves the focus where it is; a picture in its place gives it to its component.
Window* SoftPicture::FocusByMouse() {
    return owner_ && !window().IsTopLevel() ? owner_->FocusByMouse() : nullptr;
}

ComponentWindow::ComponentWindow(World& world, Window& parent, host::Control& control, std::string name,
                                 const tvok_Rect& rect, bool userMode)
    : WidgetWindow(world, &parent, rect, true), control_(control), name_(std::move(name)),
      ambient_(*this, userMode) {}

ComponentWindow::~ComponentWindow() {
    for (SoftPicture* picture : pictures_) picture->OwnerGone();
    Leave();
}

void ComponentWindow::BringUp(host::PropertyBag* settings) {
    const World::Running running(world());
    try {
        control_.Initialize(*this);
        host::MemoryBag empty;
        if (settings || ambient_.UserMode()) {
            control_.ReadProperties(settings ? *settings : empty);
        } else {
            control_.InitProperties();
        }
        isUp_ = true;
        if (window().IsAlive()) control_.Resize();
    } catch (...) {
        End();
        throw;
    }
}

void ComponentWindow::LoseFocus() {
    const Window* focused = world().windows.Find(world().focus.focus());
    if (!focused || !focused->IsInside(window())) return;
    const World::Running running(world());
    quietly([&] { world().focus.Focus(0); });
}

void ComponentWindow::End() {
    if (std::exchange(ended_, true)) return;
    const World::Running running(world());
    quietly([&] { control_.Terminate(); });
    std::vector<ComponentWindow*> ending; // the end of one may remove another, which is buried then
    for (const auto& child : children_) ending.push_back(child.get());
    for (ComponentWindow* child : ending) child->End();
    for (SoftPicture* picture : std::exchange(pictures_, {})) picture->OwnerGone();
    Leave();
}

host::FontValue ComponentWindow::Surroundings::Font() const {
    return component_.world().DefaultFont();
}

void ComponentWindow::NeedNotEnded() const {
    if (ended_ || !window().IsAlive()) throw ObjectError("the component \"" + name_ + "\" has ended");
}

std::unique_ptr<host::PictureWindow> ComponentWindow::CreatePicture() {
    NeedNotEnded();
    return std::make_unique<SoftPicture>(*this);
}

host::Component& ComponentWindow::AddChild(host::Control& child, std::string_view name,
                                           const tvok_Rect& place, host::PropertyBag* settings) {
    NeedNotEnded();
    auto made = std::make_unique<ComponentWindow>(world(), window(), child, std::string(name), place,
                                                  ambient_.UserMode());
    ComponentWindow& result = *made;
    children_.push_back(std::move(made));
    try {
        result.BringUp(settings);
    } catch (...) {
        RemoveChild(child);
        throw;
    }
    return result;
}

void ComponentWindow::RemoveChild(host::Control& child) {
    const auto find = [&] {
        return std::ranges::find(children_, &child, [](const auto& each) { return &each->control_; });
    };
    auto found = find();
    if (found == children_.end()) return;
    (*found)->LoseFocus();
    found = find(); // a handler may have removed it, or another
    if (found == children_.end()) return;
    std::unique_ptr<ComponentWindow> removed = std::move(*found);
    children_.erase(found);
    removed->End();
    world().Bury(std::move(removed)); // one of its own events may be running
}

void ComponentWindow::FocusInside(bool inside) {
    if (inside) {
        control_.EnterFocus();
    } else {
        control_.ExitFocus();
    }
}

void ComponentWindow::FrameResized() {
    const World::Running running(world());
    if (isUp_) control_.Resize();
}

std::int32_t ComponentWindow::Process(Window& target, const Message& message) {
    switch (message.message) {
    case host::WM_SIZE: control_.Resize(); return 0;
    case host::WM_SETFOCUS: control_.GotFocus(); return 0;
    case host::WM_KILLFOCUS: control_.LostFocus(); return 0;
    case host::WM_KEYDOWN:
    case host::WM_SYSKEYDOWN: return KeyDown(message);
    case host::WM_KEYUP:
    case host::WM_SYSKEYUP: KeyUp(message); return 0;
    case host::WM_CHAR: {
        auto character = static_cast<std::int16_t>(message.wParam);
        control_.KeyPress(character);
        return 0;
    }
    case host::WM_MOUSEMOVE: {
        MouseArguments mouse(*this, message, world().input.ButtonBits());
        control_.MouseMove(mouse.button, mouse.shift, mouse.x, mouse.y);
        return 0;
    }
    case host::WM_LBUTTONDOWN: MousePress(message, 1); return 0;
    case host::WM_RBUTTONDOWN: MousePress(message, 2); return 0;
    case host::WM_MBUTTONDOWN: MousePress(message, 4); return 0;
    case host::WM_LBUTTONUP: MouseRelease(message, 1); return 0;
    case host::WM_RBUTTONUP: MouseRelease(message, 2); return 0;
    case host::WM_MBUTTONUP: MouseRelease(message, 4); return 0;
    case host::WM_LBUTTONDBLCLK:
        TakeMouse();
        control_.DblClick();
        return 0;
    case host::WM_RBUTTONDBLCLK: MousePress(message, 2); return 0;
    case host::WM_MBUTTONDBLCLK: MousePress(message, 4); return 0;
    default: return WidgetCore::Process(target, message);
    }
}

/// Not 0 where the key is used up and gives no character.
std::int32_t ComponentWindow::KeyDown(const Message& message) {
    auto code = static_cast<std::int16_t>(message.wParam);
    std::int16_t shift = world().input.ShiftBits();
    FormWindow* const form = FormWindow::Around(window());
    if (form) form->RaiseKeyDown(code, shift);
    if (code == 0 || !window().IsAlive()) return 0;
    // A Tab that moves the focus is no key of the control's: a list would look for a text that begins with
    // it.
    if (form && form->TakeTab(code, shift)) return 1;
    control_.KeyDown(code, shift);
    return 0;
}

void ComponentWindow::KeyUp(const Message& message) {
    auto code = static_cast<std::int16_t>(message.wParam);
    std::int16_t shift = world().input.ShiftBits();
    control_.KeyUp(code, shift);
}

/// The component has the mouse while a button is down.
void ComponentWindow::TakeMouse() {
    if (world().focus.capture() == 0)
        world().focus.Capture(window().handle(), FocusManager::CaptureKind::Automatic);
}

void ComponentWindow::MousePress(const Message& message, std::int16_t button) {
    TakeMouse();
    if (button == 1) armed_ = true;
    MouseArguments mouse(*this, message, button);
    control_.MouseDown(mouse.button, mouse.shift, mouse.x, mouse.y);
}

void ComponentWindow::MouseRelease(const Message& message, std::int16_t button) {
    const bool clicked = button == 1 && std::exchange(armed_, false);
    const host::Point point{LowWord(message.lParam), HighWord(message.lParam)};
    const tvok_Rect area{0, 0, WidthOf(window().clientArea()), HeightOf(window().clientArea())};
    FocusManager& focus = world().focus;
    if (world().input.ButtonBits() == 0 && focus.capture() == window().handle() &&
        focus.captureKind() == FocusManager::CaptureKind::Automatic)
        focus.ReleaseCapture();
    MouseArguments mouse(*this, message, button);
    control_.MouseUp(mouse.button, mouse.shift, mouse.x, mouse.y);
    if (clicked && window().IsAlive() && Contains(area, point)) control_.Click();
}

} // namespace tvok::soft
