// Inserting, deleting and writing pages: what the host is asked, in which order, and what is left of a
// failure.
#include "tests/support/sweep.h"
#include "transfer_fixture.h"

namespace qz {
namespace {

constexpr CLIPFORMAT bothFormats[] = {pagesFormat, documentFormat};

ComPtr<PlainData> PagesIn(CLIPFORMAT format, const Bytes& bytes) {
    return MakeObject<PlainData>(format, bytes);
}

TEST(PageOperations, PagesTravelBetweenHostsInTheirOrder) {
    const auto from = MakeNumberedHost(5, 1000);
    for (const CLIPFORMAT format : bothFormats) {
        const auto to = MakeNumberedHost(3, 5000);
        const auto data = PagesIn(format, BytesOf(MakePageDataObject(from.Get(), {4, 1, 2}).Get(), format));
        EXPECT_EQ(InsertPages(to.Get(), data.Get(), {.position = 2, .moved = {}}), 3) << format;
        EXPECT_EQ(Widths(to.Get()), (Pages{5000, 1003, 1000, 1001, 5001, 5002})) << format;
        EXPECT_EQ(data->delivered, 1);
        EXPECT_EQ(data->released, 1);
    }
    EXPECT_EQ(Widths(from.Get()), (Pages{1000, 1001, 1002, 1003, 1004}));
}

TEST(PageOperations, AMoveWithinADocumentAppendsDeletesAndMoves) {
    const auto host = MakeNumberedHost(6, 1000);
    const auto data = MakePageDataObject(host.Get(), {2, 5});
    host->put_LogEnabled(1);
    EXPECT_EQ(InsertPages(host.Get(), data.Get(), {.position = 4, .moved = {2, 5}}), 2);
    host->put_LogEnabled(0);
    const Lines lines = LogLines(host.Get());
    EXPECT_EQ(Widths(host.Get()), (Pages{1000, 1002, 1001, 1004, 1003, 1005}));
    ASSERT_EQ(lines.size(), 13u);
    const Lines expected{L"GetPageCount", L"GetPageOpFlag", L"SetPageOpFlag 0",
                         L"GetObjectAttribute Document, PageSequence",
                         L"SetObjectAttribute Document, PageSequence"};
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(lines[i].substr(0, expected[i].size()), expected[i]);
    EXPECT_EQ(lines[6].substr(0, expected[4].size()), expected[4]) << "after the pages were written";
    EXPECT_EQ(Lines(lines.begin() + 7, lines.end()),
              (Lines{L"SetPageOpFlag 1", L"InsertPagesFromStream", L"GetPageCount", L"DeletePage 5, 1",
                     L"DeletePage 2, 1", L"MovePages 5, 2, 3"}));
}

TEST(PageOperations, AnEmptyDocumentGetsItsFirstPage) {
    const auto from = MakeNumberedHost(2, 1000);
    const auto to = MakeHost(0);
    EXPECT_EQ(InsertPages(to.Get(), MakePageDataObject(from.Get(), {2}).Get(), {.position = 1, .moved = {}}),
              1);
    EXPECT_EQ(Widths(to.Get()), Pages{1001});
    EXPECT_EQ(CallCount(to.Get(), L"MovePages"), 0);
}

TEST(PageOperations, APositionBeyondTheDocumentLeavesThePagesAtItsEnd) {
    const auto host = MakeNumberedHost(3, 1000);
    const auto data = MakePageDataObject(host.Get(), {1});
    EXPECT_EQ(InsertPages(host.Get(), data.Get(), {.position = 5, .moved = {1}}), 1);
    EXPECT_EQ(Widths(host.Get()), (Pages{1000, 1001, 1002, 1000}));
}

TEST(PageOperations, NoPagesInsertedMeansNothingDeletedOrMoved) {
    const auto host = MakeNumberedHost(3, 1000);
    const auto other = MakeHost(0);
    ComPtr<IPersistStreamInit> streaming;
    ASSERT_EQ(other.As(&streaming), S_OK);
    const auto stream = MakeMemoryStream();
    ASSERT_EQ(streaming->Save(stream.Get(), FALSE), S_OK);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    const Bytes noPages = ReadToEnd(stream.Get());
    for (const CLIPFORMAT format : bothFormats) {
        const auto data = PagesIn(format, noPages);
        EXPECT_EQ(InsertPages(host.Get(), data.Get(), {.position = 1, .moved = {2}}), 0) << format;
        EXPECT_EQ(Widths(host.Get()), (Pages{1000, 1001, 1002})) << format;
        EXPECT_EQ(data->released, 1) << format;
    }
}

/// Every way in which a data object delivers nothing of use.
TEST(PageOperations, BadDataChangesNothingAndIsReleased) {
    const auto host = MakeNumberedHost(3, 1000);
    const Bytes good = BytesOfPages(host.Get(), {1, 2});
    const auto cut = [&](std::size_t size) {
        return Bytes(good.begin(), good.begin() + static_cast<int>(size));
    };
    const Bytes bad[] = {{}, cut(1), cut(16), cut(good.size() / 2), Bytes(5000, std::byte{'x'})};
    for (const CLIPFORMAT format : bothFormats) {
        for (const Bytes& bytes : bad) {
            const auto data = PagesIn(format, bytes);
            EXPECT_LT(CodeOf([&] { InsertPages(host.Get(), data.Get(), {.position = 1, .moved = {2}}); }), 0)
                << format << ", " << bytes.size() << " bytes";
            EXPECT_EQ(data->released, data->delivered);
        }
        const auto wrongMedium = PagesIn(format, good);
        wrongMedium->tymed = TYMED_MFPICT;
        EXPECT_EQ(CodeOf([&] { InsertPages(host.Get(), wrongMedium.Get(), {}); }), DV_E_TYMED);
        EXPECT_EQ(wrongMedium->released, 1);
        const auto noMemory = PagesIn(format, good);
        noMemory->withoutMemory = true;
        EXPECT_EQ(CodeOf([&] { InsertPages(host.Get(), noMemory.Get(), {}); }), DV_E_TYMED);
        EXPECT_EQ(noMemory->released, 1);
        const auto failing = PagesIn(format, good);
        failing->answer = planned;
        EXPECT_EQ(CodeOf([&] { InsertPages(host.Get(), failing.Get(), {}); }), planned);
    }
    EXPECT_EQ(CodeOf([&] { InsertPages(host.Get(), PagesIn(CF_TEXT, good).Get(), {}); }), DV_E_FORMATETC);
    EXPECT_EQ(Widths(host.Get()), (Pages{1000, 1001, 1002}));
}

TEST(PageOperations, DeletionStopsAtTheFirstFailure) {
    const auto host = MakeNumberedHost(5, 1000);
    DeletePages(host.Get(), {2, 4, 2});
    EXPECT_EQ(Widths(host.Get()), (Pages{1000, 1002, 1004}));
    host->FailCall(2, planned);
    EXPECT_EQ(CodeOf([&] { DeletePages(host.Get(), {1, 2, 3}); }), planned);
    host->ClearFaults();
    EXPECT_EQ(Widths(host.Get()), (Pages{1000, 1002}));
}

/// Lets the first call of `step` to the host fail, then the second, ... until a run meets no fault; after
/// each run `check` looks at what is left. The step starts from what `prepare` makes.
void FailEach(const std::function<ComPtr<IReferenceHost>()>& prepare,
              const std::function<void(IReferenceHost*)>& step,
              const std::function<void(IReferenceHost*, bool succeeded)>& check) {
    ComPtr<IReferenceHost> host;
    const auto renew = [&] { host = prepare(); };
    const auto run = [&] { return Guard(IID_NULL, [&] { step(host.Get()); }); };
    const auto checkAll = [&](long call, HRESULT code) {
        EXPECT_TRUE(code == S_OK || call > 0);
        EXPECT_EQ(PageFlagOf(host.Get()), 1);
        check(host.Get(), code == S_OK);
    };
    EXPECT_GT(FailEachCall([&] { return host.Get(); }, {renew, run, checkAll, Sample::All}), 3);
}

TEST(PageOperations, AHostFailingMidwayKeepsAllButWhatWasAppended) {
    const Pages original{1000, 1001, 1002, 1003};
    const Pages block{1001, 1003};
    const Bytes bytes = BytesOfPages(MakeNumberedHost(4, 1000).Get(), {2, 4});
    for (const CLIPFORMAT format : bothFormats) {
        const auto data = PagesIn(format, bytes);
        FailEach(
            [] { return MakeNumberedHost(4, 1000); },
            [&](IReferenceHost* host) {
                InsertPages(host, data.Get(), {.position = 1, .moved = {2, 4}});
            },
            [&](IReferenceHost* host, bool succeeded) {
                const Pages now = Widths(host);
                EXPECT_EQ(data->released, data->delivered);
                if (succeeded) {
                    EXPECT_EQ(now, (Pages{1001, 1003, 1000, 1002}));
                } else if (now != original) {
                    ASSERT_GE(now.size(), original.size());
                    EXPECT_EQ(Pages(now.end() - 2, now.end()), block);
                    EXPECT_TRUE(std::includes(original.begin(), original.end(), now.begin(), now.end() - 2));
                }
            });
        EXPECT_GT(data->delivered, 5);
    }
}

TEST(PageOperations, ThePageSequenceIsAsBeforeWhateverFails) {
    FailEach(
        [] {
            auto host = MakeNumberedHost(4, 1000);
            WriteAttribute(host.Get(), L"Document", L"PageSequence", _variant_t(L"3; 1"));
            return host;
        },
        [](IReferenceHost* host) {
            WritePages(host, Pages{2, 4}, MakeMemoryStream().Get());
        },
        [](IReferenceHost* host, bool) {
            EXPECT_EQ(SequenceOf(host), (Pages{3, 1}));
            EXPECT_EQ(Widths(host), (Pages{1000, 1001, 1002, 1003}));
        });
}

}  // namespace
}  // namespace qz
