/// What a `qRosterex` without a desktop gets from its host: a message hook with two bars, and files in the
/// test's own temporary folder.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/FakeComponent.h"

namespace tvok::test {

/// Two bars that take room from the client area of `log` while they are shown.
class TwoBarHook : public host::MessageHook {
public:
    TwoBarHook(CallLog& log, TwoBarHook*& place) : log_(log), place_(place) { place_ = this; }
    ~TwoBarHook() override { place_ = nullptr; }
    TwoBarHook(const TwoBarHook&) = delete;
    TwoBarHook& operator=(const TwoBarHook&) = delete;

    bool busy = false;

    void HookMode(std::int32_t mode) override { Note("HookMode", mode); }
    void HookAttach(host::Handle, bool& flag) override { Note("HookAttach", flag ? 1 : 0); }
    void HookDetach() override { Note("HookDetach", 0); }
    std::int32_t HookCount() const override { return 1; }
    void HookActive(bool) override {}
    std::int32_t ScrollValue() const override { return value_; }
    void ScrollValue(std::int32_t value) override {
        Note("ScrollValue", value);
        MoveTo(value, hValue_);
    }
    std::int32_t ScrollMax() const override { return max_; }
    void ScrollMax(std::int32_t max) override {
        Note("ScrollMax", max);
        max_ = std::max(max, 0);
        MoveTo(value_, hValue_);
    }
    std::int32_t ScrollLarge() const override { return large_; }
    void ScrollLarge(std::int32_t page) override {
        Note("ScrollLarge", page);
        large_ = page;
    }
    std::int32_t ScrollHValue() const override { return hValue_; }
    void ScrollHValue(std::int32_t value) override {
        Note("ScrollHValue", value);
        MoveTo(value_, value);
    }
    std::int32_t ScrollHMax() const override { return hMax_; }
    void ScrollHMax(std::int32_t max) override {
        Note("ScrollHMax", max);
        hMax_ = std::max(max, 0);
        MoveTo(value_, hValue_);
    }
    std::int32_t ScrollHLarge() const override { return hLarge_; }
    void ScrollHLarge(std::int32_t page) override {
        Note("ScrollHLarge", page);
        hLarge_ = page;
    }
    bool ScrollBarShown() const override { return vShown_; }
    void ScrollBarShown(bool show) override {
        Note("ScrollBarShown", show ? 1 : 0);
        if (show != vShown_) log_.client.Right += show ? -16 : 16;
        vShown_ = show;
    }
    bool ScrollHBarShown() const override { return hShown_; }
    void ScrollHBarShown(bool show) override {
        Note("ScrollHBarShown", show ? 1 : 0);
        if (show != hShown_) log_.client.bottom += show ? -12 : 12;
        hShown_ = show;
    }
    bool vBusy() const override { return busy; }
    void ScrollGrow(std::int32_t& count, bool redraw) override {
        EXPECT_TRUE(redraw);
        Note("ScrollGrow", count);
        max_ += count;
    }
    void ScrollGrowValue(std::int32_t& count, std::int32_t reserved, bool redraw) override {
        EXPECT_TRUE(redraw);
        EXPECT_EQ(reserved, 0);
        Note("ScrollGrowValue", count);
        max_ += count;
        value_ += count;
    }

private:
    void Note(const std::string& name, std::int32_t number) { log_.Add(PlainCall("hook." + name, {number})); }
    void MoveTo(std::int32_t value, std::int32_t hValue) {
        value = std::clamp(value, 0, max_);
        hValue = std::clamp(hValue, 0, hMax_);
        if (value == value_ && hValue == hValue_) return;
        value_ = value;
        hValue_ = hValue;
        events.Change(value_, hValue_, 0);
    }
    CallLog& log_;
    TwoBarHook*& place_;
    std::int32_t value_ = 0, max_ = 0, large_ = 0, hValue_ = 0, hMax_ = 0, hLarge_ = 0;
    bool vShown_ = false, hShown_ = false;
};

/// Names files in the test's own temporary folder.
class NamedFiles : public host::TemporaryFiles {
public:
    bool refuses = false;
    std::vector<std::string> paths;
    std::string asked; ///< Folder, prefix and extension of the last request.

    bool CreateTemporaryFile(std::string_view folder, std::string_view prefix, std::string_view extension,
                             std::string& path) override {
        asked = std::string(folder) + "|" + std::string(prefix) + "|" + std::string(extension);
        if (refuses) return false;
        static int number = 0;
        path = testing::TempDir() + "large_list_" + std::to_string(std::uintptr_t(this)) + "_" +
               std::to_string(++number) + ".tmp";
        paths.push_back(path);
        std::ofstream(path).flush();
        return true;
    }
};

class LargeListServices : public FakeServices {
public:
    explicit LargeListServices(CallLog& log) : log_(log) {}
    TwoBarHook* hook = nullptr;
    NamedFiles files;
    std::unique_ptr<host::MessageHook> CreateMessageHook() override {
        return std::make_unique<TwoBarHook>(log_, hook);
    }
    host::TemporaryFiles* other = nullptr; ///< In place of `files`, where set.
    host::TemporaryFiles& TemporaryFiles() override { return other != nullptr ? *other : files; }

private:
    CallLog& log_;
};

} // namespace tvok::test
