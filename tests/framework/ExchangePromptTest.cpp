// While the prompt of an exchange is open, the dialog, its owner or the control that is asked
// about may go. And controls that an exchange does not find.
#include "FieldsDialog.h"
#include "kit/kit.h"
#include "modules/ModuleFiles.h"
#include "modules/ModuleResource.h"
#include "modules/Program.h"

#include <limits>
#include <string>
#include <vector>

namespace {

double number = 1;
int integer = 1;
CString text;
wchar_t room[3];

/// Exchanges that a text of four letters does not pass.
const std::function<void(CDataExchange*)> refusing[] = {
    [](CDataExchange* pDX) { DDX_Text(pDX, IDC_NAME, number); },
    [](CDataExchange* pDX) { DDX_Text(pDX, IDC_NAME, room, 3); },
    [](CDataExchange* pDX) {
        DDX_Text(pDX, IDC_NAME, text);
        DDV_MaxChars(pDX, text, 3);
    },
    [](CDataExchange* pDX) {
        DDX_Text(pDX, IDC_INT, integer);
        DDV_MinMaxInt(pDX, integer, 1000, 2000);
    },
};

class ExchangePrompts : public testing::TestWithParam<std::size_t> {
protected:
    static const std::function<void(CDataExchange*)>& Exchange() { return refusing[GetParam()]; }

    /// Types what is refused and asks for the exchange by a button; the posted message arrives
    /// while the prompt is open.
    static void Ask(kit::Dialog& d) {
        d.setText(IDC_NAME, L"four");
        d.setText(IDC_INT, L"12");
        d.pressLater(IDC_INNER);
    }
};

INSTANTIATE_TEST_SUITE_P(Each, ExchangePrompts,
                         testing::Range<std::size_t>(0, std::size(refusing)));

} // namespace

TEST_P(ExchangePrompts, TheDialogGoes) {
    FieldsDialog dialog;
    dialog.exchange = [](CDataExchange* pDX) {
        if (pDX->m_bSaveAndValidate)
            Exchange()(pDX);
    };
    BOOL exchanged = TRUE;
    dialog.onInner = [&](FieldsDialog& d) {
        d.PostMessage(WM_APP);
        exchanged = d.UpdateData(TRUE);
        EXPECT_EQ(d.m_hWnd, nullptr);
    };
    dialog.onPosted = [](FieldsDialog& d) { d.DestroyWindow(); };
    kit::Script script;
    script.onDialog(Ask);
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), -1);
    EXPECT_FALSE(exchanged);
}

TEST_P(ExchangePrompts, TheOwnerGoes) {
    CWnd owner;
    ASSERT_TRUE(owner.CreateEx(0, nullptr, L"Owner", WS_POPUP | WS_VISIBLE, 0, 0, 500, 500, nullptr,
                               nullptr));
    FieldsDialog dialog(&owner);
    dialog.exchange = [](CDataExchange* pDX) {
        if (pDX->m_bSaveAndValidate)
            Exchange()(pDX);
    };
    BOOL exchanged = TRUE;
    dialog.onInner = [&](FieldsDialog& d) {
        d.PostMessage(WM_APP);
        exchanged = d.UpdateData(TRUE);
    };
    dialog.onPosted = [&](FieldsDialog&) { owner.DestroyWindow(); };
    kit::Script script;
    script.onDialog(Ask);
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), -1);
    EXPECT_FALSE(exchanged);
}

TEST_P(ExchangePrompts, TheControlGoes) {
    FieldsDialog dialog;
    dialog.exchange = [](CDataExchange* pDX) {
        if (pDX->m_bSaveAndValidate)
            Exchange()(pDX);
    };
    BOOL exchanged = TRUE;
    dialog.onInner = [&](FieldsDialog& d) {
        d.PostMessage(WM_APP);
        exchanged = d.UpdateData(TRUE);
    };
    dialog.onPosted = [](FieldsDialog& d) {
        for (const int id : {IDC_NAME, IDC_INT})
            d.GetDlgItem(id)->DestroyWindow();
    };
    kit::Script script;
    script.onDialog(Ask);
    script.expectMessage();
    script.onDialog([](kit::Dialog& d) { d.press(IDCANCEL); });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDCANCEL);
    EXPECT_FALSE(exchanged);
}

TEST_P(ExchangePrompts, TheObjectGoesWithItsWindow) {
    int alive = 0;
    auto* const dialog = new PassingDialog(alive);
    ASSERT_TRUE(dialog->Create(IDD_FIELDS));
    dialog->SetDlgItemText(IDC_NAME, L"four");
    dialog->SetDlgItemText(IDC_INT, L"12");
    dialog->exchange = [exchange = Exchange()](CDataExchange* pDX) {
        // One inside the other, as where a notification asks again.
        static bool inner = false;
        if (!inner) {
            inner = true;
            EXPECT_FALSE(pDX->m_pDlgWnd->UpdateData(TRUE));
            inner = false;
            AfxThrowUserException();
        }
        exchange(pDX);
    };
    dialog->onPosted = [](FieldsDialog& d) { ::DestroyWindow(d.m_hWnd); };
    dialog->PostMessage(WM_APP);
    EXPECT_FALSE(dialog->UpdateData(TRUE));
    EXPECT_EQ(alive, 0);
}

TEST(ExchangesOfNoWindow, AreFalseAndTellNobody) {
    FieldsDialog dialog;
    EXPECT_FALSE(dialog.UpdateData(TRUE));
    dialog.exchange = refusing[0];
    EXPECT_FALSE(dialog.UpdateData(FALSE));
}

TEST(ExchangesOfNoWindow, ThatWentInTheMiddleAreFalse) {
    FieldsDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_FIELDS));
    dialog.exchange = [](CDataExchange* pDX) { pDX->m_pDlgWnd->DestroyWindow(); };
    EXPECT_FALSE(dialog.UpdateData(FALSE));
}

// ---- Controls that are not there

namespace {

/// What is written to the debug output of this process, as long as it lives.
class DebugOutput {
public:
    DebugOutput() : m_handler(::AddVectoredExceptionHandler(1, &Read)) { s_lines.clear(); }
    ~DebugOutput() { ::RemoveVectoredExceptionHandler(m_handler); }
    DebugOutput(const DebugOutput&) = delete;
    DebugOutput& operator=(const DebugOutput&) = delete;

    const std::vector<std::string>& Lines() const { return s_lines; }

private:
    // The system raises an exception that a debugger would see.
    static LONG CALLBACK Read(EXCEPTION_POINTERS* raised) {
        constexpr DWORD printed = 0x40010006;
        const EXCEPTION_RECORD& record = *raised->ExceptionRecord;
        if (record.ExceptionCode == printed)
            s_lines.emplace_back(reinterpret_cast<const char*>(record.ExceptionInformation[1]));
        return EXCEPTION_CONTINUE_SEARCH;
    }
    static inline std::vector<std::string> s_lines;
    void* m_handler;
};

template <class Value>
std::function<void(CDataExchange*)> Exchanging(void(AFXAPI* exchange)(CDataExchange*, int,
                                                                      Value&)) {
    return [exchange](CDataExchange* pDX) {
        static Value value{};
        exchange(pDX, IDC_NO_SUCH, value);
    };
}

CWnd typed;

const std::function<void(CDataExchange*)> missing[] = {
    Exchanging<CString>(DDX_Text),
    [](CDataExchange* pDX) { DDX_Text(pDX, IDC_NO_SUCH, room, 3); },
    Exchanging<BYTE>(DDX_Text),
    Exchanging<short>(DDX_Text),
    Exchanging<int>(DDX_Text),
    Exchanging<UINT>(DDX_Text),
    Exchanging<long>(DDX_Text),
    Exchanging<DWORD>(DDX_Text),
    Exchanging<LONGLONG>(DDX_Text),
    Exchanging<ULONGLONG>(DDX_Text),
    Exchanging<float>(DDX_Text),
    Exchanging<double>(DDX_Text),
    Exchanging<int>(DDX_Check),
    Exchanging<int>(DDX_Radio),
    Exchanging<int>(DDX_CBIndex),
    Exchanging<int>(DDX_LBIndex),
    Exchanging<CString>(DDX_LBString),
    Exchanging<CString>(DDX_LBStringExact),
    Exchanging<CString>(DDX_CBString),
    Exchanging<CString>(DDX_CBStringExact),
    Exchanging<int>(DDX_Scroll),
    Exchanging<int>(DDX_Slider),
    [](CDataExchange* pDX) { DDX_Control(pDX, IDC_NO_SUCH, typed); },
};

class MissingControls : public testing::TestWithParam<std::size_t> {};
INSTANTIATE_TEST_SUITE_P(Each, MissingControls, testing::Range<std::size_t>(0, std::size(missing)));

const wchar_t* const notSupported = L"This operation is not supported.";

} // namespace

TEST_P(MissingControls, EndTheOpeningAndAreNamedInTheDebugOutput) {
    FieldsDialog dialog;
    dialog.exchange = missing[GetParam()];
    const DebugOutput output;
    kit::Script script;
    script.expectMessage(L"Framework tests", notSupported, MB_ICONEXCLAMATION);
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), -1);
    ASSERT_EQ(output.Lines().size(), 1U);
    const std::string& line = output.Lines()[0];
    EXPECT_TRUE(line.starts_with("Template 4001 has no control 5999 (")) << line;
    EXPECT_TRUE(line.ends_with("framework_test.exe).\n")) << line;
}

TEST_P(MissingControls, LeaveAnOpenDialogOpen) {
    FieldsDialog dialog;
    BOOL exchanged = TRUE;
    dialog.onInner = [&](FieldsDialog& d) {
        d.exchange = missing[GetParam()];
        exchanged = d.UpdateData(TRUE);
        d.exchange = [](CDataExchange*) {};
    };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.press(IDC_INNER);
        d.press(IDOK);
    });
    script.expectMessage(L"Framework tests", notSupported, MB_ICONEXCLAMATION);
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_FALSE(exchanged);
}

TEST(MissingControls, OfALanguageFileAreNamedWithThatFile) {
    const TemporaryFolder folder;
    folder.Put(L"language_right.dll", L"titledLOC.dll");
    const LoadedModule titled(folder.Put(L"titled.dll", L"titled.dll"));
    ASSERT_TRUE(titled.handle());
    FieldsDialog dialog(nullptr, IDD_OF_LANGUAGE);
    dialog.exchange = missing[0];
    const DebugOutput output;
    kit::Script script;
    script.expectMessage(L"Framework tests", notSupported, MB_ICONEXCLAMATION);
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), -1);
    ASSERT_EQ(output.Lines().size(), 1U);
    const std::string& line = output.Lines()[0];
    EXPECT_TRUE(line.starts_with("Template 61006 has no control 5999 (")) << line;
    EXPECT_TRUE(line.ends_with("titledLOC.dll).\n")) << line;
}
