#include "apps/gallery/PropertyList.h"

#include <algorithm>
#include <utility>

#include "tvok/host/Services.h"

namespace gallery {

using tvok::elistdata;
using tvok::qrosterdata;
using tvok::Variant;
using tvok::host::platform;

namespace {

/// What the list is walked through for. The walks that it makes by itself have the number 0.
enum Walk : std::int32_t { OwnWalk, NoteValues, TakeValues };

constexpr std::int32_t PlainCell = tvok::vflag::Editor | tvok::vflag::TextAtEdge;
constexpr std::int32_t ColorCell = tvok::vflag::Editor | tvok::vflag::IconBox | tvok::vflag::IconBorder;

/// Buttons, and the type word behind them.
std::string ButtonsOf(const Property& property) {
    const std::string list = std::to_string(static_cast<std::int32_t>(property.list));
    switch (property.kind) {
    case ValueKind::Color: return "0|0|2|1|1|2|...|2|0;cs";
    case ValueKind::Number:
        if (property.steps) return "+|up|0|-|down|0;number";
        if (property.most > INT16_MAX) return ";number"; // more than a popup of numbers holds
        return "0|" + std::to_string(property.least) + "-" + std::to_string(property.most) + "|2;ns";
    case ValueKind::Choice: return "0|list|2;li " + list;
    case ValueKind::Name: return "0|list|2;lt " + list;
    case ValueKind::Truth: return ";truth";
    case ValueKind::Text: break;
    }
    return ";text";
}

/// A list as the popup takes it, and as the cells do: every entry has the flags of a cell with an editor.
std::string PopupText(ValueList list) {
    // Colours, one column of up to eight rows, no lines between them: whatever the popup showed before.
    std::string text = "1=&H80000005&\r\n3=2\r\n6=-1\r\n7=0\r\n10=0\r\n12=0\r\n13=6\r\n15=&H8000000D&\r\n"
                       "18=1\r\n19=8\r\n998\r\n109=" +
                       std::to_string(PlainCell) + "\r\n";
    for (const ListedValue& listed : ValuesOf(list)) {
        text += "106=" + std::to_string(listed.value) + "\r\n107=" + listed.text + "\r\n999\r\n";
    }
    return text;
}

std::string KeyOf(const PropertyGroup& group, const Property& property) {
    return group.key + "." + property.name;
}

elistdata GroupItem(const tvok::gList& list, const PropertyGroup& group) {
    elistdata item = list.DefaultItem();
    item.bParentItem = true;
    item.hItem.key = group.key;
    item.hItem.text = group.title;
    item.hItem.bColor = tvok::cButtonFace;
    item.hItem.fcolor = tvok::cButtonText;
    item.hItem.vflag = tvok::vflag::TextAtEdge | tvok::vflag::Bold;
    return item;
}

elistdata PropertyItem(const tvok::gList& list, const PropertyGroup& group, const Property& property) {
    elistdata item = list.DefaultItem();
    item.pKey = group.key;
    item.hItem.key = item.item.key = KeyOf(group, property);
    item.hItem.text = property.name;
    item.hItem.vflag = tvok::vflag::TextAtEdge;
    item.item.vflag = property.kind == ValueKind::Color ? ColorCell : PlainCell;
    if (property.kind == ValueKind::Truth) item.item.vflag |= tvok::vflag::HostText;
    item.xbuttons = property.readOnly ? ";text" : ButtonsOf(property);
    if (property.readOnly) item.item.vflag &= ~tvok::vflag::Editor;
    item.nData = property.get();
    return item;
}

/// Whether an open popup has the mouse. One that opens from the strip has it while the strip has the focus.
bool PopupIsOpen() {
    const tvok::host::Handle capture = platform().GetCapture();
    return capture != 0 && capture != platform().GetFocus();
}

} // namespace

PropertyList::PropertyList(tvok::Form& form, const PropertyListParts& parts)
    : list_(parts.list), popup_(parts.popup), colors_(parts.popup),
      editors_(form, parts.list, parts.text, parts.check, *this) {
    popup_.HotTrack(true);
    HearList();
}

void PropertyList::HearList() {
    list_.events.EnumItems = [this](elistdata& item, std::int32_t action) { HearItem(item, action); };
    list_.events.ExItemShowCov = [this](elistdata& item) { ShowValue(item); };
    list_.events.EnumPopStr = [](std::int32_t id, std::string& text) {
        text = PopupText(static_cast<ValueList>(id));
    };
    list_.events.ButtonMouseDown = [this](const std::string& button, elistdata& item) {
        if (button == "up" || button == "down") Step(item.hItem.key, button == "up");
    };
    list_.events.ButtonClick = [this](const std::string& button, elistdata&) {
        // No popup is open after these, so the strip need not keep the focus.
        if (button == "up" || button == "down" || button == "2") editors_.FocusList();
    };
    list_.events.ExDraw = [this](std::int32_t& message, std::int32_t row, const std::string&,
                                 std::int32_t hDC, std::int32_t, std::int32_t left, std::int32_t top,
                                 std::int32_t right, std::int32_t bottom) {
        if (message == tvok::bExDrawText) DrawTruth(row, hDC, {left, top, right, bottom});
    };
}

// Rows.

void PropertyList::Clear(bool controlsAreGone) {
    if (!controlsAreGone) editors_.Take();
    groups_.clear();
    tried_.reset();
    editors_.Forget();
    list_.Clear(true);
}

void PropertyList::Add(PropertyGroup group) {
    list_.AddItem(GroupItem(list_, group));
    groups_.push_back(std::move(group));
    const PropertyGroup& added = groups_.back();
    for (const Property& property : added.properties) list_.AddItem(PropertyItem(list_, added, property));
}

void PropertyList::Build() {
    SetCaptions();
    list_.BuiltList();
}

void PropertyList::SetCaptions() {
    const bool grouped = IsGrouped();
    for (const PropertyGroup& group : groups_) {
        for (const Property& property : group.properties) {
            elistdata item;
            const std::int32_t place = list_.GetItem(item, KeyOf(group, property));
            item.hItem.text = grouped ? property.name : property.name + ", " + group.title;
            list_.AddItem(item, place);
        }
    }
}

void PropertyList::Group(bool on) {
    list_.ListMode(on ? 1 : 0);
    Build();
}

void PropertyList::Sort(bool on) {
    list_.Sorted(on);
    if (!on) list_.BuiltList(); // which the list does by itself only when it is turned on
}

void PropertyList::Fold(std::int32_t row) {
    elistdata item;
    const std::int32_t place = list_.GetItem(item, {}, row);
    item.hItem.vflag ^= tvok::vflag::Collapsed;
    list_.AddItem(item, place);
    list_.BuiltList();
}

// Values.

const Property* PropertyList::Find(const std::string& key) const {
    for (const PropertyGroup& group : groups_) {
        if (!key.starts_with(group.key + ".")) continue;
        const auto name = key.substr(group.key.size() + 1);
        const auto found = std::ranges::find(group.properties, name, &Property::name);
        if (found != group.properties.end()) return &*found;
    }
    return nullptr;
}

bool PropertyList::Set(const std::string& key, const Variant& value) {
    const Property* property = Find(key);
    if (property == nullptr || property->readOnly) return false;
    const Variant before = property->get();
    if (value == before) {
        Report(key, before);
        return true;
    }
    tvok::quietly([&] { property->set(value); });
    const Variant now = property->get();
    // A text may come back in other words; anything else has to be what was written.
    const bool taken = property->kind == ValueKind::Text ? now != before : now == value;
    if (!taken) tvok::quietly([&] { property->set(before); });
    if (changed) changed();
    Update();
    editors_.Reload(key);
    Report(key, before);
    return taken;
}

/// The handler may clear all of this.
void PropertyList::Report(const std::string& key, const Variant& before) {
    if (!edited) return;
    const Tried tried = tried_ && tried_->key == key ? *tried_ : Tried{key, before};
    tried_.reset();
    const Property* property = Find(tried.key);
    if (property == nullptr) return;
    if (PopupIsOpen()) {
        tried_ = tried;
        return;
    }
    const Variant now = property->get();
    if (now != tried.before) edited(tried.key, tried.before, now);
}

void PropertyList::Update() {
    for (const PropertyGroup& group : groups_) {
        for (const Property& property : group.properties) {
            const std::string key = KeyOf(group, property);
            const Variant value = property.get();
            if (list_.GetData(key) == value) continue;
            list_.SetData(value, key);
            editors_.Follow(key);
        }
    }
}

void PropertyList::Step(const std::string& key, bool up) {
    const Property* property = Find(key);
    if (property == nullptr) return;
    const std::int32_t next = property->get().AsInteger() + (up ? 1 : -1);
    if (next >= property->least && next <= property->most) Set(key, Variant(next));
}

/// The list's own walks tell of a value that its popup or the colour dialog chose, tried or took back.
void PropertyList::HearItem(elistdata& item, std::int32_t action) {
    const Property* property = Find(item.hItem.key);
    if (property == nullptr) return;
    if (action == NoteValues) {
        item.HelpStr = property->get().AsText();
        return;
    }
    if (action == TakeValues) {
        const Variant value = property->kind == ValueKind::Text || property->kind == ValueKind::Name
                                  ? Variant(item.HelpStr)
                                  : Variant(Variant(item.HelpStr).AsNumber());
        if (property->get() != value) tvok::quietly([&] { property->set(value); });
    } else {
        const std::string key = item.hItem.key;
        Set(key, Variant(item.nData));
        LeaveStrip();
        property = Find(key); // what hears of the change may have cleared the list
    }
    if (property != nullptr) item.nData = property->get();
}

/// A popup that took the mouse from the strip takes the release, too, and its button stays down as long as
/// the strip has the focus. When the popup is gone, nobody has the mouse.
void PropertyList::LeaveStrip() {
    const bool before = std::exchange(popupHasMouse_, PopupIsOpen());
    if (before && platform().GetCapture() == 0 && editors_.FocusIsInList()) editors_.FocusList();
}

void PropertyList::ShowValue(elistdata& item) const {
    item.item.text = item.nData.AsText();
}

void PropertyList::DrawTruth(std::int32_t row, std::int32_t hDC, const tvok::tvok_Rect& rect) const {
    // A text begins a pixel behind the cell's edge, and the check box over it does not.
    CheckBox::Draw(hDC, {rect.Left - 1, rect.Top, rect.Right, rect.bottom},
                   list_.GetData({}, row).AsNumber() != 0);
}

bool PropertyList::IsTruth(const std::string& key) const {
    const Property* property = Find(key);
    return property != nullptr && property->kind == ValueKind::Truth;
}

std::string PropertyList::Text(const std::string& key) const {
    const Property* property = Find(key);
    if (property == nullptr) return {};
    const Variant value = property->get();
    if (property->kind == ValueKind::Color) return popup_.GetColorDesc(value.AsInteger());
    if (property->kind != ValueKind::Choice) return value.AsText();
    const auto& values = ValuesOf(property->list);
    const auto found = std::ranges::find(values, value.AsInteger(), &ListedValue::value);
    return found == values.end() ? value.AsText() : found->text;
}

bool PropertyList::Take(const std::string& key, const std::string& text) {
    const Property* property = Find(key);
    if (property == nullptr) return false;
    const auto value = ValueOfText(*property, text, colors_);
    return value && Set(key, *value);
}

// The text of all.

std::string PropertyList::Save() {
    list_.ReqEnumItems(NoteValues);
    return list_.ItemsStr();
}

/// The text holds no values of its own but those that `Save` noted beside them.
void PropertyList::Restore(const std::string& text) {
    list_.Clear(true);
    list_.ItemsStr(text);
    list_.ReqEnumItems(TakeValues);
    if (changed) changed();
    Update();
    Build();
}

// The popup that the keyboard opens.

bool PropertyList::FillPopup(const Property& property, const Variant& value) {
    switch (property.kind) {
    case ValueKind::Color: popup_.SetColorPal(tvok::PAL24x10); break;
    case ValueKind::Number:
        if (property.most > INT16_MAX) return false;
        popup_.SetNS(property.least, property.most);
        popup_.ListIndex(value.AsInteger() - property.least + 1);
        break;
    case ValueKind::Choice:
    case ValueKind::Name: popup_.ItemsStr(PopupText(property.list)); break;
    case ValueKind::Truth:
    case ValueKind::Text: return false;
    }
    popup_.TmpData(value);
    return true;
}

void PropertyList::Drop(const std::string& key) {
    const Property* property = Find(key);
    tvok::tvok_Rect place;
    popup_.events.Change = nullptr;
    if (property == nullptr || !FillPopup(*property, property->get())) return;
    if (!list_.GetItemRect(list_.ListIndex(), place)) return;
    popup_.events.Change = [this, key](std::int32_t, qrosterdata& item) { HearPopup(key, item, false); };
    popup_.events.Click = [this, key](std::int32_t, qrosterdata& item, bool canceled) {
        HearPopup(key, item, canceled);
    };
    popup_.SetParentRect(place);
    popup_.Popup(false);
}

void PropertyList::HearPopup(const std::string& key, const qrosterdata& chosen, bool canceled) {
    const Property* property = Find(key);
    if (property == nullptr) return;
    Variant value = popup_.TmpData();
    if (!canceled) {
        switch (property->kind) {
        case ValueKind::Color: value = Variant(chosen.IconBackColor); break;
        case ValueKind::Name: value = Variant(chosen.text); break;
        default: value = Variant(chosen.ItemData); break;
        }
    }
    Set(key, value);
}

} // namespace gallery
