#include "sample/host/call_recorder.h"
#include "sample/host/host_model.h"

#include <gtest/gtest.h>

namespace qz::sample {
namespace {

struct Model : testing::Test {
    Model() {
        model.Replace(MakeDocument(6, 12240, 15840));
        model.changes.Take(model.View());
        for (int32_t number = 1; number <= 6; ++number) model.Doc().pages.At(number).width = number;
    }
    std::vector<int32_t> Widths() {
        std::vector<int32_t> widths;
        for (int32_t number = 1; number <= model.Doc().pages.Count(); ++number) {
            widths.push_back(model.Doc().pages.At(number).width);
        }
        return widths;
    }
    uint32_t Told() { return model.changes.Take(model.View()); }

    HostModel model;
};

TEST_F(Model, MovedBlocksStartAtTheirTarget) {
    model.MovePages(1, 2, 4);
    EXPECT_EQ(Widths(), (std::vector<int32_t>{3, 4, 5, 1, 2, 6}));
    model.MovePages(4, 2, 1);
    EXPECT_EQ(Widths(), (std::vector<int32_t>{1, 2, 3, 4, 5, 6}));
    model.MovePages(5, 2, 1);
    EXPECT_EQ(Widths(), (std::vector<int32_t>{5, 6, 1, 2, 3, 4}));
    EXPECT_NE(Told() & change::pages, 0u);
    model.MovePages(2, 2, 2);
    EXPECT_EQ(Told(), change::none);
}

TEST_F(Model, ImpossibleMovesChangeNothing) {
    const struct {
        int32_t first, count, target;
    } rows[] = {{0, 1, 1}, {7, 1, 1},  {1, 7, 1}, {6, 2, 1},
                {1, 2, 6}, {1, -1, 1}, {1, 1, 0}, {1, INT32_MAX, 1}};
    for (const auto& row : rows) EXPECT_THROW(model.MovePages(row.first, row.count, row.target), AccessError);
    EXPECT_EQ(Widths(), (std::vector<int32_t>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(Told(), change::none);
}

TEST_F(Model, TheCurrentPageStaysTheSamePage) {
    model.SetCurrentPage(3);
    model.MovePages(1, 1, 6);
    EXPECT_EQ(model.View().currentPage, 2);
    model.DeletePage(1);
    EXPECT_EQ(model.View().currentPage, 1);
    EXPECT_EQ(model.CurrentPage().width, 3);
    model.SetCurrentPage(5);
    model.DeletePage(5);
    EXPECT_EQ(model.View().currentPage, 4);
}

TEST_F(Model, OnePageRemains) {
    for (int i = 0; i < 5; ++i) model.DeletePage(1);
    EXPECT_THROW(model.DeletePage(1), AccessError);
    EXPECT_EQ(Widths(), std::vector<int32_t>{6});
}

TEST_F(Model, ADocumentWithoutPagesHasNoCurrentPage) {
    model.Replace(Document());
    EXPECT_EQ(model.View().currentPage, 0);
    EXPECT_THROW(model.SetCurrentPage(1), AccessError);
    EXPECT_THROW(model.CurrentPage(), AccessError);
    model.AppendEmptyPages(2, 100, 100);
    EXPECT_EQ(model.View().currentPage, 1);
}

TEST_F(Model, ASelectionIsWrittenWholeOrNotAtAll) {
    const ObjectKey field = model.CreateObject(object_type::field, L"field");
    const ObjectKey picture = model.CreateObject(object_type::picture, L"picture");
    model.Select(field, false);
    model.Select(picture, true);
    model.WriteSelection(L"BorderColor", 255);
    EXPECT_EQ(ReadAttribute(model.Doc(), picture, L"BorderColor"), Value(int32_t(255)));
    EXPECT_THROW(model.WriteSelection(L"Text", std::wstring(L"only the field has one")), AccessError);
    EXPECT_EQ(ReadAttribute(model.Doc(), field, L"Text"), Value(std::wstring()));
}

TEST_F(Model, SelectedObjectsLeaveWithTheirPage) {
    model.Select(model.CreateObject(object_type::field, L"field"), false);
    Told();
    model.DeletePage(1);
    EXPECT_TRUE(model.Selection().empty());
    EXPECT_NE(Told() & change::selection, 0u);
    model.SelectNothing();
    EXPECT_EQ(Told(), change::none);
}

TEST_F(Model, ProtectionNeedsTheOwnersRights) {
    model.Protect(128, L"owner", L"", 12);
    EXPECT_EQ(ReadAttribute(model.Doc(), {ObjectKey::Kind::Object, model.Doc().Settings()}, L"Security"),
              Value(int16_t(128)));
    model.Doc().objects.Find(model.Doc().Settings())->Find(L"OwnerAccess")->value = false;
    EXPECT_THROW(model.Protect(0, L"", L"", 0), AccessError);
}

TEST(Calls, AreCountedAndFailAsPlanned) {
    CallRecorder calls;
    EXPECT_EQ(calls.Enter(Place::GetZoom), 0);
    calls.FailCall(2, -5);
    calls.FailOperation(LateBound::BookmarkItem, -6);
    EXPECT_EQ(calls.Enter(Place::GetZoom), 0);
    EXPECT_EQ(calls.Enter(Place::GetPageCount), -5);
    EXPECT_EQ(calls.Enter(Place::GetPageCount), 0);
    EXPECT_EQ(calls.Enter(LateBound::BookmarkItem), -6);
    EXPECT_EQ(calls.Enter(LateBound::BookmarkItem), -6);
    calls.ClearFaults();
    EXPECT_EQ(calls.Enter(LateBound::BookmarkItem), 0);
    int interrupted = 0;
    calls.InterruptCall(2, [&] { interrupted += 1 + calls.Enter(Place::GetZoom); });
    for (const int after : {0, 1, 1}) {
        EXPECT_EQ(calls.Enter(LateBound::BookmarkItem), 0);
        EXPECT_EQ(interrupted, after);
    }
    EXPECT_EQ(calls.Total(), 11u);
    EXPECT_EQ(calls.CountOf(LateBound::BookmarkItem), 6u);
    EXPECT_EQ(NameOf(*FindOperation(L"DrawCurrentPage")), L"DrawCurrentPage");
    EXPECT_EQ(Operation(Place::DrawCurrentPage).number, 190u);
    EXPECT_FALSE(FindOperation(L"Nothing"));
}

}  // namespace
}  // namespace qz::sample
