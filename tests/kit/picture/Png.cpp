#include "kit/picture/Png.h"

#include <wincodec.h>
#include <wrl/client.h>

namespace kit {
namespace {

using Microsoft::WRL::ComPtr;

/// COM for the calling thread. A thread that has it already, in whichever form, keeps that.
class Com {
public:
    Com() : mine_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    Com(const Com&) = delete;
    Com& operator=(const Com&) = delete;
    ~Com() {
        if (mine_)
            CoUninitialize();
    }

private:
    bool mine_;
};

} // namespace

bool writePng(const Text& path, std::span<const RGBQUAD> pixels, int width, int height) {
    const Com com;
    WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
    ComPtr<IWICImagingFactory> factory;
    ComPtr<IWICBitmap> bitmap;
    ComPtr<IWICStream> file;
    ComPtr<IWICBitmapEncoder> encoder;
    ComPtr<IWICBitmapFrameEncode> frame;
    return SUCCEEDED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                                      IID_PPV_ARGS(&factory))) &&
           SUCCEEDED(factory->CreateBitmapFromMemory(
               width, height, GUID_WICPixelFormat32bppBGR, width * sizeof(RGBQUAD),
               static_cast<UINT>(pixels.size_bytes()),
               reinterpret_cast<BYTE*>(const_cast<RGBQUAD*>(pixels.data())), &bitmap)) &&
           SUCCEEDED(factory->CreateStream(&file)) &&
           SUCCEEDED(file->InitializeFromFilename(path.c_str(), GENERIC_WRITE)) &&
           SUCCEEDED(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, &encoder)) &&
           SUCCEEDED(encoder->Initialize(file.Get(), WICBitmapEncoderNoCache)) &&
           SUCCEEDED(encoder->CreateNewFrame(&frame, nullptr)) &&
           SUCCEEDED(frame->Initialize(nullptr)) && SUCCEEDED(frame->SetSize(width, height)) &&
           SUCCEEDED(frame->SetPixelFormat(&format)) &&
           SUCCEEDED(frame->WriteSource(bitmap.Get(), nullptr)) && SUCCEEDED(frame->Commit()) &&
           SUCCEEDED(encoder->Commit());
}

} // namespace kit
