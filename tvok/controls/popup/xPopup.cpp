// Items, order and life cycle of `xPopup`.
#include "tvok/controls/popup/xPopup.h"

#include <algorithm>

#include "tvok/controls/popup/itemdatasort.h"
#include "tvok/engine/dgi.h"
#include "tvok/engine/persistence.h"
#include "tvok/host/ComponentSettings.h"
#include "tvok/host/Services.h"
#include "tvok/records/numeric.h"

namespace tvok {

namespace {

constexpr std::int32_t cFirstCellBound = 10;
constexpr std::int32_t cGrowth = 5;
constexpr std::int32_t cVirtualSlot = 1;  // the one record of the virtual mode
constexpr std::int32_t cVirtualBound = 2; // and how far the slots reach for it
constexpr float cPlaceholderWidth = 18;   // in pixels
constexpr float cPlaceholderHeight = 17;

} // namespace

xPopup::xPopup() = default;
xPopup::~xPopup() = default;

host::Component& xPopup::Base() const {
    if (component_ == nullptr) throw ObjectError("xPopup: the control is not on a form");
    return *component_;
}

host::PictureWindow& xPopup::Picture() const {
    if (!picPopup_) throw ObjectError("xPopup: the control has no window before its start and after its end");
    return *picPopup_;
}

bool xPopup::UserMode() const {
    return Base().Ambient().UserMode();
}

// Items.

void xPopup::AddItem(const qrosterdata& x) {
    const std::int32_t count = ToInt32(std::int64_t{state_.Count} + 1);
    const auto bound = [count](std::int32_t present) {
        return present < count ? ToInt32(std::int64_t{count} + cGrowth) : present;
    };
    items_.Resize(bound(items_.UpperBound()));
    itemIndex_.Resize(bound(itemIndex_.UpperBound()));
    items_.Put(count, x);
    items_.PutFlags(count, x.vflag | vflag::InUse);
    itemIndex_[count] = count;
    state_.Count = count;
}

void xPopup::Clear() {
    items_.Reset();
    itemIndex_.Make(0);
    state_.Count = 0;
    state_.ListIndex = 0;
    virtualMode_ = false;
}

std::int32_t xPopup::Count() const {
    return state_.Count;
}

void xPopup::Count(std::int32_t items) {
    if (items < 0) return;
    if (itemIndex_.UpperBound() < items) {
        const std::int32_t scratch = itemIndex_[0];
        // Made anew and not grown: every other entry is written below, and growing could take twice the room.
        itemIndex_.Make(ToInt32(std::int64_t{items} + cGrowth));
        itemIndex_[0] = scratch;
    }
    items_.Resize(cVirtualBound);
    std::fill_n(itemIndex_.data() + 1, items, cVirtualSlot);
    state_.Count = items;
    virtualMode_ = true;
    state_.ListIndex = std::min(state_.ListIndex, items);
    Base().Refresh();
}

bool xPopup::GetData(std::int32_t Index, qrosterdata& ItemValue) const {
    // The range test of this operation lets every index pass, so nothing is refused and the result is true
    // whenever there is one. Hosts rely on index 0, which is the blank slot whatever entry 0 names.
    ItemValue = items_[Index == 0 ? 0 : itemIndex_[Index]];
    return true;
}

qrosterdata xPopup::DefaultItem() const {
    qrosterdata item;
    GetDefaultItem(item);
    return item;
}

std::string xPopup::ItemsStr() const {
    return UserMode() ? mtvok::BuildItemsStr(state_, items_, itemIndex_) : std::string();
}

void xPopup::ItemsStr(std::string_view text) {
    if (!UserMode()) return;
    Clear();
    mtvok::ParseItemsStr(state_, items_, itemIndex_, text);
}

std::int32_t xPopup::ListIndex() const {
    return state_.ListIndex;
}

void xPopup::SetSelectedBit(std::int32_t index, bool on) {
    const std::int32_t slot = itemIndex_[index]; // index 0 is entry 0, and the slot that it names is written
    const std::int32_t flags = items_[slot].vflag;
    items_.PutFlags(slot, on ? flags | vflag::Selected : flags & ~vflag::Selected);
}

// A handler may end the control, and then nothing more is raised; when it replaces the items, what follows
// works on the new ones, and where those are too few the step is skipped.
void xPopup::ListIndex(std::int32_t index) {
    if (index < 1 || index > state_.Count) return;
    std::int32_t old = state_.ListIndex;
    state_.ListIndex = index;
    if (old != index) {
        quietly(
            [&] {
                auto loan = items_.Lend(itemIndex_[index]);
                events.Change(index, loan.record());
            },
            [&] { SetSelectedBit(old, false); },
            [&] {
                if (picPopup_) DrawItem(old);
            });
    }
    quietly([&] { SetSelectedBit(index, true); },
            [&] {
                if (!picPopup_) return;
                const auto hook = WndHook_;
                const bool painted = OnShownGrid([&](const ListState& state) {
                    return mtvok::EnsureItemVisible(hook.get(), state, index, true);
                });
                if (!painted) DrawItem(index);
            });
}

void xPopup::CalTextWidth() {
    std::int32_t widest = 0;
    const host::Handle hDC = Base().hDC(); // its font, not the popup's own: hosts count on these widths
    for (std::int32_t slot = 1; slot <= state_.Count; ++slot) {
        const std::string& text = items_[slot].text;
        tvok_Rect size;
        host::platform().DrawTextA(hDC, text.data(), static_cast<std::int32_t>(text.size()), size,
                                   host::DT_CALCRECT | host::DT_SINGLELINE);
        widest = std::max(widest, size.Right);
    }
    constexpr std::int64_t kMargin = 10;
    textWidth_ = ToInt32(std::int64_t{widest} + state_.CX_TEXT + kMargin);
}

// Order.

std::int32_t xPopup::SortedMode() const {
    return state_.SortedMode;
}

void xPopup::SortedMode(std::int32_t mode) {
    state_.SortedMode = mode;
    if (state_.Count < 1 || mode == bNoneSorted) return;
    const std::int32_t current = state_.ListIndex == 0 ? 0 : itemIndex_[state_.ListIndex];
    SortNow(mode);
    state_.ListIndex = mtvok::PositionOfSlot(current, itemIndex_, state_.Count);
    host::platform().InvalidateRect(state_.hWnd, &state_.ClientRect, false);
    host::platform().UpdateWindow(state_.hWnd);
}

void xPopup::SortNow(std::int32_t mode) {
    switch (mode) {
    case bAscendingSorted:
    case bDescendingSorted:
        // Case matters here, where the lists on a form ignore it.
        return mtvok::SortIndexByText(items_, itemIndex_, 1, state_.Count, mode == bAscendingSorted, true);
    case bItemDataAscendingSorted:
    case bItemDataDescendingSorted:
        return popup::SortIndexByItemData(items_, itemIndex_, 1, state_.Count,
                                          mode == bItemDataAscendingSorted);
    default: return; // the order stays, and the repaint follows all the same
    }
}

// Life cycle.

void xPopup::Initialize(host::Component& component) {
    component_ = &component;
    picPopup_ = component.CreatePicture();
    cells_.Make(cFirstCellBound, cFirstCellBound);
    state_.hWnd = Picture().hWnd();
    state_.hDC = Picture().hDC();
    // A tool window gets no task bar entry once it floats.
    host::platform().SetWindowExStyle(state_.hWnd, host::WS_EX_TOOLWINDOW);
    state_.FontObj = Picture().Font();
    entered_ = false;
    msDownNC_ = false;
    Clear();
}

void xPopup::InitProperties() {
    mtvok::InitListProperties(state_);
    state_.FontObj = Picture().Font();
}

// "Font" is written and never read: a font chosen in a designer does not come back. Hosts set it in code.
void xPopup::ReadProperties(host::PropertyBag& bag) {
    mtvok::ReadListProperties(bag, state_);
    host::ReadFontTransparent(bag, Picture());
    state_.TextHeight = TextHeight();
    state_.XnAuto = false; // the two keys are read and have no effect on a popup
    state_.FixedWidthForLastXn = false;
    if (!UserMode()) return;
    Base().Visible(false); // the placeholder shows nothing at run time
    CreateHooks();
}

void xPopup::WriteProperties(host::PropertyBag& bag) {
    mtvok::WriteListProperties(bag, state_);
    host::WriteFont(bag, Picture(), Base().Ambient());
    host::WriteFontTransparent(bag, Picture());
}

void xPopup::Resize() {
    const host::Screen& screen = host::services().Screen();
    // This leads to a nested Resize, which then finds the size right.
    Base().Size(cPlaceholderWidth * screen.TwipsPerPixelX(), cPlaceholderHeight * screen.TwipsPerPixelY());
}

void xPopup::Paint() {
    if (UserMode()) return;
    tvok_Rect rect;
    host::platform().GetClientRect(Base().hWnd(), rect);
    host::platform().DrawFrameControl(Base().hDC(), rect, host::DFC_SCROLL, host::DFCS_SCROLLCOMBOBOX);
}

void xPopup::Terminate() {
    const auto hook = WndHook_;
    quietly([&] { HookFocus_.reset(); }, [&] { HookKeyboard_.reset(); },
            [&] {
                if (hook) hook->HookDetach();
            },
            [&] { HookMouse_.reset(); }, [&] { cbExDraw_.reset(); }, [&] { WndHook_.reset(); },
            [&] { state_.FontObj.reset(); }, [&] { picPopup_.reset(); });
    component_ = nullptr;
}

} // namespace tvok
