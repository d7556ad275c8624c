// A library that goes must not leave its window class behind: the class would call code that is gone.
#include "tests/module/loaded_module.h"
#include "tests/support/control_site.h"

#include "generated/qzVandraExt.h"

#include <gtest/gtest.h>

#include <optional>

namespace qz {
namespace {

constexpr wchar_t className[] = L"qzVandraExt.Window";

bool HasClass(HINSTANCE module) {
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    return GetClassInfoExW(module, className, &description) != FALSE;
}

/// Shows a pane of the module in a window and takes it away.
void ShowPane(const LoadedModule& module) {
    const HWND window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 100, 100, nullptr,
                                        nullptr, nullptr, nullptr);
    const auto site = MakeObject<ControlSite>(window);
    ComPtr<IOleObject> pane;
    module.Make(CLSID_qzThumbnailCtrl, pane);
    ASSERT_EQ(pane->SetClientSite(site->Client()), S_OK);
    EXPECT_EQ(pane->DoVerb(OLEIVERB_UIACTIVATE, nullptr, site->Client(), 0, window, &site->position), S_OK);
    EXPECT_NE(FindWindowExW(window, nullptr, className, nullptr), nullptr);
    EXPECT_EQ(pane->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_EQ(pane->SetClientSite(nullptr), S_OK);
    DestroyWindow(window);
}

TEST(ModuleUnload, WindowClassGoesWithTheModuleAndComesAgain) {
    for (int round = 0; round < 2; ++round) {
        std::optional<LoadedModule> module(std::in_place);
        const HMODULE handle = GetModuleHandleW(L"qzVandraExt.dll");
        ASSERT_TRUE(handle);
        ShowPane(*module);
        EXPECT_TRUE(HasClass(handle));
        EXPECT_EQ(module->CanUnloadNow(), S_OK);
        module.reset();
        CoFreeUnusedLibrariesEx(0, 0);
        if (GetModuleHandleW(L"qzVandraExt.dll")) GTEST_SKIP() << "somebody else keeps the module loaded";
        EXPECT_FALSE(HasClass(handle));
    }
}

}  // namespace
}  // namespace qz
