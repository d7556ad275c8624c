// The classes of the module, as they present themselves to those who look them up. Registration and the
// registration-free manifest are made from this one table.
#pragma once

#include <span>

namespace qz {

/// One class. Texts may hold "%QZ_PROGID_VERSTR%". Containers look classes up by these very texts, irregular
/// letter case and names included: none of them may be "corrected".
struct ClassRow {
    const wchar_t* name;
    const wchar_t* classId;
    const wchar_t* interfaceName;
    const wchar_t* interfaceId;
    const wchar_t* progIdKey;                 // the key of the version-independent ProgID
    const wchar_t* versionedKey;              // the key of the versioned ProgID; null: there is none
    const wchar_t* versionIndependentProgId;  // what the class id names as such; need not be a key
    const wchar_t* threadingModel;
    bool control;
    bool served;  // the module makes objects of this class
};

/// The module's application id, which is also the id of its type library.
inline constexpr const wchar_t* applicationId = L"{1D2EC6D1-E2F3-455F-83E7-9AE07050D20D}";
inline constexpr const wchar_t* typeLibraryId = applicationId;

/// The version of the type library and of every class, and the version text of the ProgIDs.
inline constexpr const wchar_t* moduleVersion = L"6.5";
inline constexpr const wchar_t* progIdVersion = L"1";

/// Every class of the module, served or not.
std::span<const ClassRow> ClassTable();

}  // namespace qz
