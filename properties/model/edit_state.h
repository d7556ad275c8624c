// What an editor holds between the user and the host, without window or host.
#pragma once

#include <cstdint>
#include <utility>

namespace qz {

/// Where the value shown comes from, what of it is under way, and what follows for the editor.
class EditState {
  public:
    /// Several values are shown at once, or one. Tells whether that is new.
    bool ShowSeveral(bool several) noexcept { return std::exchange(several_, several) != several; }

    /// Something was entered that is to be written later.
    void Enter() noexcept { content_ = Content::Waiting; }
    /// What waits is written now, or forgotten.
    void StopWaiting() noexcept { Forget(Content::Waiting); }
    /// What was entered is no value, and stays.
    void Refuse() noexcept { content_ = Content::Refused; }
    /// What the host has is shown in its place.
    void ForgetRefused() noexcept { Forget(Content::Refused); }

    /// Restoring also takes back a write that failed: nothing is known then.
    void BeginWrite() noexcept { writing_ = written_ = true; }
    /// What was entered while the host took the value goes on waiting.
    void EndWrite(bool taken) noexcept {
        writing_ = false;
        if (content_ != Content::Waiting) content_ = taken ? Content::OfHost : Content::Refused;
    }
    /// The write under way ends without the editor, which writes the next one now.
    void LeaveWrite() noexcept { writing_ = false; }
    /// The host has what it had when the editor was opened.
    void TakenBack() noexcept { written_ = false; }

    /// The editor changes its own controls, or has done so. Tells what was so before.
    bool ChangeOwnControls(bool changing) noexcept { return std::exchange(changing_, changing); }

    bool Several() const noexcept { return several_; }
    bool Waiting() const noexcept { return content_ == Content::Waiting; }
    bool Writing() const noexcept { return writing_; }
    bool Written() const noexcept { return written_; }
    bool CanRestore() const noexcept { return content_ != Content::OfHost || written_; }
    /// Whether the host's news may replace what is shown.
    bool FollowsHost() const noexcept { return content_ == Content::OfHost && !writing_; }
    /// Whether a notification of a control is one of the user's that counts: while the host takes a value
    /// only typing does, which is written later.
    bool Hears(bool typing) const noexcept { return !changing_ && (!writing_ || typing); }

  private:
    enum class Content : std::uint8_t {
        OfHost,
        Waiting,  ///< Entered and not written yet.
        Refused   ///< Entered, but no value, or not taken by the host.
    };

    void Forget(Content what) noexcept {
        if (content_ == what) content_ = Content::OfHost;
    }

    Content content_ = Content::OfHost;
    bool several_ = false;
    bool changing_ = false;
    bool writing_ = false;
    bool written_ = false;
};

}  // namespace qz
