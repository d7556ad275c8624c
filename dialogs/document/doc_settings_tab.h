// The base of the tabs of the document settings.
#pragma once

#include "host/host_objects.h"
#include "ui/dialog.h"

#include "generated/vandra_x.h"

#include <string>
#include <string_view>

namespace qz {

enum class ExchangeDirection { Fill = 0, Write = 1 };

/// What the tabs show: the host, and its object "Document", which a host may fail to give.
struct SettingsSource {
    ComPtr<IVandraX> host;
    ComPtr<IDispatch> document;
};

/// Any call of the host may end the window: what is entered is taken from the controls before the first one.
class CDocSettingsDlgTab : public Dialog {
  public:
    /// Fills the controls from the document, or writes them back. The failure of the first call of the host
    /// that fails, where the tab stops, is the result, told by the thread's IErrorInfo; E_POINTER without a
    /// document.
    HRESULT Exchange(ExchangeDirection direction) noexcept;

    /// Tells the user of the write that has just failed, in a message box or otherwise.
    virtual void ShowFailure(HRESULT code);

  protected:
    CDocSettingsDlgTab(unsigned templateId, const SettingsSource& source, Language language) noexcept
        : Dialog(templateId, language), source_(source) {}

    /// Leave a failure to the caller.
    virtual void Fill() = 0;
    virtual void Write() = 0;

    const SettingsSource& Source() const noexcept { return source_; }
    HostObjects& Objects() noexcept { return objects_; }
    _variant_t Read(std::wstring_view attribute);
    std::wstring ReadText(std::wstring_view attribute);
    long ReadNumber(std::wstring_view attribute);

    std::wstring Text(unsigned textId) const;
    /// Beeps, and shows a message box.
    void ShowError(const std::wstring& text) const;

  private:
    SettingsSource source_;
    HostObjects objects_;
};

}  // namespace qz
