// How errors travel: code of ours throws them, and where others call us `Guard` turns them into an HRESULT
// and an IErrorInfo with a readable text, which scripts show.
#pragma once

#include <windows.h>
#include <oleauto.h>

#include <exception>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace qz {

/// An error on its way to the boundary. The text is for the developer who calls the component.
struct ComError : std::exception {
    ComError(HRESULT failure, std::wstring description) : code(failure), text(std::move(description)) {}
    const char* what() const noexcept override { return "COM error"; }

    HRESULT code;
    std::wstring text;
};

/// Throws a ComError. An empty text is replaced by the system's own text for the code.
[[noreturn]] void Throw(HRESULT code, std::wstring_view text = {});

/// Throws an error that has its whole text already: one that was caught, or told by the object that failed.
/// An empty text is replaced as above.
[[noreturn]] void Rethrow(HRESULT code, const std::wstring& text);

/// Throws when `code` is a failure. `text` says what failed; the system's text is appended.
inline void ThrowIfFailed(HRESULT code, const wchar_t* text = nullptr) {
    if (FAILED(code)) Throw(code, text ? std::wstring_view(text) : std::wstring_view());
}

/// Throws E_POINTER when an argument that must not be null is null.
void RequirePointer(const void* pointer);

/// Throws the last Windows error, or E_FAIL when there is none, with `text` as above.
void ThrowLastErrorIf(bool failed, const wchar_t* text);

/// The system's text for an HRESULT, without a trailing line break.
std::wstring DescribeError(HRESULT code);

/// Sets the thread's IErrorInfo, naming `iid` as the interface that failed. Where the system has no memory
/// for it, what was set before stays.
void SetErrorText(REFIID iid, const std::wstring& text) noexcept;

/// Takes the thread's IErrorInfo and gives its text: what the failed call has told. Without one the text is
/// the system's for `code`.
std::wstring TakeErrorText(HRESULT code);

/// Gives the HRESULT for the exception in flight and sets IErrorInfo. To be called inside a catch block.
HRESULT TurnException(REFIID iid) noexcept;

/// Runs a member's body, which returns nothing or an HRESULT, and lets no exception pass. A failure leaves an
/// IErrorInfo behind: an exception its own text, a returned code the system's.
template <class Body>
HRESULT Guard(REFIID iid, Body&& body) noexcept {
    try {
        if constexpr (std::is_void_v<std::invoke_result_t<Body>>) {
            std::forward<Body>(body)();
            return S_OK;
        } else {
            const HRESULT result = std::forward<Body>(body)();
            if (FAILED(result)) SetErrorText(iid, DescribeError(result));
            return result;
        }
    } catch (...) {
        return TurnException(iid);
    }
}

}  // namespace qz
