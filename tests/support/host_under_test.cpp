#include "tests/support/host_under_test.h"

#include <comdef.h>

#include <sstream>

namespace qz {

ComPtr<IReferenceHost> MakeHost(long pages) {
    static const HMODULE library = LoadLibraryW(L"vandra_reference_host.dll");
    using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
    const auto entry = reinterpret_cast<GetClassObject>(
        reinterpret_cast<void*>(GetProcAddress(library, "DllGetClassObject")));
    ComPtr<IClassFactory> factory;
    ComPtr<IReferenceHost> host;
    ThrowIfFailed(entry(CLSID_ReferenceHost, IID_PPV_ARGS(&factory)));
    ThrowIfFailed(factory->CreateInstance(nullptr, IID_PPV_ARGS(&host)));
    ThrowIfFailed(host->NewDocument(pages, 12240, 15840));
    ThrowIfFailed(host->ClearLog());
    return host;
}

long SinkCount(IReferenceHost* host) {
    long count = -1;
    ThrowIfFailed(host->get_SinkCount(&count));
    return count;
}

long CallCount(IReferenceHost* host, const wchar_t* operation) {
    long count = -1;
    ThrowIfFailed(host->get_CallCount(_bstr_t(operation), &count));
    return count;
}

std::vector<std::wstring> LogLines(IReferenceHost* host) {
    _bstr_t text;
    ThrowIfFailed(host->get_LogText(text.GetAddress()));
    std::vector<std::wstring> lines;
    std::wistringstream stream(text.length() ? static_cast<const wchar_t*>(text) : L"");
    for (std::wstring line; std::getline(stream, line);) {
        if (!line.empty() && line.back() == L'\r') line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

ULONG ReferencesOf(IUnknown* object) {
    object->AddRef();
    return object->Release();
}

}  // namespace qz
