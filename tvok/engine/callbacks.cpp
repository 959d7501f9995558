#include "tvok/engine/callbacks.h"

namespace tvok {

Variant cExdrawCallback::RaiseExDraw(std::int32_t& Msg, std::int32_t Index, const std::string& key,
                                     std::int32_t mHdc, std::int32_t cy, std::int32_t x, std::int32_t Y,
                                     std::int32_t w, std::int32_t h) {
    ExDrawCallback(Msg, Index, key, mHdc, cy, x, Y, w, h);
    return {};
}

bool cMsgCallBack::RaiseCallBack(std::int32_t Msg, std::int32_t wParam, std::int32_t lParam,
                                 bool& fMsgProcess) {
    CallBack(Msg, wParam, lParam, fMsgProcess);
    return fMsgProcess;
}

} // namespace tvok
