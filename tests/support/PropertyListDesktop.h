/// A `gList` on a test desktop, driven by real input, with its events in one log: one line for each event,
/// as `Name(arguments)`. A record stands there by its `hItem.key`.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/NotedServices.h"
#include "tests/support/PropertyListLog.h"
#include "tests/support/TestDesktop.h"
#include "tvok/controls/propertylist/gList.h"
#include "tvok/host/desktop/windows/FormWindow.h"
#include "tvok/host/desktop/windows/World.h"
#include "tvok/records/numeric.h"

namespace tvok::test {

/// How the list is to start. With these ten rows of 18 pixels and lines of 1 fit the page, and part of an
/// eleventh; there is no frame, so that client and window agree.
struct PropertyListSetup {
    std::int32_t ListMode = 0;
    bool Sorted = true;
    bool userMode = true;
    Placement place{10, 10, 300, 200};
};

/// Notes what is done to hooks, knows the one that was made last, and answers for the colour dialog.
class PropertyListServices : public NotedServices, private host::ColorPicker {
public:
    std::int32_t color = -1; ///< What the user picks; -1: nothing.
    std::int32_t dialogs = 0;
    host::MessageHook* hook = nullptr;
    std::int32_t hookNumber = 0;

    std::unique_ptr<host::MessageHook> CreateMessageHook() override {
        auto made = NotedServices::CreateMessageHook();
        hook = made.get();
        hookNumber = static_cast<std::int32_t>(ScanNumber(book().log.back().substr(sizeof "message hook")));
        return made;
    }
    host::ColorPicker& ColorPicker() override { return *this; }

private:
    std::int32_t PickColor(host::Handle) override {
        ++dialogs;
        return color;
    }
};

class PropertyListDesktop {
public:
    explicit PropertyListDesktop(const PropertyListSetup& setup = {}) {
        desktop.form().UserMode(setup.userMode);
        list = &desktop.form().Add<gList>("list1", setup.place);
        hook = services.hook;
        hookName_ = std::to_string(services.hookNumber) + " ";
        NoteEvents();
        list->BorderStyle(0);
        list->FixedHeight(false);
        list->ListMode(setup.ListMode);
        list->Sorted(setup.Sorted);
        desktop.form().Place(*list, setup.place);
        Forget();
    }

    /// What is raised after the control has ended still needs the log and the popup lists.
    std::vector<std::string> log;
    std::map<std::int32_t, std::string> popLists; ///< What `EnumPopStr` answers; it leaves others alone.
    mutable TestDesktop desktop;
    PropertyListServices services;
    gList* list = nullptr;
    host::MessageHook* hook = nullptr; ///< The list's own; null at design time.

    static constexpr std::int32_t cPitch = 19;    ///< Of rows, with the line between them.
    static constexpr std::int32_t cHeadBand = 15; ///< Its width.

    /// Notes every event in the log; a test may replace any handler.
    void NoteEvents() {
        test::NoteEvents(
            list->events, [this](const std::string& line) { log.push_back(line); },
            [this](std::int32_t id) { return popLists.contains(id) ? &popLists[id] : nullptr; });
    }
    std::vector<std::string> TakeLog() { return std::exchange(log, {}); }
    /// Of these events only, as "Change(" and the like.
    std::vector<std::string> TakeLog(const std::vector<std::string>& names);
    /// Processes what waits, and forgets the log and what was done to hooks.
    void Forget() {
        desktop.Pump();
        log.clear();
        services.TakeLog();
    }
    /// What was done to the list's own hook since the last look, as "ScrollMax 3".
    std::vector<std::string> TakeHookLog();
    /// "", "paint" or "refresh": what `action` showed on the screen.
    std::string Effect(const std::function<void()>& action);

    /// A value row and a group row, by their keys; the captions are the keys.
    static elistdata Value(const std::string& key, const std::string& parent = {},
                           const std::string& xbuttons = {});
    static elistdata Group(const std::string& key);
    static elistdata Edited(const std::string& key, const std::string& parent = {}); ///< With an editor.
    /// Adds them, rebuilds, and forgets what that raised.
    void Show(const std::vector<elistdata>& items) {
        for (const elistdata& item : items) list->AddItem(item);
        list->BuiltList();
        Forget();
    }

    elistdata Row(std::int32_t row) const { return Item(row); }
    elistdata Slot(std::int32_t slot) const { return Item(-slot); }
    elistdata ByKey(const std::string& key) const {
        elistdata found;
        list->GetItem(found, key);
        return found;
    }
    std::int32_t SlotOfRow(std::int32_t row) const {
        elistdata found;
        return -list->GetItem(found, {}, row);
    }
    std::vector<std::string> Keys() const;      ///< Of the rows.
    std::vector<std::int32_t> Slots() const;    ///< Of the rows.
    std::vector<std::int32_t> Selected() const; ///< Rows whose caption has the selection bit.

    /// The floating window of the popup; handle 0 while there is none on the screen.
    host::Handle Floating();
    /// The strip of buttons in pixels of the list's client area; all 0 while it does not show.
    tvok_Rect Strip();

    // A user's hands. Rows are counted on the page from 1; the head band is left of x = 15.
    static std::int32_t RowMiddle(std::int32_t row) { return (row - 1) * cPitch + 9; }
    void PressRow(std::int32_t row, std::int32_t x = 60) {
        desktop.clock().now += std::chrono::seconds(1); // so that two presses are no double click
        desktop.Press(*list, x, RowMiddle(row));
    }
    void ClickRow(std::int32_t row, std::int32_t x = 60) { desktop.Click(*list, x, RowMiddle(row)); }
    void PressHead(std::int32_t row) { PressRow(row, 7); }
    void DoubleClickRow(std::int32_t row, std::int32_t x = 60) {
        desktop.DoubleClick(*list, x, RowMiddle(row));
    }

private:
    elistdata Item(std::int32_t index) const {
        elistdata found;
        list->GetItem(found, {}, index);
        return found;
    }

    std::string hookName_;
};

inline std::vector<std::string> PropertyListDesktop::TakeLog(const std::vector<std::string>& names) {
    std::vector<std::string> lines = TakeLog();
    std::erase_if(lines, [&](const std::string& line) {
        return std::none_of(names.begin(), names.end(),
                            [&](const std::string& name) { return line.starts_with(name); });
    });
    return lines;
}

inline std::vector<std::string> PropertyListDesktop::TakeHookLog() {
    std::vector<std::string> lines;
    for (const std::string& line : services.TakeLog())
        if (line.starts_with(hookName_)) lines.push_back(line.substr(hookName_.size()));
    return lines;
}

inline std::string PropertyListDesktop::Effect(const std::function<void()>& action) {
    services.TakeLog();
    const auto trace = desktop.Trace(action);
    for (const std::string& line : TakeHookLog())
        if (line.starts_with("ScrollLarge ")) return "refresh";
    const auto draws = [](const std::string& line) { return line.starts_with("FillRect"); };
    return std::any_of(trace.begin(), trace.end(), draws) ? "paint" : "";
}

inline elistdata PropertyListDesktop::Value(const std::string& key, const std::string& parent,
                                            const std::string& xbuttons) {
    elistdata item;
    item.pKey = parent;
    item.hItem.text = item.hItem.key = key;
    item.xbuttons = xbuttons;
    item.bVisible = true;
    return item;
}

inline elistdata PropertyListDesktop::Group(const std::string& key) {
    elistdata item = Value(key);
    item.bParentItem = true;
    return item;
}

inline elistdata PropertyListDesktop::Edited(const std::string& key, const std::string& parent) {
    elistdata item = Value(key, parent);
    item.item.vflag = vflag::Editor;
    return item;
}

inline std::vector<std::string> PropertyListDesktop::Keys() const {
    std::vector<std::string> keys;
    for (std::int32_t row = 1; row <= list->Count(); ++row) keys.push_back(Row(row).hItem.key);
    return keys;
}

inline std::vector<std::int32_t> PropertyListDesktop::Slots() const {
    std::vector<std::int32_t> slots;
    for (std::int32_t row = 1; row <= list->Count(); ++row) slots.push_back(SlotOfRow(row));
    return slots;
}

inline std::vector<std::int32_t> PropertyListDesktop::Selected() const {
    std::vector<std::int32_t> rows;
    for (std::int32_t row = 1; row <= list->Count(); ++row)
        if ((Row(row).hItem.vflag & vflag::Selected) != 0) rows.push_back(row);
    return rows;
}

inline host::Handle PropertyListDesktop::Floating() {
    for (const soft::Window* window : desktop.desktop().world().windows.tops())
        if (window->top()->popup && window->IsVisible()) return window->handle();
    return 0;
}

/// The popup's own component stays hidden and out of the list, so what shows inside it is the strip.
inline tvok_Rect PropertyListDesktop::Strip() {
    const soft::Window* own = desktop.desktop().world().windows.Find(desktop.WindowOf(*list));
    for (const soft::Window* child : own->children())
        if (child->shown()) return child->rect();
    return {};
}

} // namespace tvok::test
