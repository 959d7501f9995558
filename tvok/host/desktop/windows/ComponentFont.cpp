#include "tvok/host/desktop/windows/ComponentFont.h"

#include <algorithm>
#include <cmath>

#include "tvok/host/desktop/windows/World.h"

namespace tvok::soft {

namespace {

constexpr float kMostPoints = 2000;

} // namespace

ComponentFont::ComponentFont(World& world, DeviceContext& context)
    : world_(world), context_(&context), value_(world.DefaultFont()) {
    Select();
}

void ComponentFont::Detach() {
    Forget();
    context_ = nullptr;
}

void ComponentFont::Name(const std::string& face) {
    if (value_.Name == face) return;
    value_.Name = face;
    Renew();
}

/// A size that is no size is ignored, as is one beyond what any surface shows.
void ComponentFont::Size(float points) {
    if (value_.Size == points || !(points > 0) || points > kMostPoints) return;
    value_.Size = points;
    Renew();
}

void ComponentFont::Select() {
    if (!context_) return;
    const unsigned variant = (value_.Bold ? 1U : 0U) | (value_.Italic ? 2U : 0U) |
                             (value_.Underline ? 4U : 0U) | (value_.Strikethrough ? 8U : 0U);
    if (handles_[variant] == 0) handles_[variant] = Create();
    context_->Select(handles_[variant]);
}

void ComponentFont::Forget() {
    if (!context_) return;
    context_->Select(world_.objects.Stock(host::SYSTEM_FONT));
    for (host::Handle& handle : handles_)
        if (handle != 0) world_.objects.Delete(std::exchange(handle, 0));
}

host::Handle ComponentFont::Create() const {
    const auto pixels = static_cast<std::int32_t>(
        std::lround(value_.Size * static_cast<float>(world_.theme.dotsPerInch) / 72));
    host::LogFont description = DescriptionOf(value_.Name, std::max(pixels, 1));
    description.lfWeight = value_.Bold ? 700 : 400;
    description.lfItalic = value_.Italic;
    description.lfUnderline = value_.Underline;
    description.lfStrikeOut = value_.Strikethrough;
    return world_.objects.Add(FontOf(description));
}

} // namespace tvok::soft
