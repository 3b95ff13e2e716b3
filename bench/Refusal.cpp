// OK that is refused with a message box, which is painted and closed.
#include "bench/Sections.h"
#include "bench/Stopwatch.h"
#include "bench/Surveys.h"
#include "bench/raw/TriangulationDialog.h"
#include "cuadros/resources/TriangulationIds.h"
#include "cuadros/triangulation/TriangulacionDlg.h"

namespace bench {

namespace {

Desk* deskToTell = nullptr;

/// A message box tells nobody that it is shown: the system tells us that it becomes active,
/// which is right before.
LRESULT CALLBACK onActivation(int code, WPARAM wParam, LPARAM lParam) {
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && GetWindow(window, GW_OWNER) != deskToTell->window())
        deskToTell->paintAtNextMessage(window);
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

class ActivationHook {
public:
    explicit ActivationHook(Desk& desk) {
        deskToTell = &desk;
        m_hook = SetWindowsHookExW(WH_CBT, onActivation, nullptr, GetCurrentThreadId());
    }
    ~ActivationHook() { UnhookWindowsHookEx(m_hook); }
    ActivationHook(const ActivationHook&) = delete;
    ActivationHook& operator=(const ActivationHook&) = delete;

private:
    HHOOK m_hook;
};

Competitor refusedOk(HWND dialog) {
    return [dialog] {
        SetActiveWindow(dialog);
        emptyQueue();
        const HWND ok = GetDlgItem(dialog, IDOK);
        return timeOf([&] {
            SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED),
                         reinterpret_cast<LPARAM>(ok));
        });
    };
}

} // namespace

void measureRefusal(Bench& bench) {
    Cotana::CDataTriangulacion data = surveyOf(60);
    data.m_Nombre.Empty(); // what the dialog checks last
    Cotana::CDataTriangulacion dataByHand = data;

    Cotana::CTriangulacionDlg dialog(data);
    dialog.Create(IDD_TRIANGULACION);
    dialog.ShowWindow(SW_SHOWNORMAL);
    raw::TriangulationDialog dialogByHand(dataByHand, textModule(), iconModule());
    const HWND byHand = dialogByHand.create(bench.desk.window());
    ShowWindow(byHand, SW_SHOWNORMAL);

    paintAll(dialog.m_hWnd);
    paintAll(byHand);

    int boxes = 0;
    bench.desk.whenPainted = [&](HWND box) {
        ++boxes;
        pressOk(box);
    };
    const ActivationHook hook(bench.desk);
    bench.report.add("Refused OK with its message box",
                     compare(bench.cycles, refusedOk(dialog.m_hWnd), refusedOk(byHand)), 1.05);
    if (boxes < 2 * bench.cycles)
        bench.fail("OK was not refused each time");
    bench.desk.whenPainted = pressOk;
    dialog.DestroyWindow();
    DestroyWindow(byHand);
}

} // namespace bench
