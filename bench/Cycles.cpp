// Whole conversations: open, fill, show and paint, OK, read, close.
#include <algorithm>

#include "bench/OptionsDlg.h"
#include "bench/Sections.h"
#include "bench/Stopwatch.h"
#include "bench/Surveys.h"
#include "bench/raw/OptionsDialog.h"
#include "bench/raw/TriangulationDialog.h"
#include "cuadros/triangulation/TriangulacionDlg.h"

namespace bench {

namespace {

void measureOptions(Bench& bench) {
    Options<CString> shown;
    Options<std::wstring> shownByHand;
    const auto framework = [&] {
        shown = someOptions<CString>();
        return timeOf([&] { OptionsDlg(shown).DoModal(); });
    };
    const auto raw = [&] {
        shownByHand = someOptions<std::wstring>();
        return timeOf([&] { raw::OptionsDialog(shownByHand).run(bench.desk.window()); });
    };
    const Comparison comparison = compare(bench.cycles, framework, raw);
    if (!(shown == shownByHand && shown == someOptions<std::wstring>()))
        bench.fail("the two options dialogs do not leave the same record");
    bench.report.add("Cycle: 40 plain controls", comparison, 1.10);
}

bool same(const Cotana::CDigiTab& one, const Cotana::CDigiTab& other) {
    if (one.Cantidad() != other.Cantidad())
        return false;
    for (unsigned int i = 0; i < one.Cantidad(); ++i)
        if (!one[i].ComparaCodigo(other[i].GetCodigo()))
            return false;
    return true;
}

void measureTriangulation(Bench& bench, int codes, int cycles) {
    const Cotana::CDataTriangulacion survey = surveyOf(codes);
    Cotana::CDataTriangulacion data;
    Cotana::CDataTriangulacion dataByHand;
    const auto framework = [&] {
        data = survey;
        return timeOf([&] { Cotana::CTriangulacionDlg(data).DoModal(); });
    };
    const auto raw = [&] {
        dataByHand = survey;
        return timeOf([&] {
            raw::TriangulationDialog(dataByHand, textModule(), iconModule())
                .run(bench.desk.window());
        });
    };
    const Comparison comparison = compare(cycles, framework, raw);
    if (!same(data.m_Codigos, survey.m_Codigos) || !same(data.m_CodigosRuptura, survey.m_Codigos) ||
        !same(data.m_CodigosRuptura, dataByHand.m_CodigosRuptura))
        bench.fail("the two triangulation dialogs do not leave the same record");
    bench.report.add("Cycle: triangulation, " + std::to_string(codes) + " codes", comparison,
                     codes == 60 ? 1.10 : 0);
}

} // namespace

void measureCycles(Bench& bench) {
    measureOptions(bench);
    measureTriangulation(bench, 60, bench.cycles);
    // Each row that is selected builds the other list anew: with the codes, the work grows by
    // their square, and a cycle takes seconds.
    measureTriangulation(bench, 250, std::max(1, bench.cycles / 20));
    if (bench.cycles >= 200)
        measureTriangulation(bench, 1000, 3);
}

} // namespace bench
