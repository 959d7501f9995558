// The prepared contents of `xPopup`: grids of colours, the system colours, and lists of numbers.
#include <array>
#include <cstdio>
#include <initializer_list>
#include <span>

#include "tvok/controls/popup/colormath.h"
#include "tvok/controls/popup/xPopup.h"
#include "tvok/host/Services.h"
#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

namespace tvok {

namespace {

using popup::HslToRgb;
using popup::Rgb;

constexpr OLE_COLOR cWhite = 0xFFFFFF;
constexpr OLE_COLOR cBlack = 0;
constexpr OLE_COLOR cGrey = Rgb(128, 128, 128);
constexpr OLE_COLOR cLightGrey = Rgb(192, 192, 192);
constexpr std::int32_t cWholeSaturation = 240;
constexpr std::int32_t cFirstColorValue = 100; // of the string resources
constexpr std::int32_t cFirstColorName = 1000;

constexpr std::int32_t cGridBox = 0x00001010;                            // 16 by 16 at 0, 0
constexpr std::int32_t cListBoxPlace = 0x02020000;                       // of the list: at 2, 2
constexpr std::int32_t cListBox = static_cast<std::int32_t>(0xFFFF0C0C); // of an item: 12 by 12

// The sixteen classic colours.
constexpr std::array<OLE_COLOR, 16> cClassic{
    Rgb(255, 255, 255), Rgb(255, 255, 0), Rgb(255, 0, 255), Rgb(255, 0, 0), //
    Rgb(0, 255, 255),   Rgb(0, 255, 0),   Rgb(0, 0, 255),   cGrey,          //
    cLightGrey,         Rgb(128, 128, 0), Rgb(128, 0, 128), Rgb(128, 0, 0), //
    Rgb(0, 128, 128),   Rgb(0, 128, 0),   Rgb(0, 0, 128),   cBlack};

// Hues and lightness go from 0 to 240. Each row of a grid has one lightness for all hues, and a grey at its
// end whose lightness is a list of its own.
constexpr std::array cHuesOf8{0, 20, 40, 80, 120, 160, 200};
constexpr std::array cHuesOf16{0, 12, 20, 30, 40, 60, 80, 110, 120, 130, 160, 180, 200, 210, 220};
constexpr std::array cHuesOf24{0,   12,  20,  30,  35,  40,  50,  60,  80,  100, 110, 120,
                               125, 130, 140, 150, 160, 180, 190, 200, 210, 220, 230};
constexpr std::array cLightnessOf8{225, 210, 180, 120, 105, 90, 60, 40};
constexpr std::array cGreysOf8{240, 210, 180, 150, 120, 90, 60, 0};
constexpr std::array cLightnessOf10{225, 210, 180, 150, 120, 105, 90, 75, 60, 40};
constexpr std::array cGreysOf10{240, 210, 180, 150, 120, 90, 80, 60, 30, 0};

struct Grid {
    std::int32_t cell; ///< Width and height of a cell in pixels.
    std::span<const int> hues;
    std::span<const int> lightness;
    std::span<const int> greys;
};

/// The grid of a palette; one without rows for what is no computed palette.
Grid GridOf(std::int32_t palette) {
    switch (palette) {
    case PAL8x8: return {14, cHuesOf8, cLightnessOf8, cGreysOf8};
    case PAL16x8: return {12, cHuesOf16, cLightnessOf8, cGreysOf8};
    case PAL24x8: return {11, cHuesOf24, cLightnessOf8, cGreysOf8};
    case PAL24x10: return {10, cHuesOf24, cLightnessOf10, cGreysOf10};
    default: return {};
    }
}

/// An item of the lists of system colours and of numbers.
qrosterdata ListItem(std::int32_t flags) {
    return {.IconPos = cListBox, .bColor = cWhite, .fcolor = cBlack, .vflag = flags};
}

} // namespace

void xPopup::SetColorPal(std::int32_t Index) {
    quietly([&] { Clear(); },
            [&] {
                if (Index == PAL_SYSCOLOR) return SetSystemColors();
                SetColorGrid(Index);
            });
}

void xPopup::SetColorGrid(std::int32_t palette) {
    HeadWidthEx(0);
    GridlineWidth(1);
    GridlineOnBorder(true);
    BackColor(cGrey);
    SelectedColor(cGrey);
    GridlineColor(cLightGrey); // IconBorderColor stays the host's

    qrosterdata item = ZeroItem();
    item.vflag = vflag::FocusAlways | vflag::IconBorder | vflag::IconBox;
    item.bColor = cGrey;
    item.IconPos = cGridBox;
    const auto add = [&](OLE_COLOR color) {
        item.IconBackColor = color;
        AddItem(item);
    };
    // `GridRows` does not follow `yn` here; the next opening sets it.
    const auto setGrid = [&](std::int32_t columns, std::int32_t rows, std::int32_t cell) {
        state_.xn = columns;
        state_.yn = rows;
        state_.ItemWidth = cell;
        state_.ItemHeight = cell;
        state_.CX_TEXT = cell; // the box fills the cell and leaves no room for a text
    };
    if (palette == PAL8x2) {
        setGrid(8, 2, 16);
        for (const OLE_COLOR color : cClassic) add(color);
        return;
    }
    const Grid grid = GridOf(palette);
    if (grid.hues.empty()) return;
    setGrid(static_cast<std::int32_t>(grid.hues.size()) + 1, static_cast<std::int32_t>(grid.lightness.size()),
            grid.cell);
    for (std::size_t row = 0; row < grid.lightness.size(); ++row) {
        for (const int hue : grid.hues) add(HslToRgb(hue, cWholeSaturation, grid.lightness[row]));
        add(HslToRgb(grid.hues.back(), 0, grid.greys[row]));
    }
}

void xPopup::SetSystemColors() {
    state_.HeadWidthEx = 0;
    state_.GridlineWidth = 0; // GridlineOnBorder and GridlineColor stay the host's
    state_.CX_TEXT = 19;
    state_.BackColor = cWhite;
    state_.IconBorderColor = cBlack;
    state_.xn = 1;
    state_.yn = 8;
    state_.SelectedColor = cHighlight;
    quietly([&] { state_.ItemHeight = ToInt32(std::int64_t{TextHeight()} + 4); });
    state_.IconPos = cListBoxPlace;
    quietly([&] { AddSystemColors(); }, [&] { CalTextWidth(); });
}

void xPopup::AddSystemColors() {
    qrosterdata item = ListItem(vflag::InUse | vflag::IconBorder | vflag::IconBox);
    const host::StringResources& strings = host::services().StringResources();
    for (std::int32_t n = 0;; ++n) {
        const std::string value = strings.LoadResString(cFirstColorValue + n);
        if (Trim(value).empty()) break;
        item.text = Trim(strings.LoadResString(cFirstColorName + n));
        quietly([&] { item.IconBackColor = RoundToInt32(ScanNumber(Trim(value))); });
        if (!item.text.empty()) AddItem(item);
    }
}

void xPopup::SetNS(std::int32_t i1, std::int32_t i2) {
    Clear();
    state_.HeadWidthEx = 0;
    state_.GridlineWidth = 0;
    state_.CX_TEXT = 2;
    state_.BackColor = cWhite;
    state_.IconBorderColor = cBlack;
    state_.xn = 1;
    state_.yn = 8;
    state_.SelectedColor = cHighlight;
    quietly([&] { state_.ItemHeight = ToInt32(std::int64_t{TextHeight()} + 4); });
    state_.IconPos = 0;
    quietly(
        [&] {
            qrosterdata item = ListItem(0);
            const std::int32_t last = ToInt16(i2);
            for (std::int32_t i = ToInt16(i1); i <= last; ++i) {
                item.text = std::to_string(i);
                item.ItemData = i;
                AddItem(item);
            }
        },
        [&] {
            // Once for all: the width is the widest of the texts, in whatever steps it is measured.
            if (state_.Count > 0) CalTextWidth();
        });
}

std::string xPopup::GetColorDesc(std::int32_t iColor) const {
    if (iColor < 0)
        return host::services().StringResources().LoadResString(cFirstColorName + (iColor & 0xFF));
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "&H%08X", static_cast<unsigned>(iColor));
    return text.data();
}

} // namespace tvok
