#include "tests/host_reference/host_fixture.h"

#include "com/stream.h"

namespace qz::sample {
namespace {

struct HostStreams : HostTest {
    HostStreams() {
        for (long number = 1; number <= 5; ++number) {
            Write((L"Pages[" + std::to_wstring(number) + L"]").c_str(), L"Width", 1000 * number);
        }
        Told();
    }

    static void Rewind(IStream* stream) { stream->Seek({}, STREAM_SEEK_SET, nullptr); }

    ComPtr<IStream> Saved(IUnknown* document) {
        const ComPtr<IStream> stream = MakeMemoryStream();
        ComPtr<IPersistStreamInit> streams;
        EXPECT_EQ(document->QueryInterface(IID_PPV_ARGS(&streams)), S_OK);
        EXPECT_EQ(streams->Save(stream.Get(), TRUE), S_OK);
        Rewind(stream.Get());
        return stream;
    }

    long WidthOf(long number) {
        return Read((L"Pages[" + std::to_wstring(number) + L"]").c_str(), L"Width").lVal;
    }
};

TEST_F(HostStreams, ADocumentObjectIsLoadedAndInserted) {
    ComPtr<IDispatch> document;
    ComPtr<IPersistStreamInit> streams;
    ASSERT_EQ(host->CreateDocument(&document), S_OK);
    ASSERT_EQ(document.As(&streams), S_OK);
    EXPECT_EQ(streams->Load(Saved(host.Get()).Get()), S_OK);
    EXPECT_EQ(Told(), Flags{});
    EXPECT_EQ(host->InsertDocument(document.Get()), S_OK);
    EXPECT_EQ(PageCount(), 10);
    EXPECT_EQ(WidthOf(10), 5000);
    EXPECT_EQ(host->InsertDocument(ObjectAt(L"Document").Get()), S_OK);  // into itself
    EXPECT_EQ(PageCount(), 20);
}

TEST_F(HostStreams, SeveralDocumentsFollowEachOtherInOneStream) {
    const ComPtr<IStream> stream = MakeMemoryStream();
    ComPtr<IPersistStreamInit> streams;
    host.As(&streams);
    streams->Save(stream.Get(), FALSE);
    streams->Save(stream.Get(), FALSE);
    Rewind(stream.Get());
    EXPECT_EQ(host->InsertPagesFromStream(stream.Get()), S_OK);
    EXPECT_EQ(host->InsertPagesFromStream(stream.Get()), S_OK);
    EXPECT_EQ(PageCount(), 15);
    EXPECT_NE(host->InsertPagesFromStream(stream.Get()), S_OK);
    EXPECT_EQ(PageCount(), 15);
}

TEST_F(HostStreams, DirtIsToldAndTheSizeIsExact) {
    ComPtr<IPersistStreamInit> streams;
    host.As(&streams);
    EXPECT_EQ(streams->IsDirty(), S_OK);
    ULARGE_INTEGER size{};
    EXPECT_EQ(streams->GetSizeMax(&size), S_OK);
    const ComPtr<IStream> stream = Saved(host.Get());
    EXPECT_EQ(ReadToEnd(stream.Get()).size(), size.QuadPart);
    EXPECT_EQ(streams->IsDirty(), S_FALSE);
    host->SetCurrentPage(2);
    EXPECT_EQ(streams->IsDirty(), S_FALSE);
    EXPECT_EQ(streams->InitNew(), S_OK);
    EXPECT_EQ(PageCount(), 0);
}

}  // namespace
}  // namespace qz::sample
