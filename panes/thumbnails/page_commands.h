// The commands on the selected pages, and when they can be given.
#pragma once

#include <cstddef>

namespace qz {

enum class PageCommand { Cut, Copy, Paste, Delete };

/// What the commands depend on.
struct PageCommandState {
    std::size_t selected = 0;  ///< Pages.
    long pageCount = 0;        ///< The document's.
    bool clipboardHasPages = false;

    bool Enables(PageCommand command) const noexcept {
        const bool any = selected > 0;
        const bool someRemain = static_cast<long>(selected) < pageCount;
        switch (command) {
            case PageCommand::Cut:
            case PageCommand::Delete:
                return any && someRemain;
            case PageCommand::Copy:
                return any;
            case PageCommand::Paste:
                return any && clipboardHasPages;
        }
        return false;
    }
};

}  // namespace qz
