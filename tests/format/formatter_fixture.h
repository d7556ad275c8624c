// A formatter from the built DLL.
#pragma once

#include "tests/module/loaded_module.h"
#include "tests/support/error_text.h"

#include "com/object.h"
#include "generated/qzVandraExt.h"

#include <comdef.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace qz {

/// No test leaves an object behind: what keeps each other alive would.
class FormatterTest : public testing::Test {
  protected:
    void SetUp() override {
        formatter = Make<IqzFormatter>(CLSID_qzFormatter);
        ASSERT_EQ(formatter->put_DecimalSeperator(L'.'), S_OK);
        ASSERT_EQ(formatter->put_ThousandSeperator(L','), S_OK);
    }
    void TearDown() override {
        formatter.Reset();
        EXPECT_EQ(module.CanUnloadNow(), S_OK);
    }

    template <class I>
    ComPtr<I> Make(REFCLSID classId) const {
        ComPtr<I> object;
        module.Make(classId, object);
        return object;
    }

    LoadedModule module;
    ComPtr<IqzFormatter> formatter;
};

/// What a call gave in a slot that held garbage before; nothing when it left the slot null.
struct Answer {
    HRESULT code;
    std::optional<std::wstring> text;
};

template <class Call>
Answer AnswerOf(Call&& call) {
    static OLECHAR garbage[] = L"garbage";
    BSTR slot = garbage;
    const HRESULT code = call(&slot);
    if (!slot || slot == garbage)
        return {code, slot ? std::optional<std::wstring>(L"garbage") : std::nullopt};
    const std::wstring text(slot, SysStringLen(slot));
    SysFreeString(slot);
    return {code, text};
}

/// The object in a variant that a call gave in a slot of garbage; null unless it is of that interface.
template <class I, class Call>
ComPtr<I> ObjectFrom(Call&& call) {
    VARIANT slot;
    memset(&slot, 0x55, sizeof slot);
    ComPtr<I> object;
    const HRESULT code = call(&slot);
    if (FAILED(code)) {
        EXPECT_EQ(slot.vt, VT_EMPTY);
        return nullptr;
    }
    EXPECT_EQ(slot.vt, VT_DISPATCH);
    if (slot.vt == VT_DISPATCH) slot.pdispVal->QueryInterface(IID_PPV_ARGS(&object));
    VariantClear(&slot);
    return object;
}

}  // namespace qz
