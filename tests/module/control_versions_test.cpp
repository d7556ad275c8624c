// The windows of the built module in a program without a manifest, and that the program keeps its own version
// of the controls meanwhile.
#include "tests/dialogs/record_dialogs.h"
#include "tests/properties/inspector_fixture.h"
#include "tests/support/control_version.h"
#include "tests/support/during_modal.h"
#include "ui/activation.h"
#include "ui/text_edit.h"
#include "tests/support/silent_dispatch.h"

#include <set>

namespace qz {
namespace {

using Names = std::set<std::wstring>;

std::wstring ClassOf(HWND window) {
    wchar_t name[100] = L"";
    GetClassNameW(window, name, 100);
    return name;
}

/// The classes of the system's controls below a window, those marked with "!" that are not of version 6.
Names ControlsBelow(HWND window) {
    Names names;
    const auto note = [](HWND child, LPARAM into) -> BOOL {
        static const Names ours{L"qzVandraExt.Window", L"#32770", L"QZ_COLOR_BOX", L"RichEdit20W"};
        const std::wstring name = ClassOf(child);
        if (!ours.contains(name))
            reinterpret_cast<Names*>(into)->insert((IsVersion6(child) ? L"" : L"!") + name);
        return TRUE;
    };
    EnumChildWindows(window, note, reinterpret_cast<LPARAM>(&names));
    return names;
}

void ExpectVersion6(const Names& controls) {
    for (const std::wstring& name : controls) EXPECT_NE(name[0], L'!') << testing::PrintToString(name);
}

/// The program's own windows made now are what they are without us.
void ExpectTheProgramsVersion() {
    EXPECT_FALSE(UnderAContext());
    const HWND button =
        CreateWindowExW(0, L"BUTTON", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    EXPECT_FALSE(IsVersion6(button));
    DestroyWindow(button);
}

/// Stands for an object of the host's, and looks how it is called.
class LookingObject final : public Object<LookingObject, SilentDispatch> {
  public:
    explicit LookingObject(ComPtr<IDispatch> object) : object_(std::move(object)) {}

    int calls = 0;

    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override {
        return object_->GetIDsOfNames(iid, names, count, locale, ids);
    }
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* error, UINT* argument) override {
        ++calls;
        ExpectTheProgramsVersion();
        return object_->Invoke(id, iid, locale, flags, parameters, result, error, argument);
    }

  private:
    ComPtr<IDispatch> object_;
};

template <class Interface>
ComPtr<Interface> Make(const LoadedModule& module, REFCLSID classId) {
    ComPtr<Interface> made;
    module.Make(classId, made);
    return made;
}

struct PaneCase {
    CLSID classId;
    Names controls;
};

class PaneVersions : public ::testing::TestWithParam<PaneCase> {};

TEST_P(PaneVersions, AreThoseOfTheModulesManifest) {
    const LoadedModule module;
    const auto pane = Make<IUnknown>(module, GetParam().classId);
    {
        const PaneWindow window(pane.Get(), {400, 300});
        EXPECT_EQ(ControlsBelow(window.Window()), GetParam().controls);
        EXPECT_FALSE(IsVersion6(window.Frame()));
        ExpectTheProgramsVersion();
        for (HWND tips = nullptr; (tips = FindWindowExW(nullptr, tips, TOOLTIPS_CLASSW, nullptr));) {
            EXPECT_TRUE(GetWindow(tips, GW_OWNER) != window.Frame() || IsVersion6(tips));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Panes, PaneVersions,
                         ::testing::Values(PaneCase{CLSID_qzBookmarkCtrl, {L"SysTreeView32"}},
                                           PaneCase{CLSID_qzLayersCtrl, {L"SysTreeView32"}},
                                           PaneCase{CLSID_qzStatusCtrl, {L"Button", L"Edit", L"Static"}},
                                           PaneCase{CLSID_qzPropCtrl,
                                                    {L"Button", L"ListBox", L"Static", L"SysTabControl32"}}));

class DialogVersions : public InspectorTest {
  protected:
    ComPtr<LookingObject> object = MakeObject<LookingObject>(Create(typeField, L"F"));
};

TEST_F(DialogVersions, HostsAreCalledUnderTheirOwnWhileADialogIsMadeAndUsed) {
    const auto dialog = Make<IqzPropertiesDlg>(module, CLSID_qzPropertiesDlg);
    ASSERT_EQ(dialog->put_VandraX(host.Get()), S_OK);
    ASSERT_EQ(dialog->put_Object(object.Get()), S_OK);
    object->calls = 0;
    const DuringModal during([&] {
        const HWND window = FindWindowW(WC_DIALOG, nullptr);
        EXPECT_GT(object->calls, 0) << "while the dialog was made";
        ExpectTheProgramsVersion();
        ExpectVersion6(ControlsBelow(window));
        object->calls = 0;
        {
            const ModuleActivation asTheSystemCallsTheDialog;
            const HWND objects = GetDlgItem(window, QZ_PROPERTIES_OBJECTS);
            SendMessageW(window, WM_COMMAND, MAKEWPARAM(QZ_PROPERTIES_OBJECTS, CBN_DROPDOWN),
                         reinterpret_cast<LPARAM>(objects));
            SendMessageW(window, WM_COMMAND, MAKEWPARAM(QZ_PROPERTIES_OBJECTS, CBN_SELCHANGE),
                         reinterpret_cast<LPARAM>(objects));
        }
        SendMessageW(window, WM_COMMAND, IDCANCEL, 0);
    });
    EXPECT_EQ(dialog->DoModal(_variant_t()), S_OK);
    EXPECT_FALSE(UnderAContext());
}

}  // namespace
}  // namespace qz
