// The editor of fonts.
#include "properties/editors/make_editor.h"

#include "host/attributes.h"
#include "com/text.h"
#include "host/object_path.h"
#include "properties/editors/font_chooser.h"
#include "properties/model/font_value.h"
#include "properties/model/number_text.h"
#include "properties/model/picker_layouts.h"
#include "res/dialog_ids.h"
#include "ui/platform_geometry.h"
#include "ui/screen.h"
#include "ui/window.h"

#include <algorithm>
#include <array>

namespace qz {

namespace {

constexpr int leastBoldWeight = 600;

bool IsBold(int weight) noexcept { return weight >= leastBoldWeight; }

constexpr std::array markIds = {QZ_EDITOR_BOLD, QZ_EDITOR_ITALIC, QZ_EDITOR_UNDERLINE, QZ_EDITOR_STRIKE_OUT};

std::array<bool, 4> MarksOf(const FontValue& font) noexcept {
    return {IsBold(font.weight), font.italic, font.underline, font.strikeOut};
}

bool IsMark(int id) noexcept { return std::ranges::find(markIds, id) != markIds.end(); }

/// What is no text is no font.
FontValue FontIn(const _variant_t& value) {
    std::wstring text;
    if (FAILED(Guard(IID_NULL, [&] { text = ToText(value); }))) text.clear();
    return FontOf(text);
}

/// Half of the world types a comma.
std::optional<double> TypedSize(std::wstring text) {
    std::ranges::replace(text, L',', L'.');
    return SizeOf(text);
}

bool EqualIgnoringCase(const std::wstring& one, const std::wstring& other) noexcept {
    return CompareStringOrdinal(one.c_str(), -1, other.c_str(), -1, TRUE) == CSTR_EQUAL;
}

/// The distinct families of the document's fonts in their order, as far as the host tells them: the field
/// takes any.
std::vector<std::wstring> DocumentFaces(const EditedAttribute& edited) {
    std::vector<std::wstring> faces;
    const ComPtr<IVandraX> host = edited.host;
    const std::shared_ptr<HostMembers> members = edited.members;
    const HRESULT outcome = Guard(IID_NULL, [&] {
        for (const auto& font : ObjectsOf(ReadAttribute(host.Get(), documentPath, L"Fonts"))) {
            std::wstring face = ToText(members->objects.Attribute(font.Get(), L"BaseName"));
            const bool known = std::ranges::any_of(
                faces, [&](const std::wstring& other) { return EqualIgnoringCase(face, other); });
            if (!face.empty() && !known) faces.push_back(std::move(face));
        }
    });
    if (FAILED(outcome)) ShowErrorInDebugger();
    return faces;
}

/// A font as properties/model/font_value.h packs it into a text. The list offers the faces of the document's
/// fonts; others can be typed or taken from the system's dialog.
///
/// A font is written as a whole. A field that is empty stands for what the inspected object has; of several
/// objects with different fonts too, so that what is entered for them gives all of them its font. The other
/// controls show that as soon as one is touched.
class CValueFontDlg final : public CValueDlg {
  public:
    explicit CValueFontDlg(Language language) noexcept;

    /// Opens the system's dialog, or the list of faces if the focus is there.
    void OpenPicker() override;

  private:
    void OnEditorInit() override;
    void OnSized(SIZE client) override;
    void ShowValue(const _variant_t* value) override;
    std::optional<_variant_t> EnteredValue() const override;
    bool OnEdited(int id, int notification) override;

    void FillFaces();
    /// Shows `font_` in all controls but the one that was just touched, if any.
    void ShowFont(int touched);
    void ShowFace();
    void ShowSize();
    void ShowMark(int id, bool set);
    /// Ends the state in which the controls show nothing.
    void Complete(int touched);

    bool OnFaceEdited(int notification);
    void TakeListedFace();
    void ChooseInSystemDialog();
    FontValue StartOfChoice() const;

    /// What the controls say; nothing when the size is none.
    std::optional<FontValue> Entered() const;
    bool Marked(int id, bool before) const;

    FontValue font_;      ///< Of the inspected object.
    std::wstring face_;   ///< Entered; empty for that of `font_`.
    bool mixed_ = false;  ///< The controls show nothing, as several objects differ.
};

}  // namespace

CValueFontDlg::CValueFontDlg(Language language) noexcept : CValueDlg(QZ_DIALOG_VALUE_FONT, language) {}

// What the controls show
// ------------------------------------------------------------------------------------------------------

void CValueFontDlg::OnEditorInit() {
    SendItem(QZ_EDITOR_FACE, CB_LIMITTEXT, LF_FACESIZE - 1);
    FillFaces();
}

void CValueFontDlg::FillFaces() {
    for (const std::wstring& face : DocumentFaces(Edited())) {
        SendItem(QZ_EDITOR_FACE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(face.c_str()));
    }
}

void CValueFontDlg::OnSized(SIZE client) {
    const int dpi = WindowDpi(Handle());
    const FontPlaces places = ArrangeFontEditor({{client.cx, client.cy}, dpi, Pixels({0, 8}).cy});
    RECT face = ToPlatform(places.face);
    if (!places.face.Empty()) face.bottom += 160 * dpi / 96;  // its list
    PlaceItem(QZ_EDITOR_FACE_LABEL, ToPlatform(places.faceLabel));
    PlaceItem(QZ_EDITOR_FACE, face);
    PlaceItem(QZ_EDITOR_SIZE_LABEL, ToPlatform(places.sizeLabel));
    PlaceItem(QZ_EDITOR_SIZE, ToPlatform(places.size));
    for (std::size_t i = 0; i < markIds.size(); ++i) PlaceItem(markIds[i], ToPlatform(places.marks[i]));
    PlaceItem(QZ_EDITOR_BUTTON, ToPlatform(places.choose));
}

void CValueFontDlg::ShowValue(const _variant_t* value) {
    font_ = FontIn(value ? *value : Edited().members->attributes.Value(Edited().attribute.Get()));
    mixed_ = !value;
    if (value) return ShowFont(0);
    face_.clear();
    SetItemText(QZ_EDITOR_FACE, {});
    SetItemText(QZ_EDITOR_SIZE, {});
    for (const int id : markIds) {
        SendItem(id, BM_SETSTYLE, BS_AUTO3STATE, TRUE);
        SendItem(id, BM_SETCHECK, BST_INDETERMINATE);
    }
}

void CValueFontDlg::Complete(int touched) {
    if (std::exchange(mixed_, false)) ShowFont(touched);
}

void CValueFontDlg::ShowFont(int touched) {
    if (touched != QZ_EDITOR_FACE) ShowFace();
    if (touched != QZ_EDITOR_SIZE) ShowSize();
    const std::array<bool, 4> marks = MarksOf(font_);
    for (std::size_t i = 0; i < marks.size(); ++i) {
        const bool set = markIds[i] == touched ? Marked(touched, false) : marks[i];
        ShowMark(markIds[i], set);
    }
}

void CValueFontDlg::ShowFace() {
    face_ = font_.face;
    WithoutNotifications([this] { SetItemText(QZ_EDITOR_FACE, face_); });
}

void CValueFontDlg::ShowSize() {
    WithoutNotifications([this] { SetItemText(QZ_EDITOR_SIZE, TextOfSize(font_.size)); });
}

void CValueFontDlg::ShowMark(int id, bool set) {
    SendItem(id, BM_SETSTYLE, BS_AUTOCHECKBOX, TRUE);
    SendItem(id, BM_SETCHECK, set ? BST_CHECKED : BST_UNCHECKED);
}

// What was entered
// ------------------------------------------------------------------------------------------------------

std::optional<_variant_t> CValueFontDlg::EnteredValue() const {
    const std::optional<FontValue> font = Entered();
    if (!font) return std::nullopt;
    return _variant_t(Bstr(TextOf(*font)).Get());
}

/// The size and the weight are shown less exactly than they are held: they change only when they are touched.
std::optional<FontValue> CValueFontDlg::Entered() const {
    FontValue font = font_;
    if (!face_.empty()) font.face = face_;
    const std::wstring size = ItemText(QZ_EDITOR_SIZE);
    if (!Trimmed(size).empty() && size != TextOfSize(font_.size)) {
        const std::optional<double> typed = TypedSize(size);
        if (!typed) return std::nullopt;
        font.size = *typed;
    }
    const bool bold = Marked(QZ_EDITOR_BOLD, IsBold(font_.weight));
    if (bold != IsBold(font_.weight)) font.weight = bold ? FontValue::boldWeight : FontValue::normalWeight;
    font.italic = Marked(QZ_EDITOR_ITALIC, font_.italic);
    font.underline = Marked(QZ_EDITOR_UNDERLINE, font_.underline);
    font.strikeOut = Marked(QZ_EDITOR_STRIKE_OUT, font_.strikeOut);
    return font;
}

bool CValueFontDlg::Marked(int id, bool before) const {
    const LRESULT state = SendItem(id, BM_GETCHECK);
    return state == BST_INDETERMINATE ? before : state == BST_CHECKED;
}

bool CValueFontDlg::OnEdited(int id, int notification) {
    if (id == QZ_EDITOR_FACE) return OnFaceEdited(notification);
    if (id == QZ_EDITOR_SIZE && notification == EN_CHANGE) {
        Complete(id);
        WriteLater();
        return true;
    }
    if (notification != BN_CLICKED) return false;
    if (id == QZ_EDITOR_BUTTON) {
        ChooseInSystemDialog();
        return true;
    }
    if (!IsMark(id)) return false;
    Complete(id);
    WriteNow();
    return true;
}

/// An entry is chosen when its list closes over it, or when an arrow key reaches it while the list is closed.
bool CValueFontDlg::OnFaceEdited(int notification) {
    switch (notification) {
        case CBN_EDITCHANGE:
            face_ = Trimmed(ItemText(QZ_EDITOR_FACE));
            Complete(QZ_EDITOR_FACE);
            WriteLater();
            return true;
        case CBN_SELCHANGE:
            if (!SendItem(QZ_EDITOR_FACE, CB_GETDROPPEDSTATE)) TakeListedFace();
            return true;
        case CBN_SELENDOK:
            TakeListedFace();
            return true;
        case CBN_CLOSEUP:
            // Left without a choice: the field may show where the user was in the list.
            WithoutNotifications([this] { SetItemText(QZ_EDITOR_FACE, face_); });
            return true;
        default:
            return false;
    }
}

void CValueFontDlg::TakeListedFace() {
    const LRESULT chosen = SendItem(QZ_EDITOR_FACE, CB_GETCURSEL);
    const LRESULT length = SendItem(QZ_EDITOR_FACE, CB_GETLBTEXTLEN, static_cast<WPARAM>(chosen));
    if (chosen < 0 || length < 0) return;
    std::wstring face(static_cast<std::size_t>(length), L'\0');
    SendItem(QZ_EDITOR_FACE, CB_GETLBTEXT, static_cast<WPARAM>(chosen),
             reinterpret_cast<LPARAM>(face.data()));
    if (face == face_) return;  // told already
    face_ = std::move(face);
    Complete(QZ_EDITOR_FACE);
    WriteNow();
}

// The system's dialog
// ------------------------------------------------------------------------------------------------------

void CValueFontDlg::OpenPicker() {
    if (ReadOnly()) return;
    if (IsChild(Item(QZ_EDITOR_FACE), GetFocus())) {
        SendItem(QZ_EDITOR_FACE, CB_SHOWDROPDOWN, TRUE);
    } else {
        ChooseInSystemDialog();
    }
}

/// What the controls say. Without a face the document's own font, if it has one.
FontValue CValueFontDlg::StartOfChoice() const {
    FontValue start = Entered().value_or(font_);
    if (!start.face.empty()) return start;
    const ComPtr<IVandraX> host = Edited().host;
    const HRESULT outcome =
        Guard(IID_NULL, [&] { start = FontIn(ReadAttribute(host.Get(), documentPath, L"DefaultFont")); });
    if (FAILED(outcome)) ShowErrorInDebugger();
    return start;
}

void CValueFontDlg::ChooseInSystemDialog() {
    const FontValue start = StartOfChoice();
    if (!Handle()) return;
    std::optional<FontValue> chosen;
    Attempt([&] {
        const ChildDialogScope modal(Site());
        if (Handle()) chosen = ChooseSystemFont(GetAncestor(Handle(), GA_ROOT), start);
    });
    if (!chosen || !Handle()) return;
    font_ = *chosen;
    mixed_ = false;
    ShowFont(0);
    WriteNow();
}

ValueDlgPointer MakeFontEditor(const EditorChoice&, Language language) {
    return MakeDialog<CValueFontDlg>(language);
}

}  // namespace qz
