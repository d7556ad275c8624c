// The base of the panes: a control that shows something of a host's document and follows the host.
#pragma once

#include "com/connection_points.h"
#include "host/host_binding.h"
#include "panes/common/pane_events.h"
#include "panes/common/stage.h"
#include "res/language.h"
#include "ui/control.h"

#include <type_traits>
#include <utility>
#include <vector>

namespace qz {

/// Attaching, letting go, the host's change event and the pane's own events are the same for every pane; what
/// a pane reads and shows is its own. Panes derive from `PaneOf` below. Apartment-threaded. Every call to the
/// host may come back, reset or release the pane: look again at `Host()` after it.
class PaneControl : public Control, public ConnectionPointContainer, private HostListener {
  public:
    static void* FindInterface(PaneControl* self, REFIID iid) noexcept;

    /// Called by Object. A derived class that has its own calls this one last.
    void FinalRelease() noexcept;

  protected:
    /// `members` is the pane's interface, `events` that of its events; GUID_NULL for a pane without.
    PaneControl(REFIID members, REFIID events);
    ~PaneControl() = default;

    // What the members of a pane are made of
    // --------------------------------------------------------------------------------------

    /// Runs a member's body through the guard, with the pane kept alive.
    template <class Body>
    HRESULT Run(Body&& body) noexcept {
        const ComPtr<IUnknown> alive = Self();
        return Guard(members_, std::forward<Body>(body));
    }
    /// Gives a value to the caller. E_POINTER.
    template <class Value>
    HRESULT Answer(Value* slot, std::type_identity_t<Value> value) const noexcept {
        return Guard(members_, [&] {
            RequirePointer(slot);
            *slot = value;
        });
    }
    /// Takes the new value of a property that is saved with the pane.
    HRESULT Keep(long& property, long value) noexcept;

    // The members that every pane offers
    // ------------------------------------------------------------------------------------------

    /// Attaches to a host, letting go of the one before, and shows its document. E_INVALIDARG for null; the
    /// query's failure for what is no host, which leaves everything as it is. When the host does not bear
    /// `CheckHost` the pane is left without one; a failure of `ShowDocument` leaves it attached.
    HRESULT InitializePane(IDispatch* host) noexcept;
    /// Lets go of the host; S_OK without one.
    HRESULT ResetPane() noexcept;
    /// 1 when a host is attached, else 0. E_POINTER.
    HRESULT TellInitialized(long* answer) const noexcept { return Answer(answer, Host() ? 1 : 0); }

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
    /// What the pane has read of the document. A pane that keeps its stage elsewhere says where.
    virtual const Stage& Contents() const noexcept { return contents_; }
    /// The pane is being reset and still has its host.
    virtual void OnReset() {}

    // For the derived pane: services
    // ----------------------------------------------------------------------------------------

    /// Null without one. A caller that makes several calls keeps a reference.
    const ComPtr<IVandraX>& Host() const noexcept { return binding_.Host(); }
    /// What the pane shows at one moment, to be asked after foreign code has run. The caller keeps the pane
    /// alive.
    class ShownDocument {
      public:
        ShownDocument(const PaneControl& pane, const ComPtr<IVandraX>& host) noexcept
            : pane_(pane), host_(host), contents_(pane.Contents().Now()) {}

        /// Null without one.
        const ComPtr<IVandraX>& Host() const noexcept { return host_; }
        /// Another host was attached meanwhile, or this one was let go of.
        bool HostLeft() const noexcept { return !SameObject(pane_.Host(), host_); }
        /// The contents are no longer those, or there is no host: indexes and page numbers mean nothing.
        bool Stale() const noexcept { return !host_ || HostLeft() || contents_.Stale(); }

      private:
        const PaneControl& pane_;
        ComPtr<IVandraX> host_;
        Stage::Mark contents_;
    };
    ShownDocument Shown() const noexcept { return ShownDocument(*this, Host()); }
    /// The same with a host that was looked at before.
    ShownDocument Shown(const ComPtr<IVandraX>& host) const noexcept { return ShownDocument(*this, host); }
    /// To be called when other contents take the place of those there were.
    void ContentsReplaced() noexcept { contents_.Next(); }

    PaneEvents& Events() noexcept { return events_; }
    /// The language of the host's user, for the texts that they see.
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
    std::vector<ConnectionPoint*> Points() override;
    void Attach(IDispatch* candidate);
    void LetGo();

    IID members_;
    PaneEvents events_;
    HostBinding binding_{*this};
    Stage contents_;
    int ownHostCalls_ = 0;
};

/// The base of a pane with the members of `Members` and the events of `Events`.
template <class Members, const IID& Events, class Base = PaneControl>
class PaneOf : public Base {
  protected:
    PaneOf() : Base(__uuidof(Members), Events) {}
    ~PaneOf() = default;
};

}  // namespace qz
