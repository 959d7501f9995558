#include "apps/gallery/inspected.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace gallery {

using tvok::Variant;

namespace {

constexpr std::array Titles{"Appearance", "Behaviour", "Content", "Font", "Place"};

bool IsContent(const Property& property) {
    constexpr std::array names{"Caption",   "Text",    "ListIndex",         "Count",      "TmpKey",
                               "ClearText", "TmpData", "ButtonSettingsStr", "SelectColor"};
    return std::ranges::find(names, std::string_view(property.name)) != names.end() ||
           property.name.starts_with("Column");
}

bool IsAppearance(const Property& property) {
    constexpr std::array starts{"Appearance", "BorderStyle", "Gridline", "Icon",      "Head", "Item",
                                "CX_TEXT",    "ColWidth",    "TabStop",  "TextLeft",  "xn",   "XnAuto",
                                "yn",         "ShowIcon",    "lFlag",    "FixedWidth"};
    return property.kind == ValueKind::Color ||
           std::ranges::any_of(starts, [&](const char* start) { return property.name.starts_with(start); });
}

std::string_view TitleOf(const Property& property) {
    if (property.name.starts_with("Font")) return "Font";
    if (IsContent(property)) return "Content";
    return IsAppearance(property) ? "Appearance" : "Behaviour";
}

/// Those of the first of these types that the control has.
template<class First, class... Others>
std::vector<Property> TableOf(tvok::host::Control& control) {
    if (auto* typed = dynamic_cast<First*>(&control)) return PropertiesOf(*typed).properties;
    if constexpr (sizeof...(Others) > 0) return TableOf<Others...>(control);
    return {};
}

std::vector<Property> AllOf(const Subject& subject) {
    tvok::host::Control& control = *subject.control;
    std::vector<Property> all =
        TableOf<tvok::qRoster, tvok::qRosterex, tvok::gList, tvok::pcols, tvok::xbutton, tvok::iLabel,
                tvok::xPopup, tvok::ucColorSelector, tvok::TextBox>(control);
    const auto add = [&](PropertyGroup group) {
        for (Property& property : group.properties) all.push_back(std::move(property));
    };
    if (auto* list = dynamic_cast<tvok::qRoster*>(&control)) add(RowsOf(*list));
    if (auto* list = dynamic_cast<tvok::gList*>(&control)) add(StructureOf(*list));
    if (dynamic_cast<tvok::TextBox*>(&control) != nullptr && subject.form != nullptr)
        add(PropertiesOf(subject.form->ComponentOf(control)));
    return all;
}

Property ReadOnly(const char* name, std::string value) {
    return {.name = name, .get = [value = std::move(value)] { return Variant(value); }, .readOnly = true};
}

Property PartOfPlace(const char* name, const Subject& subject, std::int32_t tvok::Placement::*part,
                     std::int32_t least) {
    constexpr std::int32_t Far = 16'000;
    tvok::Form& form = *subject.form;
    tvok::host::Control& control = *subject.control;
    return {.name = name,
            .kind = ValueKind::Number,
            .get = [&form, &control, part] { return Variant(form.PlacementOf(control).*part); },
            .set =
                [&form, &control, part](const Variant& value) {
                    tvok::Placement place = form.PlacementOf(control);
                    place.*part = value.AsInteger();
                    form.Place(control, place);
                },
            .least = least,
            .most = Far,
            .steps = true};
}

PropertyGroup PlaceOf(const Subject& subject) {
    using tvok::Placement;
    return {"Place",
            "Place",
            {ReadOnly("Name", subject.name), ReadOnly("Type", tvok::ControlTypeName(*subject.control)),
             PartOfPlace("Left", subject, &Placement::left, -16'000),
             PartOfPlace("Top", subject, &Placement::top, -16'000),
             PartOfPlace("Width", subject, &Placement::width, 0),
             PartOfPlace("Height", subject, &Placement::height, 0)}};
}

} // namespace

std::vector<PropertyGroup> GroupsOf(const Subject& subject) {
    if (subject.properties) return subject.properties();
    if (subject.control == nullptr) return {};
    std::vector<PropertyGroup> groups;
    groups.reserve(Titles.size());
    for (const char* title : Titles) groups.push_back({title, title, {}});
    for (Property& property : AllOf(subject)) {
        const auto group = std::ranges::find(groups, TitleOf(property), &PropertyGroup::title);
        group->properties.push_back(std::move(property));
    }
    if (subject.form != nullptr) groups.back() = PlaceOf(subject);
    std::erase_if(groups, [](const PropertyGroup& group) { return group.properties.empty(); });
    return groups;
}

} // namespace gallery
