/// The tagged variant value of `TmpData`, `nData` and `VarData`: empty, a number or a text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace tvok {

class Variant {
public:
    enum class Kind { Empty, Number, Text };

    Variant() = default;
    Variant(double number) : value_(number) {} // NOLINT(google-explicit-constructor)
    Variant(std::int32_t number)
        : value_(static_cast<double>(number)) {}                  // NOLINT(google-explicit-constructor)
    Variant(std::string text) : value_(std::move(text)) {}        // NOLINT(google-explicit-constructor)
    Variant(std::string_view text) : value_(std::string(text)) {} // NOLINT(google-explicit-constructor)
    Variant(const char* text) : value_(std::string(text)) {}      // NOLINT(google-explicit-constructor)

    Kind kind() const { return static_cast<Kind>(value_.index()); }
    bool IsEmpty() const { return kind() == Kind::Empty; }

    /// The value as text: empty for an empty value, the shortest decimal form for a number.
    std::string AsText() const;
    /// The value as a number: 0 for an empty value, the numeric scan (`ScanNumber`) for a text.
    double AsNumber() const;
    /// `AsNumber` rounded half to even. Throws `OverflowError` where 32 bits do not hold it.
    std::int32_t AsInteger() const;

    friend bool operator==(const Variant&, const Variant&) = default;

private:
    std::variant<std::monostate, double, std::string> value_;
};

} // namespace tvok
