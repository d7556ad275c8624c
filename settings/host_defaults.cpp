#include "settings/host_defaults.h"

#include "com/object.h"
#include "com/text.h"
#include "host/object_path.h"
#include "settings/flat_file_reader.h"

#include <comdef.h>

namespace qz {

namespace {

struct HostSetting {
    const char* key;
    VARTYPE type;
};

/// "PageBackDropLevel" and "PageBackdropLevel" are two settings.
constexpr HostSetting hostSettings[] = {{"TemplateMode", VT_I4},
                                        {"ScreenRenderer", VT_I4},
                                        {"UseGdiPlus", VT_I4},
                                        {"UseSystemFonts", VT_I4},
                                        {"UnicodeFonts", VT_I4},
                                        {"PagesInCache", VT_I4},
                                        {"IgnoreDesignInformationOnOpen", VT_I4},
                                        {"IgnoreStructElements", VT_I4},
                                        {"KeepOriginalColors", VT_I4},
                                        {"OCRDataFilesLocation", VT_BSTR},
                                        {"PageBackDropLevel", VT_I4},
                                        {"OCRDataDownloadURI", VT_BSTR},
                                        {"OCRMissingLangFilesAction", VT_I4},
                                        {"OCRLanguage", VT_BSTR},
                                        {"LimitPageSizeToDOCXMax", VT_I4},
                                        {"ForceImageReencoding", VT_I4},
                                        {"useImageBrushForXPSImageBrushFills", VT_I4},
                                        {"PageBackdropLevel", VT_I4},
                                        {"SendPenDataToPrinter", VT_I4},
                                        {"AllowJavaScript", VT_I4},
                                        {"RotationType", VT_I4},
                                        {"PatternFillAntiAliasing", VT_I4},
                                        {"RasterizedAreaInterpolationMode", VT_I4},
                                        {"PrintTransparenciesAsPNG", VT_I4},
                                        {"AdvancedGraphicsMode", VT_I4},
                                        {"MaxClippingPathPoints", VT_I4}};

void Apply(IVandraX* host, const char* key, const _variant_t& value) {
    const std::wstring name = WideText(key);
    const HRESULT result = host->ApplyObjectSetting(Bstr(documentPath).Get(), Bstr(name).Get(), value);
    if (FAILED(result)) Throw(result, L"The host refuses the setting \"" + name + L"\"");
}

}  // namespace

bool ApplyHostDefaults(IVandraX* host, const std::wstring& path) {
    RequirePointer(host);
    const ComPtr<IVandraX> kept = host;
    const std::optional<FlatFile> file = ReadFlatFile(path);
    if (!file) return false;
    for (const HostSetting& setting : hostSettings) {
        _variant_t value;
        if (LookUp(*file, "", setting.key, setting.type, value)) Apply(kept.Get(), setting.key, value);
    }
    return true;
}

}  // namespace qz
