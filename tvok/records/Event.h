/// One event of a control: assign a callable to handle it, assign nullptr to drop it. Beside the handler,
/// others may watch it: a log, a property list, a test.
#pragma once

#include <concepts>
#include <cstddef>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include "tvok/records/Error.h"

namespace tvok {

/// Events that are being raised on this thread, one inside the other. While there is one, whoever raised it
/// is still on the stack: a host frees nothing then that might be it.
class RunningEvent {
public:
    RunningEvent() { ++count_; }
    ~RunningEvent() { --count_; }
    RunningEvent(const RunningEvent&) = delete;
    RunningEvent& operator=(const RunningEvent&) = delete;

    static int Count() { return count_; }

private:
    static inline thread_local int count_ = 0;
};

/// Keeps a watch of an event up: the watch ends with the last copy. Either may go first, it or the event.
using EventWatch = std::shared_ptr<const void>;

/// Raised synchronously on the caller's stack. A handler may replace or drop itself while it runs: the
/// running callable lives until it returns. What a handler throws passes through to whoever raised the event.
///
/// A watcher changes nothing: it gets the arguments read-only, does not count as a handler, and what it
/// throws is dropped. It is told of every raise, with or without a handler, and also where the handler throws
/// or ends whoever raised the event. An event that nobody watches costs one more test of a pointer.
template<class... Args>
class Event {
public:
    using Handler = std::function<void(Args...)>;

    Event() = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;
    ~Event() = default;

    template<class Callable>
    requires std::invocable<Callable&, Args...> Event& operator=(Callable&& callable) {
        handler_ = std::make_shared<Handler>(std::forward<Callable>(callable));
        return *this;
    }
    Event& operator=(std::nullptr_t) {
        handler_.reset();
        return *this;
    }

    explicit operator bool() const { return handler_ && *handler_; } ///< Whether there is a handler.
    /// Whether anyone would notice a raise: there is a handler or a watcher. What asks whether raising is
    /// worth its preparation asks this; what depends on an answer of a handler asks for a handler.
    bool IsHeard() const { return *this || watchers_; }

    /// Calls `tell(arguments...)` after the handler, so with what it left in arguments by reference, for as
    /// long as the result is kept. Watchers are told in the order of their coming. Who watches when an event
    /// is raised is told of its end, also where the handler ends the watch; one that comes meanwhile is not.
    template<class Tell>
    requires std::invocable < Tell&, const std::remove_reference_t<Args>
    &... > [[nodiscard]] EventWatch Watch(Tell tell) {
        return Add([tell = std::move(tell)](const std::remove_reference_t<Args>&...) mutable -> Finish {
            return [&tell](const std::remove_reference_t<Args>&... after) { tell(after...); };
        });
    }
    /// The same with a look at the arguments as they come: `look(arguments...)` before the handler, and
    /// afterwards `tell(what look gave, arguments...)`. Where `look` throws, `tell` is left out.
    template<class Look, class Tell>
    requires std::invocable < Look&, const std::remove_reference_t<Args>
    &... > [[nodiscard]] EventWatch Watch(Look look, Tell tell) {
        return Add([look = std::move(look),
                    tell = std::move(tell)](const std::remove_reference_t<Args>&... args) mutable -> Finish {
            return [&tell, seen = look(args...)](const std::remove_reference_t<Args>&... after) mutable {
                tell(seen, after...);
            };
        });
    }

    void operator()(Args... args) const {
        if (watchers_) [[unlikely]]
            return RaiseWatched(args...);
        if (!*this) return;
        const auto handler = handler_;
        const RunningEvent running;
        (*handler)(std::forward<Args>(args)...);
    }

private:
    using Finish = std::function<void(const std::remove_reference_t<Args>&...)>;
    using Watcher = std::function<Finish(const std::remove_reference_t<Args>&...)>;

    EventWatch Add(Watcher watcher) {
        auto kept = std::make_shared<Watcher>(std::move(watcher));
        ForgetEnded();
        if (!watchers_) watchers_ = std::make_unique<std::vector<std::weak_ptr<Watcher>>>();
        watchers_->push_back(kept);
        return kept;
    }

    void ForgetEnded() const {
        if (!watchers_) return;
        std::erase_if(*watchers_, [](const auto& each) { return each.expired(); });
        if (watchers_->empty()) watchers_.reset();
    }

    std::vector<std::shared_ptr<Watcher>> Watchers() const {
        ForgetEnded();
        std::vector<std::shared_ptr<Watcher>> watchers;
        if (watchers_)
            for (const auto& each : *watchers_) watchers.push_back(each.lock());
        return watchers;
    }

    // The handler may end the event, so nothing of it is used once the handler runs.
    void RaiseWatched(std::remove_reference_t<Args>&... args) const {
        const auto handler = handler_;
        const RunningEvent running;
        const auto watchers = Watchers();
        std::vector<Finish> finishes;
        finishes.reserve(watchers.size());
        for (const auto& watcher : watchers) quietly([&] { finishes.push_back((*watcher)(args...)); });
        FirstError failed;
        if (handler && *handler) failed.Try([&] { (*handler)(static_cast<Args>(args)...); });
        for (const Finish& finish : finishes) quietly([&] { finish(args...); });
        failed.Rethrow();
    }

    std::shared_ptr<Handler> handler_;
    /// Null while nobody watches. Raising forgets watches that ended, which changes nothing that is seen.
    mutable std::unique_ptr<std::vector<std::weak_ptr<Watcher>>> watchers_;
};

} // namespace tvok
