// The setup of pages: what the document says, what the user enters, and what is written.
#pragma once

#include "dialogs/document/paper_sizes.h"
#include "dialogs/document/size_texts.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace qz {

/// The attributes, in the order that they are read and written in.
enum SetupPlace : std::size_t {
    LandscapePlace,
    PaperPlace,
    WidthPlace,
    LengthPlace,
    BinPlace,
    TopPlace,
    BottomPlace,
    LeftPlace,
    RightPlace,
    SetupPlaceCount
};

/// The types that the attributes are written as.
enum class SetupType { Boolean, Short, Long };

struct SetupAttribute {
    const wchar_t* name;
    SetupType type;
};

extern const std::array<SetupAttribute, SetupPlaceCount> setupAttributes;

/// A value for each attribute, sizes in twips; nothing for one that was not read, or is not to be written.
using SetupValues = std::array<std::optional<std::int32_t>, SetupPlaceCount>;

/// What the controls show.
struct SetupEntries {
    bool landscape = false;
    int paper = 0;                                    ///< 1 to `paperCount`; 0: a custom size.
    int bin = 0;                                      ///< From 1; 0: none is chosen.
    std::array<std::wstring, SetupPlaceCount> sizes;  ///< The texts of the sizes and margins.

    bool operator==(const SetupEntries&) const = default;
};

inline constexpr int binCount = 16;

/// Tells from what was read what is shown, and from what is shown then what is written. What the user leaves
/// alone is written as it was read.
class PageSetup {
  public:
    PageSetup() = default;
    PageSetup(SizeUnit unit, const SetupValues& read);

    SizeUnit Unit() const noexcept { return unit_; }
    const SetupEntries& Shown() const noexcept { return shown_; }

    /// The user takes a paper, or 0 for a custom size. Width and length are from then on those of the paper;
    /// a custom size begins with what was shown before.
    void ChoosePaper(int paper);

    /// Whether the user has changed or chosen anything.
    bool Edited(const SetupEntries& now) const { return paperChosen_ || now != shown_; }
    SetupValues Written(const SetupEntries& now) const;

  private:
    std::optional<std::int32_t> WrittenSize(const SetupEntries& now, SetupPlace place) const;
    std::optional<std::int32_t> EnteredSize(const SetupEntries& now, SetupPlace place) const;

    SizeUnit unit_ = SizeUnit::Twips;
    SetupValues source_;  ///< What the controls were filled from.
    SetupEntries shown_;
    bool paperChosen_ = false;
};

}  // namespace qz
