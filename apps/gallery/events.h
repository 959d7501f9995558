/// The events of the library's controls as a table: their names, their arguments and what kind they are.
/// What a tool needs to show them as they come.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "apps/gallery/eventwords.h"
#include "tvok/tvok.h"

namespace gallery {

enum class EventKind {
    Action,   ///< Of the user, or of the program.
    Painting, ///< Raised for each cell, row or repaint.
    MouseMove ///< Raised for each move of the mouse.
};

struct EventInfo {
    const char* name;
    EventKind kind = EventKind::Action;
};

/// Hears the events that `WatchEvents` watches.
class EventListener {
public:
    virtual ~EventListener() = default;
    /// An event comes, and its handler runs next. What this gives comes back with the event's end; nothing:
    /// the event is left out, which costs no look at its arguments.
    virtual std::optional<std::int64_t> Begun(const EventInfo& event) = 0;
    /// The handler is through. The arguments in words, as "Index=3, x={text="a" → "b"}".
    virtual void Ended(std::int64_t number, const std::string& arguments) = 0;
};

using EventWatches = std::vector<tvok::EventWatch>;

/// Watches every event of a control, for as long as the result is kept. Nothing for a type that has no table.
EventWatches WatchEvents(tvok::host::Control& control, const std::shared_ptr<EventListener>& listener);
EventWatches WatchEvents(tvok::Form& form, const std::shared_ptr<EventListener>& listener);

/// The events of a control's type, in the order of its header.
std::vector<EventInfo> EventsOf(const tvok::host::Control& control);

} // namespace gallery
