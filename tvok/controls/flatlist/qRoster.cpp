// Items, painting and life cycle of `qRoster`.
#include "tvok/controls/flatlist/qRoster.h"

#include <algorithm>

#include "tvok/engine/WindowPaint.h"
#include "tvok/engine/designframe.h"
#include "tvok/engine/dgi.h"
#include "tvok/engine/persistence.h"
#include "tvok/host/ComponentSettings.h"
#include "tvok/host/Services.h"
#include "tvok/records/numeric.h"

namespace tvok {

namespace {

constexpr std::int32_t cFirstCellBound = 20;
constexpr std::int32_t cIndexGrowth = 5;
constexpr std::int32_t cOwnedFlags = static_cast<std::int32_t>(0xE0000000u); // what `SetData` keeps
constexpr std::int32_t cHostFlags = 0x1FFFFFFF;

} // namespace

qRoster::qRoster() = default;
qRoster::~qRoster() = default;

host::Component& qRoster::Base() const {
    if (component_ == nullptr) throw ObjectError("qRoster: the control is not on a form");
    return *component_;
}

bool qRoster::UserMode() const {
    return Base().Ambient().UserMode();
}

// Items.

void qRoster::ResetItems() {
    items_.Reset();
    itemIndex_.Make(0);
    state_.Count = 0;
    state_.ListIndex = 0;
    pendingRemove_ = false;
    lastWParam_ = 0;
    lastLParam_ = 0;
    ++listEnds_;
    // freeSlot_ keeps its value: a list that is filled again starts its search where the old one stopped.
}

std::int32_t qRoster::FreeSlotForNewItem() {
    std::int32_t slot = items_.FirstFree(freeSlot_);
    if (slot <= 0) { // a free slot 0 counts as none: it is the blank record
        slot = ToInt32(std::int64_t{items_.UpperBound()} + 1);
        items_.Resize(slot);
    }
    freeSlot_ = ToInt32(std::int64_t{slot} + 1);
    return slot;
}

bool qRoster::AddItem(std::int32_t Index, const qrosterdata& ItemValue) {
    const std::int32_t count = ToInt32(std::int64_t{state_.Count} + 1);
    const std::int32_t slot = FreeSlotForNewItem();
    items_.Put(slot, ItemValue);
    items_.PutFlags(slot, ItemValue.vflag | vflag::InUse);

    state_.Count = count;
    if (itemIndex_.UpperBound() < count) itemIndex_.Resize(ToInt32(std::int64_t{count} + cIndexGrowth));
    if (Index >= count || Index < 1) {
        itemIndex_[count] = slot;
        return false;
    }
    std::int32_t* const entries = itemIndex_.data();
    std::copy_backward(entries + Index, entries + count, entries + count + 1);
    entries[Index] = slot;
    if (state_.ListIndex > 0)
        state_.ListIndex =
            std::min(state_.ListIndex < Index ? state_.ListIndex : state_.ListIndex + 1, count);
    return false;
}

void qRoster::RemoveItem(std::int32_t Index) {
    // The range test of this operation asks for an index below 1 and above `Count` at once, so nothing is
    // refused: an index up to the array's bound is marked, one beyond it is the subscript error. Hosts rely
    // on index 0.
    const std::int32_t slot = itemIndex_[Index];
    items_.PutFlags(slot, 0);
    freeSlot_ = slot;
    itemIndex_[Index] = 0;
    pendingRemove_ = true;
}

bool qRoster::GetData(std::int32_t Index, qrosterdata& ItemValue) const {
    // As in RemoveItem nothing is refused, so the result is true whenever there is one.
    ItemValue = items_[itemIndex_[Index]];
    return true;
}

void qRoster::SetData(std::int32_t Index, const qrosterdata& x, bool lupdate) {
    if (Index < 1 || Index > state_.Count) return;
    quietly(
        [&] {
            const std::int32_t slot = itemIndex_[Index];
            const std::int32_t kept = items_[slot].vflag & cOwnedFlags;
            const std::int32_t given = x.vflag & cHostFlags;
            items_.Put(slot, x);
            items_.PutFlags(slot, kept | given | vflag::InUse);
        },
        [&] {
            if (lupdate) DrawItem(Index);
        });
}

void qRoster::Clear() {
    ResetItems();
    const auto hook = WMHOOK_;
    if (!hook) throw ObjectError("qRoster: no message hook at design time");
    hook->ScrollMax(0);
    hook->ScrollValue(0);
    hook->ScrollHMax(0);
    hook->ScrollHValue(0);
    Refresh();
}

void qRoster::Compact() {
    std::int32_t kept = 0;
    std::int32_t* const entries = itemIndex_.data();
    for (std::int32_t i = 1; i <= state_.Count; ++i)
        if (entries[i] != 0) entries[++kept] = entries[i];
    if (kept != state_.Count) {
        state_.Count = kept;
        state_.ListIndex = std::min(state_.ListIndex, kept);
    }
    pendingRemove_ = false;
}

std::int32_t qRoster::Count() const {
    return state_.Count;
}

qrosterdata qRoster::DefaultItem() const {
    qrosterdata item;
    GetDefaultItem(item);
    return item;
}

std::string qRoster::ItemsStr() const {
    return UserMode() ? mtvok::BuildItemsStr(state_, items_, itemIndex_) : std::string();
}

void qRoster::ItemsStr(std::string_view text) {
    if (!UserMode()) return;
    Clear();
    mtvok::ParseItemsStr(state_, items_, itemIndex_, text);
}

std::int32_t qRoster::FindItem(std::string_view text, bool bSelected) {
    if (state_.Count == 0) return 0;
    const std::int32_t found = mtvok::FindItemText(state_, items_, itemIndex_, text);
    if (bSelected && found >= 1) ListIndex(found); // `Count` + 1, for no match, is refused there
    return found;
}

void qRoster::StrSeekItem(std::string_view text) {
    if (state_.Count >= 1) ListIndex(mtvok::SeekItemPrefix(state_, items_, itemIndex_, text));
}

std::int32_t qRoster::SortedMode() const {
    return state_.SortedMode;
}

void qRoster::SortedMode(std::int32_t mode) {
    state_.SortedMode = mode;
    mtvok::ResortItems(state_, items_, itemIndex_);
}

// Painting.

void qRoster::Refresh() {
    if (pendingRemove_) Compact();
    const auto hook = WMHOOK_;
    mtvok::UpdateScrollRange(hook.get(), state_);
    mtvok::BuildCellGrid(cells_, state_);
    PaintAll();
}

void qRoster::PaintAll() {
    const auto callback = cbExDraw_; // a handler may end the control
    if (callback) mtvok::DrawItems(state_, state_.ClientRect, items_, itemIndex_, cells_, *callback, false);
}

void qRoster::DrawItem(std::int32_t Index) {
    const auto callback = cbExDraw_;
    if (callback) mtvok::DrawItemAt(state_, Index, items_, itemIndex_, cells_, *callback, 0, 0, false);
}

void qRoster::PaintInRunMode() {
    if (UserMode()) PaintAll();
}

void qRoster::RefreshInRunMode() {
    if (UserMode()) Refresh();
}

void qRoster::ResizeInRunMode() {
    if (!UserMode()) return;
    ResetSize();
    Refresh();
}

void qRoster::ResetSize() {
    quietly(
        [&] {
            const std::int32_t height = mtvok::ComputeFitHeight(state_, 0);
            // This leads to a nested Resize, which then finds the height right.
            if (height > 0) Base().Height(static_cast<float>(height));
        },
        [&] { mtvok::ComputeFitWidth(state_); }); // called for its effect on xn
}

// Life cycle.

void qRoster::Initialize(host::Component& component) {
    component_ = &component;
    cells_.Make(cFirstCellBound, cFirstCellBound);
    state_.FocusHwnd = component.hWnd();
    state_.hWnd = component.hWnd();
    state_.hDC = component.hDC();
    cbExDraw_ = std::make_shared<cExdrawCallback>();
    cbExDraw_->ExDrawCallback = [this](std::int32_t& Msg, std::int32_t Index, const std::string& key,
                                       std::int32_t mHdc, std::int32_t cy, std::int32_t x, std::int32_t Y,
                                       std::int32_t w, std::int32_t h) {
        events.ExDraw(Msg, Index, key, mHdc, cy, x, Y, w, h);
    };
    ResetItems();
}

void qRoster::InitProperties() {
    // TextHeight stays 0 until SetToSystemfont or the next load: a new control has no line height of its own
    // yet.
    mtvok::InitListProperties(state_);
    host::Assign(*Base().Font(), Base().Ambient().Font());
    state_.FontObj = Base().Font();
    mtvok::ParseColWidths(state_);
}

void qRoster::ReadProperties(host::PropertyBag& bag) {
    host::Component& base = Base();
    mtvok::ReadListProperties(bag, state_);
    state_.FontObj = base.Font();
    host::ReadAppearance(bag, base);
    MultiSelect(host::Read(bag, "MultiSelect", std::int32_t{0}));
    host::ReadBorderStyle(bag, base);
    host::ReadFont(bag, base, base.Ambient());
    state_.FontObj = base.Font();
    host::ReadFontTransparent(bag, base);

    state_.TextHeight = TextHeight();
    mtvok::ParseColWidths(state_);
    ResetSize();
    base.BackColor(state_.BackColor);
    if (UserMode()) {
        AttachHook();
        Refresh();
    }
}

void qRoster::WriteProperties(host::PropertyBag& bag) {
    const host::Component& base = Base();
    mtvok::WriteListProperties(bag, state_);
    host::WriteAppearance(bag, base);
    bag.WriteProperty("MultiSelect", multiSelect_, std::int32_t{0});
    host::WriteBorderStyle(bag, base);
    host::WriteFont(bag, base, base.Ambient());
    host::WriteFontTransparent(bag, base);
}

void qRoster::Resize() {
    quietly([&] { ResetSize(); }, [&] { Refresh(); });
}

void qRoster::Paint() {
    if (!UserMode()) mtvok::DrawDesignFrame(state_.hWnd, state_.hDC, Base().Ambient().DisplayName());
}

void qRoster::Terminate() {
    ++listEnds_;
    const auto hook = WMHOOK_;
    quietly(
        [&] {
            if (hook) hook->HookDetach();
        },
        [&] { WMHOOK_.reset(); }, [&] { cbExDraw_.reset(); }, [&] { state_.FontObj.reset(); });
    component_ = nullptr; // it may go before this object does
}

// Messages.

void qRoster::AttachHook() {
    WMHOOK_ = host::services().CreateMessageHook();
    WMHOOK_->events.RtMsg = [this](std::int32_t message, std::int32_t wParam, std::int32_t lParam,
                                   std::int32_t&,
                                   bool& fMsgProcess) { WMHOOK_RtMsg(message, wParam, lParam, fMsgProcess); };
    WMHOOK_->events.Change = [this](std::int32_t value, std::int32_t, std::int32_t) { WMHOOK_Change(value); };
    WMHOOK_->events.Scroll = [this](std::int32_t value, std::int32_t, std::int32_t) { WMHOOK_Change(value); };
    WMHOOK_->HookMode(3);
    bool flag = false;
    WMHOOK_->HookAttach(state_.hWnd, flag);
}

void qRoster::WMHOOK_RtMsg(std::int32_t message, std::int32_t wParam, std::int32_t lParam,
                           bool& fMsgProcess) {
    if (message == host::WM_PAINT) {
        PaintUpdateRegion();
        fMsgProcess = true; // nothing is left to paint, so the window's own processing finds nothing to do
    } else if (multiSelect_ != 0) {
        MouseMulti(message, wParam, lParam);
    } else {
        MouseSingle(message, wParam, lParam);
    }
}

void qRoster::PaintUpdateRegion() {
    const auto callback = cbExDraw_;
    if (!callback) return;
    const WindowPaint paint(state_.hWnd);
    mtvok::DrawItems(state_, paint.rect(), items_, itemIndex_, cells_, *callback, false);
}

void qRoster::WMHOOK_Change(std::int32_t value) {
    const tvok_Rect client = state_.ClientRect;
    const std::int64_t pitch = std::int64_t{state_.GridlineWidth} + state_.ItemHeight;
    const std::int32_t distance = ToInt32((std::int64_t{state_.LastTop} - value) * pitch);
    state_.TopRow = value;
    tvok_Rect uncovered;
    host::platform().ScrollDC(state_.hDC, 0, distance, &client, &client, 0, &uncovered);
    // The pixels stand at `value` from here on, also where a handler scrolls again or throws during the
    // repaint.
    state_.LastTop = value;
    host::platform().InvalidateRect(state_.hWnd, &uncovered, false);
    host::platform().UpdateWindow(state_.hWnd);
}

} // namespace tvok
