#include "tvok/host/desktop/Embedding.h"

#include <algorithm>
#include <utility>

#include "tvok/host/desktop/Form.h"
#include "tvok/host/desktop/displays/EmbeddedDisplay.h"
#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok {

using host::Handle;

Embedding::Embedding(const DesktopOptions& options, Layout layout, EmbeddingCalls calls) {
    auto display = std::make_unique<soft::EmbeddedDisplay>(layout, options.screenWidth, options.screenHeight,
                                                           std::move(calls));
    display_ = display.get();
    desktop_ = std::make_unique<Desktop>(options, std::move(display));
}

Embedding::~Embedding() = default;

bool Embedding::Turn() {
    const bool goesOn = desktop_->ProcessEvents(std::chrono::milliseconds{0});
    display_->TellNotices();
    return goesOn && !desktop_->world().IsOver();
}

std::optional<std::chrono::milliseconds> Embedding::NextTurn() {
    soft::World& world = desktop_->world();
    if (display_->HasNotices()) return std::chrono::milliseconds{0};
    if (world.IsOver()) return {};
    if (world.NeedsPresent()) return std::chrono::milliseconds{0};
    return world.loop.Idle();
}

std::vector<tvok_Rect> Embedding::TakeDamage(Handle window) {
    return display_->TakeDamage(window, desktop_->world());
}

EmbeddedPixels Embedding::Pixels(Handle window) const {
    return display_->Pixels(window);
}

void Embedding::MouseMove(std::int32_t x, std::int32_t y, Handle window) {
    const EmbeddedWindow* entered = display_->Find(window);
    if (!entered && window != 0) return;
    const host::Point origin =
        entered ? host::Point{entered->rect.Left, entered->rect.Top} : host::Point{0, 0};
    desktop_->Input().MouseMove(soft::LimitCoordinate(x) + origin.x, soft::LimitCoordinate(y) + origin.y);
}

void Embedding::FocusIn(Handle window) {
    if (window == 0) {
        const auto& tops = desktop_->world().windows.tops();
        const auto front = std::ranges::find_if(
            tops, [](const soft::Window* top) { return top->shown() && !top->top()->popup; });
        if (front != tops.end()) window = (*front)->handle();
    }
    if (window != 0 && desktop_->world().windows.Find(window)) desktop_->Input().Activate(window);
}

void Embedding::FocusOut() {
    desktop_->Input().Activate(0);
}

// It is fed as a press far off, so that its release does not come to a control that lies behind.
void Embedding::PressElsewhere() {
    constexpr std::int32_t kFarOff = -20'000;
    if (!display_->HasPopup()) return;
    desktop_->Input().MouseMove(kFarOff, kFarOff);
    desktop_->Input().MouseDown(desktop::MouseButton::Left);
    desktop_->Input().MouseUp(desktop::MouseButton::Left);
}

void Embedding::Resize(std::int32_t width, std::int32_t height, Handle window) {
    const std::int32_t newWidth = std::clamp(width, 0, soft::kMaxSurface);
    const std::int32_t newHeight = std::clamp(height, 0, soft::kMaxSurface);
    if (window == 0) {
        display_->Resize(newWidth, newHeight);
        FollowSurface();
    } else if (const EmbeddedWindow* resized = display_->Find(window)) {
        const tvok_Rect& rect = resized->rect;
        display_->SetRect(window, {rect.Left, rect.Top, rect.Left + newWidth, rect.Top + newHeight});
        desktop_->world().input.WindowResized(window, newWidth, newHeight);
    }
}

void Embedding::Moved(std::int32_t x, std::int32_t y, Handle window) {
    const EmbeddedWindow* moved = display_->Find(window);
    if (!moved) return;
    const std::int32_t left = soft::LimitCoordinate(x), top = soft::LimitCoordinate(y);
    const tvok_Rect& rect = moved->rect;
    display_->SetRect(window, soft::Moved(rect, left - rect.Left, top - rect.Top));
    desktop_->world().input.WindowMoved(window, left, top);
}

void Embedding::CloseRequest(Handle window) {
    desktop_->world().input.CloseRequested(window == 0 ? filling_ : window);
}

void Embedding::Fill(Form& form) {
    filling_ = form.hWnd();
    FollowSurface();
}

void Embedding::FollowSurface() {
    if (display_->DecoratesWindows()) return;
    const auto& forms = desktop_->Forms();
    const auto found =
        std::ranges::find_if(forms, [&](const auto& form) { return form->hWnd() == filling_; });
    if (found == forms.end()) return;
    const soft::Insets frame = (*found)->window().Frame();
    const tvok_Rect screen = display_->Screen();
    (*found)->Move(-frame.left, -frame.top);
    (*found)->Size(screen.Right, screen.bottom);
}

} // namespace tvok
