#include "tvok/host/desktop/Form.h"

#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"
#include "tvok/records/Error.h"

namespace tvok {

namespace {

tvok_Rect RectOf(const Placement& place) {
    const std::int32_t left = soft::LimitCoordinate(place.left);
    const std::int32_t top = soft::LimitCoordinate(place.top);
    return {left, top, left + std::max(soft::LimitCoordinate(place.width), 0),
            top + std::max(soft::LimitCoordinate(place.height), 0)};
}

} // namespace

Form::Form(std::unique_ptr<soft::FormWindow> window) : window_(std::move(window)) {}

Form::~Form() = default;

void Form::Adopt(std::string_view name, const Placement& place, std::unique_ptr<host::Control> control,
                 host::PropertyBag* settings) {
    window_->Adopt(name, RectOf(place), std::move(control), settings);
}

void Form::Remove(host::Control& control) {
    window_->Remove(control);
}

host::Control* Form::Find(std::string_view name) const {
    const auto* entry = window_->Find(name);
    return entry ? entry->control.get() : nullptr;
}

std::vector<std::string> Form::Names() const {
    std::vector<std::string> names;
    for (const auto& entry : window_->entries()) names.push_back(entry.name);
    return names;
}

host::Component& Form::ComponentOf(const host::Control& control) const {
    return *window_->EntryOf(control).component;
}

Placement Form::PlacementOf(const host::Control& control) const {
    const tvok_Rect& rect = window_->EntryOf(control).component->window().rect();
    return {rect.Left, rect.Top, soft::WidthOf(rect), soft::HeightOf(rect)};
}

void Form::Place(const host::Control& control, const Placement& place) {
    window_->EntryOf(control).component->MovePixels(RectOf(place));
}

void Form::Reorder(const host::Control& control, std::size_t place) {
    window_->Reorder(control, place);
}

Form& Form::AddForm(std::string_view caption, std::int32_t width, std::int32_t height) {
    return AddInner(window_->window(), caption, width, height);
}

Form& Form::AddForm(const host::Control& inside, std::string_view caption, std::int32_t width,
                    std::int32_t height) {
    return AddInner(window_->EntryOf(inside).component->window(), caption, width, height);
}

Form& Form::AddInner(soft::Window& parent, std::string_view caption, std::int32_t width,
                     std::int32_t height) {
    if (!parent.IsAlive()) throw ObjectError("the form is closed");
    auto window = std::make_unique<soft::FormWindow>(*window_, parent, caption, width, height);
    return window_->AddInner(std::unique_ptr<Form>(new Form(std::move(window))));
}

std::string Form::Caption() const {
    return window_->caption;
}

void Form::Caption(std::string_view text) {
    window_->SetCaption(text);
}

std::int32_t Form::Width() const {
    return soft::WidthOf(window_->window().clientArea());
}

std::int32_t Form::Height() const {
    return soft::HeightOf(window_->window().clientArea());
}

void Form::Size(std::int32_t width, std::int32_t height) {
    window_->Size(width, height);
}

void Form::Move(std::int32_t x, std::int32_t y) {
    soft::Window& window = window_->window();
    const tvok_Rect& rect = window.rect();
    window.tree().Place(
        window, soft::Moved(rect, soft::LimitCoordinate(x) - rect.Left, soft::LimitCoordinate(y) - rect.Top));
}

OLE_COLOR Form::BackColor() const {
    return window_->backColor;
}

void Form::BackColor(OLE_COLOR color) {
    window_->backColor = color;
    window_->window().tree().Invalidate(window_->window(), nullptr, true);
}

bool Form::Resizable() const {
    return window_->resizable;
}

void Form::Resizable(bool resizable) {
    window_->resizable = resizable;
}

std::int16_t Form::MousePointer() const {
    return window_->pointer;
}

void Form::MousePointer(std::int16_t pointer) {
    window_->SetPointer(pointer);
}

host::Handle Form::hWnd() const {
    return window_->window().handle();
}

host::Handle Form::hDC() const {
    return window_->window().hDC();
}

void Form::SetFocus() {
    window_->world().focus.Focus(window_->WantedFocus());
}

void Form::Close() {
    window_->RequestClose();
}

bool Form::UserMode() const {
    return window_->userMode;
}

void Form::UserMode(bool run) {
    window_->userMode = run;
}

void Form::Marks(const std::vector<FormMark>& marks) {
    window_->Marks(marks);
}

} // namespace tvok
