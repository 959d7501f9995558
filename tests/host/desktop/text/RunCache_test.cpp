#include "tvok/host/desktop/text/RunCache.h"

#include <string>

#include <gtest/gtest.h>

namespace tvok::soft {
namespace {

ShapedRun RunOfWidth(std::int32_t width) {
    ShapedRun run;
    run.width = width;
    return run;
}

void Add(RunCache& cache, FontId font, const std::string& text, std::int32_t width) {
    ShapedRun run = RunOfWidth(width);
    cache.Add(font, text, run);
}

TEST(RunCache, FindsByFontAndText) {
    RunCache cache(8);
    Add(cache, 1, "a", 10);
    Add(cache, 2, "a", 20);
    Add(cache, 1, "b", 30);
    EXPECT_EQ(cache.Find(1, "a")->width, 10);
    EXPECT_EQ(cache.Find(2, "a")->width, 20);
    EXPECT_EQ(cache.Find(1, "b")->width, 30);
    EXPECT_EQ(cache.Find(2, "b"), nullptr);
}

TEST(RunCache, KeepsNoMoreThanItsCapacityAndEveryKeptRunIsFound) {
    RunCache cache(7);
    for (std::int32_t i = 0; i < 1000; ++i) {
        Add(cache, 1, std::to_string(i), i);
        EXPECT_EQ(cache.Find(1, std::to_string(i))->width, i);
    }
    EXPECT_EQ(cache.Count(), 7u);
    int found = 0;
    for (std::int32_t i = 0; i < 1000; ++i) found += cache.Find(1, std::to_string(i)) != nullptr;
    EXPECT_EQ(found, 7);
}

TEST(RunCache, WhatIsUsedAgainAndAgainStays) {
    RunCache cache(8);
    Add(cache, 1, "kept", 1);
    for (std::int32_t i = 0; i < 1000; ++i) {
        Add(cache, 1, std::to_string(i), i);
        ASSERT_NE(cache.Find(1, "kept"), nullptr) << i;
    }
}

TEST(RunCache, MemoryOfARunThatWentComesBack) {
    RunCache cache(1);
    ShapedRun first;
    first.glyphs.resize(100);
    cache.Add(1, "first", first);
    ShapedRun second = RunOfWidth(2);
    cache.Add(1, "second", second);
    EXPECT_GE(second.glyphs.capacity(), 100u);
    EXPECT_EQ(cache.Find(1, "second")->width, 2);
    EXPECT_EQ(cache.Find(1, "first"), nullptr);
}

} // namespace
} // namespace tvok::soft
