#include "settings/nup_settings.h"

namespace qz {

namespace {

constexpr SettingsRow nUpRows[] = {
    {L"Dest_PaperSize:KeepOriginal", false, &zrNUpSettings::keepOriginal},
    {L"Dest_PaperSize:Predefined", 0},
    {L"Dest_PaperSize:UserDefined", false},
    {L"Dest_PaperSize:Width", 12240, &zrNUpSettings::width},
    {L"Dest_PaperSize:Length", 15840, &zrNUpSettings::length},
    {L"Dest_PaperSize:Orientation", 0, &zrNUpSettings::orientation},
    {L"Dest_NUp:Rows", 1, &zrNUpSettings::rows},
    {L"Dest_NUp:Columns", 1, &zrNUpSettings::columns},
    {L"Dest_NUp:DrawBorders", false, &zrNUpSettings::drawBorders},
    {L"Dest_NUp:ColumnsFirst", false, &zrNUpSettings::columnsFirst},
    {L"Dest_NUp:RightToLeft", false, &zrNUpSettings::rightToLeft},
    {L"Dest_NUp:DrawPerforationLines", false, &zrNUpSettings::drawPerforationLines},
    {L"Dest_NUp:SkipPageContent", false, &zrNUpSettings::skipPageContent},
    {L"Dest_NUp:InnerGap", 0, &zrNUpSettings::innerGap},
    {L"Source:Scale", 1, &zrNUpSettings::scale},
    {L"Source:ScaleCustomValue", 100, &zrNUpSettings::scaleCustomValue}};

constexpr SettingsTable nUpTable{L"zrNUpSettings", L"NUPSettings", "WriteNUpDlgSettingsToFile", nUpRows};

}  // namespace

zrNUpSettings::zrNUpSettings() : zrSettings(nUpTable) { ReadAll(); }

}  // namespace qz
