#include "tvok/host/MemoryBag.h"

#include <gmock/gmock.h>

#include "tvok/records/Error.h"

namespace tvok::host {
namespace {

using host::FontValue;
using host::Read;

TEST(MemoryBag, GivesBackWhatWasWrittenInEveryType) {
    MemoryBag bag;
    const FontValue font{"DejaVu Sans", 11, true, false, true, false};
    bag.WriteProperty("flag", true, false);
    bag.WriteProperty("number", 7, 1);
    bag.WriteProperty("size", 1.5f, 0.0f);
    bag.WriteProperty("text", std::string("a"), std::string());
    bag.WriteProperty("font", font, FontValue{});
    EXPECT_EQ(Read(bag, "flag", false), true);
    EXPECT_EQ(Read(bag, "number", 1), 7);
    EXPECT_EQ(Read(bag, "size", 0.0f), 1.5f);
    EXPECT_EQ(host::ReadText(bag, "text"), "a");
    EXPECT_EQ(Read(bag, "font", FontValue{}), font);
}

TEST(MemoryBag, LeavesOutAValueThatEqualsItsDefault) {
    MemoryBag bag;
    bag.WriteProperty("xn", 3, 1);
    bag.WriteProperty("yn", 5, 5);
    EXPECT_EQ(bag.All().size(), 1u);
    bag.WriteProperty("xn", 1, 1);
    EXPECT_TRUE(bag.All().empty());
}

TEST(MemoryBag, GivesTheDefaultWhereNothingIsStored) {
    MemoryBag bag;
    EXPECT_EQ(Read(bag, "xn", 4), 4);
}

TEST(MemoryBag, ComparesNamesWithTheirCase) {
    MemoryBag bag;
    bag.WriteProperty("GridLineOnBorder", true, false);
    EXPECT_FALSE(Read(bag, "GridlineOnBorder", false));
    EXPECT_TRUE(Read(bag, "GridLineOnBorder", false));
}

TEST(MemoryBag, AnotherTypeIsAnErrorThatNamesTheKey) {
    MemoryBag bag;
    bag.Put("xn", std::string("three"));
    try {
        Read(bag, "xn", 1);
        FAIL() << "no error";
    } catch (const TypeError& error) {
        EXPECT_THAT(error.what(), testing::HasSubstr("xn: a text stands where a whole number belongs"));
    }
}

} // namespace
} // namespace tvok::host
