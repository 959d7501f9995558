#include "tvok/records/tvok_declare.h"

#include <gtest/gtest.h>

namespace tvok {
namespace {

TEST(GetDefaultItem, GivesTheDefaultsWhateverTheRecordHeld) {
    qrosterdata record{.text = "a", .key = "k", .IconID = 4, .ItemDataEx = 7, .vflag = vflag::Selected};
    GetDefaultItem(record);
    EXPECT_EQ(record.text, "");
    EXPECT_EQ(record.IconID, -1);
    EXPECT_EQ(record.IconPos, -1);
    EXPECT_EQ(record.bColor, SystemColor(5));
    EXPECT_EQ(record.fcolor, SystemColor(8));
    EXPECT_EQ(record.IconBackColor, SystemColor(5));
    EXPECT_EQ(record, qrosterdata{});
}

TEST(ZeroItem, IsNotTheDefaultItem) {
    const auto record = ZeroItem();
    EXPECT_NE(record, qrosterdata{});
    EXPECT_EQ(record.IconID, 0);
    EXPECT_EQ(record.IconPos, 0);
    EXPECT_EQ(record.IconBackColor, 0);
    EXPECT_EQ(record.bColor, 0);
    EXPECT_EQ(record.fcolor, 0);
    EXPECT_EQ(record.vflag, 0);
}

TEST(IconPos, HasItsHeightInTheLeastByte) {
    EXPECT_EQ(UnpackIconPos(cDefaultIconPos), (tvok_IconPos{.Height = 16, .width = 16, .Top = 1, .Left = 1}));
    EXPECT_EQ(PackIconPos({.Height = 16, .width = 16, .Top = 1, .Left = 1}), 16846864);
    EXPECT_EQ(PackIconPos(UnpackIconPos(-1)), -1);
}

} // namespace
} // namespace tvok
