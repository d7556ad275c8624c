// The pages as a data object: what others may ask of it, and what they are answered.
#include "transfer_fixture.h"

#include <algorithm>
#include <utility>

namespace qz {
namespace {

constexpr CLIPFORMAT otherFormat = CF_PRIVATEFIRST + 77;

class PageDataObjectTest : public ::testing::Test {
  protected:
    HRESULT Query(FORMATETC format) { return data->QueryGetData(&format); }
    /// Delivers into a slot that holds garbage.
    HRESULT Get(FORMATETC format) {
        StorageMedium medium;
        medium.Out()->tymed = TYMED_ISTREAM;
        const HRESULT result = data->GetData(&format, medium.Out());
        EXPECT_EQ(medium.Get().tymed, static_cast<DWORD>(FAILED(result) ? TYMED_NULL : TYMED_HGLOBAL));
        return result;
    }
    HRESULT Put(FORMATETC format, const char* text, BOOL giveAway, int* released = nullptr) {
        STGMEDIUM medium{};
        medium.tymed = TYMED_HGLOBAL;
        medium.hGlobal = GlobalAlloc(GMEM_MOVEABLE, std::strlen(text));
        std::memcpy(GlobalLock(medium.hGlobal), text, std::strlen(text));
        GlobalUnlock(medium.hGlobal);
        if (released) medium.pUnkForRelease = MakeObject<MediumOwner>(*released).Detach();
        const HRESULT result = data->SetData(&format, &medium, giveAway);
        if (!giveAway || FAILED(result)) ReleaseStgMedium(&medium);
        return result;
    }
    std::string Text(CLIPFORMAT format) {
        const Bytes bytes = BytesOf(data.Get(), format);
        return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
    }

    ComPtr<IReferenceHost> host = MakeNumberedHost(3, 1000);
    ComPtr<IDataObject> data = MakePageDataObject(host.Get(), {2});
};

TEST_F(PageDataObjectTest, AnswersForEachFormat) {
    struct Row {
        FORMATETC format;
        HRESULT answer;
    };
    const Row rows[] = {
        {{documentFormat, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL}, S_OK},
        {{pagesFormat, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL | TYMED_ISTREAM}, S_OK},
        {{pagesFormat, nullptr, DVASPECT_CONTENT, -1, TYMED_ISTREAM}, DV_E_TYMED},
        {{pagesFormat, nullptr, DVASPECT_CONTENT, 0, TYMED_HGLOBAL}, DV_E_LINDEX},
        {{documentFormat, nullptr, DVASPECT_ICON, -1, TYMED_HGLOBAL}, DV_E_DVASPECT},
        {{CF_TEXT, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL}, DV_E_FORMATETC},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Query(row.format), row.answer);
        EXPECT_EQ(Get(row.format), row.answer);
    }
    EXPECT_EQ(data->QueryGetData(nullptr), E_POINTER);
    FORMATETC format = InGlobalMemory(pagesFormat);
    STGMEDIUM medium{};
    EXPECT_EQ(data->GetData(&format, nullptr), E_POINTER);
    EXPECT_EQ(data->GetData(nullptr, &medium), E_POINTER);
    EXPECT_EQ(data->GetDataHere(&format, &medium), DV_E_FORMATETC);
    DWORD connection = 1;
    EXPECT_EQ(data->DAdvise(&format, 0, nullptr, &connection), OLE_E_ADVISENOTSUPPORTED);
    EXPECT_EQ(connection, 0u);
    int device = 0;
    FORMATETC canonical{};
    format.ptd = reinterpret_cast<DVTARGETDEVICE*>(&device);
    EXPECT_EQ(data->GetCanonicalFormatEtc(&format, &canonical), DATA_S_SAMEFORMATETC);
    EXPECT_EQ(canonical.ptd, nullptr);
    EXPECT_EQ(canonical.cfFormat, pagesFormat);
}

TEST_F(PageDataObjectTest, OtherDataIsKeptCopiedAndReplaced) {
    int released = 0;
    EXPECT_EQ(Put(InGlobalMemory(otherFormat), "kept as a copy", FALSE), S_OK);
    EXPECT_EQ(Text(otherFormat).substr(0, 14), "kept as a copy");
    EXPECT_EQ(Put(InGlobalMemory(otherFormat), "given away", TRUE), S_OK);
    EXPECT_EQ(Text(otherFormat).substr(0, 10), "given away");
    EXPECT_EQ(Text(otherFormat).substr(0, 10), "given away") << "a copy each time";
    EXPECT_EQ(Put(InGlobalMemory(CF_TEXT), "with its owner", TRUE, &released), S_OK);
    EXPECT_EQ(released, 0);
    EXPECT_EQ(Put(InGlobalMemory(pagesFormat), "no pages", TRUE, &released), DV_E_FORMATETC);
    EXPECT_EQ(released, 1) << "refused, so still the caller's";
    EXPECT_EQ(data->SetData(nullptr, nullptr, TRUE), E_POINTER);
    ComPtr<IEnumFORMATETC> formats;
    ASSERT_EQ(data->EnumFormatEtc(DATADIR_GET, &formats), S_OK);
    std::vector<CLIPFORMAT> found;
    for (FORMATETC format{}; formats->Next(1, &format, nullptr) == S_OK;) found.push_back(format.cfFormat);
    EXPECT_EQ(found, (std::vector<CLIPFORMAT>{documentFormat, pagesFormat, otherFormat, CF_TEXT}));
    EXPECT_EQ(data->EnumFormatEtc(DATADIR_SET, &formats), E_NOTIMPL);
    data.Reset();
    EXPECT_EQ(released, 2);
}

TEST_F(PageDataObjectTest, ThePagesAreThoseOfTheMomentTheyAreTaken) {
    const ULONG withData = ReferencesOf(host.Get());
    DeletePages(host.Get(), {1});
    const auto to = MakeNumberedHost(0, 0);
    InsertPages(to.Get(), data.Get(), {});
    EXPECT_EQ(Widths(to.Get()), Pages{1002});
    EXPECT_EQ(ReferencesOf(host.Get()), withData);
    DeletePages(host.Get(), {2});
    EXPECT_NE(Get(InGlobalMemory(pagesFormat)), S_OK) << "the page is gone";
    EXPECT_EQ(PageFlagOf(host.Get()), 1);
    data.Reset();
    EXPECT_EQ(ReferencesOf(host.Get()), withData - 1);
}

TEST_F(PageDataObjectTest, RenderedAtOnceItNeedsNoHost) {
    const ULONG before = ReferencesOf(host.Get());
    data = MakePageDataObject(host.Get(), {3, 1}, Rendering::AtOnce);
    EXPECT_EQ(ReferencesOf(host.Get()), before - 1) << "the object before counted it";
    host.Reset();
    const auto to = MakeNumberedHost(0, 0);
    EXPECT_EQ(InsertPages(to.Get(), data.Get(), {}), 2);
    EXPECT_EQ(Widths(to.Get()), (Pages{1002, 1000}));
}

TEST_F(PageDataObjectTest, FailuresOfTheHostAreToldWithTheirText) {
    for (const wchar_t* operation : {L"Stream.Save", L"GetPageOpFlag", L"SetPageOpFlag"}) {
        ASSERT_EQ(host->FailOperation(_bstr_t(operation), E_ACCESSDENIED), S_OK) << operation;
        EXPECT_EQ(Get(InGlobalMemory(documentFormat)), E_ACCESSDENIED) << operation;
        EXPECT_NE(TakeErrorText(), L"");
        EXPECT_EQ(CodeOf([&] { MakePageDataObject(host.Get(), {1}, Rendering::AtOnce); }), E_ACCESSDENIED);
        host->ClearFaults();
    }
    EXPECT_EQ(SequenceOf(host.Get()), Pages{});
    EXPECT_EQ(CodeOf([&] { MakePageDataObject(host.Get(), {}); }), E_INVALIDARG);
    EXPECT_EQ(CodeOf([&] { MakePageDataObject(nullptr, {1}); }), E_POINTER);
}

}  // namespace
}  // namespace qz
