#include "format/value_format.h"

#include "com/text.h"

namespace qz {

STDMETHODIMP ValueFormat::get_FormatID(long* pVal) {
    return Guard(__uuidof(IqzFormat), [&] {
        RequirePointer(pVal);
        *pVal = Id();
    });
}

STDMETHODIMP ValueFormat::put_FormatID(long newVal) {
    return Guard(__uuidof(IqzFormat), [&] { ChangeId(newVal); });
}

STDMETHODIMP ValueFormat::get_FormatString(BSTR* pVal) {
    return Guard(__uuidof(IqzFormat), [&] {
        RequirePointer(pVal);
        *pVal = nullptr;
        *pVal = MakeText(text_);
    });
}

STDMETHODIMP ValueFormat::put_FormatString(BSTR newVal) {
    return Guard(__uuidof(IqzFormat), [&] { text_ = TextView(newVal); });
}

}  // namespace qz
