/// The public records and enumerations, and the two callback classes.
#include <gtest/gtest.h>

#include <bit>
#include <type_traits>

#include "tvok/engine/callbacks.h"
#include "tvok/records/tvok_declare.h"

namespace tvok {
namespace {

template<class T, class Expected>
constexpr bool Is = std::is_same_v<std::remove_cvref_t<T>, Expected>;

TEST(Records, RectangleIsLeftTopRightBottomInFourIntegers) {
    const tvok_Rect rect{1, 2, 3, 4};
    EXPECT_EQ(rect.Left, 1);
    EXPECT_EQ(rect.Top, 2);
    EXPECT_EQ(rect.Right, 3);
    EXPECT_EQ(rect.bottom, 4);
    static_assert(sizeof(tvok_Rect) == 16);
    static_assert(Is<decltype(rect.bottom), std::int32_t>);
}

TEST(Records, IconPosIsFourBytesWithTheHeightLeastSignificant) {
    static_assert(sizeof(tvok_IconPos) == 4);
    const std::int32_t packed = 0x04030201;
    const auto pos = std::bit_cast<tvok_IconPos>(packed);
    EXPECT_EQ(pos.Height, 1);
    EXPECT_EQ(pos.width, 2);
    EXPECT_EQ(pos.Top, 3);
    EXPECT_EQ(pos.Left, 4);
    EXPECT_EQ(UnpackIconPos(packed), pos);
    EXPECT_EQ(PackIconPos(pos), packed);
}

TEST(Records, IconPosOfMinusOneIsFourBytesOf255) {
    EXPECT_EQ(UnpackIconPos(-1), (tvok_IconPos{255, 255, 255, 255}));
    EXPECT_EQ(PackIconPos({255, 255, 255, 255}), -1);
}

TEST(Records, TheListsDefaultIconIsSixteenBySixteenAtOneOne) {
    EXPECT_EQ(cDefaultIconPos, 16846864);
    EXPECT_EQ(UnpackIconPos(cDefaultIconPos), (tvok_IconPos{16, 16, 1, 1}));
}

TEST(Records, ItemHasTenFieldsInTheirOrderWithTheirTypes) {
    const qrosterdata item{"t", "k", 1, 2, 3, 4, 5, 6, 7, 8};
    const auto& [text, key, iconId, iconBackColor, iconPos, itemData, itemDataEx, bColor, fcolor, flags] =
        item;
    EXPECT_EQ(text, item.text);
    EXPECT_EQ(key, item.key);
    EXPECT_EQ(item.IconID, 1);
    EXPECT_EQ(item.IconBackColor, 2);
    EXPECT_EQ(item.IconPos, 3);
    EXPECT_EQ(item.ItemData, 4);
    EXPECT_EQ(item.ItemDataEx, 5);
    EXPECT_EQ(item.bColor, 6);
    EXPECT_EQ(item.fcolor, 7);
    EXPECT_EQ(item.vflag, 8);
    static_assert(Is<decltype(text), std::string> && Is<decltype(key), std::string>);
    static_assert(Is<decltype(iconId), std::int32_t> && Is<decltype(iconBackColor), OLE_COLOR> &&
                  Is<decltype(iconPos), std::int32_t> && Is<decltype(itemData), std::int32_t> &&
                  Is<decltype(itemDataEx), std::int32_t> && Is<decltype(bColor), OLE_COLOR> &&
                  Is<decltype(fcolor), OLE_COLOR> && Is<decltype(flags), std::int32_t>);
}

void ExpectDefaults(const qrosterdata& item) {
    EXPECT_EQ(item.text, "");
    EXPECT_EQ(item.key, "");
    EXPECT_EQ(item.IconID, -1);
    EXPECT_EQ(static_cast<std::uint32_t>(item.IconBackColor), 0x80000005u);
    EXPECT_EQ(item.IconPos, -1);
    EXPECT_EQ(item.ItemData, 0);
    EXPECT_EQ(item.ItemDataEx, 0);
    EXPECT_EQ(static_cast<std::uint32_t>(item.bColor), 0x80000005u);
    EXPECT_EQ(static_cast<std::uint32_t>(item.fcolor), 0x80000008u);
    EXPECT_EQ(item.vflag, 0);
}

TEST(Records, AFreshItemIsTheDefaultItem) {
    ExpectDefaults({});
}

TEST(Records, GetDefaultItemOverwritesEveryField) {
    qrosterdata item{"t", "k", 1, 2, 3, 4, 5, 6, 7, 8};
    GetDefaultItem(item);
    ExpectDefaults(item);
}

TEST(Records, TheZeroItemIsNotTheDefaultItem) {
    EXPECT_EQ(ZeroItem(), (qrosterdata{"", "", 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_NE(ZeroItem(), qrosterdata{});
}

TEST(Records, ItemFlagsHaveTheirBits) {
    const auto bits = [](std::int32_t flag) { return static_cast<std::uint32_t>(flag); };
    EXPECT_EQ(bits(vflag::FocusAlways), 0x00000001u);
    EXPECT_EQ(bits(vflag::Editor), 0x00000002u);
    EXPECT_EQ(bits(vflag::IconBorder), 0x00000004u);
    EXPECT_EQ(bits(vflag::IconBox), 0x00000008u);
    EXPECT_EQ(bits(vflag::TextAtEdge), 0x00000010u);
    EXPECT_EQ(bits(vflag::RightAligned), 0x00000020u);
    EXPECT_EQ(bits(vflag::IconOnBackground), 0x00000040u);
    EXPECT_EQ(bits(vflag::HostIcon), 0x00000080u);
    EXPECT_EQ(bits(vflag::HostText), 0x00000100u);
    EXPECT_EQ(bits(vflag::HostHead), 0x00000200u);
    EXPECT_EQ(bits(vflag::Bold), 0x00100000u);
    EXPECT_EQ(bits(vflag::Underline), 0x00200000u);
    EXPECT_EQ(bits(vflag::Italic), 0x00400000u);
    EXPECT_EQ(bits(vflag::Strikethrough), 0x00800000u);
    EXPECT_EQ(bits(vflag::Selected), 0x40000000u);
    EXPECT_EQ(bits(vflag::InUse), 0x80000000u);
}

TEST(Records, HeaderHasSevenFieldsInTheirOrderWithTheirTypes) {
    const qrosterheader header{"t", 1, "k", 2, 3, 4, 5};
    const auto& [text, width, key, fcolor, alignment, flags, font] = header;
    EXPECT_EQ(text, "t");
    EXPECT_EQ(header.hWidth, 1);
    EXPECT_EQ(header.key, "k");
    EXPECT_EQ(header.fcolor, 2);
    EXPECT_EQ(header.Alignment, 3);
    EXPECT_EQ(header.vflag, 4);
    EXPECT_EQ(header.lFont, 5);
    static_assert(Is<decltype(width), std::int32_t> && Is<decltype(key), std::string> &&
                  Is<decltype(fcolor), OLE_COLOR> && Is<decltype(alignment), std::int16_t> &&
                  Is<decltype(flags), std::int32_t> && Is<decltype(font), std::int32_t>);
}

TEST(Records, RowOfAPropertyListHasNineFieldsInTheirOrderWithTheirTypes) {
    elistdata row;
    const auto& [pKey, hItem, item, nData, xbuttons, bDelete, bVisible, bParentItem, helpStr] = row;
    EXPECT_EQ(&pKey, &row.pKey);
    EXPECT_EQ(&hItem, &row.hItem);
    EXPECT_EQ(&item, &row.item);
    EXPECT_EQ(&nData, &row.nData);
    EXPECT_EQ(&xbuttons, &row.xbuttons);
    EXPECT_EQ(&bDelete, &row.bDelete);
    EXPECT_EQ(&bVisible, &row.bVisible);
    EXPECT_EQ(&bParentItem, &row.bParentItem);
    EXPECT_EQ(&helpStr, &row.HelpStr);
    static_assert(Is<decltype(hItem), qrosterdata> && Is<decltype(item), qrosterdata> &&
                  Is<decltype(nData), Variant> && Is<decltype(bParentItem), bool> &&
                  Is<decltype(helpStr), std::string>);
}

TEST(Records, EnumerationsHaveTheirValues) {
    EXPECT_EQ(bNoneSorted, 0);
    EXPECT_EQ(bAscendingSorted, 1);
    EXPECT_EQ(bDescendingSorted, 2);
    EXPECT_EQ(bItemDataAscendingSorted, 3);
    EXPECT_EQ(bItemDataDescendingSorted, 4);
    EXPECT_EQ(PAL8x2, 0);
    EXPECT_EQ(PAL8x8, 1);
    EXPECT_EQ(PAL16x8, 2);
    EXPECT_EQ(PAL24x8, 3);
    EXPECT_EQ(PAL24x10, 4);
    EXPECT_EQ(PAL_SYSCOLOR, 5);
    EXPECT_EQ(bExDrawIcon, 128);
    EXPECT_EQ(bExDrawText, 256);
    EXPECT_EQ(bExDrawHead, 512);
    static_assert(sizeof(Const_SortedMode) == 4 && sizeof(PAL_SIZEXY) == 4);
}

TEST(Records, DefaultColoursAreSystemColours) {
    const auto bits = [](OLE_COLOR color) { return static_cast<std::uint32_t>(color); };
    EXPECT_EQ(bits(cWindowBackground), 0x80000005u);
    EXPECT_EQ(bits(cWindowFrame), 0x80000006u);
    EXPECT_EQ(bits(cWindowText), 0x80000008u);
    EXPECT_EQ(bits(cHighlight), 0x8000000Du);
    EXPECT_EQ(bits(cButtonFace), 0x8000000Fu);
    EXPECT_EQ(bits(c3DLight), 0x80000016u);
}

TEST(ExDrawCallback, PassesItsNineArgumentsOnInOrder) {
    cExdrawCallback callback;
    std::vector<std::int32_t> seen;
    std::string seenKey;
    callback.ExDrawCallback = [&](std::int32_t& message, std::int32_t index, const std::string& key,
                                  std::int32_t hDC, std::int32_t cy, std::int32_t x, std::int32_t y,
                                  std::int32_t w, std::int32_t h) {
        seen = {message, index, hDC, cy, x, y, w, h};
        seenKey = key;
    };
    std::int32_t message = 1;
    callback.RaiseExDraw(message, 2, "key", 4, 5, 6, 7, 8, 9);
    EXPECT_EQ(seen, (std::vector<std::int32_t>{1, 2, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(seenKey, "key");
}

TEST(ExDrawCallback, ResultIsEmptyWhateverTheHandlerDoes) {
    cExdrawCallback callback;
    std::int32_t message = 128;
    EXPECT_TRUE(callback.RaiseExDraw(message, 1, "", 0, 0, 0, 0, 0, 0).IsEmpty());
    callback.ExDrawCallback = [](std::int32_t& m, std::int32_t, const std::string&, std::int32_t,
                                 std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                                 std::int32_t) { m = 77; };
    EXPECT_TRUE(callback.RaiseExDraw(message, 1, "", 0, 0, 0, 0, 0, 0).IsEmpty());
    EXPECT_EQ(message, 77) << "the message goes by reference";
}

TEST(MsgCallBack, ResultIsWhatTheHandlerLeaves) {
    cMsgCallBack callback;
    std::vector<std::int32_t> seen;
    bool cameIn = false;
    callback.CallBack = [&](std::int32_t message, std::int32_t wParam, std::int32_t lParam, bool& process) {
        seen = {message, wParam, lParam};
        cameIn = process;
        process = !process;
    };
    bool process = true;
    EXPECT_FALSE(callback.RaiseCallBack(1, 2, 3, process));
    EXPECT_TRUE(cameIn);
    EXPECT_FALSE(process);
    EXPECT_EQ(seen, (std::vector<std::int32_t>{1, 2, 3}));
    EXPECT_TRUE(callback.RaiseCallBack(1, 2, 3, process));
    EXPECT_FALSE(cameIn);
}

TEST(MsgCallBack, WithoutAHandlerTheBooleanComesBackAsItCame) {
    cMsgCallBack callback;
    bool process = true;
    EXPECT_TRUE(callback.RaiseCallBack(1, 2, 3, process));
    process = false;
    EXPECT_FALSE(callback.RaiseCallBack(1, 2, 3, process));
}

TEST(Tvoklib, HasNoMembers) {
    static_assert(std::is_empty_v<ctvoklib>);
}

} // namespace
} // namespace tvok
