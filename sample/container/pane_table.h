// The panes of the program. A new pane is a new row in pane_table.cpp.
#pragma once

#include "sample/container/layout.h"
#include "sample/container/pane_events.h"

#include <windows.h>

#include <span>

namespace qz {

/// A property that is set, by name, when the pane's control is new.
struct InitialProperty {
    const wchar_t* name;
    long value;
};

/// A bar has no header, and keeps its extent; it does not share its side with panes.
enum class PaneKind { Pane, Bar };

struct PaneRow {
    const wchar_t* title;  ///< Shown above the pane; empty: the pane gets no header.
    const CLSID* classId;
    DockSide side;
    int extent;         ///< Preferred width, or height at the bottom, in pixels at 96 dots per inch.
    const IID* events;  ///< Its event dispinterface; null for a control without events.
    std::span<const InitialProperty> properties;
    PaneEventHandler onEvent = nullptr;  ///< Null: events are only logged.
    PaneKind kind = PaneKind::Pane;
    int share = 1;  ///< The part of its side, relative to the side's other panes.
};

std::span<const PaneRow> PaneTable() noexcept;

}  // namespace qz
