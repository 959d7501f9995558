/// A property list in the plainest way: vectors, searches from the first slot to the last, the sort by its
/// steps. It paints nothing; events that only follow from painting are not part of it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tvok/records/tvok_declare.h"

namespace tvok::test {

class PropertyListModel {
public:
    /// What the surroundings add: the text of a popup list, the description of a colour, and what the host
    /// does with the stored record that comes with an event.
    struct Host {
        std::function<std::string(std::int32_t)> popList;
        std::function<std::string(std::int32_t)> colorText;
        std::function<void(elistdata&)> edit;
    };
    explicit PropertyListModel(Host host);

    std::vector<std::string> log; ///< As `PropertyListLog` writes it.
    std::int32_t ListMode = 0;
    bool Sorted = true;
    std::int32_t Count = 0;
    std::int32_t ListIndex = 0;

    // The host's calls. `subscript` tells whether the call ends in that error.
    std::int32_t AddItem(const elistdata& item, std::int32_t index);
    void RemoveItem(std::int32_t index, bool& subscript);
    std::int32_t GetItem(elistdata& item, const std::string& key, std::int32_t index) const;
    void SetData(const Variant& value, const std::string& key, std::int32_t index);
    void ShowItem(const std::string& key);
    void Clear();
    void ReqEnumItems(std::int32_t action, const std::string& key);
    void BuiltList();
    void WriteListMode(std::int32_t mode);
    void WriteSorted(bool on);
    void WriteListIndex(std::int32_t row) { MoveCurrentRow(row); }
    void WriteVarData(const Variant& value);

    // A user's. `row` is the row under the pointer by its place on the page, whether there is such a one or
    // not.
    void Press(std::int32_t row, bool head);
    void Drag(std::int32_t row);
    void Release();
    void DoubleClick(); ///< Its second press.
    void Key(std::int32_t code, std::int32_t page);

    std::int32_t UpperBound() const { return static_cast<std::int32_t>(store_.size()) - 1; }
    std::int32_t RowsUpperBound() const { return static_cast<std::int32_t>(rows_.size()) - 1; }
    const elistdata& Slot(std::int32_t slot) const { return store_[static_cast<std::size_t>(slot)]; }
    std::int32_t SlotOfRow(std::int32_t row) const { return rows_[static_cast<std::size_t>(row)]; }
    std::int32_t Live() const;

private:
    struct PopEntry {
        std::int32_t PopID;
        qrosterdata entry;
    };

    elistdata& Stored(std::int32_t slot) { return store_[static_cast<std::size_t>(slot)]; }
    /// False: the subscript error; the slot is then 0 and the row as it was.
    bool ResolveIndex(std::int32_t index, std::int32_t& slot, std::int32_t& row) const;
    std::int32_t FindSlotByKey(const std::string& key) const;
    void ApplyItemValue(std::int32_t slot);
    void LoadPopList(const std::string& xbuttons);
    bool HasList(std::int32_t id) const;
    void Row(const char* name, std::int32_t row);
    void Record(const char* name, std::int32_t slot);

    std::int32_t Squeeze(std::vector<std::string>& texts, std::vector<std::int32_t>& order);
    void AddRow(std::int32_t slot);
    void MoveCurrentRow(std::int32_t row);
    void ActivateRow(bool raise);
    void CloseEditor();
    void OpenEditor();
    void FoldIfGroup(std::int32_t row);

    Host host_;
    std::vector<elistdata> store_;
    std::vector<std::int32_t> rows_{0};
    std::vector<PopEntry> lists_;
    std::int32_t editorRow_ = 0;
    std::int32_t pressedRow_ = 0;
    std::int32_t downRow_ = 0;
    bool buttonIsDown_ = false;
};

/// The name and the number of the type word behind the first ";" of `xbuttons`.
std::pair<std::string, std::int32_t> TypeOf(std::string_view xbuttons);

} // namespace tvok::test
