#include "res/language.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

TEST(LanguageFromId, TakesTheLanguageWhateverTheCountry) {
    for (const Language language : languages) {
        EXPECT_EQ(LanguageFromId(static_cast<std::uint16_t>(language)), language);
    }
    EXPECT_EQ(LanguageFromId(0x0807), Language::German);   // Switzerland
    EXPECT_EQ(LanguageFromId(0x040A), Language::Spanish);  // traditional sort
    EXPECT_EQ(LanguageFromId(0x0C0C), Language::French);   // Canada
    EXPECT_EQ(LanguageFromId(0x081D), Language::Swedish);  // Finland
}

TEST(LanguageFromId, FallsBackToEnglish) {
    for (const std::uint16_t id : {0x0000, 0x0400, 0x0419, 0x0411 + 1, 0xFFFF}) {
        EXPECT_EQ(LanguageFromId(id), Language::English) << id;
    }
}

}  // namespace
}  // namespace qz
