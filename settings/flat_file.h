// A flat settings file: lines "key = value", in sections. docs/settings.md tells the syntax.
#pragma once

#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace qz {

/// Thrown by the strict look-up.
struct SettingNotFound : std::runtime_error {
    SettingNotFound() : std::runtime_error("setting not found") {}
};

/// What a file holds. Texts are UTF-8, and look-ups heed capitals. The first of several equal keys counts.
class FlatFile {
  public:
    FlatFile() = default;
    /// Any text is taken: lines that are no setting are passed over.
    explicit FlatFile(std::string_view text);

    /// Null when the key is absent. The empty section is the file's beginning.
    const std::string* Find(std::string_view section, std::string_view key) const;

    /// The value as IntegerFromText (xml_values.h) reads it: 0 when it is no number. Throws SettingNotFound.
    std::int32_t Integer(std::string_view section, std::string_view key) const;

  private:
    using Name = std::pair<std::string, std::string>;  // section and key

    std::map<Name, std::string> values_;
};

/// As above, of a value that was found.
std::int32_t IntegerFromSetting(std::string_view value);

}  // namespace qz
