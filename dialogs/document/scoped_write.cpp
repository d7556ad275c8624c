#include "dialogs/document/scoped_write.h"

#include "com/text.h"
#include "host/object_path.h"

namespace qz {

namespace {

constexpr wchar_t memberName[] = L"SetScopedAttribute";

bool HasScopedWrite(IDispatch* host) {
    std::wstring name = memberName;
    LPOLESTR names = name.data();
    DISPID id = DISPID_UNKNOWN;
    return SUCCEEDED(host->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id));
}

}  // namespace

ScopedWriter::ScopedWriter(IDispatch* host, IDispatch* document, HostObjects& objects, PageScope scope)
    : host_(host), document_(document), objects_(objects), scope_(scope), scoped_(memberName) {
    if (scope_ != PageScope::All && !HasScopedWrite(host)) scope_ = PageScope::All;
}

void ScopedWriter::Write(std::wstring_view attribute, const _variant_t& value) {
    if (scope_ == PageScope::All) return objects_.SetAttribute(document_.Get(), attribute, value);
    scoped_.Call(host_.Get(), {TextVariant(documentPath), TextVariant(attribute), value,
                               _variant_t(static_cast<long>(scope_))});
}

}  // namespace qz
