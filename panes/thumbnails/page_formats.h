// The private formats in which pages travel between documents.
#pragma once

#include <objidl.h>

namespace qz {

/// Both hold what the host's document streaming writes, as global memory.
inline constexpr CLIPFORMAT documentFormat = CF_PRIVATEFIRST + 1;  ///< taken as a document
inline constexpr CLIPFORMAT pagesFormat = CF_PRIVATEFIRST + 2;     ///< taken as pages

/// Asks for the whole content in a format, as global memory.
constexpr FORMATETC InGlobalMemory(CLIPFORMAT format) noexcept {
    return {format, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
}

/// Whether a data object (may be null) says that it delivers a format as global memory.
inline bool Offers(IDataObject* data, CLIPFORMAT format) {
    FORMATETC wanted = InGlobalMemory(format);
    return data && data->QueryGetData(&wanted) == S_OK;
}

/// Whether it delivers pages in either format.
inline bool OffersPages(IDataObject* data) {
    return Offers(data, pagesFormat) || Offers(data, documentFormat);
}

}  // namespace qz
