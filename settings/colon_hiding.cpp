#include "settings/colon_hiding.h"

#include <algorithm>
#include <cstddef>

namespace qz {

bool MarkupScanner::IsInMarkup(char32_t unit) noexcept {
    switch (state_) {
        case State::Text:
            return InText(unit);
        case State::Open:
            return AfterOpen(unit);
        case State::Tag:
            return InTag(unit);
        case State::Quoted:
            return InQuoted(unit);
        case State::Target:
            return InTarget(unit);
        case State::Exclamation:
            return AfterExclamation(unit);
        case State::CommentStart:
            return Skip('-', 2);
        case State::Skipped:
            return InSkipped(unit);
        case State::Declaration:
            return InDeclaration(unit);
    }
    return false;
}

bool MarkupScanner::InText(char32_t unit) noexcept {
    if (unit == '<') state_ = State::Open;
    return false;
}

bool MarkupScanner::AfterOpen(char32_t unit) noexcept {
    if (unit == '!') {
        state_ = State::Exclamation;
        return false;
    }
    state_ = unit == '?' ? State::Target : State::Tag;
    return state_ == State::Tag ? InTag(unit) : false;
}

bool MarkupScanner::InTag(char32_t unit) noexcept {
    if (unit == '>') state_ = Outside();
    if (unit == '"' || unit == '\'') {
        quote_ = unit;
        state_ = State::Quoted;
    }
    return true;
}

bool MarkupScanner::InQuoted(char32_t unit) noexcept {
    if (unit == quote_) state_ = declarations_ > 0 ? State::Declaration : State::Tag;
    return false;
}

// What follows the target may hold anything, such as the name of an encoding with "_".
bool MarkupScanner::InTarget(char32_t unit) noexcept {
    if (unit == '?') return Skip('?', 1, 1);
    if (unit == ' ' || unit == '\t' || unit == '\r' || unit == '\n') return Skip('?', 1);
    return true;
}

bool MarkupScanner::AfterExclamation(char32_t unit) noexcept {
    if (unit == '[') return Skip(']', 2);
    if (unit == '-') {
        state_ = State::CommentStart;
    } else {
        ++declarations_;
        state_ = State::Declaration;
    }
    return false;
}

bool MarkupScanner::InSkipped(char32_t unit) noexcept {
    if (unit == closer_) {
        seen_ = std::min(seen_ + 1, needed_);
    } else if (unit == '>' && seen_ == needed_) {
        state_ = Outside();
    } else {
        seen_ = 0;
    }
    return false;
}

bool MarkupScanner::InDeclaration(char32_t unit) noexcept {
    if (unit == '<') state_ = State::Open;
    if (unit == '>' && --declarations_ == 0) state_ = State::Text;
    if (unit == '"' || unit == '\'') {
        quote_ = unit;
        state_ = State::Quoted;
    }
    return false;
}

bool MarkupScanner::Skip(char32_t closer, int needed, int seen) noexcept {
    state_ = State::Skipped;
    closer_ = closer;
    needed_ = needed;
    seen_ = seen;
    return false;
}

std::wstring RestoreName(std::wstring_view hidden) {
    std::wstring name;
    name.reserve(hidden.size());
    for (std::size_t place = 0; place < hidden.size(); ++place) {
        const bool escaped = hidden[place] == L'_' && place + 1 < hidden.size();
        if (escaped) ++place;
        name += escaped && hidden[place] == L'c' ? L':' : hidden[place];
    }
    return name;
}

}  // namespace qz
