#include "dialogs/nup/nup_settings_dlg.h"

#include "dialogs/common/label_mnemonics.h"
#include "dialogs/common/record_dialog.h"
#include "dialogs/nup/nup_papers.h"
#include "dialogs/nup/nup_picture.h"
#include "res/strings.h"
#include "res/text_ids.h"
#include "ui/gdi.h"
#include "ui/platform_geometry.h"
#include "ui/screen.h"
#include "ui/text_edit.h"

#include <commctrl.h>

#include <algorithm>
#include <iterator>

namespace qz {

namespace {

enum class Part { Paper, Pages, Scale };

struct NUpField {
    Part part;
    int control;
    SettingField field;
};

constexpr std::int32_t leastSide = 720, mostSide = 288000;  // twips: half an inch to 200 inches
constexpr std::int32_t mostGap = 28800;
constexpr std::int32_t mostPercent = 1000;

/// The keys of the record that are named more than once.
namespace keys {
constexpr wchar_t predefined[] = L"Dest_PaperSize:Predefined";
constexpr wchar_t userDefined[] = L"Dest_PaperSize:UserDefined";
constexpr wchar_t orientation[] = L"Dest_PaperSize:Orientation";
constexpr wchar_t width[] = L"Dest_PaperSize:Width";
constexpr wchar_t length[] = L"Dest_PaperSize:Length";
constexpr wchar_t rows[] = L"Dest_NUp:Rows";
constexpr wchar_t columns[] = L"Dest_NUp:Columns";
constexpr wchar_t gap[] = L"Dest_NUp:InnerGap";
constexpr wchar_t scale[] = L"Source:Scale";
constexpr wchar_t percent[] = L"Source:ScaleCustomValue";
}  // namespace keys

// clang-format off
constexpr NUpField nUpFields[] = {
    {Part::Paper, QZ_NUP_KEEP_ORIGINAL, {L"Dest_PaperSize:KeepOriginal", FieldKind::Check, QZ_TEXT_NUP_KEEP_ORIGINAL}},
    {Part::Paper, QZ_NUP_WIDTH, {keys::width, FieldKind::Length, QZ_TEXT_NUP_WIDTH, leastSide, mostSide}},
    {Part::Paper, QZ_NUP_LENGTH, {keys::length, FieldKind::Length, QZ_TEXT_NUP_HEIGHT, leastSide, mostSide}},
    {Part::Pages, QZ_NUP_ROWS, {keys::rows, FieldKind::Number, QZ_TEXT_NUP_ROWS, 1, mostNUpRows}},
    {Part::Pages, QZ_NUP_COLUMNS, {keys::columns, FieldKind::Number, QZ_TEXT_NUP_COLUMNS, 1, mostNUpRows}},
    {Part::Pages, QZ_NUP_GAP, {keys::gap, FieldKind::Length, QZ_TEXT_NUP_GAP, 0, mostGap}},
    {Part::Pages, QZ_NUP_COLUMNS_FIRST, {L"Dest_NUp:ColumnsFirst", FieldKind::Check, QZ_TEXT_NUP_COLUMNS_FIRST}},
    {Part::Pages, QZ_NUP_RIGHT_TO_LEFT, {L"Dest_NUp:RightToLeft", FieldKind::Check, QZ_TEXT_NUP_RIGHT_TO_LEFT}},
    {Part::Pages, QZ_NUP_BORDERS, {L"Dest_NUp:DrawBorders", FieldKind::Check, QZ_TEXT_NUP_BORDERS}},
    {Part::Pages, QZ_NUP_PERFORATION, {L"Dest_NUp:DrawPerforationLines", FieldKind::Check, QZ_TEXT_NUP_PERFORATION}},
    {Part::Pages, QZ_NUP_SKIP_CONTENT, {L"Dest_NUp:SkipPageContent", FieldKind::Check, QZ_TEXT_NUP_SKIP_CONTENT}},
    {Part::Scale, QZ_NUP_PERCENT, {keys::percent, FieldKind::Number, QZ_TEXT_NUP_CUSTOM_SCALE, 1, mostPercent}},
};
// clang-format on

constexpr std::int32_t landscape = 1;
constexpr std::int32_t actualSize = 0, customScale = 2;

/// A button that stands for a value of a key.
struct NUpChoice {
    Part part;
    int control;
    const wchar_t* key;
    std::int32_t value;
};

constexpr NUpChoice choices[] = {
    {Part::Paper, QZ_NUP_PORTRAIT, keys::orientation, 0},
    {Part::Paper, QZ_NUP_LANDSCAPE, keys::orientation, landscape},
    {Part::Scale, QZ_NUP_ACTUAL_SIZE, keys::scale, actualSize},
    {Part::Scale, QZ_NUP_FIT, keys::scale, 1},
    {Part::Scale, QZ_NUP_CUSTOM_SCALE, keys::scale, customScale},
};

constexpr int labels[] = {QZ_NUP_KEEP_ORIGINAL, QZ_NUP_PAPER_LABEL,   QZ_NUP_WIDTH_LABEL,
                          QZ_NUP_LENGTH_LABEL,  QZ_NUP_PORTRAIT,      QZ_NUP_LANDSCAPE,
                          QZ_NUP_ROWS_LABEL,    QZ_NUP_COLUMNS_LABEL, QZ_NUP_GAP_LABEL,
                          QZ_NUP_COLUMNS_FIRST, QZ_NUP_RIGHT_TO_LEFT, QZ_NUP_BORDERS,
                          QZ_NUP_PERFORATION,   QZ_NUP_SKIP_CONTENT,  QZ_NUP_ACTUAL_SIZE,
                          QZ_NUP_FIT,           QZ_NUP_CUSTOM_SCALE,  QZ_SETTINGS_DEFAULTS};

constexpr LPARAM customPaper = -1;

class NUpDialog final : public RecordDialog {
  public:
    NUpDialog(zrNUpSettings& record, NUpMode mode, Language language)
        : RecordDialog(QZ_DIALOG_NUP, language), record_(record), mode_(mode) {}

  private:
    bool Offers(Part part) const noexcept {
        if (part == Part::Paper) return mode_ != NUpMode::Printing;
        return part == Part::Pages || mode_ != NUpMode::NewDocument;
    }

    // Opening

    void OnInit() override {
        for (const NUpField& each : nUpFields) {
            if (Offers(each.part)) Controls().Bind(each.field, Item(each.control));
        }
        SendItem(QZ_NUP_ROWS_SPIN, UDM_SETRANGE32, 1, mostNUpRows);
        SendItem(QZ_NUP_COLUMNS_SPIN, UDM_SETRANGE32, 1, mostNUpRows);
        SendItem(QZ_NUP_PERCENT_SPIN, UDM_SETRANGE32, 1, mostPercent);
        Show(record_);
        opened_ = Sheet();
        GiveLabelsMnemonics();
        if (!Offers(Part::Paper)) TakeOut(QZ_NUP_PAPER_GROUP, QZ_NUP_PAGES_GROUP);
        if (!Offers(Part::Scale)) TakeOut(QZ_NUP_SCALE_GROUP, QZ_SETTINGS_DEFAULTS);
    }

    void GiveLabelsMnemonics() const {
        std::vector<HWND> windows;
        for (const int label : labels) windows.push_back(Item(label));
        GiveMnemonics(windows);
    }

    /// Hides a group; what is below it, from the control `next` on, moves up.
    void TakeOut(int group, int next) const noexcept {
        const RECT gone = ItemBounds(group);
        const LONG height = ItemBounds(next).top - gone.top;
        for (HWND child = GetWindow(Handle(), GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
            MoveForGap(child, gone, height);
        }
        RECT window{};
        GetWindowRect(Handle(), &window);
        SetWindowPos(Handle(), nullptr, 0, 0, window.right - window.left, window.bottom - window.top - height,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }

    void MoveForGap(HWND child, const RECT& gone, LONG height) const noexcept {
        const int id = GetDlgCtrlID(child);
        RECT bounds = ItemBounds(id);
        if (id == QZ_NUP_PICTURE)
            bounds.bottom -= height;
        else if (bounds.top >= gone.bottom)
            OffsetRect(&bounds, 0, -height);
        else if (bounds.top >= gone.top && bounds.left < gone.right)
            ShowChild(child, false);
        SetWindowPos(child, nullptr, bounds.left, bounds.top, bounds.right - bounds.left,
                     bounds.bottom - bounds.top, SWP_NOZORDER | SWP_NOACTIVATE);
    }

    void Show(zrNUpSettings& record) {
        Controls().Show(record);
        for (const NUpChoice& choice : choices) {
            const bool chosen = record.GetInt(choice.key) == choice.value;
            SendItem(choice.control, BM_SETCHECK, chosen ? BST_CHECKED : BST_UNCHECKED);
        }
        ListPapers(record);
        OnChange();
    }

    void ListPapers(zrNUpSettings& record) const {
        const auto known = static_cast<std::int32_t>(std::size(nupPapers));
        const std::int32_t chosen = record.GetInt(keys::predefined).value_or(0);
        SendItem(QZ_NUP_PAPER, CB_RESETCONTENT);
        for (std::int32_t paper = 0; paper < known; ++paper) AppendPaper(nupPapers[paper].name, paper);
        AppendPaper(LoadText(TextLanguage(), QZ_TEXT_NUP_CUSTOM_SIZE), customPaper);
        const bool custom = record.GetBool(keys::userDefined).value_or(false);
        if (!custom && (chosen < 0 || chosen >= known)) {
            AppendPaper(
                Filled(LoadText(TextLanguage(), QZ_TEXT_NUP_UNKNOWN_PAPER), {std::to_wstring(chosen)}),
                unknownPaper);
            SendItem(QZ_NUP_PAPER, CB_SETCURSEL, static_cast<WPARAM>(known) + 1);
        } else {
            SendItem(QZ_NUP_PAPER, CB_SETCURSEL, static_cast<WPARAM>(custom ? known : chosen));
        }
    }

    void AppendPaper(const std::wstring& name, LPARAM data) const {
        const LRESULT at = SendItem(QZ_NUP_PAPER, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
        if (at < 0) Throw(E_OUTOFMEMORY, L"The list of papers takes no more");
        SendItem(QZ_NUP_PAPER, CB_SETITEMDATA, static_cast<WPARAM>(at), data);
    }

    // Using

    bool OnNotification(int id, int notification) override {
        if (id == QZ_NUP_PAPER && notification == CBN_SELCHANGE) OnPaperChosen();
        if (notification == BN_CLICKED || notification == EN_CHANGE || notification == CBN_SELCHANGE)
            OnChange();
        return true;
    }

    void ShowDefaults() override {
        zrNUpSettings defaults;
        Show(defaults);
    }

    std::int32_t ChosenPaper() const noexcept {
        const LRESULT at = SendItem(QZ_NUP_PAPER, CB_GETCURSEL);
        return at < 0 ? unknownPaper
                      : static_cast<std::int32_t>(
                            SendItem(QZ_NUP_PAPER, CB_GETITEMDATA, static_cast<WPARAM>(at)));
    }

    void OnPaperChosen() {
        const std::int32_t paper = ChosenPaper();
        if (paper < 0) return;
        Controls().Show(keys::width, nupPapers[paper].size.width);
        Controls().Show(keys::length, nupPapers[paper].size.height);
    }

    bool Checked(int id) const noexcept { return SendItem(id, BM_GETCHECK) == BST_CHECKED; }

    void OnChange() const noexcept {
        const bool paper = !Checked(QZ_NUP_KEEP_ORIGINAL);
        for (const int id : {QZ_NUP_PAPER_LABEL, QZ_NUP_PAPER, QZ_NUP_PORTRAIT, QZ_NUP_LANDSCAPE}) {
            EnableItem(id, paper);
        }
        const bool custom = paper && ChosenPaper() == customPaper;
        for (const int id : {QZ_NUP_WIDTH_LABEL, QZ_NUP_WIDTH, QZ_NUP_LENGTH_LABEL, QZ_NUP_LENGTH}) {
            EnableItem(id, custom);
        }
        EnableItem(QZ_NUP_PERCENT, Checked(QZ_NUP_CUSTOM_SCALE));
        EnableItem(QZ_NUP_PERCENT_SPIN, Checked(QZ_NUP_CUSTOM_SCALE));
        InvalidateRect(Item(QZ_NUP_PICTURE), nullptr, FALSE);
    }

    void Finish() override {
        if (const SettingControls::Bound* const refused = Controls().FirstRefused()) {
            return Controls().Tell(Handle(), TextLanguage(), *refused);
        }
        if (!SheetHasRoom()) {
            if (const SettingControls::Bound* const tooMany = CountOutOfRange()) {
                return Controls().Tell(Handle(), TextLanguage(), *tooMany);
            }
            return TellAboutEntry(Handle(), LoadText(TextLanguage(), QZ_TEXT_NUP_NO_ROOM), Item(QZ_NUP_GAP));
        }
        Controls().Write(record_);
        for (const NUpChoice& choice : choices) {
            if (Offers(choice.part) && Checked(choice.control)) WriteNumber(choice.key, choice.value);
        }
        if (Offers(Part::Paper)) WritePaper();
        EndModal(IDOK);
    }

    void WriteNumber(const wchar_t* key, std::int32_t value) const {
        if (record_.GetInt(key) != value) record_.SetInt(key, value);
    }

    void WritePaper() const {
        const std::int32_t paper = ChosenPaper();
        if (paper == unknownPaper) return;
        if (record_.GetBool(keys::userDefined) != (paper == customPaper)) {
            record_.SetBool(keys::userDefined, paper == customPaper);
        }
        if (paper >= 0) WriteNumber(keys::predefined, paper);
    }

    // The sheet

    /// A number as it stands in the dialog, or in the record when it is not offered; nothing when the entry
    /// is refused.
    std::optional<std::int32_t> Number(const wchar_t* key) const {
        const SettingControls::Bound* const bound = Controls().Find(key);
        if (!bound) return record_.GetInt(key);
        const std::optional<FieldValue> value = Controls().Value(*bound);
        return value ? std::optional(std::get<std::int32_t>(*value)) : std::nullopt;
    }

    /// What a button that is set stands for, or what the record has when the buttons are not offered; -1:
    /// none.
    std::int32_t Choice(const wchar_t* key) const {
        for (const NUpChoice& each : choices) {
            if (std::wstring_view(each.key) != key) continue;
            if (!Offers(each.part)) return record_.GetInt(key).value_or(-1);
            if (Checked(each.control)) return each.value;
        }
        return -1;
    }

    /// Nothing when an entry is refused; sheets of the pages' own size are drawn as upright paper.
    std::optional<NUpSheet> SheetPaper() const {
        NUpSheet sheet;
        if (Checked(QZ_NUP_KEEP_ORIGINAL)) return sheet;
        const auto wide = Number(keys::width), high = Number(keys::length);
        if (!wide || !high) return std::nullopt;
        sheet.paper = {*wide, *high};
        sheet.landscape = Choice(keys::orientation) == landscape;
        return sheet;
    }

    std::optional<NUpSheet> Sheet() const {
        std::optional<NUpSheet> paper = SheetPaper();
        const auto down = Number(keys::rows), across = Number(keys::columns), between = Number(keys::gap);
        if (!paper || !down || !across || !between) return std::nullopt;
        NUpSheet& sheet = *paper;
        sheet.rows = *down;
        sheet.columns = *across;
        sheet.gap = *between;
        sheet.columnsFirst = Checked(QZ_NUP_COLUMNS_FIRST);
        sheet.rightToLeft = Checked(QZ_NUP_RIGHT_TO_LEFT);
        return paper;
    }

    /// True also for a sheet that the user left as it was, and for one that only the printer or the pages
    /// know.
    bool SheetHasRoom() const {
        const std::optional<NUpSheet> sheet = Sheet();
        const bool known = Offers(Part::Paper) && !Checked(QZ_NUP_KEEP_ORIGINAL);
        return !known || sheet == opened_ || !sheet || LayOut(*sheet);
    }

    /// A number of rows or columns that the record had, and that no sheet can have; null when there is none.
    const SettingControls::Bound* CountOutOfRange() const {
        for (const wchar_t* const key : {keys::rows, keys::columns}) {
            const std::int32_t count = Number(key).value_or(0);
            if (count < 1 || count > mostNUpRows) return Controls().Find(key);
        }
        return nullptr;
    }

    std::optional<NUpPicture> Picture() const {
        const std::optional<NUpSheet> sheet = Sheet();
        std::optional<NUpLayout> layout = sheet ? LayOut(*sheet) : std::nullopt;
        if (!layout) return std::nullopt;
        NUpPicture picture{std::move(*layout), sheet->paper, std::nullopt};
        if (Choice(keys::scale) == actualSize) picture.percent = 100;
        if (Choice(keys::scale) == customScale) picture.percent = Number(keys::percent);
        picture.borders = Checked(QZ_NUP_BORDERS);
        picture.perforation = Checked(QZ_NUP_PERFORATION);
        picture.content = !Checked(QZ_NUP_SKIP_CONTENT);
        return picture;
    }

    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_DRAWITEM || wParam != QZ_NUP_PICTURE) return std::nullopt;
        PaintPicture(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    }

    void PaintPicture(const DRAWITEMSTRUCT& item) const {
        if (IsRectEmpty(&item.rcItem)) return;
        const PaintBuffer buffer(item.hDC, item.rcItem);
        FillSolid(buffer.Dc(), item.rcItem, GetSysColor(COLOR_BTNFACE));
        if (const std::optional<NUpPicture> picture = Picture()) {
            PaintNUpPicture(buffer.Dc(), item.rcItem, WindowDpi(Handle()), *picture);
        }
        buffer.Show();
    }

    static constexpr std::int32_t unknownPaper = -2;

    zrNUpSettings& record_;
    NUpMode mode_;
    std::optional<NUpSheet> opened_;  ///< As the record has it.
};

}  // namespace

bool AskForNUpSettings(HWND parent, Language language, NUpMode mode, zrNUpSettings& record) {
    RegisterTextEdits();
    return NUpDialog(record, mode, language).RunModal(parent) == IDOK;
}

}  // namespace qz
