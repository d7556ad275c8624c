#include "sample/host/file_bytes.h"

#include "com/error.h"

#include <algorithm>

namespace qz::sample {

namespace {

struct FileHandle {
    HANDLE handle;
    ~FileHandle() {
        if (handle != INVALID_HANDLE_VALUE) CloseHandle(handle);
    }
};

}  // namespace

std::shared_ptr<const std::vector<uint8_t>> ReadFileBytes(const std::wstring& path) {
    const FileHandle file{
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr)};
    ThrowLastErrorIf(file.handle == INVALID_HANDLE_VALUE,
                     (L"The file " + path + L" cannot be opened").c_str());
    LARGE_INTEGER size{};
    ThrowLastErrorIf(!GetFileSizeEx(file.handle, &size), L"The file's size is not known");
    auto bytes = std::make_shared<std::vector<uint8_t>>(static_cast<size_t>(size.QuadPart));
    for (size_t done = 0; done < bytes->size();) {
        DWORD read = 0;
        const auto part = static_cast<DWORD>(std::min<size_t>(bytes->size() - done, 1u << 30));
        ThrowLastErrorIf(!ReadFile(file.handle, bytes->data() + done, part, &read, nullptr),
                         L"The file cannot be read");
        if (read == 0) Throw(E_FAIL, L"The file ends too early");
        done += read;
    }
    return bytes;
}

}  // namespace qz::sample
