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

using kit::Dialog;
using kit::Script;

namespace {

using Bytes = std::vector<std::uint8_t>;

std::wstring temporaryPath(const std::wstring& name) {
    return kit::environment(L"TEMP") + L"\\" + name + std::to_wstring(GetCurrentProcessId());
}

/// Decodes PNG file contents to RGB rows.
class Decoded {
public:
    explicit Decoded(const Bytes& png) {
        CoInitialize(nullptr);
        IWICImagingFactory* factory = nullptr;
        CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                         IID_IWICImagingFactory, reinterpret_cast<void**>(&factory));
        IWICStream* stream = nullptr;
        factory->CreateStream(&stream);
        stream->InitializeFromMemory(const_cast<BYTE*>(png.data()), static_cast<DWORD>(png.size()));
        IWICBitmapDecoder* decoder = nullptr;
        result = factory->CreateDecoderFromStream(stream, nullptr, WICDecodeMetadataCacheOnDemand,
                                                  &decoder);
        if (SUCCEEDED(result)) {
            IWICBitmapFrameDecode* frame = nullptr;
            IWICBitmapSource* converted = nullptr;
            decoder->GetFrame(0, &frame);
            frame->GetSize(&width, &height);
            WICConvertBitmapSource(GUID_WICPixelFormat24bppBGR, frame, &converted);
            rgb.resize(static_cast<std::size_t>(width) * height * 3);
            result = converted->CopyPixels(nullptr, width * 3, static_cast<UINT>(rgb.size()),
                                           rgb.data());
            for (std::size_t i = 0; i < rgb.size(); i += 3)
                std::swap(rgb[i], rgb[i + 2]);
            converted->Release();
            frame->Release();
            decoder->Release();
        }
        stream->Release();
        factory->Release();
        CoUninitialize();
    }

    HRESULT result = E_FAIL;
    UINT width = 0;
    UINT height = 0;
    Bytes rgb;
};

Bytes readFile(const std::wstring& path) {
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

TEST(Png, ComesBackFromTheSystemsDecoderAsItWas) {
    std::mt19937 random(1);
    for (const int colours : {1, 2, 256}) {
        Bytes rgb(37 * 19 * 3);
        for (std::uint8_t& byte : rgb)
            byte = static_cast<std::uint8_t>(random() % colours * 255 / colours);
        const Decoded decoded(kit::encodePng(rgb, 37, 19));
        ASSERT_EQ(decoded.result, S_OK) << colours << " colours";
        EXPECT_EQ(decoded.width, 37U);
        EXPECT_EQ(decoded.height, 19U);
        EXPECT_EQ(decoded.rgb, rgb);
    }
}

TEST(Png, IsSmallWhereRowsRepeat) {
    Bytes row(400 * 3);
    for (std::size_t i = 0; i < row.size(); ++i)
        row[i] = static_cast<std::uint8_t>(i * i >> 3);
    Bytes rgb;
    for (int y = 0; y < 300; ++y)
        rgb.insert(rgb.end(), row.begin(), row.end());
    const Bytes png = kit::encodePng(rgb, 400, 300);
    EXPECT_LT(png.size(), rgb.size() / 40);
    EXPECT_EQ(Decoded(png).rgb, rgb);
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

    const Decoded picture(readFile(path));
    DeleteFileW(path.c_str());
    ASSERT_EQ(picture.result, S_OK);
    ASSERT_EQ(picture.width, static_cast<UINT>(rect.right - rect.left));
    ASSERT_EQ(picture.height, static_cast<UINT>(rect.bottom - rect.top));
    const auto pixel = [&](LONG x, LONG y) {
        const std::size_t at =
            (static_cast<std::size_t>(y - rect.top) * picture.width + (x - rect.left)) * 3;
        return RGB(picture.rgb[at], picture.rgb[at + 1], picture.rgb[at + 2]);
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
