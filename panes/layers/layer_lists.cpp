#include "panes/layers/layer_lists.h"

#include "panes/layers/letters.h"

#include <optional>
#include <utility>

namespace qz {

namespace {

enum class Mark { Open, Close, Name };

bool IsKept(wchar_t character) noexcept {
    constexpr std::wstring_view others = L" -:_";
    return others.find(character) != std::wstring_view::npos || IsLetterOrDigit(character);
}

/// Goes through a list mark by mark.
class Scanner {
  public:
    explicit Scanner(std::wstring_view text) noexcept : rest_(text) {}

    /// The next mark; nothing at the end.
    std::optional<Mark> Next() {
        while (!rest_.empty()) {
            const wchar_t character = Take();
            if (character == L'[') return Mark::Open;
            if (character == L']') return Mark::Close;
            if (character == L'(' && ReadName()) return Mark::Name;
        }
        return std::nullopt;
    }

    /// The name that Mark::Name stands for; to be taken once.
    std::wstring TakeName() { return std::exchange(name_, {}); }

  private:
    wchar_t Take() noexcept {
        const wchar_t character = rest_.front();
        rest_.remove_prefix(1);
        return character;
    }

    /// False when the name has no end.
    bool ReadName() {
        name_.clear();
        while (!rest_.empty()) {
            const wchar_t character = Take();
            if (character == L')') return true;
            if (name_.size() < longestLayerName && IsKept(character)) name_ += character;
        }
        return false;
    }

    std::wstring_view rest_;
    std::wstring name_;
};

/// Makes the tree of what the brackets say, whose levels are limited.
class OrderBuilder {
  public:
    void Add(std::wstring name) {
        std::size_t parent = parent_;
        if (parent != noItem && nested_[parent].level == mostLayerLevels) parent = order_[parent].parent;
        nested_.push_back({parent_, parent == noItem ? 1 : nested_[parent].level + 1});
        order_.push_back({std::move(name), parent});
    }
    void Open() noexcept { parent_ = order_.empty() ? noItem : order_.size() - 1; }
    void Close() noexcept {
        if (parent_ != noItem) parent_ = nested_[parent_].parent;
    }
    std::vector<OrderedName> Take() noexcept { return std::move(order_); }

  private:
    struct Nested {
        std::size_t parent;  ///< As the brackets have it.
        std::size_t level;   ///< In the tree, 1 at the top.
    };

    std::vector<OrderedName> order_;
    std::vector<Nested> nested_;  ///< Of each name in order_.
    std::size_t parent_ = noItem;
};

}  // namespace

std::vector<OrderedName> ParseLayerOrder(std::wstring_view text) {
    OrderBuilder builder;
    Scanner scanner(text);
    while (const std::optional<Mark> mark = scanner.Next()) {
        if (*mark == Mark::Name) {
            builder.Add(scanner.TakeName());
        } else if (*mark == Mark::Open) {
            builder.Open();
        } else {
            builder.Close();
        }
    }
    return builder.Take();
}

std::vector<std::vector<std::wstring>> ParseLayerGroups(std::wstring_view text) {
    std::vector<std::vector<std::wstring>> groups;
    std::vector<std::size_t> open;
    Scanner scanner(text);
    while (const std::optional<Mark> mark = scanner.Next()) {
        if (*mark == Mark::Open) {
            open.push_back(groups.size());
            groups.emplace_back();
        } else if (*mark == Mark::Name && !open.empty()) {
            groups[open.back()].push_back(scanner.TakeName());
        } else if (*mark == Mark::Close && !open.empty()) {
            open.pop_back();
        }
    }
    std::erase_if(groups, [](const auto& group) { return group.empty(); });
    return groups;
}

std::vector<std::wstring> ParseLayerNames(std::wstring_view text) {
    std::vector<std::wstring> names;
    Scanner scanner(text);
    while (const std::optional<Mark> mark = scanner.Next()) {
        if (*mark == Mark::Name) names.push_back(scanner.TakeName());
    }
    return names;
}

}  // namespace qz
