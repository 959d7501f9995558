/// A window hook that writes what is done to it into the log, and services that make it.
#pragma once

#include <cstdint>
#include <memory>

#include "tests/support/FakeHost.h"

namespace tvok::test {

class LoggedWindowHook : public host::WindowHook {
public:
    LoggedWindowHook(CallLog& log, LoggedWindowHook*& place) : log_(log), place_(place) { place_ = this; }
    ~LoggedWindowHook() override {
        place_ = nullptr;
        log_.Add(PlainCall("hook released"));
    }
    LoggedWindowHook(const LoggedWindowHook&) = delete;
    LoggedWindowHook& operator=(const LoggedWindowHook&) = delete;

    bool refuses = false; ///< `HookRelease` throws.

    const host::MouseHookRecord* Mouse() const override { return nullptr; }
    void HookSet(std::int32_t& kind, std::int32_t& target, bool& flag) override {
        log_.Add(PlainCall("hook.HookSet", {kind, target, flag}));
    }
    void HookRelease() override {
        log_.Add(PlainCall("hook.HookRelease"));
        if (refuses) throw Error("this hook does not let go");
    }

private:
    CallLog& log_;
    LoggedWindowHook*& place_;
};

class WindowHookServices : public FakeServices {
public:
    explicit WindowHookServices(CallLog& log) : log_(log) {}
    LoggedWindowHook* hook = nullptr; ///< The hook that lives, if any.
    std::unique_ptr<host::WindowHook> CreateWindowHook() override {
        return std::make_unique<LoggedWindowHook>(log_, hook);
    }

private:
    CallLog& log_;
};

} // namespace tvok::test
