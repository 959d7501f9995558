/// The public records and enumerations: what every list-like control exchanges with its host.
///
/// Plain value records. A record that comes with an event is passed by reference: a handler edits it in
/// place. All lengths of list geometry are pixels, item indexes are 1-based display positions and 0 means no
/// item.
#pragma once

#include <cstdint>
#include <string>

#include "tvok/records/Variant.h"

/// The library: controls, what they exchange with a host, and the software desktop.
namespace tvok {

/// A colour: 0x00BBGGRR, or with the high bit set a system colour whose index is the low byte.
using OLE_COLOR = std::int32_t;

/// The system colour with this index as a colour value.
constexpr OLE_COLOR SystemColor(std::int32_t index) {
    return static_cast<OLE_COLOR>(0x80000000u | static_cast<std::uint32_t>(index));
}

inline constexpr OLE_COLOR cWindowBackground = SystemColor(0x05);
inline constexpr OLE_COLOR cWindowFrame = SystemColor(0x06);
inline constexpr OLE_COLOR cWindowText = SystemColor(0x08);
inline constexpr OLE_COLOR cHighlight = SystemColor(0x0D);
inline constexpr OLE_COLOR cButtonFace = SystemColor(0x0F);
inline constexpr OLE_COLOR cButtonText = SystemColor(0x12);
inline constexpr OLE_COLOR c3DLight = SystemColor(0x16);

/// A pixel rectangle. `Right` and `bottom` lie just outside.
struct tvok_Rect {
    std::int32_t Left = 0;
    std::int32_t Top = 0;
    std::int32_t Right = 0;
    std::int32_t bottom = 0;

    friend bool operator==(const tvok_Rect&, const tvok_Rect&) = default;
};

/// The four bytes of an `IconPos` value, least significant first. In an item a byte of 255 is inherited from
/// the list; in the list 255 for `Left` or `Top` means centred.
struct tvok_IconPos {
    std::uint8_t Height = 0;
    std::uint8_t width = 0;
    std::uint8_t Top = 0;
    std::uint8_t Left = 0;

    friend bool operator==(const tvok_IconPos&, const tvok_IconPos&) = default;
};

/// The bytes of a packed `IconPos`, and back.
constexpr tvok_IconPos UnpackIconPos(std::int32_t packed) {
    const auto bits = static_cast<std::uint32_t>(packed);
    return {static_cast<std::uint8_t>(bits), static_cast<std::uint8_t>(bits >> 8),
            static_cast<std::uint8_t>(bits >> 16), static_cast<std::uint8_t>(bits >> 24)};
}
constexpr std::int32_t PackIconPos(tvok_IconPos pos) {
    return static_cast<std::int32_t>(std::uint32_t{pos.Height} | std::uint32_t{pos.width} << 8 |
                                     std::uint32_t{pos.Top} << 16 | std::uint32_t{pos.Left} << 24);
}

/// The list's default: a 16 by 16 icon at left 1, top 1.
inline constexpr std::int32_t cDefaultIconPos = 0x01011010;

/// Bits of `qrosterdata::vflag`.
namespace vflag {
inline constexpr std::int32_t FocusAlways = 0x00000001; ///< Focus rectangle also without the focus.
inline constexpr std::int32_t Editor = 0x00000002; ///< Not used by the painter; `gList` gives it a meaning.
inline constexpr std::int32_t IconBorder = 0x00000004;   ///< The icon box has a 1-pixel border.
inline constexpr std::int32_t IconBox = 0x00000008;      ///< The item has an icon box.
inline constexpr std::int32_t TextAtEdge = 0x00000010;   ///< Text starts 1 pixel from the cell's left edge.
inline constexpr std::int32_t RightAligned = 0x00000020; ///< Clear: left aligned.
inline constexpr std::int32_t IconOnBackground = 0x00000040; ///< The icon box gets no fill of its own.
inline constexpr std::int32_t HostIcon = 0x00000080;         ///< `ExDraw` 128 replaces the image.
inline constexpr std::int32_t HostText = 0x00000100;         ///< `ExDraw` 256 replaces the text.
inline constexpr std::int32_t HostHead = 0x00000200;         ///< `ExDraw` 512 after the head band is filled.
inline constexpr std::int32_t Bold = 0x00100000; ///< This and the three below: styles of the text.
inline constexpr std::int32_t Underline = 0x00200000;
inline constexpr std::int32_t Italic = 0x00400000;
inline constexpr std::int32_t Strikethrough = 0x00800000;
inline constexpr std::int32_t Collapsed = 0x20000000;                         ///< A folded group of `gList`.
inline constexpr std::int32_t Selected = 0x40000000;                          ///< Owned by the control.
inline constexpr std::int32_t InUse = static_cast<std::int32_t>(0x80000000u); ///< Owned by the control.
} // namespace vflag

/// The item record. A default-made one is the documented default item, so `{.text = "a"}` is that with a
/// text. Every member has an initialiser, so that leaving one out draws no compiler warning.
struct qrosterdata {
    std::string text{};                          ///< Tab characters split it into tab columns.
    std::string key{};                           ///< Free, need not be unique; goes to `ExDraw`.
    std::int32_t IconID = -1;                    ///< 1-based image number; 0 or less draws none.
    OLE_COLOR IconBackColor = cWindowBackground; ///< Fill of the icon box.
    std::int32_t IconPos = -1;                   ///< Packed `tvok_IconPos`; bytes of 255 inherit.
    std::int32_t ItemData = 0;                   ///< The host's.
    std::int32_t ItemDataEx = 0;                 ///< The host's; not kept by the item text form.
    OLE_COLOR bColor = cWindowBackground;        ///< Cell background.
    OLE_COLOR fcolor = cWindowText;              ///< Text colour.
    std::int32_t vflag = 0;                      ///< Bits of namespace `vflag`.

    friend bool operator==(const qrosterdata&, const qrosterdata&) = default;
};

/// Gives `record` the default item, whatever it held.
void GetDefaultItem(qrosterdata& record);

/// The record with every number 0 and every text empty, which is not the default item.
qrosterdata ZeroItem();

/// A column header of `qRosterex` and `pcols`. A default-made one has all fields 0 and empty.
struct qrosterheader {
    std::string text{};         ///< Caption.
    std::int32_t hWidth = 0;    ///< Width in pixels.
    std::string key{};          ///< The host's.
    OLE_COLOR fcolor = 0;       ///< Caption colour.
    std::int16_t Alignment = 0; ///< 0 left, 1 right, any other centred.
    std::int32_t vflag = 0;     ///< The host's.
    std::int32_t lFont = 0;     ///< Font handle for the column's cells, 0 for the control's font.

    friend bool operator==(const qrosterheader&, const qrosterheader&) = default;
};

/// The row record of `gList`.
struct elistdata {
    std::string pKey{};       ///< Key of the parent row.
    qrosterdata hItem{};      ///< Caption cell.
    qrosterdata item{};       ///< Value cell.
    Variant nData{};          ///< The value.
    std::string xbuttons{};   ///< Description of the in-cell buttons.
    bool bDelete = false;     ///< Owned by the control.
    bool bVisible = false;    ///< In a flat list, and for a group, whether there is a row.
    bool bParentItem = false; ///< A group.
    std::string HelpStr{};    ///< The host's.

    friend bool operator==(const elistdata&, const elistdata&) = default;
};

enum Const_SortedMode : std::int32_t {
    bNoneSorted = 0,
    bAscendingSorted = 1,
    bDescendingSorted = 2,
    bItemDataAscendingSorted = 3,  ///< In `qRoster` as 2: descending by text.
    bItemDataDescendingSorted = 4, ///< In `qRoster` as 2: descending by text.
};

/// The palette layouts of `xPopup`.
enum PAL_SIZEXY : std::int32_t {
    PAL8x2 = 0,
    PAL8x8 = 1,
    PAL16x8 = 2,
    PAL24x8 = 3,
    PAL24x10 = 4,
    PAL_SYSCOLOR = 5
};

/// What `ExDraw` asks a host to draw: the value of its `Msg`.
enum ExDrawMessage : std::int32_t { bExDrawIcon = 128, bExDrawText = 256, bExDrawHead = 512 };

} // namespace tvok
