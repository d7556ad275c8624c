// The module's entry points, and the ways in which its classes are created.
#include "tests/module/loaded_module.h"

#include "com/object.h"
#include "generated/qzVandraExt.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

class EntryPoints : public testing::Test {
  protected:
    // No test leaves an object or a lock behind.
    void TearDown() override { EXPECT_EQ(module_.CanUnloadNow(), S_OK); }

    ComPtr<IClassFactory> Factory() {
        ComPtr<IClassFactory> factory;
        EXPECT_EQ(module_.GetClassObject(CLSID_qzThumbnailCtrl, IID_PPV_ARGS(&factory)), S_OK);
        return factory;
    }

    LoadedModule module_;
};

TEST_F(EntryPoints, ClassObjectsAreGivenForServedClassesOnly) {
    void* const garbage = this;
    void* object = garbage;
    EXPECT_EQ(module_.GetClassObject(IID_IDispatch, IID_IClassFactory, &object), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(object, nullptr);
    object = garbage;
    EXPECT_EQ(module_.GetClassObject(CLSID_qzThumbnailCtrl, IID_IDispatch, &object), E_NOINTERFACE);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(module_.GetClassObject(CLSID_qzThumbnailCtrl, IID_IClassFactory, nullptr), E_POINTER);
}

TEST_F(EntryPoints, ObjectsAreMadeOfTheirClass) {
    ComPtr<IqzThumbnailCtrl> pane;
    ASSERT_EQ(Factory()->CreateInstance(nullptr, IID_PPV_ARGS(&pane)), S_OK);
    ComPtr<IProvideClassInfo> described;
    ASSERT_EQ(pane.As(&described), S_OK);
    ComPtr<ITypeInfo> info;
    ASSERT_EQ(described->GetClassInfo(&info), S_OK);
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->guid, CLSID_qzThumbnailCtrl);
    info->ReleaseTypeAttr(attributes);
}

TEST_F(EntryPoints, AnObjectAFactoryAndALockEachKeepTheModuleLoaded) {
    EXPECT_EQ(module_.CanUnloadNow(), S_OK);
    ComPtr<IClassFactory> factory = Factory();
    EXPECT_EQ(module_.CanUnloadNow(), S_FALSE);

    ComPtr<IUnknown> object;
    ASSERT_EQ(factory->CreateInstance(nullptr, IID_PPV_ARGS(&object)), S_OK);
    factory.Reset();
    EXPECT_EQ(module_.CanUnloadNow(), S_FALSE);
    object.Reset();
    EXPECT_EQ(module_.CanUnloadNow(), S_OK);

    EXPECT_EQ(Factory()->LockServer(TRUE), S_OK);
    EXPECT_EQ(module_.CanUnloadNow(), S_FALSE);
    EXPECT_EQ(Factory()->LockServer(FALSE), S_OK);
}

TEST_F(EntryPoints, TheRichEditLibraryIsLoadedWhileTheModuleIsInUse) {
    if (GetModuleHandleW(L"RICHED20.DLL")) GTEST_SKIP() << "this process has loaded it otherwise";
    ComPtr<IClassFactory> factory = Factory();
    EXPECT_TRUE(GetModuleHandleW(L"RICHED20.DLL"));
    factory.Reset();
    EXPECT_EQ(module_.CanUnloadNow(), S_OK);
    EXPECT_FALSE(GetModuleHandleW(L"RICHED20.DLL"));
    Factory();
    EXPECT_TRUE(GetModuleHandleW(L"RICHED20.DLL"));
}

TEST_F(EntryPoints, InstallKnowsNoOtherCommandLines) {
    EXPECT_EQ(module_.Install(true, L"everybody"), E_INVALIDARG);
}

// An activation context made from the manifest beside the module.
class ManifestContext {
  public:
    ManifestContext() {
        ACTCTXW description = {};
        description.cbSize = sizeof description;
        description.lpSource = L"qzVandraExt.X.manifest";
        wchar_t folder[MAX_PATH] = {};
        GetModuleFileNameW(nullptr, folder, MAX_PATH);
        *wcsrchr(folder, L'\\') = L'\0';
        const std::wstring source = folder + std::wstring(L"\\") + description.lpSource;
        description.lpSource = source.c_str();
        description.lpAssemblyDirectory = folder;
        description.dwFlags = ACTCTX_FLAG_ASSEMBLY_DIRECTORY_VALID;
        context_ = CreateActCtxW(&description);
        active_ = context_ != INVALID_HANDLE_VALUE && ActivateActCtx(context_, &cookie_);
    }
    ~ManifestContext() {
        if (active_) DeactivateActCtx(0, cookie_);
        if (context_ != INVALID_HANDLE_VALUE) ReleaseActCtx(context_);
    }
    ManifestContext(const ManifestContext&) = delete;
    ManifestContext& operator=(const ManifestContext&) = delete;

    bool Active() const { return active_; }

  private:
    HANDLE context_;
    ULONG_PTR cookie_ = 0;
    bool active_;
};

TEST_F(EntryPoints, TheManifestCreatesWithoutRegistration) {
    ASSERT_EQ(module_.UnregisterServer(), S_OK);
    struct Class {
        std::wstring progId;
        CLSID classId;
        IID interfaceId;
    };
    const Class classes[] = {
        {L"QzVandraExt.qzThumbnailCtrl", CLSID_qzThumbnailCtrl, IID_IqzThumbnailCtrl},
        {L"QzVandraExt.qzFormatter", CLSID_qzFormatter, IID_IqzFormatter},
        {L"QzVandraExt.qzCategory", CLSID_qzCategory, IID_IqzCategory},
        {L"QzVandraExt.qzFormat", CLSID_qzFormat, IID_IqzFormat},
    };
    const auto create = [](const Class& each, REFCLSID classId) {
        ComPtr<IUnknown> object;
        return CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, each.interfaceId,
                                reinterpret_cast<void**>(object.GetAddressOf()));
    };
    for (const Class& each : classes) EXPECT_EQ(create(each, each.classId), REGDB_E_CLASSNOTREG);
    const ManifestContext context;
    ASSERT_TRUE(context.Active()) << GetLastError();
    for (const Class& each : classes) {
        for (const std::wstring& progId : {each.progId, each.progId + L".1"}) {
            CLSID classId = {};  // a stand-in that the context resolves, not the class id itself
            EXPECT_EQ(CLSIDFromProgID(progId.c_str(), &classId), S_OK);
            EXPECT_EQ(create(each, classId), S_OK);
        }
        EXPECT_EQ(create(each, each.classId), S_OK);
    }
    CoFreeUnusedLibrariesEx(0, 0);
}

}  // namespace
}  // namespace qz
