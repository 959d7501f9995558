/// What a `gList` draws, call by call: as the platform was told, and as the layout of rows has it.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/PropertyListDesktop.h"
#include "tvok/engine/dgi.h"
#include "tvok/host/RecordingPlatform.h"

namespace tvok::test {

using DrawnCalls = std::vector<std::string>;

inline DrawnCalls Join(std::initializer_list<DrawnCalls> parts) {
    DrawnCalls all;
    for (const DrawnCalls& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
}

/// A recorded line with single blanks, and without the number of its context.
inline std::string ShortCall(std::string_view line) {
    std::string call;
    for (std::size_t at = 0; at < line.size();) {
        if (line[at] == '"') return call + " " + std::string(line.substr(at));
        const std::size_t end = std::min(line.find(' ', at), line.size());
        const std::string_view word = line.substr(at, end - at);
        if (!word.empty() && !word.starts_with("hdc=")) (call += call.empty() ? "" : " ") += word;
        at = end + 1;
    }
    return call;
}

/// Of a platform's trace the calls that put something on the screen.
inline DrawnCalls Drawing(const std::vector<std::string>& trace) {
    DrawnCalls calls;
    for (const std::string& line : trace)
        for (const char* name :
             {"FillRect ", "FrameRect ", "Rectangle ", "ExtTextOutA ", "DrawTextA ", "MoveToEx ", "LineTo ",
              "DrawFocusRect ", "DrawFrameControl ", "DrawEdge ", "ImageList_Draw "})
            if (line.starts_with(name)) calls.push_back(ShortCall(line));
    return calls;
}

/// The texts of the cells that `action` paints, in order.
inline std::vector<std::string> PaintedTexts(TestDesktop& desktop, const std::function<void()>& action) {
    std::vector<std::string> texts;
    for (const std::string& line : desktop.Trace(action)) {
        const std::size_t open = line.find('"');
        if (line.starts_with("ExtTextOutA"))
            texts.push_back(line.substr(open + 1, line.rfind('"') - open - 1));
    }
    return texts;
}

/// While it lives, the texts of cells that are painted stand in the log too, as `paint(text)`.
class PaintsInLog {
public:
    explicit PaintsInLog(PropertyListDesktop& at)
        : desktop_(at.desktop.desktop()), recorder_(desktop_.OwnPlatform(), [&at](std::string_view line) {
              if (!line.starts_with("ExtTextOutA")) return;
              const std::size_t open = line.find('"');
              at.log.push_back("paint(" + std::string(line.substr(open + 1, line.rfind('"') - open - 1)) +
                               ")");
          }) {
        desktop_.InterposePlatform(&recorder_);
    }
    ~PaintsInLog() { desktop_.InterposePlatform(nullptr); }
    PaintsInLog(const PaintsInLog&) = delete;
    PaintsInLog& operator=(const PaintsInLog&) = delete;

private:
    Desktop& desktop_;
    host::RecordingPlatform recorder_;
};

inline std::string RectText(const tvok_Rect& rect) {
    const auto point = [](std::int32_t x, std::int32_t y) {
        return "(" + std::to_string(x) + "," + std::to_string(y) + ")";
    };
    return point(rect.Left, rect.Top) + "-" + point(rect.Right, rect.bottom);
}

/// As "#RRGGBB".
inline std::string ColorText(OLE_COLOR color) {
    const auto bits = static_cast<std::uint32_t>(dgi::TranslateColor(color));
    std::string text = "#";
    for (const auto shift : {4, 0, 12, 8, 20, 16}) text += "0123456789ABCDEF"[bits >> shift & 15];
    return text;
}

inline std::string FillCall(const tvok_Rect& rect, OLE_COLOR color) {
    return "FillRect " + RectText(rect) + " brush=" + ColorText(color);
}

/// The calls of rows in a list with lines between its rows and none on its border. Rows are counted on the
/// page from 1.
class RowCalls {
public:
    explicit RowCalls(PropertyListDesktop& at) : list_(*at.list) {
        tvok_Rect client;
        host::platform().GetClientRect(at.desktop.WindowOf(*at.list), client);
        width_ = client.Right;
    }

    /// A caption, and a value beside it. Only the caption shows that the row is the current one.
    DrawnCalls Value(std::int32_t row, const std::string& caption, const std::string& value,
                     bool selected = false) const {
        const std::int32_t middle = list_.HeadWidthEx() + list_.HeadWidth();
        return Join({Band(row), Cell(row, list_.HeadWidthEx(), middle, caption, selected),
                     Cell(row, middle + 1, width_, value, false)});
    }
    DrawnCalls Group(std::int32_t row, const std::string& caption, bool collapsed,
                     bool selected = false) const {
        return Join(
            {Band(row), Cell(row, list_.HeadWidthEx(), width_, caption, selected), FoldBox(row, collapsed)});
    }
    DrawnCalls FoldBox(std::int32_t row, bool collapsed) const {
        const std::int32_t x = (list_.HeadWidthEx() - 9) / 2, y = Top(row) + (list_.ItemHeight() - 9) / 2;
        const auto to = [](const char* name, std::int32_t px, std::int32_t py) {
            return std::string(name) + " (" + std::to_string(px) + "," + std::to_string(py) + ")";
        };
        DrawnCalls calls{"FrameRect " + RectText({x, y, x + 9, y + 9}) +
                             " brush=" + ColorText(SystemColor(16)),
                         to("MoveToEx", x + 2, y + 4), to("LineTo", x + 7, y + 4)};
        if (collapsed) calls.insert(calls.end(), {to("MoveToEx", x + 4, y + 2), to("LineTo", x + 4, y + 7)});
        return calls;
    }
    DrawnCalls Blank(std::int32_t row) const {
        return Join(
            {Band(row),
             {FillCall({list_.HeadWidthEx(), Top(row), width_ + 1, Bottom(row) + 1}, list_.BackColor())}});
    }
    /// What is left right of the cell: a column without width, painted for every row of the page.
    DrawnCalls Filler(std::int32_t row) const {
        return {FillCall({width_ + 1, Top(row), width_ + 1, Bottom(row) + 1}, list_.BackColor())};
    }
    DrawnCalls Band(std::int32_t row) const {
        const std::int32_t edge = list_.HeadWidthEx() - 1;
        return {FillCall({-1, Top(row) - 1, edge, Bottom(row) + 1}, list_.HeadExBackColor()),
                FillCall({edge, Top(row) - 1, edge + 1, Bottom(row) + 1}, list_.HeadExBorderColor())};
    }
    DrawnCalls Cell(std::int32_t row, std::int32_t left, std::int32_t right, const std::string& text,
                    bool selected) const {
        const std::int32_t start = left + list_.CX_TEXT();
        const std::int32_t y = Top(row) + (list_.ItemHeight() - list_.TextHeight()) / 2;
        return {"Rectangle " + RectText({left, Top(row), right + 1, Bottom(row) + 1}),
                FillCall({left, Top(row), start, Bottom(row)},
                         selected ? list_.SelectedColor() : cWindowBackground),
                "ExtTextOutA at (" + std::to_string(start) + "," + std::to_string(y) + ") flags=6 " +
                    RectText({start, Top(row), right, Bottom(row)}) + " \"" + text + "\""};
    }
    std::int32_t Top(std::int32_t row) const { return (row - 1) * (list_.ItemHeight() + 1); }
    std::int32_t Bottom(std::int32_t row) const { return Top(row) + list_.ItemHeight(); }
    std::int32_t Width() const { return width_; }

private:
    const gList& list_;
    std::int32_t width_ = 0;
};

} // namespace tvok::test
