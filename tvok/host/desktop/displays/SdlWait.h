/// Waiting for input of SDL, and ending that from another thread.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>

#include <SDL_events.h>
#include <SDL_video.h>

namespace tvok::soft {

/// On an X server it waits by itself: while SDL waits there, each event that comes in makes it send a message
/// to one of its windows over a second connection. Where the event closes that window, the message comes too
/// late, and the X server's error ends the program.
class SdlWait {
public:
    SdlWait();
    ~SdlWait();
    SdlWait(const SdlWait&) = delete;
    SdlWait& operator=(const SdlWait&) = delete;

    /// Any window of the display; tells where its events come from.
    void Watch(SDL_Window* window);
    /// Waits up to `timeout` for an event or `Wake`. True where there is an event.
    bool Next(SDL_Event& event, std::chrono::milliseconds timeout);
    void Wake();                                        ///< From any thread.
    bool TakeWoken() { return woken_.exchange(false); } ///< Whether `Wake` was called since the last time.

private:
    void Sleep(std::chrono::milliseconds time) const;

    std::uint32_t wakeEvent_;
    int wakeFile_;
    int connection_ = -1; ///< File of the X server's connection; -1: another driver, or none known yet.
    bool isX11_;
    std::atomic<bool> woken_ = false;
};

} // namespace tvok::soft
