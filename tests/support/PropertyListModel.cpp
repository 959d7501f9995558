#include "tests/support/PropertyListModel.h"

#include <algorithm>

#include "tests/support/PlainSort.h"
#include "tvok/host/constants.h"
#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

namespace tvok::test {

namespace {

/// Keys in these tests are ASCII.
std::string Lower(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
    return text;
}

bool HasEditor(const elistdata& x) {
    return (x.item.vflag & vflag::Editor) != 0;
}

} // namespace

std::pair<std::string, std::int32_t> TypeOf(std::string_view xbuttons) {
    const std::size_t semicolon = xbuttons.find(';');
    if (semicolon == std::string_view::npos) return {"", 0};
    const std::string word = Lower(std::string(Trim(xbuttons.substr(semicolon + 1))));
    const std::size_t end = std::min(word.find_first_of("0123456789 "), word.size());
    std::size_t start = end;
    while (start < word.size() && word[start] == ' ') ++start;
    return {word.substr(0, end), RoundToInt32(ScanNumber(word.substr(start)))};
}

PropertyListModel::PropertyListModel(Host host) : host_(std::move(host)), store_(1) {
    store_[0].hItem = store_[0].item = ZeroItem();
}

std::int32_t PropertyListModel::Live() const {
    return static_cast<std::int32_t>(
        std::count_if(store_.begin() + 1, store_.end(), [](const elistdata& x) { return !x.bDelete; }));
}

void PropertyListModel::Row(const char* name, std::int32_t row) {
    log.push_back(std::string(name) + "(" + std::to_string(row) + ", " + Slot(SlotOfRow(row)).hItem.key +
                  ")");
}

void PropertyListModel::Record(const char* name, std::int32_t slot) {
    log.push_back(std::string(name) + "(" + Slot(slot).hItem.key + ")");
    host_.edit(Stored(slot));
}

// Addressing.

bool PropertyListModel::ResolveIndex(std::int32_t index, std::int32_t& slot, std::int32_t& row) const {
    slot = 0;
    if (index < 0) {
        row = 0;
        const std::int64_t k = -std::int64_t{index};
        if (k > UpperBound()) return true;
        slot = static_cast<std::int32_t>(k);
        for (std::int32_t r = 1; r <= Count && row == 0; ++r)
            if (SlotOfRow(r) == slot) row = r;
        return true;
    }
    if (index > UpperBound()) {
        row = 0;
        return true;
    }
    if (index > RowsUpperBound()) return false;
    slot = SlotOfRow(index);
    row = index;
    return true;
}

std::int32_t PropertyListModel::FindSlotByKey(const std::string& key) const {
    if (key.empty()) return 0;
    for (std::int32_t slot = 1; slot <= UpperBound(); ++slot)
        if (Lower(Slot(slot).hItem.key) == Lower(key)) return -slot;
    return 0;
}

// Values.

void PropertyListModel::ApplyItemValue(std::int32_t slot) {
    elistdata& x = Stored(slot);
    const auto [name, number] = TypeOf(x.xbuttons);
    if (name == "cs") {
        x.item.IconBackColor = RoundToInt32(ScanNumber(x.nData.AsText()));
        x.item.text = "(" + host_.colorText(x.item.IconBackColor) + ")";
    } else if (name == "ns") {
        x.item.text = Variant(x.nData.AsNumber()).AsText();
    } else if (name == "li") {
        const std::int32_t value = RoundToInt32(x.nData.AsNumber());
        for (const PopEntry& each : lists_) {
            if (each.PopID != number || each.entry.ItemData != value) continue;
            x.item = each.entry;
            break;
        }
    } else if (name == "lt") {
        x.item.text = std::string(Trim(x.nData.AsText()));
    } else {
        Record("ExItemShowCov", slot);
    }
}

bool PropertyListModel::HasList(std::int32_t id) const {
    return std::any_of(lists_.begin(), lists_.end(), [&](const PopEntry& each) { return each.PopID == id; });
}

/// Lists in these tests have the lines 106, 107, 109, 998 and 999.
void PropertyListModel::LoadPopList(const std::string& xbuttons) {
    const auto [name, number] = TypeOf(xbuttons);
    if ((name != "li" && name != "lt") || number < 1 || HasList(number)) return;
    log.push_back("EnumPopStr(" + std::to_string(number) + ", " + xbuttons + ")");
    const std::string text = host_.popList(number);
    qrosterdata entry;
    Lines lines(text);
    for (std::string_view line; lines.Next(line);) {
        const auto code = static_cast<std::int32_t>(ScanNumber(line));
        const std::string_view value = line.size() > 4 ? line.substr(4) : std::string_view();
        if (code == 106) entry.ItemData = RoundToInt32(ScanNumber(value));
        if (code == 107) entry.text = std::string(value);
        if (code == 109) entry.vflag = RoundToInt32(ScanNumber(value));
        if (code == 998) entry = {};
        if (code == 999) lists_.push_back({number, entry});
    }
}

// Items.

std::int32_t PropertyListModel::AddItem(const elistdata& item, std::int32_t index) {
    std::int32_t slot = 0, row = 0;
    ResolveIndex(index, slot, row);
    if (slot == 0) ResolveIndex(FindSlotByKey(item.hItem.key), slot, row);
    for (std::int32_t s = 1; slot == 0 && s <= UpperBound(); ++s)
        if (Slot(s).bDelete) slot = s;
    if (slot == 0) {
        store_.emplace_back();
        slot = UpperBound();
    }
    Stored(slot) = item;
    Stored(slot).bDelete = false;
    LoadPopList(item.xbuttons);
    ApplyItemValue(slot);
    return -slot;
}

void PropertyListModel::RemoveItem(std::int32_t index, bool& subscript) {
    std::int32_t slot = 0, row = 0;
    subscript = !ResolveIndex(index, slot, row);
    if (subscript || slot < 1) return;
    Stored(slot).bDelete = true;
    BuiltList();
}

std::int32_t PropertyListModel::GetItem(elistdata& item, const std::string& key, std::int32_t index) const {
    std::int32_t slot = 0, row = 0;
    if (!ResolveIndex(key.empty() ? index : FindSlotByKey(key), slot, row) || slot == 0) return 0;
    item = Slot(slot);
    return -slot;
}

void PropertyListModel::SetData(const Variant& value, const std::string& key, std::int32_t index) {
    std::int32_t slot = 0, row = 0;
    ResolveIndex(key.empty() ? index : FindSlotByKey(key), slot, row);
    if (slot > 0) Stored(slot).nData = value;
    ApplyItemValue(slot);
}

void PropertyListModel::ShowItem(const std::string& key) {
    std::int32_t slot = 0, row = 0;
    ResolveIndex(FindSlotByKey(key), slot, row);
    WriteListIndex(row);
}

void PropertyListModel::Clear() {
    for (std::int32_t slot = 1; slot <= UpperBound(); ++slot) Stored(slot).bDelete = true;
    Count = ListIndex = editorRow_ = 0;
}

void PropertyListModel::ReqEnumItems(std::int32_t action, const std::string& key) {
    const std::int32_t last = UpperBound();
    for (std::int32_t slot = 1; slot <= last; ++slot) {
        elistdata& x = Stored(slot);
        if (x.bDelete || (!key.empty() && x.hItem.key != key)) continue;
        const Variant before = x.nData;
        log.push_back("EnumItems(" + x.hItem.key + ", " + std::to_string(action) + ")");
        host_.edit(x);
        if (!key.empty() || x.nData != before) ApplyItemValue(slot);
    }
}

void PropertyListModel::WriteListMode(std::int32_t mode) {
    if (mode == ListMode) return;
    ListMode = mode;
    BuiltList();
}

void PropertyListModel::WriteSorted(bool on) {
    Sorted = on;
    if (on) BuiltList();
}

void PropertyListModel::WriteVarData(const Variant& value) {
    const std::int32_t slot = SlotOfRow(ListIndex);
    Stored(slot).nData = value;
    ApplyItemValue(slot);
    OpenEditor();
}

// Rows.

std::int32_t PropertyListModel::Squeeze(std::vector<std::string>& texts, std::vector<std::int32_t>& order) {
    std::int32_t n = 0;
    for (std::int32_t s = 1; s <= UpperBound(); ++s) {
        if (Slot(s).bDelete) continue;
        if (++n != s) {
            Stored(n) = Slot(s);
            Stored(s).bDelete = true;
        }
        texts.push_back(Slot(n).hItem.text);
        order.push_back(n);
    }
    return n;
}

void PropertyListModel::AddRow(std::int32_t slot) {
    ++Count;
    if (RowsUpperBound() < Count) rows_.resize(static_cast<std::size_t>(Count) + 6);
    rows_[static_cast<std::size_t>(Count)] = slot;
}

void PropertyListModel::BuiltList() {
    CloseEditor();
    editorRow_ = 0;
    std::int32_t kept = 0;
    if (ListIndex > 0) {
        kept = SlotOfRow(ListIndex);
        Stored(kept).hItem.vflag &= ~vflag::Selected;
    }
    std::vector<std::string> texts(1);
    std::vector<std::int32_t> order(1);
    const std::int32_t n = Squeeze(texts, order);
    const auto textOf = [&](std::int32_t slot) -> const std::string& {
        return texts[static_cast<std::size_t>(slot)];
    };
    if (Sorted) PlainSort(order, true, textOf, CompareBytes).Sort(1, n);
    order.erase(order.begin());

    Count = 0;
    for (const std::int32_t p : order) {
        const elistdata& x = Slot(p);
        if (ListMode != 1 && !x.bParentItem && x.bVisible) AddRow(p);
        if (ListMode != 1 || !x.bParentItem || !x.bVisible) continue;
        AddRow(p);
        if ((x.hItem.vflag & vflag::Collapsed) != 0) continue;
        for (const std::int32_t q : order)
            if (Slot(q).pKey == x.hItem.key && !Slot(q).bParentItem) AddRow(q);
    }
    ListIndex = 0;
    std::int32_t rowOfKept = 0;
    for (std::int32_t r = 1; r <= Count && rowOfKept == 0 && kept > 0; ++r)
        if (SlotOfRow(r) == kept) rowOfKept = r;
    if (rowOfKept == 0) return;
    WriteListIndex(rowOfKept);
    ActivateRow(false);
}

// The current row and its editor.

void PropertyListModel::MoveCurrentRow(std::int32_t row) {
    if (row < 1 || row > Count) return;
    const std::int32_t old = std::exchange(ListIndex, row);
    Stored(SlotOfRow(old)).hItem.vflag &= ~vflag::Selected;
    Stored(SlotOfRow(row)).hItem.vflag |= vflag::Selected;
    if (old != ListIndex) Row("Change", row);
}

void PropertyListModel::ActivateRow(bool raise) {
    if (raise) Row("Click", ListIndex);
    CloseEditor();
    editorRow_ = ListIndex;
    OpenEditor();
}

void PropertyListModel::CloseEditor() {
    if (editorRow_ < 1 || editorRow_ > Count) return;
    const elistdata& x = Slot(SlotOfRow(editorRow_));
    if (HasEditor(x)) log.push_back("ExEditorDataRestore(" + x.hItem.key + ")");
}

void PropertyListModel::OpenEditor() {
    if (ListIndex < 1 || ListIndex > Count) return;
    const std::int32_t slot = SlotOfRow(ListIndex);
    if (HasEditor(Slot(slot))) Record("ExEditorIni", slot);
}

// Input.

void PropertyListModel::FoldIfGroup(std::int32_t row) {
    elistdata& x = Stored(SlotOfRow(row));
    if (!x.bParentItem) return;
    x.hItem.vflag ^= vflag::Collapsed;
    BuiltList();
}

void PropertyListModel::Press(std::int32_t row, bool head) {
    pressedRow_ = downRow_ = row > Count ? 0 : row;
    if (pressedRow_ == 0) return;
    buttonIsDown_ = true;
    MoveCurrentRow(row);
    CloseEditor();
    editorRow_ = 0;
    if (ListMode == 1 && head) FoldIfGroup(row);
}

void PropertyListModel::Drag(std::int32_t row) {
    if (!buttonIsDown_ || row < 1 || row > Count || row == ListIndex) return;
    pressedRow_ = row;
    MoveCurrentRow(row);
}

void PropertyListModel::Release() {
    buttonIsDown_ = false;
    if (pressedRow_ > 0) ActivateRow(true);
}

void PropertyListModel::DoubleClick() {
    pressedRow_ = 0;
    if (downRow_ < 1) return;
    if (ListIndex != downRow_) WriteListIndex(downRow_);
    if (ListMode == 1) return FoldIfGroup(ListIndex);
    Row("DblClick", ListIndex);
}

void PropertyListModel::Key(std::int32_t code, std::int32_t page) {
    std::int32_t n = 0;
    switch (code) {
    case host::VK_PRIOR: n = std::max(ListIndex - page, 1); break;
    case host::VK_NEXT: n = std::min(ListIndex + page, Count); break;
    case host::VK_END: n = Count; break;
    case host::VK_HOME: n = 1; break;
    case host::VK_LEFT:
    case host::VK_UP: n = std::max(ListIndex - 1, 1); break;
    case host::VK_RIGHT:
    case host::VK_DOWN: n = std::min(ListIndex + 1, Count); break;
    default: break;
    }
    if (n == 0) return;
    const std::int32_t old = ListIndex;
    MoveCurrentRow(n);
    if (n != old) ActivateRow(true);
}

} // namespace tvok::test
