#include "benchmarks/subjects.h"

#include "com/error.h"
#include "com/text.h"
#include "sample/host/reference_host.h"
#include "tests/module/loaded_module.h"
#include "tests/support/pane_window.h"

#include "generated/qzVandraExt.h"

#include <commctrl.h>
#include <comdef.h>

#include <optional>
#include <string>

namespace qz::bench {

namespace {

constexpr int attributeCount = 2'000;

/// A host with one object that has many attributes of one category, a text each.
struct Inspected {
    Inspected() {
        ThrowIfFailed(host->NewDocument(1, 12240, 15840));
        const Bstr name(L"Subject");
        ThrowIfFailed(host->CreateObject(6, name.Get(), &object));
        const Bstr path(L"Objects[Subject]"), description(L"One of many"), choices(L"");
        for (int i = 0; i < attributeCount; ++i) {
            const Bstr attribute(L"Attribute " + std::to_wstring(i));
            ThrowIfFailed(host->AddAttribute(path.Get(), attribute.Get(), '*', 0, 14, description.Get(),
                                             choices.Get(), _variant_t(L"text")));
        }
    }

    ComPtr<IReferenceHost> host = MakeObject<sample::MemoryHost>();
    ComPtr<IDispatch> object;
};

/// Many numbers, as a value of the reference host and as the text that shows them.
struct Numbers {
    Numbers() {
        for (int i = 0; i < count; ++i) {
            text += (i == 0 ? L"" : L"\r\n") + std::to_wstring(i * 20);
        }
    }

    static constexpr int count = 2'000;
    std::wstring text;
};

/// The readings and insertions that filling the list cannot do without, into a list that is as visible as
/// ours.
class BareList {
  public:
    BareList()
        : frame_(CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 400, 0, 300, 500, nullptr, nullptr,
                                 nullptr, nullptr)),
          list_(CreateWindowExW(0, L"LISTBOX", L"", listStyle, 0, 0, 280, 200, frame_, nullptr, nullptr,
                                nullptr)) {
        ThrowLastErrorIf(!list_, L"The list cannot be made");
        PumpMessages();
    }
    ~BareList() { DestroyWindow(frame_); }
    BareList(const BareList&) = delete;
    BareList& operator=(const BareList&) = delete;

    void Fill() {
        SendMessageW(list_, WM_SETREDRAW, FALSE, 0);
        SendMessageW(list_, LB_RESETCONTENT, 0, 0);
        const _variant_t attributes = Get(inspected_.object.Get(), L"Attributes");
        const _variant_t enumerator = Invoke(attributes.pdispVal, DISPID_NEWENUM);
        ComPtr<IEnumVARIANT> items;
        ThrowIfFailed(enumerator.punkVal->QueryInterface(IID_PPV_ARGS(&items)));
        for (_variant_t item; items->Next(1, &item, nullptr) == S_OK; item.Clear()) Insert(item.pdispVal);
        SendMessageW(list_, WM_SETREDRAW, TRUE, 0);
    }

  private:
    static constexpr DWORD listStyle =
        WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_BORDER | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;

    void Insert(IDispatch* attribute) {
        if (!category_) {
            category_ = IdOf(attribute, L"Category"), flags_ = IdOf(attribute, L"Flags");
            name_ = IdOf(attribute, L"Name"), index_ = IdOf(attribute, L"Index");
        }
        if (Invoke(attribute, category_).lVal == 0 || (Invoke(attribute, flags_).lVal & 1)) return;
        const _variant_t name = Invoke(attribute, name_);
        const LRESULT entry = SendMessageW(list_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.bstrVal));
        SendMessageW(list_, LB_SETITEMDATA, static_cast<WPARAM>(entry), Invoke(attribute, index_).lVal);
    }

    static DISPID IdOf(IDispatch* object, const wchar_t* name) {
        DISPID id = 0;
        LPOLESTR names = const_cast<LPOLESTR>(name);  // only reads it
        ThrowIfFailed(object->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id));
        return id;
    }
    static _variant_t Invoke(IDispatch* object, DISPID id) {
        DISPPARAMS none{};
        _variant_t result;
        ThrowIfFailed(object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT,
                                     DISPATCH_PROPERTYGET | DISPATCH_METHOD, &none, &result, nullptr,
                                     nullptr));
        return result;
    }
    static _variant_t Get(IDispatch* object, const wchar_t* name) {
        return Invoke(object, IdOf(object, name));
    }

    Inspected inspected_;
    HWND frame_;
    HWND list_;
    DISPID category_ = 0, flags_ = 0, name_ = 0, index_ = 0;
};

/// The inspector with all attributes listed.
class Inspector {
  public:
    Inspector() {
        ComPtr<IClassFactory> factory;
        ThrowIfFailed(module_.GetClassObject(CLSID_qzPropCtrl, IID_PPV_ARGS(&factory)));
        ThrowIfFailed(factory->CreateInstance(nullptr, IID_PPV_ARGS(&pane_)));
        window_.emplace(pane_.Get(), SIZE{300, 500});
        ThrowIfFailed(pane_->put_VandraX(inspected_.host.Get()));
    }
    ~Inspector() {
        window_.reset();
        pane_->put_VandraX(nullptr);
    }
    Inspector(const Inspector&) = delete;
    Inspector& operator=(const Inspector&) = delete;

    /// Gives the object a list of numbers; its editor is the one that Edit opens.
    void AddNumbers(const Numbers& numbers) {
        ThrowIfFailed(inspected_.host->AddAttribute(Bstr(L"Objects[Subject]").Get(), Bstr(L"Numbers").Get(),
                                                    '*', 0, 8195, Bstr(L"A list").Get(), Bstr(L"").Get(),
                                                    _variant_t(numbers.text.c_str())));
        Fill();
    }
    void Edit(const Numbers& numbers) {
        const HWND inner = window_->Child(L"#32770");
        const HWND list = GetDlgItem(inner, listId);
        const LRESULT entry = SendMessageW(list, LB_FINDSTRINGEXACT, 0, reinterpret_cast<LPARAM>(L"Numbers"));
        SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(entry), 0);
        SendMessageW(inner, WM_COMMAND, MAKEWPARAM(listId, LBN_SELCHANGE), reinterpret_cast<LPARAM>(list));
        const HWND field =
            FindWindowExW(FindWindowExW(inner, nullptr, L"#32770", nullptr), nullptr, nullptr, nullptr);
        if (static_cast<std::size_t>(GetWindowTextLengthW(field)) != numbers.text.size()) {
            Throw(E_UNEXPECTED, L"The numbers are not shown");
        }
    }

    /// A time is worth nothing when the work was not done.
    void Fill() {
        ThrowIfFailed(pane_->put_Object(inspected_.object.Get()));
        const HWND inner = window_->Child(L"#32770");
        if (SendDlgItemMessageW(inner, listId, LB_GETCOUNT, 0, 0) < attributeCount) {
            Throw(E_UNEXPECTED, L"The attributes are not listed");
        }
    }

  private:
    static constexpr int listId = 205;

    LoadedModule module_;
    Inspected inspected_;
    ComPtr<IqzPropCtrl> pane_;
    std::optional<PaneWindow> window_;
};

/// The system's field alone: made, given the text, and shown.
class BareField {
  public:
    BareField()
        : frame_(CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 400, 0, 300, 500, nullptr, nullptr,
                                 nullptr, nullptr)) {}
    ~BareField() { DestroyWindow(frame_); }
    BareField(const BareField&) = delete;
    BareField& operator=(const BareField&) = delete;

    void Show(const std::wstring& text) const {
        constexpr DWORD style = WS_CHILD | WS_VISIBLE | ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL |
                                ES_AUTOHSCROLL | WS_VSCROLL | WS_BORDER;
        const HWND field =
            CreateWindowExW(0, L"EDIT", L"", style, 0, 0, 280, 100, frame_, nullptr, nullptr, nullptr);
        SendMessageW(field, EM_SETLIMITTEXT, 0x7FFFFFFE, 0);
        SendMessageW(field, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
        SetWindowTextW(field, text.c_str());
        DestroyWindow(field);
    }

  private:
    HWND frame_;
};

}  // namespace

void MeasureInspector(Report& report) {
    Inspector inspector;
    BareList bare;
    report.AddTime("list 2,000 attributes to the bare host calls and insertions",
                   MeasureBoth([&] { inspector.Fill(); }, [&] { bare.Fill(); }), 1.5);
    const Numbers numbers;
    const BareField field;
    inspector.AddNumbers(numbers);
    report.AddTime("open the editor of 2,000 numbers to the bare field with their text",
                   MeasureBoth([&] { inspector.Edit(numbers); }, [&] { field.Show(numbers.text); }), 1.5);
}

}  // namespace qz::bench
