#include "tvok/host/desktop/displays/SdlKeys.h"

#include <algorithm>
#include <iterator>

#include "tvok/host/constants.h"

namespace tvok::soft {

namespace {

using namespace host;

struct KeyCode {
    SDL_Scancode scancode;
    std::int32_t virtualKey;
};

constexpr KeyCode NamedKeys[] = {
    {SDL_SCANCODE_BACKSPACE, VK_BACK}, {SDL_SCANCODE_TAB, VK_TAB},         {SDL_SCANCODE_RETURN, VK_RETURN},
    {SDL_SCANCODE_RETURN2, VK_RETURN}, {SDL_SCANCODE_KP_ENTER, VK_RETURN}, {SDL_SCANCODE_LSHIFT, VK_SHIFT},
    {SDL_SCANCODE_RSHIFT, VK_SHIFT},   {SDL_SCANCODE_LCTRL, VK_CONTROL},   {SDL_SCANCODE_RCTRL, VK_CONTROL},
    {SDL_SCANCODE_LALT, VK_MENU},      {SDL_SCANCODE_RALT, VK_MENU},       {SDL_SCANCODE_PAUSE, 19},
    {SDL_SCANCODE_CAPSLOCK, 20},       {SDL_SCANCODE_ESCAPE, VK_ESCAPE},   {SDL_SCANCODE_SPACE, VK_SPACE},
    {SDL_SCANCODE_PAGEUP, VK_PRIOR},   {SDL_SCANCODE_PAGEDOWN, VK_NEXT},   {SDL_SCANCODE_END, VK_END},
    {SDL_SCANCODE_HOME, VK_HOME},      {SDL_SCANCODE_LEFT, VK_LEFT},       {SDL_SCANCODE_UP, VK_UP},
    {SDL_SCANCODE_RIGHT, VK_RIGHT},    {SDL_SCANCODE_DOWN, VK_DOWN},       {SDL_SCANCODE_PRINTSCREEN, 44},
    {SDL_SCANCODE_INSERT, VK_INSERT},  {SDL_SCANCODE_DELETE, VK_DELETE},   {SDL_SCANCODE_LGUI, 91},
    {SDL_SCANCODE_RGUI, 92},           {SDL_SCANCODE_APPLICATION, 93},     {SDL_SCANCODE_KP_MULTIPLY, 106},
    {SDL_SCANCODE_KP_PLUS, 107},       {SDL_SCANCODE_KP_MINUS, 109},       {SDL_SCANCODE_KP_DIVIDE, 111},
    {SDL_SCANCODE_NUMLOCKCLEAR, 144},  {SDL_SCANCODE_SCROLLLOCK, 145},     {SDL_SCANCODE_SEMICOLON, 186},
    {SDL_SCANCODE_EQUALS, 187},        {SDL_SCANCODE_COMMA, 188},          {SDL_SCANCODE_MINUS, 189},
    {SDL_SCANCODE_PERIOD, 190},        {SDL_SCANCODE_SLASH, 191},          {SDL_SCANCODE_GRAVE, 192},
    {SDL_SCANCODE_LEFTBRACKET, 219},   {SDL_SCANCODE_BACKSLASH, 220},      {SDL_SCANCODE_RIGHTBRACKET, 221},
    {SDL_SCANCODE_APOSTROPHE, 222},    {SDL_SCANCODE_NONUSBACKSLASH, 226},
};

/// Keys of the keypad by what they are with the number lock, and without it.
struct KeypadCode {
    SDL_Scancode scancode;
    std::int32_t digit;
    std::int32_t motion;
};

constexpr KeypadCode KeypadKeys[] = {
    {SDL_SCANCODE_KP_0, 96, VK_INSERT},       {SDL_SCANCODE_KP_1, 97, VK_END},
    {SDL_SCANCODE_KP_2, 98, VK_DOWN},         {SDL_SCANCODE_KP_3, 99, VK_NEXT},
    {SDL_SCANCODE_KP_4, 100, VK_LEFT},        {SDL_SCANCODE_KP_5, 101, 12},
    {SDL_SCANCODE_KP_6, 102, VK_RIGHT},       {SDL_SCANCODE_KP_7, 103, VK_HOME},
    {SDL_SCANCODE_KP_8, 104, VK_UP},          {SDL_SCANCODE_KP_9, 105, VK_PRIOR},
    {SDL_SCANCODE_KP_PERIOD, 110, VK_DELETE},
};

bool IsWithin(std::int32_t value, std::int32_t first, std::int32_t last) {
    return value >= first && value <= last;
}

/// The letter or digit that stands at this place on a Latin keyboard, else 0.
std::int32_t LetterAt(SDL_Scancode scancode) {
    if (IsWithin(scancode, SDL_SCANCODE_A, SDL_SCANCODE_Z)) return 'A' + (scancode - SDL_SCANCODE_A);
    if (scancode == SDL_SCANCODE_0) return '0';
    if (IsWithin(scancode, SDL_SCANCODE_1, SDL_SCANCODE_9)) return '1' + (scancode - SDL_SCANCODE_1);
    return 0;
}

} // namespace

std::int32_t VirtualKeyOf(const SDL_Keysym& key) {
    if (IsWithin(key.sym, 'a', 'z')) return key.sym - 'a' + 'A';
    if (IsWithin(key.sym, '0', '9')) return key.sym;
    if (key.sym == SDLK_MODE) return 0; // chooses other characters: no Alt
    if (IsWithin(key.scancode, SDL_SCANCODE_F1, SDL_SCANCODE_F12))
        return VK_F1 + (key.scancode - SDL_SCANCODE_F1);
    if (IsWithin(key.scancode, SDL_SCANCODE_F13, SDL_SCANCODE_F24))
        return VK_F12 + 1 + (key.scancode - SDL_SCANCODE_F13);
    const auto keypad = std::ranges::find(KeypadKeys, key.scancode, &KeypadCode::scancode);
    if (keypad != std::end(KeypadKeys)) return (key.mod & KMOD_NUM) != 0 ? keypad->digit : keypad->motion;
    const auto named = std::ranges::find(NamedKeys, key.scancode, &KeyCode::scancode);
    return named != std::end(NamedKeys) ? named->virtualKey : LetterAt(key.scancode);
}

} // namespace tvok::soft
