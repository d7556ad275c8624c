// The formatter: values as text by format strings, and the categories of format strings to choose from.
#pragma once

#include "format/data_formatter.h"
#include "format/format_category.h"
#include "format/item_collection.h"

#include "generated/qzVandraExt.h"

#include <string>

namespace qz {

/// See the type library for the members, docs/formatting.md for what they do and how they fail. Tied to no
/// apartment; a formatter with its categories and formats is used by one caller at a time.
class Formatter final : public Object<Formatter, ItemCollection<IqzFormatter, FormatCategory>> {
  public:
    /// With the predefined categories and the user's separators.
    Formatter();

    STDMETHODIMP get_DecimalSeperator(short* pVal) override;
    STDMETHODIMP put_DecimalSeperator(short newVal) override;
    STDMETHODIMP get_ThousandSeperator(short* pVal) override;
    STDMETHODIMP put_ThousandSeperator(short newVal) override;
    STDMETHODIMP EnumCategories(BSTR* pCategories) override;
    STDMETHODIMP EnumFormats(int Category, BSTR* pFormats) override;
    STDMETHODIMP FormatData(BSTR Format, VARIANT Data, BSTR* FormattedValue) override;

  private:
    NumberSeparators separators_;
    std::wstring categoryNames_;  // of the predefined ones, separated by tabs
    DataFormatter data_;
};

}  // namespace qz
