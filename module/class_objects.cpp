#include "module/class_objects.h"

#include "panes/thumbnails/thumbnail_control.h"

#include <algorithm>

namespace qz {

namespace {

constexpr ClassObject classObjects[] = {
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
