#include "FieldsDialog.h"

#include <kit/kit.h>

#include <limits>
#include <stdexcept>
#include <utility>

namespace {

CString Prompt(UINT id) {
    CString text;
    EXPECT_TRUE(text.LoadString(id));
    return text;
}

// Opens the dialog over one number in one edit, types a text into it and presses OK. The
// result is what the record holds then; a refused text shows the prompt and is cancelled.
template <class Number>
struct Typed {
    INT_PTR result;
    Number value;
};

template <class Number>
Typed<Number> TypeNumber(int id, Number start, const wchar_t* text, UINT prompt = 0) {
    FieldsDialog dialog;
    Number value = start;
    dialog.exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, id, value); };
    kit::Script script;
    script.onDialog([=](kit::Dialog& d) {
        d.setText(id, text);
        d.press(IDOK);
    });
    if (prompt != 0) {
        script.expectMessage(L"Framework tests", Prompt(prompt).GetString(), MB_ICONEXCLAMATION)
            .buttons(MB_OK);
        script.onDialog([=](kit::Dialog& d) {
            EXPECT_EQ(d.focus(), id);
            const kit::Selection all = {0, static_cast<int>(std::wcslen(text))};
            EXPECT_EQ(d.selection(id), all);
            EXPECT_EQ(d.text(id), text);
            d.press(IDCANCEL);
        });
    }
    const INT_PTR result = script.run([&] { return dialog.DoModal(); });
    return {result, value};
}

template <class Number>
void Accepts(int id, const wchar_t* text, Number wanted) {
    const Typed<Number> typed = TypeNumber<Number>(id, Number{77}, text);
    EXPECT_EQ(typed.result, IDOK) << kit::utf8(text);
    EXPECT_EQ(typed.value, wanted) << kit::utf8(text);
}

template <class Number>
void Refuses(int id, const wchar_t* text, UINT prompt) {
    const Typed<Number> typed = TypeNumber<Number>(id, Number{77}, text, prompt);
    EXPECT_EQ(typed.result, IDCANCEL) << kit::utf8(text);
    EXPECT_EQ(typed.value, Number{77}) << kit::utf8(text);
}

// How a number is shown, before the user touches it.
template <class Number>
std::wstring Shown(Number value) {
    FieldsDialog dialog;
    dialog.exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_DOUBLE, value); };
    std::wstring shown;
    kit::Script script;
    script.onDialog([&](kit::Dialog& d) {
        shown = d.text(IDC_DOUBLE);
        d.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDCANCEL);
    return shown;
}

// ---- Numbers

TEST(ExchangeOfNumbers, DoublesAreShownWithFifteenSignificantDigits) {
    EXPECT_EQ(Shown(0.1 + 0.2), L"0.3");
    EXPECT_EQ(Shown(1.0 / 3.0), L"0.333333333333333");
    EXPECT_EQ(Shown(123456789.123456789), L"123456789.123457");
    EXPECT_EQ(Shown(-2.5), L"-2.5");
    EXPECT_EQ(Shown(0.0), L"0");
    EXPECT_EQ(Shown(1e20), L"1e+20");
    EXPECT_EQ(Shown(5e-8), L"5e-08");
}

TEST(ExchangeOfNumbers, FloatsAreShownWithSixSignificantDigits) {
    EXPECT_EQ(Shown(0.1f), L"0.1");
    EXPECT_EQ(Shown(1.0f / 3.0f), L"0.333333");
}

TEST(ExchangeOfNumbers, TheWholeTextMustBeADouble) {
    Accepts(IDC_DOUBLE, L"2.5", 2.5);
    Accepts(IDC_DOUBLE, L"  -0.125\t", -0.125);
    Accepts(IDC_DOUBLE, L"+7", 7.0);
    Accepts(IDC_DOUBLE, L"1e3", 1000.0);
    Accepts(IDC_DOUBLE, L".5", 0.5);
    for (const wchar_t* text : {L"", L" ", L"abc", L"1.2.3", L"2,5", L"1 2", L"12x", L"+-1", L"-",
                                L"inf", L"nan", L"0x10", L"1d2", L"1e999", L"１"})
        Refuses<double>(IDC_DOUBLE, text, AFX_IDP_PARSE_REAL);
}

TEST(ExchangeOfNumbers, IntegersMustFit) {
    Accepts(IDC_INT, L"-2147483648", std::numeric_limits<int>::min());
    Accepts(IDC_INT, L"2147483647", std::numeric_limits<int>::max());
    Accepts(IDC_INT, L" 12 ", 12);
    for (const wchar_t* text : {L"2147483648", L"-2147483649", L"1.5", L"", L"12a", L"99999999999"})
        Refuses<int>(IDC_INT, text, AFX_IDP_PARSE_INT);
    Accepts<short>(IDC_SHORT, L"-32768", -32768);
    Refuses<short>(IDC_SHORT, L"32768", AFX_IDP_PARSE_INT);
    Accepts<BYTE>(IDC_BYTE, L"255", 255);
    Refuses<BYTE>(IDC_BYTE, L"256", AFX_IDP_PARSE_BYTE);
    Accepts<LONGLONG>(IDC_INT, L"-9223372036854775808", std::numeric_limits<LONGLONG>::min());
}

TEST(ExchangeOfNumbers, UnsignedNumbersHaveNoMinus) {
    Accepts<UINT>(IDC_UINT, L"4294967295", 4294967295u);
    Accepts<UINT>(IDC_UINT, L"0", 0u);
    for (const wchar_t* text : {L"-1", L"", L"4294967296", L"-0"})
        Refuses<UINT>(IDC_UINT, text, AFX_IDP_PARSE_UINT);
    Refuses<DWORD>(IDC_UINT, L"-1", AFX_IDP_PARSE_UINT);
}

TEST(ExchangeOfNumbers, ThePromptsSayWhatIsWanted) {
    EXPECT_STREQ(Prompt(AFX_IDP_PARSE_INT), L"Please enter an integer.");
    EXPECT_STREQ(Prompt(AFX_IDP_PARSE_REAL), L"Please enter a number.");
    EXPECT_STREQ(Prompt(AFX_IDP_PARSE_UINT), L"Please enter a positive integer.");
    EXPECT_STREQ(Prompt(AFX_IDP_PARSE_BYTE), L"Please enter an integer between 0 and 255.");
}

// ---- The exchange as a whole

TEST(Exchange, AFailureHasStoredTheEarlierControlsAndNotTheLaterOnes) {
    FieldsDialog dialog;
    CString name = L"before";
    double number = 1;
    int later = 3;
    dialog.exchange = [&](CDataExchange* pDX) {
        DDX_Text(pDX, IDC_NAME, name);
        DDX_Text(pDX, IDC_DOUBLE, number);
        DDX_Text(pDX, IDC_INT, later);
    };
    BOOL exchanged = TRUE;
    dialog.onInner = [&](FieldsDialog& d) { exchanged = d.UpdateData(TRUE); };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.type(IDC_NAME, L"after");
        d.type(IDC_DOUBLE, L"x");
        d.type(IDC_INT, L"4");
        d.press(IDC_INNER);
        EXPECT_EQ(d.focus(), IDC_DOUBLE);
        d.press(IDCANCEL);
    });
    script.expectMessage(L"Framework tests", L"Please enter a number.", MB_ICONEXCLAMATION)
        .ownedByDialog();
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDCANCEL);
    EXPECT_FALSE(exchanged);
    EXPECT_STREQ(name, L"after");
    EXPECT_EQ(number, 1);
    EXPECT_EQ(later, 3);
}

TEST(Exchange, ItsOwnChangesNotifyNobody) {
    FieldsDialog dialog;
    CString name = L"first";
    dialog.exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_NAME, name); };
    dialog.onCheck = [&](FieldsDialog& d) {
        name = L"second";
        EXPECT_TRUE(d.UpdateData(FALSE));
    };
    kit::Script script;
    script.onDialog([&](kit::Dialog& d) {
        EXPECT_TRUE(dialog.log.empty()) << "showing the record at the opening is no change";
        d.click(IDC_CHECK);
        EXPECT_EQ(d.text(IDC_NAME), L"second");
        d.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDCANCEL);
    EXPECT_EQ(dialog.log, (std::vector<std::string>{"killfocus", "check"}));
}

TEST(Exchange, InsideAnotherExchangeItGivesTheSilenceBack) {
    FieldsDialog dialog;
    CString name = L"a";
    bool nested = false;
    dialog.exchange = [&](CDataExchange* pDX) {
        if (nested) {
            nested = false;
            dialog.UpdateData(TRUE);
            // Still inside the outer exchange: nobody is notified of this change.
            ::SetDlgItemText(dialog.m_hWnd, IDC_NAME, L"from the program");
        }
        DDX_Text(pDX, IDC_NAME, name);
    };
    dialog.onCheck = [&](FieldsDialog& d) {
        nested = true;
        EXPECT_TRUE(d.UpdateData(TRUE));
        ::SetDlgItemText(d.m_hWnd, IDC_NAME, L"afterwards");
    };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.click(IDC_CHECK);
        d.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDCANCEL);
    EXPECT_EQ(dialog.log, (std::vector<std::string>{"killfocus", "check", "change"}));
    EXPECT_STREQ(name, L"from the program");
}

TEST(Exchange, AnExceptionEndsTheSilenceToo) {
    FieldsDialog dialog;
    bool throws = false;
    dialog.exchange = [&](CDataExchange*) {
        if (throws)
            throw std::runtime_error("from an exchange");
    };
    dialog.onCheck = [&](FieldsDialog& d) {
        throws = true;
        EXPECT_THROW(d.UpdateData(TRUE), std::runtime_error);
        throws = false;
        ::SetDlgItemText(d.m_hWnd, IDC_NAME, L"x");
    };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.click(IDC_CHECK);
        d.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDCANCEL);
    EXPECT_EQ(dialog.log, (std::vector<std::string>{"killfocus", "check", "change"}));
}

TEST(Exchange, AFailureEndsTheSilenceToo) {
    FieldsDialog dialog;
    double number = 1;
    dialog.exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_DOUBLE, number); };
    dialog.onInner = [&](FieldsDialog& d) {
        EXPECT_FALSE(d.UpdateData(TRUE));
        ::SetDlgItemText(d.m_hWnd, IDC_NAME, L"x");
    };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.type(IDC_DOUBLE, L"x");
        d.command(IDC_INNER);
        d.press(IDCANCEL);
    });
    script.expectMessage(L"Framework tests", L"Please enter a number.", MB_ICONEXCLAMATION);
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDCANCEL);
    EXPECT_EQ(dialog.log, (std::vector<std::string>{"killfocus", "inner", "change"}));
}

// A dialog with a list whose notifications are written down.
class ListDialog : public FieldsDialog {
public:
    ListDialog() : FieldsDialog(nullptr, IDD_CHILDREN) {}
    int changes = 0;
    int lostFocus = 0;
    void OnItemChanged(NMHDR*, LRESULT*) { ++changes; }
    void OnKillFocus(NMHDR*, LRESULT*) { ++lostFocus; }
    void SelectFirst(UINT state) {
        LVITEM item = {};
        item.stateMask = LVIS_SELECTED;
        item.state = state;
        SendDlgItemMessage(IDC_LIST, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&item));
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(ListDialog, FieldsDialog)
    ON_NOTIFY(LVN_ITEMCHANGED, IDC_LIST, &ListDialog::OnItemChanged)
    ON_NOTIFY(NM_KILLFOCUS, IDC_LIST, &ListDialog::OnKillFocus)
END_MESSAGE_MAP()

TEST(Exchange, SilencesNotificationsWithDataToo) {
    ListDialog dialog;
    UINT state = 0;
    dialog.exchange = [&](CDataExchange*) { dialog.SelectFirst(state); };
    dialog.onInit = [&](FieldsDialog& d) {
        LVITEM item = {};
        d.SendDlgItemMessage(IDC_LIST, LVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&item));
    };
    kit::Script script;
    script.onDialog([&](kit::Dialog& d) {
        for (const BOOL save : {TRUE, FALSE}) {
            state ^= LVIS_SELECTED;
            EXPECT_TRUE(dialog.UpdateData(save));
        }
        EXPECT_EQ(dialog.changes, 0);
        dialog.SelectFirst(LVIS_SELECTED);
        EXPECT_EQ(dialog.changes, 1);
        d.focusOn(IDC_LIST);
        d.command(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDCANCEL);
    EXPECT_EQ(dialog.lostFocus, 0) << "a focus lost by closing is not the user's doing";
}

TEST(Exchange, AnEqualTextIsNotSetAgain) {
    FieldsDialog dialog;
    CString name;
    dialog.exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_NAME, name); };
    dialog.onNameChange = [](FieldsDialog& d) { // shows the record again at each key
        d.UpdateData(TRUE);
        d.UpdateData(FALSE);
    };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.type(IDC_NAME, L"12");
        EXPECT_EQ(d.text(IDC_NAME), L"12") << "the caret went back to the start";
        EXPECT_EQ(d.selection(IDC_NAME), (kit::Selection{2, 2}));
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_STREQ(name, L"12");
}

TEST(Exchange, AControlThatIsNotThereEndsTheDialog) {
    FieldsDialog dialog;
    CString name;
    dialog.exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_NO_SUCH, name); };
    kit::Script script;
    CString text;
    text.LoadString(AFX_IDS_NOT_SUPPORTED_EXCEPTION);
    script.expectMessage(L"Framework tests", text.GetString(), MB_ICONEXCLAMATION);
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), -1);
}

// ---- Buttons and boxes

TEST(ExchangeOfButtons, ChecksAreZeroOrOne) {
    for (const auto& [record, shown] : {std::pair{0, false}, {1, true}, {7, false}, {-1, false}}) {
        FieldsDialog dialog;
        int flag = record;
        dialog.exchange = [&](CDataExchange* pDX) { DDX_Check(pDX, IDC_CHECK, flag); };
        kit::Script script;
        script.onDialog([&](kit::Dialog& d) {
            EXPECT_EQ(d.checked(IDC_CHECK), shown) << record;
            d.click(IDC_CHECK);
            d.press(IDOK);
        });
        EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
        EXPECT_EQ(flag, shown ? 0 : 1) << record;
    }
}

TEST(ExchangeOfButtons, ARadioGroupIsAnIndexInItsOrder) {
    // The group has a label inside, its numbers have no order, and another group follows.
    const std::vector<int> buttons = {IDC_RADIO_A, IDC_RADIO_B, IDC_RADIO_C};
    for (int chosen = 0; chosen < 3; ++chosen) {
        FieldsDialog dialog;
        int index = (chosen + 1) % 3;
        dialog.exchange = [&](CDataExchange* pDX) { DDX_Radio(pDX, IDC_RADIO_A, index); };
        kit::Script script;
        script.onDialog([&](kit::Dialog& d) {
            EXPECT_TRUE(d.checked(buttons[static_cast<std::size_t>((chosen + 1) % 3)]));
            d.click(IDC_AFTER);
            d.click(buttons[static_cast<std::size_t>(chosen)]);
            d.press(IDOK);
        });
        EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
        EXPECT_EQ(index, chosen);
    }
}

TEST(ExchangeOfButtons, ARadioIndexOutOfRangeChecksNothingAndComesBackAsNone) {
    for (const int record : {-1, 3, 100}) {
        FieldsDialog dialog;
        int index = record;
        dialog.exchange = [&](CDataExchange* pDX) { DDX_Radio(pDX, IDC_RADIO_A, index); };
        kit::Script script;
        script.onDialog([&](kit::Dialog& d) {
            for (const int id : {IDC_RADIO_A, IDC_RADIO_B, IDC_RADIO_C})
                EXPECT_FALSE(d.checked(id));
            d.press(IDOK);
        });
        EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
        EXPECT_EQ(index, -1);
    }
}

// Counts a message on its way to a control.
class Counted : public CWnd {
public:
    explicit Counted(UINT message) : m_message(message) {}
    int count = 0;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        count += message == m_message;
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    UINT m_message;
};

TEST(ExchangeOfButtons, AnEqualStateIsNotSetAgain) {
    FieldsDialog dialog;
    int flag = 1;
    int index = 1;
    dialog.exchange = [&](CDataExchange* pDX) {
        DDX_Check(pDX, IDC_CHECK, flag);
        DDX_Radio(pDX, IDC_RADIO_A, index);
    };
    Counted check(BM_SETCHECK);
    Counted radio(BM_SETCHECK);
    kit::Script script;
    script.onDialog([&](kit::Dialog& d) {
        check.SubclassDlgItem(IDC_CHECK, &dialog);
        radio.SubclassDlgItem(IDC_RADIO_B, &dialog);
        EXPECT_TRUE(dialog.UpdateData(FALSE));
        EXPECT_EQ(check.count + radio.count, 0);
        flag = 0;
        index = 0;
        EXPECT_TRUE(dialog.UpdateData(FALSE));
        EXPECT_EQ(check.count, 1);
        EXPECT_EQ(radio.count, 1);
        d.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDCANCEL);
}

TEST(ExchangeOfButtons, AGroupIsWhatItsButtonsAreNow) {
    FieldsDialog dialog;
    int index = 2;
    dialog.exchange = [&](CDataExchange* pDX) { DDX_Radio(pDX, IDC_RADIO_A, index); };
    ASSERT_TRUE(dialog.Create(IDD_FIELDS));
    const auto exchanged = [&] {
        EXPECT_TRUE(dialog.UpdateData(TRUE));
        return index;
    };
    EXPECT_EQ(exchanged(), 2);
    dialog.GetDlgItem(IDC_RADIO_B)->ModifyStyle(BS_TYPEMASK, BS_AUTOCHECKBOX);
    EXPECT_EQ(exchanged(), 1);
    dialog.GetDlgItem(IDC_RADIO_B)->ModifyStyle(BS_TYPEMASK, BS_AUTORADIOBUTTON);
    EXPECT_EQ(exchanged(), 2);
    MainWindow other;
    CWnd* const moved = dialog.GetDlgItem(IDC_RADIO_B);
    moved->SetParent(&other);
    EXPECT_EQ(exchanged(), 1);
    dialog.GetDlgItem(IDC_RADIO_C)->DestroyWindow();
    EXPECT_EQ(exchanged(), -1);
    dialog.DestroyWindow();
}

// Asked what it is, begins an exchange of its own.
class Asking : public CWnd {
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_GETDLGCODE && !std::exchange(m_asking, true)) {
            // With another control, and fewer of them.
            static_cast<FieldsDialog*>(GetParent())->exchange = [](CDataExchange* pDX) {
                int number = 0;
                DDX_Check(pDX, IDC_CHECK, number);
            };
            EXPECT_TRUE(GetParent()->UpdateData(TRUE));
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    bool m_asking = false;
};

TEST(ExchangeOfButtons, AButtonMayExchangeWhenItIsAsked) {
    FieldsDialog dialog;
    int index = 1;
    ASSERT_TRUE(dialog.Create(IDD_FIELDS));
    Asking asking;
    ASSERT_TRUE(asking.SubclassDlgItem(IDC_RADIO_A, &dialog));
    CString name;
    const auto exchange = [&](CDataExchange* pDX) {
        DDX_Text(pDX, IDC_NAME, name);
        DDX_Radio(pDX, IDC_RADIO_A, index);
    };
    CDataExchange show(&dialog, FALSE);
    exchange(&show);
    index = 5;
    CDataExchange read(&dialog, TRUE);
    exchange(&read);
    EXPECT_EQ(index, 1);
    dialog.DestroyWindow();
}

TEST(ExchangeOfControls, FindsThemByTheirNumbersOfNow) {
    FieldsDialog dialog;
    CString name = L"first";
    dialog.exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_NAME, name); };
    ASSERT_TRUE(dialog.Create(IDD_FIELDS));
    dialog.SetDlgItemText(IDC_DOUBLE, L"second");
    CWnd* const before = dialog.GetDlgItem(IDC_NAME);
    CWnd* const other = dialog.GetDlgItem(IDC_DOUBLE);
    before->SetDlgCtrlID(IDC_DOUBLE);
    other->SetDlgCtrlID(IDC_NAME);
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_STREQ(name, L"second");

    other->DestroyWindow();
    CWnd next;
    ASSERT_TRUE(next.Create(L"Edit", L"third", WS_CHILD, CRect(0, 0, 9, 9), &dialog, IDC_NAME));
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_STREQ(name, L"third");
    dialog.DestroyWindow();
}

// Has no text, and says so as a list box without a choice does.
class Textless : public CWnd {
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return message == WM_GETTEXT ? LB_ERR : CWnd::WindowProc(message, wParam, lParam);
    }
};

TEST(ExchangeOfControls, OneWithoutATextHasAnEmptyOne) {
    FieldsDialog dialog;
    CString name = L"before";
    ASSERT_TRUE(dialog.Create(IDD_FIELDS));
    Textless control;
    ASSERT_TRUE(control.SubclassDlgItem(IDC_NAME, &dialog));
    dialog.exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, IDC_NAME, name); };
    EXPECT_TRUE(dialog.UpdateData(TRUE));
    EXPECT_STREQ(name, L"");
    dialog.DestroyWindow();
}

TEST(ExchangeOfBoxes, ACombosIndexIsItsSelectionAndMinusOneWithoutOne) {
    for (const auto& [record, expected] : {std::pair{1, 1}, {-1, -1}, {9, -1}}) {
        FieldsDialog dialog(nullptr, IDD_COMBOS);
        int index = record;
        dialog.exchange = [&](CDataExchange* pDX) { DDX_CBIndex(pDX, IDC_COMBO, index); };
        kit::Script script;
        script.onDialog([&](kit::Dialog& d) { d.press(IDOK); });
        EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
        EXPECT_EQ(index, expected) << record;
    }
}

TEST(ExchangeOfBoxes, ACombosTextAndAListsText) {
    FieldsDialog dialog(nullptr, IDD_COMBOS);
    CString kind = L"Second";
    CString item = L"Two";
    dialog.exchange = [&](CDataExchange* pDX) {
        DDX_CBString(pDX, IDC_COMBO, kind);
        DDX_LBString(pDX, IDC_LISTBOX, item);
    };
    kit::Script script;
    script.onDialog([&](kit::Dialog& d) {
        EXPECT_EQ(d.text(IDC_COMBO), L"Second");
        d.choose(IDC_COMBO, L"Third");
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_STREQ(kind, L"Third");
    EXPECT_STREQ(item, L"Two");
}

TEST(ExchangeOfControls, SubclassesAtTheFirstExchangeOnly) {
    FieldsDialog dialog(nullptr, IDD_CHILDREN);
    CWnd list;
    dialog.exchange = [&](CDataExchange* pDX) { DDX_Control(pDX, IDC_LIST, list); };
    kit::Script script;
    script.onDialog([&](kit::Dialog& d) {
        const HWND control = d.control(IDC_LIST);
        EXPECT_EQ(list.m_hWnd, control);
        EXPECT_EQ(CWnd::FromHandlePermanent(control), &list);
        const auto procedure = ::GetWindowLongPtr(control, GWLP_WNDPROC);
        EXPECT_TRUE(dialog.UpdateData(TRUE));
        EXPECT_TRUE(dialog.UpdateData(FALSE));
        EXPECT_EQ(::GetWindowLongPtr(control, GWLP_WNDPROC), procedure);
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_EQ(list.m_hWnd, nullptr) << "the object lets go when its window is destroyed";
}

// ---- Validation

TEST(Validation, AValueOutOfItsRangeIsRefusedWithTheRange) {
    FieldsDialog dialog;
    int value = 5;
    dialog.exchange = [&](CDataExchange* pDX) {
        DDX_Text(pDX, IDC_INT, value);
        DDV_MinMaxInt(pDX, value, 1, 10);
    };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.type(IDC_INT, L"11");
        d.press(IDOK);
    });
    script.expectMessage(L"Framework tests", L"Please enter an integer between 1 and 10.",
                         MB_ICONEXCLAMATION);
    script.onDialog([](kit::Dialog& d) {
        EXPECT_EQ(d.focus(), IDC_INT);
        d.type(IDC_INT, L"10");
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_EQ(value, 10);
}

TEST(Validation, ATextTooLongIsRefused) {
    FieldsDialog dialog;
    CString name;
    dialog.exchange = [&](CDataExchange* pDX) {
        DDX_Text(pDX, IDC_NAME, name);
        DDV_MaxChars(pDX, name, 3);
    };
    kit::Script script;
    script.onDialog([](kit::Dialog& d) {
        d.setText(IDC_NAME, L"four");
        d.press(IDOK);
    });
    script.expectMessage(L"Framework tests", L"Please enter no more than 3 characters.",
                         MB_ICONEXCLAMATION);
    script.onDialog([](kit::Dialog& d) {
        d.setText(IDC_NAME, L"one");
        d.press(IDOK);
    });
    EXPECT_EQ(script.run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_STREQ(name, L"one");
}

} // namespace
