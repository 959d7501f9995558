/// A headless desktop with one large list that fills a form, and the hands of its user.
#pragma once

#include <charconv>
#include <cstdint>
#include <string>

#include "tvok/tvok.h"

#include "tvok/host/desktop/windows/SoftHooks.h"
#include "tvok/host/desktop/windows/World.h"

namespace tvok::bench {

/// Client size of the form in pixels: a header and 49 whole rows with their grid lines.
constexpr std::int32_t cListWidth = 1280, cListHeight = 900, cListStep = 18;
constexpr std::int32_t cListColumns = 6, cListColumnWidth = 206;

inline void AppendNumber(std::string& text, std::int64_t number) {
    char digits[24];
    text.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

class LargeListPage {
public:
    LargeListPage()
        : desktop_({.display = DesktopOptions::Display::Headless,
                    .fontFile = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",
                    .language = "en"}) {
        desktop_.AddForm("stays", 1, 1); // a desktop whose last form was closed is over
    }

    /// Opens a form with a list of `count` rows and paints it. `fill` writes the cells of a row, between
    /// tabs.
    template<class Fill>
    void Open(std::int32_t count, Fill fill, std::int16_t viewMode = 1) {
        form_ = &desktop_.AddForm("list", cListWidth, cListHeight);
        list_ = &form_->Add<qRosterex>("list", {0, 0, cListWidth, cListHeight});
        list_->LockedPaint(true); // nothing shows while it is set up
        list_->BorderStyle(0);
        list_->CX_TEXT(0);
        list_->HeaderHeight(cListStep);
        list_->GridlineWidth(1);
        list_->ItemHeight(cListStep - 1);
        for (int column = 1; column <= cListColumns; ++column)
            list_->HeaderAdd(0, "Column " + std::to_string(column), cListColumnWidth);
        list_->events.EnumDATA = [this, fill](std::int32_t& row, qrosterdata& record) {
            ++asked;
            record.text.clear();
            fill(row, record.text);
            record.bColor = cWindowBackground;
            record.fcolor = cWindowText;
            record.IconPos = 0;
            record.vflag = 0;
        };
        list_->ViewMode(viewMode);
        list_->LockedPaint(false);
        list_->Count(count);
        Pump();
    }
    void Close() {
        if (form_) form_->Close();
        form_ = nullptr;
        Pump();
    }

    Desktop& desktop() { return desktop_; }
    Form& form() { return *form_; }
    qRosterex& list() { return *list_; }
    soft::SoftMessageHook& Bars() {
        return *desktop_.world().hooks.messages.Newest(form_->ComponentOf(*list_).hWnd());
    }
    std::int32_t Position() { return Bars().ScrollValue(); }

    void Pump() { desktop_.ProcessEvents({}); }
    void ScrollTo(std::int32_t position) {
        Bars().ScrollValue(position);
        Pump();
    }
    void MoveTo(std::int32_t x, std::int32_t y) {
        host::Point point{x, y};
        host::platform().ClientToScreen(form_->ComponentOf(*list_).hWnd(), point);
        desktop_.Input().MouseMove(point.x, point.y);
        Pump();
    }
    void MoveToArrow() {
        MoveTo(cListWidth - cListStep / 2, cListHeight - 5);
    } ///< Of the vertical bar: down.
    void MoveToTrack() { MoveTo(cListWidth - cListStep / 2, cListHeight - 22); } ///< Below the thumb.
    void Click() {
        desktop_.Input().MouseDown(desktop::MouseButton::Left);
        desktop_.Input().MouseUp(desktop::MouseButton::Left);
        Pump();
    }
    void ClickAt(std::int32_t x, std::int32_t y) {
        MoveTo(x, y);
        Click();
    }
    void Key(std::int32_t key) {
        desktop_.Input().KeyDown(key);
        desktop_.Input().KeyUp(key);
        Pump();
    }

    std::int64_t asked = 0; ///< Rows that the list asked for.

private:
    Desktop desktop_;
    Form* form_ = nullptr;
    qRosterex* list_ = nullptr;
};

} // namespace tvok::bench
