// `ButtonSettingsStr`: any text gives the buttons of its whole groups, side by side, as a plain reading of
// the text has them; a held button survives it, and a strip on a form is as wide as its buttons.

#include <algorithm>
#include <chrono>
#include <cmath>
#include <string>
#include <vector>

#include "fuzz.h"
#include "tvok/records/numeric.h"

namespace {

using tvok::fuzz::Require;

constexpr std::int32_t Height = 17;

/// The fields by counting bars, without the reader's own means.
std::vector<std::string> Fields(std::string_view text) {
    std::vector<std::string> fields;
    if (text.empty()) return fields;
    fields.emplace_back();
    for (const char c : text) {
        if (c == '|')
            fields.emplace_back();
        else
            fields.back() += c;
    }
    return fields;
}

std::string WithoutBlanks(std::string text) {
    while (!text.empty() && text.back() == ' ') text.pop_back();
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

/// A number of a new button: what does not fit stays 0.
std::int32_t NumberOf(const std::string& field, double lowest, double highest) {
    const double number = std::nearbyint(tvok::ScanNumber(field));
    return number >= lowest && number <= highest ? static_cast<std::int32_t>(number) : 0;
}

void RequireButton(const tvok::StripButton& button, const std::vector<std::string>& fields,
                   std::size_t first) {
    const std::int32_t kind = NumberOf(fields[first + 2], INT16_MIN, INT16_MAX);
    const bool number = kind == 1 || kind == 2;
    Require(button.kind == kind, "the kind is the third field");
    Require(button.key == WithoutBlanks(fields[first + 1]), "the key is the second, trimmed");
    Require(button.text == (number ? std::string() : WithoutBlanks(fields[first])), "the caption");
    Require(button.value == (number ? NumberOf(fields[first], INT32_MIN, INT32_MAX) : 0), "the value");
}

void RequireRow(const tvok::ButtonRow& row, const std::vector<std::string>& fields, std::int32_t width) {
    const auto groups = static_cast<std::int32_t>(fields.size() / 3);
    Require(row.Count() == std::min(groups, 32767), "every whole group is a button");
    Require(width == groups * Height, "the width is that of the groups");
    for (std::int32_t i = 1; i <= std::min(groups, 32766); ++i) {
        const tvok::tvok_Rect& rect = row[i].rect;
        Require(rect == tvok::tvok_Rect{(i - 1) * Height, 0, i * Height, Height}, "squares side by side");
        RequireButton(row[i], fields, static_cast<std::size_t>(i - 1) * 3);
    }
    for (std::int32_t i = 1; i <= std::min(groups, 50); ++i)
        Require(row.ButtonAt(i * Height - 1, Height - 1) == i, "a point is in its button");
    Require(row.ButtonAt(width, 0) == 0 && row.ButtonAt(-1, 0) == 0, "and beside the row in none");
}

tvok::xbutton& Strip() {
    static tvok::Form& form = tvok::fuzz::HeadlessDesktop().AddForm("strip", 200, 60);
    static tvok::xbutton& strip = form.Add<tvok::xbutton>("strip", {0, 0, 10, Height});
    return strip;
}

/// Shows the buttons of the text and presses one.
void Show(std::string_view text, std::int32_t width) {
    tvok::xbutton& strip = Strip();
    Require(strip.SetButtons(text) == width, "a strip has the width of its row");
    Require(strip.ButtonSettingsStr() == text, "and keeps its text");
    std::int16_t button = 1;
    std::int16_t shift = 0;
    float x = 300;
    float y = 150;
    strip.MouseDown(button, shift, x, y);
    strip.MouseMove(button, shift, y, x);
    strip.Paint();
    strip.MouseUp(button, shift, x, y);
    tvok::fuzz::HeadlessDesktop().ProcessEvents(std::chrono::milliseconds(0));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = tvok::fuzz::Text(data, size);
    tvok::ButtonRow row;
    const std::int32_t width = row.Set(text, Height);
    RequireRow(row, Fields(text), width);

    if (row.Count() > 0) row[row.Count()].state = 3;
    Require(row.Set(text, Height) == width, "the same text gives the same width");
    if (row.Count() > 0) Require(row[row.Count()].state == 3, "a held button stays held");

    Show(text, width);
    return 0;
}
