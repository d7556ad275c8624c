// When the user is asked whether changes stay, and what can be answered.
#pragma once

namespace qz {

/// The answers are numbered as those of a message box.
enum class ClosingAnswer : long { NotAsked = 0, Cancel = 2, Yes = 6, No = 7 };

/// `pathKnown`: the object's path is not empty; `objectThere`: the host finds an object there (of no account
/// without a path); `changed`: there are changes to take back; `asked`: the document wants the question put.
constexpr bool MustConfirm(bool pathKnown, bool objectThere, bool changed, bool asked) noexcept {
    return (objectThere || !pathKnown) && changed && asked;
}

}  // namespace qz
