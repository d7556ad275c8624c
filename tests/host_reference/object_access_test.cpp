#include "sample/document/object_access.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>

namespace qz::sample {
namespace {

ObjectKey At(const Document& document, const wchar_t* path) {
    return Resolve(document, *ParseObjectPath(path)).value();
}

AccessFailure FailureOf(const std::function<void()>& access) {
    try {
        access();
    } catch (const AccessError& error) {
        return error.failure;
    }
    ADD_FAILURE() << "nothing failed";
    return {};
}

struct ObjectAccess : testing::Test {
    Document document = MakeDocument(3, 12240, 15840);
    ObjectKey settings = At(document, L"Document");
    ObjectKey page2 = At(document, L"Pages[2]");
};

TEST_F(ObjectAccess, APageIsKnownWhereverItMoves) {
    document.pages.Move(2, 1, 3);
    EXPECT_EQ(PathOf(document, page2), L"Pages[3]");
    EXPECT_EQ(WriteAttribute(document, page2, L"Width", 100), change::pageSize);
    EXPECT_EQ(document.pages.At(3).width, 100);
    RemovePage(document, 3);
    EXPECT_EQ(FailureOf([&] { ReadAttribute(document, page2, L"Width"); }), AccessFailure::NoSuchObject);
}

TEST_F(ObjectAccess, WritingWhatIsThereAlreadyChangesNothing) {
    EXPECT_EQ(WriteAttribute(document, page2, L"Width", std::wstring(L"12240")), change::none);
    EXPECT_EQ(WriteAttribute(document, settings, L"Title", std::wstring()), change::none);
    EXPECT_EQ(WriteAttribute(document, settings, L"Title", std::wstring(L"x")), change::documentSettings);
}

TEST_F(ObjectAccess, FailuresTellTheirReason) {
    EXPECT_EQ(FailureOf([&] { ReadAttribute(document, settings, L"None"); }), AccessFailure::NoSuchAttribute);
    EXPECT_EQ(FailureOf([&] { WriteAttribute(document, settings, L"Permissions", 1); }),
              AccessFailure::ReadOnly);
    EXPECT_EQ(FailureOf([&] { WriteAttribute(document, settings, L"Fonts", 1); }), AccessFailure::ReadOnly);
    EXPECT_EQ(FailureOf([&] { WriteAttribute(document, page2, L"Width", std::wstring(L"wide")); }),
              AccessFailure::BadValue);
    EXPECT_EQ(FailureOf([&] {
                  WriteAttribute(document, settings, L"PageSequence", NumberList{1, 4});
              }),
              AccessFailure::BadValue);
}

TEST_F(ObjectAccess, TheDocumentsPageSetupIsThatOfAllPages) {
    EXPECT_EQ(WriteAttribute(document, settings, L"Length", 20160), change::pageSize);
    for (int32_t number = 1; number <= 3; ++number) EXPECT_EQ(document.pages.At(number).height, 20160);
    EXPECT_EQ(ReadAttribute(document, settings, L"Length"), Value(int32_t(20160)));
}

TEST_F(ObjectAccess, PageSequenceTravelsInAnyFormAndEndsWithThePagesItNames) {
    EXPECT_EQ(ReadAttribute(document, settings, L"PageSequence"), Value());
    WriteAttribute(document, settings, L"PageSequence", std::wstring(L"3, 1"));
    EXPECT_EQ(ReadAttribute(document, settings, L"PageSequence"), Value(NumberList{3, 1}));
    RemovePage(document, 3);
    EXPECT_EQ(ReadAttribute(document, settings, L"PageSequence"), Value());
}

TEST_F(ObjectAccess, ObjectsAreFoundByNameAfterRenaming) {
    const ObjectId field = document.objects.Create(object_type::field, L"field", document.pages.At(1).id).id;
    const ObjectId other = document.objects.Create(object_type::field, L"field", document.pages.At(1).id).id;
    EXPECT_EQ(PathOf(document, {ObjectKey::Kind::Object, other}), L"Objects[field 2]");
    WriteAttribute(document, {ObjectKey::Kind::Object, field}, L"Name", std::wstring(L"total"));
    EXPECT_EQ(At(document, L"Objects[total]").id, field);
    EXPECT_FALSE(Resolve(document, *ParseObjectPath(L"Objects[field]")));
    WriteAttribute(document, {ObjectKey::Kind::Object, other}, L"Name", std::wstring());
    EXPECT_EQ(PathOf(document, {ObjectKey::Kind::Object, other}),
              L"Objects[#" + std::to_wstring(other) + L"]");
    RemovePage(document, 1);
    EXPECT_FALSE(Resolve(document, *ParseObjectPath(L"Objects[total]")));
}

TEST_F(ObjectAccess, SettingsMayBringNewAttributes) {
    EXPECT_EQ(ApplySetting(document, settings, L"PagesInCache", 7), change::documentSettings);
    EXPECT_EQ(ReadAttribute(document, settings, L"PagesInCache"), Value(int32_t(7)));
    EXPECT_EQ(ApplySetting(document, settings, L"PagesInCache", 7), change::none);
}

}  // namespace
}  // namespace qz::sample
