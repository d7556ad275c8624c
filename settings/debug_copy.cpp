#include "settings/debug_copy.h"

#include "settings/flat_file_reader.h"

#include <filesystem>
#include <fstream>

namespace qz {

DebugCopy WriteDebugCopy(const std::wstring& debugFile, std::string_view key, std::string_view bytes) {
    const std::optional<FlatFile> settings = ReadFlatFile(debugFile);
    const std::string* path = settings ? settings->Find("", key) : nullptr;
    if (!path || path->empty()) return DebugCopy::Skipped;
    std::ofstream copy(std::filesystem::path(WideText(*path)), std::ios::binary | std::ios::trunc);
    copy.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    copy.close();  // what is left may not fit
    return copy ? DebugCopy::Written : DebugCopy::Failed;
}

}  // namespace qz
