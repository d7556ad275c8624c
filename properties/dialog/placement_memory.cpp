#include "properties/dialog/placement_memory.h"

#include "com/error.h"
#include "properties/model/window_placement.h"

#include <cstring>

namespace qz {

namespace {

constexpr wchar_t keyPath[] = L"software\\Tarvel Technologies\\qzPropertiesDlg";

std::optional<std::int32_t> ReadNumber(const RegistryKey& key, const wchar_t* name) {
    const std::optional<RegistryValue> value = key.Value(name);
    if (!value || value->type != REG_DWORD || value->bytes.size() != sizeof(DWORD)) return std::nullopt;
    std::int32_t number = 0;
    std::memcpy(&number, value->bytes.data(), sizeof number);
    return number;
}

void WriteNumber(const RegistryKey& key, const wchar_t* name, std::int32_t number) {
    RegistryValue value{REG_DWORD, std::vector<BYTE>(sizeof number)};
    std::memcpy(value.bytes.data(), &number, sizeof number);
    key.SetValue(name, value);
}

}  // namespace

PlacementMemory::PlacementMemory() {
    Guard(IID_NULL, [this] { key_ = RegistryKey::Create(HKEY_CURRENT_USER, keyPath); });
}

std::optional<Rect> PlacementMemory::Read() const {
    std::optional<Rect> place;
    if (!key_) return place;
    Guard(IID_NULL, [&] {
        place = SavedPlacement(ReadNumber(*key_, L"left"), ReadNumber(*key_, L"right"),
                               ReadNumber(*key_, L"top"), ReadNumber(*key_, L"bottom"));
    });
    return place;
}

void PlacementMemory::Write(const Rect& window) const {
    if (!key_) return;
    Guard(IID_NULL, [&] {
        WriteNumber(*key_, L"left", window.left);
        WriteNumber(*key_, L"right", window.right);
        WriteNumber(*key_, L"top", window.top);
        WriteNumber(*key_, L"bottom", window.bottom);
    });
}

}  // namespace qz
