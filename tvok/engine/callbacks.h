/// The small objects through which shared routines reach a control's handlers.
#pragma once

#include <cstdint>
#include <string>

#include "tvok/records/Event.h"
#include "tvok/records/Variant.h"

namespace tvok {

/// The nine parameters of `ExDraw`: message, index, key, device context, `cy` (0), and the left, top, right
/// and bottom edges of the rectangle.
using ExDrawEvent = Event<std::int32_t&, std::int32_t, const std::string&, std::int32_t, std::int32_t,
                          std::int32_t, std::int32_t, std::int32_t, std::int32_t>;

/// Raises a control's `ExDraw` from the shared painter, which holds no control.
class cExdrawCallback {
public:
    ExDrawEvent ExDrawCallback;

    /// Raises `ExDrawCallback`. The result is always empty.
    Variant RaiseExDraw(std::int32_t& Msg, std::int32_t Index, const std::string& key, std::int32_t mHdc,
                        std::int32_t cy, std::int32_t x, std::int32_t Y, std::int32_t w, std::int32_t h);
};

/// For a shared routine that needs a reply from a handler.
class cMsgCallBack {
public:
    Event<std::int32_t, std::int32_t, std::int32_t, bool&> CallBack;

    /// The boolean comes in as it is; what the handler leaves in it is the result.
    bool RaiseCallBack(std::int32_t Msg, std::int32_t wParam, std::int32_t lParam, bool& fMsgProcess);
};

/// The library's public object without members.
class ctvoklib {};

} // namespace tvok
