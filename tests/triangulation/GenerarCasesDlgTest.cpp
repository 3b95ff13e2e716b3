#include "cuadros/triangulation/GenerarCasesDlg.h"

#include "ListaFicheros.h"

namespace {

struct GenerarCases {
    using Clase = Cotana::CGenerarCasesDlg;
    static constexpr auto AlSumar = &Clase::OnBnClickedSumarArchivos;
    static constexpr auto AlRestar = &Clase::OnBnClickedRestarArchivos;
    static constexpr auto AlElegir = &Clase::OnLbnSelchangeListaHojas;

    // Kept in one language, whatever the language file is.
    static Mensaje SinFicheros() {
        return {L"Error", L"No ha seleccionado ning\u00FAn archivo", MB_ICONERROR};
    }

    template <class D = Clase>
    D Dialogo(CWnd* padre = nullptr) {
        return D(ficheros, plantilla, valor, padre);
    }

    std::vector<CString> ficheros;
    CDocTemplate* plantilla = nullptr;
    double valor = 5;
};

INSTANTIATE_TYPED_TEST_SUITE_P(GenerarCasesDlg, ListaFicheros, GenerarCases);

class GenerarCasesDlg : public ListaFicheros<GenerarCases> {};

TEST_F(GenerarCasesDlg, ShowsItsListAndItsNumber) {
    const auto resultado = Abre([](kit::Dialog& abierto) {
        EXPECT_EQ(abierto.caption(), L"Generate Cases");
        EXPECT_FALSE(abierto.exists(IDC_TRIANGULACION_3D_DISCO_OPCION_1));
        abierto.drop({L"C:\\survey\\north slope\\sheet-0412.xyz",
                      L"C:\\survey\\north slope\\sheet-0413.xyz", L"C:\\survey\\river.xyz"});
        abierto.listBox(Hojas).choose({1});
        abierto.picture(L"GenerarCasesDlg");
        abierto.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
}

} // namespace
