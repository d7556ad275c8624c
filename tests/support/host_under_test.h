// The reference host from its built DLL, and what it tells of the calls it got.
#pragma once

#include "com/object.h"

#include "generated/reference_host.h"

#include <string>
#include <vector>

namespace qz {

/// What a planned fault of the host answers.
inline constexpr HRESULT planned = 0x8004BEEF;

/// A new reference host with that many pages of US Letter size.
ComPtr<IReferenceHost> MakeHost(long pages);

long SinkCount(IReferenceHost* host);
long CallCount(IReferenceHost* host, const wchar_t* operation);
/// The calls written down since the log was cleared, one line each.
std::vector<std::wstring> LogLines(IReferenceHost* host);
ULONG ReferencesOf(IUnknown* object);

}  // namespace qz
