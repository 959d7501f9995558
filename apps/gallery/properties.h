/// The properties of the library's controls as a table: what a tool needs to show and to edit them.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tvok/tvok.h"

namespace gallery {

/// What a property's value is. In a `Variant` all but texts and names are whole numbers.
enum class ValueKind {
    Color,
    Number, ///< From `least` to `most`.
    Choice, ///< One of a list: its number.
    Name,   ///< A text, also from a list.
    Text,
    Truth, ///< 1 or 0.
};

/// The lists behind choices and names.
enum class ValueList : std::int32_t {
    None,
    Borders,
    Looks,
    Selections,
    Orders,
    Styles,
    Sides,
    Icons,
    Fonts,
    Modes,
    PopupOrders
};

struct ListedValue {
    std::int32_t value = 0;
    std::string text{};
};
const std::vector<ListedValue>& ValuesOf(ValueList list);

struct Property {
    std::string name{};
    ValueKind kind = ValueKind::Text;
    std::function<tvok::Variant()> get{};
    std::function<void(const tvok::Variant&)> set{}; ///< Shows at once. A control may keep its old value.
    std::int32_t least = 0;
    std::int32_t most = 0;
    bool steps = false; ///< A number that is rather changed by one than chosen.
    ValueList list = ValueList::None;
    bool readOnly = false; ///< Only shown; `set` is empty.
};

/// The properties of one control under a name of its own.
struct PropertyGroup {
    std::string key;
    std::string title;
    std::vector<Property> properties;
};

// The control has to outlive the functions in its group.
PropertyGroup PropertiesOf(tvok::qRoster& list);
PropertyGroup RowsOf(tvok::qRoster& list); ///< `yn`, for a list that may take another height by it.
PropertyGroup PropertiesOf(tvok::qRosterex& list);
PropertyGroup PropertiesOf(tvok::pcols& bar);
PropertyGroup PropertiesOf(tvok::xbutton& strip);
PropertyGroup PropertiesOf(tvok::iLabel& label);
PropertyGroup PropertiesOf(tvok::gList& list);
PropertyGroup StructureOf(tvok::gList& list); ///< For another than the one that shows it.
PropertyGroup PropertiesOf(tvok::xPopup& popup);
PropertyGroup PropertiesOf(tvok::ucColorSelector& selector);
PropertyGroup PropertiesOf(tvok::TextBox& box); ///< Its border and font are its component's.
PropertyGroup PropertiesOf(tvok::host::Widget& widget);

/// The system colours by name, in the user's language.
class ColorNames {
public:
    explicit ColorNames(tvok::xPopup& palette);                       ///< Fills the popup with them.
    std::optional<tvok::OLE_COLOR> Find(std::string_view name) const; ///< Case does not count.

private:
    std::vector<tvok::qrosterdata> colors_;
};

/// The value that a user's text stands for: "#RRGGBB", "&H00BBGGRR" or a system colour's name; a number in
/// its range; a choice by its text or a beginning that only one has. Nothing for any other text.
std::optional<tvok::Variant> ValueOfText(const Property& property, std::string_view text,
                                         const ColorNames& colors);

} // namespace gallery
