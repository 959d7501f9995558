#include "tvok/host/desktop/displays/SdlWait.h"

#include <algorithm>
#include <cstring>

#include <SDL_syswm.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace tvok::soft {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// SDL acts late on a lost focus and needs to be asked again; without a known connection so do all events.
constexpr milliseconds LongestSleep{200};
constexpr milliseconds LongestBlindSleep{10};

bool UsesX11() {
    const char* driver = SDL_GetCurrentVideoDriver();
    return driver != nullptr && std::strcmp(driver, "x11") == 0;
}

} // namespace

SdlWait::SdlWait()
    : wakeEvent_(SDL_RegisterEvents(1)), wakeFile_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      isX11_(UsesX11()) {}

SdlWait::~SdlWait() {
    if (wakeFile_ >= 0) close(wakeFile_);
}

void SdlWait::Watch([[maybe_unused]] SDL_Window* window) {
#ifdef SDL_VIDEO_DRIVER_X11
    if (!isX11_ || connection_ >= 0) return;
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version)
    if (SDL_GetWindowWMInfo(window, &info) == SDL_TRUE) connection_ = ConnectionNumber(info.info.x11.display);
#endif
}

void SdlWait::Sleep(milliseconds time) const {
    pollfd files[2] = {{wakeFile_, POLLIN, 0}, {connection_, POLLIN, 0}}; // a file of -1 is passed over
    const milliseconds longest = connection_ >= 0 ? LongestSleep : LongestBlindSleep;
    poll(files, 2, static_cast<int>(std::clamp(time, milliseconds{0}, longest).count()));
    std::uint64_t count = 0;
    if ((files[0].revents & POLLIN) != 0) static_cast<void>(!read(wakeFile_, &count, sizeof count));
}

bool SdlWait::Next(SDL_Event& event, milliseconds timeout) {
    if (!isX11_) return SDL_WaitEventTimeout(&event, static_cast<int>(timeout.count())) != 0;
    const auto end = steady_clock::now() + timeout;
    while (true) {
        if (SDL_PollEvent(&event) != 0) return true;
        const auto left = std::chrono::ceil<milliseconds>(end - steady_clock::now());
        if (left <= milliseconds{0} || woken_) return false;
        Sleep(left);
    }
}

void SdlWait::Wake() {
    woken_ = true;
    const std::uint64_t one = 1;
    if (isX11_) {
        static_cast<void>(!write(wakeFile_, &one, sizeof one));
        return;
    }
    SDL_Event event{};
    event.type = wakeEvent_;
    SDL_PushEvent(&event);
}

} // namespace tvok::soft
