#include "tvok/records/Variant.h"

#include <charconv>
#include <cmath>

#include "tvok/records/numeric.h"

namespace tvok {
namespace {

// Without an exponent, which the numeric scan would not read back. The largest number has 309 digits, the
// smallest fraction some 1,080 characters.
std::string ShortestDecimal(double number) {
    if (number == 0 || std::isnan(number)) return "0";
    char digits[1100];
    const auto result = std::to_chars(digits, digits + sizeof digits, number, std::chars_format::fixed);
    return {digits, result.ptr};
}

} // namespace

std::string Variant::AsText() const {
    switch (kind()) {
    case Kind::Number: return ShortestDecimal(std::get<double>(value_));
    case Kind::Text: return std::get<std::string>(value_);
    default: return {};
    }
}

double Variant::AsNumber() const {
    switch (kind()) {
    case Kind::Number: return std::get<double>(value_);
    case Kind::Text: return ScanNumber(std::get<std::string>(value_));
    default: return 0;
    }
}

std::int32_t Variant::AsInteger() const {
    return RoundToInt32(AsNumber());
}

} // namespace tvok
