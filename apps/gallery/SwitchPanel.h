/// Switches on a page: a flat list with a check box, a name and the present value in words in each row.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "apps/gallery/icons.h"
#include "tvok/tvok.h"

namespace gallery {

struct PanelSwitch {
    std::string name;
    std::function<Icon()> icon;         ///< A check box, or what else tells the value.
    std::function<std::string()> words; ///< The value.
    std::function<void()> flip;
};

/// A click on a row flips its switch, and so do Space and Enter on the current row.
class SwitchPanel {
public:
    static constexpr std::int32_t RowHeight = 22;

    static constexpr std::int32_t NameWidth = 112;

    /// The list belongs to the form. `icons` is an image list of `DrawIcons`. A name is `nameWidth` pixels
    /// wide.
    SwitchPanel(tvok::qRoster& list, std::int32_t icons, std::int32_t columns,
                std::int32_t nameWidth = NameWidth);

    void Add(PanelSwitch added);
    /// Shows what the switches say now; only rows that changed are painted.
    void Update();
    void Flip(std::size_t place); ///< From 0.
    /// Spreads the columns over the width of the list's client area.
    void Spread(std::int32_t width);

    tvok::qRoster& list() { return list_; }
    static std::int32_t HeightOf(std::int32_t rows) { return rows * RowHeight + 2; }

private:
    tvok::qrosterdata ItemOf(const PanelSwitch& shown) const;

    tvok::qRoster& list_;
    std::int32_t nameWidth_;
    std::vector<PanelSwitch> switches_;
    std::int32_t pressed_ = 0; // the row that the mouse went down on, while it is down
};

/// The icon of a switch that is on or off.
inline Icon CheckIcon(bool on) {
    return on ? Icon::CheckedBox : Icon::EmptyBox;
}

} // namespace gallery
