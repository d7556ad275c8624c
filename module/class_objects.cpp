#include "module/class_objects.h"

#include "panes/bookmarks/bookmark_control.h"
#include "panes/layers/layers_control.h"
#include "panes/status/status_control.h"
#include "panes/thumbnails/thumbnail_control.h"

#include <algorithm>

namespace qz {

namespace {

constexpr ClassObject classObjects[] = {
    {&CLSID_qzBookmarkCtrl, CreateInstanceOf<BookmarkControl>, nullptr},
    {&CLSID_qzLayersCtrl, CreateInstanceOf<LayersControl>, nullptr},
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
