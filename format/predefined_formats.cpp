#include "format/predefined_formats.h"

#include "res/text_ids.h"

namespace qz {
namespace {

constexpr std::wstring_view numberFormats[] = {L"#", L"#,###.00"};
constexpr std::wstring_view dateFormats[] = {L"dddd/mmm/yyyy", L"dd\\m\\yyyy", L"mm/dd/yyyy"};
constexpr std::wstring_view timeFormats[] = {L"hh:MM:SS", L"HH:MM:SS", L"HH:MM:SS T"};

constexpr PredefinedCategory categories[] = {
    {QZ_TEXT_GENERAL_NUMBER, numberFormats},
    {QZ_TEXT_DATE, dateFormats},
    {QZ_TEXT_TIME, timeFormats},
    {QZ_TEXT_DATE_AND_TIME, {}},
    {QZ_TEXT_PERCENTAGE, {}},
    {QZ_TEXT_CURRENCY, {}},
};

}  // namespace

std::span<const PredefinedCategory> PredefinedCategories() noexcept { return categories; }

}  // namespace qz
