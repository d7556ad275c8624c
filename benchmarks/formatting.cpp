#include "benchmarks/subjects.h"

#include "com/error.h"
#include "com/object.h"
#include "tests/module/loaded_module.h"

#include "generated/qzVandraExt.h"

#include <comdef.h>

#include <string_view>

namespace qz::bench {

namespace {

constexpr wchar_t pattern[] = L"#,###.00";
constexpr double number = 1234567.891;

/// A time is worth nothing when the work was not done.
void Expect(BSTR text, std::wstring_view expected) {
    if (std::wstring_view(text, SysStringLen(text)) != expected)
        Throw(E_UNEXPECTED, L"A number is not formatted");
}

/// The formatter of the built module, used through its interface.
class OurFormatter {
  public:
    OurFormatter() {
        ComPtr<IClassFactory> factory;
        ThrowIfFailed(module_.GetClassObject(CLSID_qzFormatter, IID_PPV_ARGS(&factory)));
        ThrowIfFailed(factory->CreateInstance(nullptr, IID_PPV_ARGS(&formatter_)));
        ThrowIfFailed(formatter_->put_DecimalSeperator(L'.'));
        ThrowIfFailed(formatter_->put_ThousandSeperator(L','));
    }

    void Format() {
        BSTR text = nullptr;
        ThrowIfFailed(formatter_->FormatData(pattern_, number_, &text));
        Expect(text, L"1,234,567.89");
        SysFreeString(text);
    }

  private:
    LoadedModule module_;
    ComPtr<IqzFormatter> formatter_;
    _bstr_t pattern_{pattern};
    _variant_t number_{number};
};

/// The system's own function. What it writes depends on the user's separators.
class SystemsFormatter {
  public:
    void Format() {
        BSTR text = nullptr;
        ThrowIfFailed(VarFormat(&number_, pattern_, 0, 0, 0, &text));
        if (SysStringLen(text) != 12) Throw(E_UNEXPECTED, L"VarFormat does not format a number");
        SysFreeString(text);
    }

  private:
    _bstr_t pattern_{pattern};
    _variant_t number_{number};
};

}  // namespace

void MeasureFormatting(Report& report) {
    OurFormatter ours;
    SystemsFormatter systems;
    report.AddTime("a number by \"#,###.00\" to VarFormat",
                   MeasureBoth([&] { ours.Format(); }, [&] { systems.Format(); }), 0.1);
}

}  // namespace qz::bench
