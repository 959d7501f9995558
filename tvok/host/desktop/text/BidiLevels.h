/// Which parts of a text run from right to left.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include <fribidi.h>

namespace tvok::soft {

/// Levels of the bidirectional algorithm for a text whose own direction is left to right: even ones run to
/// the right, odd ones to the left. Allocates nothing once warm, save for texts with formatting characters
/// or with brackets and marks that stand on no letter.
class BidiLevels {
public:
    /// One level for each character. Valid until the next call.
    const std::vector<FriBidiLevel>& Of(const std::vector<std::uint32_t>& characters);

private:
    using Type = FriBidiCharType;
    struct Brackets {
        std::size_t open;
        std::size_t close;
    };

    bool IsPlain() const;
    void ResolveWeak();
    void ResolveSeparators();
    void FindBrackets();
    void ResolveBrackets();
    Type StrongBefore(std::size_t place) const;
    void ResolveNeutral();
    void AssignLevels();

    std::vector<Type> types_;    ///< As the characters have them.
    std::vector<Type> resolved_; ///< As the rules leave them.
    std::vector<FriBidiBracketType> brackets_;
    std::vector<Brackets> pairs_;
    std::vector<std::size_t> open_; ///< Brackets that wait for their other half.
    std::vector<FriBidiLevel> levels_;
};

} // namespace tvok::soft
