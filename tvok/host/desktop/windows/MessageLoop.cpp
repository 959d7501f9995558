#include "tvok/host/desktop/windows/MessageLoop.h"

#include <algorithm>
#include <utility>

#include "tvok/host/desktop/windows/World.h"

namespace tvok::soft {

namespace {

/// Messages in one turn: a handler that always posts another one shall not keep the paints from coming.
constexpr int kMostMessages = 10000;

} // namespace

void MessageLoop::Post(const InputEvent& event) {
    const bool repeats = !input_.empty() && event.kind == InputEvent::Kind::WindowResized &&
                         input_.back().kind == event.kind && input_.back().window == event.window;
    if (repeats) {
        input_.back() = event;
    } else {
        input_.push_back(event);
    }
}

void MessageLoop::Post(std::function<void()> task) {
    const std::lock_guard lock(mutex_);
    tasks_.push_back(std::move(task));
}

void MessageLoop::Run() {
    RunTasks();
    for (int rounds = 0; rounds < 8; ++rounds) {
        int messages = 0;
        while (messages < kMostMessages && RunOne()) ++messages;
        world_.tracker.Tick(world_.Now());
        world_.windows.UpdateAll();
        if (posted_.empty() && input_.empty()) return;
    }
}

/// Those that wait now: one that posts itself again has its next turn in the next run.
void MessageLoop::RunTasks() {
    const auto next = [&]() -> std::function<void()> {
        const std::lock_guard lock(mutex_);
        if (tasks_.empty()) return {};
        auto task = std::move(tasks_.front());
        tasks_.pop_front();
        return task;
    };
    std::size_t waiting = 0;
    {
        const std::lock_guard lock(mutex_);
        waiting = tasks_.size();
    }
    for (; waiting > 0; --waiting)
        if (const auto task = next()) task();
}

bool MessageLoop::RunOne() {
    if (!posted_.empty()) {
        const Message message = posted_.front();
        posted_.pop_front();
        world_.Send(message);
        return true;
    }
    if (input_.empty()) return false;
    const InputEvent event = input_.front();
    input_.pop_front();
    world_.input.Process(event);
    return true;
}

bool MessageLoop::HasQueued() {
    if (!posted_.empty() || !input_.empty()) return true;
    const std::lock_guard lock(mutex_);
    return !tasks_.empty();
}

std::optional<std::chrono::milliseconds> MessageLoop::Idle() {
    using std::chrono::milliseconds;
    if (HasQueued() || world_.windows.NeedsPaint()) return milliseconds{0};
    if (const auto due = world_.tracker.Due()) return std::max(*due - world_.Now(), milliseconds{0});
    return {};
}

} // namespace tvok::soft
