// Rows, buffer, life cycle and members of `qRosterex`.
#include "tvok/controls/largelist/qRosterex.h"

#include <algorithm>

#include "tvok/controls/largelist/qRosterex_impl.h"
#include "tvok/engine/designframe.h"
#include "tvok/engine/persistence.h"
#include "tvok/host/ComponentSettings.h"
#include "tvok/host/Services.h"
#include "tvok/records/numeric.h"

namespace tvok {

namespace {

constexpr std::int32_t cCacheModulus = 128;
constexpr std::int32_t cScreensPerColumn = 3;
constexpr std::int32_t cFirstSlots = 100;

} // namespace

qRosterex::qRosterex() : impl_(std::make_unique<Impl>(*this)) {
    impl_->rowCache.assign(cCacheModulus + 1, ZeroItem());
}
qRosterex::~qRosterex() = default;

host::Component& qRosterex::Impl::Base() const {
    if (component == nullptr) throw ObjectError("qRosterex: the control is not on a form");
    return *component;
}

bool qRosterex::Impl::UserMode() const {
    return Base().Ambient().UserMode();
}

std::shared_ptr<host::MessageHook> qRosterex::Impl::Hook() const {
    if (!hook) throw ObjectError("qRosterex: no message hook at design time");
    return hook;
}

// Rows.

void qRosterex::Impl::ResetRows() {
    state.Count = 0;
    state.ListIndex = 0;
    layoutBusy = false;
    lastButtons = 0;
    lastPoint = 0;
    selAnchor = 0;
    selEnd = 0; // pendingCount and rangeActive keep their values
}

void qRosterex::AddItemTop(std::int32_t lBufData) {
    impl_->AddRow(0, lBufData);
}
void qRosterex::AddItemButtom(std::int32_t lBufData) {
    impl_->AddRow(1, lBufData);
}

std::int32_t qRosterex::Count() const {
    return impl_->state.Count;
}
void qRosterex::Count(std::int32_t rows) {
    if (rows < 0) return;
    impl_->state.Count = rows;
    ClearItemData(0, impl_->UserMode());
    if (impl_->ended) return;
    impl_->state.Count = rows; // again: a handler of the repaint may have added rows
    if (impl_->state.ListIndex > rows) impl_->state.ListIndex = rows; // without Change
    if (impl_->UserMode()) Refresh();
}

void qRosterex::Clear() {
    impl_->ResetRows();
    const auto hook = impl_->Hook();
    hook->ScrollMax(0);
    hook->ScrollValue(0);
    hook->ScrollHMax(0);
    hook->ScrollHValue(0);
    impl_->buffer.ClearCache();
    Refresh();
}

bool qRosterex::BufAddItemOnly() const {
    return impl_->bufAddItemOnly;
}
void qRosterex::BufAddItemOnly(bool on) {
    impl_->bufAddItemOnly = on;
}
std::int16_t qRosterex::ViewMode() const {
    return impl_->viewMode;
}
void qRosterex::ViewMode(std::int16_t mode) {
    impl_->Turn(mode);
}

qrosterdata qRosterex::DefaultItem() const {
    qrosterdata item;
    GetDefaultItem(item);
    return item;
}

std::int32_t qRosterex::FindItem(std::string_view, bool) {
    return 0;
}

// The buffer file.

bool qRosterex::Impl::HasBufferedRow(std::int32_t row) const {
    return buffer.IsOpen() && row >= 1 && row <= std::int64_t{state.Count} + pendingCount;
}

void qRosterex::FileBufCreate(std::int32_t lBufSize) {
    impl_->buffer.Close();
    quietly([&] { impl_->buffer.Create(host::services().TemporaryFiles(), lBufSize); });
}
std::int32_t qRosterex::FileBufValue(std::int32_t Index) const {
    return impl_->HasBufferedRow(Index) ? impl_->buffer.Read(Index) : 0;
}
void qRosterex::FileBufValue(std::int32_t Index, std::int32_t value) {
    if (impl_->HasBufferedRow(Index)) impl_->buffer.Write(Index, value);
}

// The row cache.

// A larger size clears the records like any change of it, but the modulus and what reads here stay as they
// were made: hosts size their work by 128 places. Records beyond them would hold no row, so there are none.
std::int32_t qRosterex::CacheSize() const {
    return cCacheModulus;
}
void qRosterex::CacheSize(std::int32_t size) {
    if (size <= cCacheModulus) return;
    ClearItemData(0, impl_->UserMode());
}

void qRosterex::ClearItemData(std::int32_t Index, bool fUpdate) {
    auto& cache = impl_->rowCache;
    if (Index == 0) {
        for (qrosterdata& record : cache) record.ItemData = 0;
        if (fUpdate) PaintAll();
        return;
    }
    for (qrosterdata& record : cache) {
        if (record.ItemData != Index) continue;
        record.ItemData = 0;
        if (fUpdate) DrawItem(record.ItemDataEx);
    }
}

// Columns.

std::int32_t qRosterex::Impl::MaxColumnWidth() const {
    const host::Screen& screen = host::services().Screen();
    const std::int32_t width = RoundToInt32(screen.Width());
    const std::int32_t perPixel = RoundToInt32(screen.TwipsPerPixelX());
    if (perPixel == 0) throw OverflowError("a screen with less than half a twip for each pixel has no width");
    return ToInt32(std::int64_t{width / perPixel} * cScreensPerColumn);
}

void qRosterex::HeaderAdd(std::int16_t Index, std::string_view lText, std::int32_t lWidth,
                          std::string_view lKey, std::int16_t lAlignment, OLE_COLOR fcolor,
                          std::int32_t vflag) {
    std::int32_t maxWidth = INT32_MAX; // without a screen there is no maximum, but there is a column
    quietly([&] { maxWidth = impl_->MaxColumnWidth(); },
            [&] {
                const qrosterheader column{
                    std::string(lText), lWidth, std::string(lKey), fcolor, lAlignment, vflag, 0};
                impl_->columns.Add(Index, column, maxWidth);
            });
}
void qRosterex::HeaderClear() {
    impl_->columns.Clear();
}
qrosterheader qRosterex::HeaderGet(std::int32_t Index) const {
    return impl_->columns.Get(Index);
}
void qRosterex::HeaderSet(std::int32_t Index, const qrosterheader& nValue) {
    if (impl_->columns.Has(Index)) impl_->columns.Set(Index, nValue, impl_->MaxColumnWidth());
}
std::int32_t qRosterex::HeaderCount() const {
    return impl_->columns.Count();
}
void qRosterex::HeaderCount(std::int32_t count) {
    impl_->columns.Count(count);
}
std::string qRosterex::HeaderWidths() const {
    return impl_->columns.Widths();
}
void qRosterex::HeaderWidths(std::string_view text) {
    quietly([&] {
        if (impl_->columns.Widths(text) && impl_->UserMode()) Refresh();
    });
}
std::int32_t qRosterex::HeaderHeight() const {
    return impl_->headerHeight;
}
void qRosterex::HeaderHeight(std::int32_t pixels) {
    impl_->headerHeight = pixels;
}
std::int32_t qRosterex::HeaderFlag() const {
    return impl_->headerFlag;
}
void qRosterex::HeaderFlag(std::int32_t flags) {
    impl_->headerFlag = flags;
}

// Painting and selection.

void qRosterex::Refresh() {
    impl_->Refresh();
}
void qRosterex::PaintAll() {
    impl_->PaintAll();
}
void qRosterex::DrawItem(std::int32_t Index) {
    impl_->DrawItem(Index);
}
bool qRosterex::LockedPaint() const {
    return impl_->lockedPaint;
}
void qRosterex::LockedPaint(bool on) {
    impl_->lockedPaint = on;
}

std::int32_t qRosterex::ListIndex() const {
    return impl_->state.ListIndex;
}
void qRosterex::ListIndex(std::int32_t row) {
    impl_->MoveToRow(row, true, false);
}
std::int32_t qRosterex::MultiSelect() const {
    return impl_->multiSelect;
}
void qRosterex::MultiSelect(std::int32_t mode) {
    if (mode < 0 || mode > 1) return;
    if (impl_->rangeActive && impl_->multiSelect == 1) impl_->MS_OFF();
    impl_->multiSelect = mode;
}
std::int32_t qRosterex::StartSelected() const {
    return impl_->rangeActive ? std::min(impl_->selAnchor, impl_->selEnd) : impl_->state.ListIndex;
}
std::int32_t qRosterex::EndSelected() const {
    return impl_->rangeActive ? std::max(impl_->selAnchor, impl_->selEnd) : impl_->state.ListIndex;
}
void qRosterex::ClearSelected(bool) {
    // Repaints whatever is asked for, and the range stays active: hosts rely on both.
    impl_->selAnchor = 0;
    impl_->selEnd = 0;
    PaintAll();
}
bool qRosterex::HotTrack() const {
    return impl_->state.HotTrack;
}
void qRosterex::HotTrack(bool on) {
    impl_->state.HotTrack = on;
}
bool qRosterex::KeySeek() const {
    return impl_->keySeek;
}
void qRosterex::KeySeek(bool on) {
    impl_->keySeek = on;
}
bool qRosterex::MouseDownOnIcon() const {
    return impl_->mouseDownOnIcon;
}
Const_SortedMode qRosterex::SortedMode() const {
    return bNoneSorted;
}

// Life cycle.

void qRosterex::Initialize(host::Component& component) {
    Impl& my = *impl_;
    my.ended = false; // a control that was removed may come back
    my.component = &component;
    my.state.hWnd = component.hWnd();
    my.state.hDC = component.hDC();
    my.state.FocusHwnd = component.hWnd();
    my.dragArmed = false;
    my.bufAddItemOnly = false;
    my.ResetRows();
    my.columns.Clear();
    my.rowRects = Array<tvok_Rect>(cFirstSlots);
    std::fill(my.rowCache.begin(), my.rowCache.end(), ZeroItem());
    my.buffer.ResetCache();
    my.viewMode = 0;
    my.keySeek = false;
    my.mouseDownOnIcon = false;
}

void qRosterex::InitProperties() {
    mtvok::InitListProperties(impl_->state);
    host::Assign(*impl_->Base().Font(), impl_->Base().Ambient().Font());
    impl_->state.FontObj = impl_->Base().Font();
}

void qRosterex::ReadProperties(host::PropertyBag& bag) {
    Impl& my = *impl_;
    host::Component& base = my.Base();
    mtvok::ReadListProperties(bag, my.state);
    host::ReadAppearance(bag, base);
    MultiSelect(host::Read(bag, "MultiSelect", std::int32_t{0}));
    host::ReadBorderStyle(bag, base);
    host::ReadFont(bag, base, base.Ambient());
    my.state.FontObj = base.Font();
    host::ReadFontTransparent(bag, base);
    my.state.TextHeight = TextHeight();
    base.BackColor(my.state.BackColor);
    if (my.UserMode()) my.AttachHook();
}

void qRosterex::Impl::AttachHook() {
    hook = host::services().CreateMessageHook();
    hook->events.RtMsg = [this](std::int32_t message, std::int32_t wParam, std::int32_t lParam, std::int32_t&,
                                bool& fMsgProcess) { HookMessage(message, wParam, lParam, fMsgProcess); };
    hook->events.Change = [this](std::int32_t v, std::int32_t h, std::int32_t) { HookChange(v, h); };
    hook->events.Scroll = [this](std::int32_t v, std::int32_t h, std::int32_t) { HookChange(v, h); };
    hook->events.EndScroll = [this](std::int32_t) { FlushPendingRows(); };
    hook->HookMode(5);
    Refresh();
    if (ended) return;
    bool flag = false;
    hook->HookAttach(state.hWnd, flag);
    hook->ScrollLarge(1);
}

void qRosterex::WriteProperties(host::PropertyBag& bag) {
    const host::Component& base = impl_->Base();
    mtvok::WriteListProperties(bag, impl_->state);
    host::WriteAppearance(bag, base);
    bag.WriteProperty("MultiSelect", impl_->multiSelect, std::int32_t{0});
    host::WriteBorderStyle(bag, base);
    host::WriteFont(bag, base, base.Ambient());
    host::WriteFontTransparent(bag, base);
}

void qRosterex::Resize() {
    quietly([&] { Refresh(); });
}

void qRosterex::Paint() {
    if (!impl_->UserMode())
        mtvok::DrawDesignFrame(impl_->state.hWnd, impl_->state.hDC, impl_->Base().Ambient().DisplayName());
}

void qRosterex::Terminate() {
    impl_->ended = true;
    const auto hook = impl_->hook;
    quietly(
        [&] {
            if (hook) hook->HookDetach();
        },
        [&] { impl_->state.FontObj.reset(); }, [&] { impl_->buffer.Close(); }, [&] { impl_->hook.reset(); });
    impl_->component = nullptr; // it may go before this object does
}

void qRosterex::GotFocus() {
    if (impl_->state.ListIndex <= 0 && impl_->state.Count >= 1)
        ListIndex(1);
    else
        DrawItem(impl_->state.ListIndex);
}
void qRosterex::LostFocus() {
    DrawItem(impl_->state.ListIndex);
}

// Input. Keys act after the host has seen them; the mouse acts through the hook, before these events.

void qRosterex::KeyDown(std::int16_t& keyCode, std::int16_t& shift) {
    events.KeyDown(keyCode, shift);
    if (keyCode == 0 || impl_->ended) return;
    if (impl_->multiSelect != 0)
        impl_->KeyDownRange(keyCode, shift);
    else
        impl_->KeyDownSingle(keyCode);
}
void qRosterex::KeyPress(std::int16_t& keyAscii) {
    events.KeyPress(keyAscii);
}
void qRosterex::KeyUp(std::int16_t& keyCode, std::int16_t& shift) {
    events.KeyUp(keyCode, shift);
}
void qRosterex::MouseDown(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    events.MouseDown(button, shift, x, y);
}
void qRosterex::MouseMove(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    events.MouseMove(button, shift, x, y);
}
void qRosterex::MouseUp(std::int16_t& button, std::int16_t& shift, float& x, float& y) {
    events.MouseUp(button, shift, x, y);
}

} // namespace tvok
