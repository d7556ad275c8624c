#include "dialogs/document/security_tab.h"

#include "dialogs/common/setting_field.h"
#include "dialogs/document/entered_text.h"
#include "com/text.h"
#include "res/dialog_ids.h"
#include "res/text_ids.h"

#include <commctrl.h>

#include <algorithm>
#include <iterator>

namespace qz {

namespace {

constexpr std::size_t longestPassword = 1024;  // characters

struct LevelEntry {
    std::int32_t level;
    unsigned textId;
};

constexpr LevelEntry levels[] = {{0, QZ_TEXT_LEVEL_NONE}, {40, QZ_TEXT_LEVEL_40}, {128, QZ_TEXT_LEVEL_128}};

struct PermissionBox {
    int id;
    std::int32_t bit;
};

constexpr PermissionBox boxes[] = {{QZ_SECURITY_ALLOW_MODIFYING, allowModifying},
                                   {QZ_SECURITY_ALLOW_PRINTING, allowPrinting},
                                   {QZ_SECURITY_ALLOW_COPYING, allowCopying},
                                   {QZ_SECURITY_ALLOW_ANNOTATING, allowAnnotating}};

}  // namespace

CDocSettingsDlgTab2::CDocSettingsDlgTab2(const SettingsSource& source, Language language) noexcept
    : CDocSettingsDlgTab(QZ_DIALOG_DOCUMENT_SECURITY, source, language) {}

void CDocSettingsDlgTab2::OnInit() {
    for (const LevelEntry& entry : levels) {
        const std::wstring text = Text(entry.textId);
        const LRESULT at =
            SendItem(QZ_SECURITY_LEVEL, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
        if (at < 0) Throw(E_OUTOFMEMORY, L"The list of levels takes no more");
        SendItem(QZ_SECURITY_LEVEL, CB_SETITEMDATA, static_cast<WPARAM>(at), entry.level);
    }
    for (const int id : {QZ_SECURITY_OWNER, QZ_SECURITY_OWNER_CONFIRMATION, QZ_SECURITY_USER,
                         QZ_SECURITY_USER_CONFIRMATION}) {
        SendItem(id, EM_SETLIMITTEXT, longestPassword);
    }
}

// Filling
// ------------------------------------------------------------------------------------------------------

void CDocSettingsDlgTab2::Fill() {
    ShowLevel(LevelOf(ReadNumber(L"Security")));
    const std::wstring owner = ReadText(L"OwnerPassword");
    SetItemText(QZ_SECURITY_OWNER, owner);
    SetItemText(QZ_SECURITY_OWNER_CONFIRMATION, owner);
    shown_ = ShownPasswords();
    const std::wstring user = ReadText(L"UserPassword");
    SetItemText(QZ_SECURITY_USER, user);
    SetItemText(QZ_SECURITY_USER_CONFIRMATION, user);
    shown_ = ShownPasswords();
    const long permissions = ReadNumber(L"Permissions");
    for (const PermissionBox& box : boxes) {
        SendItem(box.id, BM_SETCHECK, (permissions & box.bit) ? BST_CHECKED : BST_UNCHECKED);
    }
}

/// A level that the list does not know has no entry; the hint names it.
void CDocSettingsDlgTab2::ShowLevel(std::int32_t level) const {
    const auto entry = std::ranges::find(levels, level, &LevelEntry::level);
    if (entry != std::end(levels)) {
        SendItem(QZ_SECURITY_LEVEL, CB_SETCURSEL, static_cast<WPARAM>(entry - std::begin(levels)));
    } else {
        SetItemText(QZ_SECURITY_LEVEL_HINT, Filled(Text(QZ_TEXT_LEVEL_UNLISTED), {std::to_wstring(level)}));
    }
}

CDocSettingsDlgTab2::Passwords CDocSettingsDlgTab2::ShownPasswords() const {
    return {ItemText(QZ_SECURITY_OWNER), ItemText(QZ_SECURITY_OWNER_CONFIRMATION), ItemText(QZ_SECURITY_USER),
            ItemText(QZ_SECURITY_USER_CONFIRMATION)};
}

// Writing
// ------------------------------------------------------------------------------------------------------

void CDocSettingsDlgTab2::Write() {
    wrongConfirmation_ = 0;
    levelMissing_ = false;
    refused_ = false;
    const Passwords now = ShownPasswords();
    const std::optional<std::int32_t> level = ChosenLevel();
    const std::int32_t ticked = Ticked();
    const Protection document = ReadProtection();
    const auto entered = [&](std::wstring Passwords::*field, const std::wstring& source) {
        return EnteredText(now.*field, shown_.*field, source, longestPassword);
    };
    Protection wanted{level, entered(&Passwords::owner, document.owner),
                      entered(&Passwords::user, document.user), Granted(document.permissions, ticked)};
    RequireConfirmed(wanted.owner, entered(&Passwords::ownerConfirmation, document.owner),
                     QZ_SECURITY_OWNER_CONFIRMATION);
    RequireConfirmed(wanted.user, entered(&Passwords::userConfirmation, document.user),
                     QZ_SECURITY_USER_CONFIRMATION);
    const auto change = ProtectionToApply(document, wanted);
    if (!change) return;
    levelMissing_ = !change->level;
    if (levelMissing_) Throw(E_INVALIDARG, L"No level of protection is chosen");
    Apply(*change);
    // What the document has from now on; after the protection was removed every entry counts as a new one.
    const bool taken = change->owner == wanted.owner && change->user == wanted.user;
    shown_ = taken ? now : Passwords{};
}

/// They may have changed since the tab was filled.
Protection CDocSettingsDlgTab2::ReadProtection() {
    Protection protection;
    protection.level = LevelOf(ReadNumber(L"Security"));
    protection.owner = ReadText(L"OwnerPassword");
    protection.user = ReadText(L"UserPassword");
    protection.permissions = ReadNumber(L"Permissions");
    return protection;
}

std::optional<std::int32_t> CDocSettingsDlgTab2::ChosenLevel() const noexcept {
    const LRESULT chosen = SendItem(QZ_SECURITY_LEVEL, CB_GETCURSEL);
    if (chosen < 0) return std::nullopt;
    return static_cast<std::int32_t>(
        SendItem(QZ_SECURITY_LEVEL, CB_GETITEMDATA, static_cast<WPARAM>(chosen)));
}

std::int32_t CDocSettingsDlgTab2::Ticked() const noexcept {
    std::int32_t bits = 0;
    for (const PermissionBox& box : boxes) {
        if (SendItem(box.id, BM_GETCHECK) == BST_CHECKED) bits |= box.bit;
    }
    return bits;
}

void CDocSettingsDlgTab2::RequireConfirmed(const std::wstring& password, const std::wstring& confirmation,
                                           int confirmationId) {
    if (password == confirmation) return;
    wrongConfirmation_ = confirmationId;
    Throw(E_INVALIDARG, L"A password differs from its confirmation");
}

void CDocSettingsDlgTab2::Apply(const Protection& protection) {
    LateBoundMember encrypt(protection.level == 128 ? L"Encrypt128" : L"Encrypt");
    refused_ = true;
    encrypt.Call(Source().host.Get(), {TextVariant(protection.owner), TextVariant(protection.user),
                                       _variant_t(static_cast<long>(protection.permissions))});
    refused_ = false;
}

void CDocSettingsDlgTab2::ShowFailure(HRESULT code) {
    if (wrongConfirmation_) {
        MessageBeep(MB_ICONERROR);
        SetFocus(Item(wrongConfirmation_));
        SendItem(wrongConfirmation_, EM_SETSEL, 0, -1);
    } else if (levelMissing_) {
        ShowError(Text(QZ_TEXT_LEVEL_NEEDED));
        if (Handle()) SetFocus(Item(QZ_SECURITY_LEVEL));
    } else if (refused_) {
        ShowError(Text(QZ_TEXT_OWNER_PASSWORD_NEEDED));
    } else {
        CDocSettingsDlgTab::ShowFailure(code);
    }
}

}  // namespace qz
