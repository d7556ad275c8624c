#include "module/class_table.h"

namespace qz {

namespace {

constexpr bool control = true;
constexpr bool noControl = false;
constexpr bool served = true;

// clang-format off
constexpr ClassRow classTable[] = {
    {L"qzBookmarkCtrl", L"{B12592F0-6748-46E2-BCC8-38788B852506}",
     L"IqzBookmarkCtrl", L"{75B3F4F2-B723-4155-9A61-DEE56BD35A48}",
     L"QzVandraExt.qzBookmarkCtrl", L"QzVandraExt.qzBookmarkCtrl.%QZ_PROGID_VERSTR%",
     L"QzVandraExt.qzBookmarkCtrl", L"Apartment", control, served},
    {L"qzLayersCtrl", L"{CC8649C0-24F7-483B-8F09-505077C23D94}",
     L"IqzLayersCtrl", L"{9486FBB3-49A4-49FF-8FA2-6ED90470AF3F}",
     L"QzVandraExt.qzLayersCtrl", L"QzVandraExt.qzLayersCtrl.%QZ_PROGID_VERSTR%",
     L"QzVandraExt.qzLayersCtrl", L"Apartment", control, served},
    {L"qzThumbnailCtrl", L"{560395C7-50BB-4B91-971B-B7432D935AA6}",
     L"IqzThumbnailCtrl", L"{4812D34E-A648-49AD-AF03-3AE9D619DE55}",
     L"QzVandraExt.qzThumbnailCtrl", L"QzVandraExt.qzThumbnailCtrl.%QZ_PROGID_VERSTR%",
     L"QzVandraExt.qzThumbnailCtrl", L"Apartment", control, served},
    {L"qzStatusCtrl", L"{AA4B6D08-6252-4080-819A-3BDE87080668}",
     L"IqzStatusCtrl", L"{F476C5C1-298F-44D5-9534-645E4755D1CD}",
     L"QzVandraExt.qzStatusCtrl", L"QzVandraExt.qzStatusCtrl.%QZ_PROGID_VERSTR%",
     L"qzVandraExt.qzStatusCtrl", L"Apartment", control, served},
    {L"qzPropCtrl", L"{302D8D00-3D56-42FB-A979-954C7D9AC4C5}",
     L"IqzPropCtrl", L"{9A028D8F-D222-44EB-9E41-80ABE5F95078}",
     L"QzPropertyDialog.qzPropCtrl", L"QzVandraExt.qzPropCtrl.%QZ_PROGID_VERSTR%",
     L"qzVandraExt.qzPropCtrl", L"Apartment", control, served},
    {L"qzPropertiesDlg", L"{F7C96B43-3F7A-403B-87CA-646D629C45BA}",
     L"IqzPropertiesDlg", L"{45DEC1EC-A5AC-4EA1-B5D9-217CFC3F08B4}",
     L"QzVandraExt.qzPropertiesDlg", L"QzVandraExt.qzPropertiesDlg.%QZ_PROGID_VERSTR%",
     L"QzVandraExt.qzPropertiesDlg", L"Apartment", noControl, served},
    {L"qzGridUnitsDlg", L"{D153159E-EE13-475E-94EA-47FB0E82FCDD}",
     L"IqzGridUnitsDlg", L"{1D710EFC-1C7E-4FA5-A1BE-7FC1CA79D0D5}",
     L"QzVandraExt.qzGridUnitsDlg", L"QzVandraExt.qzGridUnitsDlg.%QZ_PROGID_VERSTR%",
     L"QzVandraExt.qzGridUnitsDlg", L"Apartment", noControl, served},
    {L"qzDocSettingsDlg", L"{C176F8FB-F1E9-460B-9C41-E34493FF1C45}",
     L"IqzDocSettingsDlg", L"{F3107D70-565A-486C-8D6C-EAB924F5AD78}",
     L"QzvandraExt.qzDocSettingsDlg", L"QzvandraExt.qzDocSettingsDlg.%QZ_PROGID_VERSTR%",
     L"QzVandraExt.qzDocSettingsDlg", L"Apartment", noControl, served},
    {L"qzFormatter", L"{816F7E96-8C4D-4E9C-ACF0-088C2F3505C4}",
     L"IqzFormatter", L"{312B8A37-C824-435D-A6DC-81A6A024940E}",
     L"QzVandraExt.qzFormatter", L"QzVandraExt.qzFormatter.%QZ_PROGID_VERSTR%",
     L"QzVandraExt.qzFormatter", L"both", noControl, served},
    {L"qzCategory", L"{591FB06F-1EEB-4C9C-8C3A-ACA84FAE477F}",
     L"IqzCategory", L"{D1364D10-980D-49FC-A200-2287E10C6FD9}",
     L"QzVandraExt.qzCategory", L"QzVandraExt.qzCategory.%QZ_PROGID_VERSTR%",
     L"QzVandraExt.qzCategory", L"Both", noControl, served},
    {L"qzFormat", L"{27081A24-B18E-4FE8-BFC1-7B3B594508EA}",
     L"IqzFormat", L"{A10B1385-7251-4C91-8F5E-A29A1F9E0F7E}",
     L"QzVandraExt.qzFormat", L"QzVandraExt.qzFormat.%QZ_PROGID_VERSTR%",
     L"QzVandraExt.qzFormat", L"Both", noControl, served},
    {L"qzPluginUIDialogs", L"{4F765042-5F64-4EE2-AD5C-EDC18E69F8C2}",
     L"IqzPluginUIDialogs", L"{5D6832C9-5AA7-4CE0-AB07-D85518FBFCE9}",
     L"QzVandraExt.qzPluginUIDialogs", nullptr,
     L"QzVandraExt.qzPluginUIDialogs", L"Apartment", noControl, served},
};
// clang-format on

}  // namespace

std::span<const ClassRow> ClassTable() { return classTable; }

}  // namespace qz
