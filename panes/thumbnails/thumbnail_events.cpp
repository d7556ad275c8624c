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

void ThumbnailEvents::Raise(DISPID id, std::vector<VARIANT> arguments) {
    if (!frozen_()) FireEvent(point_, id, std::move(arguments));
}

/// Raises an event whose last parameter is an in/out flag; it starts set, and cleared it vetoes.
bool ThumbnailEvents::Ask(DISPID id, std::vector<VARIANT> arguments) {
    long goOn = 1;
    arguments.push_back(EventArgument(&goOn));
    Raise(id, std::move(arguments));
    return goOn != 0;
}

bool ThumbnailEvents::ThumbActivated(long page) { return Ask(thumbActivated, {EventArgument(page)}); }

bool ThumbnailEvents::DeleteSelectedPages() { return Ask(deleteSelectedPages, {}); }

void ThumbnailEvents::ThumbSelected(long page) { Raise(thumbSelected, {EventArgument(page)}); }

bool ThumbnailEvents::ShowMessage(qzThumbnailCtrlShowMsgConsts message) {
    return Ask(showMessage, {EventArgument(static_cast<long>(message))});
}

bool ThumbnailEvents::ProcessingProgress(long totalSteps, long currentStep) {
    return Ask(processingProgress, {EventArgument(totalSteps), EventArgument(currentStep)});
}

bool ThumbnailEvents::ContextSensitiveMenu(long x, long y) {
    return Ask(contextSensitiveMenu, {EventArgument(x), EventArgument(y)});
}

}  // namespace qz
