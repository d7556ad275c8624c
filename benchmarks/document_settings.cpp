#include "benchmarks/subjects.h"

#include "com/error.h"
#include "com/text.h"
#include "res/dialog_ids.h"
#include "sample/host/reference_host.h"
#include "tests/module/loaded_module.h"
#include "tests/properties/object_chain.h"

#include "generated/qzVandraExt.h"

#include <commctrl.h>
#include <comdef.h>

#include <string>
#include <vector>

namespace qz::bench {

namespace {

struct Size {
    int pages;
    int fonts;
};

constexpr Size longDocument{25'000, 20'000};
constexpr Size emptyDocument{1, 0};

/// A host with a document of empty pages.
struct DocumentOf {
    explicit DocumentOf(Size size) {
        ThrowIfFailed(host->NewDocument(size.pages, 12240, 15840));
        std::vector<ComPtr<IDispatch>> fonts;
        for (int i = 0; i < size.fonts; ++i) fonts.push_back(MakeFont(std::to_wstring(i)));
        ThrowIfFailed(host->OverrideAttribute(document.Get(), Bstr(L"Fonts").Get(), ObjectArray(fonts)));
    }

    ComPtr<IReferenceHost> host = MakeObject<sample::MemoryHost>();
    Bstr document{L"Document"};

  private:
    ComPtr<IDispatch> MakeFont(const std::wstring& number) {
        ComPtr<IDispatch> font;
        ThrowIfFailed(host->CreateObject(53, Bstr(L"Font" + number).Get(), &font));
        const Bstr path(L"Objects[Font" + number + L"]"), empty(L"");
        const auto add = [&](const wchar_t* name, long type, const _variant_t& value) {
            ThrowIfFailed(host->AddAttribute(path.Get(), Bstr(name).Get(), '*', 0, type, empty.Get(),
                                             empty.Get(), value));
        };
        add(L"FontName", 14, (L"Some family, style " + number).c_str());
        add(L"FontType", 14, L"TrueType");
        add(L"Embedding", 3, 2L);
        add(L"Encoding", 14, L"Identity-H");
        return font;
    }
};

/// The readings that showing the settings cannot do without, their texts made beforehand.
class BareReads {
  public:
    explicit BareReads(Size size) : from_(size) {}

    void Read() {
        ComPtr<IDispatch> document;
        ThrowIfFailed(from_.host->GetObjectByPath(from_.document.Get(), &document));
        for (const Bstr& name : ofDocument_) AttributeOf(document.Get(), name);
        const _variant_t fonts = AttributeOf(document.Get(), fonts_);
        for (const _variant_t& font : ElementsOf(fonts)) {
            for (const Bstr& name : ofFonts_) AttributeOf(font.pdispVal, name);
        }
    }

  private:
    static _variant_t AttributeOf(IDispatch* object, const Bstr& name) {
        static const DISPID id = [object] {
            DISPID found = 0;
            LPOLESTR names = const_cast<LPOLESTR>(L"Attribute");  // only reads it
            ThrowIfFailed(object->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &found));
            return found;
        }();
        VARIANT argument{};
        argument.vt = VT_BSTR;
        argument.bstrVal = name.Get();
        DISPPARAMS parameters{&argument, nullptr, 1, 0};
        _variant_t value;
        ThrowIfFailed(object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT,
                                     DISPATCH_PROPERTYGET | DISPATCH_METHOD, &parameters, &value, nullptr,
                                     nullptr));
        return value;
    }
    static std::vector<Bstr> Texts(std::initializer_list<const wchar_t*> names) {
        std::vector<Bstr> texts;
        for (const wchar_t* name : names) texts.emplace_back(name);
        return texts;
    }

    DocumentOf from_;
    Bstr fonts_{L"Fonts"};
    std::vector<Bstr> ofDocument_ =
        Texts({L"Title",           L"Subject",   L"Author",        L"Creator",      L"Keywords",
               L"Producer",        L"Security",  L"OwnerPassword", L"UserPassword", L"Permissions",
               L"MeasurementUnit", L"Landscape", L"PaperSize",     L"Width",        L"Length",
               L"PaperBin",        L"TopMargin", L"BottomMargin",  L"LeftMargin",   L"RightMargin"});
    std::vector<Bstr> ofFonts_ = Texts({L"FontName", L"FontType", L"Embedding", L"Encoding"});
};

/// A user who opens the settings and cancels them as soon as they are there.
class SettingsDialog {
  public:
    explicit SettingsDialog(Size size) : fonts_(size.fonts), from_(size) {
        ComPtr<IClassFactory> factory;
        ThrowIfFailed(module_.GetClassObject(CLSID_qzDocSettingsDlg, IID_PPV_ARGS(&factory)));
        ThrowIfFailed(factory->CreateInstance(nullptr, IID_PPV_ARGS(&dialog_)));
        ThrowIfFailed(dialog_->Initialize(from_.host.Get()));
    }

    /// A time is worth nothing when the work was not done.
    void Open() {
        rows_ = 0;
        // The dialog's own message loop is the first to handle it.
        if (!PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0)) Throw(E_FAIL);
        const HHOOK hook = SetWindowsHookExW(WH_GETMESSAGE, &Cancel, nullptr, GetCurrentThreadId());
        const HRESULT result = dialog_->DoModal(_variant_t(0L));
        UnhookWindowsHookEx(hook);
        ThrowIfFailed(result);
        if (rows_ != fonts_) Throw(E_UNEXPECTED, L"The fonts are not listed");
    }

  private:
    static LRESULT CALLBACK Cancel(int code, WPARAM wParam, LPARAM lParam) {
        HWND window = nullptr;
        do {
            window = FindWindowExW(nullptr, window, L"#32770", nullptr);
        } while (window && !(GetDlgItem(window, QZ_DOCUMENT_TABS) && IsWindowVisible(window)));
        for (HWND tab = GetWindow(window, GW_CHILD); tab; tab = GetWindow(tab, GW_HWNDNEXT)) {
            const HWND list = GetDlgItem(tab, QZ_FONTS_LIST);
            if (list) rows_ = SendMessageW(list, LVM_GETITEMCOUNT, 0, 0);
        }
        SendMessageW(window, WM_COMMAND, IDCANCEL, 0);
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static inline LRESULT rows_ = 0;
    int fonts_;
    LoadedModule module_;
    DocumentOf from_;
    ComPtr<IqzDocSettingsDlg> dialog_;
};

}  // namespace

/// The dialog itself costs the same for every document, most of it the system's own making of its controls:
/// what counts is what the document adds.
void MeasureDocumentSettings(Report& report) {
    SettingsDialog dialog(longDocument), emptyDialog(emptyDocument);
    BareReads bare(longDocument), emptyBare(emptyDocument);
    const Pair opening = MeasureBoth([&] { dialog.Open(); }, [&] { emptyDialog.Open(); });
    const Pair reading = MeasureBoth([&] { bare.Read(); }, [&] { emptyBare.Read(); });
    report.AddTime("what 25,000 pages and 20,000 fonts add to opening the settings to the bare reads",
                   {opening.measured - opening.reference, reading.measured - reading.reference}, 2.0);
}

}  // namespace qz::bench
