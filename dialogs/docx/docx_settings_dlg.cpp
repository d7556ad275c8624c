#include "dialogs/docx/docx_settings_dlg.h"

#include "dialogs/common/label_mnemonics.h"
#include "dialogs/common/record_dialog.h"
#include "dialogs/docx/docx_fields.h"
#include "ui/choose_file.h"
#include "res/strings.h"
#include "res/text_ids.h"
#include "ui/child_window.h"
#include "ui/text_edit.h"

#include <commdlg.h>

#include <algorithm>
#include <array>

namespace qz {

namespace {

// Dialog units.
constexpr int firstColumn = 112, columnStep = 194, firstRow = 8, rowStep = 16;
constexpr int columnWidth = 184, indent = 8, between = 2;
constexpr int labelHeight = 8, labelDrop = 2, checkHeight = 10, checkDrop = 1, entryHeight = 12;

/// The widths of what a row holds.
struct RowWidths {
    int label;
    int entry;
    int button;  ///< 0: none.
};

constexpr RowWidths WidthsOf(FieldKind kind) noexcept {
    switch (kind) {
        case FieldKind::Check:
            return {0, columnWidth, 0};
        case FieldKind::Colour:
        case FieldKind::File:
            return {80, 66, 34};
        case FieldKind::Text:
        case FieldKind::Password:
            return {96, 86, 0};
        default:
            return {114, 68, 0};
    }
}

/// The windows of one field; those that it has not are null.
struct Row {
    const SettingField* field;
    HWND label;
    HWND entry;
    HWND button;
};

class DocxDialog final : public RecordDialog {
  public:
    DocxDialog(zrDocxSettings& record, Language language)
        : RecordDialog(QZ_DIALOG_DOCX, language), record_(record) {}

  private:
    // Opening

    void OnInit() override {
        MakeRows();
        for (const Row& row : rows_) Controls().Bind(*row.field, row.entry);
        Controls().Show(record_);
        for (const DocxPage& page : DocxPages()) {
            const std::wstring title = LoadText(TextLanguage(), page.titleId);
            SendItem(QZ_DOCX_SECTIONS, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(title.c_str()));
        }
        GiveRowsMnemonics();
        ShowPage(0);
        EnableRows();
    }

    void MakeRows() {
        std::array<int, 16> placed{};  // rows of each page
        last_ = Item(QZ_DOCX_SECTIONS);
        for (const SettingField& field : DocxFields()) MakeRow(field, placed.at(DocxPageOf(field))++);
    }

    /// A row's controls follow one another in the order of the Tab key, behind the list of sections.
    void MakeRow(const SettingField& field, int place) {
        const RowWidths widths = WidthsOf(field.kind);
        const int index = static_cast<int>(rows_.size());
        const int inset = DocxGateOf(field) ? indent : 0;
        int left = firstColumn + place / docxRowsInColumn * columnStep;
        const int top = firstRow + place % docxRowsInColumn * rowStep;
        const std::wstring text = LoadText(TextLanguage(), field.textId);
        Row row{&field, nullptr, nullptr, nullptr};
        if (field.kind == FieldKind::Check) {
            row.entry =
                Make(L"BUTTON", text.c_str(), BS_AUTOCHECKBOX | WS_TABSTOP, QZ_DOCX_FIELDS + index,
                     {left + inset, top + checkDrop, left + widths.entry, top + checkDrop + checkHeight});
        } else {
            row.label =
                Make(L"STATIC", text.c_str(), SS_LEFT, -1,
                     {left + inset, top + labelDrop, left + widths.label, top + labelDrop + labelHeight});
            left += widths.label + between;
            const DWORD hidden = field.kind == FieldKind::Password ? ES_PASSWORD : 0;
            row.entry = Make(textEditClass, L"", ES_AUTOHSCROLL | WS_BORDER | WS_TABSTOP | hidden,
                             QZ_DOCX_FIELDS + index, {left, top, left + widths.entry, top + entryHeight});
        }
        if (widths.button > 0) {
            left += widths.entry + between;
            row.button = Make(L"BUTTON", L"...", BS_PUSHBUTTON | WS_TABSTOP, QZ_DOCX_CHOOSERS + index,
                              {left, top, left + widths.button, top + entryHeight});
            NameControl(row.button, LoadText(TextLanguage(), QZ_TEXT_DOCX_CHOOSE));
        }
        rows_.push_back(row);
    }

    /// A hidden control; its place in dialog units.
    HWND Make(const wchar_t* className, const wchar_t* text, DWORD style, int id, RECT place) {
        MapDialogRect(Handle(), &place);
        const HWND made = MakeChild(
            Handle(), {.className = className, .text = text, .style = style, .id = id, .bounds = place});
        SendMessageW(made, WM_SETFONT, static_cast<WPARAM>(SendMessageW(Handle(), WM_GETFONT, 0, 0)), FALSE);
        SetWindowPos(made, last_, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        last_ = made;
        return made;
    }

    void GiveRowsMnemonics() const {
        const HWND always[] = {Item(QZ_DOCX_SECTIONS_LABEL), Item(QZ_SETTINGS_DEFAULTS)};
        const std::wstring taken = GiveMnemonics(always);
        for (std::size_t page = 0; page < DocxPages().size(); ++page) {
            std::vector<HWND> windows;
            for (const Row& row : rows_) {
                if (DocxPageOf(*row.field) != page) continue;
                // A chooser is next to its entry by the Tab key; its button has no room for more than "...".
                windows.push_back(row.label ? row.label : row.entry);
            }
            GiveMnemonics(windows, taken);
        }
    }

    // Using

    bool OnNotification(int id, int notification) override {
        if (id == QZ_DOCX_SECTIONS) {
            if (notification == LBN_SELCHANGE) ShowPage(ChosenPage());
            return true;
        }
        if (notification != BN_CLICKED) return false;
        const auto count = static_cast<int>(rows_.size());
        if (id >= QZ_DOCX_FIELDS && id < QZ_DOCX_FIELDS + count) EnableRows();
        if (id >= QZ_DOCX_CHOOSERS && id < QZ_DOCX_CHOOSERS + count) {
            Choose(rows_[static_cast<std::size_t>(id - QZ_DOCX_CHOOSERS)]);
        }
        return true;
    }

    std::size_t ChosenPage() const noexcept {
        return static_cast<std::size_t>(std::max<LRESULT>(SendItem(QZ_DOCX_SECTIONS, LB_GETCURSEL), 0));
    }

    void ShowPage(std::size_t page) const noexcept {
        SendItem(QZ_DOCX_SECTIONS, LB_SETCURSEL, page);
        for (const Row& row : rows_) {
            const bool shown = DocxPageOf(*row.field) == page;
            for (const HWND window : {row.label, row.entry, row.button}) {
                if (window) ShowChild(window, shown);
            }
        }
    }

    void ShowDefaults() override {
        zrDocxSettings defaults;
        Controls().Show(defaults);
        EnableRows();
    }

    void EnableRows() const noexcept {
        for (const Row& row : rows_) {
            const bool enabled = HasMeaning(*row.field);
            for (const HWND window : {row.label, row.entry, row.button}) {
                if (window) EnableChild(window, enabled);
            }
        }
    }

    /// Whether all checks that a field depends on are set.
    bool HasMeaning(const SettingField& field) const noexcept {
        const SettingField* const gate = DocxGateOf(field);
        if (!gate) return true;
        const SettingControls::Bound* const check = Controls().Find(gate->key);
        return check && SendMessageW(check->control, BM_GETCHECK, 0, 0) == BST_CHECKED && HasMeaning(*gate);
    }

    void Finish() override {
        const SettingControls::Bound* const refused = Controls().FirstRefused();
        if (refused) {
            ShowPage(DocxPageOf(*refused->field));
            return Controls().Tell(Handle(), TextLanguage(), *refused);
        }
        Controls().Write(record_);
        EndModal(IDOK);
    }

    // Choosing

    void Choose(const Row& row) {
        if (row.field->kind == FieldKind::Colour) return ChooseColour(row.entry);
        const std::wstring title = WindowText(Handle());
        std::optional<std::wstring> path;
        const HRESULT asked = Guard(IID_NULL, [&] {
            path = ChooseFile(Handle(), {title, std::wstring(L"*.*\0*.*\0", 8), WindowText(row.entry)});
        });
        if (FAILED(asked))
            MessageBoxW(Handle(), TakeErrorText(asked).c_str(), title.c_str(), MB_OK | MB_ICONWARNING);
        if (path && IsWindow(row.entry)) SetWindowTextW(row.entry, path->c_str());
    }

    void ChooseColour(HWND entry) {
        const auto now = WholeNumberFromText(WindowText(entry));
        CHOOSECOLORW request{};
        request.lStructSize = sizeof request;
        request.hwndOwner = Handle();
        request.rgbResult = static_cast<COLORREF>(now.value_or(0));
        request.lpCustColors = customColours_.data();
        request.Flags = CC_RGBINIT | CC_FULLOPEN;
        if (ChooseColorW(&request) && IsWindow(entry)) {
            SetWindowTextW(entry, std::to_wstring(request.rgbResult).c_str());
        }
    }

    zrDocxSettings& record_;
    std::vector<Row> rows_;  ///< In the order of the fields.
    HWND last_ = nullptr;    ///< In the order of the Tab key, of those made so far.
    std::array<COLORREF, 16> customColours_{};
};

}  // namespace

bool AskForDocxSettings(HWND parent, Language language, zrDocxSettings& record) {
    RegisterTextEdits();
    return DocxDialog(record, language).RunModal(parent) == IDOK;
}

}  // namespace qz
