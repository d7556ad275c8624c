// Whose version of the controls the module's windows are, and that nobody else gets it. The test program has
// no manifest; what a library has as resource 2 is in it, so that code of `ui/` finds it here too.
#include "tests/support/control_version.h"
#include "ui/activation.h"
#include "ui/child_window.h"
#include "ui/window.h"

#include <commctrl.h>
#include <gtest/gtest.h>

namespace qz {
namespace {

/// What messages came, and whether one of them came under a context.
struct Heard {
    int messages = 0;
    bool underAContext = false;

    void Note() {
        ++messages;
        underAContext = underAContext || UnderAContext();
    }
};

class HearingParent final : public Window {
  public:
    HearingParent() {
        WindowOptions options;
        options.style = WS_POPUP;
        options.bounds = {0, 0, 200, 200};
        Create(options);
    }
    Heard heard;

  private:
    std::optional<LRESULT> OnMessage(UINT, WPARAM, LPARAM) override {
        heard.Note();
        return std::nullopt;
    }
};

class HearingChild final : public ChildWindow {
  public:
    Heard heard;

  private:
    std::optional<LRESULT> OnMessage(UINT, WPARAM, LPARAM) override {
        heard.Note();
        return std::nullopt;
    }
};

// Those of the window manager, which each version of the library has its own of. Its further classes are on
// Wine those of version 6 for the whole process once that is loaded.
constexpr const wchar_t* classes[] = {WC_BUTTONW, WC_EDITW, WC_LISTBOXW, WC_COMBOBOXW, WC_STATICW};

TEST(ModuleActivationTest, ChildrenAreOfTheModulesVersionAndTheProgramsWindowsAreNot) {
    for (const wchar_t* const name : classes) {
        SCOPED_TRACE(std::string(name, name + wcslen(name)));
        HearingParent parent;
        const int before = parent.heard.messages;
        HearingChild child;
        child.Create(parent.Handle(), {.className = name, .style = WS_VISIBLE, .bounds = {0, 0, 50, 50}});
        EXPECT_TRUE(IsVersion6(child.Handle()));
        EXPECT_GT(parent.heard.messages, before) << "is told of its children";
        EXPECT_FALSE(UnderAContext());

        {  // as the system calls windows that were made so
            const ModuleActivation active;
            EXPECT_TRUE(UnderAContext());
            SendMessageW(child.Handle(), WM_APP, 0, 0);
            SendMessageW(parent.Handle(), WM_APP, 0, 0);
            SetFocus(child.Handle());
        }
        EXPECT_FALSE(UnderAContext());
        EXPECT_GT(child.heard.messages, 0);
        EXPECT_FALSE(child.heard.underAContext);
        EXPECT_FALSE(parent.heard.underAContext);

        const HWND theirs =
            CreateWindowExW(0, name, L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
        EXPECT_FALSE(IsVersion6(theirs));
        DestroyWindow(theirs);
    }
}

TEST(ModuleActivationTest, GoesWithAnException) {
    HearingParent parent;
    HearingChild child;
    EXPECT_THROW(child.Create(parent.Handle(), {.className = L"no such class"}), ComError);
    EXPECT_FALSE(UnderAContext());
}

/// A program may have its own reasons for a context, such as classes without registration.
TEST(ModuleActivationTest, TheContextOfWhoHadTheWindowMadeIsKept) {
    ModuleActivation standsForTheirs;
    HearingParent parent;
    SendMessageW(parent.Handle(), WM_APP, 0, 0);
    EXPECT_TRUE(parent.heard.underAContext);
}

}  // namespace
}  // namespace qz
