#include "sample/document/object_path.h"

#include <gtest/gtest.h>

namespace qz::sample {
namespace {

TEST(ObjectPaths, OfTheContractAreUnderstood) {
    EXPECT_EQ(ParseObjectPath(L"Document")->kind, PathKind::Document);
    EXPECT_EQ(ParseObjectPath(L"DocInfo")->kind, PathKind::Information);
    EXPECT_EQ(ParseObjectPath(L"Pages")->kind, PathKind::Pages);
    EXPECT_EQ(ParseObjectPath(L"Pages[100000]")->number, 100000);
    EXPECT_EQ(ParseObjectPath(L"Layers[a]b]")->name, L"a]b");
    EXPECT_EQ(ParseObjectPath(L"Layers[]")->name, L"");
    EXPECT_EQ(ParseObjectPath(L"Objects[#17]")->kind, PathKind::ObjectById);
    EXPECT_EQ(ParseObjectPath(L"Objects[My field]")->name, L"My field");
    EXPECT_EQ(ParseObjectPath(L"Fonts[2]")->number, 2);
    EXPECT_EQ(ParseObjectPath(L"LayerConfigs[1]")->kind, PathKind::Configuration);
}

TEST(ObjectPaths, OfAnyOtherFormAreRefused) {
    for (const wchar_t* path : {L"", L"[", L"]", L"[]", L"Pages[", L"Pages]", L"Pages[]", L"Pages[-1]",
                                L"Pages[1", L"Pages[1]]", L"Pages[9999999999]", L"Pages[ 1]", L"pages[1]",
                                L"Documents", L"Page[1]", L"Objects[#]", L"Objects[#x]"}) {
        EXPECT_FALSE(ParseObjectPath(path)) << path;
    }
}

}  // namespace
}  // namespace qz::sample
