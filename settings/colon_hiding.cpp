#include "settings/colon_hiding.h"

#include <algorithm>

namespace qz {

namespace {

bool MattersInTag(char character) noexcept {
    return character == '>' || character == '"' || character == '\'' || character == ':' || character == '_';
}

}  // namespace

bool MarkupScanner::IsInMarkup(char character) noexcept {
    switch (state_) {
        case State::Text:
            return InText(character);
        case State::Open:
            return AfterOpen(character);
        case State::Tag:
            return InTag(character);
        case State::Quoted:
            return InQuoted(character);
        case State::Target:
            return InTarget(character);
        case State::Exclamation:
            return AfterExclamation(character);
        case State::CommentStart:
            return Skip('-', 2);
        case State::Skipped:
            return InSkipped(character);
        case State::Declaration:
            return InDeclaration(character);
    }
    return false;
}

std::size_t MarkupScanner::Pass(std::string_view piece) noexcept {
    std::size_t count = 0;
    if (state_ == State::Text) {
        count = piece.find('<');
    } else if (state_ == State::Quoted) {
        count = piece.find(quote_);
    } else if (state_ == State::Tag) {
        while (count < piece.size() && !MattersInTag(piece[count])) ++count;
        if (count > 0) last_ = piece[count - 1];
    }
    return std::min(count, piece.size());
}

bool MarkupScanner::InText(char character) noexcept {
    if (character == '<') state_ = State::Open;
    return false;
}

bool MarkupScanner::AfterOpen(char character) noexcept {
    if (character == '!') {
        state_ = State::Exclamation;
        return false;
    }
    state_ = character == '?' ? State::Target : State::Tag;
    first_ = character;
    last_ = 0;
    return state_ == State::Tag ? InTag(character) : false;
}

bool MarkupScanner::InTag(char character) noexcept {
    if (character == '>') EndTag();
    if (character == '"' || character == '\'') {
        quote_ = character;
        state_ = State::Quoted;
    }
    last_ = character;
    return true;
}

void MarkupScanner::EndTag() noexcept {
    state_ = Outside();
    if (first_ == '/') {
        --open_;
    } else {
        began_ = true;
        if (last_ != '/') ++open_;
    }
}

bool MarkupScanner::InQuoted(char character) noexcept {
    if (character == quote_) state_ = declarations_ > 0 ? State::Declaration : State::Tag;
    return false;
}

// What follows the target may hold anything, such as the name of an encoding with "_".
bool MarkupScanner::InTarget(char character) noexcept {
    if (character == '?') return Skip('?', 1, 1);
    if (character == ' ' || character == '\t' || character == '\r' || character == '\n') return Skip('?', 1);
    return true;
}

bool MarkupScanner::AfterExclamation(char character) noexcept {
    if (character == '[') return Skip(']', 2);
    if (character == '-') {
        state_ = State::CommentStart;
    } else {
        ++declarations_;
        state_ = State::Declaration;
    }
    return false;
}

bool MarkupScanner::InSkipped(char character) noexcept {
    if (character == closer_) {
        seen_ = std::min(seen_ + 1, needed_);
    } else if (character == '>' && seen_ == needed_) {
        state_ = Outside();
    } else {
        seen_ = 0;
    }
    return false;
}

bool MarkupScanner::InDeclaration(char character) noexcept {
    if (character == '<') state_ = State::Open;
    if (character == '>' && --declarations_ == 0) state_ = State::Text;
    if (character == '"' || character == '\'') {
        quote_ = character;
        state_ = State::Quoted;
    }
    return false;
}

bool MarkupScanner::Skip(char closer, int needed, int seen) noexcept {
    state_ = State::Skipped;
    closer_ = closer;
    needed_ = needed;
    seen_ = seen;
    return false;
}

void ColonHider::Hide(std::string_view piece, std::string& hidden) {
    std::size_t copied = 0;
    for (std::size_t place = 0;; ++place) {
        place += scanner_.Pass(piece.substr(place));
        if (place == piece.size()) break;
        const char character = piece[place];
        if (!scanner_.IsInMarkup(character) || (character != ':' && character != '_')) continue;
        hidden += piece.substr(copied, place - copied);
        hidden += character == ':' ? "_c" : "__";
        copied = place + 1;
    }
    hidden += piece.substr(copied);
}

void RestoreName(std::wstring_view hidden, std::wstring& name) {
    name.clear();
    for (;;) {
        const std::size_t escape = hidden.find(L'_');
        name += hidden.substr(0, escape);
        if (escape == std::wstring_view::npos) return;
        hidden.remove_prefix(escape + 1);
        name += hidden.starts_with(L'c') ? L':' : L'_';
        if (!hidden.empty()) hidden.remove_prefix(1);
    }
}

}  // namespace qz
