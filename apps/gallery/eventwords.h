/// Arguments of events in words: "Index=3", "KeyCode=40 Down", "x={text="a" → "b"}".
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tvok/tvok.h"

namespace gallery {

/// What a number among the arguments means.
enum class ArgumentStyle {
    Plain,
    Key,       ///< The code of a key.
    Character, ///< The code of a character.
    Shift,     ///< Bits of the keys that are held.
    Button,    ///< A mouse button, or bits of several.
    HostPart,  ///< What `ExDraw` asks for.
    Edge,      ///< Left of a rectangle; the next three arguments are the other edges.
    Given      ///< The handler is to fill it: what came in is of no interest.
};

struct Argument {
    const char* name;
    ArgumentStyle style = ArgumentStyle::Plain;
};

/// A part of a value: all of it where it has no name, or a field of a record.
struct ValuePart {
    const char* name = "";
    std::string words{};
    bool telling = true; ///< Worth a word by itself; other fields are told only where they changed.
};

/// A value in parts: always the same parts in the same order for a type.
using ValueParts = std::vector<ValuePart>;

ValueParts PartsOf(bool value, ArgumentStyle style);
ValueParts PartsOf(std::int32_t value, ArgumentStyle style);
ValueParts PartsOf(float value, ArgumentStyle style);
ValueParts PartsOf(const std::string& value, ArgumentStyle style);
ValueParts PartsOf(const tvok::qrosterdata& value, ArgumentStyle style);
ValueParts PartsOf(const tvok::elistdata& value, ArgumentStyle style);

/// The arguments of one event, with what a handler changed as "old → new". Both hold an entry for each
/// argument; `after` is that of `before` where a handler could change nothing.
std::string ArgumentsText(std::span<const Argument> arguments, const std::vector<ValueParts>& before,
                          const std::vector<ValueParts>& after);

/// In quotes, cut to 40 characters, what is no letter as an escape: "a\tb…".
std::string Quoted(std::string_view text);
/// "cWindowText" for the colours that the library names, "system 16", or "#RRGGBB".
std::string ColorWords(tvok::OLE_COLOR color);
/// The bits of `qrosterdata::vflag` by their names: "Bold+Underline", "0".
std::string FlagWords(std::int32_t flags);

} // namespace gallery
