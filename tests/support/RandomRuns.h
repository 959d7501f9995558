/// What tests with random input have in common.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>

#include "tvok/host/Services.h"

namespace tvok::test {

/// A number from the environment, or `otherwise` where it is not set.
inline std::uint32_t FromEnvironment(const char* name, std::uint32_t otherwise) {
    const char* text = std::getenv(name);
    return text != nullptr ? static_cast<std::uint32_t>(std::strtoul(text, nullptr, 10)) : otherwise;
}

/// Passes everything on and remembers the message hook that was made last.
class WatchedServices : public host::Services {
public:
    explicit WatchedServices(host::Services& next) : next_(next) {}
    std::unique_ptr<host::MessageHook> CreateMessageHook() override {
        auto made = next_.CreateMessageHook();
        hook = made.get();
        return made;
    }
    std::unique_ptr<host::WindowHook> CreateWindowHook() override { return next_.CreateWindowHook(); }
    const host::Screen& Screen() const override { return next_.Screen(); }
    const host::StringResources& StringResources() const override { return next_.StringResources(); }
    host::TemporaryFiles& TemporaryFiles() override { return next_.TemporaryFiles(); }
    host::ColorPicker& ColorPicker() override { return next_.ColorPicker(); }
    const host::Language& Language() const override { return next_.Language(); }
    std::int32_t ThreadID() const override { return next_.ThreadID(); }

    host::MessageHook* hook = nullptr;

private:
    host::Services& next_;
};

} // namespace tvok::test
