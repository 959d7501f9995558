#include "tvok/host/desktop/text/Shaper.h"

#include <algorithm>
#include <iterator>

#include "tvok/host/desktop/text/characters.h"
#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

namespace tvok::soft {

namespace {

constexpr hb_feature_t Off(hb_tag_t tag) {
    return {tag, 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END};
}

// Kerning and ligatures are off because measuring adds up single characters; see `TextEngine`. Scripts that
// cannot be written without them keep their ligatures.
constexpr hb_feature_t offInPlainScripts[] = {
    Off(HB_TAG('k', 'e', 'r', 'n')), Off(HB_TAG('l', 'i', 'g', 'a')), Off(HB_TAG('c', 'l', 'i', 'g')),
    Off(HB_TAG('c', 'a', 'l', 't'))};

constexpr std::int64_t insideUnit = INT64_MIN; ///< In place of an advance: no unit starts here.

std::int32_t RoundedPixels(hb_position_t length) {
    return static_cast<std::int32_t>((std::int64_t{length} + 32) >> 6);
}

bool IsInherited(hb_script_t script) {
    return script == HB_SCRIPT_COMMON || script == HB_SCRIPT_INHERITED;
}

} // namespace

Shaper::Shaper() : buffer_(hb_buffer_create()) {}

Shaper::~Shaper() {
    hb_buffer_destroy(buffer_);
}

void Shaper::Shape(ScaledFont& font, std::string_view text, ShapedRun& run) {
    Decode(text);
    FindScripts();
    FindItems(font);
    OrderItems();
    run.glyphs.clear();
    run.edges.clear();
    const std::size_t usual = (characters_.size() + 31) / 32 * 32; // so that most runs can serve again
    run.glyphs.reserve(usual);
    run.edges.reserve(usual);
    advances_.assign(characters_.size(), insideUnit);
    std::int64_t pen = 0;
    for (const Item& item : items_) pen = ShapeItem(item, pen, run);
    run.width = ToInt32(pen);
    FindEdges(run);
}

void Shaper::Decode(std::string_view text) {
    ToInt32(static_cast<std::int64_t>(text.size()));
    characters_.clear();
    offsets_.clear();
    for (std::size_t place = 0; place < text.size();) {
        offsets_.push_back(place);
        characters_.push_back(static_cast<std::uint32_t>(ShownFor(NextCharacter(text, place))));
    }
    offsets_.push_back(text.size());
}

/// Characters of no script, such as blanks and marks, take the script before them, or else the first one.
void Shaper::FindScripts() {
    scripts_.clear();
    std::transform(characters_.begin(), characters_.end(), std::back_inserter(scripts_), ScriptOf);
    const auto first = std::find_if_not(scripts_.begin(), scripts_.end(), IsInherited);
    hb_script_t current = first == scripts_.end() ? HB_SCRIPT_COMMON : *first;
    for (hb_script_t& script : scripts_) {
        if (IsInherited(script)) script = current;
        current = script;
    }
}

void Shaper::FindItems(ScaledFont& font) {
    items_.clear();
    const std::vector<FriBidiLevel>& levels = bidi_.Of(characters_);
    for (std::size_t i = 0; i < characters_.size();) {
        std::size_t end = i + 1;
        while (end < characters_.size() && ContinuesUnit(characters_[end - 1], characters_[end])) ++end;
        Face& face = font.FaceFor(&characters_[i], end - i);
        const bool joins = !items_.empty() && items_.back().level == levels[i] &&
                           items_.back().script == scripts_[i] && items_.back().face == &face;
        if (joins)
            items_.back().end = end;
        else
            items_.push_back({i, end, levels[i], scripts_[i], &face});
        i = end;
    }
}

/// From the order of the text to the order from left to right: from the highest level to the lowest odd one,
/// every stretch at that level or above is turned round.
void Shaper::OrderItems() {
    FriBidiLevel highest = 0;
    for (const Item& item : items_) highest = std::max(highest, item.level);
    for (FriBidiLevel level = highest; level > 0; --level) {
        const auto isLower = [&](const Item& item) { return item.level < level; };
        for (auto begin = items_.begin(); begin != items_.end();) {
            begin = std::find_if_not(begin, items_.end(), isLower);
            const auto end = std::find_if(begin, items_.end(), isLower);
            std::reverse(begin, end);
            begin = end;
        }
    }
}

std::int64_t Shaper::ShapeItem(const Item& item, std::int64_t pen, ShapedRun& run) {
    hb_buffer_clear_contents(buffer_);
    hb_buffer_add_codepoints(buffer_, characters_.data(), static_cast<int>(characters_.size()),
                             static_cast<unsigned>(item.begin), static_cast<int>(item.end - item.begin));
    hb_buffer_set_direction(buffer_, item.level % 2 != 0 ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
    hb_buffer_set_script(buffer_, item.script);
    hb_buffer_set_language(buffer_, hb_language_from_string("und", 3));
    const bool isPlain = IsPlainScript(item.script);
    hb_shape(item.face->Shaping(), buffer_, offInPlainScripts,
             isPlain ? static_cast<unsigned>(std::size(offInPlainScripts)) : 1U);
    AppendGlyphs(item, pen, run);
    return pen;
}

void Shaper::AppendGlyphs(const Item& item, std::int64_t& pen, ShapedRun& run) {
    unsigned count = 0;
    const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(buffer_, &count);
    const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(buffer_, &count);
    for (unsigned i = 0; i < count; ++i) {
        const Glyph& glyph = item.face->GlyphAt(infos[i].codepoint);
        const std::int32_t advance = RoundedPixels(positions[i].x_advance);
        if (glyph.width > 0)
            run.glyphs.push_back({&glyph, ToInt32(pen + RoundedPixels(positions[i].x_offset)),
                                  -RoundedPixels(positions[i].y_offset)});
        std::int64_t& unit = advances_[infos[i].cluster];
        unit = (unit == insideUnit ? 0 : unit) + advance;
        pen += advance;
    }
}

void Shaper::FindEdges(ShapedRun& run) const {
    std::int64_t x = 0;
    for (std::size_t i = 0; i < advances_.size(); ++i) {
        if (advances_[i] != insideUnit) x += advances_[i];
        const bool isEnd = i + 1 == advances_.size() || advances_[i + 1] != insideUnit;
        if (isEnd) run.edges.push_back({offsets_[i + 1], ToInt32(x)});
    }
}

} // namespace tvok::soft
