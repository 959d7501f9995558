/// What the text engine has to know about single characters.
#pragma once

#include <cstdint>
#include <string_view>

#include <hb.h>

namespace tvok::soft {

/// A character that has no glyph and no width.
inline constexpr char32_t noWidth = 0x200B;

/// The character that shows in place of `character`: a blank for a tab, nothing for line ends, the
/// replacement character for other control characters, everything else as it is.
char32_t ShownFor(char32_t character);

/// Whether a glyph cannot be chosen by the character alone: marks, joining and complex scripts, right-to-left
/// ones, invisible format characters, parts of emoji.
bool NeedsShaping(char32_t character);

/// Whether `character` makes one unit with what stands before it, such as a mark with its base.
bool ContinuesUnit(char32_t before, char32_t character);

/// Format characters and variation selectors: a font need not know them.
bool IsInvisible(char32_t character);
bool IsRightToLeft(char32_t character);
hb_script_t ScriptOf(char32_t character);

/// Whether kerning aside the script is written without features of a font: Latin and its like.
bool IsPlainScript(hb_script_t script);

/// The language to look for fonts in, as fontconfig writes it; empty for the user's own.
std::string_view LanguageOf(char32_t character);

/// Ideographs, kana, Hangul and their punctuation: lines break between any two.
bool IsEastAsian(char32_t character);

} // namespace tvok::soft
