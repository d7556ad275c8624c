#include "dialogs/document/page_setup_tab.h"

#include "host/attributes.h"
#include "res/dialog_ids.h"
#include "res/text_ids.h"

#include <atomic>

namespace qz {

namespace {

struct SizeControl {
    SetupPlace place;
    int id;
};

constexpr SizeControl sizeControls[] = {
    {WidthPlace, QZ_SETUP_WIDTH},      {LengthPlace, QZ_SETUP_LENGTH},
    {TopPlace, QZ_SETUP_MARGIN_TOP},   {BottomPlace, QZ_SETUP_MARGIN_BOTTOM},
    {LeftPlace, QZ_SETUP_MARGIN_LEFT}, {RightPlace, QZ_SETUP_MARGIN_RIGHT},
};

struct UnitTexts {
    unsigned unit;
    unsigned margins;
};

constexpr std::size_t longestSize = 1024;  // characters

/// What was chosen last, in whatever document.
std::atomic<PageScope> lastScope = PageScope::All;

UnitTexts TextsOf(SizeUnit unit) noexcept {
    switch (unit) {
        case SizeUnit::TenthsOfMillimeters:
            return {QZ_TEXT_UNIT_MM, QZ_TEXT_MARGINS_MM};
        case SizeUnit::Inches:
            return {QZ_TEXT_UNIT_INCHES, QZ_TEXT_MARGINS_INCHES};
        default:
            return {QZ_TEXT_UNIT_TWIPS, QZ_TEXT_MARGINS_TWIPS};
    }
}

int ButtonOf(PageScope scope) noexcept { return QZ_SETUP_SCOPE_ALL + static_cast<int>(scope); }

_variant_t ToVariant(std::int32_t value, SetupType type) {
    switch (type) {
        case SetupType::Boolean:
            return _variant_t(value != 0);
        case SetupType::Short:
            // What the document had, and does not fit, goes back as it is.
            if (static_cast<short>(value) == value) return _variant_t(static_cast<short>(value));
            break;
        case SetupType::Long:
            break;
    }
    return _variant_t(static_cast<long>(value));
}

}  // namespace

CDocSettingsDlgTab3::CDocSettingsDlgTab3(const SettingsSource& source, Language language) noexcept
    : CDocSettingsDlgTab(QZ_DIALOG_PAGE_SETUP, source, language) {}

void CDocSettingsDlgTab3::OnInit() {
    AppendTexts(QZ_SETUP_PAPER, QZ_TEXT_PAPER_1, paperCount);
    AppendText(QZ_SETUP_PAPER, QZ_TEXT_CUSTOM_SIZE);
    AppendTexts(QZ_SETUP_BIN, QZ_TEXT_BIN_1, binCount);
    for (const SizeControl& control : sizeControls) SendItem(control.id, EM_SETLIMITTEXT, longestSize);
    shownScope_ = lastScope;
    SendItem(ButtonOf(shownScope_), BM_SETCHECK, BST_CHECKED);
    ShowSetup();
}

void CDocSettingsDlgTab3::AppendTexts(int list, unsigned firstTextId, int count) const {
    for (int i = 0; i < count; ++i) AppendText(list, firstTextId + static_cast<unsigned>(i));
}

void CDocSettingsDlgTab3::AppendText(int list, unsigned textId) const {
    const std::wstring text = Text(textId);
    if (SendItem(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str())) < 0) {
        Throw(E_OUTOFMEMORY, L"A list of the page setup takes no more");
    }
}

// Filling
// ------------------------------------------------------------------------------------------------------

/// When a value cannot be read, those before it are shown all the same.
void CDocSettingsDlgTab3::Fill() {
    SizeUnit unit = SizeUnit::Twips;
    SetupValues values;
    try {
        ReadSetup(unit, values);
    } catch (...) {
        setup_ = PageSetup(unit, values);
        ShowSetup();
        throw;
    }
    setup_ = PageSetup(unit, values);
    ShowSetup();
}

void CDocSettingsDlgTab3::ReadSetup(SizeUnit& unit, SetupValues& values) {
    unit = static_cast<SizeUnit>(ReadNumber(L"MeasurementUnit"));
    for (std::size_t place = 0; place < SetupPlaceCount; ++place) {
        values[place] = ReadNumber(setupAttributes[place].name);
    }
}

void CDocSettingsDlgTab3::ShowSetup() const {
    const SetupEntries& shown = setup_.Shown();
    ShowUnit();
    SendItem(QZ_SETUP_LANDSCAPE, BM_SETCHECK, shown.landscape ? BST_CHECKED : BST_UNCHECKED);
    const int paper = shown.paper ? shown.paper - 1 : paperCount;
    SendItem(QZ_SETUP_PAPER, CB_SETCURSEL, static_cast<WPARAM>(paper));
    SendItem(QZ_SETUP_BIN, CB_SETCURSEL, static_cast<WPARAM>(shown.bin - 1));
    ShowSizes(false);
    ShowSizes(true);
    EnableSizes();
}

void CDocSettingsDlgTab3::ShowUnit() const {
    const UnitTexts texts = TextsOf(setup_.Unit());
    SetItemText(QZ_SETUP_UNIT, Text(texts.unit));
    SetItemText(QZ_SETUP_MARGINS, Text(texts.margins));
}

void CDocSettingsDlgTab3::ShowSizes(bool margins) const {
    for (const SizeControl& control : sizeControls) {
        const bool margin = control.place >= TopPlace;
        if (margin == margins) SetItemText(control.id, setup_.Shown().sizes[control.place]);
    }
}

/// The size of a paper of the list cannot be edited.
void CDocSettingsDlgTab3::EnableSizes() const noexcept {
    const bool custom = ChosenPaper() == 0;
    EnableItem(QZ_SETUP_WIDTH, custom);
    EnableItem(QZ_SETUP_LENGTH, custom);
}

// What the user does
// ------------------------------------------------------------------------------------------------------

bool CDocSettingsDlgTab3::OnCommand(int id, int notification) {
    const bool list = id == QZ_SETUP_PAPER || id == QZ_SETUP_BIN;
    const bool chosen = list && notification == CBN_SELCHANGE;
    touched_ |= chosen || (id == QZ_SETUP_LANDSCAPE && notification == BN_CLICKED);
    if (id == QZ_SETUP_PAPER && chosen) OnPaperChosen();
    return chosen;
}

void CDocSettingsDlgTab3::OnPaperChosen() {
    const int paper = ChosenPaper();
    setup_.ChoosePaper(paper);
    if (paper != 0) ShowSizes(false);
    EnableSizes();
}

int CDocSettingsDlgTab3::ChosenPaper() const noexcept {
    const LRESULT place = SendItem(QZ_SETUP_PAPER, CB_GETCURSEL);
    return place >= 0 && place < paperCount ? static_cast<int>(place) + 1 : 0;
}

PageScope CDocSettingsDlgTab3::ChosenScope() const noexcept {
    for (const PageScope scope : {PageScope::Current, PageScope::FromCurrentOn}) {
        if (SendItem(ButtonOf(scope), BM_GETCHECK) == BST_CHECKED) return scope;
    }
    return PageScope::All;
}

// Writing
// ------------------------------------------------------------------------------------------------------

SetupEntries CDocSettingsDlgTab3::Entries() const {
    SetupEntries entries;
    entries.landscape = SendItem(QZ_SETUP_LANDSCAPE, BM_GETCHECK) == BST_CHECKED;
    entries.paper = ChosenPaper();
    entries.bin = static_cast<int>(SendItem(QZ_SETUP_BIN, CB_GETCURSEL)) + 1;
    for (const SizeControl& control : sizeControls) {
        entries.sizes[control.place] = ItemText(control.id).substr(0, longestSize);
    }
    return entries;
}

/// Writes all or nothing: values that nobody touched would give all pages the size of the first.
void CDocSettingsDlgTab3::Write() {
    const SetupEntries entries = Entries();
    touched_ |= setup_.Edited(entries) || ChosenScope() != shownScope_;
    if (!touched_) return;
    const SetupValues written = setup_.Written(entries);
    lastScope = ChosenScope();
    ScopedWriter writer(Source().host.Get(), Source().document.Get(), Objects(), lastScope);
    for (std::size_t place = 0; place < SetupPlaceCount; ++place) {
        const SetupAttribute& attribute = setupAttributes[place];
        if (written[place]) writer.Write(attribute.name, ToVariant(*written[place], attribute.type));
    }
}

}  // namespace qz
