#include "panes/layers/layer_visibility.h"

#include <gtest/gtest.h>

#include <random>

namespace qz {
namespace {

// Layers made of configuration texts. Those whose name begins with a small letter are hidden at first, those
// that begin with "-" are headings.
LayerRecords Make(std::wstring_view order, std::wstring_view groups = L"") {
    LayerRecords records;
    for (OrderedName& item : ParseLayerOrder(order)) {
        const auto added = records.AddItem(std::move(item.name), item.parent);
        LayerRecord& layer = records.All()[added.record];
        layer.missing = layer.name.starts_with(L'-');
        layer.visible = !layer.missing && !(layer.name >= L"a");
    }
    for (const auto& names : ParseLayerGroups(groups)) records.AddGroup(names);
    return records;
}

class Visibility : public testing::Test {
  protected:
    void Start(std::wstring_view order, std::wstring_view groups = L"") { layers.Start(Make(order, groups)); }

    std::size_t Named(const std::wstring& name) const { return layers.Records().Find(name).value(); }
    const LayerRecord& Layer(const std::wstring& name) const { return layers.Records().All()[Named(name)]; }
    bool Disabled(const std::wstring& name) const { return Layer(name).DisabledByParent(); }

    // "+A -B": what is to be written.
    std::wstring Text(const LayerChange& change) const {
        std::wstring text;
        for (const LayerWrite& write : change.writes) {
            if (!text.empty()) text += L' ';
            text += (write.visible ? L'+' : L'-') + layers.Records().All()[write.record].name;
        }
        return text;
    }
    std::wstring Set(const std::wstring& name, bool visible) {
        const auto change = layers.Set(Named(name), visible);
        return change ? Text(*change) : L"refused";
    }
    std::wstring Visible() const {
        std::wstring text;
        for (const LayerRecord& layer : layers.Records().All()) text += layer.visible ? layer.name : L"";
        return text;
    }

    LayerVisibility layers;
};

TEST_F(Visibility, HiddenParentHidesAndGivesBackEachOwnState) {
    Start(L"(A)[(B)[(C)](d)](E)");
    EXPECT_EQ(Set(L"A", false), L"-A -B -C");
    EXPECT_TRUE(Disabled(L"B") && Disabled(L"C") && Disabled(L"d"));
    EXPECT_FALSE(Disabled(L"A") || Disabled(L"E"));
    EXPECT_EQ(Set(L"C", true), L"refused");
    EXPECT_EQ(Set(L"d", true), L"refused");
    EXPECT_EQ(Set(L"A", true), L"+A +B +C");
    EXPECT_FALSE(Disabled(L"C"));
    EXPECT_EQ(Set(L"B", false), L"-B -C");
    EXPECT_EQ(Set(L"A", false), L"-A");
    EXPECT_EQ(Set(L"A", true), L"+A") << "B was hidden for itself, C with it";
    EXPECT_EQ(Set(L"A", true), L"");
}

TEST_F(Visibility, HeadingsHideNothing) {
    Start(L"(-H)[(A)[(-I)[(B)]]]");
    EXPECT_FALSE(Disabled(L"A"));
    EXPECT_EQ(Set(L"-H", true), L"refused");
    EXPECT_EQ(Set(L"A", false), L"-A -B") << "through a heading";
    EXPECT_EQ(Set(L"A", true), L"+A +B");
}

TEST_F(Visibility, OneOfARadioGroup) {
    Start(L"(A)[(B)](c)[(D)](e)", L"[(A)(c)(e)]");
    EXPECT_EQ(Visible(), L"ABD") << "what the host says is not questioned";
    EXPECT_TRUE(Disabled(L"D"));
    EXPECT_EQ(Set(L"c", true), L"-A -B +c") << "with what stands below the others; D is shown already";
    EXPECT_EQ(Set(L"e", true), L"-c -D +e");
    EXPECT_EQ(Set(L"e", false), L"-e");
    EXPECT_EQ(Set(L"A", true), L"+A +B");
}

TEST_F(Visibility, ALayerOfSeveralRadioGroups) {
    Start(L"(A)(B)(C)(d)", L"[(A)(d)][(B)(d)(d)][(x)]");
    EXPECT_EQ(Set(L"d", true), L"-A -B +d");
    EXPECT_EQ(Set(L"A", true), L"+A -d");
    EXPECT_EQ(Visible(), L"AC");
}

TEST_F(Visibility, ShownParentShowsTheLastOfAGroup) {
    Start(L"(P)[(A)(b)(C)](E)", L"[(A)(b)(C)]");
    EXPECT_EQ(Set(L"P", false), L"-P -A -C");
    EXPECT_EQ(Set(L"P", true), L"+P +C");
    EXPECT_FALSE(Layer(L"A").wanted);
    Start(L"(P)[(A)](Q)[(b)]", L"[(A)(b)]");
    Set(L"P", false);
    Set(L"b", true);
    EXPECT_EQ(Set(L"P", true), L"+P +A -b") << "what becomes visible turns the others off";
}

TEST_F(Visibility, GroupOfALayerAndOneBelowIt) {
    Start(L"(a)[(B)](C)", L"[(a)(B)]");
    EXPECT_EQ(Set(L"a", true), L"+a -B") << "B was visible below a hidden layer, and is of its group";
    EXPECT_EQ(Visible(), L"aC");
    EXPECT_EQ(Set(L"B", true), L"") << "it would hide what it stands below";
}

TEST_F(Visibility, ANameMetTwiceIsOneLayer) {
    Start(L"(A)[(X)](B)[(X)[(Y)]]");
    EXPECT_EQ(Set(L"A", false), L"-A") << "X is also below B";
    EXPECT_FALSE(Disabled(L"X"));
    EXPECT_EQ(Set(L"B", false), L"-X -B -Y");
    EXPECT_TRUE(Disabled(L"X"));
    EXPECT_EQ(Set(L"A", true), L"+A +X");
    EXPECT_EQ(Set(L"Y", true), L"refused") << "it stands below B only";
    Start(L"(A)[(A)[(B)]](B)[(A)]");
    EXPECT_EQ(Set(L"A", false), L"-A");
    EXPECT_EQ(Set(L"B", false), L"-B");
    EXPECT_EQ(Set(L"A", true), L"+A") << "layers below themselves do not lock each other out";
    EXPECT_EQ(Set(L"B", true), L"+B");
}

TEST_F(Visibility, AllOfThem) {
    Start(L"(A)[(b)(-H)[(c)]](d)", L"[(b)(d)]");
    EXPECT_EQ(Text(layers.SetAll(true)), L"+c +d") << "the last of the group";
    EXPECT_EQ(Text(layers.SetAll(false)), L"-A -c -d");
    EXPECT_EQ(Text(layers.SetAll(false)), L"");
    EXPECT_EQ(Text(layers.ShowOnly(3)), L"+A +c") << "with what is above it";
    EXPECT_EQ(Text(layers.Reset()), L"-c");
    EXPECT_EQ(Text(layers.ShowOnly(0)), L"") << "what is below stays as it was chosen";
}

TEST_F(Visibility, ResetIsExact) {
    Start(L"(a)[(B)](C)", L"[(B)(C)]");
    EXPECT_EQ(Visible(), L"BC") << "against all rules";
    EXPECT_EQ(Set(L"a", true), L"+a");
    EXPECT_EQ(Set(L"C", false), L"-C");
    EXPECT_EQ(Text(layers.Reset()), L"-a +C");
    EXPECT_EQ(Visible(), L"BC");
    EXPECT_TRUE(Disabled(L"B"));
}

TEST_F(Visibility, NewsOfTheHostBecomeTheOwnState) {
    Start(L"(A)[(B)(C)]");
    Set(L"A", false);
    for (const wchar_t* name : {L"A", L"B", L"C"}) layers.TakeHostState(Named(name), false);
    layers.UpdateMarks();
    EXPECT_EQ(Set(L"A", true), L"+A +B +C") << "no news";
    layers.TakeHostState(Named(L"A"), false);
    layers.TakeHostState(Named(L"C"), false);
    layers.UpdateMarks();
    EXPECT_TRUE(Disabled(L"B"));
    EXPECT_EQ(Set(L"A", true), L"+A") << "B was visible all the time, C was hidden by somebody";
}

TEST_F(Visibility, UndoKeepsWhatWasWritten) {
    Start(L"(A)[(B)(C)]");
    const auto change = layers.Set(Named(L"A"), false);
    layers.Undo(*change, 1);
    EXPECT_EQ(Visible(), L"BC");
    EXPECT_TRUE(Disabled(L"B"));
    EXPECT_EQ(Set(L"A", true), L"+A");
    layers.Undo(*layers.Set(Named(L"A"), false), 0);
    EXPECT_EQ(Visible(), L"ABC");
    EXPECT_EQ(Set(L"B", false), L"-B");
}

TEST(LayerRecords, ListedWithWhatIsBelow) {
    const LayerRecords records = Make(L"(-H)[(A)[(B)]](-I)[(C)](D)");
    using Flags = std::vector<bool>;
    EXPECT_EQ(records.Listed(Flags(6, true)), Flags(6, true));
    EXPECT_EQ(records.Listed({false, false, true, false, false, true}),
              (Flags{true, true, true, false, false, true}));
    EXPECT_EQ(records.Listed({true, false, false, true, false, false}), Flags(6))
        << "headings alone are not listed";
}

// After any changes of consistent layers: nothing is visible below a hidden layer, one of a group at most,
// marks and writes are what they say.
TEST(VisibilityFuzz, RulesHoldAfterAnyChange) {
    std::mt19937 random(7);
    for (int round = 0; round < 400; ++round) {
        std::wstring order, groups;
        for (int i = 0; i < 24; ++i) {
            order += L'(' + std::wstring(1, static_cast<wchar_t>(L'a' + random() % 14)) + L')';
            if (random() % 3 == 0) order += L'[';
            if (random() % 4 == 0) order += L']';
        }
        for (int i = 0; i < 6; ++i) {
            groups += L"[(" + std::wstring(1, static_cast<wchar_t>(L'a' + random() % 14)) + L")(" +
                      std::wstring(1, static_cast<wchar_t>(L'a' + random() % 14)) + L")]";
        }
        LayerVisibility layers;
        layers.Start(Make(order, groups));
        const auto& all = layers.Records().All();
        std::vector<bool> host(all.size());
        for (int move = 0; move < 60; ++move) {
            const std::size_t record = random() % all.size();
            LayerChange change;
            switch (random() % 6) {
                case 0:
                    change = layers.SetAll(random() % 2 == 0);
                    break;
                case 1:
                    change = layers.ShowOnly(all[record].items.front());
                    break;
                case 2:
                    change = layers.Reset();
                    break;
                default:
                    change = layers.Set(record, !all[record].visible).value_or(LayerChange{});
                    break;
            }
            for (const LayerWrite& write : change.writes) {
                ASSERT_NE(host[write.record], write.visible) << "written without need";
                host[write.record] = write.visible;
            }
            std::vector<int> inGroup(layers.Records().GroupCount());
            for (std::size_t i = 0; i < all.size(); ++i) {
                ASSERT_EQ(host[i], all[i].visible);
                bool open = false;
                for (std::size_t item : all[i].items) {
                    bool hidden = false;
                    for (std::size_t up = layers.Records().Items()[item].parent; up != noItem;
                         up = layers.Records().Items()[up].parent) {
                        hidden = hidden || !layers.Records().RecordOf(up).visible;
                    }
                    open = open || !hidden;
                }
                ASSERT_EQ(all[i].DisabledByParent(), !open);
                ASSERT_EQ(all[i].visible, all[i].wanted && open) << order << ' ' << groups;
                for (const std::size_t group : all[i].groups) inGroup[group] += all[i].visible;
            }
            for (const int visible : inGroup) ASSERT_LE(visible, 1);
        }
    }
}

TEST(VisibilityFuzz, DeepAndWideTreesTakeOnePass) {
    std::wstring chain, flat, same;
    for (int i = 0; i < 10'000; ++i) {
        const std::wstring name = L'(' + std::wstring(L"N") + std::to_wstring(i) + L')';
        chain += name + L'[';
        flat += name;
        same += L"(S)[";
    }
    for (const std::wstring& order : {chain, flat, same, L"(P)[" + flat}) {
        LayerVisibility layers;
        layers.Start(Make(order, L"[" + (order == flat ? flat : std::wstring()) + L"]"));
        const auto hidden = layers.SetAll(false);
        EXPECT_EQ(hidden.writes.size(), layers.Records().All().size());
        layers.Reset();
        ASSERT_TRUE(layers.Set(0, false));
        ASSERT_TRUE(layers.Set(0, true));
    }
}

}  // namespace
}  // namespace qz
