#include "dialogs/grid/grid_units_dlg.h"

#include "dialogs/grid/grid_steps.h"
#include "host/host_language.h"
#include "res/dialog_ids.h"
#include "res/strings.h"
#include "res/text_ids.h"
#include "ui/dialog.h"
#include "ui/text_edit.h"

#include <commctrl.h>

namespace qz {

namespace {

constexpr int mostSteps = 32767;  // of the arrows; more can be typed
constexpr std::size_t longestSteps = 32;

struct UnitEntry {
    GridUnit unit;
    unsigned textId;
};

constexpr UnitEntry units[] = {
    {GridUnit::Millimeters, QZ_TEXT_MILLIMETRES},
    {GridUnit::Inches, QZ_TEXT_INCHES},
    {GridUnit::Twips, QZ_TEXT_TWIPS},
};

class GridDialog final : public Dialog {
  public:
    GridDialog(long& steps, Language language) noexcept
        : Dialog(QZ_DIALOG_GRID_UNITS, language), steps_(steps) {}

  private:
    void OnInit() override {
        SetItemText(QZ_GRID_STEPS, std::to_wstring(steps_));
        for (const UnitEntry& entry : units) AppendUnit(entry);
        SendItem(QZ_GRID_SPIN, UDM_SETRANGE32, 0, mostSteps);
    }

    /// The number shown is in twips, and so the list says.
    void AppendUnit(const UnitEntry& entry) const {
        const std::wstring text = LoadText(TextLanguage(), entry.textId);
        const LRESULT at = SendItem(QZ_GRID_UNIT, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
        if (at < 0) Throw(E_OUTOFMEMORY, L"The list of units takes no more");
        SendItem(QZ_GRID_UNIT, CB_SETITEMDATA, static_cast<WPARAM>(at), static_cast<LPARAM>(entry.unit));
        if (entry.unit == GridUnit::Twips) SendItem(QZ_GRID_UNIT, CB_SETCURSEL, static_cast<WPARAM>(at));
    }

    bool OnCommand(int id, int) override {
        if (id != IDOK && id != IDCANCEL) return false;
        if (id == IDOK) steps_ = Entered();
        EndModal(id);
        return true;
    }

    long Entered() const {
        const std::int32_t steps = StepsOf(ItemText(QZ_GRID_STEPS).substr(0, longestSteps));
        const LRESULT chosen = SendItem(QZ_GRID_UNIT, CB_GETCURSEL);
        if (chosen < 0) return steps;
        const LRESULT code = SendItem(QZ_GRID_UNIT, CB_GETITEMDATA, static_cast<WPARAM>(chosen));
        return StepsInTwips(steps, static_cast<GridUnit>(code));
    }

    long& steps_;
};

}  // namespace

STDMETHODIMP GridUnitsDlg::DoModal() {
    const ComPtr<IUnknown> alive = Identity();
    return Guard(__uuidof(IqzGridUnitsDlg), [&] {
        RegisterTextEdits();
        const Language language = LastHostLanguage().value_or(LanguageFromId(GetUserDefaultUILanguage()));
        GridDialog dialog(steps_, language);
        dialog.RunModal(GetActiveWindow());
    });
}

STDMETHODIMP GridUnitsDlg::get_GridSteps(long* pVal) {
    return Guard(__uuidof(IqzGridUnitsDlg), [&] {
        RequirePointer(pVal);
        *pVal = steps_;
    });
}

STDMETHODIMP GridUnitsDlg::put_GridSteps(long newVal) {
    steps_ = newVal;
    return S_OK;
}

}  // namespace qz
