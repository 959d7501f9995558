#include "tvok/host/desktop/shell/ProbeComponent.h"

#include <algorithm>

#include "tvok/host/PropertyBag.h"
#include "tvok/records/Error.h"

namespace tvok::soft {

namespace {

class ProbePicture final : public ProbeWidget<host::PictureWindow> {};

void CheckChoice(const char* name, std::int16_t value) {
    if (value != 0 && value != 1)
        throw Error(std::string(name) + " is " + std::to_string(value) + ", not 0 or 1");
}

} // namespace

void CheckAppearance(std::int16_t appearance) {
    CheckChoice("Appearance", appearance);
}

void CheckBorderStyle(std::int16_t style) {
    CheckChoice("BorderStyle", style);
}

ProbeComponent::ProbeComponent(host::Control& control, host::PropertyBag* settings) : control_(control) {
    control_.Initialize(*this);
    try {
        settings != nullptr ? control_.ReadProperties(*settings) : control_.InitProperties();
    } catch (...) {
        quietly([&] { control_.Terminate(); });
        throw;
    }
}

ProbeComponent::~ProbeComponent() {
    quietly([&] { control_.Terminate(); });
}

std::unique_ptr<host::PictureWindow> ProbeComponent::CreatePicture() {
    return std::make_unique<ProbePicture>();
}

host::Component& ProbeComponent::AddChild(host::Control& child, std::string_view, const tvok_Rect&,
                                          host::PropertyBag* settings) {
    return *children_.emplace_back(std::make_unique<ProbeComponent>(child, settings));
}

void ProbeComponent::RemoveChild(host::Control& child) {
    std::erase_if(children_, [&](const auto& component) { return &component->control_ == &child; });
}

} // namespace tvok::soft
