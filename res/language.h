// The languages that texts and dialogs exist in.
#pragma once

#include <array>
#include <cstdint>

namespace qz {

/// The value is the language's id in the resources (a Windows LANGID).
enum class Language : std::uint16_t {
    English = 0x0409,
    German = 0x0407,
    Spanish = 0x0C0A,
    French = 0x040C,
    Italian = 0x0410,
    Japanese = 0x0411,
    Swedish = 0x041D,
};

inline constexpr std::array languages = {
    Language::English, Language::German,   Language::Spanish, Language::French,
    Language::Italian, Language::Japanese, Language::Swedish,
};

/// The language for a Windows LANGID, whatever the country; English for any that is not among ours.
constexpr Language LanguageFromId(std::uint16_t languageId) {
    constexpr std::uint16_t primaryPart = 0x3FF;
    for (const Language language : languages) {
        if ((static_cast<std::uint16_t>(language) & primaryPart) == (languageId & primaryPart))
            return language;
    }
    return Language::English;
}

}  // namespace qz
