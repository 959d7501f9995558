// The item text form: any text is read without harm, what is then written reads back as itself, and a list of
// a size that a screen could hold shows it.

#include <chrono>

#include "fuzz.h"
#include "tvok/engine/persistence.h"

namespace {

tvok::Form& Form() {
    static tvok::Form& form = tvok::fuzz::HeadlessDesktop().AddForm("items", 200, 120);
    return form;
}

tvok::qRoster& Roster() {
    static tvok::qRoster& list = Form().Add<tvok::qRoster>("list1", {0, 0, 200, 120});
    return list;
}

struct Store {
    tvok::ListState state;
    tvok::ItemSlots items;
    tvok::IndexArray indexes{0};

    Store() { state.FontObj = Roster().Font(); }
    void Read(std::string_view text) { tvok::mtvok::ParseItemsStr(state, items, indexes, text); }
    std::string Written() const { return tvok::mtvok::BuildItemsStr(state, items, indexes); }
};

bool FitsAScreen(const tvok::ListState& state) {
    return state.xn >= 0 && state.xn < 50 && state.yn >= 0 && state.yn < 500;
}

void Show(const std::string& text, std::int32_t count) {
    // Each text gets a list of its own: a height that overflows is an error of every later refresh.
    auto& list = Form().Add<tvok::qRoster>("shown", {0, 0, 200, 120});
    list.ItemsStr(text);
    tvok::quietly([&] { list.Refresh(); });
    tvok::fuzz::Require(list.Count() == count, "the list has every item");
    Form().Remove(list);
    tvok::fuzz::HeadlessDesktop().ProcessEvents(std::chrono::milliseconds(0));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Store first;
    first.Read(tvok::fuzz::Text(data, size));
    const std::string written = first.Written();

    Store second;
    second.Read(written);
    tvok::fuzz::Require(second.state.Count == first.state.Count, "the written text has every item");
    tvok::fuzz::Require(second.Written() == written, "the written text reads back as itself");
    if (FitsAScreen(second.state)) Show(written, second.state.Count);
    return 0;
}
