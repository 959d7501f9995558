/// Which parts of a text run from right to left.
#pragma once

#include <cstdint>
#include <vector>

#include <fribidi.h>

namespace tvok::soft {

/// Levels of the bidirectional algorithm for a text whose own direction is left to right: even ones run to
/// the right, odd ones to the left.
class BidiLevels {
public:
    /// One level for each character. Valid until the next call.
    const std::vector<FriBidiLevel>& Of(const std::vector<std::uint32_t>& characters);

private:
    bool AreWordsAlone() const;
    void AssignWords();

    std::vector<FriBidiCharType> types_;
    std::vector<FriBidiBracketType> brackets_;
    std::vector<FriBidiLevel> levels_;
};

} // namespace tvok::soft
