#include "com/error.h"

#include "com/com_ptr.h"

#include <comdef.h>

#include <cwchar>
#include <new>

namespace qz {

namespace {

std::wstring Compose(HRESULT code, std::wstring_view text) {
    const std::wstring system = DescribeError(code);
    return text.empty() ? system : std::wstring(text) + L" (" + system + L")";
}

}  // namespace

void Throw(HRESULT code, std::wstring_view text) { throw ComError(code, Compose(code, text)); }

void Rethrow(HRESULT code, const std::wstring& text) {
    throw ComError(code, text.empty() ? DescribeError(code) : text);
}

void RequirePointer(const void* pointer) {
    if (!pointer) Throw(E_POINTER, L"A pointer argument is null");
}

void ThrowLastErrorIf(bool failed, const wchar_t* text) {
    if (!failed) return;
    const DWORD error = GetLastError();
    Throw(error == ERROR_SUCCESS ? E_FAIL : HRESULT_FROM_WIN32(error), text);
}

std::wstring DescribeError(HRESULT code) {
    wchar_t* buffer = nullptr;
    const DWORD flags =
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
    const DWORD length = FormatMessageW(flags, nullptr, static_cast<DWORD>(code), 0,
                                        reinterpret_cast<wchar_t*>(&buffer), 0, nullptr);
    std::wstring text(buffer ? buffer : L"", length);
    LocalFree(buffer);
    while (!text.empty() && (text.back() == L'\r' || text.back() == L'\n' || text.back() == L' ')) {
        text.pop_back();
    }
    if (!text.empty()) return text;
    wchar_t number[32];
    swprintf(number, std::size(number), L"Error 0x%08lX", static_cast<unsigned long>(code));
    return number;
}

void SetErrorText(REFIID iid, const std::wstring& text) noexcept {
    ComPtr<ICreateErrorInfo> create;
    ComPtr<IErrorInfo> info;
    if (FAILED(CreateErrorInfo(&create))) return;
    // The setters copy the text; their parameter is only by history not const.
    wchar_t source[] = L"qzVandraExt";
    create->SetGUID(iid);
    create->SetSource(source);
    create->SetDescription(const_cast<wchar_t*>(text.c_str()));
    if (SUCCEEDED(create.As(&info))) SetErrorInfo(0, info.Get());
}

std::wstring TakeErrorText(HRESULT code) {
    ComPtr<IErrorInfo> info;
    _bstr_t text;
    if (GetErrorInfo(0, &info) == S_OK) info->GetDescription(text.GetAddress());
    return text.length() ? std::wstring(text, text.length()) : DescribeError(code);
}

HRESULT TurnException(REFIID iid) noexcept {
    const auto report = [&iid](HRESULT code, const wchar_t* text) {
        try {
            SetErrorText(iid, *text ? std::wstring(text) : DescribeError(code));
        } catch (const std::bad_alloc&) {
            SetErrorInfo(0, nullptr);  // no memory even for the text: better none than a stale one
        }
        return code;
    };
    try {
        throw;
    } catch (const ComError& error) {
        return report(error.code, error.text.c_str());
    } catch (const _com_error& error) {
        return report(error.Error(), L"");
    } catch (const std::bad_alloc&) {
        return report(E_OUTOFMEMORY, L"");
    } catch (...) {
        return report(E_FAIL, L"");
    }
}

}  // namespace qz
