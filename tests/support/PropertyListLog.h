/// Writes every event of a `gList` as one line, `Name(arguments)`. A record stands there by its `hItem.key`,
/// the device context of `ExDraw` and its height of 0 are left out.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "tvok/controls/propertylist/gList.h"

namespace tvok::test {

/// `popList` gives what `EnumPopStr` answers for a list; null leaves the text alone.
inline void NoteEvents(gList::Events& events, const std::function<void(const std::string&)>& note,
                       const std::function<const std::string*(std::int32_t)>& popList) {
    const auto row = [note](const char* name) {
        return [note, name](std::int32_t index, elistdata& x) {
            note(std::string(name) + "(" + std::to_string(index) + ", " + x.hItem.key + ")");
        };
    };
    const auto button = [note](const char* name) {
        return [note, name](const std::string& key, elistdata& x) {
            note(std::string(name) + "(" + key + ", " + x.hItem.key + ")");
        };
    };
    const auto record = [note](const char* name) {
        return [note, name](elistdata& x) { note(std::string(name) + "(" + x.hItem.key + ")"); };
    };
    const auto key = [note](const char* name) {
        return [note, name](const std::string& of) { note(std::string(name) + "(" + of + ")"); };
    };
    events.EnumItems = [note](elistdata& x, std::int32_t action) {
        note("EnumItems(" + x.hItem.key + ", " + std::to_string(action) + ")");
    };
    events.Change = row("Change");
    events.Click = row("Click");
    events.DblClick = row("DblClick");
    events.ButtonClick = button("ButtonClick");
    events.ButtonMouseDown = button("ButtonMouseDown");
    events.ButtonMouseDownEx = button("ButtonMouseDownEx");
    events.ExDraw = [note](std::int32_t& message, std::int32_t index, const std::string& of, std::int32_t,
                           std::int32_t, std::int32_t x, std::int32_t y, std::int32_t w, std::int32_t h) {
        note("ExDraw(" + std::to_string(message) + ", " + std::to_string(index) + ", " + of + ", " +
             std::to_string(x) + "," + std::to_string(y) + "," + std::to_string(w) + "," + std::to_string(h) +
             ")");
    };
    events.ExItemShowCov = record("ExItemShowCov");
    events.ExEditorDataRestore = key("ExEditorDataRestore");
    events.ExEditorIni = record("ExEditorIni");
    events.ExEditorSetPosition = [note](const std::string& of, std::int32_t& x, std::int32_t& y,
                                        std::int32_t& w, std::int32_t& h) {
        note("ExEditorSetPosition(" + of + ", " + std::to_string(x) + "," + std::to_string(y) + "," +
             std::to_string(w) + "," + std::to_string(h) + ")");
    };
    events.ExEditorHide = key("ExEditorHide");
    events.ExEditorShow = key("ExEditorShow");
    events.EnumPopStr = [note, popList](std::int32_t id, std::string& text) {
        note("EnumPopStr(" + std::to_string(id) + ", " + text + ")");
        if (const std::string* supplied = popList(id)) text = *supplied;
    };
}

} // namespace tvok::test
