#include "tvok/controls/buttonstrip/ButtonRow.h"

#include <vector>

#include "tvok/host/Platform.h"
#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

namespace tvok {

namespace {

constexpr std::size_t cFields = 3;

std::int32_t Number(std::string_view field) {
    return RoundToInt32(ScanNumber(field));
}

/// What does not fit its place ends alone: the place keeps what it had, and the rest is read.
void Read(StripButton& button, std::string_view face, std::string_view key, std::string_view kind) {
    quietly([&] { button.kind = ToInt16(Number(kind)); });
    button.key = Trim(key);
    if (button.kind == buttonkind::Image || button.kind == buttonkind::Symbol) {
        button.text.clear();
        quietly([&] { button.value = Number(face); });
    } else {
        button.text = Trim(face);
        button.value = 0;
    }
}

} // namespace

StripButton& ButtonRow::Append() {
    if (count_ < INT16_MAX) ++count_;
    if (buttons_.UpperBound() < count_) buttons_.Resize(count_);
    return buttons_[count_];
}

std::int32_t ButtonRow::Set(std::string_view settings, std::int32_t size) {
    const std::vector<std::string_view> fields = Split(settings, '|');
    count_ = 0;
    std::int32_t x = 0;
    for (std::size_t i = 0; i + cFields <= fields.size(); i += cFields) {
        StripButton& button = Append();
        Read(button, fields[i], fields[i + 1], fields[i + 2]);
        quietly([&] {
            const std::int32_t right = ToInt32(std::int64_t{x} + size);
            button.rect = {x, 0, right, size};
            x = right;
        });
        // Entry 0, which is no button, has its state cleared here, and the button keeps its own: one that is
        // held while the text is set stays held until the mouse lets go. Hosts that set the text from an
        // event rely on it.
        buttons_[0].state = 0;
    }
    return x;
}

void ButtonRow::Clear() {
    buttons_.Make(0);
    count_ = 0;
}

std::int32_t ButtonRow::ButtonAt(std::int32_t x, std::int32_t y) const {
    for (std::int32_t i = 1; i <= count_; ++i)
        if (host::Platform::PtInRect(buttons_[i].rect, {x, y})) return i;
    return 0;
}

void ButtonRow::Release() {
    for (std::int32_t i = 0; i <= buttons_.UpperBound(); ++i) buttons_[i].state = 0;
}

} // namespace tvok
