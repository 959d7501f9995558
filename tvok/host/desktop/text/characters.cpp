#include "tvok/host/desktop/text/characters.h"

namespace tvok::soft {

namespace {

constexpr char32_t joiner = 0x200D;

bool IsWithin(char32_t character, char32_t first, char32_t last) {
    return character >= first && character <= last;
}

hb_unicode_general_category_t CategoryOf(char32_t character) {
    return hb_unicode_general_category(hb_unicode_funcs_get_default(), character);
}

bool IsMark(char32_t character) {
    const auto category = CategoryOf(character);
    return category == HB_UNICODE_GENERAL_CATEGORY_NON_SPACING_MARK ||
           category == HB_UNICODE_GENERAL_CATEGORY_SPACING_MARK ||
           category == HB_UNICODE_GENERAL_CATEGORY_ENCLOSING_MARK;
}

bool IsSkinTone(char32_t character) {
    return IsWithin(character, 0x1F3FB, 0x1F3FF);
}

bool IsRegionalLetter(char32_t character) {
    return IsWithin(character, 0x1F1E6, 0x1F1FF);
}

bool IsJoiningJamo(char32_t character) {
    return IsWithin(character, 0x1100, 0x11FF) || IsWithin(character, 0xA960, 0xA97F) ||
           IsWithin(character, 0xD7B0, 0xD7FF);
}

} // namespace

char32_t ShownFor(char32_t character) {
    if (character == '\t') return ' ';
    if (character == '\r' || character == '\n') return noWidth;
    const bool isControl = character < 0x20 || IsWithin(character, 0x7F, 0x9F);
    return isControl ? 0xFFFD : character;
}

bool IsPlainScript(hb_script_t script) {
    switch (script) {
    case HB_SCRIPT_COMMON:
    case HB_SCRIPT_LATIN:
    case HB_SCRIPT_GREEK:
    case HB_SCRIPT_CYRILLIC:
    case HB_SCRIPT_ARMENIAN:
    case HB_SCRIPT_GEORGIAN:
    case HB_SCRIPT_HAN:
    case HB_SCRIPT_HIRAGANA:
    case HB_SCRIPT_KATAKANA:
    case HB_SCRIPT_BOPOMOFO:
    case HB_SCRIPT_HANGUL:
    case HB_SCRIPT_YI:
    case HB_SCRIPT_BRAILLE:
    case HB_SCRIPT_CHEROKEE:
    case HB_SCRIPT_UNKNOWN: return true;
    default: return false;
    }
}

bool NeedsShaping(char32_t character) {
    if (character < 0x300) return character == 0xAD; // the soft hyphen, which does not show
    if (character == noWidth) return false;
    if (IsMark(character) || CategoryOf(character) == HB_UNICODE_GENERAL_CATEGORY_FORMAT) return true;
    if (IsSkinTone(character) || IsRegionalLetter(character) || IsJoiningJamo(character)) return true;
    return !IsPlainScript(ScriptOf(character));
}

bool ContinuesUnit(char32_t before, char32_t character) {
    if (before == joiner || character == joiner) return true;
    if (IsRegionalLetter(before) && IsRegionalLetter(character)) return true;
    return IsMark(character) || IsSkinTone(character);
}

bool IsInvisible(char32_t character) {
    return IsWithin(character, 0xFE00, 0xFE0F) || IsWithin(character, 0xE0100, 0xE01EF) ||
           CategoryOf(character) == HB_UNICODE_GENERAL_CATEGORY_FORMAT;
}

bool IsRightToLeft(char32_t character) {
    if (character < 0x590) return false;
    if (character == 0x200F || character == 0x202B || character == 0x202E || character == 0x2067) return true;
    return hb_script_get_horizontal_direction(ScriptOf(character)) == HB_DIRECTION_RTL;
}

hb_script_t ScriptOf(char32_t character) {
    return hb_unicode_script(hb_unicode_funcs_get_default(), character);
}

std::string_view LanguageOf(char32_t character) {
    if (IsWithin(character, 0x1F300, 0x1FAFF)) return "und-zsye";
    switch (ScriptOf(character)) {
    case HB_SCRIPT_HAN: return "zh-cn";
    case HB_SCRIPT_BOPOMOFO: return "zh-tw";
    case HB_SCRIPT_HIRAGANA:
    case HB_SCRIPT_KATAKANA: return "ja";
    case HB_SCRIPT_HANGUL: return "ko";
    case HB_SCRIPT_ARABIC: return "ar";
    case HB_SCRIPT_HEBREW: return "he";
    case HB_SCRIPT_THAI: return "th";
    case HB_SCRIPT_DEVANAGARI: return "hi";
    case HB_SCRIPT_BENGALI: return "bn";
    case HB_SCRIPT_TAMIL: return "ta";
    case HB_SCRIPT_ARMENIAN: return "hy";
    case HB_SCRIPT_GEORGIAN: return "ka";
    default: return {};
    }
}

bool IsEastAsian(char32_t character) {
    return IsWithin(character, 0x2E80, 0x312F) || IsWithin(character, 0x3130, 0xA4CF) ||
           IsWithin(character, 0xAC00, 0xD7A3) || IsWithin(character, 0xF900, 0xFAFF) ||
           IsWithin(character, 0xFE30, 0xFE4F) || IsWithin(character, 0xFF00, 0xFF60) ||
           IsWithin(character, 0x1B000, 0x1B16F) || IsWithin(character, 0x20000, 0x3FFFF);
}

} // namespace tvok::soft
