// The dialog of the editing grid, driven through its controls.
#include "com/object.h"
#include "res/dialog_ids.h"
#include "tests/module/loaded_module.h"
#include "tests/support/during_modal.h"
#include "tests/support/host_under_test.h"

#include "generated/qzVandraExt.h"

#include <windows.h>
#include <commctrl.h>
#include <comdef.h>
#include <gtest/gtest.h>

#include <functional>

namespace qz {
namespace {

class GridDialogTest : public ::testing::Test {
  protected:
    GridDialogTest() { grid = Make<IqzGridUnitsDlg>(CLSID_qzGridUnitsDlg); }
    ~GridDialogTest() override {
        grid.Reset();
        EXPECT_EQ(module.CanUnloadNow(), S_OK);
    }

    template <class I>
    ComPtr<I> Make(REFCLSID id) const {
        ComPtr<I> made;
        module.Make(id, made);
        return made;
    }

    static HWND Window() {
        HWND found = nullptr;
        while ((found = FindWindowExW(nullptr, found, L"#32770", nullptr)) &&
               !GetDlgItem(found, QZ_GRID_STEPS)) {
        }
        return found;
    }
    static void Press(int id) { SendDlgItemMessageW(Window(), id, BM_CLICK, 0, 0); }
    /// Enters a step and a unit (a place in the list), presses a button, and gives the step that is kept.
    long Enter(const wchar_t* text, int unit, int button) const {
        const DuringModal during([&] {
            SetDlgItemTextW(Window(), QZ_GRID_STEPS, text);
            SendDlgItemMessageW(Window(), QZ_GRID_UNIT, CB_SETCURSEL, static_cast<WPARAM>(unit), 0);
            Press(button);
        });
        EXPECT_EQ(grid->DoModal(), S_OK);
        long steps = -1;
        EXPECT_EQ(grid->get_GridSteps(&steps), S_OK);
        return steps;
    }

    LoadedModule module;
    ComPtr<IqzGridUnitsDlg> grid;
};

TEST_F(GridDialogTest, SpeaksTheLanguageOfTheHostAttachedLast) {
    const auto hostOf = [](short language) {
        const ComPtr<IReferenceHost> host = MakeHost(1);
        ThrowIfFailed(host->put_LanguageId(language));
        return host;
    };
    const auto caption = [&] {
        wchar_t text[100] = L"";
        const DuringModal during([&] {
            GetWindowTextW(Window(), text, 100);
            Press(IDCANCEL);
        });
        EXPECT_EQ(grid->DoModal(), S_OK);
        return std::wstring(text);
    };
    const auto english = hostOf(0x0409), german = hostOf(0x0C07), french = hostOf(0x040C);
    const auto pane = Make<IqzThumbnailCtrl>(CLSID_qzThumbnailCtrl);
    const auto dialogs = Make<IqzPluginUIDialogs>(CLSID_qzPluginUIDialogs);
    const auto settings = Make<IqzDocSettingsDlg>(CLSID_qzDocSettingsDlg);
    EXPECT_EQ(pane->Initialize(english.Get()), S_OK);
    EXPECT_EQ(caption(), L"Grid Properties");
    EXPECT_EQ(dialogs->put_PDF(german.Get()), S_OK);
    const std::wstring inGerman = caption();
    EXPECT_NE(inGerman, L"Grid Properties");
    EXPECT_EQ(settings->Initialize(french.Get()), S_OK);
    EXPECT_NE(caption(), inGerman);
    EXPECT_EQ(pane->Initialize(german.Get()), S_OK);
    EXPECT_EQ(caption(), inGerman);
    EXPECT_EQ(pane->Reset(), S_OK);
    EXPECT_EQ(dialogs->put_PDF(nullptr), S_OK);
    EXPECT_EQ(caption(), inGerman) << "the language outlives the attachment";
    EXPECT_EQ(pane->Initialize(english.Get()), S_OK);
}

TEST_F(GridDialogTest, KeepsWhatIsEnteredInTwips) {
    constexpr int millimeters = 0, inches = 1, twips = 2;
    EXPECT_EQ(Enter(L"10", millimeters, IDOK), 566);
    EXPECT_EQ(Enter(L"3", inches, IDOK), 4320);
    EXPECT_EQ(Enter(L"99", twips, IDCANCEL), 4320);
    EXPECT_EQ(Enter(L"", twips, IDOK), 0);
    EXPECT_EQ(grid->get_GridSteps(nullptr), E_POINTER);
}

}  // namespace
}  // namespace qz
