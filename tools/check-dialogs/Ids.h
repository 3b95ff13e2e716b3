#pragma once

#include "Report.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

/// One dialog's block in an identifier header.
struct DialogIds {
    std::wstring name;                    ///< the class without its C: "TriangulacionDlg"
    std::wstring symbol;                  ///< "IDD_TRIANGULACION", of its first template
    std::map<int, std::wstring> controls; ///< number to symbol
};

/// The numbers that the code uses, read from the identifier headers.
///
/// A dialog's block begins with the comment `// C<class>` and its IDD_ symbol; the IDC_ symbols
/// after it are its controls and carry the dialog's name: IDD_X, IDC_X_<ROLE>. A dialog may have a
/// further template, IDD_X_<ROLE>, for the same controls.
class Ids {
public:
    /// Reads one header; what is wrong in it is reported.
    void read(const std::wstring& file, Report& report);

    /// By the number of a template; two of them may share one dialog.
    const std::map<int, std::shared_ptr<DialogIds>>& dialogs() const { return m_dialogs; }
    const std::map<int, std::wstring>& strings() const { return m_strings; }
    const std::map<int, std::wstring>& icons() const { return m_icons; }

private:
    std::map<int, std::shared_ptr<DialogIds>> m_dialogs;
    std::map<int, std::wstring> m_strings;
    std::map<int, std::wstring> m_icons;
};
