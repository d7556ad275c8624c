// The paths of a document that were found before.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace qz {

class qzSimpleXmlElement;

/// Paths are looked up by their text. Only elements found are remembered, and each path gives the first of
/// its name, so an element added behind them changes no answer: only renaming and removing make it forget.
class XmlLookup {
  public:
    /// A change of the flag forgets all.
    void Enable(bool enabled) noexcept {
        if (enabled != enabled_) Forget();
        enabled_ = enabled;
    }

    /// Null when the path is not remembered.
    qzSimpleXmlElement* Find(std::wstring_view path) const {
        const auto found = elements_.find(path);
        return found == elements_.end() ? nullptr : found->second;
    }

    void Remember(std::wstring_view path, qzSimpleXmlElement* element) {
        if (enabled_) elements_.emplace(path, element);
    }

    void Forget() noexcept { elements_.clear(); }

  private:
    struct Hash : std::hash<std::wstring_view> {
        using is_transparent = void;
    };

    std::unordered_map<std::wstring, qzSimpleXmlElement*, Hash, std::equal_to<>> elements_;
    bool enabled_ = true;
};

}  // namespace qz
