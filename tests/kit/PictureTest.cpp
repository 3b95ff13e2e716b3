// Pictures of windows, read back by the system's own decoder.
#include "kit/RawDialog.h"
#include "kit/kit.h"
#include "kit/picture/Png.h"

#include <wincodec.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <thread>

using kit::Dialog;
using kit::Script;

namespace {

using Bytes = std::vector<std::uint8_t>;

std::wstring temporaryPath(const std::wstring& name) {
    return kit::environment(L"TEMP") + L"\\" + name + std::to_wstring(GetCurrentProcessId());
}

/// A PNG file as the system's decoder reads it.
class Decoded {
public:
    explicit Decoded(const std::wstring& path) {
        CoInitialize(nullptr);
        IWICImagingFactory* factory = nullptr;
        CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                         IID_IWICImagingFactory, reinterpret_cast<void**>(&factory));
        IWICBitmapDecoder* decoder = nullptr;
        result = factory->CreateDecoderFromFilename(path.c_str(), nullptr, GENERIC_READ,
                                                    WICDecodeMetadataCacheOnDemand, &decoder);
        if (SUCCEEDED(result)) {
            IWICBitmapFrameDecode* frame = nullptr;
            decoder->GetFrame(0, &frame);
            frame->GetSize(&width, &height);
            frame->GetPixelFormat(&format);
            bgr.resize(static_cast<std::size_t>(width) * height * 3);
            result =
                frame->CopyPixels(nullptr, width * 3, static_cast<UINT>(bgr.size()), bgr.data());
            frame->Release();
            decoder->Release();
        }
        factory->Release();
        CoUninitialize();
    }

    HRESULT result = E_FAIL;
    UINT width = 0;
    UINT height = 0;
    WICPixelFormatGUID format = {};
    Bytes bgr; ///< blue, green and red of each pixel, rows from the top
};

Bytes readFile(const std::wstring& path) {
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

TEST(Png, ComesBackFromTheSystemsDecoderAsItWas) {
    const std::wstring path = temporaryPath(L"kit-png");
    std::mt19937 random(1);
    for (const int colours : {1, 2, 256}) {
        const auto byte = [&] { return static_cast<BYTE>(random() % colours * 255 / colours); };
        std::vector<RGBQUAD> pixels(37 * 19);
        Bytes bgr;
        for (RGBQUAD& pixel : pixels) {
            pixel = {byte(), byte(), byte(), byte()}; // the last means nothing
            bgr.insert(bgr.end(), {pixel.rgbBlue, pixel.rgbGreen, pixel.rgbRed});
        }
        ASSERT_TRUE(kit::writePng(path, pixels, 37, 19));
        const Decoded decoded(path);
        ASSERT_EQ(decoded.result, S_OK) << colours << " colours";
        EXPECT_EQ(decoded.width, 37U);
        EXPECT_EQ(decoded.height, 19U);
        EXPECT_EQ(decoded.format, GUID_WICPixelFormat24bppBGR);
        EXPECT_EQ(decoded.bgr, bgr);
    }
    DeleteFileW(path.c_str());
}

TEST(Png, IsSmallWhereRowsRepeatAndAlwaysTheSame) {
    const std::wstring path = temporaryPath(L"kit-png");
    std::vector<RGBQUAD> pixels(400 * 300);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const std::size_t x = i % 400;
        pixels[i] = {static_cast<BYTE>(x * x >> 3), static_cast<BYTE>(x), 0, 0};
    }
    ASSERT_TRUE(kit::writePng(path, pixels, 400, 300));
    const Bytes png = readFile(path);
    EXPECT_LT(png.size(), pixels.size() * 3 / 40);
    ASSERT_TRUE(kit::writePng(path, pixels, 400, 300)) << "over the one that is there";
    EXPECT_EQ(readFile(path), png);
    DeleteFileW(path.c_str());
}

TEST(Png, IsRefusedWithoutPixels) {
    const std::wstring path = temporaryPath(L"kit-png");
    EXPECT_FALSE(kit::writePng(path, {}, 2, 2));
    EXPECT_FALSE(DeleteFileW(path.c_str())) << "there is no file";
}

TEST(Png, IsWrittenByAnyThreadWhichKeepsItsOwnCom) {
    const std::wstring path = temporaryPath(L"kit-png");
    const std::vector<RGBQUAD> pixels(4);
    // Nothing, one form of COM, the other.
    for (const int form : {-1, int{COINIT_MULTITHREADED}, int{COINIT_APARTMENTTHREADED}}) {
        bool written = false;
        HRESULT after = E_FAIL;
        std::thread([&] {
            if (form >= 0)
                CoInitializeEx(nullptr, form);
            written = kit::writePng(path, pixels, 2, 2);
            after = CoInitializeEx(nullptr, form >= 0 ? form : COINIT_MULTITHREADED);
            CoUninitialize();
            if (form >= 0)
                CoUninitialize();
        }).join();
        EXPECT_TRUE(written) << "form " << form;
        EXPECT_EQ(after, form >= 0 ? S_FALSE : S_OK) << "form " << form;
        EXPECT_EQ(Decoded(path).width, 2U) << "form " << form;
        DeleteFileW(path.c_str());
    }
}

TEST(Picture, ShowsTheWholeWindowWithItsFrame) {
    const std::wstring path = temporaryPath(L"kit-picture");
    const RawDialog dialog =
        RawDialog(L"Picture").edit(101).checkBox(102, L"Check").button(IDCANCEL, L"Cancel");
    RECT rect = {};
    RECT edit = {};
    Script script;
    script.onDialog([&](Dialog& d) {
        d.type(101, L"Text");
        rect = d.rect();
        GetWindowRect(d.control(101), &edit);
        EXPECT_TRUE(kit::savePicture(d.handle(), path));
        d.press(IDCANCEL);
    });
    script.run([&] { return dialog.open(); });

    const Decoded picture(path);
    DeleteFileW(path.c_str());
    ASSERT_EQ(picture.result, S_OK);
    ASSERT_EQ(picture.width, static_cast<UINT>(rect.right - rect.left));
    ASSERT_EQ(picture.height, static_cast<UINT>(rect.bottom - rect.top));
    const auto pixel = [&](LONG x, LONG y) {
        const std::size_t at =
            (static_cast<std::size_t>(y - rect.top) * picture.width + (x - rect.left)) * 3;
        return RGB(picture.bgr[at + 2], picture.bgr[at + 1], picture.bgr[at]);
    };
    EXPECT_EQ(pixel(edit.right - 10, edit.top + 5), GetSysColor(COLOR_WINDOW)) << "the edit";
    EXPECT_EQ(pixel(edit.right + 3, edit.top + 5), GetSysColor(COLOR_BTNFACE)) << "the dialog";
    EXPECT_EQ(pixel((rect.left + rect.right) / 2, rect.top + 5) == GetSysColor(COLOR_BTNFACE),
              false)
        << "the caption";
}

TEST(Picture, GoesIntoTheFolderOfTheEnvironment) {
    const std::wstring folder = kit::environment(L"TEMP");
    const std::wstring name = L"kit-named" + std::to_wstring(GetCurrentProcessId());
    const RawDialog dialog = RawDialog(L"Picture").button(IDCANCEL, L"Cancel");
    SetEnvironmentVariableW(L"CUADROS_PICTURES", folder.c_str());
    Script script;
    script.onDialog([&](Dialog& d) {
        d.picture(name);
        d.press(IDCANCEL);
    });
    script.run([&] { return dialog.open(); });
    SetEnvironmentVariableW(L"CUADROS_PICTURES", nullptr);
    EXPECT_TRUE(DeleteFileW((folder + L"\\" + name + L".png").c_str()));
}

TEST(Picture, IsRefusedForNoWindowAndForNoFile) {
    EXPECT_FALSE(kit::savePicture(nullptr, temporaryPath(L"none")));
    const HWND window = CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                        nullptr, nullptr);
    EXPECT_FALSE(kit::savePicture(window, L"C:\\no such folder\\x.png"));
    DestroyWindow(window);
}

TEST(WindowTree, TellsClassNumberTextAndStateOfEachWindow) {
    const RawDialog dialog =
        RawDialog(L"Tree").edit(101).button(102, L"Off", WS_DISABLED).button(IDCANCEL, L"Cancel");
    Script script;
    std::string tree;
    script.onDialog([&](Dialog& d) {
        d.setText(101, L"a\tb");
        d.focusOn(101);
        ShowWindow(d.control(IDCANCEL), SW_HIDE);
        tree = d.tree();
        d.command(IDCANCEL);
    });
    script.run([&] { return dialog.open(); });
    EXPECT_NE(tree.find("#32770 \"Tree\" active ("), std::string::npos) << tree;
    EXPECT_NE(tree.find("\n  Edit 101 \"a\\tb\" focus ("), std::string::npos) << tree;
    EXPECT_NE(tree.find("\n  Button 102 \"Off\" disabled ("), std::string::npos) << tree;
    EXPECT_NE(tree.find("\n  Button 2 \"Cancel\" hidden ("), std::string::npos) << tree;
}

TEST(Text, GoesToUtf8AndBack) {
    const std::wstring text = L"Cañón 1:500 \x20AC \xD83D\xDE00";
    EXPECT_EQ(kit::utf16(kit::utf8(text)), text);
    EXPECT_EQ(kit::utf8(L"ñ"), "\xC3\xB1");
    EXPECT_EQ(kit::inQuotes(L"a\r\n"), "\"a\\r\\n\"");
}
