/// The newest events of a program in a ring: what the event log shows.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "apps/gallery/events.h"

namespace gallery {

struct LoggedEvent {
    std::chrono::milliseconds time{}; ///< Of the day, when it was raised; the last one where it is several.
    std::string control{};
    EventInfo event{""};
    std::string arguments{}; ///< Of the last one; empty until the first has ended.
    std::int64_t count = 1;  ///< How many raises it stands for.
    std::int32_t depth = 0;  ///< The events that it was raised inside of.
    std::int32_t running = 1;
    bool isStale = false; ///< It was shown, and has changed.
};

/// Events have numbers from 1 in the order of their coming; one more costs the same however many there are.
///
/// Painting asks and mouse moves come in floods: the repeats of one event of one control share a row until an
/// event of another kind comes. The repeats of any other event share one where they follow each other and
/// have the same arguments.
class EventStore {
public:
    static constexpr std::int64_t Capacity = 131'072;

    /// What gives the time of day; else it is the machine's, in local time.
    void Clock(std::function<std::chrono::milliseconds()> timeOfDay) { timeOfDay_ = std::move(timeOfDay); }

    /// The number of its row; nothing where it is left out.
    std::optional<std::int64_t> Begin(const std::string& control, const EventInfo& event);
    /// Takes the arguments of the event that began last and has not ended.
    void End(std::int64_t number, const std::string& arguments);
    void Clear(); ///< Numbers go on.

    std::int64_t Oldest() const { return oldest_; } ///< That is kept; one more than `Newest` for none.
    std::int64_t Newest() const { return newest_; }
    /// Null for an event that is not kept.
    const LoggedEvent* Find(std::int64_t number) const;

    bool IsPaused() const { return isPaused_; }
    void Pause(bool on); ///< While it is set, events pass by and are only counted.
    std::int64_t PassedBy() const { return passedBy_; }
    bool ShowsFrequent() const { return showsFrequent_; }
    void ShowFrequent(bool on);                       ///< Painting asks and mouse moves. Default false.
    std::int64_t LeftOut() const { return leftOut_; } ///< Of these, since the last `Clear`.

    /// A reader has been shown all rows as they are now: they stay from here on.
    void NoteShown() { shown_ = newest_; }
    /// The rows that changed after they were shown, each once.
    std::vector<std::int64_t> TakeStale();

private:
    static std::chrono::milliseconds LocalTimeOfDay();
    LoggedEvent& At(std::int64_t number);
    std::int64_t FindInFlood(const std::string& control, const EventInfo& event) const;
    void Touch(std::int64_t number);
    void JoinBefore(std::int64_t number);

    std::function<std::chrono::milliseconds()> timeOfDay_ = LocalTimeOfDay;
    std::vector<LoggedEvent> rows_; // grows up to `Capacity`, then the oldest give way
    std::int64_t oldest_ = 1;
    std::int64_t newest_ = 0;
    std::int64_t shown_ = 0;
    std::int32_t depth_ = 0;
    std::vector<std::int64_t> stale_;
    bool isPaused_ = false;
    bool showsFrequent_ = false;
    std::int64_t passedBy_ = 0;
    std::int64_t leftOut_ = 0;
};

} // namespace gallery
