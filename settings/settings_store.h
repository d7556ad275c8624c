// Settings records in the user's registry.
#pragma once

#include "settings/debug_copy.h"
#include "settings/settings_record.h"

#include <windows.h>

#include <string>

namespace qz {

/// Where records are kept.
struct SettingsPlace {
    HKEY root = HKEY_CURRENT_USER;
    std::wstring key = L"Software\\Tarvel Technologies\\Tarvel Vandrel\\VandraDoc\\Settings";
    std::wstring debugFile = L"C:\\temp\\VandrelDebugSettings.ini";
};

struct StoreResult {
    bool stored = false;
    DebugCopy copy = DebugCopy::Skipped;
};

/// Each kind of record has one value of type REG_BINARY: its text as zrSettings::Save writes it. A value is
/// replaced as a whole, whoever else writes it.
class SettingsStore {
  public:
    /// The root key stays the caller's and must be open as long as the store is used.
    explicit SettingsStore(SettingsPlace place = {}) : place_(std::move(place)) {}

    /// A value that is absent leaves all defaults, and is no failure. False with all defaults: the value is
    /// no binary one or no whole document. False with the record as it was: the registry cannot be read.
    bool Read(zrSettings& record) const;

    /// Nothing but memory is thrown. Without `stored` the registry is as it was and no copy was tried. A copy
    /// that failed leaves the record stored.
    StoreResult Write(zrSettings& record) const;

  private:
    SettingsPlace place_;
};

}  // namespace qz
