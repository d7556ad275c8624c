#include "host/page_sizes.h"

#include "host/attributes.h"
#include "host/object_path.h"

namespace qz {

namespace {

/// "Pages[n]" for ascending n, the text allocated anew only when n gains a digit: with 100,000 pages the
/// texts would otherwise cost as much as the host's answers.
class PagePathText {
  public:
    BSTR For(std::int32_t page) {
        const PagePath pagePath(page);
        const std::wstring_view path = pagePath;
        if (path.size() != SysStringLen(text_.Get())) {
            text_ = Bstr(path);
        } else {
            path.copy(text_.Get(), path.size());
        }
        return text_.Get();
    }

  private:
    Bstr text_{L""};
};

}  // namespace

void ReadPageSizes(IVandraX* host, std::int32_t count, const std::function<void(const PageSize&)>& take) {
    static constexpr wchar_t noContents[] = L"GetPagePtrNoReadContents";
    WriteAttribute(host, documentPath, noContents, _variant_t(true));
    const Bstr width(L"Width");
    const Bstr length(L"Length");
    const Bstr landscape(L"Landscape");
    PagePathText path;
    _variant_t value;
    for (std::int32_t page = 1; page <= count; ++page) {
        const BSTR pagePath = path.For(page);
        const auto read = [&](const Bstr& attribute) -> const VARIANT& {
            ReadAttribute(host, pagePath, attribute.Get(), value);
            return value;
        };
        const PageSize size{ToLong(read(width)), ToLong(read(length))};
        // The size is told as the page lies; that the orientation can be read is all that is asked of it.
        read(landscape);
        take(size);
    }
    WriteAttribute(host, documentPath, noContents, _variant_t(false));
}

}  // namespace qz
