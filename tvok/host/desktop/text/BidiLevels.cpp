#include "tvok/host/desktop/text/BidiLevels.h"

#include <algorithm>
#include <new>

#include "tvok/host/desktop/text/characters.h"

namespace tvok::soft {

namespace {

constexpr std::size_t mostBrackets = FRIBIDI_BIDI_MAX_NESTED_BRACKET_PAIRS;

bool IsNumber(FriBidiCharType type) {
    return type == FRIBIDI_TYPE_EN || type == FRIBIDI_TYPE_AN;
}

/// The side that a letter or number takes among neutral ones; `ON` where it takes none.
FriBidiCharType SideOf(FriBidiCharType type) {
    if (type == FRIBIDI_TYPE_LTR) return FRIBIDI_TYPE_LTR;
    return type == FRIBIDI_TYPE_RTL || IsNumber(type) ? FRIBIDI_TYPE_RTL : FRIBIDI_TYPE_ON;
}

} // namespace

const std::vector<FriBidiLevel>& BidiLevels::Of(const std::vector<std::uint32_t>& characters) {
    levels_.assign(characters.size(), 0);
    if (std::none_of(characters.begin(), characters.end(), IsRightToLeft)) return levels_;
    types_.resize(characters.size());
    brackets_.resize(characters.size());
    const auto length = static_cast<FriBidiStrIndex>(characters.size());
    fribidi_get_bidi_types(characters.data(), length, types_.data());
    fribidi_get_bracket_types(characters.data(), length, types_.data(), brackets_.data());
    if (IsPlain()) {
        resolved_.assign(types_.begin(), types_.end());
        ResolveWeak();
        ResolveSeparators();
        ResolveBrackets();
        ResolveNeutral();
        AssignLevels();
        return levels_;
    }
    FriBidiParType direction = FRIBIDI_PAR_LTR;
    const FriBidiLevel highest = fribidi_get_par_embedding_levels_ex(types_.data(), brackets_.data(), length,
                                                                     &direction, levels_.data());
    if (highest == 0) throw std::bad_alloc();
    return levels_;
}

/// Whether the rules below are all that the text needs: no formatting characters, no separators of lines or
/// columns, no brackets beside marks that stand on no letter, not more brackets than the algorithm keeps. The
/// whole algorithm comes to the same but allocates.
bool BidiLevels::IsPlain() const {
    std::size_t brackets = 0;
    bool onLetter = false, hasOddMarks = false;
    for (std::size_t i = 0; i < types_.size(); ++i) {
        const Type type = types_[i];
        brackets += brackets_[i] != FRIBIDI_NO_BRACKET ? 1 : 0;
        if (type == FRIBIDI_TYPE_NSM) {
            hasOddMarks = hasOddMarks || !onLetter;
            continue;
        }
        onLetter = FRIBIDI_IS_LETTER(type);
        const bool isKnown = onLetter || IsNumber(type) || FRIBIDI_IS_ES_OR_CS(type) ||
                             type == FRIBIDI_TYPE_ET || type == FRIBIDI_TYPE_WS || type == FRIBIDI_TYPE_ON;
        if (!isKnown) return false;
    }
    return brackets == 0 || (!hasOddMarks && brackets <= mostBrackets);
}

/// Rules W1 to W3 of the bidirectional algorithm: marks follow their letter; digits after Arabic letters are
/// Arabic numbers.
void BidiLevels::ResolveWeak() {
    Type before = FRIBIDI_TYPE_LTR;
    Type strong = FRIBIDI_TYPE_LTR;
    for (Type& type : resolved_) {
        if (type == FRIBIDI_TYPE_NSM) type = before;
        before = type;
        if (FRIBIDI_IS_LETTER(type)) strong = type;
        if (type == FRIBIDI_TYPE_EN && strong == FRIBIDI_TYPE_AL) type = FRIBIDI_TYPE_AN;
    }
    std::replace(resolved_.begin(), resolved_.end(), Type{FRIBIDI_TYPE_AL}, Type{FRIBIDI_TYPE_RTL});
}

/// Rules W4 to W7: what stands between or beside digits belongs to the number, else is neutral; digits after
/// a left-to-right letter are like one.
void BidiLevels::ResolveSeparators() {
    for (std::size_t i = 1; i + 1 < resolved_.size(); ++i) {
        const Type type = resolved_[i], before = resolved_[i - 1];
        const bool joins = before == resolved_[i + 1] &&
                           (before == FRIBIDI_TYPE_EN ? FRIBIDI_IS_ES_OR_CS(type)
                                                      : before == FRIBIDI_TYPE_AN && type == FRIBIDI_TYPE_CS);
        if (joins) resolved_[i] = before;
    }
    for (std::size_t i = 0; i < resolved_.size();) {
        std::size_t end = i;
        while (end < resolved_.size() && resolved_[end] == FRIBIDI_TYPE_ET) ++end;
        const bool ofNumber = (i > 0 && resolved_[i - 1] == FRIBIDI_TYPE_EN) ||
                              (end < resolved_.size() && resolved_[end] == FRIBIDI_TYPE_EN);
        for (; i < end; ++i) resolved_[i] = ofNumber ? FRIBIDI_TYPE_EN : FRIBIDI_TYPE_ON;
        ++i;
    }
    Type strong = FRIBIDI_TYPE_LTR;
    for (Type& type : resolved_) {
        if (FRIBIDI_IS_LETTER(type)) strong = type;
        if (FRIBIDI_IS_ES_OR_CS(type)) type = FRIBIDI_TYPE_ON;
        if (type == FRIBIDI_TYPE_EN && strong == FRIBIDI_TYPE_LTR) type = FRIBIDI_TYPE_LTR;
    }
}

/// Pairs in the order of their opening brackets (BD16).
void BidiLevels::FindBrackets() {
    pairs_.clear();
    open_.clear();
    for (std::size_t i = 0; i < resolved_.size(); ++i) {
        if (brackets_[i] == FRIBIDI_NO_BRACKET || resolved_[i] != FRIBIDI_TYPE_ON) continue;
        if (FRIBIDI_IS_BRACKET_OPEN(brackets_[i])) {
            open_.push_back(i);
            continue;
        }
        const auto partner = std::find_if(open_.rbegin(), open_.rend(), [&](std::size_t place) {
            return FRIBIDI_BRACKET_ID(brackets_[place]) == FRIBIDI_BRACKET_ID(brackets_[i]);
        });
        if (partner == open_.rend()) continue;
        pairs_.push_back({*partner, i});
        open_.erase(partner.base() - 1, open_.end());
    }
    std::sort(pairs_.begin(), pairs_.end(), [](auto& a, auto& b) { return a.open < b.open; });
}

/// Rule N0: a pair around something left-to-right is left-to-right; one around right-to-left text alone is
/// like that where it also follows such.
void BidiLevels::ResolveBrackets() {
    FindBrackets();
    for (const Brackets& pair : pairs_) {
        Type inside = FRIBIDI_TYPE_ON;
        for (std::size_t i = pair.open + 1; i < pair.close && inside != FRIBIDI_TYPE_LTR; ++i)
            if (SideOf(resolved_[i]) != FRIBIDI_TYPE_ON) inside = SideOf(resolved_[i]);
        if (inside == FRIBIDI_TYPE_ON) continue;
        const Type type = inside == FRIBIDI_TYPE_RTL ? StrongBefore(pair.open) : inside;
        resolved_[pair.open] = resolved_[pair.close] = type;
    }
}

BidiLevels::Type BidiLevels::StrongBefore(std::size_t place) const {
    while (place-- > 0)
        if (SideOf(resolved_[place]) != FRIBIDI_TYPE_ON) return SideOf(resolved_[place]);
    return FRIBIDI_TYPE_LTR;
}

/// Rules N1 and N2: what stands between right-to-left text is so, too; everything else is left-to-right.
void BidiLevels::ResolveNeutral() {
    Type before = FRIBIDI_TYPE_LTR;
    for (std::size_t i = 0; i < resolved_.size();) {
        std::size_t end = i;
        while (end < resolved_.size() && SideOf(resolved_[end]) == FRIBIDI_TYPE_ON) ++end;
        const Type after = end < resolved_.size() ? SideOf(resolved_[end]) : Type{FRIBIDI_TYPE_LTR};
        for (; i < end; ++i) resolved_[i] = before == after ? before : FRIBIDI_TYPE_LTR;
        if (i < resolved_.size()) before = SideOf(resolved_[i++]);
    }
}

/// Rule I1.
void BidiLevels::AssignLevels() {
    std::transform(resolved_.begin(), resolved_.end(), levels_.begin(), [](Type type) {
        return static_cast<FriBidiLevel>(type == FRIBIDI_TYPE_RTL ? 1 : IsNumber(type) ? 2 : 0);
    });
}

} // namespace tvok::soft
