// Life cycle of `gList`, and what its files share.
#include "tvok/controls/propertylist/gList.h"

#include "tvok/controls/propertylist/gList_impl.h"
#include "tvok/engine/designframe.h"
#include "tvok/engine/dgi.h"
#include "tvok/engine/persistence.h"
#include "tvok/host/ComponentSettings.h"
#include "tvok/records/numeric.h"

namespace tvok {

namespace {

constexpr std::int32_t cFirstColumnBound = 5;
constexpr std::int32_t cFirstRowBound = 120;
constexpr std::int32_t cHeadWidth = 120;
constexpr std::int32_t cNewBand = 13; // a new control and a loaded one differ in their band. That stays.
constexpr std::int32_t cLoadedBand = 15;
constexpr OLE_COLOR cNewBandColor = 0xE0E0E0;
constexpr tvok_Rect cStripPlace{0, 0, 18, 18};

std::int32_t Sign(std::int32_t value) {
    return value > 0 ? 1 : value < 0 ? -1 : 0;
}

} // namespace

gList::gList() : impl_(std::make_unique<Impl>(*this)) {}
gList::~gList() = default;

host::Component& gList::Impl::Base() const {
    if (component == nullptr) throw ObjectError("gList: the control is not on a form");
    return *component;
}

bool gList::Impl::UserMode() const {
    return Base().Ambient().UserMode();
}

std::shared_ptr<host::MessageHook> gList::Impl::Hook() const {
    if (!MS0HOOK) ThrowNoHook();
    return MS0HOOK;
}

void gList::Impl::ThrowNoHook() {
    throw ObjectError("gList: no message hook at design time, before the start and after the end");
}

std::int32_t gList::Impl::TextHeight() const {
    return dgi::PointsToPixels(Base().Font()->Size());
}

void gList::Impl::RefreshInRunMode() {
    if (IsAlive() && UserMode()) Refresh();
}

void gList::Impl::PaintInRunMode() {
    if (IsAlive() && UserMode()) PaintAll();
}

// The quotient loses its fraction toward 0 before it is cut to a byte, also for a negative value.
void gList::Impl::ApplyIconSize() {
    xbutton1.IconHeight(state.IconPos & 255);
    xbutton1.IconWidth((state.IconPos / 256) & 255);
}

// `GridRows` stays at the whole rows until the next `Refresh`.
void gList::Impl::FitControl() {
    quietly(
        [&] {
            // One pixel over the row at both ends, where there are grid lines.
            const std::int64_t pixels = std::int64_t{state.ItemHeight} + 2 * Sign(state.GridlineWidth);
            if (strip != nullptr)
                strip->Height(static_cast<float>(pixels) * host::services().Screen().TwipsPerPixelY());
        },
        [&] {
            const std::int32_t height = mtvok::ComputeFitHeight(state, 0);
            if (height > 0) Base().Height(static_cast<float>(height));
        },
        [&] { mtvok::ComputeFitWidth(state); });
}

// Life cycle.

void gList::Initialize(host::Component& component) {
    impl_->Start(component);
}

void gList::Impl::Start(host::Component& base) {
    component = &base;
    items.Reset();
    widths.Reset();
    popLists.Reset();
    rowIndex.Make(0);
    rowOf.clear();
    cells.Make(cFirstColumnBound, cFirstRowBound);
    state = ListState{}; // nothing is left of a life before
    headWidth = cHeadWidth;
    listMode = 0;
    sorted = true;
    pressedRow = downRow = editorRow = 0;
    buttonIsDown = false;
    state.hWnd = base.hWnd();
    state.hDC = base.hDC();
    state.FontObj = base.Font();
    state.xn = 1;
    cbExDraw = std::make_shared<cExdrawCallback>();
    cbExDraw->ExDrawCallback = [this](std::int32_t& Msg, std::int32_t Index, const std::string& key,
                                      std::int32_t mHdc, std::int32_t cy, std::int32_t x, std::int32_t Y,
                                      std::int32_t w, std::int32_t h) {
        events.ExDraw(Msg, Index, key, mHdc, cy, x, Y, w, h);
    };
    ConnectChildren();
    strip = &base.AddChild(xbutton1, "xbutton1", cStripPlace, nullptr);
    strip->Visible(false);
    base.AddChild(xPopup1, "xPopup1", {}, nullptr).Visible(false); // no placeholder, also in a designer
    xPopup1.HotTrack(true);
}

void gList::InitProperties() {
    Impl& list = *impl_;
    mtvok::InitListProperties(list.state);
    list.state.HeadWidthEx = cNewBand;
    list.headWidth = cHeadWidth;
    host::Assign(*list.Base().Font(), list.Base().Ambient().Font());
    list.state.HeadExBackColor = cNewBandColor;
}

void gList::ReadProperties(host::PropertyBag& bag) {
    impl_->Read(bag);
}

void gList::Impl::Read(host::PropertyBag& bag) {
    host::Component& base = Base();
    mtvok::ReadListProperties(bag, state);
    ApplyIconSize();
    state.XnAuto = false;
    host::ReadAppearance(bag, base);
    host::ReadBorderStyle(bag, base);
    listMode = host::Read(bag, "ListMode", 0);
    sorted = host::Read(bag, "Sorted", true);
    headWidth = host::Read(bag, "HeadWidth", cHeadWidth);
    state.HeadWidthEx = cLoadedBand; // whatever the bag gave
    base.BackColor(state.BackColor);
    state.TextHeight = TextHeight(); // of the font from before the next line
    host::ReadFont(bag, base, base.Ambient());
    state.FontObj = base.Font();
    host::ReadFontTransparent(bag, base);
    state.xn = 1;
    if (!UserMode()) return;
    AttachHook();
    Clear(false);
    if (IsAlive()) FitControl();
}

void gList::WriteProperties(host::PropertyBag& bag) {
    const Impl& list = *impl_;
    const host::Component& base = list.Base();
    mtvok::WriteListProperties(bag, list.state);
    host::WriteAppearance(bag, base);
    bag.WriteProperty("ListMode", list.listMode, 0);
    host::WriteBorderStyle(bag, base);
    bag.WriteProperty("Sorted", list.sorted, true);
    bag.WriteProperty("HeadWidth", list.headWidth, cHeadWidth);
    host::WriteFont(bag, base, base.Ambient());
    host::WriteFontTransparent(bag, base);
}

void gList::Impl::AttachHook() {
    MS0HOOK = host::services().CreateMessageHook();
    MS0HOOK->events.RtMsg = [this](std::int32_t message, std::int32_t wParam, std::int32_t lParam,
                                   std::int32_t&, bool& fMsgProcess) {
        MS0HOOK_RtMsg(message, wParam, lParam, fMsgProcess);
    };
    MS0HOOK->events.Change = [this](std::int32_t value, std::int32_t, std::int32_t) {
        MS0HOOK_Change(value);
    };
    MS0HOOK->events.Scroll = [this](std::int32_t value, std::int32_t, std::int32_t) {
        MS0HOOK_Change(value);
    };
    MS0HOOK->HookMode(3);
    bool flag = false;
    MS0HOOK->HookAttach(state.hWnd, flag);
}

void gList::Resize() {
    impl_->FitControl();
    quietly([&] { impl_->Refresh(); });
}

void gList::Paint() {
    if (!impl_->UserMode())
        mtvok::DrawDesignFrame(impl_->state.hWnd, impl_->state.hDC, impl_->Base().Ambient().DisplayName());
}

void gList::Terminate() {
    impl_->End();
}

// From the first line on the control has ended: what its children and the focus still tell does nothing.
void gList::Impl::End() {
    host::Component& base = Base();
    component = nullptr;
    strip = nullptr;
    const auto hook = MS0HOOK;
    quietly(
        [&] {
            if (hook) hook->HookDetach();
        },
        [&] { MS0HOOK.reset(); }, [&] { cbExDraw.reset(); }, [&] { state.FontObj.reset(); },
        [&] { base.RemoveChild(xbutton1); }, [&] { base.RemoveChild(xPopup1); });
}

} // namespace tvok
