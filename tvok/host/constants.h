/// Handles and numbers of the platform interface, by their platform names.
#pragma once

#include <cstdint>

#include "tvok/records/tvok_declare.h"

namespace tvok::host {

/// Windows, device contexts, drawing objects and image lists are 32-bit handles; 0 is none.
using Handle = std::int32_t;

/// A point in pixels.
struct Point {
    std::int32_t x = 0;
    std::int32_t y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

/// What `BeginPaint` fills in.
struct PaintStruct {
    Handle hdc = 0;
    bool fErase = false;
    tvok_Rect rcPaint; ///< Bounding box of what has to be painted, in client coordinates.
};

/// The mouse record that a thread's mouse hook delivers: the screen point comes first.
struct MouseHookRecord {
    std::int32_t x = 0;
    std::int32_t y = 0;
    Handle hWnd = 0;
    std::int32_t HitTestCode = 0;
    std::int32_t ExtraInfo = 0;
};
static_assert(sizeof(MouseHookRecord) == 20);

/// A font description, laid out as the platform's 60 bytes.
struct LogFont {
    std::int32_t lfHeight = 0; ///< Negative: character height in pixels.
    std::int32_t lfWidth = 0;
    std::int32_t lfEscapement = 0;
    std::int32_t lfOrientation = 0;
    std::int32_t lfWeight = 0; ///< 400 regular, 700 bold.
    std::uint8_t lfItalic = 0;
    std::uint8_t lfUnderline = 0;
    std::uint8_t lfStrikeOut = 0;
    std::uint8_t lfCharSet = 0;
    std::uint8_t lfOutPrecision = 0;
    std::uint8_t lfClipPrecision = 0;
    std::uint8_t lfQuality = 0;
    std::uint8_t lfPitchAndFamily = 0;
    char lfFaceName[32] = {}; ///< Up to its first zero character.
};
static_assert(sizeof(LogFont) == 60);

// Window messages.
inline constexpr std::int32_t WM_MOVE = 0x0003, WM_SIZE = 0x0005, WM_SETFOCUS = 0x0007, WM_KILLFOCUS = 0x0008,
                              WM_PAINT = 0x000F, WM_CLOSE = 0x0010, WM_ERASEBKGND = 0x0014,
                              WM_SHOWWINDOW = 0x0018, WM_SETCURSOR = 0x0020, WM_NCHITTEST = 0x0084,
                              WM_NCPAINT = 0x0085, WM_NCMOUSEMOVE = 0x00A0, WM_NCLBUTTONDOWN = 0x00A1,
                              WM_NCLBUTTONUP = 0x00A2, WM_NCLBUTTONDBLCLK = 0x00A3, WM_KEYDOWN = 0x0100,
                              WM_KEYUP = 0x0101, WM_CHAR = 0x0102, WM_SYSKEYDOWN = 0x0104,
                              WM_SYSKEYUP = 0x0105, WM_TIMER = 0x0113, WM_HSCROLL = 0x0114,
                              WM_VSCROLL = 0x0115, WM_MOUSEMOVE = 0x0200, WM_LBUTTONDOWN = 0x0201,
                              WM_LBUTTONUP = 0x0202, WM_LBUTTONDBLCLK = 0x0203, WM_RBUTTONDOWN = 0x0204,
                              WM_RBUTTONUP = 0x0205, WM_RBUTTONDBLCLK = 0x0206, WM_MBUTTONDOWN = 0x0207,
                              WM_MBUTTONUP = 0x0208, WM_MBUTTONDBLCLK = 0x0209, WM_MOUSEWHEEL = 0x020A,
                              WM_CAPTURECHANGED = 0x0215, WM_MOUSEHWHEEL = 0x020E, WM_USER = 0x0400,
                              WM_SETUP = 1242;

// Key and button state word of mouse messages.
inline constexpr std::int32_t MK_LBUTTON = 1, MK_RBUTTON = 2, MK_SHIFT = 4, MK_CONTROL = 8, MK_MBUTTON = 16;

// Hit test codes.
inline constexpr std::int32_t HTNOWHERE = 0, HTCLIENT = 1, HTHSCROLL = 6, HTVSCROLL = 7, HTBORDER = 18;

// Key codes.
inline constexpr std::int32_t VK_LBUTTON = 1, VK_RBUTTON = 2, VK_MBUTTON = 4, VK_BACK = 8, VK_TAB = 9,
                              VK_RETURN = 13, VK_SHIFT = 16, VK_CONTROL = 17, VK_MENU = 18, VK_ESCAPE = 27,
                              VK_SPACE = 32, VK_PRIOR = 33, VK_NEXT = 34, VK_END = 35, VK_HOME = 36,
                              VK_LEFT = 37, VK_UP = 38, VK_RIGHT = 39, VK_DOWN = 40, VK_INSERT = 45,
                              VK_DELETE = 46, VK_F1 = 112, VK_F12 = 123;

// Text drawing.
inline constexpr std::int32_t ETO_OPAQUE = 2, ETO_CLIPPED = 4;
inline constexpr std::int32_t TA_LEFT = 0, TA_RIGHT = 2, TA_CENTER = 6, TA_TOP = 0, TA_BOTTOM = 8,
                              TA_BASELINE = 24;
inline constexpr std::int32_t TRANSPARENT_BK = 1, OPAQUE_BK = 2;
inline constexpr std::int32_t DT_LEFT = 0, DT_CENTER = 1, DT_RIGHT = 2, DT_VCENTER = 4, DT_BOTTOM = 8,
                              DT_WORDBREAK = 0x10, DT_SINGLELINE = 0x20, DT_EXPANDTABS = 0x40,
                              DT_NOCLIP = 0x100, DT_CALCRECT = 0x400, DT_NOPREFIX = 0x800;

// Pens, brushes, raster operations, stock objects, capabilities.
inline constexpr std::int32_t PS_SOLID = 0, PS_DASH = 1, PS_DOT = 2, PS_NULL = 5, PS_INSIDEFRAME = 6;
inline constexpr std::int32_t R2_NOT = 6, R2_XORPEN = 7, R2_COPYPEN = 13;
inline constexpr std::int32_t WHITE_BRUSH = 0, LTGRAY_BRUSH = 1, GRAY_BRUSH = 2, DKGRAY_BRUSH = 3,
                              BLACK_BRUSH = 4, HOLLOW_BRUSH = 5, WHITE_PEN = 6, BLACK_PEN = 7, NULL_PEN = 8,
                              SYSTEM_FONT = 13, DEFAULT_GUI_FONT = 17;
inline constexpr std::int32_t LOGPIXELSX = 88, LOGPIXELSY = 90, HORZRES = 8, VERTRES = 10, BITSPIXEL = 12;
inline constexpr std::int32_t ILD_NORMAL = 0, ILD_TRANSPARENT = 1;

// Frames and edges.
inline constexpr std::int32_t DFC_CAPTION = 1, DFC_MENU = 2, DFC_SCROLL = 3, DFC_BUTTON = 4;
inline constexpr std::int32_t DFCS_CAPTIONCLOSE = 0, DFCS_SCROLLUP = 0, DFCS_SCROLLDOWN = 1,
                              DFCS_SCROLLLEFT = 2, DFCS_SCROLLRIGHT = 3, DFCS_SCROLLCOMBOBOX = 5,
                              DFCS_BUTTONCHECK = 0, DFCS_BUTTONRADIO = 4, DFCS_BUTTONPUSH = 0x10,
                              DFCS_INACTIVE = 0x100, DFCS_PUSHED = 0x200, DFCS_CHECKED = 0x400,
                              DFCS_FLAT = 0x4000;
inline constexpr std::int32_t BDR_RAISEDOUTER = 1, BDR_SUNKENOUTER = 2, BDR_RAISEDINNER = 4,
                              BDR_SUNKENINNER = 8, EDGE_RAISED = 5, EDGE_ETCHED = 6, EDGE_BUMP = 9,
                              EDGE_SUNKEN = 10;
inline constexpr std::int32_t BF_LEFT = 1, BF_TOP = 2, BF_RIGHT = 4, BF_BOTTOM = 8, BF_RECT = 15,
                              BF_MIDDLE = 0x800, BF_SOFT = 0x1000, BF_ADJUST = 0x2000, BF_FLAT = 0x4000,
                              BF_MONO = 0x8000;

// Metrics.
inline constexpr std::int32_t SM_CXSCREEN = 0, SM_CYSCREEN = 1, SM_CXVSCROLL = 2, SM_CYHSCROLL = 3,
                              SM_CYCAPTION = 4, SM_CXBORDER = 5, SM_CYBORDER = 6, SM_CYVSCROLL = 20,
                              SM_CXHSCROLL = 21, SM_SWAPBUTTON = 23, SM_CXDOUBLECLK = 36, SM_CYDOUBLECLK = 37,
                              SM_CXEDGE = 45, SM_CYEDGE = 46;

// System colours.
inline constexpr std::int32_t COLOR_SCROLLBAR = 0, COLOR_BACKGROUND = 1, COLOR_ACTIVECAPTION = 2,
                              COLOR_INACTIVECAPTION = 3, COLOR_MENU = 4, COLOR_WINDOW = 5,
                              COLOR_WINDOWFRAME = 6, COLOR_MENUTEXT = 7, COLOR_WINDOWTEXT = 8,
                              COLOR_CAPTIONTEXT = 9, COLOR_ACTIVEBORDER = 10, COLOR_INACTIVEBORDER = 11,
                              COLOR_APPWORKSPACE = 12, COLOR_HIGHLIGHT = 13, COLOR_HIGHLIGHTTEXT = 14,
                              COLOR_BTNFACE = 15, COLOR_BTNSHADOW = 16, COLOR_GRAYTEXT = 17,
                              COLOR_BTNTEXT = 18, COLOR_INACTIVECAPTIONTEXT = 19, COLOR_BTNHIGHLIGHT = 20,
                              COLOR_3DDKSHADOW = 21, COLOR_3DLIGHT = 22, COLOR_INFOTEXT = 23,
                              COLOR_INFOBK = 24;

// Window positions and styles.
inline constexpr std::int32_t HWND_TOP = 0, HWND_BOTTOM = 1, HWND_TOPMOST = -1, HWND_NOTOPMOST = -2;
inline constexpr std::int32_t SWP_NOSIZE = 1, SWP_NOMOVE = 2, SWP_NOZORDER = 4, SWP_NOACTIVATE = 0x10,
                              SWP_SHOWWINDOW = 0x40, SWP_HIDEWINDOW = 0x80;
inline constexpr std::int32_t WS_EX_TOPMOST = 8, WS_EX_TOOLWINDOW = 128;

// Mouse pointers of a component or a form.
inline constexpr std::int16_t ccDefault = 0, ccArrow = 1, ccCross = 2, ccIBeam = 3, ccSize = 5,
                              ccSizeNESW = 6, ccSizeNS = 7, ccSizeNWSE = 8, ccSizeWE = 9;

} // namespace tvok::host
