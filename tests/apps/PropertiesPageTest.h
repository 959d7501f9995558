/// The gallery's property list on a desktop, for the tests of its rows and of their editors.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "apps/gallery/PropertiesPage.h"
#include "tests/support/TestDesktop.h"

namespace gallery {

class PropertiesPageTest : public testing::Test {
protected:
    PropertiesPageTest() {
        desktop_.form().Size(980, 640);
        page_.Layout({0, 0, 980, 640});
        page_.list().SetToSystemfont(); // of the desktop that the tests pin
        desktop_.Pump();
    }

    tvok::elistdata Item(const std::string& key) {
        tvok::elistdata item;
        page_.list().GetItem(item, key);
        return item;
    }
    std::string Value(const std::string& key) { return Item(key).item.text; }
    std::string Current() {
        tvok::elistdata item;
        page_.list().GetItem(item, {}, page_.list().ListIndex());
        return item.hItem.key;
    }
    std::vector<std::string> Rows() {
        std::vector<std::string> keys;
        tvok::elistdata item;
        for (std::int32_t row = 1; row <= page_.list().Count(); ++row) {
            page_.list().GetItem(item, {}, row);
            keys.push_back(item.hItem.key);
        }
        return keys;
    }

    /// A click on the row's caption, wherever the list has it.
    void ClickRow(const std::string& key) {
        page_.list().ShowItem(key);
        const tvok::tvok_Rect place = ValueArea();
        desktop_.Click(page_.list(), place.Left - 30, (place.Top + place.bottom) / 2);
        ASSERT_EQ(Current(), key);
    }
    /// Of the current row, in pixels of the list.
    tvok::tvok_Rect ValueArea() {
        tvok::tvok_Rect place;
        EXPECT_TRUE(page_.list().GetItemRect(page_.list().ListIndex(), place));
        tvok::host::Point from{place.Left, place.Top};
        tvok::host::Point to{place.Right, place.bottom};
        tvok::host::platform().ScreenToClient(page_.list().hwnd(), from);
        tvok::host::platform().ScreenToClient(page_.list().hwnd(), to);
        return {from.x, from.y, to.x, to.y};
    }
    /// Presses a button of the current row's strip, counted from the right.
    void PressButton(std::int32_t button) {
        const tvok::tvok_Rect place = ValueArea();
        const std::int32_t side = place.bottom - place.Top;
        desktop_.clock().now += std::chrono::seconds(1);
        desktop_.Press(page_.list(), place.Right - side * button + side / 2, place.Top + side / 2);
    }
    void ClickButton(std::int32_t button) {
        PressButton(button);
        desktop_.Release();
    }
    /// In the popup below the current row, from its left upper corner.
    void MoveInPopup(std::int32_t x, std::int32_t y) {
        const tvok::tvok_Rect place = ValueArea();
        desktop_.MoveTo(page_.list(), place.Left + x, place.bottom + y);
    }

    bool HasFocus(const tvok::host::Control& control) {
        return tvok::host::platform().GetFocus() == desktop_.WindowOf(control);
    }
    bool Shows(const tvok::host::Control& control) { return desktop_.form().ComponentOf(control).Visible(); }

    tvok::test::TestDesktop desktop_;
    PropertiesPage page_{desktop_.desktop(), desktop_.form()};
};

} // namespace gallery
