/// The grid that an open popup shows.
#pragma once

#include "tvok/engine/ListState.h"

namespace tvok::popup {

/// The numbers of columns and rows that were laid out at the last opening. The list's state may have others
/// since, which count from the next opening on.
struct ShownGrid {
    std::int32_t xn = 0;
    std::int32_t yn = 0;
    std::int32_t GridRows = 0; ///< 0 where nothing could be laid out.

    /// Runs `question` on `state` or, where that has other numbers by now, on a copy that has these.
    template<class Question>
    auto Ask(ListState& state, Question question) const {
        if (state.xn == xn && state.yn == yn && state.GridRows == GridRows) return question(state);
        ListState shown = state;
        shown.xn = xn;
        shown.yn = yn;
        shown.GridRows = GridRows;
        return question(shown);
    }
};

} // namespace tvok::popup
