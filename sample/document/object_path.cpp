#include "sample/document/object_path.h"

#include "host/object_path.h"

namespace qz::sample {

namespace {

struct Indexed {
    std::wstring_view word;
    PathKind kind;
    bool byNumber;
};

constexpr Indexed indexedPaths[] = {
    {L"Pages", PathKind::Page, true},
    {L"Layers", PathKind::Layer, false},
    {L"LayerConfigs", PathKind::Configuration, true},
    {L"Fonts", PathKind::Font, true},
    {L"Objects", PathKind::Object, false},
};

std::optional<int32_t> ParseDigits(std::wstring_view digits) {
    if (digits.empty() || digits.size() > 9) return std::nullopt;
    int32_t number = 0;
    for (const wchar_t digit : digits) {
        if (digit < L'0' || digit > L'9') return std::nullopt;
        number = number * 10 + (digit - L'0');
    }
    return number;
}

std::optional<ObjectPath> WithIndex(const Indexed& indexed, std::wstring_view index) {
    const bool byId = indexed.kind == PathKind::Object && index.starts_with(L'#');
    if (!indexed.byNumber && !byId) return ObjectPath{indexed.kind, 0, index};
    const std::optional<int32_t> number = ParseDigits(byId ? index.substr(1) : index);
    if (!number) return std::nullopt;
    return ObjectPath{byId ? PathKind::ObjectById : indexed.kind, *number, {}};
}

}  // namespace

std::optional<ObjectPath> ParseObjectPath(std::wstring_view path) {
    if (path.ends_with(L']')) {
        for (const Indexed& indexed : indexedPaths) {
            const size_t length = indexed.word.size();
            if (path.size() < length + 2 || path[length] != L'[' || !path.starts_with(indexed.word)) continue;
            return WithIndex(indexed, path.substr(length + 1, path.size() - length - 2));
        }
        return std::nullopt;
    }
    if (path == documentPath) return ObjectPath{PathKind::Document, 0, {}};
    if (path == informationPath) return ObjectPath{PathKind::Information, 0, {}};
    if (path == L"Pages") return ObjectPath{PathKind::Pages, 0, {}};
    return std::nullopt;
}

}  // namespace qz::sample
