// Image lists.
#include "ControlWindow.h"
#include "GdiTestResource.h"

#include <kit/kit.h>

namespace {

constexpr COLORREF magenta = RGB(255, 0, 255);
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);
constexpr COLORREF white = RGB(255, 255, 255);

/// A bitmap of 16 x 16 pixels: a colour, and a magenta border to be masked out.
void MakeIcon(CBitmap& bitmap, COLORREF colour) {
    CClientDC screen(nullptr);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    bitmap.CreateCompatibleBitmap(&screen, 16, 16);
    CBitmap* old = memory.SelectObject(&bitmap);
    memory.FillSolidRect(0, 0, 16, 16, magenta);
    memory.FillSolidRect(4, 4, 8, 8, colour);
    memory.SelectObject(old); // a selected bitmap cannot go into an image list
}

/// The image drawn on white: its pixels at (1, 1) and (8, 8).
struct Drawn {
    COLORREF border;
    COLORREF middle;
    bool operator==(const Drawn&) const = default;
};

Drawn Draw(CImageList& images, int image) {
    CClientDC screen(nullptr);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap sheet;
    sheet.CreateCompatibleBitmap(&screen, 16, 16);
    CBitmap* old = memory.SelectObject(&sheet);
    memory.FillSolidRect(0, 0, 16, 16, white);
    EXPECT_TRUE(images.Draw(&memory, image, CPoint(0, 0), ILD_NORMAL));
    const Drawn drawn = {memory.GetPixel(1, 1), memory.GetPixel(8, 8)};
    memory.SelectObject(old);
    return drawn;
}

TEST(ImageLists, TakeBitmapsWithAMaskColour) {
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32 | ILC_MASK, 2, 4));
    EXPECT_EQ(images.GetImageCount(), 0);
    for (const COLORREF colour : {red, blue}) {
        CBitmap bitmap;
        MakeIcon(bitmap, colour);
        EXPECT_EQ(images.Add(&bitmap, magenta), colour == red ? 0 : 1);
    }
    EXPECT_EQ(images.GetImageCount(), 2);
    EXPECT_EQ(Draw(images, 0), (Drawn{white, red}));
    EXPECT_EQ(Draw(images, 1), (Drawn{white, blue}));
}

TEST(ImageLists, ComeFromABitmapResource) {
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_STRIP, 16, 1, magenta));
    EXPECT_EQ(images.GetImageCount(), 2);
    EXPECT_EQ(Draw(images, 0), (Drawn{white, red}));
    EXPECT_EQ(Draw(images, 1), (Drawn{white, blue}));

    CImageList none;
    EXPECT_FALSE(none.Create(IDB_NO_SUCH, 16, 1, magenta));
    EXPECT_EQ(none.GetSafeHandle(), nullptr);
}

TEST(ImageLists, TakeAndGiveIcons) {
    CImageList images;
    ASSERT_TRUE(images.Create(32, 32, ILC_COLOR32 | ILC_MASK, 1, 1));
    EXPECT_EQ(images.Add(::LoadIcon(nullptr, IDI_WARNING)), 0);
    const HICON icon = images.ExtractIcon(0);
    EXPECT_NE(icon, nullptr);
    EXPECT_EQ(images.Replace(0, icon), 0);
    EXPECT_TRUE(::DestroyIcon(icon));
}

TEST(ImageLists, CopyOneImageOverAnother) {
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_STRIP, 16, 1, magenta));
    EXPECT_TRUE(images.Copy(0, 1));
    EXPECT_EQ(Draw(images, 0).middle, blue);
    EXPECT_EQ(Draw(images, 1).middle, blue);
}

TEST(ImageLists, LoseAndGainImages) {
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_STRIP, 16, 1, magenta));
    EXPECT_TRUE(images.Remove(0));
    EXPECT_EQ(images.GetImageCount(), 1);
    EXPECT_EQ(Draw(images, 0).middle, blue);
    EXPECT_TRUE(images.SetImageCount(3));
    EXPECT_EQ(images.GetImageCount(), 3);
    EXPECT_TRUE(images.Remove(-1));
    EXPECT_EQ(images.GetImageCount(), 0);
}

TEST(ImageLists, AreDrawnOverTheirBackgroundColour) {
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_STRIP, 16, 1, magenta));
    EXPECT_EQ(images.GetBkColor(), CLR_NONE);
    EXPECT_EQ(images.SetBkColor(blue), CLR_NONE);
    EXPECT_EQ(Draw(images, 0), (Drawn{blue, red}));
}

TEST(ImageLists, TellWhereAnImageIs) {
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_STRIP, 16, 1, magenta));
    IMAGEINFO info = {};
    ASSERT_TRUE(images.GetImageInfo(0, &info));
    EXPECT_EQ(info.rcImage.right - info.rcImage.left, 16);
    EXPECT_EQ(info.rcImage.bottom - info.rcImage.top, 16);
    EXPECT_FALSE(images.GetImageInfo(5, &info));
}

TEST(ImageLists, AreCopiedAndMerged) {
    CImageList images;
    ASSERT_TRUE(images.Create(IDB_STRIP, 16, 1, magenta));
    CImageList copy;
    ASSERT_TRUE(copy.Create(&images));
    EXPECT_NE(copy.m_hImageList, images.m_hImageList);
    EXPECT_EQ(copy.GetImageCount(), 2);
    CImageList merged;
    ASSERT_TRUE(merged.Create(images, 0, images, 1, 0, 0));
    EXPECT_EQ(merged.GetImageCount(), 1);
}

TEST(ImageLists, OwnTheHandleTheyAreAttachedTo) {
    CImageList images;
    EXPECT_FALSE(images.DeleteImageList());
    ASSERT_TRUE(images.Attach(::ImageList_Create(16, 16, ILC_COLOR32, 1, 1)));
    const HIMAGELIST handle = images;
    EXPECT_EQ(CImageList::FromHandlePermanent(handle), &images);
    EXPECT_EQ(CImageList::FromHandle(handle), &images);
    EXPECT_EQ(images.Detach(), handle);
    EXPECT_EQ(CImageList::FromHandlePermanent(handle), nullptr);
    EXPECT_EQ(::ImageList_GetImageCount(handle), 0) << "still alive";

    CImageList* temporary = CImageList::FromHandle(handle);
    EXPECT_EQ(temporary->m_hImageList, handle);
    CImageList::DeleteTempMap();
    images.Attach(handle);
    EXPECT_TRUE(images.DeleteImageList()) << "the temporary object has not destroyed it";
    EXPECT_EQ(images.m_hImageList, nullptr);
}

TEST(ImageLists, LeaveNothingBehind) {
    const auto use = [] {
        CImageList images;
        images.Create(16, 16, ILC_COLOR32 | ILC_MASK, 3, 4);
        CBitmap bitmap;
        MakeIcon(bitmap, red);
        images.Add(&bitmap, magenta);
    };
    use();
    const int before = kit::gdiCount();
    for (int i = 0; i < 10; ++i)
        use();
    EXPECT_EQ(kit::gdiCount(), before);
}

} // namespace
