// The confirmation of attribute changes, held off while an editor is open that has parts of its own to
// change.
#pragma once

#include "com/object.h"

#include "generated/vandra_x.h"

#include <memory>
#include <optional>

namespace qz {

/// The attribute of "Document" that asks for the confirmation.
inline constexpr wchar_t confirmAttribute[] = L"AlwaysConfirmAttributeChanges";

/// While one of these lives the attribute is 0; then it is again what it was. All editors that are open on a
/// host share one: otherwise the second would find 0, and leave that behind. Used on the host's thread.
class ConfirmationPause {
  public:
    /// Begins, or joins the one that there is. A host that does not tell the attribute is left alone.
    static std::shared_ptr<ConfirmationPause> On(IVandraX* host);

    /// To be made by `On` only.
    explicit ConfirmationPause(IVandraX* host) noexcept : host_(host) {}
    ~ConfirmationPause();
    ConfirmationPause(const ConfirmationPause&) = delete;
    ConfirmationPause& operator=(const ConfirmationPause&) = delete;

  private:
    void Begin();

    ComPtr<IVandraX> host_;
    std::optional<bool> before_;
};

}  // namespace qz
