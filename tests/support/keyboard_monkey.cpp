#include "tests/support/keyboard_monkey.h"

#include "tests/support/crash_guard.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <iterator>

namespace qz {
namespace {

constexpr UINT stepMessage = WM_APP + 1;
constexpr DWORD patience = 30'000;  // milliseconds for one key
constexpr long keysBetweenPauses = 64;

struct Key {
    unsigned weight;
    WPARAM code;
    BYTE modifier = 0;
};

constexpr Key keys[] = {
    {60, VK_TAB},
    {36, VK_TAB, VK_SHIFT},
    {24, VK_DOWN},
    {18, VK_UP},
    {18, VK_LEFT},
    {18, VK_RIGHT},
    {30, VK_SPACE},
    {9, VK_HOME},
    {9, VK_END},
    {9, VK_PRIOR},
    {9, VK_NEXT},
    {9, VK_F4},
    {6, VK_DOWN, VK_MENU},
    {12, VK_TAB, VK_CONTROL},
    {6, VK_NEXT, VK_CONTROL},
    {6, VK_PRIOR, VK_CONTROL},
    {9, VK_DELETE},
    {9, VK_BACK},
    {1, VK_RETURN},
    {1, VK_ESCAPE},
    {3, VK_F10},
};
constexpr unsigned characterWeight = 36, mnemonicWeight = 24;
constexpr wchar_t characters[] = L"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";

long FromEnvironment(const char* name, long otherwise) {
    const char* const text = std::getenv(name);
    const long number = text ? std::atol(text) : 0;
    return number > 0 ? number : otherwise;
}

bool Has(HWND window, LONG style) { return (GetWindowLongW(window, GWL_STYLE) & style) != 0; }
bool Usable(HWND window) { return Has(window, WS_VISIBLE) && !Has(window, WS_DISABLED); }
bool IsEntered(HWND window) { return (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0; }

bool HasStop(HWND parent) {
    for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (Usable(child) && (IsEntered(child) ? HasStop(child) : Has(child, WS_TABSTOP))) return true;
    }
    return false;
}

bool IsDialog(HWND window) {
    return GetClassLongPtrW(window, GCW_ATOM) == reinterpret_cast<ULONG_PTR>(WC_DIALOG);
}

bool IsModules(HWND dialog) {
    const auto module = reinterpret_cast<LONG_PTR>(GetModuleHandleW(L"qzVandraExt.dll"));
    return GetWindowLongPtrW(dialog, GWLP_HINSTANCE) == module;
}

/// All answers that a message box or a chooser of the system may take for "no".
void Dismiss(HWND dialog) {
    for (const int answer : {IDNO, IDCANCEL})
        PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(answer), 0);
}

void HoldDown(BYTE modifier) {
    BYTE state[256] = {};
    if (modifier) state[modifier] = 0x80;
    SetKeyboardState(state);
}

/// Another program may have become the active one.
void ActivateDialog() {
    const auto activate = [](HWND window, LPARAM) -> BOOL {
        const bool open = IsDialog(window) && IsWindowVisible(window) && IsWindowEnabled(window);
        if (open) SetForegroundWindow(window);
        return !open;
    };
    EnumThreadWindows(GetCurrentThreadId(), activate, 0);
}

}  // namespace

KeyboardMonkey::KeyboardMonkey()
    : seed_(static_cast<unsigned>(FromEnvironment("QZ_MONKEY_SEED", 1))),
      keysLeft_(FromEnvironment("QZ_MONKEY_KEYS", 2000)),
      random_(seed_),
      window_(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr)),
      ended_(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
    const HANDLE process = GetCurrentProcess();
    DuplicateHandle(process, GetCurrentThread(), process, &thread_, 0, FALSE, DUPLICATE_SAME_ACCESS);
    watcher_ = CreateThread(nullptr, 0, &Watch, this, 0, nullptr);
}

KeyboardMonkey::~KeyboardMonkey() {
    HoldDown(0);
    DestroyWindow(window_);
    SetEvent(ended_);
    WaitForSingleObject(watcher_, INFINITE);
    for (const HANDLE handle : {watcher_, ended_, thread_}) CloseHandle(handle);
}

/// Ends the program when no key was pressed for a while.
DWORD WINAPI KeyboardMonkey::Watch(void* self) {
    auto& monkey = *static_cast<KeyboardMonkey*>(self);
    for (long before = -1;;) {
        if (WaitForSingleObject(monkey.ended_, patience) == WAIT_OBJECT_0) return 0;
        const long now = monkey.keysLeft_;
        if (now == before) {
            char what[100];
            std::snprintf(what, sizeof what, "the keyboard, with %ld keys left of seed %u", now,
                          monkey.seed_);
            EndStuckProgram(monkey.thread_, what);
        }
        before = now;
    }
}

void KeyboardMonkey::Play(const std::function<void()>& open) {
    Schedule(true);
    while (keysLeft_ > 0) open();
    KillTimer(window_, 1);
}

/// Posted messages come before paints and timers, which get their turn in a pause.
void KeyboardMonkey::Schedule(bool pause) {
    if (pause)
        SetTimer(window_, 1, USER_TIMER_MINIMUM, nullptr);
    else
        PostMessageW(window_, stepMessage, 0, 0);
}

LRESULT CALLBACK KeyboardMonkey::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const self = reinterpret_cast<KeyboardMonkey*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_TIMER) KillTimer(window, 1);
    if (message == WM_TIMER || message == stepMessage) self->Step();
    return DefWindowProcW(window, message, wParam, lParam);
}

void KeyboardMonkey::Step() {
    HoldDown(0);
    if (keysLeft_ <= 0) EndMenu();
    const HWND focus = GetFocus() ? GetFocus() : GetActiveWindow();
    const HWND root = focus ? GetAncestor(focus, GA_ROOT) : nullptr;
    if (!root) ActivateDialog();
    // A modal dialog is shown once the thread has nothing else to do.
    if (!root || !IsDialog(root) || !IsWindowVisible(root)) return Schedule(true);
    if (!IsModules(root) || keysLeft_ <= 0) {
        Dismiss(root);
        return Schedule(true);
    }
    CheckRules(root);
    if (distraction && Random(50) == 0) distraction();
    if (const HWND now = GetFocus()) PressKey(now);
    --keysLeft_;
    Schedule(keysLeft_ % keysBetweenPauses == 0);
}

void KeyboardMonkey::PressKey(HWND focus) {
    unsigned total = characterWeight + mnemonicWeight;
    for (const Key& key : keys) total += key.weight;
    unsigned choice = Random(total);
    Key pressed{0, static_cast<WPARAM>(characters[Random(std::size(characters) - 1)]),
                choice < mnemonicWeight ? BYTE{VK_MENU} : BYTE{0}};
    if (choice >= characterWeight + mnemonicWeight) {
        choice -= characterWeight + mnemonicWeight;
        const Key* key = keys;
        for (; choice >= key->weight; ++key) choice -= key->weight;
        pressed = *key;
    }
    // A dialog that closes too often is hardly ever looked at.
    const int id = GetDlgCtrlID(focus);
    if ((id == IDOK || id == IDCANCEL) && pressed.code == VK_SPACE && Random(8)) pressed.code = VK_TAB;
    HoldDown(pressed.modifier);
    const bool system = pressed.modifier == VK_MENU || pressed.code == VK_F10;
    const LPARAM context = pressed.modifier == VK_MENU ? 1 << 29 : 0;
    PostMessageW(focus, system ? WM_SYSKEYDOWN : WM_KEYDOWN, pressed.code, context | 1);
}

void KeyboardMonkey::CheckRules(HWND root) {
    const auto check = [](HWND window, LPARAM) -> BOOL {
        const bool barren =
            IsEntered(window) && IsWindowVisible(window) && IsWindowEnabled(window) && !HasStop(window);
        EXPECT_FALSE(barren) << "the keyboard finds nothing in window " << window;
        return TRUE;
    };
    EnumChildWindows(root, check, 0);
    const HWND focus = GetFocus();
    EXPECT_TRUE(!focus || IsWindowVisible(focus)) << "the focus is hidden";
    EXPECT_TRUE(!focus || IsWindowEnabled(focus)) << "the focus is disabled";
    if (::testing::Test::HasFailure())
        std::printf("with %ld keys left of seed %u\n", keysLeft_.load(), seed_);
}

}  // namespace qz
