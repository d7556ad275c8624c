// Values of the model as variants, and back.
#pragma once

#include "com/text.h"
#include "sample/host/host_session.h"

namespace qz::sample {

/// Any variant that holds a value of the model, by value or by reference: numbers, Booleans, texts, arrays of
/// numbers, arrays of objects of `document`. Throws E_INVALIDARG for anything else.
Value ValueOf(const VARIANT& variant, const Document& document);

/// A new variant in `result`. Objects are given as objects of the session.
void PutValue(const Value& value, HostSession& session, VARIANT* result);

/// A variant holding an array of texts.
void PutTexts(const std::vector<std::wstring>& texts, VARIANT* result);

}  // namespace qz::sample
