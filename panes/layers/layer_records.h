// The layers of a document and the tree in which they are listed.
#pragma once

#include "panes/layers/layer_lists.h"

#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace qz {

/// What is known of one name of the configuration. A name met twice is one record with two items.
struct LayerRecord {
    std::wstring name;
    std::wstring displayName;
    bool missing = false;            ///< No layer has the name: a heading, that is neither shown nor hidden.
    bool wanted = false;             ///< The layer's own state: what was chosen for it.
    bool visible = false;            ///< What the host has: wanted, and not hidden with what stands above it.
    bool initially = false;          ///< `visible` when the list was built.
    std::size_t openItems = 0;       ///< How many of its items have nothing hidden above them.
    std::vector<std::size_t> items;  ///< Ascending.
    std::vector<std::size_t> groups;  ///< The radio-button groups it stands in.

    /// A layer that stands in several places is hidden with what is above it only when it is so in all.
    bool DisabledByParent() const noexcept { return !missing && openItems == 0 && !items.empty(); }
    /// Whether there is a state to change.
    bool Switchable() const noexcept { return !missing && !name.empty(); }
    const std::wstring& Text() const noexcept { return displayName.empty() ? name : displayName; }
};

/// A place in the tree. What stands below an item follows it, up to `end` (see LayerRecords::Close).
struct LayerItem {
    std::size_t record = 0;
    std::size_t parent = noItem;
    std::size_t end = 0;
    bool blocked = false;  ///< Something above it is hidden.
};

/// Records and items, by index.
class LayerRecords {
  public:
    /// Appends an item below another that is already there, and its record unless the name has one: it is new
    /// when the result says so, and the caller fills it in. Items come in the order of the tree.
    struct Added {
        std::size_t record;
        bool isNew;
    };
    Added AddItem(std::wstring name, std::size_t parent);
    /// To be called when all items are there: sets their ends.
    void Close() noexcept;
    /// Makes the layers of these names, as far as there are such, a radio-button group.
    void AddGroup(std::span<const std::wstring> names);

    std::vector<LayerRecord>& All() noexcept { return records_; }
    const std::vector<LayerRecord>& All() const noexcept { return records_; }
    std::vector<LayerItem>& Items() noexcept { return items_; }
    const std::vector<LayerItem>& Items() const noexcept { return items_; }
    std::size_t GroupCount() const noexcept { return groupCount_; }
    std::optional<std::size_t> Find(const std::wstring& name) const;

    LayerRecord& RecordOf(std::size_t item) noexcept { return records_[items_[item].record]; }
    const LayerRecord& RecordOf(std::size_t item) const noexcept { return records_[items_[item].record]; }

    /// For each item, whether it is listed: its layer is (by record), or one below it. A heading is listed
    /// with what is below it only.
    std::vector<bool> Listed(const std::vector<bool>& recordListed) const;

  private:
    std::vector<LayerRecord> records_;
    std::vector<LayerItem> items_;
    std::unordered_map<std::wstring, std::size_t> byName_;
    std::size_t groupCount_ = 0;
};

}  // namespace qz
