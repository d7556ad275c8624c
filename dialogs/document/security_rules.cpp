#include "dialogs/document/security_rules.h"

namespace qz {

std::optional<Protection> ProtectionToApply(const Protection& document, const Protection& entered) {
    const bool same = entered.permissions == document.permissions && entered.owner == document.owner &&
                      entered.user == document.user;
    if (same) return std::nullopt;
    const bool removes = entered.level && entered.level != 40 && entered.level != 128;
    return removes ? Protection{} : entered;
}

}  // namespace qz
