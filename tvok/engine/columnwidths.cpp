#include "tvok/engine/columnwidths.h"

#include "tvok/records/numeric.h"
#include "tvok/records/text.h"

namespace tvok::mtvok {

std::string WidthsText(const Array<qrosterheader>& columns, std::int32_t count) {
    std::string text;
    for (std::int32_t i = 1; i <= count; ++i) {
        if (i > 1) text += '-';
        AppendDecimal(text, columns[i].hWidth);
    }
    return text;
}

bool TakeWidths(Array<qrosterheader>& columns, std::int32_t count, std::string_view text) {
    if (Trim(text).empty()) return false;
    std::int32_t column = 0;
    for (const std::string_view part : Split(text, '-')) {
        if (++column > count) break;
        quietly([&] {
            const std::int32_t width = RoundToInt32(ScanNumber(part));
            if (width >= cMinColumnWidth) columns[column].hWidth = width;
        });
    }
    return true;
}

std::int64_t SumOfWidths(const Array<qrosterheader>& columns, std::int32_t count) {
    std::int64_t sum = 0;
    for (std::int32_t i = 1; i <= count; ++i) sum += columns[i].hWidth;
    return sum;
}

std::int32_t DividerAt(const Array<qrosterheader>& columns, std::int32_t count, std::int64_t x,
                       std::int32_t y, std::int32_t height) {
    if (count < 1 || y < 0 || y > height) return 0;
    std::int64_t edge = 0;
    for (std::int32_t i = 1; i <= count; ++i) {
        edge += columns[i].hWidth;
        if (x > edge - 3 && x < edge + 3) return i;
    }
    return 0;
}

} // namespace tvok::mtvok
