#include "res/strings.h"

#include "com/error.h"
#include "com/module.h"

#include <cstring>

namespace qz {

namespace {

constexpr unsigned textsPerBlock = 16;

const wchar_t* ResourceName(unsigned id) { return MAKEINTRESOURCEW(id); }

std::uint16_t ReadWord(std::span<const std::byte> bytes, std::size_t word) {
    std::uint16_t value = 0;
    std::memcpy(&value, bytes.data() + word * sizeof value, sizeof value);
    return value;
}

// A block is 16 counted texts one after the other, empty ones included.
std::wstring TextInBlock(std::span<const std::byte> block, unsigned index) {
    const std::size_t words = block.size() / sizeof(wchar_t);
    for (std::size_t at = 0; at < words; ++at, --index) {
        const std::size_t length = ReadWord(block, at);
        if (at + 1 + length > words) break;
        if (index == 0) {
            std::wstring text(length, L'\0');
            std::memcpy(text.data(), block.data() + (at + 1) * sizeof(wchar_t), length * sizeof(wchar_t));
            return text;
        }
        at += length;
    }
    return {};
}

}  // namespace

std::span<const std::byte> FindResourceIn(HINSTANCE module, Language language, const wchar_t* type,
                                          const wchar_t* name) noexcept {
    const HRSRC resource = FindResourceExW(module, type, name, static_cast<WORD>(language));
    const HGLOBAL loaded = resource ? LoadResource(module, resource) : nullptr;
    const void* const bytes = loaded ? LockResource(loaded) : nullptr;
    if (!bytes) return {};
    return {static_cast<const std::byte*>(bytes), SizeofResource(module, resource)};
}

std::optional<std::wstring> FindText(HINSTANCE module, Language language, unsigned id) {
    const auto block = FindResourceIn(module, language, RT_STRING, ResourceName(id / textsPerBlock + 1));
    std::wstring text = TextInBlock(block, id % textsPerBlock);
    if (text.empty()) return std::nullopt;
    return text;
}

std::wstring LoadText(Language language, unsigned id) {
    for (const Language candidate : {language, Language::English}) {
        if (auto text = FindText(ThisModule(), candidate, id)) return std::move(*text);
    }
    Throw(HRESULT_FROM_WIN32(ERROR_RESOURCE_NAME_NOT_FOUND),
          L"The module has no text " + std::to_wstring(id));
}

}  // namespace qz
