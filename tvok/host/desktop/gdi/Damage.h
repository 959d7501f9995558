/// What was drawn on a surface since somebody last looked.
#pragma once

#include <cstddef>
#include <vector>

#include "tvok/host/desktop/pixels/Region.h"

namespace tvok::soft {

/// Every drawing call notes its rectangle here, so noting is cheap and costs no memory once the list has
/// grown to what is drawn between two looks; the set is made when somebody asks for it.
class Damage {
public:
    /// Notes a rectangle in surface coordinates. An empty one adds nothing.
    void Add(const tvok_Rect& rect) {
        if (rect.Left >= rect.Right || rect.Top >= rect.bottom) return;
        if (!recent_.empty() && Join(recent_.back(), rect)) return;
        Append(rect);
    }
    void Add(const Region& region);

    bool IsEmpty() const { return recent_.empty() && settled_.IsEmpty(); }
    /// Exactly the pixels noted since the last `Take`.
    const Region& Area();
    /// Gives the area and starts anew.
    Region Take();

private:
    /// Grows `box` by `rect` where the two together are a rectangle again.
    static bool Join(tvok_Rect& box, const tvok_Rect& rect) {
        const bool sameRows = rect.Top == box.Top && rect.bottom == box.bottom;
        const bool sameColumns = rect.Left == box.Left && rect.Right == box.Right;
        if (sameRows && rect.Left <= box.Right && box.Left <= rect.Right) {
            box.Left = rect.Left < box.Left ? rect.Left : box.Left;
            box.Right = rect.Right > box.Right ? rect.Right : box.Right;
            return true;
        }
        if (sameColumns && rect.Top <= box.bottom && box.Top <= rect.bottom) {
            box.Top = rect.Top < box.Top ? rect.Top : box.Top;
            box.bottom = rect.bottom > box.bottom ? rect.bottom : box.bottom;
            return true;
        }
        return rect.Left >= box.Left && rect.Right <= box.Right && rect.Top >= box.Top &&
               rect.bottom <= box.bottom;
    }
    void JoinLast();
    void Append(const tvok_Rect& rect);
    void Settle();

    std::vector<tvok_Rect> recent_;
    Region settled_;
};

} // namespace tvok::soft
