#include "tvok/controls/propertylist/PopLists.h"

#include "tvok/engine/numberedlines.h"
#include "tvok/records/Error.h"
#include "tvok/records/text.h"

namespace tvok::propertylist {

void PopLists::Reset() {
    entries_.clear();
    first_.clear();
    lists_.clear();
}

bool PopLists::Has(std::int32_t list) const {
    return lists_.contains(list);
}

const qrosterdata* PopLists::Find(std::int32_t list, std::int32_t itemData) const {
    const auto found = first_.find(Key(list, itemData));
    return found == first_.end() ? nullptr : &entries_[found->second];
}

void PopLists::Append(std::int32_t list, const qrosterdata& item) {
    first_.try_emplace(Key(list, item.ItemData), entries_.size());
    lists_.insert(list);
    entries_.push_back(item);
}

void PopLists::Load(std::int32_t list, std::string_view text) {
    qrosterdata item; // stays as it is between entries: the next one only states what differs
    mtvok::NumberedLine numbered;
    Lines lines(text);
    for (std::string_view line; lines.Next(line);) {
        numbered.Read(line);
        switch (numbered.number()) {
        case mtvok::FirstItemLine: GetDefaultItem(item); break;
        case mtvok::EndOfItemLine: Append(list, item); break;
        default: quietly([&] { mtvok::ReadCellLine(numbered.number(), numbered, item); });
        }
    }
}

} // namespace tvok::propertylist
