// The dialogs whose lists grow long: classifications to choose from, files dropped.
#include <shlobj.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "bench/Sections.h"
#include "bench/Stopwatch.h"
#include "bench/Surveys.h"
#include "bench/raw/ClassificationDialog.h"
#include "bench/raw/Controls.h"
#include "cuadros/triangulation/Triangulacion2DDlg.h"
#include "cuadros/triangulation/Triangulacion3DDiscoDlg.h"

namespace bench {

namespace {

constexpr int rows = 1000;

void measureClassifications(Bench& bench) {
    std::vector<Cotana::CInfoClasificacion> classifications;
    for (int i = 0; i < rows; ++i) {
        const std::wstring description = L"Classification " + std::to_wstring(i);
        classifications.emplace_back(static_cast<BYTE>(i), i * 37, description.c_str());
    }
    double value = 0;
    double valueByHand = 0;
    CString name;
    CString nameByHand;
    std::vector<int> chosen;
    std::vector<int> chosenByHand;
    const auto framework = [&] {
        value = 2.5;
        name = L"North slope";
        return timeOf([&] {
            Cotana::CTriangulacion2DDlg dialog(classifications, value, name, 1);
            dialog.DoModal();
            chosen = dialog.m_Seleccion;
        });
    };
    const auto raw = [&] {
        valueByHand = 2.5;
        nameByHand = L"North slope";
        return timeOf([&] {
            raw::ClassificationDialog dialog(classifications, valueByHand, nameByHand, textModule(),
                                             iconModule());
            dialog.run(bench.desk.window());
            chosenByHand = dialog.chosen;
        });
    };
    const Comparison comparison = compare(bench.cycles, framework, raw);
    if (value != valueByHand || name != nameByHand || chosen != chosenByHand || chosen.size() != 1)
        bench.fail("the two choices of classifications do not leave the same");
    bench.report.add("Cycle: " + std::to_string(rows) + " classifications", comparison, 1.10);
}

HGLOBAL dropOf(int files) {
    std::wstring list;
    for (int i = 0; i < files; ++i)
        list += L"C:\\survey\\north slope\\sheet-" + std::to_wstring(i) + L".xyz" + L'\0';
    list += L'\0';
    const std::size_t bytes = list.size() * sizeof(wchar_t);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, sizeof(DROPFILES) + bytes);
    auto* const drop = static_cast<DROPFILES*>(GlobalLock(memory));
    drop->pFiles = sizeof(DROPFILES);
    drop->fWide = TRUE;
    std::memcpy(drop + 1, list.data(), bytes);
    GlobalUnlock(memory);
    return memory;
}

INT_PTR CALLBACK takeDrop(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    if (message != WM_DROPFILES)
        return FALSE;
    const auto drop = reinterpret_cast<HDROP>(wParam);
    const HWND list = GetDlgItem(dialog, IDC_TRIANGULACION_3D_DISCO_HOJAS);
    const UINT files = DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
    raw::setRedraw(list, false);
    for (UINT i = 0; i < files; ++i) {
        wchar_t path[260] = L"";
        DragQueryFileW(drop, i, path, 260);
        SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(path));
    }
    raw::setRedraw(list, true);
    EnableWindow(GetDlgItem(dialog, IDOK), SendMessageW(list, LB_GETCOUNT, 0, 0) >= 1);
    return FALSE; // and the default processing
}

/// Takes the files out of a list, each one selected alone as it is taken.
std::vector<std::wstring> filesOf(HWND list) {
    std::vector<std::wstring> files;
    raw::setRedraw(list, false);
    const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        const auto row = static_cast<WPARAM>(i);
        SendMessageW(list, LB_SETSEL, FALSE, -1);
        SendMessageW(list, LB_SETSEL, TRUE, i);
        std::wstring& file = files.emplace_back();
        file.resize(static_cast<std::size_t>(SendMessageW(list, LB_GETTEXTLEN, row, 0)));
        SendMessageW(list, LB_GETTEXT, row, reinterpret_cast<LPARAM>(file.data()));
    }
    raw::setRedraw(list, true);
    return files;
}

void measureFiles(Bench& bench) {
    std::vector<CString> files;
    std::vector<std::wstring> filesByHand;
    double value = 0;
    int option = 0;
    Cotana::CTriangulacion3DDiscoDlg dialog(files, nullptr, value, option);
    dialog.Create(IDD_TRIANGULACION_3D_DISCO);
    const HWND byHand = CreateDialogIndirectParamW(
        textModule(), raw::findTemplate(textModule(), IDD_TRIANGULACION_3D_DISCO),
        bench.desk.window(), takeDrop, 0);
    const auto dropOnto = [](HWND target, int number) {
        SendDlgItemMessageW(target, IDC_TRIANGULACION_3D_DISCO_HOJAS, LB_RESETCONTENT, 0, 0);
        const HGLOBAL drop = dropOf(number);
        const double time =
            timeOf([&] { SendMessageW(target, WM_DROPFILES, reinterpret_cast<WPARAM>(drop), 0); });
        GlobalFree(drop); // nobody else does
        return time;
    };
    bench.report.add("Drop: " + std::to_string(rows) + " files",
                     compare(
                         bench.cycles, [&] { return dropOnto(dialog.m_hWnd, rows); },
                         [&] { return dropOnto(byHand, rows); }),
                     1.10);
    for (const HWND target : {dialog.m_hWnd, byHand})
        if (SendDlgItemMessageW(target, IDC_TRIANGULACION_3D_DISCO_HOJAS, LB_GETCOUNT, 0, 0) !=
            rows)
            bench.fail("the dropped files are not in the list");

    const HWND listByHand = GetDlgItem(byHand, IDC_TRIANGULACION_3D_DISCO_HOJAS);
    const auto acceptAgain = [&] {
        return compare(
            std::max(1, bench.cycles / 20), [&] { return timeOf([&] { dialog.OnOK(); }); },
            [&] { return timeOf([&] { filesByHand = filesOf(listByHand); }); });
    };
    bench.report.add("OK: " + std::to_string(rows) + " files", acceptAgain(), 1.10);
    constexpr int many = 5 * rows;
    dropOnto(dialog.m_hWnd, many);
    dropOnto(byHand, many);
    constexpr double halfASecond = 500'000;
    bench.report.addBounded("OK: " + std::to_string(many) + " files", acceptAgain(), halfASecond);
    if (!std::ranges::equal(files, filesByHand, [](const CString& one, const std::wstring& other) {
            return one == other.c_str();
        }))
        bench.fail("the two lists do not leave the same files");
    dialog.DestroyWindow();
    DestroyWindow(byHand);
}

} // namespace

void measureListDialogs(Bench& bench) {
    measureClassifications(bench);
    measureFiles(bench);
}

} // namespace bench
