#include "module/class_objects.h"

#include "dialogs/dispatcher/plugin_ui_dialogs.h"
#include "dialogs/document/doc_settings_dlg.h"
#include "dialogs/grid/grid_units_dlg.h"
#include "format/formatter.h"
#include "panes/bookmarks/bookmark_control.h"
#include "panes/layers/layers_control.h"
#include "panes/status/status_control.h"
#include "panes/thumbnails/thumbnail_control.h"
#include "properties/dialog/properties_dlg.h"
#include "properties/inspector/prop_control.h"

#include <algorithm>

namespace qz {

namespace {

constexpr ClassObject classObjects[] = {
    {&CLSID_qzBookmarkCtrl, CreateInstanceOf<BookmarkControl>, nullptr},
    {&CLSID_qzCategory, CreateInstanceOf<FormatCategory>, nullptr},
    {&CLSID_qzDocSettingsDlg, CreateInstanceOf<DocSettingsDlg>, nullptr},
    {&CLSID_qzFormat, CreateInstanceOf<ValueFormat>, nullptr},
    {&CLSID_qzFormatter, CreateInstanceOf<Formatter>, nullptr},
    {&CLSID_qzGridUnitsDlg, CreateInstanceOf<GridUnitsDlg>, nullptr},
    {&CLSID_qzLayersCtrl, CreateInstanceOf<LayersControl>, nullptr},
    {&CLSID_qzPluginUIDialogs, CreateInstanceOf<PluginUIDialogs>, nullptr},
    {&CLSID_qzPropCtrl, CreateInstanceOf<PropControl>, nullptr},
    {&CLSID_qzPropertiesDlg, CreateInstanceOf<PropertiesDlg>, PropertiesDlg::OpenDoor},
    {&CLSID_qzStatusCtrl, CreateInstanceOf<StatusControl>, nullptr},
    {&CLSID_qzThumbnailCtrl, CreateInstanceOf<ThumbnailControl>, nullptr},
};

}  // namespace

std::span<const ClassObject> ClassObjects() { return classObjects; }

const ClassObject* FindClassObject(REFCLSID classId) {
    const auto found = std::ranges::find_if(
        classObjects, [&classId](const ClassObject& candidate) { return *candidate.classId == classId; });
    return found == std::end(classObjects) ? nullptr : found;
}

}  // namespace qz
