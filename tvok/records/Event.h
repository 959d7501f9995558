/// One event of a control: assign a callable to handle it, assign nullptr to drop it.
#pragma once

#include <concepts>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>

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

/// Raised synchronously on the caller's stack. A handler may replace or drop itself while it runs: the
/// running callable lives until it returns. What a handler throws passes through to whoever raised the event.
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

    explicit operator bool() const { return handler_ && *handler_; }

    void operator()(Args... args) const {
        if (!*this) return;
        const auto handler = handler_;
        const RunningEvent running;
        (*handler)(std::forward<Args>(args)...);
    }

private:
    std::shared_ptr<Handler> handler_;
};

} // namespace tvok
