#include "settings/flat_file_reader.h"

#include "com/text.h"
#include "settings/utf8.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace qz {

namespace {

/// Nothing when the bytes are no text of that code page; the flags decide whether that can be.
std::optional<std::wstring> Widen(std::string_view bytes, UINT codePage, DWORD flags) {
    if (bytes.empty()) return std::wstring();
    const auto size = static_cast<int>(bytes.size());
    const int length = MultiByteToWideChar(codePage, flags, bytes.data(), size, nullptr, 0);
    if (length == 0) return std::nullopt;
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(codePage, flags, bytes.data(), size, text.data(), length);
    return text;
}

std::optional<std::string> BytesOf(const std::wstring& path) {
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    std::ostringstream bytes;
    if (!file || (file.peek() != std::ifstream::traits_type::eof() && !(bytes << file.rdbuf())))
        return std::nullopt;
    return std::move(bytes).str();
}

std::string Utf8Of(std::string_view bytes) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (bytes.starts_with(mark)) bytes.remove_prefix(mark.size());
    if (Widen(bytes, CP_UTF8, MB_ERR_INVALID_CHARS)) return std::string(bytes);
    std::string utf8;
    AppendUtf8(Widen(bytes, CP_ACP, 0).value_or(std::wstring()), utf8);
    return utf8;
}

}  // namespace

std::optional<FlatFile> ReadFlatFile(const std::wstring& path) {
    const std::optional<std::string> bytes = BytesOf(path);
    if (!bytes) return std::nullopt;
    return FlatFile(Utf8Of(*bytes));
}

bool LookUp(const FlatFile& file, std::string_view section, std::string_view key, VARTYPE type,
            VARIANT& value) {
    V_VT(&value) = VT_EMPTY;
    if (type != VT_I4 && type != VT_BSTR) Throw(E_INVALIDARG, L"A setting is a 32-bit integer or a text");
    const std::string* text = file.Find(section, key);
    if (!text) return false;
    if (type == VT_I4) {
        V_I4(&value) = IntegerFromSetting(*text);
    } else {
        V_BSTR(&value) = MakeText(WideText(*text));
    }
    V_VT(&value) = type;
    return true;
}

std::wstring WideText(std::string_view utf8) { return Widen(utf8, CP_UTF8, 0).value_or(std::wstring()); }

}  // namespace qz
