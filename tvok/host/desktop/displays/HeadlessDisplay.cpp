#include <condition_variable>
#include <mutex>
#include <utility>

#include "tvok/host/desktop/displays/Display.h"

namespace tvok::soft {

namespace {

class HeadlessDisplay final : public Display {
public:
    HeadlessDisplay(std::int32_t width, std::int32_t height, float scale)
        : screen_{0, 0, width, height}, scale_(scale) {}

    bool IsHeadless() const override { return true; }
    bool DecoratesWindows() const override { return false; }
    tvok_Rect Screen() const override { return screen_; }
    float Scale() const override { return scale_; }
    void Scale(float scale, DisplayEvents&) override { scale_ = scale; }

    void Open(const DisplayWindow&) override {}
    void Change(const DisplayWindow&) override {}
    void Raise(host::Handle) override {}
    void Close(host::Handle) override {}
    void Present(host::Handle, const Surface&, const Region&) override {}

    void Wait(std::chrono::milliseconds timeout, DisplayEvents& events) override {
        std::unique_lock lock(mutex_);
        // Waiting for no time would still put the thread to sleep until the next tick of the machine's timer.
        if (timeout.count() > 0) wake_.wait_for(lock, timeout, [&] { return woken_; });
        const bool woken = std::exchange(woken_, false);
        lock.unlock();
        if (woken) events.Woken();
    }
    void Wake() override {
        {
            const std::lock_guard lock(mutex_);
            woken_ = true;
        }
        wake_.notify_one();
    }

    void Pointer(std::int16_t) override {}
    void Capture(host::Handle) override {}
    std::string ClipboardText() override { return clipboard_; }
    void ClipboardText(std::string_view utf8) override { clipboard_ = utf8; }

private:
    tvok_Rect screen_;
    float scale_;
    std::string clipboard_;
    std::mutex mutex_;
    std::condition_variable wake_;
    bool woken_ = false;
};

} // namespace

std::unique_ptr<Display> MakeHeadlessDisplay(std::int32_t width, std::int32_t height, float scale) {
    return std::make_unique<HeadlessDisplay>(width, height, scale);
}

} // namespace tvok::soft
