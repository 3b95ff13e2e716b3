// A surveyor imports an elevation grid. He types the rectangle and how many nodes he wants, and
// with each key sees how many that is. OK leaves the rectangle and the spacing in the record, as
// they are shown.
#include "cuadros/import/ImportarGridDlg.h"

#include "Rectangulo.h"
#include "checks/ConDialogo.h"
#include "cuadros/resources/ImportIds.h"

#include <cmath>
#include <limits>

namespace {

constexpr int XMinima = IDC_IMPORTAR_GRID_X_MINIMA;
constexpr int XMaxima = IDC_IMPORTAR_GRID_X_MAXIMA;
constexpr int YMinima = IDC_IMPORTAR_GRID_Y_MINIMA;
constexpr int YMaxima = IDC_IMPORTAR_GRID_Y_MAXIMA;
constexpr int FicheroXMinima = IDC_IMPORTAR_GRID_FICHERO_X_MINIMA;
constexpr int FicheroXMaxima = IDC_IMPORTAR_GRID_FICHERO_X_MAXIMA;
constexpr int FicheroYMinima = IDC_IMPORTAR_GRID_FICHERO_Y_MINIMA;
constexpr int FicheroYMaxima = IDC_IMPORTAR_GRID_FICHERO_Y_MAXIMA;
constexpr int Espaciado = IDC_IMPORTAR_GRID_PASO;
constexpr int Razon = IDC_IMPORTAR_GRID_RAZON;
constexpr int PuntosFichero = IDC_IMPORTAR_GRID_PUNTOS_FICHERO;
constexpr int PuntosImportar = IDC_IMPORTAR_GRID_PUNTOS_IMPORTAR;

class ImportarGridDlg : public ConDialogo {
protected:
    ImportarGridDlg() {
        data.m_ExtensionFichero = Rectangulo(0, 0, 100, 100);
        data.m_Extension = data.m_ExtensionFichero;
        data.m_Paso.m_X = 10;
        data.m_Paso.m_Y = 7;
        data.m_PuntosFichero = 121;
    }

    INT_PTR Ejecuta(CWnd* padre) override { return CImportarGridDlg(data, padre).DoModal(); }

    void CompruebaExtension(const Cotana::CMaximas<double>& esperada,
                            kit::Where donde = kit::Where::current()) const {
        const testing::ScopedTrace traza(donde.file_name(), static_cast<int>(donde.line()), "");
        EXPECT_EQ(data.m_Extension.m_Minimo.m_X, esperada.m_Minimo.m_X);
        EXPECT_EQ(data.m_Extension.m_Minimo.m_Y, esperada.m_Minimo.m_Y);
        EXPECT_EQ(data.m_Extension.m_Maximo.m_X, esperada.m_Maximo.m_X);
        EXPECT_EQ(data.m_Extension.m_Maximo.m_Y, esperada.m_Maximo.m_Y);
    }

    CDataImportarGrid data;
};

// What the user sees first.

TEST_F(ImportarGridDlg, ShowsTheRecordWithThreeDecimals) {
    data.m_ExtensionFichero = Rectangulo(-1.0005, 2, 301.23456, 402);
    data.m_Extension = Rectangulo(11, 12.5, 201.0004, 202);
    data.m_Paso.m_X = 0.25;
    data.m_Razon = 3;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(FicheroXMinima), L"-1.000");
        EXPECT_EQ(dialogo.text(FicheroYMinima), L"2.000");
        EXPECT_EQ(dialogo.text(FicheroXMaxima), L"301.235");
        EXPECT_EQ(dialogo.text(FicheroYMaxima), L"402.000");
        EXPECT_EQ(dialogo.text(XMinima), L"11.000");
        EXPECT_EQ(dialogo.text(YMinima), L"12.500");
        EXPECT_EQ(dialogo.text(XMaxima), L"201.000");
        EXPECT_EQ(dialogo.text(YMaxima), L"202.000");
        EXPECT_EQ(dialogo.text(Espaciado), L"0.250");
        EXPECT_EQ(dialogo.text(Razon), L"3");
        EXPECT_EQ(dialogo.text(PuntosFichero), L"121");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(ImportarGridDlg, CountsWhenItOpens) {
    data.m_PuntosImportar = 5;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(PuntosImportar), L"100");
        dialogo.picture(L"ImportarGridDlg");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(data.m_PuntosImportar, 100);
}

// The count.

TEST_F(ImportarGridDlg, RatioTakesEveryNthNodeAndTruncates) {
    Abre([this](kit::Dialog& dialogo) {
        for (const auto& [razon, puntos] :
             {std::pair{L"2", 25}, {L"3", 9}, {L"1", 100}, {L"7", 1}, {L"11", 0}, {L"-2", 25}}) {
            dialogo.setText(Razon, razon);
            EXPECT_EQ(data.m_PuntosImportar, puntos) << kit::inQuotes(razon);
            EXPECT_EQ(dialogo.text(PuntosImportar), std::to_wstring(puntos));
            EXPECT_EQ(data.m_Razon, std::stoi(razon));
        }
        dialogo.press(IDCANCEL);
    });
}

TEST_F(ImportarGridDlg, RectangleIsCutByTheFile) {
    struct Cuenta {
        double xMinima, yMinima, xMaxima, yMaxima;
        int puntos;
    };
    for (const auto& [xMinima, yMinima, xMaxima, yMaxima, puntos] :
         {Cuenta{-1000, -1000, 1000, 1000, 100}, // larger than the file
          {20, 30, 60, 50, 8},
          {-50, 30, 60, 5000, 42},
          {200, 0, 300, 100, 0}, // beside it
          {-300, 0, -200, 100, 0},
          {0, 200, 100, 300, 0},
          {0, -300, 100, -200, 0},
          {60, 0, 20, 100, 0}, // no rectangle
          {5, 5, 14.999, 95, 0},
          {5, 5, 15, 95, 9}}) {
        data.m_Extension = Rectangulo(xMinima, yMinima, xMaxima, yMaxima);
        Abre([&](kit::Dialog& dialogo) {
            EXPECT_EQ(dialogo.text(PuntosImportar), std::to_wstring(puntos));
            dialogo.press(IDCANCEL);
        });
        EXPECT_EQ(data.m_PuntosImportar, puntos) << xMinima << ", " << yMinima;
    }
}

TEST_F(ImportarGridDlg, EachEdgeCountsAnewKeyByKey) {
    Abre([this](kit::Dialog& dialogo) {
        dialogo.setText(XMinima, L"50");
        EXPECT_EQ(data.m_PuntosImportar, 50);
        dialogo.setText(XMaxima, L"70");
        EXPECT_EQ(data.m_PuntosImportar, 20);
        dialogo.setText(YMinima, L"90");
        EXPECT_EQ(data.m_PuntosImportar, 2);
        dialogo.setText(YMaxima, L"95");
        EXPECT_EQ(data.m_PuntosImportar, 0);
        dialogo.setText(YMaxima, L"");
        EXPECT_EQ(data.m_PuntosImportar, 0); // read as 0
        dialogo.setText(YMinima, L"low");
        dialogo.select(YMaxima, {0, 0});
        dialogo.insert(YMaxima, L"1");
        EXPECT_EQ(data.m_PuntosImportar, 0);
        dialogo.insert(YMaxima, L"0");
        EXPECT_EQ(data.m_PuntosImportar, 2);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(ImportarGridDlg, TypingKeepsTextAndCaret) {
    Abre([](kit::Dialog& dialogo) {
        for (const int control : {XMinima, XMaxima, YMinima, YMaxima}) {
            dialogo.type(control, L"12x");
            dialogo.select(control, {1, 1});
            dialogo.insert(control, L".7");
            EXPECT_EQ(dialogo.text(control), L"1.72x");
            EXPECT_EQ(dialogo.selection(control), (kit::Selection{3, 3}));
        }
        dialogo.setText(Razon, L"14");
        dialogo.select(Razon, {1, 1});
        dialogo.insert(Razon, L"2");
        EXPECT_EQ(dialogo.text(Razon), L"124");
        EXPECT_EQ(dialogo.selection(Razon), (kit::Selection{2, 2}));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(ImportarGridDlg, SpacingThatIsTypedCountsAfterOk) {
    EXPECT_EQ(Abre([this](kit::Dialog& dialogo) {
                  dialogo.type(Espaciado, L"5");
                  EXPECT_EQ(data.m_PuntosImportar, 100);
                  dialogo.setText(XMaxima, L"100.0");
                  EXPECT_EQ(data.m_PuntosImportar, 100);
                  EXPECT_EQ(data.m_Paso.m_X, 10);
                  dialogo.press(IDOK);
              }),
              IDOK);
    EXPECT_EQ(data.m_PuntosImportar, 100);
    EXPECT_EQ(data.m_Paso.m_X, 5);
    EXPECT_EQ(data.m_Paso.m_Y, 7);
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(PuntosImportar), L"400");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(ImportarGridDlg, QuotientIsThatOfDoubles) {
    data.m_ExtensionFichero = Rectangulo(0, 0, 0.3, 0.3);
    data.m_Extension = data.m_ExtensionFichero;
    data.m_Paso.m_X = 0.1; // 0.3 / 0.1 is a little less than 3
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(PuntosImportar), L"4");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(ImportarGridDlg, WhatHasNoRoomIsDefined) {
    constexpr double nada = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinito = std::numeric_limits<double>::infinity();
    struct Cuenta {
        double ancho, alto, paso;
        int puntos;
    };
    constexpr int minimo = std::numeric_limits<int>::min();
    constexpr int maximo = std::numeric_limits<int>::max();
    // A side that has no room counts 2^31, and a product what it has below 2^32.
    for (const auto& [ancho, alto, paso, puntos] : {Cuenta{100, 100, 0, 0},
                                                    {0, 100, 0, 0},
                                                    {100, 1, nada, 0},
                                                    {100, 100, infinito, 0},
                                                    {70000, 70000, 1, 605032704},
                                                    {50000, 50000, 1, -1794967296},
                                                    {2147483647.0, 1, 1, maximo},
                                                    {2147483648.0, 1, 1, minimo},
                                                    {2147483648.0, 2, 1, 0},
                                                    {3e9, 3, 1, minimo},
                                                    {1e300, 1, 1, minimo}}) {
        data.m_ExtensionFichero = Rectangulo(0, 0, ancho, alto);
        data.m_Extension = data.m_ExtensionFichero;
        data.m_Paso.m_X = paso;
        Abre([](kit::Dialog& dialogo) { dialogo.press(IDCANCEL); });
        EXPECT_EQ(data.m_PuntosImportar, puntos) << ancho << " x " << alto << " / " << paso;
    }
}

TEST_F(ImportarGridDlg, RatioOfNothingIsDefined) {
    data.m_Razon = 0;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(PuntosImportar), L"0"); // 2^31 by 2^31
        dialogo.press(IDCANCEL);
    });
}

// Integers that are none.

TEST_F(ImportarGridDlg, ClearedRatioIsRefusedAtOnceAndComesBack) {
    data.m_Razon = 2;
    Abre({AFX_IDP_PARSE_INT}, [this](kit::Dialog& dialogo) {
        dialogo.select(Razon, {0, 1});
        dialogo.insert(Razon, L"\b");
        EXPECT_EQ(dialogo.text(Razon), L"2");
        EXPECT_EQ(data.m_Razon, 2);
        EXPECT_EQ(data.m_PuntosImportar, 25);
        EXPECT_EQ(dialogo.focus(), Razon);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(ImportarGridDlg, CountOfTheFileComesBack) {
    EXPECT_EQ(Abre([this](kit::Dialog& dialogo) {
                  dialogo.type(PuntosFichero, L"144");
                  EXPECT_EQ(data.m_PuntosFichero, 121);
                  dialogo.press(IDOK);
              }),
              IDOK);
    EXPECT_EQ(data.m_PuntosFichero, 144);
}

TEST_F(ImportarGridDlg, CountOfTheFileThatIsNoIntegerIsRefusedByTheNextKey) {
    Abre({AFX_IDP_PARSE_INT}, [this](kit::Dialog& dialogo) {
        dialogo.type(PuntosFichero, L"many");
        dialogo.setText(XMaxima, L"50");
        // It comes before the rectangle: the count is that of before, and shown anew.
        EXPECT_EQ(dialogo.text(PuntosFichero), L"121");
        EXPECT_EQ(dialogo.text(XMaxima), L"100.000");
        EXPECT_EQ(data.m_PuntosImportar, 100);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(ImportarGridDlg, OkRefusesTwiceWhatIsNoIntegerButKeepsTheRectangle) {
    const auto resultado =
        Abre({AFX_IDP_PARSE_INT, AFX_IDP_PARSE_INT}, [this](kit::Dialog& dialogo) {
            dialogo.setText(XMaxima, L"50");
            dialogo.setText(Espaciado, L"4");
            dialogo.type(PuntosFichero, L"many");
            dialogo.press(IDOK);
            EXPECT_EQ(dialogo.focus(), PuntosFichero);
            EXPECT_EQ(dialogo.text(PuntosFichero), L"many");
            // The spacing comes after the refused number: it is that of the exchange before.
            EXPECT_EQ(data.m_Paso.m_X, 10);
            CompruebaExtension(Rectangulo(0, 0, 50, 100));
            dialogo.press(IDCANCEL);
        });
    EXPECT_EQ(resultado, IDCANCEL);
    CompruebaExtension(Rectangulo(0, 0, 50, 100));
}

TEST_F(ImportarGridDlg, RefusedOkKeepsTheSpacingOfTheExchangeBefore) {
    Abre({AFX_IDP_PARSE_INT, AFX_IDP_PARSE_INT}, [this](kit::Dialog& dialogo) {
        dialogo.setText(Espaciado, L"4");
        dialogo.setText(XMaxima, L"50"); // exchanges the spacing, too
        dialogo.type(PuntosFichero, L"many");
        dialogo.press(IDOK);
        EXPECT_EQ(data.m_Paso.m_X, 4);
        CompruebaExtension(Rectangulo(0, 0, 50, 100));
        dialogo.press(IDCANCEL);
    });
}

TEST_F(ImportarGridDlg, ClearedRatioComesAfterTheRectangle) {
    data.m_Razon = 2;
    Abre({AFX_IDP_PARSE_INT}, [this](kit::Dialog& dialogo) {
        dialogo.setText(XMaxima, L"50");
        EXPECT_EQ(data.m_PuntosImportar, 10);
        dialogo.setText(Razon, L"");
        EXPECT_EQ(dialogo.text(XMaxima), L"50");
        EXPECT_EQ(dialogo.text(Razon), L"2");
        EXPECT_EQ(data.m_PuntosImportar, 10);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(ImportarGridDlg, CountToImportCannotBeTypedAndIsRefusedWhereAProgramDoes) {
    const auto resultado = Abre({AFX_IDP_PARSE_INT, AFX_IDP_PARSE_INT}, [](kit::Dialog& dialogo) {
        EXPECT_NE(GetWindowLong(dialogo.control(PuntosImportar), GWL_STYLE) & ES_READONLY, 0);
        dialogo.setText(PuntosImportar, L"all");
        dialogo.press(IDOK);
        EXPECT_EQ(dialogo.focus(), PuntosImportar);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
}

// OK and Cancel.

TEST_F(ImportarGridDlg, OkLeavesWhatIsShownInTheRecord) {
    data.m_Paso.m_X = 0.0083333;
    data.m_Extension = Rectangulo(1.00049, 2.0005001, 3, 4);
    const Cotana::CMaximas<double> fichero = data.m_ExtensionFichero;
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  dialogo.setText(XMaxima, L" 30.5 m");
                  dialogo.setText(YMaxima, L"2,5");
                  dialogo.press(IDOK);
              }),
              IDOK);
    CompruebaExtension(Rectangulo(1, 2.001, 30.5, 2));
    EXPECT_EQ(data.m_Paso.m_X, 0.008);
    EXPECT_EQ(data.m_Paso.m_Y, 7);
    EXPECT_EQ(data.m_ExtensionFichero.m_Maximo.m_X, fichero.m_Maximo.m_X);
    EXPECT_EQ(data.m_ExtensionFichero.m_Minimo.m_Y, fichero.m_Minimo.m_Y);
}

TEST_F(ImportarGridDlg, ExtentsOfTheFileAreNeverWritten) {
    data.m_ExtensionFichero = Rectangulo(0.0001, 0.0002, 100.0003, 100.0004);
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  for (const int control :
                       {FicheroXMinima, FicheroXMaxima, FicheroYMinima, FicheroYMaxima})
                      dialogo.setText(control, L"77");
                  dialogo.press(IDOK);
              }),
              IDOK);
    EXPECT_EQ(data.m_ExtensionFichero.m_Minimo.m_X, 0.0001);
    EXPECT_EQ(data.m_ExtensionFichero.m_Minimo.m_Y, 0.0002);
    EXPECT_EQ(data.m_ExtensionFichero.m_Maximo.m_X, 100.0003);
    EXPECT_EQ(data.m_ExtensionFichero.m_Maximo.m_Y, 100.0004);
}

TEST_F(ImportarGridDlg, CancelKeepsTheRatioAndTheCountsAlone) {
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  dialogo.setText(Espaciado, L"5");
                  dialogo.setText(PuntosFichero, L"144");
                  dialogo.setText(Razon, L"2");
                  dialogo.setText(XMaxima, L"40");
                  dialogo.press(IDCANCEL);
              }),
              IDCANCEL);
    CompruebaExtension(Rectangulo(0, 0, 100, 100));
    EXPECT_EQ(data.m_Paso.m_X, 10);
    EXPECT_EQ(data.m_Razon, 2);
    EXPECT_EQ(data.m_PuntosFichero, 144);
    EXPECT_EQ(data.m_PuntosImportar, 10);
}

// A host's own class on top of the dialog.

TEST_F(ImportarGridDlg, HostSeesEachExchangeAsItIsDocumented) {
    ConIntercambios<CImportarGridDlg> contador(data);
    const auto resultado = Abre(contador, [&](kit::Dialog& dialogo) {
        EXPECT_EQ(contador.Intercambios(), "MMSM");
        dialogo.setText(XMaxima, L"50");
        EXPECT_EQ(contador.Intercambios(), "SM");
        dialogo.setText(Espaciado, L"5");
        dialogo.setText(PuntosFichero, L"5");
        EXPECT_EQ(contador.Intercambios(), "");
        dialogo.setText(Razon, L"02"); // shown as 2, which is no change of the user's
        EXPECT_EQ(contador.Intercambios(), "SM");
        EXPECT_EQ(dialogo.text(Razon), L"2");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(contador.Intercambios(), "SS");
}

TEST_F(ImportarGridDlg, ControlsAreReadInTheirOrder) {
    const std::vector<int> controles = {PuntosImportar, PuntosFichero,  FicheroXMinima,
                                        FicheroXMaxima, FicheroYMinima, FicheroYMaxima,
                                        XMinima,        XMaxima,        YMinima,
                                        YMaxima,        Espaciado,      Razon};
    Abre([&](kit::Dialog& dialogo) {
        const std::vector<int> leidos = LeidosPorOk(dialogo, controles);
        ASSERT_GE(leidos.size(), controles.size());
        EXPECT_EQ(std::vector<int>(leidos.begin(), leidos.begin() + 12), controles);
    });
}

} // namespace
