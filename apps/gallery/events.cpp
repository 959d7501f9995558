#include "apps/gallery/events.h"

#include <array>
#include <tuple>
#include <type_traits>
#include <utility>

#include "apps/gallery/CheckBox.h"
#include "tvok/host/desktop/TextBox.h"

namespace gallery {

namespace {

using Style = ArgumentStyle;

template<class Events, class... Args>
struct Entry {
    using Member = tvok::Event<Args...> Events::*;
    EventInfo info;
    Member member;
    std::array<Argument, sizeof...(Args)> arguments;
};

/// An event with a name or an `Argument` for each of its arguments.
template<class Events, class... Args, class... Names>
constexpr Entry<Events, Args...> Row(EventInfo info, tvok::Event<Args...> Events::*member, Names... names) {
    static_assert(sizeof...(Names) == sizeof...(Args), "each argument has its name");
    return {info, member, {Argument{names}...}};
}

/// Every event is as large as every other one, so one that a table does not have shows in the size.
template<class Events, class... Rows>
constexpr bool HasAll(const std::tuple<Rows...>&) {
    return sizeof(Events) == sizeof...(Rows) * sizeof(tvok::Event<>);
}

constexpr Argument KeyCode{"KeyCode", Style::Key}, KeyAscii{"KeyAscii", Style::Character},
    Shift{"Shift", Style::Shift}, Button{"Button", Style::Button};

template<class Events>
constexpr auto KeyRow(const char* name, tvok::Event<std::int16_t&, std::int16_t&> Events::*member) {
    return Row({name}, member, KeyCode, Shift);
}
/// Controls tell the point in twips and by reference, forms in pixels.
template<class Events, class... Args>
constexpr auto MouseRow(EventInfo info, tvok::Event<Args...> Events::*member) {
    return Row(info, member, Button, Shift, "x", "y");
}
template<class Events>
constexpr auto DrawRow(tvok::ExDrawEvent Events::*member) {
    constexpr Argument rest{"", Style::Edge};
    return Row({"ExDraw", EventKind::Painting}, member, Argument{"Msg", Style::HostPart}, "Index", "key",
               "hDC", "cy", Argument{"rect", Style::Edge}, rest, rest, rest);
}

constexpr auto TableOf(const tvok::qRoster*) {
    using E = tvok::qRoster::Events;
    constexpr auto table = std::tuple(
        Row({"Change"}, &E::Change, "Index", "x"), Row({"Click"}, &E::Click, "Index", "x"),
        Row({"DblClick"}, &E::DblClick, "Index", "x"), MouseRow({"MouseDown"}, &E::MouseDown),
        KeyRow("KeyDown", &E::KeyDown), MouseRow({"MouseMove", EventKind::MouseMove}, &E::MouseMove),
        MouseRow({"MouseUp"}, &E::MouseUp), KeyRow("KeyUp", &E::KeyUp),
        Row({"KeyPress"}, &E::KeyPress, KeyAscii),
        Row({"EnumSelectedItemCallBack"}, &E::EnumSelectedItemCallBack, "ActionID", "Index"),
        DrawRow(&E::ExDraw));
    static_assert(HasAll<E>(table), "qRoster has an event without a row here");
    return table;
}

constexpr auto TableOf(const tvok::qRosterex*) {
    using E = tvok::qRosterex::Events;
    constexpr auto table = std::tuple(
        Row({"Setup"}, &E::Setup, "wParam"), Row({"KeySeek"}, &E::KeySeek, KeyCode, "ListIndex", "NewIndex"),
        Row({"Change"}, &E::Change, "Index"), Row({"Click"}, &E::Click, "Index"),
        Row({"DblClick"}, &E::DblClick, "Index"), MouseRow({"MouseDown"}, &E::MouseDown),
        MouseRow({"MouseMove", EventKind::MouseMove}, &E::MouseMove), MouseRow({"MouseUp"}, &E::MouseUp),
        KeyRow("KeyDown", &E::KeyDown), KeyRow("KeyUp", &E::KeyUp), Row({"KeyPress"}, &E::KeyPress, KeyAscii),
        Row({"EnumDATA", EventKind::Painting}, &E::EnumDATA, "Index", Argument{"x", Style::Given}),
        DrawRow(&E::ExDraw));
    static_assert(HasAll<E>(table), "qRosterex has an event without a row here");
    return table;
}

constexpr auto TableOf(const tvok::pcols*) {
    using E = tvok::pcols::Events;
    constexpr auto table =
        std::tuple(Row({"Click"}, &E::Click, "xIndex"),
                   Row({"MouseDown"}, &E::MouseDown, "xIndex", Argument{"lButton", Style::Button}));
    static_assert(HasAll<E>(table), "pcols has an event without a row here");
    return table;
}

constexpr auto TableOf(const tvok::iLabel*) {
    using E = tvok::iLabel::Events;
    constexpr auto table = std::tuple(Row({"Click"}, &E::Click), KeyRow("KeyDown", &E::KeyDown),
                                      MouseRow({"MouseDown"}, &E::MouseDown),
                                      MouseRow({"MouseUp"}, &E::MouseUp), KeyRow("KeyUp", &E::KeyUp));
    static_assert(HasAll<E>(table), "iLabel has an event without a row here");
    return table;
}

constexpr auto TableOf(const tvok::xPopup*) {
    using E = tvok::xPopup::Events;
    constexpr auto table = std::tuple(
        Row({"Change"}, &E::Change, "Index", "x"), Row({"Click"}, &E::Click, "Index", "x", "Canceled"),
        Row({"EnumDATA", EventKind::Painting}, &E::EnumDATA, "Index", Argument{"x", Style::Given}),
        DrawRow(&E::ExDraw));
    static_assert(HasAll<E>(table), "xPopup has an event without a row here");
    return table;
}

constexpr auto TableOf(const tvok::xbutton*) {
    using E = tvok::xbutton::Events;
    constexpr auto table = std::tuple(Row({"MouseDown"}, &E::MouseDown, "key"),
                                      Row({"Click"}, &E::Click, "key"), KeyRow("KeyDown", &E::KeyDown));
    static_assert(HasAll<E>(table), "xbutton has an event without a row here");
    return table;
}

constexpr auto TableOf(const tvok::ucColorSelector*) {
    static_assert(std::is_empty_v<tvok::ucColorSelector::Events>,
                  "ucColorSelector has an event without a row here");
    return std::tuple();
}

constexpr auto TableOf(const tvok::gList*) {
    using E = tvok::gList::Events;
    constexpr auto table = std::tuple(
        Row({"EnumItems"}, &E::EnumItems, "x", "ActionID"), Row({"Change"}, &E::Change, "Index", "x"),
        Row({"Click"}, &E::Click, "Index", "x"), Row({"DblClick"}, &E::DblClick, "Index", "x"),
        Row({"ButtonClick"}, &E::ButtonClick, "key", "x"),
        Row({"ButtonMouseDown"}, &E::ButtonMouseDown, "key", "x"),
        Row({"ButtonMouseDownEx"}, &E::ButtonMouseDownEx, "key", "x"), DrawRow(&E::ExDraw),
        Row({"ExItemShowCov"}, &E::ExItemShowCov, "x"),
        Row({"ExEditorDataRestore"}, &E::ExEditorDataRestore, "key"),
        Row({"ExEditorIni"}, &E::ExEditorIni, "x"),
        Row({"ExEditorSetPosition", EventKind::Painting}, &E::ExEditorSetPosition, "key", "x", "y", "w", "h"),
        Row({"ExEditorHide"}, &E::ExEditorHide, "key"),
        Row({"ExEditorShow", EventKind::Painting}, &E::ExEditorShow, "key"),
        Row({"EnumPopStr"}, &E::EnumPopStr, "ID", "text"));
    static_assert(HasAll<E>(table), "gList has an event without a row here");
    return table;
}

constexpr auto TableOf(const tvok::TextBox*) {
    using E = tvok::TextBox::Events;
    constexpr auto table = std::tuple(Row({"Change"}, &E::Change), KeyRow("KeyDown", &E::KeyDown),
                                      Row({"Enter"}, &E::Enter), Row({"LostFocus"}, &E::LostFocus));
    static_assert(HasAll<E>(table), "TextBox has an event without a row here");
    return table;
}

constexpr auto TableOf(const CheckBox*) {
    using E = CheckBox::Events;
    constexpr auto table = std::tuple(Row({"Change"}, &E::Change), KeyRow("KeyDown", &E::KeyDown));
    static_assert(HasAll<E>(table), "CheckBox has an event without a row here");
    return table;
}

constexpr auto TableOf(const tvok::Form*) {
    using E = tvok::Form::Events;
    constexpr auto table = std::tuple(
        Row({"Resize"}, &E::Resize), Row({"Paint", EventKind::Painting}, &E::Paint),
        Row({"Closing"}, &E::Closing, "keep"), Row({"Closed"}, &E::Closed), KeyRow("KeyDown", &E::KeyDown),
        MouseRow({"MouseDown"}, &E::MouseDown), MouseRow({"MouseMove", EventKind::MouseMove}, &E::MouseMove),
        MouseRow({"MouseUp"}, &E::MouseUp), MouseRow({"DblClick"}, &E::DblClick));
    static_assert(HasAll<E>(table), "Form has an event without a row here");
    return table;
}

template<class... Controls>
struct Types {};
using Known = Types<tvok::qRoster, tvok::qRosterex, tvok::pcols, tvok::iLabel, tvok::xPopup, tvok::xbutton,
                    tvok::ucColorSelector, tvok::gList, tvok::TextBox, CheckBox>;

/// Calls `use` with the control as what it is, if that is one of these types.
template<class Control, class Use, class... Controls>
void UseTyped(Control& control, const Use& use, Types<Controls...>) {
    const auto tryAs = [&]<class T>(const T*) {
        using Typed = std::conditional_t<std::is_const_v<Control>, const T, T>;
        auto* typed = dynamic_cast<Typed*>(&control);
        if (typed != nullptr) use(*typed, TableOf(typed));
        return typed != nullptr;
    };
    static_cast<void>((tryAs(static_cast<const Controls*>(nullptr)) || ...));
}

/// Whether a handler can change an argument of this type for whoever raised the event.
template<class T>
constexpr bool IsByReference = std::is_lvalue_reference_v<T> && !std::is_const_v<std::remove_reference_t<T>>;

struct Seen {
    std::optional<std::int64_t> number;
    std::vector<ValueParts> parts{};
};

template<class Events, class... Args>
tvok::EventWatch WatchOne(Events& events, const Entry<Events, Args...>& entry,
                          const std::shared_ptr<EventListener>& listener) {
    const auto look = [listener, entry](const std::remove_reference_t<Args>&... args) {
        Seen seen{listener->Begun(entry.info)};
        if (!seen.number) return seen;
        [[maybe_unused]] auto argument = entry.arguments.begin();
        (seen.parts.push_back(PartsOf(args, (argument++)->style)), ...);
        return seen;
    };
    const auto tell = [listener, entry](const Seen& seen, const std::remove_reference_t<Args>&... args) {
        if (!seen.number) return;
        std::vector<ValueParts> after = seen.parts;
        [[maybe_unused]] std::size_t place = 0;
        [[maybe_unused]] const auto lookAgain = [&](bool changeable, const auto& value) {
            if (changeable) after[place] = PartsOf(value, entry.arguments[place].style);
            ++place;
        };
        (lookAgain(IsByReference<Args>, args), ...);
        listener->Ended(*seen.number, ArgumentsText(entry.arguments, seen.parts, after));
    };
    return (events.*entry.member).Watch(look, tell);
}

template<class Events, class... Rows>
EventWatches WatchRows(Events& events, const std::tuple<Rows...>& table,
                       const std::shared_ptr<EventListener>& listener) {
    EventWatches watches;
    std::apply([&](const Rows&... rows) { (watches.push_back(WatchOne(events, rows, listener)), ...); },
               table);
    return watches;
}

} // namespace

EventWatches WatchEvents(tvok::host::Control& control, const std::shared_ptr<EventListener>& listener) {
    EventWatches watches;
    UseTyped(
        control, [&](auto& typed, const auto& table) { watches = WatchRows(typed.events, table, listener); },
        Known());
    return watches;
}

EventWatches WatchEvents(tvok::Form& form, const std::shared_ptr<EventListener>& listener) {
    return WatchRows(form.events, TableOf(&form), listener);
}

std::vector<EventInfo> EventsOf(const tvok::host::Control& control) {
    std::vector<EventInfo> events;
    const auto add = [&](const auto&, const auto& table) {
        std::apply([&](const auto&... rows) { (events.push_back(rows.info), ...); }, table);
    };
    UseTyped(control, add, Known());
    return events;
}

} // namespace gallery
