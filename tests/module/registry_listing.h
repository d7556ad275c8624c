// The registry as a flat list, to be compared before and after.
#pragma once

#include "com/registry_key.h"

#include <map>
#include <string>

namespace qz {

/// "key" -> "" for every key and "key|value name" -> text for every text value, relative to the key listed.
using RegistryListing = std::map<std::wstring, std::wstring>;

inline void AddToListing(const RegistryTree& tree, const std::wstring& path, RegistryListing& listing) {
    for (const auto& [name, value] : tree.values) {
        std::wstring& text = listing[path + L"|" + name];
        text.assign(reinterpret_cast<const wchar_t*>(value.bytes.data()),
                    value.bytes.size() / sizeof(wchar_t));
        if (!text.empty() && text.back() == L'\0') text.pop_back();
    }
    for (const RegistryTree& subtree : tree.subkeys) {
        const std::wstring subkey = path.empty() ? subtree.name : path + L"\\" + subtree.name;
        listing[subkey];
        AddToListing(subtree, subkey, listing);
    }
}

/// All below a key; empty when the key is not there.
inline RegistryListing ListKey(HKEY root, const std::wstring& path) {
    RegistryListing listing;
    if (const auto key = RegistryKey::Open(root, path)) AddToListing(RegistryTree::Read(*key), {}, listing);
    return listing;
}

/// The names of a key's subkeys, and all below those that `inFull` picks by name. For keys of thousands.
template <class Predicate>
void AddSubkeys(HKEY root, const std::wstring& path, const std::wstring& prefix, Predicate inFull,
                RegistryListing& listing) {
    const auto key = RegistryKey::Open(root, path);
    if (!key) return;
    for (const std::wstring& name : key->SubkeyNames()) {
        listing[prefix + name];
        if (!inFull(name)) continue;
        if (const auto subkey = RegistryKey::Open(key->Get(), name)) {
            AddToListing(RegistryTree::Read(*subkey), prefix + name, listing);
        }
    }
}

/// What the second listing has that the first lacks or holds otherwise.
inline RegistryListing Added(const RegistryListing& before, const RegistryListing& after) {
    RegistryListing added;
    for (const auto& entry : after) {
        const auto old = before.find(entry.first);
        if (old == before.end() || old->second != entry.second) added.insert(entry);
    }
    return added;
}

}  // namespace qz
