// Keeps names with colons whole through a reader that knows namespaces: such a reader refuses a prefix that
// nobody declared. In the names of elements, attributes and processing instructions ":" is written "_c" and
// "_" is written "__"; RestoreName gives the name back.
//
// Works on UTF-8 bytes or UTF-16 units, in pieces of any size. Texts, attribute values, comments, CDATA and
// document type declarations pass unchanged. Any input is taken; whether it is well formed is the reader's
// concern.
#pragma once

#include <string>
#include <string_view>

namespace qz {

/// Tells which units of an XML text belong to tags and instruction targets, outside attribute values.
class MarkupScanner {
  public:
    /// To be called for each unit in turn. Names, blanks, "=", "/" and "<", ">", "?" may be true.
    bool IsInMarkup(char32_t unit) noexcept;

  private:
    enum class State { Text, Open, Tag, Quoted, Target, Exclamation, CommentStart, Skipped, Declaration };

    bool InText(char32_t unit) noexcept;
    bool AfterOpen(char32_t unit) noexcept;
    bool InTag(char32_t unit) noexcept;
    bool InQuoted(char32_t unit) noexcept;
    bool InTarget(char32_t unit) noexcept;
    bool AfterExclamation(char32_t unit) noexcept;
    bool InSkipped(char32_t unit) noexcept;
    bool InDeclaration(char32_t unit) noexcept;
    bool Skip(char32_t closer, int needed, int seen = 0) noexcept;
    State Outside() const noexcept { return declarations_ > 0 ? State::Declaration : State::Text; }

    State state_ = State::Text;
    char32_t quote_ = 0;
    char32_t closer_ = 0;  // ends what is skipped, needed_ times before ">"
    int needed_ = 0;
    int seen_ = 0;
    int declarations_ = 0;  // open ones; a document type declaration holds others
};

/// Hides the colons of one document.
class ColonHider {
  public:
    /// Appends what stands for the next piece. A failed allocation spoils the document.
    template <typename Unit>
    void Hide(std::basic_string_view<Unit> piece, std::basic_string<Unit>& hidden) {
        hidden.reserve(hidden.size() + piece.size());
        for (const Unit unit : piece) {
            const bool inMarkup = scanner_.IsInMarkup(static_cast<char32_t>(unit));
            if (inMarkup && (unit == Unit(':') || unit == Unit('_'))) {
                hidden += Unit('_');
                hidden += unit == Unit(':') ? Unit('c') : Unit('_');
            } else {
                hidden += unit;
            }
        }
    }

  private:
    MarkupScanner scanner_;
};

/// A name as it stood before its colons were hidden.
std::wstring RestoreName(std::wstring_view hidden);

}  // namespace qz
