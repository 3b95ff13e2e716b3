// Dialog data exchange (DDX_) and validation (DDV_): one line per control in DoDataExchange
// moves its value between the control and a variable, both ways.
#pragma once

#include "wnd.h"

/// One exchange: its window, its direction, and the control that it is at.
class AFXRT_API CDataExchange {
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);

    const BOOL m_bSaveAndValidate; ///< TRUE: from the controls; FALSE: into them
    CWnd* const m_pDlgWnd;

    /// Makes a control (not an edit) the current one. When the dialog does not have it, the debug
    /// output tells of it, with the template and its file, and a CNotSupportedException is thrown.
    HWND PrepareCtrl(int nIDC);
    /// The same for an edit, whose text Fail selects.
    HWND PrepareEditCtrl(int nIDC);
    /// Ends an exchange whose user has been told what is wrong: puts the focus on the current
    /// control, selects an edit's text, and throws CUserException.
    [[noreturn]] void Fail();

private:
    friend AFXRT_API void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);

    HWND Prepare(int nIDC, bool edit);
    void TellOfMissing(int nIDC) const;
    /// The control that follows this one in the order of the dialog, or null.
    HWND NextCtrl(HWND control);
    bool IsRadioButton(LONG_PTR style);

    HWND m_control = nullptr;
    bool m_controlIsEdit = false;
};

class CComboBox;
class CListBox;

// Text. Numbers: blanks may stand before and after, the whole rest must be the number, and it
// must fit the type; otherwise the standard prompt is shown and the exchange fails.
AFXRT_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
AFXRT_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, int nMaxLen);
AFXRT_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value);
AFXRT_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value);
AFXRT_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
AFXRT_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
AFXRT_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value);
AFXRT_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value);
AFXRT_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LONGLONG& value);
AFXRT_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, ULONGLONG& value);
/// Shown with 6 significant digits.
AFXRT_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value);
/// Shown with 15 significant digits, whatever the locale with a decimal point.
AFXRT_API void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value);

/// 0, 1 or 2 (indeterminate); any other value shows 0.
AFXRT_API void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
/// The index, from 0, of the checked button in the group that nIDC starts; -1 for none.
AFXRT_API void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
/// The index of the selected item, -1 for none.
AFXRT_API void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
AFXRT_API void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
/// The text of a list box's selected item; selects the first item that starts with it.
AFXRT_API void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
AFXRT_API void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value);
/// The text of a combo box; selects the first item that starts with it, or edits it.
AFXRT_API void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
AFXRT_API void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value);
AFXRT_API void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value);
AFXRT_API void AFXAPI DDX_Slider(CDataExchange* pDX, int nIDC, int& value);
/// Subclasses the control with rControl, at the first exchange only.
AFXRT_API void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);

// Validation of the value that the line before has exchanged.
AFXRT_API void AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal);
AFXRT_API void AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal);
AFXRT_API void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
AFXRT_API void AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal);
AFXRT_API void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
AFXRT_API void AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);
AFXRT_API void AFXAPI DDV_MinMaxLongLong(CDataExchange* pDX, LONGLONG value, LONGLONG minVal,
                                         LONGLONG maxVal);
AFXRT_API void AFXAPI DDV_MinMaxULongLong(CDataExchange* pDX, ULONGLONG value, ULONGLONG minVal,
                                          ULONGLONG maxVal);
AFXRT_API void AFXAPI DDV_MinMaxUnsigned(CDataExchange* pDX, unsigned value, unsigned minVal,
                                         unsigned maxVal);
AFXRT_API void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, const float& value, float minVal,
                                      float maxVal);
AFXRT_API void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal,
                                       double maxVal);
AFXRT_API void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars);
