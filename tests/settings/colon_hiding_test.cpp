#include "settings/colon_hiding.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace qz {
namespace {

std::string Hidden(std::string_view text, std::size_t pieceLength = 1000) {
    ColonHider hider;
    std::string hidden;
    for (; !text.empty(); text.remove_prefix(std::min(pieceLength, text.size()))) {
        hider.Hide(text.substr(0, pieceLength), hidden);
    }
    return hidden;
}

TEST(ColonHiding, OnlyNamesAreHidden) {
    const struct {
        const char* text;
        const char* hidden;
    } cases[] = {
        {"<a:b c:d=\"e:f_g\" h_i = 'x:\"_'>j:k_l</a:b >",
         "<a_cb c_cd=\"e:f_g\" h__i = 'x:\"_'>j:k_l</a_cb >"},
        {"<:/><_x:y/>", "<_c/><__x_cy/>"},
        {"<a b='>' c:d=\"'\"/>e:f", "<a b='>' c_cd=\"'\"/>e:f"},
        {"<!-- <a:b> - -> '--><a:b/>", "<!-- <a:b> - -> '--><a_cb/>"},
        {"<!----><a:b/>", "<!----><a_cb/>"},
        {"<a><![CDATA[<b:c>]] ]> \"]]]><d:e/></a>", "<a><![CDATA[<b:c>]] ]> \"]]]><d_ce/></a>"},
        {"<?xml version=\"1.0\" encoding=\"shift_jis\"?><a:b/>",
         "<?xml version=\"1.0\" encoding=\"shift_jis\"?><a_cb/>"},
        {"<?a:b <c:d> ? > ' ?><?g h?\?><?e:f?><i:j/>", "<?a_cb <c:d> ? > ' ?><?g h?\?><?e_cf?><i_cj/>"},
        {"<!DOCTYPE a:b [<!ENTITY x \"]><y:z>\" n_d><!-- ' --><?p '?><!ELEMENT a:b (c_d)>]><a:b>&x;</a:b>",
         "<!DOCTYPE a:b [<!ENTITY x \"]><y:z>\" n_d><!-- ' --><?p '?><!ELEMENT a:b (c_d)>]><a_cb>&x;</a_cb>"},
        {"<!DOCTYPE a SYSTEM 'x>y'><b:c/>", "<!DOCTYPE a SYSTEM 'x>y'><b_cc/>"},
        {"<\xC3\xA4:\xE5\xB1\xA4/>", "<\xC3\xA4_c\xE5\xB1\xA4/>"},
        {"", ""}};
    for (const auto& [text, hidden] : cases) {
        EXPECT_EQ(Hidden(text), hidden);
        for (const std::size_t pieceLength : {1, 2, 3, 7}) {
            EXPECT_EQ(Hidden(text, pieceLength), hidden) << pieceLength;
        }
    }
}

std::wstring Restored(std::wstring_view hidden) {
    std::wstring name = L"old";
    RestoreName(hidden, name);
    return name;
}

TEST(ColonHiding, EveryNameComesBack) {
    std::mt19937 random(5);
    for (int i = 0; i < 5'000; ++i) {
        std::string name;
        for (auto length = 1 + random() % 8; length > 0; --length) name += "_:ca"[random() % 4];
        const std::string hidden = Hidden("<" + name + ">");
        ASSERT_EQ(hidden.find(':'), std::string::npos) << name;
        const std::wstring inside(hidden.begin() + 1, hidden.end() - 1);
        ASSERT_EQ(Restored(inside), std::wstring(name.begin(), name.end()));
    }
    EXPECT_EQ(Restored(L"a_"), L"a_") << "such a name was never hidden";
}

TEST(ColonHiding, AnyInputIsTaken) {
    std::mt19937 random(6);
    for (int i = 0; i < 5'000; ++i) {
        std::string text;
        for (auto length = random() % 60; length > 0; --length) text += "<>!?-[]\"'=/:_ aD"[random() % 16];
        ASSERT_EQ(Hidden(text, 1), Hidden(text));
        ASSERT_GE(Hidden(text).size(), text.size());
    }
}

}  // namespace
}  // namespace qz
