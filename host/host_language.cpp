#include "host/host_language.h"

#include "generated/vandra_x.h"

#include <atomic>

namespace qz {

namespace {

constexpr int noHost = -1;
std::atomic<int> lastLanguage = noHost;

std::optional<std::uint16_t> LanguageIdOf(IDispatch* host) noexcept {
    ComPtr<IVandraX> vandra;
    short language = 0;
    const bool told = host && SUCCEEDED(host->QueryInterface(IID_PPV_ARGS(&vandra))) &&
                      SUCCEEDED(vandra->GetLanguageId(&language));
    return told ? std::optional(static_cast<std::uint16_t>(language)) : std::nullopt;
}

}  // namespace

Language LanguageOf(IDispatch* host) { return LanguageFromId(LanguageIdOf(host).value_or(0)); }

std::optional<Language> LastHostLanguage() noexcept {
    const int language = lastLanguage;
    return language == noHost ? std::nullopt : std::optional(static_cast<Language>(language));
}

void NoteAttachedHost(IDispatch* host) noexcept {
    if (const auto language = LanguageIdOf(host)) NoteHostLanguage(*language);
}

void NoteHostLanguage(std::uint16_t languageId) noexcept {
    lastLanguage = static_cast<int>(LanguageFromId(languageId));
}

}  // namespace qz
