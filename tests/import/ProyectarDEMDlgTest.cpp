// A surveyor is about to project a terrain model: the file of the projection, which the host asks
// for, the spacing, how elevations are found, and a report, whose file the system asks for. A
// report without a file leaves OK gray until its box is clicked again.
#include "cuadros/import/ProyectarDEMDlg.h"

#include "checks/ConDialogo.h"
#include "cuadros/resources/ImportIds.h"

#include <dlgs.h>

#include <cmath>

namespace {

constexpr int FicheroProyeccion = IDC_PROYECTAR_DEM_FICHERO_PROYECCION;
constexpr int BuscarProyeccion = IDC_PROYECTAR_DEM_BUSCAR_PROYECCION;
constexpr int Valor = IDC_PROYECTAR_DEM_VALOR;
constexpr int Tipo1 = IDC_PROYECTAR_DEM_TIPO_1;
constexpr int Tipo2 = IDC_PROYECTAR_DEM_TIPO_2;
constexpr int Tipo3 = IDC_PROYECTAR_DEM_TIPO_3;
constexpr int Opcion = IDC_PROYECTAR_DEM_OPCION;
constexpr int Informe = IDC_PROYECTAR_DEM_INFORME;
constexpr int FicheroInforme = IDC_PROYECTAR_DEM_FICHERO_INFORME;
constexpr int BuscarInforme = IDC_PROYECTAR_DEM_BUSCAR_INFORME;

const Controles DelInforme = {FicheroInforme, BuscarInforme};
const Controles DelInformeYOk = {FicheroInforme, BuscarInforme, IDOK};

class ProyectarDEMDlg : public ConDialogo {
protected:
    ProyectarDEMDlg() {
        data.m_Informe = 0;
        data.m_Opcion = 1;
        data.m_Valor = 12.34567;
        data.m_Tipo = 1;
        data.m_FicheroProyeccion = L"utm30.prj";
        data.m_FicheroInforme = L"";
    }

    INT_PTR Ejecuta(CWnd* padre) override { return CProyectarDEMDlg(data, padre).DoModal(); }

    Cotana::CDataProyectaDEM data;
};

// What the user sees first.

TEST_F(ProyectarDEMDlg, ShowsTheRecord) {
    data.m_FicheroInforme = L"report.txt";
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(Valor), L"12.346");
        EXPECT_EQ(dialogo.radio(Tipo1, Tipo3), Tipo2);
        EXPECT_TRUE(dialogo.checked(Opcion));
        EXPECT_FALSE(dialogo.checked(Informe));
        EXPECT_EQ(dialogo.text(FicheroProyeccion), L"utm30.prj");
        EXPECT_EQ(dialogo.text(FicheroInforme), L"report.txt");
        EXPECT_EQ(Deshabilitados(dialogo), DelInforme);
        dialogo.picture(L"ProyectarDEMDlg");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(ProyectarDEMDlg, EachIndexIsAButtonOfTheGroup) {
    for (const auto& [indice, boton] : {std::pair{0, Tipo1}, {1, Tipo2}, {2, Tipo3}, {-1, 0}}) {
        data.m_Tipo = indice;
        EXPECT_EQ(Abre([&](kit::Dialog& dialogo) {
                      EXPECT_EQ(dialogo.radio(Tipo1, Tipo3), boton);
                      dialogo.press(IDOK);
                  }),
                  IDOK);
        EXPECT_EQ(data.m_Tipo, indice);
    }
}

// The report.

TEST_F(ProyectarDEMDlg, ReportEnablesItsFileAndWithoutOneNotOk) {
    Abre([this](kit::Dialog& dialogo) {
        dialogo.click(Informe);
        EXPECT_EQ(data.m_Informe, 1);
        EXPECT_EQ(Deshabilitados(dialogo), (Controles{IDOK}));
        dialogo.type(FicheroInforme, L"r.txt");
        // Typing does not look at OK; the next click on the box does.
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.click(Informe);
        EXPECT_EQ(Deshabilitados(dialogo), DelInforme);
        dialogo.click(Informe);
        EXPECT_EQ(Deshabilitados(dialogo), Controles());
        EXPECT_EQ(data.m_FicheroInforme, L"r.txt");
        dialogo.type(FicheroInforme, L"");
        EXPECT_TRUE(dialogo.enabled(IDOK));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(ProyectarDEMDlg, OpensWithOkAsTheReportHasIt) {
    struct Apertura {
        int informe;
        const wchar_t* fichero;
        Controles grises;
    };
    for (const auto& [informe, fichero, grises] : {Apertura{0, L"", DelInforme},
                                                   {0, L"r.txt", DelInforme},
                                                   {1, L"", {IDOK}},
                                                   {1, L"r.txt", {}}}) {
        data.m_Informe = informe;
        data.m_FicheroInforme = fichero;
        Abre([&](kit::Dialog& dialogo) {
            EXPECT_EQ(Deshabilitados(dialogo), grises);
            dialogo.press(IDCANCEL);
        });
    }
}

TEST_F(ProyectarDEMDlg, FileThatTheSystemGivesDoesNotEnableOk) {
    data.m_Informe = 1;
    kit::Script guion;
    guion.onDialog([this](kit::Dialog& dialogo) {
        dialogo.type(FicheroProyeccion, L"typed.prj");
        dialogo.type(FicheroInforme, L"first.txt");
        dialogo.press(BuscarInforme);
        EXPECT_EQ(data.m_FicheroProyeccion, L"typed.prj");
        EXPECT_EQ(data.m_FicheroInforme.Right(10), L"chosen.txt");
        EXPECT_EQ(dialogo.text(FicheroInforme), data.m_FicheroInforme.GetString());
        EXPECT_FALSE(dialogo.enabled(IDOK));
        dialogo.press(IDCANCEL);
    });
    guion.onDialog(kit::having(cmb13), [](kit::Dialog& sistema) {
        EXPECT_EQ(sistema.text(cmb13), L"first.txt");
        // The filters are those of text 15010.
        const kit::ComboBox filtros = sistema.combo(cmb1);
        EXPECT_EQ(filtros.count(), 2);
        EXPECT_NE(TextoDe(15010).Find(filtros.text(0).c_str()), -1);
        sistema.setText(cmb13, L"chosen.txt");
        sistema.press(IDOK);
    });
    EXPECT_EQ(guion.run([this] { return Ejecuta(nullptr); }), IDCANCEL);
    EXPECT_TRUE(kit::app.takeFilePrompts().empty());
}

TEST_F(ProyectarDEMDlg, CancelledSystemPromptKeepsWhatWasTyped) {
    data.m_Informe = 1;
    kit::Script guion;
    guion.onDialog([this](kit::Dialog& dialogo) {
        dialogo.type(FicheroInforme, L"typed.txt");
        dialogo.type(Valor, L"99");
        dialogo.press(BuscarInforme);
        EXPECT_EQ(data.m_FicheroInforme, L"typed.txt");
        EXPECT_EQ(dialogo.text(FicheroInforme), L"typed.txt");
        EXPECT_EQ(dialogo.text(Valor), L"99");
        EXPECT_EQ(data.m_Valor, 12.34567);
        dialogo.press(IDCANCEL);
    });
    guion.onDialog(kit::having(cmb13), [](kit::Dialog& sistema) { sistema.press(IDCANCEL); });
    EXPECT_EQ(guion.run([this] { return Ejecuta(nullptr); }), IDCANCEL);
}

// The file of the projection.

/// Shows the member that keeps the host's template.
class ConPlantilla : public CProyectarDEMDlg {
public:
    using CProyectarDEMDlg::CProyectarDEMDlg;
    CDocTemplate** Plantilla() { return &m_pPlantilla; }
};

TEST_F(ProyectarDEMDlg, BrowseAsksTheHostForAProjection) {
    auto* const plantilla = reinterpret_cast<CDocTemplate*>(&data); // any address
    kit::app.setDocumentTemplate(plantilla);
    ConPlantilla dlg(data);
    kit::app.setDocumentTemplate(nullptr); // it was asked at construction
    EXPECT_EQ(*dlg.Plantilla(), plantilla);

    kit::app.answerFilePrompt(L"C:\\projections\\lambert.prj");
    Abre(dlg, [&](kit::Dialog& dialogo) {
        dialogo.type(FicheroProyeccion, L"typed.prj");
        dialogo.press(BuscarProyeccion);
        const auto preguntas = kit::app.takeFilePrompts();
        ASSERT_EQ(preguntas.size(), 1U);
        EXPECT_EQ(preguntas[0].name, &data.m_FicheroProyeccion);
        EXPECT_EQ(preguntas[0].nameBefore, L"typed.prj");
        EXPECT_EQ(preguntas[0].title, 61440U);
        EXPECT_EQ(preguntas[0].flags, 4100U);
        EXPECT_EQ(preguntas[0].open, 1);
        EXPECT_EQ(preguntas[0].documentTemplate, dlg.Plantilla());
        EXPECT_EQ(preguntas[0].kind, 32);
        EXPECT_EQ(preguntas[0].reserved, nullptr);
        EXPECT_EQ(preguntas[0].active, dialogo.handle());
        EXPECT_EQ(dialogo.text(FicheroProyeccion), L"C:\\projections\\lambert.prj");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(data.m_FicheroProyeccion, L"C:\\projections\\lambert.prj");
}

TEST_F(ProyectarDEMDlg, CancelledPromptKeepsWhatWasTyped) {
    kit::app.cancelFilePrompt();
    Abre([this](kit::Dialog& dialogo) {
        dialogo.type(FicheroProyeccion, L"typed.prj");
        dialogo.press(BuscarProyeccion);
        EXPECT_EQ(dialogo.text(FicheroProyeccion), L"typed.prj");
        EXPECT_EQ(data.m_FicheroProyeccion, L"typed.prj");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(kit::app.takeFilePrompts().size(), 1U);
}

// OK and Cancel.

TEST_F(ProyectarDEMDlg, OkLeavesEverythingInTheRecord) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(Valor, L" 2.5 m");
        dialogo.check(Tipo3);
        dialogo.check(Opcion, false);
        dialogo.type(FicheroProyeccion, L"");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_Valor, 2.5);
    EXPECT_EQ(data.m_Tipo, 2);
    EXPECT_EQ(data.m_Opcion, 0);
    EXPECT_EQ(data.m_FicheroProyeccion, L"");
}

TEST_F(ProyectarDEMDlg, ValueThatNobodyTouchedComesBackWithThreeDecimals) {
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) { dialogo.press(IDOK); }), IDOK);
    EXPECT_EQ(data.m_Valor, 12.346);
}

TEST_F(ProyectarDEMDlg, ValueThatIsNoNumberIsZero) {
    for (const wchar_t* const texto : {L"", L"wide", L",5", L"-"}) {
        data.m_Valor = 1;
        EXPECT_EQ(Abre([&](kit::Dialog& dialogo) {
                      dialogo.type(Valor, texto);
                      dialogo.press(IDOK);
                  }),
                  IDOK);
        EXPECT_EQ(data.m_Valor, 0) << kit::inQuotes(texto);
    }
}

TEST_F(ProyectarDEMDlg, CancelKeepsWhatAClickExchangedButNotTheValue) {
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  dialogo.type(Valor, L"99");
                  dialogo.check(Tipo1);
                  dialogo.type(FicheroProyeccion, L"typed.prj");
                  dialogo.click(Informe);
                  dialogo.check(Opcion, false);
                  dialogo.press(IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_EQ(data.m_Valor, 12.34567);
    EXPECT_EQ(data.m_Tipo, 0);
    EXPECT_EQ(data.m_FicheroProyeccion, L"typed.prj");
    EXPECT_EQ(data.m_Informe, 1);
    EXPECT_EQ(data.m_Opcion, 1); // changed after the last exchange
}

// A host's own class on top of the dialog.

TEST_F(ProyectarDEMDlg, HostSeesEachExchangeAsItIsDocumented) {
    ConIntercambios<CProyectarDEMDlg> contador(data);
    kit::app.answerFilePrompt(L"a.prj");
    kit::app.cancelFilePrompt();
    const auto resultado = Abre(contador, [&](kit::Dialog& dialogo) {
        EXPECT_EQ(contador.Intercambios(), "MMS");
        dialogo.type(Valor, L"3");
        dialogo.check(Opcion, false);
        dialogo.check(Tipo1);
        EXPECT_EQ(contador.Intercambios(), "");
        dialogo.press(BuscarProyeccion);
        EXPECT_EQ(contador.Intercambios(), "SM");
        dialogo.press(BuscarProyeccion);
        EXPECT_EQ(contador.Intercambios(), "S");
        dialogo.click(Informe);
        dialogo.click(Informe);
        EXPECT_EQ(contador.Intercambios(), "SS");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(contador.Intercambios(), "SS");
    kit::app.takeFilePrompts();
}

TEST_F(ProyectarDEMDlg, ControlsAreReadInTheirOrder) {
    const std::vector<int> controles = {Valor,  FicheroInforme,    Informe,
                                        Opcion, FicheroProyeccion, Tipo1};
    Abre([&](kit::Dialog& dialogo) {
        const std::vector<int> leidos = LeidosPorOk(dialogo, controles);
        ASSERT_GE(leidos.size(), controles.size());
        EXPECT_EQ(std::vector<int>(leidos.begin(), leidos.begin() + 6), controles);
    });
}

} // namespace
