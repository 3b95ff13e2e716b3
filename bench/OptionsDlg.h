#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include "bench/Options.h"
#include "bench/OptionsIds.h"

namespace bench {

/// The plain options dialog, written for the framework as any other dialog is.
class OptionsDlg : public CDialog {
public:
    explicit OptionsDlg(Options<CString>& options, CWnd* parent = nullptr)
        : CDialog(IDD_OPTIONS, parent), m_options(options) {}

protected:
    void DoDataExchange(CDataExchange* pDX) override;

public:
    BOOL OnInitDialog() override;
    void OnOK() override;

private:
    Options<CString>& m_options;
    CComboBox m_units;
    CListCtrl m_layers;
};

} // namespace bench
