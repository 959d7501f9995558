#include "tvok/host/desktop/gdi/GdiObjects.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <vector>

namespace tvok::soft {

using host::Handle;

namespace {

constexpr std::uint32_t indexBits = 16;
constexpr std::uint32_t indexMask = (1u << indexBits) - 1;
constexpr std::uint32_t mostGenerations = 0x7FFF; ///< Handles stay above 0.
constexpr std::uint32_t mostSlots = 65000;
constexpr std::uint32_t stockSlots = 18; ///< The lowest places, by stock index.
constexpr std::int32_t mostPixels = 4096;

/// At least so many places lie free before one is used again, so that a stale handle stays stale for long.
constexpr std::size_t fewestFree = 128;

/// Line height to em size, for the usual fonts.
std::int32_t EmOfLineHeight(std::int64_t height) {
    return static_cast<std::int32_t>(std::min<std::int64_t>(height, mostPixels) * 6 / 7);
}

std::int32_t PixelHeight(std::int32_t height) {
    if (height == 0) return 12;
    const std::int64_t wide = height;
    if (wide > 0) return std::max(EmOfLineHeight(wide), 1);
    return static_cast<std::int32_t>(std::min<std::int64_t>(-wide, mostPixels));
}

std::int32_t PixelsOf(const Theme& theme) {
    const double pixels = static_cast<double>(theme.fontPoints) * theme.dotsPerInch / 72;
    return static_cast<std::int32_t>(std::lround(std::clamp(pixels, 1.0, double{mostPixels})));
}

struct Slot {
    GdiObject object;
    std::uint32_t generation = 1;
    std::int32_t uses = 0;
    bool live = false;
};

} // namespace

GdiFont FontOf(const host::LogFont& description) {
    GdiFont font;
    font.description = description;
    const char* const end =
        std::find(std::begin(description.lfFaceName), std::end(description.lfFaceName), '\0');
    font.spec.face.assign(description.lfFaceName, end);
    font.spec.pixelHeight = PixelHeight(description.lfHeight);
    font.spec.bold = description.lfWeight >= 600;
    font.spec.italic = description.lfItalic != 0;
    font.underline = description.lfUnderline != 0;
    font.strikeout = description.lfStrikeOut != 0;
    return font;
}

host::LogFont DescriptionOf(std::string_view face, std::int32_t pixelHeight) {
    host::LogFont description;
    description.lfHeight = -std::clamp(pixelHeight, 1, mostPixels);
    description.lfWeight = 400;
    description.lfCharSet = 1;
    face.copy(description.lfFaceName, sizeof description.lfFaceName - 1);
    return description;
}

/// Free places stand in a ring: the one that was freed longest ago is used first.
struct GdiObjects::Impl {
    std::vector<Slot> slots = std::vector<Slot>(stockSlots);
    std::vector<std::uint32_t> ring;
    std::size_t first = 0;
    std::size_t freeCount = 0;
    std::int32_t live = 0;
    std::int32_t revision = 0;

    static Handle HandleOf(std::uint32_t place, const Slot& slot) {
        return static_cast<Handle>(slot.generation << indexBits | place);
    }
    const Slot* Find(Handle handle) const {
        const auto bits = static_cast<std::uint32_t>(handle);
        const std::uint32_t place = bits & indexMask;
        if (handle <= 0 || place >= slots.size()) return nullptr;
        const Slot& slot = slots[place];
        return slot.live && slot.generation == bits >> indexBits ? &slot : nullptr;
    }
    /// An object that may be changed: not a stock object.
    Slot* FindOwn(Handle handle) {
        const bool stock = (static_cast<std::uint32_t>(handle) & indexMask) < stockSlots;
        return stock ? nullptr
                     : const_cast<Slot*>(Find(handle)); // NOLINT(cppcoreguidelines-pro-type-const-cast)
    }
    void PutFree(std::uint32_t place) {
        ring[(first + freeCount) % ring.size()] = place;
        ++freeCount;
    }
    /// Doubles the table, within bounds, and keeps the order of the free places.
    void Grow() {
        const std::size_t wanted =
            std::min<std::size_t>(slots.size() + std::max(slots.size(), 2 * fewestFree), mostSlots);
        std::vector<std::uint32_t> grown(wanted);
        for (std::size_t i = 0; i < freeCount; ++i) grown[i] = ring[(first + i) % ring.size()];
        ring = std::move(grown);
        first = 0;
        const auto from = static_cast<std::uint32_t>(slots.size());
        slots.resize(wanted);
        for (std::uint32_t place = from; place < wanted; ++place) PutFree(place);
    }
    void SetStock(std::int32_t index, const GdiObject& object) {
        Slot& slot = slots[static_cast<std::size_t>(index)];
        slot.object = object;
        slot.live = true;
    }
    void SetStockFonts(const Theme& theme) {
        const GdiFont font = FontOf(DescriptionOf(theme.fontName, PixelsOf(theme)));
        SetStock(host::SYSTEM_FONT, font);
        SetStock(host::DEFAULT_GUI_FONT, font);
    }
};

GdiObjects::GdiObjects(const Theme& theme) : impl_(std::make_unique<Impl>()) {
    impl_->SetStock(host::WHITE_BRUSH, Brush{false, 0xFFFFFF});
    impl_->SetStock(host::LTGRAY_BRUSH, Brush{false, 0xC0C0C0});
    impl_->SetStock(host::GRAY_BRUSH, Brush{false, 0x808080});
    impl_->SetStock(host::DKGRAY_BRUSH, Brush{false, 0x404040});
    impl_->SetStock(host::BLACK_BRUSH, Brush{false, 0x000000});
    impl_->SetStock(host::HOLLOW_BRUSH, Brush{true, 0});
    impl_->SetStock(host::WHITE_PEN, Pen{host::PS_SOLID, 1, 0xFFFFFF});
    impl_->SetStock(host::BLACK_PEN, Pen{host::PS_SOLID, 1, 0x000000});
    impl_->SetStock(host::NULL_PEN, Pen{host::PS_NULL, 1, 0});
    impl_->SetStockFonts(theme);
}

GdiObjects::~GdiObjects() = default;

Handle GdiObjects::Add(const GdiObject& object) {
    Impl& table = *impl_;
    if (table.freeCount <= fewestFree && table.slots.size() < mostSlots) table.Grow();
    if (table.freeCount == 0) return 0;
    const std::uint32_t place = table.ring[table.first];
    Slot& slot = table.slots[place];
    slot.object = object;
    slot.live = true;
    slot.uses = 0;
    table.first = (table.first + 1) % table.ring.size();
    --table.freeCount;
    ++table.live;
    return Impl::HandleOf(place, slot);
}

Handle GdiObjects::Stock(std::int32_t index) {
    if (index < 0 || index >= static_cast<std::int32_t>(stockSlots)) return 0;
    const auto place = static_cast<std::uint32_t>(index);
    const Slot& slot = impl_->slots[place];
    return slot.live ? Impl::HandleOf(place, slot) : 0;
}

const GdiObject* GdiObjects::Find(Handle handle) const {
    const Slot* slot = impl_->Find(handle);
    return slot ? &slot->object : nullptr;
}

bool GdiObjects::Delete(Handle handle) {
    Slot* slot = impl_->FindOwn(handle);
    if (!slot || slot->uses > 0) return false;
    slot->live = false;
    slot->generation = slot->generation % mostGenerations + 1;
    impl_->PutFree(static_cast<std::uint32_t>(handle) & indexMask);
    --impl_->live;
    return true;
}

void GdiObjects::AddUse(Handle handle, std::int32_t change) {
    if (Slot* slot = impl_->FindOwn(handle)) slot->uses += change;
}

std::int32_t GdiObjects::LiveObjects() const {
    return impl_->live;
}

std::int32_t GdiObjects::Describe(Handle font, std::int32_t bytes, void* buffer) const {
    const GdiObject* object = Find(font);
    const GdiFont* found = object ? std::get_if<GdiFont>(object) : nullptr;
    if (!found) return 0;
    constexpr auto whole = static_cast<std::int32_t>(sizeof(host::LogFont));
    if (!buffer) return whole;
    const std::int32_t count = std::clamp(bytes, 0, whole);
    std::memcpy(buffer, &found->description, static_cast<std::size_t>(count));
    return count;
}

void GdiObjects::ApplyTheme(const Theme& theme) {
    impl_->SetStockFonts(theme);
    ++impl_->revision;
}

std::int32_t GdiObjects::Revision() const {
    return impl_->revision;
}

} // namespace tvok::soft
