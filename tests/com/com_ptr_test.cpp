// When two references are the same object.
#include "tests/support/silent_dispatch.h"

#include <gtest/gtest.h>

#include <concepts>

namespace qz {
namespace {

#ifdef __MINGW32__
template <class A, class B>
concept Compares = requires(const A& a, const B& b) {
    a == b;
}
|| requires(const A& a, const B& b) { a != b; };
static_assert(!Compares<ComPtr<IUnknown>, ComPtr<IUnknown>> &&
              !Compares<ComPtr<IDispatch>, ComPtr<IUnknown>>);
static_assert(Compares<ComPtr<IUnknown>, std::nullptr_t> && Compares<std::nullptr_t, ComPtr<IUnknown>>);
#endif

/// Two interfaces; it may hide its identity.
class TwoFaced final : public Object<TwoFaced, SilentDispatch, IOleWindow> {
  public:
    bool hides = false;

    STDMETHODIMP QueryInterface(REFIID iid, void** result) override {
        return hides ? E_NOINTERFACE : Object::QueryInterface(iid, result);
    }
    STDMETHODIMP GetWindow(HWND*) override { return E_NOTIMPL; }
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return E_NOTIMPL; }
};

TEST(ComPointers, AreTheSameByIdentity) {
    const auto made = MakeObject<TwoFaced>(), otherMade = MakeObject<TwoFaced>();
    const ComPtr<IDispatch> one = made.Get(), other = otherMade.Get(), none;
    const ComPtr<IOleWindow> face = made.Get();
    EXPECT_TRUE(SameObject(one, one) && SameObject(one, face) && SameObject(face, one));
    EXPECT_FALSE(SameObject(one, other) || SameObject(face, other));
    EXPECT_FALSE(SameObject(one, none) || SameObject(none, face));
    EXPECT_TRUE(SameObject(none, none));
    made->hides = true;
    EXPECT_TRUE(SameObject(one, one));
    EXPECT_FALSE(SameObject(one, face) || SameObject(one, other) || SameObject(other, one));
    otherMade->hides = true;
    EXPECT_FALSE(SameObject(one, other)) << "neither tells";
}

}  // namespace
}  // namespace qz
