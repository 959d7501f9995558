#include "tvok/host/desktop/shell/EditText.h"

#include <algorithm>

#include <unicode/ubrk.h>
#include <unicode/utext.h>

#include "tvok/records/Error.h"
#include "tvok/records/text.h"

namespace tvok::soft {

namespace {

constexpr std::size_t MostUndos = 100;

bool IsControl(char32_t character) {
    return character < 0x20 || (character >= 0x7F && character < 0xA0) || character == 0x2028 ||
           character == 0x2029;
}

} // namespace

std::string EditText::Clean(std::string_view text) {
    std::string clean;
    for (std::size_t place = 0; place < text.size();) {
        const char32_t character = NextCharacter(text, place);
        if (character == '\n' || character == '\r') break;
        if (character == '\t')
            clean += ' ';
        else if (!IsControl(character))
            AppendCharacter(clean, character);
    }
    return clean;
}

EditText::EditText() : characters_(OpenBreaks(false)), words_(OpenBreaks(true)) {}

void EditText::CloseBreaks::operator()(UBreakIterator* breaks) const {
    ubrk_close(breaks);
}

EditText::Breaks EditText::OpenBreaks(bool words) {
    UErrorCode status = U_ZERO_ERROR;
    Breaks breaks(ubrk_open(words ? UBRK_WORD : UBRK_CHARACTER, "", nullptr, 0, &status));
    if (U_FAILURE(status)) throw ResourceError("no text boundaries on this machine: install ICU's data");
    return breaks;
}

void EditText::Text(std::string_view text) {
    before_.clear();
    text_.clear();
    caret_ = anchor_ = 0;
    const std::string clean = Clean(text);
    text_ = Fitting(clean);
}

std::string EditText::SelectedText() const {
    return text_.substr(SelectionStart(), SelectionEnd() - SelectionStart());
}

// Places.

UBreakIterator* EditText::Over(const Breaks& breaks) const {
    UErrorCode status = U_ZERO_ERROR;
    UText text = UTEXT_INITIALIZER;
    utext_openUTF8(&text, text_.data(), static_cast<std::int64_t>(text_.size()), &status);
    ubrk_setUText(breaks.get(), &text, &status); // copies what it needs of `text`, not the bytes
    utext_close(&text);
    return breaks.get();
}

std::size_t EditText::AtOrBefore(std::size_t place) const {
    if (place >= text_.size()) return text_.size();
    UBreakIterator* breaks = Over(characters_);
    const auto offset = static_cast<std::int32_t>(place);
    if (ubrk_isBoundary(breaks, offset)) return place;
    return static_cast<std::size_t>(std::max(ubrk_preceding(breaks, offset), 0));
}

std::size_t EditText::Before(std::size_t place) const {
    if (place == 0) return 0;
    return static_cast<std::size_t>(
        std::max(ubrk_preceding(Over(characters_), static_cast<std::int32_t>(place)), 0));
}

std::size_t EditText::After(std::size_t place) const {
    if (place >= text_.size()) return text_.size();
    const std::int32_t next = ubrk_following(Over(characters_), static_cast<std::int32_t>(place));
    return next == UBRK_DONE ? text_.size() : static_cast<std::size_t>(next);
}

std::size_t EditText::WordBefore(std::size_t place) const {
    UBreakIterator* breaks = Over(words_);
    auto offset = static_cast<std::int32_t>(place);
    do offset = ubrk_preceding(breaks, offset);
    while (offset > 0 && text_[static_cast<std::size_t>(offset)] == ' ');
    return static_cast<std::size_t>(std::max(offset, 0));
}

std::size_t EditText::WordAfter(std::size_t place) const {
    UBreakIterator* breaks = Over(words_);
    auto offset = static_cast<std::int32_t>(place);
    do offset = ubrk_following(breaks, offset);
    while (offset != UBRK_DONE && static_cast<std::size_t>(offset) < text_.size() &&
           text_[static_cast<std::size_t>(offset)] == ' ');
    return offset == UBRK_DONE ? text_.size() : static_cast<std::size_t>(offset);
}

// Caret and selection.

void EditText::MoveTo(std::size_t place, bool extend) {
    caret_ = AtOrBefore(place);
    if (!extend) anchor_ = caret_;
}

void EditText::SelectAll() {
    anchor_ = 0;
    caret_ = text_.size();
}

void EditText::SelectWordAt(std::size_t place) {
    UBreakIterator* breaks = Over(words_);
    const auto offset = static_cast<std::int32_t>(std::min(place, text_.size()));
    const std::int32_t end = ubrk_following(breaks, offset);
    caret_ = end == UBRK_DONE ? text_.size() : static_cast<std::size_t>(end);
    anchor_ =
        static_cast<std::size_t>(std::max(ubrk_preceding(breaks, static_cast<std::int32_t>(caret_)), 0));
}

// Changes.

std::string_view EditText::Fitting(std::string_view text) const {
    if (maxLength_ == 0) return text;
    const std::size_t kept = CharacterCount(text_) - CharacterCount(SelectedText());
    return FirstCharacters(text, maxLength_ > kept ? maxLength_ - kept : 0);
}

void EditText::Keep() {
    if (before_.size() == MostUndos) before_.erase(before_.begin());
    before_.push_back({text_, caret_, anchor_});
}

void EditText::Replace(std::size_t start, std::size_t end, std::string_view text) {
    Keep();
    text_.replace(start, end - start, text);
    // What was put in may have joined with the character behind it.
    MoveTo(start + text.size(), false);
    if (caret_ < start + text.size()) MoveTo(After(caret_), false);
}

bool EditText::Insert(std::string_view text) {
    const std::string clean = Clean(text);
    const std::string_view fitting = Fitting(clean);
    if (fitting.empty() && !HasSelection()) return false;
    Replace(SelectionStart(), SelectionEnd(), fitting);
    return true;
}

bool EditText::Erase(std::size_t start, std::size_t end) {
    if (start >= end || end > text_.size()) return false;
    Replace(start, end, {});
    return true;
}

bool EditText::Undo() {
    if (before_.empty()) return false;
    State& state = before_.back();
    text_ = std::move(state.text);
    caret_ = state.caret;
    anchor_ = state.anchor;
    before_.pop_back();
    return true;
}

} // namespace tvok::soft
