// Keeps names with colons whole through a reader that knows namespaces: such a reader refuses a prefix that
// nobody declared. In the names of elements, attributes and processing instructions ":" is written "_c" and
// "_" is written "__"; RestoreName gives the name back.
//
// Works on UTF-8, in pieces of any size. Texts, attribute values, comments, CDATA and document type
// declarations pass unchanged. Any input is taken; whether it is well formed is the reader's concern.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace qz {

/// Tells which characters of an XML text belong to tags and instruction targets, outside attribute values.
class MarkupScanner {
  public:
    /// To be called for each character in turn. Names, blanks, "=", "/" and "<", ">", "?" may be true.
    bool IsInMarkup(char character) noexcept;

    /// How many characters at the beginning of the next piece are told at once instead: those that end
    /// nothing and hide nothing.
    std::size_t Pass(std::string_view piece) noexcept;

    /// Whether as many elements ended as began, at least one, and nothing else is open.
    bool Complete() const noexcept { return state_ == State::Text && began_ && open_ == 0; }

  private:
    enum class State { Text, Open, Tag, Quoted, Target, Exclamation, CommentStart, Skipped, Declaration };

    bool InText(char character) noexcept;
    bool AfterOpen(char character) noexcept;
    bool InTag(char character) noexcept;
    bool InQuoted(char character) noexcept;
    bool InTarget(char character) noexcept;
    bool AfterExclamation(char character) noexcept;
    bool InSkipped(char character) noexcept;
    bool InDeclaration(char character) noexcept;
    void EndTag() noexcept;
    bool Skip(char closer, int needed, int seen = 0) noexcept;
    State Outside() const noexcept { return declarations_ > 0 ? State::Declaration : State::Text; }

    State state_ = State::Text;
    char quote_ = 0;
    char first_ = 0;   // of a tag, behind "<"
    char last_ = 0;    // of a tag so far, outside attribute values
    char closer_ = 0;  // ends what is skipped, needed_ times before ">"
    int needed_ = 0;
    int seen_ = 0;
    int declarations_ = 0;  // open ones; a document type declaration holds others
    bool began_ = false;
    std::int64_t open_ = 0;  // elements; below zero when more ended than began
};

/// Hides the colons of one document.
class ColonHider {
  public:
    /// Appends what stands for the next piece. A failed allocation spoils the document.
    void Hide(std::string_view piece, std::string& hidden);

    /// Whether the document can end here.
    bool Complete() const noexcept { return scanner_.Complete(); }

  private:
    MarkupScanner scanner_;
};

/// Puts into `name` what stood there before its colons were hidden.
void RestoreName(std::wstring_view hidden, std::wstring& name);

}  // namespace qz
