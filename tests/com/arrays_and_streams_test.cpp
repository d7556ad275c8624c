// Arrays for scripts, enumerators over them, and streams that end too early.
#include "com/enumerator.h"
#include "com/safe_array.h"
#include "com/stream.h"

#include <comdef.h>
#include <gtest/gtest.h>

namespace qz {
namespace {

ULONG ReferencesOf(IUnknown* object) { return object->AddRef(), object->Release(); }

TEST(SafeArrays, CountTheirObjectsAndLetThemGo) {
    const ComPtr<IStream> stream = MakeMemoryStream();
    using Variants = Enumerator<IEnumVARIANT, VARIANT, _variant_t, CopyVariant>;
    const auto object =
        MakeObject<Variants>(std::vector<_variant_t>{_variant_t(1L), _variant_t(stream.Get())});
    EXPECT_EQ(ReferencesOf(stream.Get()), 2u);
    VARIANT items[3] = {};
    ULONG fetched = 9;
    EXPECT_EQ(object->Next(3, items, &fetched), S_FALSE);
    EXPECT_EQ(fetched, 2u);
    EXPECT_EQ(ReferencesOf(stream.Get()), 3u);
    EXPECT_EQ(VariantClear(&items[1]), S_OK);
    EXPECT_EQ(object->Reset(), S_OK);
    EXPECT_EQ(object->Skip(1), S_OK);
    EXPECT_EQ(object->Next(1, items, nullptr), S_OK) << "one was skipped, not two";
    EXPECT_EQ(items[0].vt, VT_UNKNOWN);
    EXPECT_EQ(VariantClear(&items[0]), S_OK);
    EXPECT_EQ(object->Skip(1), S_FALSE);
}

/// Its second item cannot be copied.
struct FailingCopy : CopyVariant {
    static void Copy(VARIANT& to, const VARIANT& from) {
        if (from.vt == VT_EMPTY) Throw(E_ABORT);
        CopyVariant::Copy(to, from);
    }
};

TEST(Enumerators, TakeBackWhatWasGivenBeforeAFailure) {
    const ComPtr<IStream> stream = MakeMemoryStream();
    using Variants = Enumerator<IEnumVARIANT, VARIANT, _variant_t, FailingCopy>;
    const auto object = MakeObject<Variants>(std::vector<_variant_t>{_variant_t(stream.Get()), _variant_t()});
    VARIANT items[2] = {};
    ULONG fetched = 9;
    EXPECT_EQ(object->Next(2, items, &fetched), E_ABORT);
    EXPECT_EQ(fetched, 0u);
    EXPECT_EQ(ReferencesOf(stream.Get()), 2u);
    EXPECT_EQ(object->Next(1, items, &fetched), S_OK) << "nothing was passed over";
    VariantClear(&items[0]);
}

TEST(SafeArrays, HoldNumbersAsScriptsReadThem) {
    const long numbers[] = {7, -1};
    const SafeArray plain = MakeLongArray(numbers), variants = MakeVariantArray(numbers);
    const SafeArrayView<long> longs(plain.Get());
    const SafeArrayView<VARIANT> values(variants.Get());
    ASSERT_EQ(longs.Elements().size(), 2u);
    for (const std::size_t i : {0u, 1u}) {
        EXPECT_EQ(longs.Elements()[i], numbers[i]);
        EXPECT_EQ(values.Elements()[i].vt, VT_I4);
        EXPECT_EQ(values.Elements()[i].lVal, numbers[i]);
    }
    EXPECT_EQ(MakeObjectArray({}).Get()->rgsabound[0].cElements, 0u);
}

TEST(Streams, EndWithAnErrorNotWithLess) {
    const ComPtr<IStream> stream = MakeMemoryStream();
    const std::vector<std::byte> written(100'000, std::byte{5});
    WriteBytes(stream.Get(), written);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    EXPECT_EQ(ReadToEnd(stream.Get()), written);
    EXPECT_TRUE(ReadToEnd(stream.Get()).empty());
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    std::vector<std::byte> more(written.size() + 1);
    EXPECT_THROW(ReadBytes(stream.Get(), more), ComError);
}

}  // namespace
}  // namespace qz
