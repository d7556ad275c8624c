#include "sample/document/document_file.h"
#include "sample/document/object_access.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <string_view>

namespace qz::sample {
namespace {

using Bytes = std::vector<uint8_t>;

std::shared_ptr<const Picture> PictureOf(std::string_view text) {
    return MakePicture(std::make_shared<const Bytes>(text.begin(), text.end()), 0, text.size());
}

std::string TextOf(const Page& page) {
    if (!page.picture) return "none";
    const auto* data = page.picture->storage->data() + page.picture->offset;
    return std::string(data, data + page.picture->size);
}

Document Reloaded(const Document& document, const NumberList& sequence = {}) {
    return LoadDocument(std::make_shared<const Bytes>(SaveDocument(document, sequence)));
}

Document Sample() {
    Document document = MakeDocument(4, 12240, 15840);
    document.pages.At(2).width = 20000;
    document.pages.At(2).leftMargin = 720;
    document.pages.At(2).picture = PictureOf("second");
    document.pages.At(4).picture = PictureOf("fourth");
    const PageId page = document.pages.At(2).id;
    DocumentObject& field = document.objects.Create(object_type::field, L"Sum \u65E5", page);
    field.Find(L"Left")->value = 77;
    const ObjectId fieldId = field.id;
    DocumentObject& action = document.objects.Create(object_type::actionForm, L"submit");
    action.Find(L"Fields")->value = ObjectList{{fieldId}};
    document.AddLayer(L"Water").Find(L"CurrentViewState")->value = std::wstring(L"OFF");
    document.fonts.push_back(document.objects.Create(object_type::font, L"Arial").id);
    document.configurations.push_back(
        document.objects.Create(object_type::layerConfiguration, L"Default").id);
    const BookmarkId chapter = document.outline.Add(Outline::root, -1, L"Chapter", page, true);
    document.outline.Add(chapter, -1, L"Section", document.pages.At(4).id);
    return document;
}

TEST(DocumentFile, GivesBackEverything) {
    const Document document = Reloaded(Sample());
    ASSERT_EQ(document.pages.Count(), 4);
    EXPECT_EQ(document.pages.At(2).width, 20000);
    EXPECT_EQ(document.pages.At(2).leftMargin, 720);
    EXPECT_EQ(TextOf(document.pages.At(1)), "none");
    EXPECT_EQ(TextOf(document.pages.At(2)), "second");
    EXPECT_EQ(TextOf(document.pages.At(4)), "fourth");

    const DocumentObject* field = document.objects.Find(document.objects.FindByName(L"Sum \u65E5"));
    ASSERT_TRUE(field);
    EXPECT_EQ(field->page, document.pages.At(2).id);
    EXPECT_EQ(field->Find(L"Left")->value, Value(int32_t(77)));
    const DocumentObject* action = document.objects.Find(document.objects.FindByName(L"submit"));
    EXPECT_EQ(action->Find(L"Fields")->value, Value(ObjectList{{field->id}}));
    EXPECT_EQ(document.objects.Find(document.FindLayer(L"Water"))->Find(L"CurrentViewState")->value,
              Value(std::wstring(L"OFF")));
    EXPECT_EQ(document.fonts.size(), 1u);
    EXPECT_EQ(document.configurations.size(), 1u);

    const auto order = document.outline.InOrder();
    ASSERT_EQ(order.size(), 2u);
    EXPECT_TRUE(document.outline.Find(order[0].second)->open);
    EXPECT_EQ(order[1].first, 1);
    EXPECT_EQ(document.pages.NumberOf(document.outline.Find(order[1].second)->page), 4);
}

TEST(DocumentFile, APartHoldsThePagesOfTheSequenceInItsOrder) {
    const Document part = Reloaded(Sample(), {4, 2, 2});
    ASSERT_EQ(part.pages.Count(), 3);
    EXPECT_EQ(TextOf(part.pages.At(1)), "fourth");
    EXPECT_EQ(TextOf(part.pages.At(3)), "second");
    EXPECT_EQ(part.outline.Count(), 0u);
    EXPECT_NE(part.objects.FindByName(L"Sum \u65E5"), 0u);
    EXPECT_NE(part.objects.FindByName(L"Sum \u65E5 2"), 0u);
    EXPECT_LT(SaveDocument(Sample(), {1}).size(), SaveDocument(Sample(), {1, 2}).size());
}

TEST(DocumentFile, AppendedPagesBringTheirObjectsUnderNewIds) {
    Document document = Sample();
    AppendPages(document, Sample());
    EXPECT_EQ(document.pages.Count(), 8);
    EXPECT_EQ(document.FormFields().size(), 2u);
    const DocumentObject* action = document.objects.Find(document.objects.FindByName(L"submit 2"));
    ASSERT_TRUE(action);
    EXPECT_EQ(action->Find(L"Fields")->value, Value(ObjectList{{document.FormFields()[1]}}));
    EXPECT_EQ(document.fonts.size(), 1u);  // known by its name already
    EXPECT_EQ(document.Layers().size(), 1u);
}

TEST(DocumentFile, CutOffAnywhereIsRefused) {
    const Bytes whole = SaveDocument(Sample(), {});
    for (size_t size = 0; size < whole.size(); ++size) {
        EXPECT_THROW(LoadDocument(std::make_shared<const Bytes>(whole.begin(),
                                                                whole.begin() + static_cast<int>(size))),
                     FormatError);
    }
}

/// A damaged file is refused or gives a whole document; it is never more than that.
TEST(DocumentFile, DamagedAnywhereDoesNoHarm) {
    const Bytes whole = SaveDocument(Sample(), {});
    std::mt19937 random(7);
    int refused = 0;
    for (int round = 0; round < 4000; ++round) {
        Bytes damaged = whole;
        for (int i = 0; i < 3; ++i) damaged[random() % damaged.size()] = static_cast<uint8_t>(random());
        try {
            const Document document = LoadDocument(std::make_shared<const Bytes>(damaged));
            static_cast<void>(SaveDocument(document, {}));
        } catch (const FormatError&) {
            ++refused;
        }
    }
    EXPECT_GT(refused, 1000);
}

Document WithHeader(const std::string& header) {
    Bytes bytes = SaveDocument(Sample(), {});
    bytes.resize(documentPreambleSize);
    for (size_t i = 0; i < 4; ++i) bytes[12 + i] = static_cast<uint8_t>(header.size() >> (8 * i));
    bytes.insert(bytes.end(), header.begin(), header.end());
    std::fill(bytes.begin() + 16, bytes.begin() + 24, uint8_t{0});
    return LoadDocument(std::make_shared<const Bytes>(bytes));
}

TEST(DocumentFile, NumbersBeyondTheirSizeAreRefused) {
    const auto page = [](const std::string& further) {
        return R"({"pages": [{"width": 1, "height": 2)" + further + "}]}";
    };
    EXPECT_EQ(WithHeader(page(R"(, "leftMargin": -2147483648, "topMargin": 1e3)")).pages.Count(), 1);
    const std::string tooLarge[] = {
        page(R"(, "leftMargin": 2147483648)"),
        page(R"(, "topMargin": -2147483649)"),
        page(R"(, "rightMargin": 1e10)"),
        page(R"(, "paperBin": 32768)"),
        R"({"pages": [{"width": 18446744073709551615, "height": 2}]})",
        R"({"outline": [{"level": 4294967296, "title": "x"}]})",
        R"({"pictures": [{"offset": -1, "size": 0}]})",
        R"({"settings": {"further": [{"name": "x", "value": [1, 4294967297]}]}})",
        R"({"fonts": [{"id": 4294967296, "name": "x"}]})",
        R"({"objects": [{"type": 4294967302, "page": 1}]})",
    };
    for (const std::string& header : tooLarge) {
        try {
            WithHeader(header);
            ADD_FAILURE() << "taken: " << header;
        } catch (const FormatError& error) {
            EXPECT_STREQ(error.what(), "The document holds a number that is too large") << header;
        }
    }
}

TEST(DocumentFile, DeeplyNestedHeadersEndWithoutTheStack) {
    const std::string deep = std::string(1'000'000, '[') + std::string(1'000'000, ']');
    for (const char* key : {"pages", "settings", "document", "information", "pageCollection", "unknown"}) {
        const std::string header = std::string(R"({")") + key + R"(": )" + deep + "}";
        try {
            EXPECT_EQ(WithHeader(header).pages.Count(), 0) << key;  // what is not asked for is left alone
        } catch (const FormatError&) {
        }
    }
}

}  // namespace
}  // namespace qz::sample
