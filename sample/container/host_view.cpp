#include "sample/container/host_view.h"

#include "com/safe_array.h"
#include "sample/container/automation.h"
#include "sample/container/error_text.h"

#include <comdef.h>

namespace qz {

HostView::HostView(std::function<void()> onChanged) {
    RequireSuccess(CoCreateInstance(CLSID_ReferenceHost, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&host_)),
                   L"The host control cannot be created (is its library registered?)");
    constexpr DISPID changed = 5;
    events_.emplace(host_.Get(), DIID__IVandraXEvents,
                    [onChanged = std::move(onChanged)](DISPID event, DISPPARAMS&) {
                        if (event == changed) onChanged();
                    });
}

void HostView::OpenDocument(const std::wstring& path) {
    RequireSuccess(host_->LoadDocument(_bstr_t(path.c_str())), L"The document cannot be opened");
}

void HostView::ShowIn(HWND parent) {
    RequireSuccess(host_->ShowIn(HandleToLong(parent)), L"The host shows no view");
}

void HostView::Place(const Area& area) {
    RequireSuccess(host_->MoveView(area.left, area.top, area.width, area.height),
                   L"The view cannot be placed");
}

HWND HostView::Window() const {
    long window = 0;
    RequireSuccess(host_->get_ViewWindow(&window), L"The host does not tell its view");
    return static_cast<HWND>(LongToHandle(window));
}

long HostView::PageCount() const {
    long count = 0;
    RequireSuccess(host_->GetPageCount(&count), L"The number of pages cannot be read");
    return count;
}

long HostView::CurrentPage() const {
    long page = 0;
    RequireSuccess(host_->GetCurrentPage(&page), L"The current page cannot be read");
    return page;
}

void HostView::GoToPage(long page) {
    RequireSuccess(host_->SetCurrentPage(page), L"The page cannot be shown");
}

ComPtr<IDispatch> HostView::ObjectAt(const wchar_t* path) const {
    ComPtr<IDispatch> object;
    RequireSuccess(host_->GetObjectByPath(_bstr_t(path), &object), L"The object cannot be found");
    return object;
}

/// Null when nothing is.
ComPtr<IDispatch> HostView::Selected() const {
    _variant_t current;
    RequireSuccess(host_->GetCurrentObject(&current), L"The selected object cannot be read");
    return current.vt == VT_DISPATCH ? ComPtr<IDispatch>(current.pdispVal) : nullptr;
}

ComPtr<IDispatch> HostView::SelectedOrDocument() const {
    const ComPtr<IDispatch> selected = Selected();
    return selected ? selected : Document();
}

void HostView::AddField() {
    ComPtr<IDispatch> field;
    constexpr long formField = 6;
    RequireSuccess(host_->CreateObject(formField, _bstr_t(L"Field"), &field), L"No field can be made");
    const _bstr_t path(GetProperty(field.Get(), L"Path"));
    RequireSuccess(host_->SelectObject(path, 0), L"The field cannot be selected");
}

void HostView::SelectNextObject() {
    const std::wstring page = L"Pages[" + std::to_wstring(CurrentPage()) + L"]";
    _variant_t list;
    RequireSuccess(host_->GetObjectAttribute(_bstr_t(page.c_str()), _bstr_t(L"Objects"), &list),
                   L"The objects of the page cannot be read");
    if (list.vt != (VT_ARRAY | VT_DISPATCH)) return;
    const SafeArrayView<IDispatch*> view(list.parray);
    const std::span<IDispatch*> objects = view.Elements();
    if (objects.empty()) return;
    const ComPtr<IDispatch> selected = Selected();
    const _bstr_t before = selected ? _bstr_t(GetProperty(selected.Get(), L"Path")) : _bstr_t();
    size_t next = 0;
    for (size_t i = 0; i < objects.size(); ++i) {
        if (_bstr_t(GetProperty(objects[i], L"Path")) == before) next = (i + 1) % objects.size();
    }
    const _bstr_t path(GetProperty(objects[next], L"Path"));
    RequireSuccess(host_->SelectObject(path, 0), L"The object cannot be selected");
}

void HostView::SelectAllObjects() {
    RequireSuccess(host_->SelectObjects(1), L"The objects cannot be selected");
}

LANGID HostView::Language() const {
    short language = 0;
    RequireSuccess(host_->GetLanguageId(&language), L"The host's language cannot be read");
    return static_cast<LANGID>(language);
}

void HostView::SetLanguage(LANGID language) {
    RequireSuccess(host_->put_LanguageId(language), L"The host's language cannot be set");
}

}  // namespace qz
