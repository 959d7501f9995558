/// Texts in a form that sorts fast.
#pragma once

#include <cstdint>
#include <string_view>

namespace tvok::mtvok {

/// A text that is compared byte by byte, with its first eight bytes as a number: most comparisons end there.
class TextKey {
public:
    TextKey() = default;
    /// The bytes have to outlive the key.
    explicit TextKey(std::string_view text)
        : front_(Front(text)), bytes_(text.data()), size_(static_cast<std::uint32_t>(text.size())) {}

    friend bool operator<(const TextKey& a, const TextKey& b) {
        return a.front_ != b.front_ ? a.front_ < b.front_ : a.text() < b.text();
    }
    friend bool operator==(const TextKey& a, const TextKey& b) {
        return a.front_ == b.front_ && a.text() == b.text();
    }

private:
    std::string_view text() const { return {bytes_, size_}; }

    static std::uint64_t Front(std::string_view text) {
        std::uint64_t front = 0;
        for (std::size_t i = 0; i < sizeof front; ++i)
            front = front << 8 | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0u);
        return front;
    }

    std::uint64_t front_ = 0;
    const char* bytes_ = nullptr;
    std::uint32_t size_ = 0;
};

} // namespace tvok::mtvok
