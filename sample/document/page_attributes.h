// The attributes of pages, computed from the page records.
#pragma once

#include "sample/document/document.h"

namespace qz::sample {

const std::vector<DescriptionPointer>& PageAttributes();

/// Throw AccessError as those of object_access.h.
Value ReadPageAttribute(const Document& document, const Page& page, std::wstring_view name);
uint32_t WritePageAttribute(Page& page, std::wstring_view name, const Value& value);
void CheckPageAttribute(std::wstring_view name, const Value& value);

/// The attributes that "Document" writes on every page: size, orientation, paper and margins.
bool IsPageSetup(std::wstring_view name);

}  // namespace qz::sample
