// GDI objects and device contexts.
#include "ControlWindow.h"
#include "GdiTestResource.h"

#include <kit/kit.h>

#include <array>
#include <thread>

namespace {

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);
constexpr COLORREF blue = RGB(0, 0, 255);
constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF black = RGB(0, 0, 0);

/// A white sheet of 64 x 64 pixels to draw on.
class Sheet : public CDC {
public:
    Sheet() {
        CDC screen;
        screen.CreateDC(L"DISPLAY", nullptr, nullptr, nullptr);
        CreateCompatibleDC(&screen);
        m_bitmap.CreateCompatibleBitmap(&screen, 64, 64);
        m_old = SelectObject(&m_bitmap);
        PatBlt(0, 0, 64, 64, WHITENESS);
    }
    ~Sheet() override { SelectObject(m_old); }

private:
    CBitmap m_bitmap;
    CBitmap* m_old;
};

TEST(GdiObjects, OwnTheHandleTheyAreAttachedTo) {
    const HBRUSH handle = ::CreateSolidBrush(red);
    {
        CBrush brush;
        EXPECT_EQ(brush.GetSafeHandle(), nullptr);
        EXPECT_FALSE(brush.Attach(nullptr));
        EXPECT_TRUE(brush.Attach(handle));
        EXPECT_EQ(brush.m_hObject, handle);
        EXPECT_EQ(static_cast<HBRUSH>(brush), handle);
        EXPECT_EQ(CBrush::FromHandle(handle), &brush);
    }
    EXPECT_EQ(::GetObjectType(handle), 0u) << "deleted with its object";
}

TEST(GdiObjects, LetGoOfAHandle) {
    CBrush brush(red);
    const HGDIOBJ handle = brush.Detach();
    EXPECT_EQ(brush.m_hObject, nullptr);
    EXPECT_EQ(brush.Detach(), nullptr);
    EXPECT_FALSE(brush.DeleteObject());
    EXPECT_EQ(::GetObjectType(handle), static_cast<DWORD>(OBJ_BRUSH));
    EXPECT_TRUE(::DeleteObject(handle));
}

TEST(GdiObjects, AreTemporaryForForeignHandlesAndDoNotOwnThem) {
    const HPEN handle = ::CreatePen(PS_SOLID, 1, red);
    CPen* pen = CPen::FromHandle(handle);
    ASSERT_NE(pen, nullptr);
    EXPECT_EQ(pen->m_hObject, handle);
    EXPECT_EQ(CPen::FromHandle(handle), pen) << "one object a handle";
    EXPECT_EQ(CPen::FromHandle(nullptr), nullptr);
    CGdiObject::DeleteTempMap();
    EXPECT_EQ(::GetObjectType(handle), static_cast<DWORD>(OBJ_PEN));
    ::DeleteObject(handle);
}

TEST(GdiObjects, HaveATypeADescriptionAndStockObjects) {
    CBrush brush;
    EXPECT_TRUE(brush.CreateStockObject(WHITE_BRUSH));
    EXPECT_EQ(brush.GetObjectType(), static_cast<UINT>(OBJ_BRUSH));
    LOGBRUSH description = {};
    EXPECT_EQ(brush.GetObject(sizeof(description), &description),
              static_cast<int>(sizeof(description)));
    EXPECT_EQ(description.lbColor, white);
}

TEST(GdiObjects, OfOneStockObjectDoNotDisturbEachOther) {
    CBrush first;
    first.CreateStockObject(BLACK_BRUSH);
    {
        CBrush second;
        second.CreateStockObject(BLACK_BRUSH);
        EXPECT_TRUE(first == second);
    }
    EXPECT_TRUE(first.UnrealizeObject());
    EXPECT_EQ(first.GetObjectType(), static_cast<UINT>(OBJ_BRUSH));
}

TEST(GdiObjects, KnowTheirClassAtRunTime) {
    CFont font;
    EXPECT_TRUE(font.IsKindOf(RUNTIME_CLASS(CGdiObject)));
    EXPECT_STREQ(font.GetRuntimeClass()->m_lpszClassName, "CFont");
}

TEST(GdiObjects, AreKnownInTheirOwnThreadOnly) {
    CBrush brush(red);
    const HBRUSH handle = brush;
    const CBrush* elsewhere = nullptr;
    COLORREF seen = 0;
    std::thread([&] {
        CBrush* temporary = CBrush::FromHandle(handle);
        elsewhere = temporary;
        LOGBRUSH description = {};
        temporary->GetLogBrush(&description);
        seen = description.lbColor;
        CBrush own(green); // what a thread leaves in its maps goes with it
        EXPECT_EQ(CBrush::FromHandle(own), &own);
    }).join();
    EXPECT_NE(elsewhere, &brush);
    EXPECT_EQ(seen, red);
    EXPECT_EQ(CBrush::FromHandle(handle), &brush);
    EXPECT_EQ(brush.GetObjectType(), static_cast<UINT>(OBJ_BRUSH)) << "the other thread is gone";
}

TEST(Pens, AreMadeFromColoursAndDescriptions) {
    CPen pen(PS_DOT, 1, blue);
    LOGPEN description = {};
    pen.GetLogPen(&description);
    EXPECT_EQ(description.lopnStyle, static_cast<UINT>(PS_DOT));
    EXPECT_EQ(description.lopnColor, blue);

    CPen copy;
    EXPECT_TRUE(copy.CreatePenIndirect(&description));
    LOGPEN copied = {};
    copy.GetLogPen(&copied);
    EXPECT_EQ(copied.lopnColor, blue);

    const LOGBRUSH inside = {BS_SOLID, green, 0};
    CPen thick(PS_GEOMETRIC | PS_SOLID, 5, &inside);
    EXPECT_EQ(thick.GetObjectType(), static_cast<UINT>(OBJ_EXTPEN));
}

TEST(Brushes, AreMadeFromColoursHatchesAndBitmaps) {
    LOGBRUSH description = {};
    CBrush solid(green);
    solid.GetLogBrush(&description);
    EXPECT_EQ(description.lbStyle, static_cast<UINT>(BS_SOLID));
    EXPECT_EQ(description.lbColor, green);

    CBrush hatched(HS_CROSS, red);
    hatched.GetLogBrush(&description);
    EXPECT_EQ(description.lbStyle, static_cast<UINT>(BS_HATCHED));
    EXPECT_EQ(description.lbHatch, static_cast<ULONG_PTR>(HS_CROSS));

    constexpr std::array<WORD, 8> dots = {0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55};
    CBitmap pattern;
    ASSERT_TRUE(pattern.CreateBitmap(8, 8, 1, 1, dots.data()));
    CBrush patterned(&pattern);
    patterned.GetLogBrush(&description);
    EXPECT_EQ(description.lbStyle, static_cast<UINT>(BS_PATTERN));

    CBrush system;
    EXPECT_TRUE(system.CreateSysColorBrush(COLOR_WINDOW));
    system.GetLogBrush(&description);
    EXPECT_EQ(description.lbColor, ::GetSysColor(COLOR_WINDOW));
}

TEST(Fonts, AreMadeFromDescriptions) {
    LOGFONT wanted = {};
    wanted.lfHeight = -20;
    wanted.lfWeight = FW_BOLD;
    std::wcscpy(wanted.lfFaceName, L"Tahoma");
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&wanted));
    LOGFONT made = {};
    font.GetLogFont(&made);
    EXPECT_EQ(made.lfHeight, -20);
    EXPECT_EQ(made.lfWeight, FW_BOLD);
    EXPECT_STREQ(made.lfFaceName, L"Tahoma");
}

TEST(Fonts, TakeTenthsOfAPoint) {
    const HDC screen = ::GetDC(nullptr);
    const int pixelsPerInch = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(nullptr, screen);
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, L"Tahoma"));
    LOGFONT made = {};
    font.GetLogFont(&made);
    EXPECT_EQ(made.lfHeight, -::MulDiv(12, pixelsPerInch, 72));
    EXPECT_STREQ(made.lfFaceName, L"Tahoma");
}

TEST(Fonts, TakeTheUnitsOfTheirDevice) {
    Sheet sheet;
    sheet.SetMapMode(MM_LOENGLISH); // hundredths of an inch, upwards
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(720, L"Tahoma", &sheet));
    LOGFONT made = {};
    font.GetLogFont(&made);
    EXPECT_NEAR(made.lfHeight, -100, 1) << "72 points are an inch";
}

TEST(Bitmaps, ComeFromTheResources) {
    CBitmap bitmap;
    EXPECT_FALSE(bitmap.LoadBitmap(IDB_NO_SUCH));
    ASSERT_TRUE(bitmap.LoadBitmap(IDB_STRIP));
    BITMAP description = {};
    bitmap.GetBitmap(&description);
    EXPECT_EQ(description.bmWidth, 32);
    EXPECT_EQ(description.bmHeight, 16);
}

TEST(Bitmaps, ReadMappedColoursToo) {
    COLORMAP redToGreen = {red, green};
    CBitmap bitmap;
    EXPECT_TRUE(bitmap.LoadMappedBitmap(IDB_STRIP, 0, &redToGreen, 1));
    BITMAP description = {};
    bitmap.GetBitmap(&description);
    EXPECT_EQ(description.bmWidth, 32);
}

TEST(Bitmaps, GiveAndTakeTheirBits) {
    constexpr std::array<BYTE, 4> written = {0x12, 0x34, 0x56, 0x78};
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(16, 2, 1, 1, nullptr));
    EXPECT_EQ(bitmap.SetBitmapBits(written.size(), written.data()), written.size());
    std::array<BYTE, 4> read = {};
    EXPECT_EQ(bitmap.GetBitmapBits(read.size(), read.data()), read.size());
    EXPECT_EQ(read, written);
    EXPECT_TRUE(bitmap.SetBitmapDimension(30, 40) == CSize(0, 0));
    EXPECT_TRUE(bitmap.GetBitmapDimension() == CSize(30, 40));
}

TEST(Regions, CombineAndAnswer) {
    CRgn left;
    CRgn right;
    CRgn both;
    ASSERT_TRUE(left.CreateRectRgn(0, 0, 10, 10));
    ASSERT_TRUE(right.CreateRectRgnIndirect(CRect(20, 0, 30, 10)));
    ASSERT_TRUE(both.CreateRectRgn(0, 0, 0, 0));
    EXPECT_EQ(both.CombineRgn(&left, &right, RGN_OR), COMPLEXREGION);
    CRect box;
    both.GetRgnBox(&box);
    EXPECT_TRUE(box == CRect(0, 0, 30, 10));
    EXPECT_TRUE(both.PtInRegion(25, 5));
    EXPECT_FALSE(both.PtInRegion(CPoint(15, 5)));
    EXPECT_EQ(both.CopyRgn(&left), SIMPLEREGION);
    EXPECT_TRUE(both.EqualRgn(&left));
}

TEST(DeviceContexts, OwnTheHandleTheyAreAttachedTo) {
    HDC handle;
    {
        CDC context;
        EXPECT_EQ(context.GetSafeHdc(), nullptr);
        EXPECT_FALSE(context.DeleteDC());
        ASSERT_TRUE(context.CreateCompatibleDC(nullptr));
        handle = context.m_hDC;
        EXPECT_EQ(context.m_hAttribDC, handle);
        EXPECT_EQ(CDC::FromHandle(handle), &context);
        EXPECT_FALSE(context.IsPrinting());
    }
    EXPECT_EQ(::GetObjectType(handle), 0u);
}

TEST(DeviceContexts, AreTemporaryForForeignHandlesAndDoNotOwnThem) {
    const HDC handle = ::CreateCompatibleDC(nullptr);
    CDC* context = CDC::FromHandle(handle);
    ASSERT_NE(context, nullptr);
    EXPECT_EQ(context->m_hDC, handle);
    EXPECT_EQ(context->m_hAttribDC, handle);
    CDC::DeleteTempMap();
    EXPECT_EQ(::GetObjectType(handle), static_cast<DWORD>(OBJ_MEMDC));
    CDC owner;
    owner.Attach(handle);
    EXPECT_EQ(owner.Detach(), handle);
    EXPECT_EQ(owner.m_hAttribDC, nullptr);
    EXPECT_TRUE(::DeleteDC(handle));
}

TEST(DeviceContexts, SelectObjectsAndReturnTheReplacedOnes) {
    Sheet sheet;
    CPen pen(PS_SOLID, 1, red);
    CBrush brush(green);
    CFont font;
    font.CreatePointFont(100, L"Tahoma");

    CPen* oldPen = sheet.SelectObject(&pen);
    CBrush* oldBrush = sheet.SelectObject(&brush);
    CFont* oldFont = sheet.SelectObject(&font);
    EXPECT_EQ(sheet.GetCurrentPen(), &pen);
    EXPECT_EQ(sheet.GetCurrentBrush(), &brush);
    EXPECT_EQ(sheet.GetCurrentFont(), &font);
    EXPECT_EQ(sheet.SelectObject(oldPen), &pen);
    EXPECT_EQ(sheet.SelectObject(oldBrush), &brush);
    EXPECT_EQ(sheet.SelectObject(oldFont), &font);
    CGdiObject* replaced = sheet.SelectStockObject(BLACK_PEN);
    ASSERT_NE(replaced, nullptr);
    EXPECT_EQ(sheet.GetCurrentPen()->m_hObject, ::GetStockObject(BLACK_PEN));
}

TEST(DeviceContexts, RememberAndRestoreTheirState) {
    Sheet sheet;
    sheet.SetTextColor(red);
    const int saved = sheet.SaveDC();
    EXPECT_NE(saved, 0);
    EXPECT_EQ(sheet.SetTextColor(blue), red);
    EXPECT_TRUE(sheet.RestoreDC(saved));
    EXPECT_EQ(sheet.GetTextColor(), red);
}

TEST(DeviceContexts, HaveColoursAndModes) {
    Sheet sheet;
    sheet.SetBkColor(green);
    EXPECT_EQ(sheet.GetBkColor(), green);
    sheet.SetBkMode(TRANSPARENT);
    EXPECT_EQ(sheet.SetBkMode(OPAQUE), TRANSPARENT);
    sheet.SetROP2(R2_XORPEN);
    EXPECT_EQ(sheet.GetROP2(), R2_XORPEN);
    sheet.SetStretchBltMode(COLORONCOLOR);
    EXPECT_EQ(sheet.GetStretchBltMode(), COLORONCOLOR);
    sheet.SetTextAlign(TA_RIGHT);
    EXPECT_EQ(sheet.GetTextAlign(), static_cast<UINT>(TA_RIGHT));
    EXPECT_GT(sheet.GetDeviceCaps(LOGPIXELSX), 0);
}

TEST(DeviceContexts, ApplyAChangeToBothOfTheirHandles) {
    Sheet output;
    CDC attributes;
    attributes.CreateCompatibleDC(nullptr);
    output.SetAttribDC(attributes.m_hDC);
    output.SetTextColor(red);
    EXPECT_EQ(::GetTextColor(output.m_hDC), red);
    EXPECT_EQ(::GetTextColor(attributes.m_hDC), red);
    output.SetAttribDC(output.m_hDC);
}

TEST(DeviceContexts, MapUnits) {
    Sheet sheet;
    sheet.SetMapMode(MM_ANISOTROPIC);
    sheet.SetWindowExt(100, 100);
    sheet.SetViewportExt(CSize(50, -50));
    sheet.SetViewportOrg(0, 50);
    EXPECT_TRUE(sheet.GetWindowExt() == CSize(100, 100));
    EXPECT_TRUE(sheet.GetViewportExt() == CSize(50, -50));
    EXPECT_TRUE(sheet.GetViewportOrg() == CPoint(0, 50));
    CPoint point(20, 20);
    sheet.LPtoDP(&point);
    EXPECT_TRUE(point == CPoint(10, 40));
    sheet.DPtoLP(&point);
    EXPECT_TRUE(point == CPoint(20, 20));
    CRect rect(0, 0, 20, 20);
    sheet.LPtoDP(&rect);
    EXPECT_TRUE(rect == CRect(0, 50, 10, 40));
    CSize size(20, 20);
    sheet.LPtoDP(&size);
    EXPECT_TRUE(size == CSize(10, 10)) << "a size stays positive";
    EXPECT_TRUE(sheet.SetWindowOrg(5, 5) == CPoint(0, 0));
    EXPECT_TRUE(sheet.GetWindowOrg() == CPoint(5, 5));
}

TEST(DeviceContexts, Clip) {
    Sheet sheet;
    EXPECT_EQ(sheet.IntersectClipRect(CRect(10, 10, 20, 20)), SIMPLEREGION);
    CRect box;
    sheet.GetClipBox(&box);
    EXPECT_TRUE(box == CRect(10, 10, 20, 20));
    EXPECT_TRUE(sheet.PtVisible(CPoint(15, 15)));
    EXPECT_FALSE(sheet.PtVisible(5, 5));
    EXPECT_TRUE(sheet.RectVisible(CRect(0, 0, 15, 15)));
    sheet.FillSolidRect(0, 0, 64, 64, red);
    EXPECT_EQ(sheet.GetPixel(15, 15), red);
    sheet.SelectClipRgn(nullptr);
    EXPECT_EQ(sheet.GetPixel(5, 5), white);
}

TEST(DeviceContexts, FillAndLeaveTheSolidColourBehind) {
    Sheet sheet;
    sheet.FillSolidRect(CRect(10, 10, 20, 20), red);
    EXPECT_EQ(sheet.GetPixel(10, 10), red);
    EXPECT_EQ(sheet.GetPixel(19, 19), red);
    EXPECT_EQ(sheet.GetPixel(20, 20), white);
    EXPECT_EQ(sheet.GetBkColor(), red);

    CBrush brush(green);
    sheet.FillRect(CRect(30, 30, 40, 40), &brush);
    EXPECT_EQ(sheet.GetPixel(CPoint(35, 35)), green);
    sheet.FrameRect(CRect(40, 40, 50, 50), &brush);
    EXPECT_EQ(sheet.GetPixel(40, 45), green);
    EXPECT_EQ(sheet.GetPixel(45, 45), white);
    sheet.InvertRect(CRect(45, 45, 46, 46));
    EXPECT_EQ(sheet.GetPixel(45, 45), black);
}

TEST(DeviceContexts, DrawAFrameInTwoColours) {
    Sheet sheet;
    sheet.Draw3dRect(CRect(10, 10, 20, 20), red, blue);
    EXPECT_EQ(sheet.GetPixel(10, 10), red);
    EXPECT_EQ(sheet.GetPixel(15, 10), red);
    EXPECT_EQ(sheet.GetPixel(10, 15), red);
    EXPECT_EQ(sheet.GetPixel(19, 15), blue);
    EXPECT_EQ(sheet.GetPixel(15, 19), blue);
    EXPECT_EQ(sheet.GetPixel(19, 19), blue);
    EXPECT_EQ(sheet.GetPixel(15, 15), white);
    EXPECT_EQ(sheet.GetPixel(20, 20), white);
}

TEST(DeviceContexts, DrawLinesWithoutTheirLastPoint) {
    Sheet sheet;
    CPen pen(PS_SOLID, 1, red);
    CPen* old = sheet.SelectObject(&pen);
    EXPECT_TRUE(sheet.MoveTo(5, 5) == CPoint(0, 0));
    EXPECT_TRUE(sheet.LineTo(CPoint(15, 5)));
    EXPECT_TRUE(sheet.GetCurrentPosition() == CPoint(15, 5));
    EXPECT_EQ(sheet.GetPixel(5, 5), red);
    EXPECT_EQ(sheet.GetPixel(14, 5), red);
    EXPECT_EQ(sheet.GetPixel(15, 5), white);
    POINT corner[] = {{20, 20}, {30, 20}, {30, 30}};
    EXPECT_TRUE(sheet.Polyline(corner, 3));
    EXPECT_EQ(sheet.GetPixel(30, 25), red);
    sheet.SelectObject(old);
}

TEST(DeviceContexts, DrawShapes) {
    Sheet sheet;
    CBrush brush(blue);
    CBrush* old = sheet.SelectObject(&brush);
    EXPECT_TRUE(sheet.Rectangle(CRect(0, 0, 10, 10)));
    EXPECT_EQ(sheet.GetPixel(5, 5), blue);
    EXPECT_EQ(sheet.GetPixel(0, 0), black) << "its border";
    EXPECT_TRUE(sheet.Ellipse(20, 20, 40, 40));
    EXPECT_EQ(sheet.GetPixel(30, 30), blue);
    EXPECT_EQ(sheet.GetPixel(20, 20), white);
    POINT triangle[] = {{45, 45}, {60, 45}, {45, 60}};
    EXPECT_TRUE(sheet.Polygon(triangle, 3));
    EXPECT_EQ(sheet.GetPixel(48, 48), blue);
    sheet.SelectObject(old);
}

TEST(DeviceContexts, CopyPixels) {
    Sheet source;
    Sheet target;
    source.FillSolidRect(0, 0, 10, 10, green);
    EXPECT_TRUE(target.BitBlt(20, 20, 10, 10, &source, 0, 0, SRCCOPY));
    EXPECT_EQ(target.GetPixel(25, 25), green);
    EXPECT_TRUE(target.StretchBlt(0, 0, 20, 20, &source, 0, 0, 10, 10, SRCCOPY));
    EXPECT_EQ(target.GetPixel(19, 19), green);
    EXPECT_TRUE(target.TransparentBlt(30, 30, 20, 20, &source, 0, 0, 20, 20, white));
    EXPECT_EQ(target.GetPixel(35, 35), green);
    EXPECT_EQ(target.SetPixel(50, 50, red), red);
    EXPECT_EQ(target.GetPixel(50, 50), red);
}

TEST(DeviceContexts, MeasureAndWriteText) {
    Sheet sheet;
    const CString text(L"Cota");
    const CSize extent = sheet.GetTextExtent(text);
    EXPECT_GT(extent.cx, 0);
    EXPECT_TRUE(sheet.GetTextExtent(text, 2).cx < extent.cx);
    TEXTMETRIC metrics = {};
    EXPECT_TRUE(sheet.GetTextMetrics(&metrics));
    EXPECT_EQ(extent.cy, metrics.tmHeight);

    CRect box;
    EXPECT_EQ(sheet.DrawText(text, &box, DT_CALCRECT | DT_SINGLELINE), metrics.tmHeight);
    EXPECT_EQ(box.Width(), extent.cx);

    sheet.SetBkColor(red);
    EXPECT_TRUE(sheet.TextOut(0, 0, text));
    EXPECT_TRUE(sheet.ExtTextOut(0, 30, ETO_OPAQUE, CRect(0, 30, 20, 40), CString(), nullptr));
    EXPECT_EQ(sheet.GetPixel(10, 35), red);
    CString face;
    EXPECT_GT(sheet.GetTextFace(face), 0);
    EXPECT_FALSE(face.IsEmpty());
}

TEST(DeviceContexts, ShortenATextThatIsTooLong) {
    Sheet sheet;
    const CString text(L"a very long text that does not fit");
    CRect box(0, 0, 40, 20);
    EXPECT_GT(sheet.DrawText(text, &box, DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING), 0);
    EXPECT_STREQ(text, L"a very long text that does not fit") << "the caller's text stays";
}

TEST(WindowContexts, BelongToTheirWindow) {
    ControlWindow window;
    CRect client;
    window.GetClientRect(&client);
    {
        CClientDC context(&window);
        EXPECT_EQ(context.GetWindow(), &window);
        CRect box;
        context.GetClipBox(&box);
        EXPECT_TRUE(box == client);
    }
    CWindowDC whole(&window);
    EXPECT_EQ(whole.GetWindow(), &window);
}

TEST(WindowContexts, OfNoWindowAreTheScreens) {
    CClientDC screen(nullptr);
    EXPECT_EQ(screen.GetDeviceCaps(HORZRES), ::GetSystemMetrics(SM_CXSCREEN));
}

class Painter : public ControlWindow {
public:
    CRect painted;
    void OnPaint() {
        CPaintDC context(this);
        painted = context.m_ps.rcPaint;
        context.FillSolidRect(painted, green);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Painter, ControlWindow)
    ON_WM_PAINT()
END_MESSAGE_MAP()

TEST(WindowContexts, PaintWhatIsInvalid) {
    Painter window;
    window.UpdateWindow();
    window.InvalidateRect(CRect(3, 4, 30, 40));
    window.UpdateWindow();
    EXPECT_TRUE(window.painted == CRect(3, 4, 30, 40));
    EXPECT_FALSE(window.GetUpdateRect(nullptr)) << "painted";
}

TEST(DeviceContexts, LeaveNothingBehind) {
    ControlWindow window;
    const auto draw = [&] {
        CClientDC context(&window);
        CPen pen(PS_SOLID, 1, red);
        CBrush brush(green);
        CPen* oldPen = context.SelectObject(&pen);
        CBrush* oldBrush = context.SelectObject(&brush);
        context.Rectangle(0, 0, 10, 10);
        context.SelectObject(oldBrush);
        context.SelectObject(oldPen);
        Sheet sheet;
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&sheet, 8, 8);
    };
    draw(); // the first use of a window's context fills caches
    const int before = kit::gdiCount();
    for (int i = 0; i < 10; ++i)
        draw();
    EXPECT_EQ(kit::gdiCount(), before);
}

} // namespace
