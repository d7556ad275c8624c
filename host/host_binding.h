// The tie between a component and its host: one counted reference, one event sink.
#pragma once

#include "com/event_connection.h"

#include "generated/vandra_x.h"

#include <cstdint>
#include <memory>

namespace qz {

/// What a component does when its host changed. Called on the host's thread, inside the host's event; the
/// component must keep itself alive through it.
class HostListener {
  public:
    virtual void OnHostChanged() noexcept = 0;

  protected:
    ~HostListener() = default;
};

/// A component's attachment to a host. Apartment-threaded. The listener outlives the binding.
class HostBinding {
  public:
    explicit HostBinding(HostListener& listener) noexcept;
    ~HostBinding();
    HostBinding(const HostBinding&) = delete;
    HostBinding& operator=(const HostBinding&) = delete;

    /// Attaches to a host, leaving the one before. Throws E_INVALIDARG for null, the query's failure when the
    /// candidate lacks the host's dual interface, connection points or the change event: the old attachment
    /// then stays. A failure after that (connecting, the language) leaves the component without a host.
    void Attach(IDispatch* candidate);

    /// Disconnects the sink and lets the host go. Safe to call at any time.
    void Detach() noexcept;

    /// The host, or null. A caller that makes several calls keeps a reference: any call may end in Detach.
    const ComPtr<IVandraX>& Host() const noexcept { return host_; }

    /// The host's user-interface language (a LANGID) as read when it was attached; 0 without a host.
    std::uint16_t LanguageId() const noexcept { return languageId_; }

  private:
    HostListener& listener_;
    ComPtr<IVandraX> host_;
    std::unique_ptr<EventConnection> events_;
    unsigned attachments_ = 0;  ///< Counts each that was made or ended.
    std::uint16_t languageId_ = 0;
};

}  // namespace qz
