// The counts of what a process holds are exact.
#include "kit/RawDialog.h"
#include "kit/kit.h"

#include <cstdlib>

using kit::Dialog;
using kit::Handles;
using kit::HeapUse;
using kit::Script;

namespace {

void openAndClose(const RawDialog& dialog) {
    Script script;
    script.onDialog([](Dialog& d) { d.press(IDCANCEL); });
    script.run([&] { return dialog.open(); });
}

} // namespace

TEST(Handles, CountEachGraphicsObject) {
    const Handles before = Handles::now();
    const HPEN pen = CreatePen(PS_SOLID, 1, 0);
    const HRGN region = CreateRectRgn(0, 0, 1, 1);
    EXPECT_EQ(kit::gdiCount(), before.gdi + 2);
    EXPECT_EQ(Handles::now().user, before.user);
    DeleteObject(pen);
    DeleteObject(region);
    EXPECT_EQ(Handles::now(), before);
}

TEST(Handles, CountEachWindow) {
    // The first window of a thread brings a hidden one of the system with it.
    const HWND first = CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                       nullptr, nullptr);
    const Handles before = Handles::now();
    const HWND window = CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                        nullptr, nullptr);
    EXPECT_EQ(kit::userCount(), before.user + 1);
    DestroyWindow(window);
    EXPECT_EQ(Handles::now(), before);
    DestroyWindow(first);
}

TEST(Handles, CountEachMenu) {
    const Handles before = Handles::now();
    const HMENU menu = CreateMenu();
    EXPECT_EQ(kit::userCount(), before.user + 1);
    DestroyMenu(menu);
    EXPECT_EQ(Handles::now(), before);
}

TEST(Handles, CountEachIcon) {
    const BYTE mask[128] = {};
    const Handles before = Handles::now();
    const HICON icon = CreateIcon(nullptr, 16, 16, 1, 1, mask, mask);
    EXPECT_EQ(kit::userCount(), before.user + 1);
    DestroyIcon(icon);
    EXPECT_EQ(Handles::now(), before);
}

TEST(Handles, StayEqualOverManyDialogs) {
    const RawDialog dialog = RawDialog(L"Leakless")
                                 .label(L"&Label")
                                 .edit(101)
                                 .checkBox(102, L"Check")
                                 .button(IDCANCEL, L"Cancel");
    openAndClose(dialog);
    const Handles before = Handles::now();
    for (int i = 0; i < 20; ++i)
        openAndClose(dialog);
    EXPECT_EQ(Handles::now(), before);
}

TEST(HeapUse, CountsEachBlock) {
    const HeapUse before = HeapUse::now();
    void* volatile block = std::malloc(1000);
    const HeapUse during = HeapUse::now();
    std::free(block);
    const HeapUse after = HeapUse::now();
    EXPECT_EQ(during.blocks, before.blocks + 1);
    EXPECT_EQ(during.bytes, before.bytes + 1000);
    EXPECT_EQ(after, before);
}

TEST(HeapUse, SeesAByteWrittenBeyondItsBlock) {
    ASSERT_TRUE(kit::heapIsWhole());
    auto* volatile block = static_cast<char*>(std::malloc(24));
    const char kept = block[24];
    block[24] = 'x';
    EXPECT_FALSE(kit::heapIsWhole());
    block[24] = kept;
    EXPECT_TRUE(kit::heapIsWhole());
    std::free(block);
}
