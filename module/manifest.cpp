#include "module/manifest.h"

#include "module/registration_script.h"

#include <algorithm>

namespace qz {

namespace {

// A control's content status (131473) by the names that manifests use.
constexpr const wchar_t* contentStatus =
    L"recomposeonresize,cantlinkinside,insideout,activatewhenvisible,setclientsitefirst";

// The system's marshaler for dual interfaces, which works from the type library.
constexpr const wchar_t* automationMarshaler = L"{00020424-0000-0000-C000-000000000046}";

std::wstring Attribute(const wchar_t* name, const std::wstring& text) {
    return L" " + std::wstring(name) + L"=\"" + text + L"\"";
}

// Manifests know one spelling of the threading models; the registry takes any.
std::wstring ThreadingModel(const ClassRow& row) {
    const std::wstring text = row.threadingModel;
    return text == L"both" ? L"Both" : text;
}

std::wstring ClassElement(const ClassRow& row) {
    const std::wstring progId = row.versionedKey ? row.versionedKey : row.progIdKey;
    std::wstring element = L"    <comClass" + Attribute(L"clsid", row.classId) +
                           Attribute(L"description", row.name + std::wstring(L" Class")) +
                           Attribute(L"threadingModel", ThreadingModel(row)) +
                           Attribute(L"tlbid", typeLibraryId) + Attribute(L"progid", progId);
    if (row.control) element += Attribute(L"miscStatusContent", contentStatus);
    if (!row.versionedKey) return element + L"/>\n";
    return element + L">\n      <progid>" + row.progIdKey + L"</progid>\n    </comClass>\n";
}

std::wstring InterfaceElement(const ClassRow& row) {
    return L"  <comInterfaceExternalProxyStub" + Attribute(L"name", row.interfaceName) +
           Attribute(L"iid", row.interfaceId) + Attribute(L"proxyStubClsid32", automationMarshaler) +
           Attribute(L"tlbid", typeLibraryId) + L"/>\n";
}

}  // namespace

std::string WriteManifest(std::span<const ClassRow> classes) {
    std::wstring classElements;
    std::wstring interfaceElements;
    for (const ClassRow& row : classes) {
        if (!row.served) continue;
        classElements += ClassElement(row);
        interfaceElements += InterfaceElement(row);
    }
    const std::wstring text =
        L"<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
        L"<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n"
        L"  <assemblyIdentity type=\"win32\" name=\"qzVandraExt.X\" version=\"" +
        std::wstring(moduleVersion) +
        L".0.0\" processorArchitecture=\"amd64\"/>\n"
        L"  <file name=\"qzVandraExt.dll\">\n"
        L"    <typelib" +
        Attribute(L"tlbid", typeLibraryId) + Attribute(L"version", moduleVersion) +
        L" helpdir=\"\" resourceid=\"1\" flags=\"HASDISKIMAGE\"/>\n" + classElements + L"  </file>\n" +
        interfaceElements + L"</assembly>\n";
    const std::wstring expanded = Expand(text, ModuleReplacements({}));
    std::string bytes(expanded.size(), '\0');  // every text of the table is plain ASCII
    std::ranges::transform(expanded, bytes.begin(), [](wchar_t c) { return static_cast<char>(c); });
    return bytes;
}

}  // namespace qz
