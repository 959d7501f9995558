/// What waits to be done: tasks, posted messages, input, scroll bar repeats and paints.
#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <vector>

#include "tvok/host/desktop/windows/Message.h"

namespace tvok::soft {

class World;

/// Something that a display or a test fed.
struct InputEvent {
    enum class Kind {
        MouseMove,
        MouseDown,
        MouseUp,
        Wheel,
        KeyDown,
        KeyUp,
        Character,
        Activate,
        WindowMoved,
        WindowResized,
        CloseRequested
    };
    Kind kind = Kind::MouseMove;
    host::Handle window = 0;
    std::int32_t a = 0;
    std::int32_t b = 0;
    std::chrono::milliseconds time{};
};

/// Messages come before input, and paints come last. What is thrown leaves through `Run`; the rest stays
/// queued.
class MessageLoop {
public:
    explicit MessageLoop(World& world) : world_(world) {}

    void Post(const Message& message) { posted_.push_back(message); }
    void Post(const InputEvent& event);
    void Post(std::function<void()> task); ///< From any thread. The caller wakes the display.

    /// Does all that waits, and what that brings about.
    void Run();
    bool HasQueued(); ///< Tasks, messages or input.
    /// How long nothing has to be done: 0 where something waits, nothing where only input can bring
    /// something.
    std::optional<std::chrono::milliseconds> Idle();

private:
    void RunTasks();
    bool RunOne();

    World& world_;
    std::deque<Message> posted_;
    std::deque<InputEvent> input_;
    std::mutex mutex_; ///< Guards `tasks_`.
    std::deque<std::function<void()>> tasks_;
};

} // namespace tvok::soft
