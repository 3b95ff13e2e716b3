// A surveyor says how a profile is projected. The first buttons of the two groups exclude each
// other: while one is chosen, the other is gray, and each click is in the record at once.
#include "cuadros/import/TipoProyeccionDlg.h"

#include "checks/ConDialogo.h"
#include "cuadros/resources/ImportIds.h"

namespace {

constexpr int PrimeraDe1 = IDC_TIPO_PROYECCION_1_1;
constexpr int SegundaDe1 = IDC_TIPO_PROYECCION_1_2;
constexpr int PrimeraDe2 = IDC_TIPO_PROYECCION_2_1;
constexpr int SegundaDe2 = IDC_TIPO_PROYECCION_2_2;
constexpr int TerceraDe2 = IDC_TIPO_PROYECCION_2_3;

class TipoProyeccionDlg : public ConDialogo {
protected:
    INT_PTR Ejecuta(CWnd* padre) override { return CTipoProyeccionDlg(data, padre).DoModal(); }

    /// The record holds these two, and the dialog shows them and has these buttons gray.
    void Comprueba(const kit::Dialog& dialogo, int primera, int segunda, const Controles& grises,
                   kit::Where donde = kit::Where::current()) const {
        const testing::ScopedTrace traza(donde.file_name(), static_cast<int>(donde.line()), "");
        EXPECT_EQ(data.m_Proyeccion1, primera);
        EXPECT_EQ(data.m_Proyeccion2, segunda);
        for (const auto& [boton, indice] : {std::pair{PrimeraDe1, 0}, {SegundaDe1, 1}})
            EXPECT_EQ(dialogo.checked(boton), indice == primera) << boton;
        for (const auto& [boton, indice] :
             {std::pair{PrimeraDe2, 0}, {SegundaDe2, 1}, {TerceraDe2, 2}})
            EXPECT_EQ(dialogo.checked(boton), indice == segunda) << boton;
        EXPECT_EQ(Deshabilitados(dialogo), grises);
    }

    Cotana::CDataTipoProyeccion data{1, 1};
};

// What the user sees first.

TEST_F(TipoProyeccionDlg, OpensWithTheFirstButtonsExcludingEachOther) {
    struct Apertura {
        int antes1, antes2, despues1, despues2;
        Controles grises;
    };
    for (const auto& [antes1, antes2, despues1, despues2, grises] :
         {Apertura{0, 0, 0, 2, {PrimeraDe2}},
          {0, 1, 0, 1, {PrimeraDe2}},
          {0, 2, 0, 2, {PrimeraDe2}},
          {1, 0, 1, 0, {PrimeraDe1}},
          {1, 1, 1, 1, {}},
          {1, 2, 1, 2, {}},
          {-1, 0, -1, 0, {PrimeraDe1}},
          {0, -1, 0, -1, {PrimeraDe2}},
          {-1, -1, -1, -1, {}}}) {
        data = {antes1, antes2};
        const testing::Message caso = testing::Message() << antes1 << ", " << antes2;
        SCOPED_TRACE(caso);
        Abre([&](kit::Dialog& dialogo) {
            Comprueba(dialogo, despues1, despues2, grises);
            dialogo.press(IDCANCEL);
        });
    }
}

// The clicks.

TEST_F(TipoProyeccionDlg, EachClickIsInTheRecordAndExcludesTheOtherFirstButton) {
    Abre([this](kit::Dialog& dialogo) {
        dialogo.click(PrimeraDe1);
        Comprueba(dialogo, 0, 1, {PrimeraDe2});
        dialogo.click(TerceraDe2);
        Comprueba(dialogo, 0, 2, {PrimeraDe2});
        dialogo.click(SegundaDe1);
        Comprueba(dialogo, 1, 2, {});
        dialogo.click(PrimeraDe2);
        Comprueba(dialogo, 1, 0, {PrimeraDe1});
        dialogo.click(SegundaDe2);
        Comprueba(dialogo, 1, 1, {});
        dialogo.press(IDCANCEL);
    });
    // Cancel takes no click back.
    EXPECT_EQ(data.m_Proyeccion1, 1);
    EXPECT_EQ(data.m_Proyeccion2, 1);
}

TEST_F(TipoProyeccionDlg, ArrowsChooseAsClicksDoAndPassTheGrayButton) {
    data = {0, 1};
    Abre([this](kit::Dialog& dialogo) {
        dialogo.focusOn(SegundaDe2);
        kit::keyboard::press(VK_UP); // past the gray first one
        Comprueba(dialogo, 0, 2, {PrimeraDe2});
        dialogo.focusOn(PrimeraDe1);
        kit::keyboard::press(VK_DOWN);
        Comprueba(dialogo, 1, 2, {});
        dialogo.press(IDCANCEL);
    });
}

TEST_F(TipoProyeccionDlg, FocusOnAButtonThatIsNotChosenChangesNothing) {
    Abre([this](kit::Dialog& dialogo) {
        // The system tells of a click where a button of a group merely gets the focus.
        for (const int boton : {PrimeraDe1, PrimeraDe2, TerceraDe2}) {
            dialogo.focusOn(boton);
            Comprueba(dialogo, 1, 1, {});
        }
        dialogo.press(IDCANCEL);
    });
}

TEST_F(TipoProyeccionDlg, NumbersBeyondTheGroupsAreShownAsNone) {
    data = {7, 9};
    Abre([this](kit::Dialog& dialogo) {
        Comprueba(dialogo, -1, -1, {});
        dialogo.press(IDCANCEL);
    });
}

// OK and Cancel.

TEST_F(TipoProyeccionDlg, OkKeepsWhatIsChosen) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.picture(L"TipoProyeccionDlg");
        dialogo.click(PrimeraDe1);
        dialogo.click(TerceraDe2);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_Proyeccion1, 0);
    EXPECT_EQ(data.m_Proyeccion2, 2);
}

TEST_F(TipoProyeccionDlg, CancelKeepsWhatTheOpeningMoved) {
    data = {0, 0};
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) { dialogo.press(IDCANCEL); }), IDCANCEL);
    EXPECT_EQ(data.m_Proyeccion1, 0);
    EXPECT_EQ(data.m_Proyeccion2, 2);
}

TEST_F(TipoProyeccionDlg, HostSeesEachExchangeAsItIsDocumented) {
    ConIntercambios<CTipoProyeccionDlg> contador(data);
    const auto resultado = Abre(contador, [&](kit::Dialog& dialogo) {
        EXPECT_EQ(contador.Intercambios(), "MSM");
        dialogo.click(PrimeraDe1);
        // The focus that the click brings may be told as one click more.
        const std::string intercambios = contador.Intercambios();
        EXPECT_EQ(intercambios.substr(intercambios.size() - 2), "SM");
        contador.OnCheckRadios();
        EXPECT_EQ(contador.Intercambios(), "SM");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(contador.Intercambios(), "S");
}

} // namespace
