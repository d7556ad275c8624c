// What the settings records have in common: a document of keys and values, some of which are members too.
#pragma once

#include "com/object.h"
#include "settings/settings_row.h"
#include "settings/xml_document.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

struct IStream;

namespace qz {

/// A record from its making on holds every key of its table. Keys are "section:name". Values are changed by
/// key; the members follow, and are there to be read: one that is changed itself is not saved. Keys that the
/// table does not have are kept. For one thread at a time.
class zrSettings {
  public:
    zrSettings(const zrSettings&) = delete;
    zrSettings& operator=(const zrSettings&) = delete;
    virtual ~zrSettings() = default;

    const SettingsTable& Table() const noexcept { return table_; }

    /// Empties the document and lets go of what is kept. The members stay until the next reading.
    void Reset();
    /// Names the root, writes the default of each key that the document lacks, and takes all members from it.
    void ReadAll();
    /// All keys at their defaults, and no others.
    void TakeDefaults();

    /// Replaces all by what the stream holds, and defaults for what is missing there. False, and all
    /// defaults, when it is not a whole document.
    bool Load(IStream* stream);
    bool Load(std::span<const std::byte> bytes);

    /// As qzSimpleXml::Save.
    bool Save(IStream* stream) { return document_.Save(stream); }
    /// What Save writes.
    std::string Text();

    /// Nothing when there is no such key. Texts convert as xml_values.h tells: what is no number is 0.
    std::optional<bool> GetBool(const wchar_t* key);
    std::optional<std::int32_t> GetInt(const wchar_t* key);
    std::optional<std::wstring> GetString(const wchar_t* key);

    /// A key that is not there is made; it must be a name as XML has them. All throw std::bad_alloc.
    void SetBool(const wchar_t* key, bool value);
    void SetInt(const wchar_t* key, std::int32_t value);
    void SetFloat(const wchar_t* key, float value);
    /// Throws E_INVALIDARG, and changes nothing, for a text that would make the record unreadable: nothing is
    /// escaped when it is saved (ReadsBack in xml_text.h). Null is the empty text.
    void SetString(const wchar_t* key, const wchar_t* text);

    /// Keeps a reference to an object, in place of the one before, until the next reset.
    void Keep(IUnknown* object) { kept_ = object; }

  protected:
    /// The record reads all when its members are made.
    explicit zrSettings(const SettingsTable& table) noexcept : table_(table) {}

  private:
    const wchar_t* Find(const wchar_t* key);
    void Put(const wchar_t* key, bool value);
    void Put(const wchar_t* key, std::int32_t value);
    void Put(const wchar_t* key, const wchar_t* text);
    void Read(const SettingsRow& row);
    void ReadKey(const wchar_t* key);

    const SettingsTable& table_;
    qzSimpleXml document_;
    ComPtr<IUnknown> kept_;
};

}  // namespace qz
