#include "apps/gallery/EventStore.h"

#include <algorithm>
#include <cstring>
#include <ctime>
#include <utility>

namespace gallery {

using std::chrono::milliseconds;

namespace {

bool IsFrequent(const EventInfo& event) {
    return event.kind != EventKind::Action;
}

bool IsSame(const LoggedEvent& row, const std::string& control, const EventInfo& event, std::int32_t depth) {
    return std::strcmp(row.event.name, event.name) == 0 && row.control == control && row.depth == depth;
}

} // namespace

milliseconds EventStore::LocalTimeOfDay() {
    const auto now = std::chrono::system_clock::now();
    const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    std::tm local{};
    localtime_r(&seconds, &local);
    const auto part = now - std::chrono::system_clock::from_time_t(seconds);
    return std::chrono::hours(local.tm_hour) + std::chrono::minutes(local.tm_min) +
           std::chrono::seconds(local.tm_sec) + std::chrono::duration_cast<milliseconds>(part);
}

LoggedEvent& EventStore::At(std::int64_t number) {
    return rows_[static_cast<std::size_t>((number - 1) % Capacity)];
}

const LoggedEvent* EventStore::Find(std::int64_t number) const {
    if (number < oldest_ || number > newest_) return nullptr;
    return &rows_[static_cast<std::size_t>((number - 1) % Capacity)];
}

std::optional<std::int64_t> EventStore::Begin(const std::string& control, const EventInfo& event) {
    if (isPaused_) {
        ++passedBy_;
        return {};
    }
    if (IsFrequent(event) && !showsFrequent_) {
        ++leftOut_;
        return {};
    }
    const std::int64_t found = IsFrequent(event) ? FindInFlood(control, event) : 0;
    if (found != 0) {
        LoggedEvent& row = At(found);
        row.time = timeOfDay_();
        row.count += 1;
        row.running += 1;
        Touch(found);
        ++depth_;
        return found;
    }
    newest_ += 1;
    if (newest_ - oldest_ >= Capacity) oldest_ += 1;
    if (static_cast<std::int64_t>(rows_.size()) < Capacity &&
        newest_ > static_cast<std::int64_t>(rows_.size()))
        rows_.emplace_back();
    At(newest_) = {.time = timeOfDay_(), .control = control, .event = event, .depth = depth_};
    ++depth_;
    return newest_;
}

/// Every event of every control has at most one row in a flood, which bounds the search.
std::int64_t EventStore::FindInFlood(const std::string& control, const EventInfo& event) const {
    for (std::int64_t number = newest_; number >= oldest_; --number) {
        const LoggedEvent& row = *Find(number);
        if (!IsFrequent(row.event)) return 0;
        if (IsSame(row, control, event, depth_)) return number;
    }
    return 0;
}

void EventStore::End(std::int64_t number, const std::string& arguments) {
    --depth_;
    if (Find(number) == nullptr) return;
    LoggedEvent& row = At(number);
    row.arguments = arguments;
    row.running -= 1;
    Touch(number);
    JoinBefore(number);
}

/// A row that nobody has seen yet goes into the one before, where that tells the same.
void EventStore::JoinBefore(std::int64_t number) {
    if (number != newest_ || number <= shown_ || number <= oldest_) return;
    const LoggedEvent& row = At(number);
    LoggedEvent& before = At(number - 1);
    if (IsFrequent(row.event) || before.running > 0 || before.arguments != row.arguments ||
        !IsSame(before, row.control, row.event, row.depth))
        return;
    before.time = row.time;
    before.count += row.count;
    newest_ -= 1;
    Touch(newest_);
}

void EventStore::Clear() {
    oldest_ = newest_ + 1;
    shown_ = newest_;
    stale_.clear();
    passedBy_ = 0;
    leftOut_ = 0;
}

void EventStore::Pause(bool on) {
    isPaused_ = on;
    passedBy_ = 0;
}

void EventStore::ShowFrequent(bool on) {
    showsFrequent_ = on;
    leftOut_ = 0;
}

void EventStore::Touch(std::int64_t number) {
    LoggedEvent& row = At(number);
    if (number > shown_ || row.isStale) return;
    row.isStale = true;
    stale_.push_back(number);
}

std::vector<std::int64_t> EventStore::TakeStale() {
    std::vector<std::int64_t> stale = std::exchange(stale_, {});
    std::erase_if(stale, [this](std::int64_t number) { return Find(number) == nullptr; });
    for (const std::int64_t number : stale) At(number).isStale = false;
    return stale;
}

} // namespace gallery
