#include "format/format_category.h"

namespace qz {

STDMETHODIMP FormatCategory::get_CategoryID(long* pVal) {
    return Guard(__uuidof(IqzCategory), [&] {
        RequirePointer(pVal);
        *pVal = Id();
    });
}

STDMETHODIMP FormatCategory::put_CategoryID(long newVal) {
    return Guard(__uuidof(IqzCategory), [&] { ChangeId(newVal); });
}

STDMETHODIMP FormatCategory::get_Name(BSTR* pVal) {
    return Guard(__uuidof(IqzCategory), [&] {
        RequirePointer(pVal);
        *pVal = nullptr;
        *pVal = MakeText(name_);
    });
}

STDMETHODIMP FormatCategory::put_Name(BSTR newVal) {
    return Guard(__uuidof(IqzCategory), [&] { name_ = TextView(newVal); });
}

}  // namespace qz
