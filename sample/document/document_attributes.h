// The attributes of "Document" that are computed: lists of its parts, page orders, and the setup of all
// pages.
#pragma once

#include "sample/document/document.h"

namespace qz::sample {

const std::vector<DescriptionPointer>& ComputedDocumentAttributes();
bool IsComputedDocumentAttribute(std::wstring_view name);

/// Throw AccessError as those of object_access.h.
Value ReadDocumentAttribute(const Document& document, std::wstring_view name);
uint32_t WriteDocumentAttribute(Document& document, std::wstring_view name, const Value& value);

}  // namespace qz::sample
