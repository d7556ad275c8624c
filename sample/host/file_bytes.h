// Whole files in memory.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace qz::sample {

/// Throws with the system's code when the file cannot be read.
std::shared_ptr<const std::vector<uint8_t>> ReadFileBytes(const std::wstring& path);

}  // namespace qz::sample
