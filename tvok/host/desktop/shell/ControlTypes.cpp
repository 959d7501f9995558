#include "tvok/host/desktop/ControlTypes.h"

#include <map>
#include <utility>

#include "tvok/controls/buttonstrip/xbutton.h"
#include "tvok/controls/colorselector/ucColorSelector.h"
#include "tvok/controls/columnbar/pcols.h"
#include "tvok/controls/flatlist/qRoster.h"
#include "tvok/controls/iconlabel/iLabel.h"
#include "tvok/controls/largelist/qRosterex.h"
#include "tvok/controls/popup/xPopup.h"
#include "tvok/controls/propertylist/gList.h"
#include "tvok/host/desktop/TextBox.h"

namespace tvok {

namespace {

struct ControlType {
    std::type_index type;
    ControlFactory make;
};

template<class T>
ControlType TypeOf() {
    return {typeid(T), [] { return std::make_unique<T>(); }};
}

std::map<std::string, ControlType>& Types() {
    static std::map<std::string, ControlType> types{
        {"TextBox", TypeOf<TextBox>()},
        {"gList", TypeOf<gList>()},
        {"iLabel", TypeOf<iLabel>()},
        {"pcols", TypeOf<pcols>()},
        {"qRoster", TypeOf<qRoster>()},
        {"qRosterex", TypeOf<qRosterex>()},
        {"ucColorSelector", TypeOf<ucColorSelector>()},
        {"xPopup", TypeOf<xPopup>()},
        {"xbutton", TypeOf<xbutton>()},
    };
    return types;
}

} // namespace

void RegisterControl(const std::string& name, std::type_index type, ControlFactory factory) {
    Types().insert_or_assign(name, ControlType{type, std::move(factory)});
}

std::vector<std::string> RegisteredControls() {
    std::vector<std::string> names;
    for (const auto& [name, type] : Types()) names.push_back(name);
    return names;
}

std::unique_ptr<host::Control> MakeControl(const std::string& name) {
    const auto found = Types().find(name);
    return found != Types().end() ? found->second.make() : nullptr;
}

std::string ControlTypeName(const host::Control& control) {
    for (const auto& [name, type] : Types())
        if (type.type == typeid(control)) return name;
    return {};
}

} // namespace tvok
