// The module's type library against what callers rely on: ids, dispatch ids, argument types, the order of the
// function tables, enumerations and classes, as type_library.txt has them.
#include "generated/published_types.h"
#include "generated/qzVandraExt.h"

#include <comdef.h>
#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <stdexcept>

namespace qz {
namespace {

// The attributes of a type, given back when the guard goes.
class Attributes {
  public:
    explicit Attributes(ITypeInfo* info) : info_(info) { ThrowIfFailed(info->GetTypeAttr(&attributes_)); }
    ~Attributes() { info_->ReleaseTypeAttr(attributes_); }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;
    const TYPEATTR* operator->() const { return attributes_; }

  private:
    ITypeInfo* info_;
    TYPEATTR* attributes_ = nullptr;
};

std::wstring NameOf(ITypeInfo* info) {
    _bstr_t name;
    ThrowIfFailed(info->GetDocumentation(MEMBERID_NIL, name.GetAddress(), nullptr, nullptr, nullptr));
    return static_cast<const wchar_t*>(name);
}

ComPtr<ITypeInfo> Referred(ITypeInfo* info, HREFTYPE reference) {
    ComPtr<ITypeInfo> referred;
    ThrowIfFailed(info->GetRefTypeInfo(reference, &referred));
    return referred;
}

std::wstring TypeName(ITypeInfo* info, const TYPEDESC& type) {
    switch (type.vt) {
        case VT_PTR:
            return TypeName(info, *type.lptdesc) + L"*";
        case VT_USERDEFINED:
            return NameOf(Referred(info, type.hreftype).Get());
        case VT_I2:
            return L"short";
        case VT_I4:
            return L"long";
        case VT_INT:
            return L"int";
        case VT_UI4:
            return L"OLE_COLOR";  // one IDL compiler keeps the name, the other resolves it
        case VT_BOOL:
            return L"VARIANT_BOOL";
        case VT_BSTR:
            return L"BSTR";
        case VT_VARIANT:
            return L"VARIANT";
        case VT_DISPATCH:
            return L"IDispatch*";
        case VT_UNKNOWN:
            return L"IUnknown*";
        default:
            return L"type " + std::to_wstring(type.vt);
    }
}

std::wstring Argument(ITypeInfo* info, const ELEMDESC& element) {
    const USHORT flags = element.paramdesc.wParamFlags;
    std::wstring text;
    if (flags & PARAMFLAG_FRETVAL) {
        text = L"result ";
    } else if (flags & PARAMFLAG_FOUT) {
        text = flags & PARAMFLAG_FIN ? L"in out " : L"out ";
    }
    if (flags & PARAMFLAG_FOPT) text += L"optional ";
    return text + TypeName(info, element.tdesc);
}

const wchar_t* KindName(INVOKEKIND kind) {
    switch (kind) {
        case INVOKE_FUNC:
            return L"call";
        case INVOKE_PROPERTYGET:
            return L"get";
        case INVOKE_PROPERTYPUT:
            return L"put";
        default:
            return L"?";
    }
}

std::wstring Signature(ITypeInfo* info, const FUNCDESC& function) {
    _bstr_t name;
    UINT count = 0;
    ThrowIfFailed(info->GetNames(function.memid, name.GetAddress(), 1, &count));
    std::wstring text = std::to_wstring(function.memid) + L" " + KindName(function.invkind) + L" " +
                        static_cast<const wchar_t*>(name) + L"(";
    for (SHORT index = 0; index < function.cParams; ++index) {
        if (index > 0) text += L", ";
        text += Argument(info, function.lprgelemdescParam[index]);
    }
    return text + L")\n";
}

// Throws when the members of a dual interface do not stand at consecutive places behind IDispatch's.
void CheckPlace(const FUNCDESC& function, UINT index) {
    constexpr int dispatchPlaces = 7;
    if (function.funckind != FUNC_PUREVIRTUAL) return;
    const auto place = static_cast<UINT>(function.oVft) / sizeof(void*);
    if (place != dispatchPlaces + index) throw std::runtime_error("a member stands at another place");
}

std::wstring Members(ITypeInfo* dispatch) {
    ComPtr<ITypeInfo> info = dispatch;
    HREFTYPE functionTable = 0;
    if (SUCCEEDED(info->GetRefTypeOfImplType(static_cast<UINT>(-1), &functionTable))) {
        info = Referred(dispatch, functionTable);
    }
    std::wstring text;
    const Attributes attributes(info.Get());
    for (UINT index = 0; index < attributes->cFuncs; ++index) {
        FUNCDESC* function = nullptr;
        ThrowIfFailed(info->GetFuncDesc(index, &function));
        CheckPlace(*function, index);
        text += Signature(info.Get(), *function);
        info->ReleaseFuncDesc(function);
    }
    return text;
}

std::wstring Constants(ITypeInfo* info) {
    std::wstring text;
    const Attributes attributes(info);
    for (UINT index = 0; index < attributes->cVars; ++index) {
        VARDESC* constant = nullptr;
        ThrowIfFailed(info->GetVarDesc(index, &constant));
        _bstr_t name;
        UINT count = 0;
        ThrowIfFailed(info->GetNames(constant->memid, name.GetAddress(), 1, &count));
        text +=
            static_cast<const wchar_t*>(name) + (L"=" + std::to_wstring(constant->lpvarValue->lVal)) + L"\n";
        info->ReleaseVarDesc(constant);
    }
    return text;
}

std::wstring Implemented(ITypeInfo* info) {
    const Attributes attributes(info);
    std::wstring text = attributes->wTypeFlags & TYPEFLAG_FCONTROL ? L"control\n" : L"";
    for (UINT index = 0; index < attributes->cImplTypes; ++index) {
        HREFTYPE reference = 0;
        int flags = 0;
        ThrowIfFailed(info->GetRefTypeOfImplType(index, &reference));
        ThrowIfFailed(info->GetImplTypeFlags(index, &flags));
        if (flags & IMPLTYPEFLAG_FDEFAULT) text += L"default ";
        if (flags & IMPLTYPEFLAG_FSOURCE) text += L"source ";
        text += NameOf(Referred(info, reference).Get()) + L"\n";
    }
    return text;
}

std::wstring IdOf(ITypeInfo* info) {
    wchar_t text[40] = L"";
    StringFromGUID2(Attributes(info)->guid, text, 40);
    return text;
}

/// Each type of a library with all that clients depend on, by name.
std::wstring Dump(ITypeLib* library) {
    std::map<std::wstring, std::wstring> types;
    for (UINT type = 0; type < library->GetTypeInfoCount(); ++type) {
        ComPtr<ITypeInfo> info;
        ThrowIfFailed(library->GetTypeInfo(type, &info));
        const std::wstring name = NameOf(info.Get());
        const TYPEKIND kind = Attributes(info.Get())->typekind;
        if (kind == TKIND_ENUM) types[name] = L"\n" + Constants(info.Get());
        if (kind == TKIND_DISPATCH) types[name] = L" " + IdOf(info.Get()) + L"\n" + Members(info.Get());
        if (kind == TKIND_COCLASS)
            types[name] = L" class " + IdOf(info.Get()) + L"\n" + Implemented(info.Get());
    }
    std::wstring text;
    for (const auto& [name, content] : types) text += L"[" + name + L"]" + content;
    return text;
}

/// The type library of the built module is the one that clients have been built with.
TEST(TypeLibrary, IsTheOneThatIsOut) {
    ComPtr<ITypeLib> library;
    ASSERT_EQ(LoadTypeLibEx(L"qzVandraExt.dll", REGKIND_NONE, &library), S_OK);
    TLIBATTR* attributes = nullptr;
    ASSERT_EQ(library->GetLibAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->guid, LIBID_QZVANDRAEXTLib);
    EXPECT_EQ(attributes->lcid, 1033u);
    EXPECT_EQ(attributes->wMajorVerNum, 6);
    EXPECT_EQ(attributes->wMinorVerNum, 5);
    EXPECT_EQ(attributes->syskind, SYS_WIN64);
    library->ReleaseTLibAttr(attributes);
    std::wistringstream expected(publishedTypes), found(Dump(library.Get()));
    std::wstring line;
    for (std::wstring type; std::getline(expected, line);) {
        if (line.starts_with(L"[")) type = line;
        std::wstring now;
        std::getline(found, now);
        ASSERT_EQ(now, line) << "in " << testing::PrintToString(type);
    }
    EXPECT_FALSE(std::getline(found, line)) << "more: " << testing::PrintToString(line);
}

}  // namespace
}  // namespace qz
