#include "settings/flat_file.h"

#include "settings/xml_values.h"

#include <algorithm>
#include <cstddef>

namespace qz {

namespace {

constexpr auto npos = std::string_view::npos;

std::string_view Trimmed(std::string_view text) noexcept {
    constexpr std::string_view blanks = " \t";
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

/// The next line without its end, which is cut off the text with it.
std::string_view TakeLine(std::string_view& text) noexcept {
    const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line;
}

/// What stands in double quotes at the beginning, two of them for one.
std::string Unquoted(std::string_view text) {
    std::string value;
    for (std::size_t place = 1; place < text.size(); ++place) {
        if (text[place] == '"' && text.substr(place + 1, 1) != "\"") break;
        if (text[place] == '"') ++place;
        value += text[place];
    }
    return value;
}

std::string ValueOf(std::string_view text) {
    return text.starts_with('"') ? Unquoted(text) : std::string(text);
}

}  // namespace

FlatFile::FlatFile(std::string_view text) {
    std::string section;
    while (!text.empty()) {
        const std::string_view line = Trimmed(TakeLine(text));
        if (line.starts_with('[')) {
            section = Trimmed(line.substr(1, line.find(']') - 1));
            continue;
        }
        const std::size_t equals = line.find('=');
        const std::string_view key = Trimmed(line.substr(0, equals));
        if (equals == npos || key.empty() || key.front() == ';' || key.front() == '#') continue;
        values_.emplace(Name(section, key), ValueOf(Trimmed(line.substr(equals + 1))));
    }
}

const std::string* FlatFile::Find(std::string_view section, std::string_view key) const {
    const auto found = values_.find(Name(section, key));
    return found == values_.end() ? nullptr : &found->second;
}

std::int32_t FlatFile::Integer(std::string_view section, std::string_view key) const {
    const std::string* value = Find(section, key);
    if (!value) throw SettingNotFound();
    return IntegerFromSetting(*value);
}

// What is not ASCII ends a number, whatever it is widened to.
std::int32_t IntegerFromSetting(std::string_view value) {
    return IntegerFromText(std::wstring(value.begin(), value.end()));
}

}  // namespace qz
