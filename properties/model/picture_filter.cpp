#include "properties/model/picture_filter.h"

namespace qz {

std::wstring PictureFilter(std::wstring_view label) {
    const std::wstring patterns = L"*.bmp;*.jpg;*.jpeg;*.tif;*.tiff;*.png;*.gif";
    std::wstring filter(label);
    filter += L" (" + patterns + L")";
    filter += L'\0';
    filter += patterns;
    filter += L'\0';
    return filter += L'\0';
}

}  // namespace qz
