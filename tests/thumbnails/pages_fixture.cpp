#include "pages_fixture.h"

#include "com/safe_array.h"

#include <comdef.h>

namespace qz {

namespace {

constexpr long letterWidth = 12240;
constexpr long letterLength = 15840;

/// Closes the first message box of the thread and keeps its text.
class BoxWatch {
  public:
    BoxWatch() {
        text_.clear();
        hook_ = SetWindowsHookExW(WH_CBT, &Hook, nullptr, GetCurrentThreadId());
    }
    ~BoxWatch() { UnhookWindowsHookEx(hook_); }
    BoxWatch(const BoxWatch&) = delete;
    BoxWatch& operator=(const BoxWatch&) = delete;

    std::wstring Text() const { return text_; }

  private:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam) {
        if (code == HCBT_ACTIVATE) {
            const HWND box = reinterpret_cast<HWND>(wParam);
            wchar_t text[512] = {};
            if (GetDlgItem(box, messageTextId)) {
                GetDlgItemTextW(box, messageTextId, text, 512);
                text_ = text;
                PostMessageW(box, WM_COMMAND, IDOK, 0);
            }
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static constexpr int messageTextId = 0xFFFF;
    static inline std::wstring text_;
    HHOOK hook_;
};

}  // namespace

ComPtr<IReferenceHost> MakeTellingHost(long pages, long first) {
    const ComPtr<IReferenceHost> host = MakeHost(0);
    for (long page = 0; page < pages; ++page) {
        ThrowIfFailed(host->AddPages(1, letterWidth + first + page, letterLength));
    }
    ThrowIfFailed(host->SetCurrentPage(1));
    ThrowIfFailed(host->ClearLog());
    return host;
}

PageList OrderOf(IReferenceHost* host) {
    PageList order;
    long count = 0;
    ThrowIfFailed(host->GetPageCount(&count));
    for (long page = 1; page <= count; ++page) {
        const std::wstring path = L"Pages[" + std::to_wstring(page) + L"]";
        _variant_t width;
        ThrowIfFailed(host->GetObjectAttribute(_bstr_t(path.c_str()), _bstr_t(L"Width"), &width));
        order.push_back(width.lVal - letterWidth);
    }
    return order;
}

PageList SelectedPages(IqzThumbnailCtrl* pane) {
    _variant_t value;
    ThrowIfFailed(pane->get_SelectedPages(&value));
    EXPECT_EQ(value.vt, VT_ARRAY | VT_I4);
    const SafeArrayView<long> view(value.parray);
    return {view.Elements().begin(), view.Elements().end()};
}

HRESULT SelectPages(IqzThumbnailCtrl* pane, std::initializer_list<long> pages) {
    _variant_t value;
    value.parray = MakeLongArray(std::vector<long>(pages)).Detach();
    value.vt = VT_ARRAY | VT_I4;
    return pane->put_SelectedPages(value);
}

PagesTest::PagesTest() : host(MakeTellingHost(pageCount)) {
    Activate();
    ThrowIfFailed(pane->Initialize(host.Get()));
    PumpMessages();
    events->Connect(pane.Get(), DIID__IqzThumbnailCtrlEvents);
    host->ClearLog();
}

PagesTest::~PagesTest() { events->Disconnect(); }

POINT PagesTest::PointOn(long page) const {
    const long index = page - 1;
    return {index % 2 * 95 + 45, index / 2 * 120 + 55 - ScrollPosition()};
}

POINT PagesTest::ScreenPointOn(long page) const {
    POINT point = PointOn(page);
    ClientToScreen(PaneWindow(), &point);
    return point;
}

void PagesTest::Press(long page, WPARAM keys) const {
    const POINT point = PointOn(page);
    SendMessageW(PaneWindow(), WM_LBUTTONDOWN, keys | MK_LBUTTON, MAKELPARAM(point.x, point.y));
}

void PagesTest::Release(long page, WPARAM keys) const {
    const POINT point = PointOn(page);
    SendMessageW(PaneWindow(), WM_LBUTTONUP, keys, MAKELPARAM(point.x, point.y));
}

void PagesTest::Click(long page, WPARAM keys) const {
    Press(page, keys);
    Release(page, keys);
}

void PagesTest::Key(WPARAM key) const { SendMessageW(PaneWindow(), WM_KEYDOWN, key, 1); }

void PagesTest::KeyUp(WPARAM key) const { SendMessageW(PaneWindow(), WM_KEYUP, key, 1); }

void PagesTest::ControlKey(WPARAM key) const {
    Key(VK_CONTROL);
    Key(key);
    KeyUp(VK_CONTROL);
}

long PagesTest::CurrentPage() const {
    long page = 0;
    host->GetCurrentPage(&page);
    return page;
}

std::wstring PagesTest::BoxDuring(const std::function<void()>& action) const {
    const BoxWatch watch;
    action();
    return watch.Text();
}

}  // namespace qz
