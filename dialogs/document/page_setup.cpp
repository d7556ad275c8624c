#include "dialogs/document/page_setup.h"

namespace qz {

namespace {

constexpr SetupPlace sizePlaces[] = {WidthPlace, LengthPlace, TopPlace, BottomPlace, LeftPlace, RightPlace};

bool IsMargin(SetupPlace place) noexcept { return place >= TopPlace; }

int InRange(std::optional<std::int32_t> number, int count) noexcept {
    return number && *number >= 1 && *number <= count ? *number : 0;
}

}  // namespace

const std::array<SetupAttribute, SetupPlaceCount> setupAttributes = {{
    {L"Landscape", SetupType::Boolean},
    {L"PaperSize", SetupType::Long},
    {L"Width", SetupType::Long},
    {L"Length", SetupType::Long},
    {L"PaperBin", SetupType::Short},
    {L"TopMargin", SetupType::Long},
    {L"BottomMargin", SetupType::Long},
    {L"LeftMargin", SetupType::Long},
    {L"RightMargin", SetupType::Long},
}};

PageSetup::PageSetup(SizeUnit unit, const SetupValues& read) : unit_(unit), source_(read) {
    shown_.landscape = read[LandscapePlace].value_or(0) != 0;
    shown_.paper = InRange(read[PaperPlace], paperCount);
    shown_.bin = InRange(read[BinPlace], binCount);
    for (const SetupPlace place : sizePlaces) {
        if (read[place]) shown_.sizes[place] = SizeText(*read[place], unit);
    }
}

void PageSetup::ChoosePaper(int paper) {
    paperChosen_ = true;
    const std::optional<PaperSize> size = PaperSizeOf(paper);
    if (!size) return;
    source_[WidthPlace] = TwipsOfTenths(size->width);
    source_[LengthPlace] = TwipsOfTenths(size->length);
    for (const SetupPlace place : {WidthPlace, LengthPlace}) {
        shown_.sizes[place] = SizeText(*source_[place], unit_);
    }
}

SetupValues PageSetup::Written(const SetupEntries& now) const {
    SetupValues written;
    const bool sameLandscape = now.landscape == shown_.landscape;
    written[LandscapePlace] = sameLandscape ? source_[LandscapePlace] : std::optional(now.landscape ? 1 : 0);
    if (now.paper != 0) written[PaperPlace] = now.paper;
    written[BinPlace] = now.bin == shown_.bin ? source_[BinPlace] : std::optional(now.bin);
    for (const SetupPlace place : sizePlaces) {
        written[place] = IsMargin(place) ? EnteredSize(now, place) : WrittenSize(now, place);
    }
    return written;
}

/// A paper lies on its side when landscape is ticked; a custom size is as it was entered.
std::optional<std::int32_t> PageSetup::WrittenSize(const SetupEntries& now, SetupPlace place) const {
    const std::optional<PaperSize> size = PaperSizeOf(now.paper);
    const bool leftAlone = !paperChosen_ && now.paper == shown_.paper && now.landscape == shown_.landscape;
    if (!size || leftAlone) return EnteredSize(now, place);
    const bool across = (place == WidthPlace) != now.landscape;
    return TwipsOfTenths(across ? size->width : size->length);
}

std::optional<std::int32_t> PageSetup::EnteredSize(const SetupEntries& now, SetupPlace place) const {
    const std::wstring& text = now.sizes[place];
    if (text == shown_.sizes[place]) return source_[place];
    return IsMargin(place) ? MarginOf(text, unit_) : SizeOf(text, unit_);
}

}  // namespace qz
