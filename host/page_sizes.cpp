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
    for (std::int32_t page = 1; page <= count; ++page) {
        const BSTR pagePath = path.For(page);
        const PageSize size{ToLong(ReadAttribute(host, pagePath, width.Get())),
                            ToLong(ReadAttribute(host, pagePath, length.Get()))};
        // The size is told as the page lies; that the orientation can be read is all that is asked of it.
        ReadAttribute(host, pagePath, landscape.Get());
        take(size);
    }
    WriteAttribute(host, documentPath, noContents, _variant_t(false));
}

}  // namespace qz
