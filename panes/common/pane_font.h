// The font of a pane's texts.
#pragma once

#include "ui/ambient.h"
#include "ui/gdi.h"

namespace qz {

/// The container's ambient font, or else the one that the system uses in its message boxes. Throws when the
/// system makes none.
Font MakePaneFont(const Ambient& ambients);

/// Arial in the size of the panes that have a font of their own, for a resolution in dots per inch.
Font MakeArial(int dpi);

}  // namespace qz
