#include "tests/support/NotedServices.h"

namespace tvok::test {

namespace {

class NotedWindowHook : public host::WindowHook {
public:
    NotedWindowHook(std::shared_ptr<HookBook> book, std::int32_t number,
                    std::unique_ptr<host::WindowHook> real)
        : book_(std::move(book)), number_(number), name_(std::to_string(number) + " "),
          real_(std::move(real)) {
        real_->RtMsg = [this](std::int32_t message, std::int32_t wParam, std::int32_t lParam,
                              std::int32_t& result,
                              bool& next) { RtMsg(message, wParam, lParam, result, next); };
    }
    ~NotedWindowHook() override { book_->Note(name_ + "released"); }
    NotedWindowHook(const NotedWindowHook&) = delete;
    NotedWindowHook& operator=(const NotedWindowHook&) = delete;

    const host::MouseHookRecord* Mouse() const override { return real_->Mouse(); }
    void HookSet(std::int32_t& kind, std::int32_t& target, bool& flag) override {
        book_->Note(name_ + "HookSet " + std::to_string(kind) + " " + std::to_string(target));
        book_->NeedNotRefused(number_);
        real_->HookSet(kind, target, flag);
    }
    void HookRelease() override {
        book_->Note(name_ + "HookRelease");
        real_->HookRelease();
    }

private:
    std::shared_ptr<HookBook> book_;
    std::int32_t number_;
    std::string name_;
    std::unique_ptr<host::WindowHook> real_;
};

class NotedMessageHook : public host::MessageHook {
public:
    NotedMessageHook(std::shared_ptr<HookBook> book, std::int32_t number,
                     std::unique_ptr<host::MessageHook> real)
        : book_(std::move(book)), number_(number), name_(std::to_string(number) + " "),
          real_(std::move(real)) {
        real_->events.RtMsg = [this](std::int32_t message, std::int32_t wParam, std::int32_t lParam,
                                     std::int32_t& result, bool& process) {
            events.RtMsg(message, wParam, lParam, result, process);
        };
        real_->events.Change = [this](auto v, auto h, auto x) { events.Change(v, h, x); };
        real_->events.Scroll = [this](auto v, auto h, auto x) { events.Scroll(v, h, x); };
    }

    void HookMode(std::int32_t mode) override { real_->HookMode(Noted("HookMode ", mode)); }
    void HookAttach(host::Handle hWnd, bool& flag) override {
        book_->Note(name_ + "HookAttach");
        book_->NeedNotRefused(number_);
        real_->HookAttach(hWnd, flag);
    }
    void HookDetach() override {
        book_->Note(name_ + "HookDetach");
        real_->HookDetach();
    }
    std::int32_t HookCount() const override { return real_->HookCount(); }
    void HookActive(bool active) override {
        book_->Note(name_ + "HookActive " + (active ? "1" : "0"));
        real_->HookActive(active);
    }
    std::int32_t ScrollValue() const override { return real_->ScrollValue(); }
    void ScrollValue(std::int32_t value) override { real_->ScrollValue(Noted("ScrollValue ", value)); }
    std::int32_t ScrollMax() const override { return real_->ScrollMax(); }
    void ScrollMax(std::int32_t max) override { real_->ScrollMax(Noted("ScrollMax ", max)); }
    std::int32_t ScrollLarge() const override { return real_->ScrollLarge(); }
    void ScrollLarge(std::int32_t page) override { real_->ScrollLarge(Noted("ScrollLarge ", page)); }
    std::int32_t ScrollHValue() const override { return real_->ScrollHValue(); }
    void ScrollHValue(std::int32_t value) override { real_->ScrollHValue(Noted("ScrollHValue ", value)); }
    std::int32_t ScrollHMax() const override { return real_->ScrollHMax(); }
    void ScrollHMax(std::int32_t max) override { real_->ScrollHMax(Noted("ScrollHMax ", max)); }
    std::int32_t ScrollHLarge() const override { return real_->ScrollHLarge(); }
    void ScrollHLarge(std::int32_t page) override { real_->ScrollHLarge(page); }
    bool ScrollBarShown() const override { return real_->ScrollBarShown(); }
    void ScrollBarShown(bool show) override { real_->ScrollBarShown(show); }
    bool ScrollHBarShown() const override { return real_->ScrollHBarShown(); }
    void ScrollHBarShown(bool show) override { real_->ScrollHBarShown(show); }
    bool vBusy() const override { return real_->vBusy(); }
    void ScrollGrow(std::int32_t& count, bool redraw) override { real_->ScrollGrow(count, redraw); }
    void ScrollGrowValue(std::int32_t& count, std::int32_t reserved, bool redraw) override {
        real_->ScrollGrowValue(count, reserved, redraw);
    }

private:
    std::int32_t Noted(const char* what, std::int32_t value) {
        book_->Note(name_ + what + std::to_string(value));
        return value;
    }

    std::shared_ptr<HookBook> book_;
    std::int32_t number_;
    std::string name_;
    std::unique_ptr<host::MessageHook> real_;
};

} // namespace

std::unique_ptr<host::MessageHook> NotedServices::CreateMessageHook() {
    book_->Note("message hook " + std::to_string(++made_));
    return std::make_unique<NotedMessageHook>(book_, made_, next_.CreateMessageHook());
}

std::unique_ptr<host::WindowHook> NotedServices::CreateWindowHook() {
    book_->Note("window hook " + std::to_string(++made_));
    return std::make_unique<NotedWindowHook>(book_, made_, next_.CreateWindowHook());
}

} // namespace tvok::test
