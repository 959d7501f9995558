#include "tvok/host/desktop/pixels/kernels.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <cwchar>

#if defined(__SSE2__)
#include <emmintrin.h>
#if defined(__GNUC__)
#include <immintrin.h>
#define TVOK_AVX2 __attribute__((target("avx2"))) ///< For processors that have it: asked at the start.
#endif
#endif

namespace tvok::soft {

namespace {

constexpr Pixel colorBits = 0x00FFFFFF;

/// 0 to 255 as 0 to 256, so that mixing divides by a power of two and all is still all.
std::uint32_t Of256(std::uint32_t amount) {
    return amount + (amount >> 7);
}

/// under + (over - under) * amount / 255 for each of the four bytes, to within 1.
Pixel Mix(Pixel under, Pixel over, std::uint32_t amount) {
    const std::uint32_t part = Of256(amount);
    Pixel mixed = 0;
    for (unsigned shift = 0; shift < 32; shift += 8)
        mixed |= (((under >> shift & 255) * (256 - part) + (over >> shift & 255) * part + 128) >> 8) << shift;
    return mixed;
}

} // namespace

namespace scalar {

void BlendCoverage(Surface& surface, std::int32_t left, std::int32_t top, const Coverage& block,
                   Pixel color) {
    const std::uint8_t* from = block.bytes;
    for (std::int32_t y = 0; y < block.height; ++y, from += block.pitch) {
        Pixel* const to = surface.Row(top + y) + left;
        for (std::int32_t x = 0; x < block.width; ++x) to[x] = Mix(to[x], color, from[x]);
    }
}

void BlendImageRow(Pixel* to, const std::uint32_t* image, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) to[i] = Mix(to[i], image[i], image[i] >> 24) & colorBits;
}

void FillRow(Pixel* to, std::size_t count, Pixel color) {
    std::fill_n(to, count, color);
}

void InvertRow(Pixel* to, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) to[i] ^= colorBits;
}

} // namespace scalar

#if defined(__SSE2__)

namespace {

__m128i Load(const void* from) {
    return _mm_loadu_si128(static_cast<const __m128i*>(from));
}

void Store(void* to, __m128i value) {
    _mm_storeu_si128(static_cast<__m128i*>(to), value);
}

__m128i LanesOf256(__m128i amounts) {
    return _mm_add_epi16(amounts, _mm_srli_epi16(amounts, 7));
}

/// `Mix` for two pixels whose bytes stand in 16-bit lanes: `raised` is 256 * under + 128. The product of the
/// difference may wrap, but the sum fits its lane again.
__m128i MixLanes(__m128i raised, __m128i under, __m128i over, __m128i part) {
    const __m128i change = _mm_mullo_epi16(_mm_sub_epi16(over, under), part);
    return _mm_srli_epi16(_mm_add_epi16(raised, change), 8);
}

/// Four pixels, with the colours and parts of the first two and of the last two in lanes.
__m128i MixFour(__m128i under, __m128i overLow, __m128i overHigh, __m128i partLow, __m128i partHigh) {
    const __m128i zero = _mm_setzero_si128();
    const __m128i half = _mm_set1_epi8(-128); // below a byte of the upper half: 256 * byte + 128
    return _mm_packus_epi16(
        MixLanes(_mm_unpacklo_epi8(half, under), _mm_unpacklo_epi8(under, zero), overLow, partLow),
        MixLanes(_mm_unpackhi_epi8(half, under), _mm_unpackhi_epi8(under, zero), overHigh, partHigh));
}

__m128i SpreadAlpha(__m128i lanes) {
    return LanesOf256(_mm_shufflehi_epi16(_mm_shufflelo_epi16(lanes, 0xFF), 0xFF));
}

/// Mixes four pixels by the four coverage bytes at `from`. `over`: the colour in the lanes of two pixels.
void BlendFour(Pixel* to, const std::uint8_t* from, __m128i over) {
    std::int32_t four = 0;
    std::memcpy(&four, from, 4);
    __m128i parts = LanesOf256(_mm_unpacklo_epi8(_mm_cvtsi32_si128(four), _mm_setzero_si128()));
    parts = _mm_unpacklo_epi16(parts, parts);
    Store(to,
          MixFour(Load(to), over, over, _mm_unpacklo_epi32(parts, parts), _mm_unpackhi_epi32(parts, parts)));
}

#if defined(TVOK_AVX2)

const bool hasAvx2 = __builtin_cpu_supports("avx2") != 0;

/// As `MixLanes`, for four pixels.
TVOK_AVX2 __m256i MixLanesOfFour(__m256i raised, __m256i under, __m256i over, __m256i amounts) {
    const __m256i part = _mm256_add_epi16(amounts, _mm256_srli_epi16(amounts, 7));
    const __m256i change = _mm256_mullo_epi16(_mm256_sub_epi16(over, under), part);
    return _mm256_srli_epi16(_mm256_add_epi16(raised, change), 8);
}

/// As `BlendFour`, for eight pixels: the halves of a register hold the first and the last four.
TVOK_AVX2 void BlendEight(Pixel* to, const std::uint8_t* from, __m256i over) {
    constexpr char z = -128; // makes a byte 0
    const __m256i firstPairs = _mm256_setr_epi8(0, z, 0, z, 0, z, 0, z, 1, z, 1, z, 1, z, 1, z, //
                                                4, z, 4, z, 4, z, 4, z, 5, z, 5, z, 5, z, 5, z);
    const __m256i lastPairs = _mm256_setr_epi8(2, z, 2, z, 2, z, 2, z, 3, z, 3, z, 3, z, 3, z, //
                                               6, z, 6, z, 6, z, 6, z, 7, z, 7, z, 7, z, 7, z);
    const __m256i zero = _mm256_setzero_si256(), half = _mm256_set1_epi8(z);
    const __m256i amounts =
        _mm256_broadcastsi128_si256(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(from)));
    auto* const place = reinterpret_cast<__m256i*>(to);
    const __m256i under = _mm256_loadu_si256(place);
    const __m256i low = MixLanesOfFour(_mm256_unpacklo_epi8(half, under), _mm256_unpacklo_epi8(under, zero),
                                       over, _mm256_shuffle_epi8(amounts, firstPairs));
    const __m256i high = MixLanesOfFour(_mm256_unpackhi_epi8(half, under), _mm256_unpackhi_epi8(under, zero),
                                        over, _mm256_shuffle_epi8(amounts, lastPairs));
    _mm256_storeu_si256(place, _mm256_packus_epi16(low, high));
}

/// Blends the columns that make whole groups of eight; how many these are.
TVOK_AVX2 std::int32_t BlendEights(Surface& surface, std::int32_t left, std::int32_t top,
                                   const Coverage& block, Pixel color) {
    const std::int32_t eights = block.width & ~7;
    if (eights == 0) return 0;
    const __m256i over =
        _mm256_unpacklo_epi8(_mm256_set1_epi32(static_cast<std::int32_t>(color)), _mm256_setzero_si256());
    const std::uint8_t* from = block.bytes;
    for (std::int32_t y = 0; y < block.height; ++y, from += block.pitch) {
        Pixel* const to = surface.Row(top + y) + left;
        for (std::int32_t x = 0; x < eights; x += 8) BlendEight(to + x, from + x, over);
    }
    return eights;
}

std::int32_t BlendWide(Surface& surface, std::int32_t left, std::int32_t top, const Coverage& block,
                       Pixel color) {
    return hasAvx2 ? BlendEights(surface, left, top, block, color) : 0;
}

#else

std::int32_t BlendWide(Surface&, std::int32_t, std::int32_t, const Coverage&, Pixel) {
    return 0;
}

#endif

} // namespace

void BlendCoverage(Surface& surface, std::int32_t left, std::int32_t top, const Coverage& block,
                   Pixel color) {
    const std::int32_t done = BlendWide(surface, left, top, block, color);
    if (done == block.width) return;
    const __m128i over =
        _mm_unpacklo_epi8(_mm_set1_epi32(static_cast<std::int32_t>(color)), _mm_setzero_si128());
    const std::int32_t fours = block.width & ~3;
    const std::uint8_t* from = block.bytes;
    for (std::int32_t y = 0; y < block.height; ++y, from += block.pitch) {
        Pixel* const to = surface.Row(top + y) + left;
        for (std::int32_t x = done; x < fours; x += 4) BlendFour(to + x, from + x, over);
        for (std::int32_t x = fours; x < block.width; ++x) to[x] = Mix(to[x], color, from[x]);
    }
}

void BlendImageRow(Pixel* to, const std::uint32_t* image, std::size_t count) {
    const __m128i zero = _mm_setzero_si128();
    const __m128i mask = _mm_set1_epi32(static_cast<std::int32_t>(colorBits));
    std::size_t i = 0;
    for (; i + 4 <= count; i += 4) {
        const __m128i over = Load(image + i);
        const __m128i low = _mm_unpacklo_epi8(over, zero);
        const __m128i high = _mm_unpackhi_epi8(over, zero);
        const __m128i mixed = MixFour(Load(to + i), low, high, SpreadAlpha(low), SpreadAlpha(high));
        Store(to + i, _mm_and_si128(mixed, mask));
    }
    scalar::BlendImageRow(to + i, image + i, count - i);
}

void FillRow(Pixel* to, std::size_t count, Pixel color) {
    constexpr std::size_t many = 32; // from here on the C library's ways for this processor pay for the call
    if constexpr (sizeof(wchar_t) == sizeof(Pixel))
        if (count >= many) {
            std::wmemset(reinterpret_cast<wchar_t*>(to), static_cast<wchar_t>(color), count);
            return;
        }
    if (count < 4) return scalar::FillRow(to, count, color);
    const __m128i four = _mm_set1_epi32(static_cast<std::int32_t>(color));
    Pixel* const last = to + count - 4;
    for (; to + 12 <= last; to += 16) {
        Store(to, four);
        Store(to + 4, four);
        Store(to + 8, four);
        Store(to + 12, four);
    }
    for (; to < last; to += 4) Store(to, four);
    Store(last, four); // overlaps what stands before it when the count is no multiple of 4
}

void InvertRow(Pixel* to, std::size_t count) {
    const __m128i mask = _mm_set1_epi32(static_cast<std::int32_t>(colorBits));
    std::size_t i = 0;
    for (; i + 4 <= count; i += 4) Store(to + i, _mm_xor_si128(Load(to + i), mask));
    scalar::InvertRow(to + i, count - i);
}

#else

void BlendCoverage(Surface& surface, std::int32_t left, std::int32_t top, const Coverage& block,
                   Pixel color) {
    scalar::BlendCoverage(surface, left, top, block, color);
}

void BlendImageRow(Pixel* to, const std::uint32_t* image, std::size_t count) {
    scalar::BlendImageRow(to, image, count);
}

void FillRow(Pixel* to, std::size_t count, Pixel color) {
    scalar::FillRow(to, count, color);
}

void InvertRow(Pixel* to, std::size_t count) {
    scalar::InvertRow(to, count);
}

#endif

namespace {

/// `rect` moved, with what leaves 32 bits cut off.
tvok_Rect Moved(const tvok_Rect& rect, std::int64_t dx, std::int64_t dy) {
    const auto cut = [](std::int64_t value) {
        return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, INT32_MIN, INT32_MAX));
    };
    return {cut(rect.Left + dx), cut(rect.Top + dy), cut(rect.Right + dx), cut(rect.bottom + dy)};
}

std::size_t WidthOf(const tvok_Rect& rect) {
    return static_cast<std::size_t>(rect.Right - rect.Left);
}

/// Whether giving rows other places costs much less than copying what moves to `to`: it reads and writes the
/// pixels beside it and the rows that nothing arrives at.
bool RollingPays(const Surface& surface, const tvok_Rect& to, std::int32_t dy) {
    constexpr std::int64_t cacheLines = 32; // in pixels: what the shortest piece of a row costs on both sides
    const std::int64_t rows = std::int64_t{to.bottom} - to.Top, distance = std::abs(std::int64_t{dy});
    const std::int64_t width = std::int64_t{to.Right} - to.Left, beside = surface.Width() - width;
    if (rows <= distance) return false;
    const std::int64_t rolled = (beside > 0 ? beside + cacheLines : 0) * (rows + distance) + width * distance;
    return 2 * rolled < width * rows;
}

} // namespace

void Fill(Surface& surface, const tvok_Rect& rect, Pixel color) {
    const tvok_Rect inside = Intersection(rect, BoundsOf(surface));
    if (inside.Right - inside.Left == 1) { // grid lines and edges
        for (std::int32_t y = inside.Top; y < inside.bottom; ++y) surface.Row(y)[inside.Left] = color;
        return;
    }
    for (std::int32_t y = inside.Top; y < inside.bottom; ++y)
        FillRow(surface.Row(y) + inside.Left, WidthOf(inside), color);
}

void Invert(Surface& surface, const tvok_Rect& rect) {
    const tvok_Rect inside = Intersection(rect, BoundsOf(surface));
    for (std::int32_t y = inside.Top; y < inside.bottom; ++y)
        InvertRow(surface.Row(y) + inside.Left, WidthOf(inside));
}

void Move(Surface& surface, const tvok_Rect& source, std::int32_t dx, std::int32_t dy) {
    const tvok_Rect bounds = BoundsOf(surface);
    const tvok_Rect to = Intersection(Moved(Intersection(source, bounds), dx, dy), bounds);
    if (dx == 0 && dy != 0 && RollingPays(surface, to, dy))
        return surface.Roll(to.Left, to.Right, std::min(to.Top, to.Top - dy),
                            std::max(to.bottom, to.bottom - dy), dy);
    const std::size_t bytes = WidthOf(to) * sizeof(Pixel);
    const auto moveRow = [&](std::int32_t y) {
        std::memmove(surface.Row(y) + to.Left, surface.Row(y - dy) + (to.Left - dx), bytes);
    };
    if (dy <= 0)
        for (std::int32_t y = to.Top; y < to.bottom; ++y) moveRow(y);
    else
        for (std::int32_t y = to.bottom; y > to.Top; --y) moveRow(y - 1);
}

} // namespace tvok::soft
