#include <cmath>
#include <limits>
#include <map>
#include <optional>
#include <set>

#include <toml++/toml.h>

#include "tvok/host/desktop/ControlTypes.h"
#include "tvok/host/desktop/FormFile.h"
#include "tvok/host/desktop/shell/ProbeComponent.h"
#include "tvok/records/Error.h"

namespace tvok {

namespace {

constexpr std::int32_t LargestForm = 8192;
constexpr std::int32_t LargestPlace = 32767;

/// Gives every default back and notes it.
class KeyRecorder : public host::PropertyBag {
public:
    host::PropertyValue ReadProperty(std::string_view name,
                                     const host::PropertyValue& defaultValue) override {
        keys.insert_or_assign(std::string(name), defaultValue);
        return defaultValue;
    }
    void WriteProperty(std::string_view name, const host::PropertyValue&,
                       const host::PropertyValue& defaultValue) override {
        keys.insert_or_assign(std::string(name), defaultValue);
    }
    host::MemoryBag::Values keys;
};

/// The keys that a control of this type reads or writes, with their defaults.
host::MemoryBag::Values KeysOf(const std::string& type) {
    KeyRecorder recorder;
    const auto control = MakeControl(type);
    soft::ProbeComponent probe(*control, &recorder);
    control->WriteProperties(recorder);
    return recorder.keys;
}

/// A table of the file and how a message names it.
struct Table {
    const toml::table& table;
    std::string path;
    toml::source_position start;
};

class Parser {
public:
    Parser(std::string_view text, const std::string& fileName) : text_(text), fileName_(fileName) {}

    FormFile Parse();

private:
    [[noreturn]] void Fail(const toml::source_position& place, const std::string& what) const;
    [[noreturn]] void Fail(const Table& table, std::string_view key, const std::string& what) const;

    Table TableAt(const Table& in, std::string_view key) const;
    void CheckKeys(const Table& table, const std::set<std::string_view>& known) const;
    host::PropertyValue Value(const Table& table, std::string_view key,
                              const host::PropertyValue& like) const;
    std::string Text(const Table& table, std::string_view key) const;
    std::int32_t Number(const Table& table, std::string_view key, std::int32_t missing, std::int32_t first,
                        std::int32_t last) const;
    host::FontValue Font(const Table& table) const;

    void ParseForm(const Table& root, FormFile& file) const;
    void ParseControls(const Table& root, FormFile& file);
    FormFileControl ParseControl(const Table& table);
    Placement ParsePlace(const Table& table) const;
    host::MemoryBag ParseSettings(const Table& table, const std::string& type);

    std::string_view text_;
    const std::string& fileName_;
    std::set<std::string> names_;
    std::map<std::string, host::MemoryBag::Values> keys_; ///< Of the types met so far.
};

void Parser::Fail(const toml::source_position& place, const std::string& what) const {
    throw FileError(fileName_ + ":" + std::to_string(place.line) + ": " + what);
}

void Parser::Fail(const Table& table, std::string_view key, const std::string& what) const {
    const toml::node* node = table.table.get(key);
    const toml::source_position place = node != nullptr ? node->source().begin : table.start;
    Fail(place, (table.path.empty() ? "" : table.path + ".") + std::string(key) + ": " + what);
}

Table Parser::TableAt(const Table& in, std::string_view key) const {
    const toml::node* node = in.table.get(key);
    if (node == nullptr) Fail(in, key, "is missing");
    if (!node->is_table()) Fail(in, key, "is not a table");
    return {*node->as_table(), in.path.empty() ? std::string(key) : in.path + "." + std::string(key),
            node->source().begin};
}

void Parser::CheckKeys(const Table& table, const std::set<std::string_view>& known) const {
    for (const auto& [key, node] : table.table)
        if (!known.contains(key.str())) Fail(table, key.str(), "is not a known key");
}

// Values.

host::PropertyValue Parser::Value(const Table& table, std::string_view key,
                                  const host::PropertyValue& like) const {
    const toml::node& node = *table.table.get(key);
    if (std::holds_alternative<bool>(like) && node.is_boolean()) return node.as_boolean()->get();
    if (std::holds_alternative<std::string>(like) && node.is_string()) return node.as_string()->get();
    if (std::holds_alternative<host::FontValue>(like) && node.is_table()) return Font(TableAt(table, key));
    if (std::holds_alternative<std::int32_t>(like) && node.is_integer()) {
        const std::int64_t value = node.as_integer()->get();
        if (value < std::numeric_limits<std::int32_t>::min() ||
            value > std::numeric_limits<std::uint32_t>::max())
            Fail(table, key, "does not fit 32 bits");
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
    }
    if (std::holds_alternative<float>(like) && node.is_number()) {
        const auto value = static_cast<float>(*node.value<double>());
        if (!std::isfinite(value)) Fail(table, key, "is not a number that can be used");
        return value;
    }
    Fail(table, key, "is not " + std::string(host::KindOf(like)));
}

std::string Parser::Text(const Table& table, std::string_view key) const {
    if (!table.table.contains(key)) Fail(table, key, "is missing");
    return std::get<std::string>(Value(table, key, std::string()));
}

std::int32_t Parser::Number(const Table& table, std::string_view key, std::int32_t missing,
                            std::int32_t first, std::int32_t last) const {
    if (!table.table.contains(key)) return missing;
    const auto value = std::get<std::int32_t>(Value(table, key, std::int32_t{0}));
    if (value < first || value > last)
        Fail(table, key, "is not within " + std::to_string(first) + " to " + std::to_string(last));
    return value;
}

host::FontValue Parser::Font(const Table& table) const {
    CheckKeys(table, {"Name", "Size", "Bold", "Italic", "Underline", "Strikethrough"});
    host::FontValue font;
    const auto read = [&](std::string_view key, auto& field) {
        if (table.table.contains(key))
            field = std::get<std::remove_reference_t<decltype(field)>>(Value(table, key, field));
    };
    read("Name", font.Name);
    read("Size", font.Size);
    read("Bold", font.Bold);
    read("Italic", font.Italic);
    read("Underline", font.Underline);
    read("Strikethrough", font.Strikethrough);
    if (font.Size < 1 || font.Size > 1000) Fail(table, "Size", "is not within 1 to 1000");
    return font;
}

// The parts of a file.

FormFile Parser::Parse() {
    toml::table root;
    try {
        root = toml::parse(text_);
    } catch (const toml::parse_error& error) {
        Fail(error.source().begin, std::string(error.description()));
    }
    const Table top{root, "", {1, 1}};
    CheckKeys(top, {"form", "control"});
    FormFile file;
    ParseForm(top, file);
    ParseControls(top, file);
    return file;
}

void Parser::ParseForm(const Table& root, FormFile& file) const {
    const Table form = TableAt(root, "form");
    CheckKeys(form, {"caption", "width", "height"});
    if (form.table.contains("caption")) file.caption = Text(form, "caption");
    file.width = Number(form, "width", file.width, 1, LargestForm);
    file.height = Number(form, "height", file.height, 1, LargestForm);
}

void Parser::ParseControls(const Table& root, FormFile& file) {
    const toml::node* node = root.table.get("control");
    if (node == nullptr) return;
    if (!node->is_array()) Fail(root, "control", "is not a list of tables");
    for (const toml::node& entry : *node->as_array()) {
        if (!entry.is_table()) Fail(entry.source().begin, "control: is not a table");
        file.controls.push_back(ParseControl({*entry.as_table(), "control", entry.source().begin}));
    }
}

FormFileControl Parser::ParseControl(const Table& table) {
    CheckKeys(table, {"type", "name", "left", "top", "width", "height", "settings"});
    FormFileControl control;
    control.type = Text(table, "type");
    if (MakeControl(control.type) == nullptr)
        Fail(table, "type", "there is no control type \"" + control.type + "\"");
    control.name = Text(table, "name");
    if (control.name.empty()) Fail(table, "name", "is empty");
    if (!names_.insert(control.name).second) Fail(table, "name", "\"" + control.name + "\" is there twice");
    control.place = ParsePlace(table);
    try {
        if (table.table.contains("settings"))
            control.settings = ParseSettings(TableAt(table, "settings"), control.type);
        const auto trial = MakeControl(control.type);
        const soft::ProbeComponent probe(*trial, &control.settings);
    } catch (const FileError&) {
        throw;
    } catch (const std::exception& error) {
        Fail(table, "settings", error.what());
    }
    return control;
}

Placement Parser::ParsePlace(const Table& table) const {
    Placement place;
    place.left = Number(table, "left", place.left, -LargestPlace, LargestPlace);
    place.top = Number(table, "top", place.top, -LargestPlace, LargestPlace);
    place.width = Number(table, "width", place.width, 0, LargestPlace);
    place.height = Number(table, "height", place.height, 0, LargestPlace);
    return place;
}

host::MemoryBag Parser::ParseSettings(const Table& table, const std::string& type) {
    if (!keys_.contains(type)) keys_.emplace(type, KeysOf(type));
    const host::MemoryBag::Values& known = keys_.at(type);
    host::MemoryBag bag;
    for (const auto& [key, node] : table.table) {
        const auto like = known.find(key.str());
        if (like == known.end()) Fail(table, key.str(), "is not a setting of " + type);
        bag.Put(key.str(), Value(table, key.str(), like->second));
    }
    return bag;
}

} // namespace

FormFile ParseFormFile(std::string_view text, const std::string& fileName) {
    return Parser(text, fileName).Parse();
}

} // namespace tvok
