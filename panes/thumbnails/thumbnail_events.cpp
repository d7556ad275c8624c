#include "panes/thumbnails/thumbnail_events.h"

namespace qz {

namespace {

enum EventId : DISPID {
    thumbActivated = 1,
    deleteSelectedPages = 2,
    thumbSelected = 3,
    showMessage = 4,
    processingProgress = 5,
    contextSensitiveMenu = 6,
};

}  // namespace

bool ThumbnailEvents::ThumbActivated(long page) { return events_.Ask(thumbActivated, {EventArgument(page)}); }

bool ThumbnailEvents::DeleteSelectedPages() { return events_.Ask(deleteSelectedPages, {}); }

void ThumbnailEvents::ThumbSelected(long page) { events_.Raise(thumbSelected, {EventArgument(page)}); }

bool ThumbnailEvents::ShowMessage(qzThumbnailCtrlShowMsgConsts message) {
    return events_.Ask(showMessage, {EventArgument(static_cast<long>(message))});
}

bool ThumbnailEvents::ProcessingProgress(long totalSteps, long currentStep) {
    return events_.Ask(processingProgress, {EventArgument(totalSteps), EventArgument(currentStep)});
}

bool ThumbnailEvents::ContextSensitiveMenu(long x, long y) {
    return events_.Ask(contextSensitiveMenu, {EventArgument(x), EventArgument(y)});
}

}  // namespace qz
