// Whole conversations: open, fill, show and paint, OK, read, close.
#include <algorithm>
#include <tuple>

#include "bench/OptionsDlg.h"
#include "bench/Sections.h"
#include "bench/Stopwatch.h"
#include "bench/Surveys.h"
#include "bench/raw/ContourDialog.h"
#include "bench/raw/OptionsDialog.h"
#include "bench/raw/TriangulationDialog.h"
#include "cuadros/contours/CurvadoDlg.h"
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
                     codes == 1000 ? 0.10 : 1.10);
}

Cotana::CDataCurvado someContours() {
    Cotana::CDataCurvado data;
    data.m_Escala = 5000;
    data.m_Equidistancia = 2.5;
    data.m_EquidistanciaMaestra = 12.5;
    data.m_TextoCurvas = TRUE;
    data.m_Limite = TRUE;
    data.m_FicheroLimite = L"C:\\survey\\north slope\\boundary.xyz";
    data.m_RangoCota = TRUE;
    data.m_CotaMinima = 200;
    data.m_CotaMaxima = 350;
    data.m_TipoSuavizado = 2;
    return data;
}

bool same(const Cotana::CDataCurvado& one, const Cotana::CDataCurvado& other) {
    const auto values = [](const Cotana::CDataCurvado& data) {
        return std::tuple(
            data.m_ValorAvanzado1, data.m_ValorAvanzado2, data.m_TextoCurvas, data.m_Limite,
            data.m_OpcionSuavizado, data.m_Opcion1, data.m_RespetarCurvas, data.m_RangoCota,
            data.m_OpcionTexto, data.m_Escala, data.m_TextoValor1, data.m_Equidistancia,
            data.m_EquidistanciaMaestra, data.m_TextoValor2, data.m_CotaMinima, data.m_CotaMaxima,
            data.m_TextoEntero, data.m_NivelSuavizado, data.m_TipoSuavizado);
    };
    return values(one) == values(other) && one.m_FicheroLimite == other.m_FicheroLimite &&
           one.m_CurvasARespetar1 == other.m_CurvasARespetar1 &&
           one.m_CurvasARespetar2 == other.m_CurvasARespetar2;
}

void measureContours(Bench& bench) {
    const Cotana::CDataCurvado asked = someContours();
    constexpr double lowest = 150.25;
    constexpr double highest = 398.6;
    Cotana::CDataCurvado data;
    Cotana::CDataCurvado dataByHand;
    const auto framework = [&] {
        data = asked;
        return timeOf(
            [&] { CCurvadoDlg(data, nullptr, lowest, highest, SW_SHOWNORMAL).DoModal(); });
    };
    const auto raw = [&] {
        dataByHand = asked;
        return timeOf([&] {
            raw::ContourDialog(dataByHand, lowest, highest, textModule(), iconModule())
                .run(bench.desk.window());
        });
    };
    const Comparison comparison = compare(bench.cycles, framework, raw);
    if (!same(data, asked) || !same(data, dataByHand))
        bench.fail("the two contour dialogs do not leave the same record");
    bench.report.add("Cycle: contours", comparison, 1.10);
}

} // namespace

void measureCycles(Bench& bench) {
    measureOptions(bench);
    measureContours(bench);
    measureTriangulation(bench, 60, bench.cycles);
    // By hand each row that is selected builds the other list anew: with the codes, the work grows
    // by their square, and a cycle takes seconds.
    measureTriangulation(bench, 250, std::max(1, bench.cycles / 20));
    if (bench.cycles >= 200)
        measureTriangulation(bench, 1000, 3);
}

} // namespace bench
