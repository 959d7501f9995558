/// Numbers in texts, and rounding: one place for every control.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "tvok/records/Error.h"

namespace tvok {

/// The numeric scan: an optional sign, digits and a decimal point, or "&H" in either case with hexadecimal
/// digits. No blanks in front, no exponent. It stops at the first character that does not belong, so "12ab"
/// is 12; a text that starts with nothing numeric is 0. "&H" reads the low 32 bits as a signed number where
/// 32 bits hold the digits; the closing "&" may be missing.
double ScanNumber(std::string_view text);

/// Rounds half to even; nothing when 32 bits do not hold the result or it is not a number.
std::optional<std::int32_t> TryRoundToInt32(double value);

/// Rounds half to even. Throws `OverflowError` when 32 bits do not hold the result or it is not a number.
std::int32_t RoundToInt32(double value);

/// Drops the fraction. Throws like `RoundToInt32`.
std::int32_t TruncateToInt32(double value);

[[noreturn]] void ThrowOverflow(std::int64_t value);

/// `value` when 32 bits hold it, else throws `OverflowError`. For sums of geometry, which are made in 64
/// bits.
inline std::int32_t ToInt32(std::int64_t value) {
    const auto fitting = static_cast<std::int32_t>(value);
    if (fitting != value) [[unlikely]]
        ThrowOverflow(value);
    return fitting;
}

/// `value` when 16 bits hold it, else throws `OverflowError`.
inline std::int16_t ToInt16(std::int64_t value) {
    if (value < INT16_MIN || value > INT16_MAX) throw OverflowError("a value does not fit 16 bits");
    return static_cast<std::int16_t>(value);
}

/// "&H", upper-case hexadecimal digits and "&", as the text forms write 32-bit values.
std::string HexText(std::int32_t value);

/// Appends the decimal digits or the hexadecimal form of `value`.
void AppendDecimal(std::string& text, std::int32_t value);
void AppendHex(std::string& text, std::int32_t value);

} // namespace tvok
