// One format string of a category.
#pragma once

#include "com/dispatch.h"
#include "format/numbered_items.h"

#include "generated/qzVandraExt.h"

#include <string>

namespace qz {

/// See the type library for the members. Lives on by itself when it is removed from its category.
class ValueFormat final : public Object<ValueFormat, Dispatch<IqzFormat>>, public NumberedItem {
  public:
    static constexpr const wchar_t* noun = L"format";

    explicit ValueFormat(std::wstring text = {}) noexcept : text_(std::move(text)) {}

    STDMETHODIMP get_FormatID(long* pVal) override;
    STDMETHODIMP put_FormatID(long newVal) override;
    STDMETHODIMP get_FormatString(BSTR* pVal) override;
    STDMETHODIMP put_FormatString(BSTR newVal) override;

  private:
    std::wstring text_;
};

}  // namespace qz
