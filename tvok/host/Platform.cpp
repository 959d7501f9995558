#include "tvok/host/Platform.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "tvok/records/Error.h"
#include "tvok/records/numeric.h"

namespace tvok::host {
namespace {

constinit thread_local Platform* currentPlatform = nullptr;

std::int32_t Sum(std::int64_t a, std::int64_t b) {
    return ToInt32(a + b);
}

} // namespace

void Platform::InflateRect(tvok_Rect& rect, std::int32_t dx, std::int32_t dy) {
    rect = {Sum(rect.Left, -std::int64_t{dx}), Sum(rect.Top, -std::int64_t{dy}), Sum(rect.Right, dx),
            Sum(rect.bottom, dy)};
}

void Platform::OffsetRect(tvok_Rect& rect, std::int32_t dx, std::int32_t dy) {
    rect = {Sum(rect.Left, dx), Sum(rect.Top, dy), Sum(rect.Right, dx), Sum(rect.bottom, dy)};
}

bool Platform::IntersectRect(tvok_Rect& to, const tvok_Rect& a, const tvok_Rect& b) {
    const tvok_Rect both{std::max(a.Left, b.Left), std::max(a.Top, b.Top), std::min(a.Right, b.Right),
                         std::min(a.bottom, b.bottom)};
    const bool meet = IsRectEmpty(both) == 0;
    to = meet ? both : tvok_Rect{};
    return meet;
}

std::int32_t Platform::IsRectEmpty(const tvok_Rect& rect) {
    return rect.Right <= rect.Left || rect.bottom <= rect.Top ? 1 : 0;
}

bool Platform::PtInRect(const tvok_Rect& rect, Point point) {
    return point.x >= rect.Left && point.x < rect.Right && point.y >= rect.Top && point.y < rect.bottom;
}

std::int32_t Platform::lstrlenA(const char* text) {
    return text == nullptr ? 0 : ToInt32(static_cast<std::int64_t>(std::strlen(text)));
}

Platform& platform() {
    if (currentPlatform == nullptr) throw ObjectError("this thread has no platform: make a desktop first");
    return *currentPlatform;
}

Platform* SetPlatform(Platform* platform) {
    return std::exchange(currentPlatform, platform);
}

} // namespace tvok::host
