#include "tvok/host/desktop/text/BidiLevels.h"

#include <algorithm>
#include <new>

#include "tvok/host/desktop/text/characters.h"

namespace tvok::soft {

const std::vector<FriBidiLevel>& BidiLevels::Of(const std::vector<std::uint32_t>& characters) {
    levels_.assign(characters.size(), 0);
    if (std::none_of(characters.begin(), characters.end(), IsRightToLeft)) return levels_;
    types_.resize(characters.size());
    brackets_.resize(characters.size());
    const auto length = static_cast<FriBidiStrIndex>(characters.size());
    fribidi_get_bidi_types(characters.data(), length, types_.data());
    if (AreWordsAlone()) {
        AssignWords();
        return levels_;
    }
    fribidi_get_bracket_types(characters.data(), length, types_.data(), brackets_.data());
    FriBidiParType direction = FRIBIDI_PAR_LTR;
    const FriBidiLevel highest = fribidi_get_par_embedding_levels_ex(types_.data(), brackets_.data(), length,
                                                                     &direction, levels_.data());
    if (highest == 0) throw std::bad_alloc();
    return levels_;
}

/// Whether there are right-to-left letters, their marks and blanks and nothing else. Most such texts are like
/// this, and the whole algorithm, which allocates, comes to the same.
bool BidiLevels::AreWordsAlone() const {
    const bool areKnown = std::all_of(types_.begin(), types_.end(), [](FriBidiCharType type) {
        return type == FRIBIDI_TYPE_RTL || type == FRIBIDI_TYPE_AL || type == FRIBIDI_TYPE_NSM ||
               type == FRIBIDI_TYPE_WS;
    });
    const auto first = std::find_if(types_.begin(), types_.end(),
                                    [](FriBidiCharType type) { return type != FRIBIDI_TYPE_WS; });
    return areKnown && first != types_.end() && *first != FRIBIDI_TYPE_NSM;
}

/// From the first letter to the last one everything runs to the left. A mark behind a blank goes with it.
void BidiLevels::AssignWords() {
    const auto isLetter = [](FriBidiCharType type) {
        return type == FRIBIDI_TYPE_RTL || type == FRIBIDI_TYPE_AL;
    };
    const auto first = std::find_if(types_.begin(), types_.end(), isLetter) - types_.begin();
    auto end = types_.rend() - std::find_if(types_.rbegin(), types_.rend(), isLetter);
    while (end < std::ssize(types_) && types_[static_cast<std::size_t>(end)] == FRIBIDI_TYPE_NSM) ++end;
    std::fill(levels_.begin() + first, levels_.begin() + end, FriBidiLevel{1});
}

} // namespace tvok::soft
