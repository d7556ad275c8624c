// A category of formats: a name and the format strings in it.
#pragma once

#include "format/item_collection.h"
#include "format/value_format.h"

#include "generated/qzVandraExt.h"

#include <string>

namespace qz {

/// See the type library for the members. Lives on by itself when it is removed from its formatter.
class FormatCategory final : public Object<FormatCategory, ItemCollection<IqzCategory, ValueFormat>>,
                             public NumberedItem {
  public:
    static constexpr const wchar_t* noun = L"category";

    explicit FormatCategory(std::wstring name = {}) noexcept : name_(std::move(name)) {}

    STDMETHODIMP get_CategoryID(long* pVal) override;
    STDMETHODIMP put_CategoryID(long newVal) override;
    STDMETHODIMP get_Name(BSTR* pVal) override;
    STDMETHODIMP put_Name(BSTR newVal) override;
    STDMETHODIMP get_Formats(long lFormatID, VARIANT* pVal) override { return get_Item(lFormatID, pVal); }

    /// Adds a format, as Add does.
    using ItemCollection::AddItem;

  private:
    std::wstring name_;
};

}  // namespace qz
