// The system's dialogs for colours and files, worked through as a person does.
#include "ControlWindow.h"
#include "TestApp.h"

#include <kit/kit.h>

#include <afxdlgs.h>

#include <colordlg.h>
#include <dlgs.h>

using kit::Dialog;
using kit::Script;

namespace {

/// Asks for another colour through the fields for its parts.
void TypeColour(Dialog& dialog, int red, int green, int blue) {
    const auto part = [&](int field, int value) { dialog.setText(field, std::to_wstring(value)); };
    part(COLOR_RED, red);
    part(COLOR_GREEN, green);
    part(COLOR_BLUE, blue);
}

/// The application with a main window, and somebody at it.
class SystemDialog : public testing::Test {
protected:
    ControlWindow window;
    Script script;

    SystemDialog() {
        theApp.m_pMainWnd = &window;
        window.SetForegroundWindow();
    }
    ~SystemDialog() override { theApp.m_pMainWnd = nullptr; }
};

class ColorDialog : public SystemDialog {
protected:
    void TearDown() override {
        COLORREF* const saved = CColorDialog::GetSavedCustomColors();
        std::fill(saved, saved + 16, RGB(255, 255, 255));
    }
};

TEST_F(ColorDialog, ReturnsTheColourChosen) {
    CColorDialog dialog(RGB(1, 2, 3), CC_FULLOPEN | CC_ANYCOLOR);
    EXPECT_EQ(dialog.GetColor(), static_cast<COLORREF>(RGB(1, 2, 3)));
    script.onDialog([](Dialog& d) {
        TypeColour(d, 10, 120, 230);
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_EQ(dialog.GetColor(), static_cast<COLORREF>(RGB(10, 120, 230)));
}

TEST_F(ColorDialog, ShowsTheColourItBeginsWith) {
    CColorDialog dialog(RGB(12, 34, 56), CC_FULLOPEN | CC_ANYCOLOR);
    script.onDialog([](Dialog& d) {
        EXPECT_EQ(d.text(COLOR_RED), L"12");
        EXPECT_EQ(d.text(COLOR_GREEN), L"34");
        EXPECT_EQ(d.text(COLOR_BLUE), L"56");
        d.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDCANCEL);
    EXPECT_EQ(::CommDlgExtendedError(), 0u) << "cancelled, not failed";
    EXPECT_EQ(dialog.GetColor(), static_cast<COLORREF>(RGB(12, 34, 56)));
}

TEST_F(ColorDialog, BelongsToTheActiveWindowAndDisablesIt) {
    CColorDialog dialog;
    script.onDialog([&](Dialog& d) {
        EXPECT_EQ(d.owner(), window.m_hWnd);
        EXPECT_FALSE(window.IsWindowEnabled());
        EXPECT_EQ(dialog.m_hWnd, d.handle()) << "attached while it is shown";
        d.press(IDCANCEL);
    });
    script.run([&] { return dialog.DoModal(); });
    EXPECT_TRUE(window.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST_F(ColorDialog, BelongsToItsParentIfItHasOne) {
    ControlWindow other;
    window.SetForegroundWindow();
    CColorDialog dialog(0, 0, &other);
    script.onDialog([&](Dialog& d) {
        EXPECT_EQ(d.owner(), other.m_hWnd);
        EXPECT_TRUE(window.IsWindowEnabled());
        d.press(IDCANCEL);
    });
    script.run([&] { return dialog.DoModal(); });
}

TEST_F(ColorDialog, KeepsTheColoursThatTheUserDefines) {
    COLORREF* const saved = CColorDialog::GetSavedCustomColors();
    EXPECT_EQ(saved[0], static_cast<COLORREF>(RGB(255, 255, 255)));
    EXPECT_EQ(saved[15], static_cast<COLORREF>(RGB(255, 255, 255)));
    CColorDialog dialog(0, CC_FULLOPEN);
    script.onDialog([](Dialog& d) {
        TypeColour(d, 10, 120, 230);
        d.press(COLOR_ADD);
        d.press(IDOK);
    });
    script.run([&] { return dialog.DoModal(); });
    EXPECT_EQ(CColorDialog::GetSavedCustomColors(), saved);
    EXPECT_EQ(std::count(saved, saved + 16, static_cast<COLORREF>(RGB(10, 120, 230))), 1);
}

TEST_F(ColorDialog, CanBeShownAgain) {
    CColorDialog dialog(RGB(1, 2, 3), CC_FULLOPEN);
    for (int round = 0; round < 2; ++round)
        script.onDialog([](Dialog& d) { d.press(IDCANCEL); });
    script.run([&] {
        EXPECT_EQ(dialog.DoModal(), IDCANCEL);
        return dialog.DoModal();
    });
}

/// Takes no colour darker than its threshold.
class BrightColorDialog : public CColorDialog {
public:
    int asked = 0;
    BrightColorDialog() : CColorDialog(RGB(0, 0, 0), CC_FULLOPEN) {}

protected:
    BOOL OnColorOK() override {
        ++asked;
        return GetGValue(GetColor()) < 100;
    }
};

TEST_F(ColorDialog, StaysOpenOverAColourThatIsRefused) {
    BrightColorDialog dialog;
    script.onDialog([&](Dialog& d) {
        TypeColour(d, 0, 50, 0);
        d.press(IDOK);
        EXPECT_EQ(dialog.asked, 1);
    });
    script.onDialog([](Dialog& d) {
        TypeColour(d, 0, 150, 0);
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_EQ(dialog.asked, 2);
    EXPECT_EQ(dialog.GetColor(), static_cast<COLORREF>(RGB(0, 150, 0)));
}

TEST_F(ColorDialog, CanBeToldAnotherColour) {
    CColorDialog dialog(RGB(1, 2, 3), CC_FULLOPEN);
    script.onDialog([&](Dialog& d) {
        dialog.SetCurrentColor(RGB(40, 50, 60));
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_EQ(dialog.GetColor(), static_cast<COLORREF>(RGB(40, 50, 60)));
}

/// A folder with files, gone afterwards.
class FileDialog : public SystemDialog {
protected:
    CString folder;

    void SetUp() override {
        wchar_t temporary[MAX_PATH];
        ASSERT_NE(::GetTempPath(MAX_PATH, temporary), 0u);
        folder.Format(L"%scuadros%lu", temporary, ::GetCurrentProcessId());
        ASSERT_TRUE(::CreateDirectory(folder, nullptr));
        for (const wchar_t* name : {L"norte.txt", L"sur.txt", L"plano.DXF"})
            Make(name);
    }
    void TearDown() override {
        for (const wchar_t* name : {L"norte.txt", L"sur.txt", L"plano.DXF"})
            ::DeleteFile(Path(name));
        EXPECT_TRUE(::RemoveDirectory(folder));
    }
    CString Path(const wchar_t* name) const { return folder + L"\\" + name; }
    void Make(const wchar_t* name) const {
        const HANDLE file = ::CreateFile(Path(name), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                         FILE_ATTRIBUTE_NORMAL, nullptr);
        ASSERT_NE(file, INVALID_HANDLE_VALUE);
        ::CloseHandle(file);
    }
    /// The dialog in the older style, whose controls have documented numbers.
    class OldStyle : public CFileDialog {
    public:
        explicit OldStyle(BOOL open, LPCTSTR extension = nullptr, LPCTSTR name = nullptr,
                          DWORD flags = 0, LPCTSTR filter = nullptr)
            : CFileDialog(open, extension, name, flags, filter, nullptr, 0, FALSE) {}
    };
    /// The dialog opens in the test's folder and changes nobody's current one.
    void In(CFileDialog& dialog) const {
        dialog.m_ofn.lpstrInitialDir = folder;
        dialog.m_ofn.Flags |= OFN_NOCHANGEDIR;
    }
    static void TypeName(Dialog& dialog, const wchar_t* name) { dialog.setText(cmb13, name); }
};

TEST_F(FileDialog, OpensTheFileThatIsNamed) {
    OldStyle dialog(TRUE);
    In(dialog);
    script.onDialog([](Dialog& d) {
        TypeName(d, L"norte.txt");
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_EQ(dialog.GetPathName().CompareNoCase(Path(L"norte.txt")), 0);
    EXPECT_STREQ(dialog.GetFileName(), L"norte.txt");
    EXPECT_STREQ(dialog.GetFileTitle(), L"norte");
    EXPECT_STREQ(dialog.GetFileExt(), L"txt");
    EXPECT_FALSE(dialog.GetReadOnlyPref());
}

TEST_F(FileDialog, ReturnsNothingNewWhenCancelled) {
    OldStyle dialog(TRUE, nullptr, L"begin.txt");
    In(dialog);
    script.onDialog([](Dialog& d) { d.press(IDCANCEL); });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDCANCEL);
    EXPECT_EQ(::CommDlgExtendedError(), 0u) << "cancelled, not failed";
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST_F(FileDialog, BelongsToTheActiveWindowAndDisablesIt) {
    OldStyle dialog(TRUE);
    In(dialog);
    script.onDialog([&](Dialog& d) {
        EXPECT_EQ(d.owner(), window.m_hWnd);
        EXPECT_FALSE(window.IsWindowEnabled());
        EXPECT_EQ(dialog.GetFolderPath().CompareNoCase(folder), 0);
        d.press(IDCANCEL);
    });
    script.run([&] { return dialog.DoModal(); });
    EXPECT_TRUE(window.IsWindowEnabled());
}

TEST_F(FileDialog, BeginsWithTheNameItIsGiven) {
    OldStyle dialog(FALSE, nullptr, L"salida.txt");
    In(dialog);
    script.onDialog([](Dialog& d) {
        EXPECT_EQ(d.text(cmb13), L"salida.txt");
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_STREQ(dialog.GetFileName(), L"salida.txt");
}

TEST_F(FileDialog, AppendsTheDefaultExtension) {
    OldStyle dialog(FALSE, L"dxf", nullptr);
    In(dialog);
    script.onDialog([](Dialog& d) {
        TypeName(d, L"nuevo");
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_STREQ(dialog.GetFileName(), L"nuevo.dxf");
}

TEST_F(FileDialog, OffersItsFilters) {
    OldStyle dialog(TRUE, nullptr, nullptr, OFN_HIDEREADONLY,
                    L"Drawings (*.dxf)|*.dxf|Texts (*.txt;*.asc)|*.txt;*.asc||");
    In(dialog);
    script.onDialog([](Dialog& d) {
        const auto kinds = d.combo(cmb1);
        EXPECT_EQ(kinds.count(), 2);
        EXPECT_EQ(kinds.text(kinds.selected()), L"Drawings (*.dxf)");
        TypeName(d, L"plano.DXF");
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_EQ(dialog.m_ofn.nFilterIndex, 1u);
    EXPECT_STREQ(dialog.GetFileExt(), L"DXF");
}

TEST_F(FileDialog, AsksBeforeItOverwrites) {
    OldStyle dialog(FALSE, nullptr, L"norte.txt", OFN_OVERWRITEPROMPT);
    In(dialog);
    script.onDialog([](Dialog& d) { d.press(IDOK); });
    script.expectMessage().answer(IDNO);
    script.onDialog([](Dialog& d) { d.press(IDCANCEL); });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDCANCEL);
}

TEST_F(FileDialog, WalksThroughSeveralFiles) {
    OldStyle dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT);
    In(dialog);
    wchar_t names[1024] = {};
    dialog.m_ofn.lpstrFile = names;
    dialog.m_ofn.nMaxFile = 1024;
    script.onDialog([](Dialog& d) {
        TypeName(d, L"\"norte.txt\" \"sur.txt\"");
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    POSITION position = dialog.GetStartPosition();
    ASSERT_NE(position, nullptr);
    EXPECT_EQ(dialog.GetNextPathName(position).CompareNoCase(Path(L"norte.txt")), 0);
    ASSERT_NE(position, nullptr);
    EXPECT_EQ(dialog.GetNextPathName(position).CompareNoCase(Path(L"sur.txt")), 0);
    EXPECT_EQ(position, nullptr);
}

TEST_F(FileDialog, WalksThroughOneFileToo) {
    OldStyle dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT);
    In(dialog);
    script.onDialog([](Dialog& d) {
        TypeName(d, L"sur.txt");
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    POSITION position = dialog.GetStartPosition();
    EXPECT_EQ(dialog.GetNextPathName(position).CompareNoCase(Path(L"sur.txt")), 0);
    EXPECT_EQ(position, nullptr);
}

/// Takes no name that begins with an x.
class PickyFileDialog : public CFileDialog {
public:
    CString refused;
    PickyFileDialog() : CFileDialog(FALSE, nullptr, nullptr, 0, nullptr, nullptr, 0, FALSE) {}

protected:
    BOOL OnFileNameOK() override {
        if (GetFileName()[0] != L'x')
            return FALSE;
        refused = GetPathName();
        return TRUE;
    }
};

TEST_F(FileDialog, StaysOpenOverANameThatIsRefused) {
    PickyFileDialog dialog;
    In(dialog);
    script.onDialog([](Dialog& d) {
        TypeName(d, L"x.txt");
        d.press(IDOK);
    });
    script.onDialog([&](Dialog& d) {
        EXPECT_EQ(dialog.refused.CompareNoCase(Path(L"x.txt")), 0);
        TypeName(d, L"y.txt");
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_STREQ(dialog.GetFileName(), L"y.txt");
}

/// Fails to judge the name.
class FailingFileDialog : public CFileDialog {
public:
    FailingFileDialog() : CFileDialog(FALSE, nullptr, L"z.txt", 0, nullptr, nullptr, 0, FALSE) {}

protected:
    BOOL OnFileNameOK() override { AfxThrowUserException(); }
};

TEST_F(FileDialog, LetsNoExceptionThroughTheSystem) {
    FailingFileDialog dialog;
    In(dialog);
    script.onDialog([](Dialog& d) { d.press(IDOK); });
    script.onDialog([](Dialog& d) { d.press(IDCANCEL); });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDCANCEL);
    EXPECT_TRUE(window.IsWindowEnabled());
}

TEST(FileDialogNames, AreTakenApart) {
    const CFileDialog dialog(TRUE, nullptr, L"C:\\plans.v2\\readme");
    EXPECT_STREQ(dialog.GetPathName(), L"C:\\plans.v2\\readme");
    EXPECT_STREQ(dialog.GetFileName(), L"readme");
    EXPECT_STREQ(dialog.GetFileTitle(), L"readme");
    EXPECT_STREQ(dialog.GetFileExt(), L"") << "the dot of the folder is none of the name's";
}

} // namespace
