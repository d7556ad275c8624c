// Streams that fail, take or give little at a time, or are not there.
#include "settings/xml_document.h"
#include "tests/settings/failing_stream.h"

#include <gtest/gtest.h>

#include <string>

namespace qz {
namespace {

constexpr int never = -1;

std::string Document(std::size_t elements) {
    std::string text = "<r>\n";
    for (std::size_t i = 0; i < elements; ++i) text += " <e>\n" + std::to_string(i) + " </e>\n";
    return text + "</r>\n";
}

TEST(XmlStreamsFail, SavingRaisesTheStreamsOwnFailure) {
    const std::string whole = Document(20'000);  // more than one part
    qzSimpleXml document;
    ASSERT_TRUE(document.Load(MakeObject<FailingStream>(S_OK, never, whole, 100'000).Get()));
    const ComPtr<FailingStream> good = MakeObject<FailingStream>(S_OK, never);
    EXPECT_TRUE(document.Save(good.Get()));
    EXPECT_EQ(good->Text(), whole) << "though the stream takes little at a time";
    for (const int failing : {0, 1, 1'000, good->Calls() - 1}) {
        const ComPtr<FailingStream> stream = MakeObject<FailingStream>(STG_E_MEDIUMFULL, failing);
        try {
            document.Save(stream.Get());
            FAIL() << failing;
        } catch (const ComError& error) {
            EXPECT_EQ(error.code, STG_E_MEDIUMFULL);
        }
        EXPECT_EQ(stream->Calls(), failing + 1) << "nothing after the failure";
        EXPECT_EQ(stream->Text(), whole.substr(0, stream->Text().size()));
    }
    const ComPtr<FailingStream> takesNothing = MakeObject<FailingStream>(S_OK, 0);
    EXPECT_THROW(document.Save(takesNothing.Get()), ComError);
    EXPECT_THROW(document.Save(nullptr), ComError);
    EXPECT_FALSE(qzSimpleXml().Save(good.Get())) << "no root";
}

TEST(XmlStreamsFail, LoadingTellsAReadThatFails) {
    const std::string whole = Document(500);
    const ComPtr<FailingStream> good = MakeObject<FailingStream>(S_OK, never, whole);
    EXPECT_TRUE(qzSimpleXml().Load(good.Get()));
    for (int failing = 0; failing < good->Calls(); failing += 7) {
        qzSimpleXml document;
        EXPECT_FALSE(document.Load(MakeObject<FailingStream>(E_ACCESSDENIED, failing, whole).Get()))
            << failing;
        EXPECT_LE(document.GetRoot()->Children().size(), 500U);
    }
    qzSimpleXml document;
    EXPECT_FALSE(document.Load(MakeObject<FailingStream>(E_FAIL, good->Calls() - 1, whole).Get()))
        << "after the whole document";
}

}  // namespace
}  // namespace qz
