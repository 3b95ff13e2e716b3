// What is left over after many conversations.
#include <cstdio>

#include "bench/OptionsDlg.h"
#include "bench/Sections.h"
#include "bench/Surveys.h"
#include "bench/raw/OptionsDialog.h"
#include "bench/raw/TriangulationDialog.h"
#include "cuadros/triangulation/TriangulacionDlg.h"
#include "kit/driver/Handles.h"

namespace bench {

namespace {

/// What the process has got more of.
struct Growth {
    long long gdi, user, blocks, bytes;
    bool operator==(const Growth&) const = default;
    Growth operator-(const Growth& other) const {
        return {gdi - other.gdi, user - other.user, blocks - other.blocks, bytes - other.bytes};
    }
};

template <class Conversation>
Growth growthIn(int cycles, Conversation conversation) {
    conversation(); // fills what is cached for the life of the process
    const kit::Handles handles = kit::Handles::now();
    const kit::HeapUse heap = kit::HeapUse::now();
    for (int i = 0; i < cycles; ++i)
        conversation();
    const kit::Handles handlesAfter = kit::Handles::now();
    const kit::HeapUse heapAfter = kit::HeapUse::now();
    return {handlesAfter.gdi - handles.gdi, handlesAfter.user - handles.user,
            static_cast<long long>(heapAfter.blocks) - static_cast<long long>(heap.blocks),
            static_cast<long long>(heapAfter.bytes) - static_cast<long long>(heap.bytes)};
}

std::string textOf(const Growth& growth) {
    char text[128];
    std::snprintf(text, sizeof text, "GDI %+lld, USER %+lld, heap blocks %+lld, bytes %+lld",
                  growth.gdi, growth.user, growth.blocks, growth.bytes);
    return text;
}

/// The system's controls may keep something themselves each time: what counts is what the
/// framework adds to that.
template <class Framework, class ByHand>
void compareGrowth(Bench& bench, const std::string& name, Framework framework, ByHand byHand) {
    const Growth grown = growthIn(bench.growthCycles, framework);
    const Growth grownByHand = growthIn(bench.growthCycles, byHand);
    const std::string what = "Growth in " + std::to_string(bench.growthCycles) + " cycles: " + name;
    bench.report.addFact(what + ", more than by hand", textOf(grown - grownByHand));
    bench.report.addFact(what + ", by hand", textOf(grownByHand));
    if (!(grown == grownByHand))
        bench.fail("the framework lets grow: " + name);
}

} // namespace

void measureGrowth(Bench& bench) {
    compareGrowth(
        bench, "40 plain controls",
        [] {
            Options<CString> options = someOptions<CString>();
            OptionsDlg(options).DoModal();
        },
        [&] {
            Options<std::wstring> options = someOptions<std::wstring>();
            raw::OptionsDialog(options).run(bench.desk.window());
        });
    const Cotana::CDataTriangulacion survey = surveyOf(60);
    compareGrowth(
        bench, "triangulation, 60 codes",
        [&] {
            Cotana::CDataTriangulacion data = survey;
            Cotana::CTriangulacionDlg(data).DoModal();
        },
        [&] {
            Cotana::CDataTriangulacion data = survey;
            raw::TriangulationDialog(data, textModule(), iconModule()).run(bench.desk.window());
        });
}

} // namespace bench
