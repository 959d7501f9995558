/// A line of text with a caret and a selection: what an edit field is, without its looks.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// The text boundaries of a language, kept out of this header.
struct UBreakIterator;

namespace tvok::soft {

/// UTF-8. Places are byte offsets between characters as a reader sees them: a letter stays together with its
/// accents, an emoji with what modifies it.
class EditText {
public:
    EditText();

    const std::string& Text() const { return text_; }
    /// Replaces all: the caret goes to the front. Takes what `Clean` leaves of the text, up to `MaxLength`.
    void Text(std::string_view text);
    /// Most code points; 0 is no limit. A longer text that stands already stays.
    std::size_t MaxLength() const { return maxLength_; }
    void MaxLength(std::size_t characters) { maxLength_ = characters; }

    std::size_t Caret() const { return caret_; }
    std::size_t Anchor() const { return anchor_; } ///< The selection's other end; the caret itself for none.
    std::size_t SelectionStart() const { return caret_ < anchor_ ? caret_ : anchor_; }
    std::size_t SelectionEnd() const { return caret_ < anchor_ ? anchor_ : caret_; }
    bool HasSelection() const { return caret_ != anchor_; }
    std::string SelectedText() const;

    /// Moves the caret to the nearest place at or before `place`; `extend` leaves the anchor where it is.
    void MoveTo(std::size_t place, bool extend);
    void SelectAll();
    void SelectWordAt(std::size_t place);

    std::size_t AtOrBefore(std::size_t place) const; ///< `place` itself unless it is inside a character.
    std::size_t Before(std::size_t place) const;     ///< One character back, 0 at the front.
    std::size_t After(std::size_t place) const;
    std::size_t WordBefore(std::size_t place) const; ///< The start of the word before.
    std::size_t WordAfter(std::size_t place) const;  ///< The start of the next word, or the end.

    // Changes; each is true where the text changed. The caret ends behind what was put in.

    bool Insert(std::string_view text); ///< In place of the selection.
    bool Erase(std::size_t start, std::size_t end);
    bool EraseSelection() { return Erase(SelectionStart(), SelectionEnd()); }
    bool Undo(); ///< Takes back the last change; up to 100 of them.

    /// The first line of `text`, without control characters; a tab becomes a blank, what is not UTF-8 becomes
    /// U+FFFD.
    static std::string Clean(std::string_view text);

private:
    struct State {
        std::string text;
        std::size_t caret = 0;
        std::size_t anchor = 0;
    };
    struct CloseBreaks {
        void operator()(UBreakIterator* breaks) const;
    };
    using Breaks = std::unique_ptr<UBreakIterator, CloseBreaks>;
    static Breaks OpenBreaks(bool words);

    UBreakIterator* Over(const Breaks& breaks) const;
    std::string_view Fitting(std::string_view text) const;
    void Keep();
    void Replace(std::size_t start, std::size_t end, std::string_view text);

    std::string text_;
    std::size_t caret_ = 0;
    std::size_t anchor_ = 0;
    std::size_t maxLength_ = 0;
    std::vector<State> before_;
    Breaks characters_;
    Breaks words_;
};

} // namespace tvok::soft
