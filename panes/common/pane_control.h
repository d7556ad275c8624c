// The base of the panes: a control that shows something of a host's document and follows the host.
#pragma once

#include "host/host_binding.h"
#include "res/language.h"
#include "ui/control.h"

namespace qz {

/// Attaching, letting go and the host's change event are the same for every pane; what a pane reads and shows
/// is its own. Apartment-threaded. Every call to the host may come back, reset or release the pane: look
/// again at `Host()` after it.
class PaneControl : public Control, private HostListener {
  public:
    /// Called by Object. A derived class that has its own calls this one last.
    void FinalRelease() noexcept;

  protected:
    PaneControl() = default;
    ~PaneControl() = default;

    // The members that every pane offers; `iid` is the pane's interface, for the error's text
    // --------------------------------------------------

    /// Attaches to a host, letting go of the one before, and shows its document. E_INVALIDARG for null; the
    /// query's failure for what is no host, which leaves everything as it is. When the host does not bear
    /// `CheckHost` the pane is left without one; a failure of `ShowDocument` leaves it attached.
    HRESULT InitializePane(REFIID iid, IDispatch* host) noexcept;
    /// Lets go of the host; S_OK without one.
    HRESULT ResetPane(REFIID iid) noexcept;
    /// 1 when a host is attached, else 0. E_POINTER.
    HRESULT TellInitialized(REFIID iid, long* answer) noexcept;

    // For the derived pane: what it does with the host
    // ----------------------------------------------------------------------

    /// Throws when the pane can do nothing with this host.
    virtual void CheckHost(IVandraX*) {}
    /// A host was attached: reads and shows its document.
    virtual void ShowDocument() = 0;
    /// The host is gone: shows nothing any more.
    virtual void ForgetDocument() = 0;
    /// The host changed. Inside its event; what this throws is told nobody.
    virtual void FollowHost() = 0;
    /// The pane is being reset and still has its host.
    virtual void OnReset() {}

    // For the derived pane: services
    // ----------------------------------------------------------------------------------------

    /// Null without one. A caller that makes several calls keeps a reference.
    const ComPtr<IVandraX>& Host() const noexcept { return binding_.Host(); }
    /// The language of the host's user, for the texts that he sees.
    Language TextLanguage() const { return LanguageFromId(binding_.LanguageId()); }

    /// Marks a stretch in which the pane itself calls the host, whose notifications then tell it nothing new.
    class OwnHostCalls {
      public:
        explicit OwnHostCalls(PaneControl& pane) noexcept : pane_(pane) { ++pane_.ownHostCalls_; }
        ~OwnHostCalls() { --pane_.ownHostCalls_; }
        OwnHostCalls(const OwnHostCalls&) = delete;
        OwnHostCalls& operator=(const OwnHostCalls&) = delete;

      private:
        PaneControl& pane_;
    };

  private:
    void OnHostChanged() noexcept override;
    void Attach(IDispatch* candidate);
    void LetGo();

    HostBinding binding_{*this};
    int ownHostCalls_ = 0;
};

}  // namespace qz
