#include "tvok/records/numeric.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "tvok/records/Error.h"

namespace tvok {
namespace {

constexpr double kLowest = std::numeric_limits<std::int32_t>::min();
constexpr double kHighest = std::numeric_limits<std::int32_t>::max();

/// The most digits whose integer a double holds exactly.
constexpr std::size_t kExactDigits = 15;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

int HexDigit(char c) {
    if (IsDigit(c)) return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

bool StartsHex(std::string_view text) {
    return text.size() >= 2 && text[0] == '&' && (text[1] == 'H' || text[1] == 'h');
}

double ScanHex(std::string_view digits) {
    double value = 0;
    for (const char c : digits) {
        const int digit = HexDigit(c);
        if (digit < 0) break;
        value = value * 16 + digit;
    }
    if (value <= kHighest || value > std::numeric_limits<std::uint32_t>::max()) return value;
    return value - 4294967296.0;
}

/// Length of the digits and the one decimal point that `text` starts with.
std::size_t DecimalLength(std::string_view text) {
    std::size_t length = 0;
    for (bool point = false; length < text.size(); ++length) {
        if (IsDigit(text[length])) continue;
        if (text[length] != '.' || point) break;
        point = true;
    }
    return length;
}

double ShortInteger(std::string_view digits) {
    std::int64_t value = 0;
    for (const char c : digits) value = value * 10 + (c - '0');
    return static_cast<double>(value);
}

double ScanUnsigned(std::string_view text) {
    const auto number = text.substr(0, DecimalLength(text));
    const auto point = number.find('.');
    if (point == std::string_view::npos && number.size() <= kExactDigits) return ShortInteger(number);
    double value = 0;
    const auto [end, error] =
        std::from_chars(number.data(), number.data() + number.size(), value, std::chars_format::fixed);
    if (error != std::errc::result_out_of_range) return value;
    const bool tiny = number.substr(0, point).find_first_not_of('0') == std::string_view::npos;
    return tiny ? 0 : std::numeric_limits<double>::infinity();
}

} // namespace

double ScanNumber(std::string_view text) {
    if (StartsHex(text)) return ScanHex(text.substr(2));
    if (text.empty()) return 0;
    if (text[0] == '-') return -ScanUnsigned(text.substr(1)) + 0.0;
    return ScanUnsigned(text[0] == '+' ? text.substr(1) : text);
}

std::optional<std::int32_t> TryRoundToInt32(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= kLowest && rounded <= kHighest)) return std::nullopt;
    return static_cast<std::int32_t>(rounded);
}

std::int32_t RoundToInt32(double value) {
    if (const auto rounded = TryRoundToInt32(value)) return *rounded;
    throw OverflowError("number does not fit 32 bits: " + std::to_string(value));
}

std::int32_t TruncateToInt32(double value) {
    return RoundToInt32(std::trunc(value));
}

void ThrowOverflow(std::int64_t value) {
    throw OverflowError("result does not fit 32 bits: " + std::to_string(value));
}

std::string HexText(std::int32_t value) {
    std::string text;
    AppendHex(text, value);
    return text;
}

void AppendDecimal(std::string& text, std::int32_t value) {
    char digits[12];
    const auto result = std::to_chars(digits, digits + sizeof digits, value);
    text.append(digits, result.ptr);
}

void AppendHex(std::string& text, std::int32_t value) {
    char form[11] = {'&', 'H'};
    auto rest = static_cast<std::uint32_t>(value);
    std::size_t length = 3;
    for (auto more = rest >> 4; more != 0; more >>= 4) ++length;
    for (std::size_t place = length; place-- > 2; rest >>= 4) form[place] = "0123456789ABCDEF"[rest & 15];
    form[length++] = '&';
    text.append(form, length);
}

} // namespace tvok
