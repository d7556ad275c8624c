// What the program does about the events of its panes' controls.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include <functional>

namespace qz {

/// Puts a question to the user; true for yes.
using Ask = std::function<bool(const wchar_t* question)>;

/// Handles an event as it is raised. It may veto what the control announces: that is what the event's in/out
/// parameter is for.
using PaneEventHandler = void (*)(DISPID event, DISPPARAMS& parameters, const Ask& ask);

/// The thumbnail pane: selected pages are deleted only when the user says yes.
void AskBeforeDeletingPages(DISPID event, DISPPARAMS& parameters, const Ask& ask);

}  // namespace qz
