/// Services that pass everything on and note what is done to hooks, each under the number of its making.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tvok/host/Services.h"
#include "tvok/records/Error.h"

namespace tvok::test {

/// Passes every service on to those that were current when it was made, and is current as long as it lives.
class PassedServices : public host::Services {
public:
    PassedServices() : next_(host::services()) { host::SetServices(this); }
    ~PassedServices() override { host::SetServices(&next_); }
    PassedServices(const PassedServices&) = delete;
    PassedServices& operator=(const PassedServices&) = delete;

    std::unique_ptr<host::MessageHook> CreateMessageHook() override { return next_.CreateMessageHook(); }
    std::unique_ptr<host::WindowHook> CreateWindowHook() override { return next_.CreateWindowHook(); }
    const host::Screen& Screen() const override { return next_.Screen(); }
    const host::StringResources& StringResources() const override { return next_.StringResources(); }
    host::TemporaryFiles& TemporaryFiles() override { return next_.TemporaryFiles(); }
    host::ColorPicker& ColorPicker() override { return next_.ColorPicker(); }
    const host::Language& Language() const override { return next_.Language(); }
    std::int32_t ThreadID() const override { return next_.ThreadID(); }

protected:
    host::Services& next_;
};

/// A screen with other twips per pixel.
class TwipsOf : public PassedServices, private host::Screen {
public:
    TwipsOf(float x, float y) : x_(x), y_(y) {}
    const host::Screen& Screen() const override { return *this; }

private:
    float TwipsPerPixelX() const override { return x_; }
    float TwipsPerPixelY() const override { return y_; }
    float Width() const override { return next_.Screen().Width(); }
    float Height() const override { return next_.Screen().Height(); }
    float x_;
    float y_;
};

/// What was done to hooks, and which of them cannot be attached. It lives as long as any of them.
struct HookBook {
    std::int32_t refuse = 0; ///< The number of a hook; 0: none.
    std::function<void(const std::string&)> onCall;
    std::vector<std::string> log;

    void Note(const std::string& line) {
        log.push_back(line);
        if (onCall) onCall(line);
    }
    void NeedNotRefused(std::int32_t number) const {
        if (number == refuse) throw ObjectError("this hook cannot be attached");
    }
};

class NotedServices : public PassedServices {
public:
    HookBook& book() { return *book_; }
    std::vector<std::string> TakeLog() { return std::exchange(book_->log, {}); }
    std::unique_ptr<host::MessageHook> CreateMessageHook() override;
    std::unique_ptr<host::WindowHook> CreateWindowHook() override;

private:
    std::shared_ptr<HookBook> book_ = std::make_shared<HookBook>();
    std::int32_t made_ = 0;
};

} // namespace tvok::test
