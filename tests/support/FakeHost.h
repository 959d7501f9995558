/// Small hosts' parts for tests without a desktop: a font, a message hook, a property bag and services that
/// keep what was done to them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/CallLog.h"
#include "tvok/host/Font.h"
#include "tvok/host/Hooks.h"
#include "tvok/host/PropertyBag.h"
#include "tvok/host/Services.h"
#include "tvok/records/Error.h"

namespace tvok::test {

/// Writes of its properties go to the log as calls "Font.Bold" and so on.
class FakeFont : public host::Font {
public:
    explicit FakeFont(CallLog& log) : log_(log) {}

    host::FontValue value{"Test Sans", 9, false, false, false, false};
    bool refuses = false; ///< Every write throws.

    std::string Name() const override { return value.Name; }
    void Name(const std::string& face) override {
        Note("Font.Name", 0, face);
        value.Name = face;
    }
    float Size() const override { return value.Size; }
    void Size(float points) override {
        Note("Font.Size", static_cast<std::int32_t>(points * 100));
        value.Size = points;
    }
    bool Bold() const override { return value.Bold; }
    void Bold(bool on) override { Write("Font.Bold", value.Bold, on); }
    bool Italic() const override { return value.Italic; }
    void Italic(bool on) override { Write("Font.Italic", value.Italic, on); }
    bool Underline() const override { return value.Underline; }
    void Underline(bool on) override { Write("Font.Underline", value.Underline, on); }
    bool Strikethrough() const override { return value.Strikethrough; }
    void Strikethrough(bool on) override { Write("Font.Strikethrough", value.Strikethrough, on); }

private:
    void Note(const std::string& name, std::int32_t number, const std::string& text = {}) {
        if (refuses) throw Error("this font cannot be changed");
        log_.Add(PlainCall(name, {number}, text));
    }
    void Write(const std::string& name, bool& field, bool on) {
        Note(name, on ? 1 : 0);
        field = on;
    }
    CallLog& log_;
};

/// Keeps positions within 0 to the maximum and raises `Change` for real changes; writes go to `writes`.
class FakeHook : public host::MessageHook {
public:
    std::vector<std::pair<std::string, std::int32_t>> writes;
    std::int32_t value = 0, max = 0, large = 0;

    void HookMode(std::int32_t mode) override { writes.emplace_back("HookMode", mode); }
    void HookAttach(host::Handle hWnd, bool&) override { writes.emplace_back("HookAttach", hWnd); }
    void HookDetach() override { writes.emplace_back("HookDetach", 0); }
    std::int32_t HookCount() const override { return 1; }
    void HookActive(bool active) override { writes.emplace_back("HookActive", active); }
    std::int32_t ScrollValue() const override { return value; }
    void ScrollValue(std::int32_t written) override {
        writes.emplace_back("ScrollValue", written);
        MoveTo(written);
    }
    std::int32_t ScrollMax() const override { return max; }
    void ScrollMax(std::int32_t written) override {
        writes.emplace_back("ScrollMax", written);
        max = std::max(written, 0);
        MoveTo(value);
    }
    std::int32_t ScrollLarge() const override { return large; }
    void ScrollLarge(std::int32_t page) override {
        writes.emplace_back("ScrollLarge", page);
        large = page;
    }
    std::int32_t ScrollHValue() const override { return 0; }
    void ScrollHValue(std::int32_t written) override { writes.emplace_back("ScrollHValue", written); }
    std::int32_t ScrollHMax() const override { return 0; }
    void ScrollHMax(std::int32_t written) override { writes.emplace_back("ScrollHMax", written); }
    std::int32_t ScrollHLarge() const override { return 0; }
    void ScrollHLarge(std::int32_t) override {}
    bool ScrollBarShown() const override { return max > 0; }
    void ScrollBarShown(bool) override {}
    bool ScrollHBarShown() const override { return false; }
    void ScrollHBarShown(bool) override {}
    bool vBusy() const override { return false; }
    void ScrollGrow(std::int32_t& count, bool) override { max += count; }
    void ScrollGrowValue(std::int32_t& count, std::int32_t, bool) override {
        max += count;
        value += count;
    }

private:
    void MoveTo(std::int32_t position) {
        position = std::clamp(position, 0, max);
        if (position == value) return;
        value = position;
        events.Change(value, 0, 0);
    }
};

/// Compares names exactly, and keeps every call in order.
class FakeBag : public host::PropertyBag {
public:
    struct Entry {
        std::string key;
        host::PropertyValue value;
        host::PropertyValue defaultValue;
    };
    std::vector<Entry> written;
    std::vector<Entry> read; ///< `value` is what was answered.
    std::map<std::string, host::PropertyValue> stored;

    host::PropertyValue ReadProperty(std::string_view name,
                                     const host::PropertyValue& defaultValue) override {
        const auto found = stored.find(std::string(name));
        read.push_back(
            {std::string(name), found == stored.end() ? defaultValue : found->second, defaultValue});
        return read.back().value;
    }
    void WriteProperty(std::string_view name, const host::PropertyValue& value,
                       const host::PropertyValue& defaultValue) override {
        written.push_back({std::string(name), value, defaultValue});
        stored[std::string(name)] = value;
    }
};

/// Cases the letters of ASCII and the two-byte letters of Latin-1; orders by bytes of the upper case.
class FakeLanguage : public host::Language {
public:
    std::string UpperCase(std::string_view text) const override {
        std::string upper(text);
        for (std::size_t i = 0; i < upper.size(); ++i) {
            if (upper[i] >= 'a' && upper[i] <= 'z') upper[i] = static_cast<char>(upper[i] - 32);
            const bool latin = upper[i] == '\xC3' && i + 1 < upper.size();
            if (latin && static_cast<unsigned char>(upper[i + 1]) >= 0xA0)
                upper[i + 1] = static_cast<char>(upper[i + 1] - 32);
        }
        return upper;
    }
    std::string LowerCase(std::string_view text) const override {
        std::string lower(text);
        for (std::size_t i = 0; i < lower.size(); ++i) {
            if (lower[i] >= 'A' && lower[i] <= 'Z') lower[i] = static_cast<char>(lower[i] + 32);
            const bool latin = lower[i] == '\xC3' && i + 1 < lower.size();
            if (latin && static_cast<unsigned char>(lower[i + 1]) < 0xA0)
                lower[i + 1] = static_cast<char>(lower[i + 1] + 32);
        }
        return lower;
    }
    int CompareText(std::string_view a, std::string_view b) const override {
        const int order = UpperCase(a).compare(UpperCase(b));
        return order < 0 ? -1 : order > 0 ? 1 : 0;
    }
    void SortKey(std::string_view text, std::string& key) const override { key = UpperCase(text); }
};

/// A screen of 15 twips per pixel unless a test says otherwise; services that no engine routine needs throw.
class FakeServices : public host::Services, private host::Screen {
public:
    float twipsX = 15, twipsY = 15;

    std::unique_ptr<host::MessageHook> CreateMessageHook() override { return std::make_unique<FakeHook>(); }
    std::unique_ptr<host::WindowHook> CreateWindowHook() override {
        throw ObjectError("no window hooks here");
    }
    const host::Screen& Screen() const override { return *this; }
    const host::StringResources& StringResources() const override { throw ObjectError("no resources here"); }
    host::TemporaryFiles& TemporaryFiles() override { throw ObjectError("no files here"); }
    host::ColorPicker& ColorPicker() override { throw ObjectError("no dialog here"); }
    const host::Language& Language() const override { return language_; }
    std::int32_t ThreadID() const override { return 1; }

private:
    float TwipsPerPixelX() const override { return twipsX; }
    float TwipsPerPixelY() const override { return twipsY; }
    float Width() const override { return 1280 * twipsX; }
    float Height() const override { return 1024 * twipsY; }
    FakeLanguage language_;
};

} // namespace tvok::test
