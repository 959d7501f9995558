/// The base of the engine's tests: a list's state, items, index and cells, without a desktop behind them.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/FakeHost.h"
#include "tvok/engine/dgi.h"
#include "tvok/engine/mtvok.h"
#include "tvok/engine/persistence.h"

namespace tvok::test {

class EngineList : public ::testing::Test {
public:
    static constexpr host::Handle cWindow = 7, cContext = 8, cImages = 44;

protected:
    EngineList() {
        platformBefore_ = host::SetPlatform(&log);
        servicesBefore_ = host::SetServices(&services);
        state.hWnd = state.FocusHwnd = cWindow;
        state.hDC = cContext;
        state.FontObj = font;
        state.TextHeight = 12;
        state.IconHandle = cImages;
        callback.ExDrawCallback = [this](std::int32_t& message, std::int32_t index, const std::string& key,
                                         std::int32_t hDC, std::int32_t cy, std::int32_t x, std::int32_t y,
                                         std::int32_t w, std::int32_t h) {
            log.Add(ExDrawCall(message, index, key, {x, y, w, h}, hDC, cy));
            if (onExDraw) onExDraw(message);
        };
    }
    ~EngineList() override {
        host::SetServices(servicesBefore_);
        host::SetPlatform(platformBefore_);
    }

    static Call ExDrawCall(std::int32_t message, std::int32_t index, const std::string& key,
                           const tvok_Rect& edges, std::int32_t hDC = cContext, std::int32_t cy = 0) {
        return {"ExDraw", edges, {message, index, hDC, cy}, key};
    }

    /// Appends an item in the next slot.
    void Add(qrosterdata item) {
        item.vflag |= vflag::InUse;
        const std::int32_t slot = items.UpperBound() + 1;
        items.Resize(slot);
        items.Put(slot, item);
        state.Count += 1;
        indexes.Resize(state.Count);
        indexes[state.Count] = slot;
    }
    void AddTexts(const std::vector<std::string>& texts) {
        for (const auto& text : texts) Add({.text = text});
    }
    /// Slots in display order.
    std::vector<std::int32_t> Order() const {
        std::vector<std::int32_t> slots;
        for (std::int32_t i = 1; i <= state.Count; ++i) slots.push_back(indexes[i]);
        return slots;
    }
    std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        for (std::int32_t i = 1; i <= state.Count; ++i) texts.push_back(items[indexes[i]].text);
        return texts;
    }

    CallLog log;
    FakeServices services;
    std::shared_ptr<FakeFont> font = std::make_shared<FakeFont>(log);
    ListState state;
    ItemSlots items;
    IndexArray indexes{0};
    CellTable cells{20, 20};
    cExdrawCallback callback;
    std::function<void(std::int32_t& message)> onExDraw;

private:
    host::Platform* platformBefore_ = nullptr;
    host::Services* servicesBefore_ = nullptr;
};

} // namespace tvok::test
