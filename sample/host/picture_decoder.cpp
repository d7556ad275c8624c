#include "sample/host/picture_decoder.h"

namespace qz::sample {

IWICImagingFactory* PictureDecoder::Factory() {
    if (!factory_) {
        ThrowIfFailed(
            CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&factory_)),
            L"The system's picture decoders are not available");
    }
    return factory_.Get();
}

Raster PictureDecoder::Decode(const Picture& picture) {
    ComPtr<IWICStream> stream;
    ComPtr<IWICBitmapDecoder> decoder;
    ComPtr<IWICBitmapFrameDecode> frame;
    ComPtr<IWICFormatConverter> converter;
    ThrowIfFailed(Factory()->CreateStream(&stream));
    auto* bytes = const_cast<BYTE*>(picture.storage->data() + picture.offset);  // only read
    ThrowIfFailed(stream->InitializeFromMemory(bytes, static_cast<DWORD>(picture.size)));
    ThrowIfFailed(
        Factory()->CreateDecoderFromStream(stream.Get(), nullptr, WICDecodeMetadataCacheOnDemand, &decoder),
        L"The page's picture is of an unknown kind");
    ThrowIfFailed(decoder->GetFrame(0, &frame));
    ThrowIfFailed(Factory()->CreateFormatConverter(&converter));
    ThrowIfFailed(converter->Initialize(frame.Get(), GUID_WICPixelFormat32bppBGRA, WICBitmapDitherTypeNone,
                                        nullptr, 0, WICBitmapPaletteTypeCustom));
    UINT width = 0;
    UINT height = 0;
    ThrowIfFailed(converter->GetSize(&width, &height));
    constexpr UINT most = 32767;
    if (width == 0 || height == 0 || width > most || height > most)
        Throw(E_FAIL, L"The page's picture is damaged");
    Raster raster{static_cast<int>(width), static_cast<int>(height), {}};
    raster.pixels.resize(static_cast<size_t>(width) * height);
    ThrowIfFailed(converter->CopyPixels(nullptr, width * 4, static_cast<UINT>(raster.pixels.size() * 4),
                                        reinterpret_cast<BYTE*>(raster.pixels.data())),
                  L"The page's picture is damaged");
    return raster;
}

}  // namespace qz::sample
