// A surveyor imports a part of a tile of geographic elevations. He types its rectangle in degrees,
// minutes and seconds; when he leaves an edit, the rectangle is in the record and its nodes are
// counted. He chooses a projection and, for the one that needs them, a zone and an ellipsoid.
#include "cuadros/import/ImportarGTOPO30Dlg.h"

#include "Rectangulo.h"
#include "checks/ConDialogo.h"
#include "cuadros/resources/ImportIds.h"

#include <array>
#include <cmath>
#include <limits>

namespace {

/// The three texts of an angle.
using Angulo = std::array<int, 3>;
using Textos = std::array<std::wstring, 3>;

constexpr Angulo YMaxima = {14126, 14123, 14124};
constexpr Angulo YMinima = {14120, 14147, 14148};
constexpr Angulo XMaxima = {14122, 14143, 14144};
constexpr Angulo XMinima = {14121, 14145, 14146};
constexpr Angulo FicheroYMaxima = {14199, 14200, 14201};
constexpr Angulo FicheroYMinima = {14205, 14206, 14207};
constexpr Angulo FicheroXMaxima = {14202, 14203, 14204};
constexpr Angulo FicheroXMinima = {14208, 14209, 14210};
constexpr int Espaciado = IDC_IMPORTAR_GTOPO30_PASO;
constexpr int Razon = IDC_IMPORTAR_GTOPO30_RAZON;
constexpr int PuntosFichero = IDC_IMPORTAR_GTOPO30_PUNTOS_FICHERO;
constexpr int PuntosImportar = IDC_IMPORTAR_GTOPO30_PUNTOS_IMPORTAR;
constexpr int Proyeccion = IDC_IMPORTAR_GTOPO30_PROYECCION;
constexpr int Huso = IDC_IMPORTAR_GTOPO30_HUSO;
constexpr int Elipsoide = IDC_IMPORTAR_GTOPO30_ELIPSOIDE;

const Controles Ocultables = {Proyeccion, Huso, 20218, 20219, Elipsoide, 20220};
const Controles DeUTM = {Huso, Elipsoide};

Textos TextosDe(const kit::Dialog& dialogo, const Angulo& angulo) {
    return {dialogo.text(angulo[0]), dialogo.text(angulo[1]), dialogo.text(angulo[2])};
}

class ImportarGTOPO30Dlg : public ConDialogo {
protected:
    ImportarGTOPO30Dlg() {
        data.m_ExtensionFichero = Rectangulo(-6, 36, 0, 42);
        data.m_Extension = Rectangulo(-5, 37, -1, 41);
        data.m_Paso.m_X = 0.5;
        data.m_Paso.m_Y = 0.25;
        data.m_PuntosFichero = 288;
        data.m_Elipsoide = Cotana::CElipsoide(17, L"GRS 1980", 6378137.0, 0.00669438);
    }

    INT_PTR Ejecuta(CWnd* padre) override {
        return CImportarGTOPO30Dlg(data, mostrar, padre).DoModal();
    }

    void CompruebaExtension(const Cotana::CMaximas<double>& esperada,
                            kit::Where donde = kit::Where::current()) const {
        const testing::ScopedTrace traza(donde.file_name(), static_cast<int>(donde.line()), "");
        EXPECT_DOUBLE_EQ(data.m_Extension.m_Minimo.m_X, esperada.m_Minimo.m_X);
        EXPECT_DOUBLE_EQ(data.m_Extension.m_Minimo.m_Y, esperada.m_Minimo.m_Y);
        EXPECT_DOUBLE_EQ(data.m_Extension.m_Maximo.m_X, esperada.m_Maximo.m_X);
        EXPECT_DOUBLE_EQ(data.m_Extension.m_Maximo.m_Y, esperada.m_Maximo.m_Y);
    }

    /// Types an angle into its three edits and leaves the last one.
    static void Teclea(kit::Dialog& dialogo, const Angulo& angulo, const Textos& textos) {
        for (std::size_t i = 0; i < angulo.size(); ++i) {
            dialogo.focusOn(angulo[i]);
            dialogo.type(angulo[i], textos[i]);
        }
        dialogo.focusOn(IDCANCEL);
    }

    CDataImportarGTOPO30 data;
    int mostrar = SW_SHOWNORMAL;
};

// What the user sees first.

TEST_F(ImportarGTOPO30Dlg, ShowsTheRecord) {
    data.m_ExtensionFichero = Rectangulo(-6.5, -36.25, 20.75, 42.0125);
    data.m_Extension = Rectangulo(-5, -0.5, 3.5, 41.1);
    data.m_Razon = 3;
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(TextosDe(dialogo, FicheroYMaxima), (Textos{L"42", L"0", L"45.0"}));
        EXPECT_EQ(TextosDe(dialogo, FicheroYMinima), (Textos{L"-36", L"15", L"0.0"}));
        EXPECT_EQ(TextosDe(dialogo, FicheroXMaxima), (Textos{L"20", L"45", L"0.0"}));
        EXPECT_EQ(TextosDe(dialogo, FicheroXMinima), (Textos{L"-6", L"30", L"0.0"}));
        EXPECT_EQ(TextosDe(dialogo, YMaxima), (Textos{L"41", L"6", L"0.0"}));
        EXPECT_EQ(TextosDe(dialogo, YMinima), (Textos{L"-0", L"30", L"0.0"}));
        EXPECT_EQ(TextosDe(dialogo, XMaxima), (Textos{L"3", L"30", L"0.0"}));
        EXPECT_EQ(TextosDe(dialogo, XMinima), (Textos{L"-5", L"0", L"0.0"}));
        EXPECT_EQ(dialogo.text(Razon), L"3");
        EXPECT_EQ(dialogo.text(PuntosFichero), L"288");
        EXPECT_EQ(dialogo.text(Espaciado), L"55.660"); // half a degree of the equator
        dialogo.picture(L"ImportarGTOPO30Dlg");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(ImportarGTOPO30Dlg, AnglesGoThereAndBack) {
    struct Ida {
        double grados;
        Textos textos;
        double vuelta;
    };
    for (const auto& [grados, textos, vuelta] :
         {Ida{-0.5, {L"-0", L"30", L"0.0"}, -0.5},
          {-3.5, {L"-3", L"30", L"0.0"}, -3.5},
          {0, {L"0", L"0", L"0.0"}, 0},
          {0.5, {L"0", L"30", L"0.0"}, 0.5},
          {-1, {L"-1", L"0", L"0.0"}, -1},
          // The sign begins beyond 1e-7.
          {-1e-7, {L"0", L"0", L"0.0"}, 0},
          {-2e-7, {L"-0", L"0", L"0.0"}, 0},
          // Seconds are rounded, and go on to 60.
          {2.3, {L"2", L"17", L"60.0"}, 2.3},
          {12.3456, {L"12", L"20", L"44.2"}, 12 + 20 / 60.0 + 44.2 / 3600}}) {
        data.m_Extension.m_Minimo.m_Y = grados;
        Abre([&](kit::Dialog& dialogo) {
            EXPECT_EQ(TextosDe(dialogo, YMinima), textos) << grados;
            dialogo.press(IDCANCEL);
        });
        EXPECT_DOUBLE_EQ(data.m_Extension.m_Minimo.m_Y, vuelta) << grados;
    }
}

TEST_F(ImportarGTOPO30Dlg, ZoneIsThatOfTheMiddleOfTheTile) {
    struct Mitad {
        double xMinima, xMaxima;
        const wchar_t* huso;
    };
    data.m_Huso = 29;
    for (const auto& [xMinima, xMaxima, huso] : {Mitad{-6, 0, L"30"},
                                                 {0, 6, L"31"},
                                                 {-180, -174, L"1"},
                                                 {174, 180, L"60"},
                                                 {-20, 20, L"31"},
                                                 {-20, 19.99, L"30"}}) {
        data.m_ExtensionFichero.m_Minimo.m_X = xMinima;
        data.m_ExtensionFichero.m_Maximo.m_X = xMaxima;
        Abre([&](kit::Dialog& dialogo) {
            EXPECT_EQ(dialogo.text(Huso), huso);
            dialogo.press(IDCANCEL);
        });
    }
    EXPECT_EQ(data.m_Huso, 29);
}

TEST_F(ImportarGTOPO30Dlg, OpeningMakesTheRecordThatOfTheTexts) {
    data.m_Extension = Rectangulo(-5.00001, 37.123456, -1, 41);
    data.m_PuntosImportar = 0;
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) { dialogo.press(IDCANCEL); }), IDCANCEL);
    CompruebaExtension(Rectangulo(-5, 37 + 7 / 60.0 + 24.4 / 3600, -1, 41));
    EXPECT_EQ(data.m_PuntosImportar, 8 * 15);
}

// The projection.

TEST_F(ImportarGTOPO30Dlg, ProjectionBeyondTheListIsTheFirstAndNoneStaysNone) {
    struct Apertura {
        int antes, elegida, despues;
        Controles grises;
    };
    for (const auto& [antes, elegida, despues, grises] : {Apertura{0, 0, 0, DeUTM},
                                                          {1, 1, 1, {}},
                                                          {2, 2, 2, DeUTM},
                                                          {3, 0, 0, DeUTM},
                                                          {5, 0, 0, DeUTM},
                                                          {-1, -1, -1, DeUTM},
                                                          {-7, -1, -1, DeUTM}}) {
        data.m_TipoProyeccion = antes;
        Abre([&](kit::Dialog& dialogo) {
            EXPECT_EQ(dialogo.combo(Proyeccion).selected(), elegida) << antes;
            EXPECT_EQ(Deshabilitados(dialogo), grises) << antes;
            dialogo.press(IDCANCEL);
        });
        EXPECT_EQ(data.m_TipoProyeccion, despues) << antes;
    }
}

TEST_F(ImportarGTOPO30Dlg, ChosenProjectionIsInTheRecordAtOnceAndEnables) {
    Abre([this](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.combo(Proyeccion).count(), 3);
        dialogo.choose(Proyeccion, 0);
        EXPECT_EQ(data.m_TipoProyeccion, 0);
        EXPECT_EQ(Deshabilitados(dialogo), DeUTM);
        dialogo.choose(Proyeccion, 1);
        EXPECT_EQ(data.m_TipoProyeccion, 1);
        EXPECT_EQ(Deshabilitados(dialogo), Controles());
        dialogo.choose(Proyeccion, 2);
        EXPECT_EQ(data.m_TipoProyeccion, 2);
        EXPECT_EQ(Deshabilitados(dialogo), DeUTM);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(data.m_TipoProyeccion, 2);
}

TEST_F(ImportarGTOPO30Dlg, HostHidesAndShowsTheProjection) {
    Controles sinMostrar;
    Abre([&](kit::Dialog& dialogo) {
        sinMostrar = Ocultos(dialogo); // the labels that serve screen readers alone
        dialogo.press(IDCANCEL);
    });
    for (const int control : Ocultables)
        EXPECT_FALSE(sinMostrar.contains(control));
    mostrar = SW_HIDE;
    EXPECT_EQ(Abre([&](kit::Dialog& dialogo) {
                  Controles esperados = sinMostrar;
                  esperados.insert(Ocultables.begin(), Ocultables.end());
                  EXPECT_EQ(Ocultos(dialogo), esperados);
                  dialogo.press(IDOK);
              }),
              IDOK);
    // What is hidden is read all the same.
    EXPECT_EQ(data.m_Huso, 30);
    EXPECT_EQ(data.m_TipoProyeccion, 1);
    EXPECT_EQ(data.m_Elipsoide.GetIndice(), 17);
}

TEST_F(ImportarGTOPO30Dlg, ShowCommandIsPassedToWindowsAsItIs) {
    for (const int como : {SW_HIDE, SW_SHOWNORMAL, SW_SHOW, SW_SHOWNA, 77}) {
        mostrar = como;
        Abre([&](kit::Dialog& dialogo) {
            CWnd prueba;
            prueba.Create(L"Static", L"", WS_CHILD | WS_VISIBLE, CRect(),
                          CWnd::FromHandle(dialogo.handle()), 9);
            prueba.ShowWindow(como);
            for (const int control : Ocultables)
                EXPECT_EQ(dialogo.visible(control), prueba.IsWindowVisible()) << como;
            prueba.DestroyWindow();
            dialogo.press(IDCANCEL);
        });
    }
}

TEST_F(ImportarGTOPO30Dlg, OkReadsTheSelectionsAsTheyAre) {
    data.m_TipoProyeccion = 0;
    data.m_Huso = 29;
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  // By a program, which tells the dialog nothing.
                  SendMessageW(dialogo.control(Proyeccion), CB_SETCURSEL, 2, 0);
                  SendMessageW(dialogo.control(Elipsoide), CB_SETCURSEL, 3, 0);
                  dialogo.press(IDOK);
              }),
              IDOK);
    EXPECT_EQ(data.m_TipoProyeccion, 2);
    // Both are disabled, and read all the same.
    EXPECT_EQ(data.m_Huso, 30);
    EXPECT_EQ(data.m_Elipsoide.GetIndice(), 4);
}

TEST_F(ImportarGTOPO30Dlg, EllipsoidThatTheTableLacksIsTheUserDefinedOne) {
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  const HWND lista = dialogo.control(Elipsoide);
                  SendMessageW(lista, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"Of the host"));
                  SendMessageW(lista, CB_SETCURSEL, 27, 0);
                  dialogo.press(IDOK);
              }),
              IDOK);
    EXPECT_EQ(data.m_Elipsoide.GetIndice(), -1);
}

TEST_F(ImportarGTOPO30Dlg, SpacingIsThatOnTheRecordsEllipsoid) {
    data.m_Elipsoide = Cotana::CElipsoide(-1, L"mine", 6000000, 0);
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(Espaciado), L"52.360");
        dialogo.choose(Elipsoide, 0);
        EXPECT_EQ(dialogo.text(Espaciado), L"52.360");
        dialogo.press(IDCANCEL);
    });
}

// The ellipsoid.

TEST_F(ImportarGTOPO30Dlg, EllipsoidsAreThoseOfTheTableButTheUsersOwn) {
    Abre([](kit::Dialog& dialogo) {
        const kit::ComboBox lista = dialogo.combo(Elipsoide);
        ASSERT_EQ(lista.count(), 27);
        EXPECT_EQ(lista.text(0), L"ATS-77");
        EXPECT_EQ(lista.text(16), L"GRS 1980");
        EXPECT_EQ(lista.text(25), L"WGS-84");
        EXPECT_EQ(lista.text(26), L"Xi'an-80");
        EXPECT_EQ(lista.selected(), 16);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(ImportarGTOPO30Dlg, EachEllipsoidIsShownAndComesBack) {
    for (int indice = 1; indice <= 27; ++indice) {
        data.m_Elipsoide = Cotana::CElipsoide(indice, L"of the host", 1, 2);
        EXPECT_EQ(Abre([&](kit::Dialog& dialogo) {
                      EXPECT_EQ(dialogo.combo(Elipsoide).selected(), indice - 1);
                      dialogo.press(IDOK);
                  }),
                  IDOK);
        // With the name and the size of the table.
        EXPECT_EQ(data.m_Elipsoide.GetIndice(), indice);
        EXPECT_NE(data.m_Elipsoide.GetNombre(), L"of the host");
        EXPECT_GT(data.m_Elipsoide.GetSemieje(), 6e6);
    }
}

TEST_F(ImportarGTOPO30Dlg, EllipsoidOfTheUsersOwnShowsWgs84) {
    for (const int indice : {-1, 0, std::numeric_limits<int>::min()}) {
        data.m_Elipsoide = Cotana::CElipsoide(indice, L"mine", 6378000, 0.006);
        EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                      EXPECT_EQ(dialogo.combo(Elipsoide).selected(), 25);
                      dialogo.press(IDOK);
                  }),
                  IDOK);
        EXPECT_EQ(data.m_Elipsoide.GetIndice(), 26);
        EXPECT_EQ(data.m_Elipsoide.GetNombre(), L"WGS-84");
    }
}

TEST_F(ImportarGTOPO30Dlg, WithoutASelectedEllipsoidItIsTheUserDefinedOne) {
    data.m_Elipsoide = Cotana::CElipsoide(40, L"unknown", 1, 2);
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  EXPECT_EQ(dialogo.combo(Elipsoide).selected(), -1);
                  dialogo.press(IDOK);
              }),
              IDOK);
    EXPECT_EQ(data.m_Elipsoide.GetIndice(), -1);
    EXPECT_EQ(data.m_Elipsoide.GetNombre(), L"Definido por el usuario");
    EXPECT_EQ(data.m_Elipsoide.GetSemieje(), 0);
}

// The count.

TEST_F(ImportarGTOPO30Dlg, LeavingAnEditStoresTheRectangleAndCounts) {
    Abre([this](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(PuntosImportar), L"128"); // 4 / 0.5 by 4 / 0.25
        dialogo.focusOn(XMaxima[0]);
        dialogo.type(XMaxima[0], L"-2");
        // Typing alone does not.
        EXPECT_EQ(data.m_Extension.m_Maximo.m_X, -1);
        EXPECT_EQ(dialogo.text(PuntosImportar), L"128");
        dialogo.focusOn(XMaxima[1]);
        EXPECT_EQ(data.m_Extension.m_Maximo.m_X, -2);
        EXPECT_EQ(dialogo.text(PuntosImportar), L"96");
        EXPECT_EQ(data.m_PuntosImportar, 96);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(ImportarGTOPO30Dlg, EachEditCountsWhenItIsLeft) {
    ConIntercambios<CImportarGTOPO30Dlg> contador(data, mostrar);
    Abre(contador, [&](kit::Dialog& dialogo) {
        for (const Angulo& angulo : {YMaxima, YMinima, XMaxima, XMinima})
            for (const int edicion : angulo) {
                dialogo.focusOn(edicion);
                contador.Intercambios();
                dialogo.focusOn(Proyeccion);
                EXPECT_EQ(contador.Intercambios(), "SM") << edicion;
            }
        dialogo.focusOn(Razon);
        contador.Intercambios();
        dialogo.focusOn(Huso);
        EXPECT_EQ(contador.Intercambios(), "SM");
        dialogo.focusOn(Elipsoide);
        EXPECT_EQ(contador.Intercambios(), "");
        dialogo.press(IDCANCEL);
    });
}

TEST_F(ImportarGTOPO30Dlg, SignIsThatOfTheFirstCharacter) {
    struct Tecleo {
        Textos textos;
        double grados;
    };
    for (const auto& [textos, grados] : {Tecleo{{L"-0", L"30", L"0"}, -0.5},
                                         {{L"-3", L"30", L"0"}, -3.5},
                                         {{L"3", L"30", L"36"}, 3.51},
                                         {{L" -3", L"30", L"0"}, -2.5},
                                         {{L"-", L"30", L"0"}, -0.5},
                                         {{L"+3", L"30", L"0"}, 3.5},
                                         {{L"", L"30", L"0"}, 0.5},
                                         {{L"west", L"x", L"y"}, 0},
                                         {{L"3.9", L"30.9", L"3,6"}, 3.5 + 3 / 3600.0},
                                         {{L"-3", L"-30", L"0"}, -2.5}}) {
        Abre([&](kit::Dialog& dialogo) {
            Teclea(dialogo, XMinima, textos);
            EXPECT_DOUBLE_EQ(data.m_Extension.m_Minimo.m_X, grados)
                << kit::inQuotes(textos[0].c_str());
            // What was typed stays.
            EXPECT_EQ(TextosDe(dialogo, XMinima), textos);
            dialogo.press(IDCANCEL);
        });
    }
}

TEST_F(ImportarGTOPO30Dlg, RectangleOutsideOfTheTileHasNodes) {
    data.m_Extension = Rectangulo(10, 50, 12, 51);
    Abre([](kit::Dialog& dialogo) {
        // 10 to 0 and 50 to 42: twenty steps by thirty-two, both negative.
        EXPECT_EQ(dialogo.text(PuntosImportar), L"640");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(data.m_PuntosImportar, 640);
    // Beside it along one axis: twenty steps that are negative by sixteen that are not.
    data.m_Extension = Rectangulo(10, 37, 12, 41);
    Abre([](kit::Dialog& dialogo) { dialogo.press(IDCANCEL); });
    EXPECT_EQ(data.m_PuntosImportar, 320);
    data.m_Extension = Rectangulo(-5, 50, -1, 51);
    Abre([](kit::Dialog& dialogo) { dialogo.press(IDCANCEL); });
    EXPECT_EQ(data.m_PuntosImportar, 256);
}

TEST_F(ImportarGTOPO30Dlg, RectangleIsCutByTheTile) {
    data.m_Extension = Rectangulo(-10, 30, 5, 50);
    Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(PuntosImportar), L"288");
        dialogo.press(IDCANCEL);
    });
    CompruebaExtension(Rectangulo(-10, 30, 5, 50));
}

TEST_F(ImportarGTOPO30Dlg, RatioCountsWithTheSpacingOfEachAxis) {
    Abre([this](kit::Dialog& dialogo) {
        for (const auto& [razon, puntos] : {std::pair{L"2", 4 * 8},
                                            {L"3", 2 * 5},
                                            {L"-2", 4 * 8},
                                            {L"0", 0}, // 2^31 by 2^31
                                            {L"none", 0},
                                            {L"1", 128}}) {
            dialogo.focusOn(Razon);
            dialogo.type(Razon, razon);
            dialogo.focusOn(IDOK);
            EXPECT_EQ(data.m_PuntosImportar, puntos) << kit::inQuotes(razon);
            EXPECT_EQ(dialogo.text(PuntosImportar), std::to_wstring(puntos));
            EXPECT_EQ(data.m_Razon, _wtoi(razon));
        }
        dialogo.press(IDCANCEL);
    });
}

TEST_F(ImportarGTOPO30Dlg, WhatHasNoRoomIsDefined) {
    data.m_Paso.m_X = 0;
    data.m_Paso.m_Y = 4;
    Abre([this](kit::Dialog& dialogo) {
        EXPECT_EQ(data.m_PuntosImportar, std::numeric_limits<int>::min()); // 2^31 by 1
        EXPECT_EQ(dialogo.text(PuntosImportar), L"-2147483648");
        dialogo.press(IDCANCEL);
    });
}

// OK and Cancel.

TEST_F(ImportarGTOPO30Dlg, OkLeavesZoneProjectionAndEllipsoidInTheRecord) {
    EXPECT_EQ(Abre([this](kit::Dialog& dialogo) {
                  dialogo.type(Huso, L"31 N");
                  dialogo.choose(Elipsoide, 19);
                  EXPECT_EQ(data.m_Huso, 30);
                  EXPECT_EQ(data.m_Elipsoide.GetIndice(), 17);
                  dialogo.press(IDOK);
              }),
              IDOK);
    EXPECT_EQ(data.m_Huso, 31);
    EXPECT_EQ(data.m_TipoProyeccion, 1);
    EXPECT_EQ(data.m_Elipsoide.GetIndice(), 20);
    EXPECT_EQ(data.m_Elipsoide.GetNombre(), L"Internacional (Hayford)");
    EXPECT_EQ(data.m_Elipsoide.GetSemieje(), 6378388.0);
    EXPECT_EQ(data.m_Elipsoide.GetExcentricidad2(), 0.00672267);
}

TEST_F(ImportarGTOPO30Dlg, EnterLeavesTheLastEditOutAndAClickCountsIt) {
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  dialogo.focusOn(XMinima[0]);
                  dialogo.type(XMinima[0], L"-4");
                  kit::keyboard::press(VK_RETURN);
              }),
              IDOK);
    CompruebaExtension(Rectangulo(-5, 37, -1, 41));
    EXPECT_EQ(data.m_PuntosImportar, 128);

    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  dialogo.focusOn(XMinima[0]);
                  dialogo.type(XMinima[0], L"-4");
                  kit::mouse::click(dialogo.control(IDOK));
              }),
              IDOK);
    CompruebaExtension(Rectangulo(-4, 37, -1, 41));
    EXPECT_EQ(data.m_PuntosImportar, 96);
}

TEST_F(ImportarGTOPO30Dlg, EscapeLeavesTheLastEditOut) {
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  dialogo.focusOn(XMinima[0]);
                  dialogo.type(XMinima[0], L"-4");
                  kit::keyboard::press(VK_ESCAPE);
              }),
              IDCANCEL);
    CompruebaExtension(Rectangulo(-5, 37, -1, 41));
}

TEST_F(ImportarGTOPO30Dlg, CancelKeepsWhatWasCountedAndChosen) {
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) {
                  Teclea(dialogo, XMinima, {L"-4", L"0", L"0.0"});
                  dialogo.type(Huso, L"31");
                  dialogo.choose(Elipsoide, 0);
                  dialogo.choose(Proyeccion, 2);
                  dialogo.press(IDCANCEL);
              }),
              IDCANCEL);
    CompruebaExtension(Rectangulo(-4, 37, -1, 41));
    EXPECT_EQ(data.m_PuntosImportar, 96);
    EXPECT_EQ(data.m_TipoProyeccion, 2);
    EXPECT_EQ(data.m_Huso, 30);
    EXPECT_EQ(data.m_Elipsoide.GetIndice(), 17);
}

// A host's own class on top of the dialog.

TEST_F(ImportarGTOPO30Dlg, HostSeesEachExchangeAsItIsDocumented) {
    ConIntercambios<CImportarGTOPO30Dlg> contador(data, mostrar);
    const auto resultado = Abre(contador, [&](kit::Dialog& dialogo) {
        EXPECT_EQ(contador.Intercambios(), "MMSM");
        dialogo.focusOn(Huso);
        contador.Intercambios();
        dialogo.type(Huso, L"5");
        dialogo.choose(Proyeccion, 0);
        dialogo.choose(Proyeccion, 1);
        EXPECT_EQ(contador.Intercambios(), "");
        contador.OnCalcula();
        EXPECT_EQ(contador.Intercambios(), "SM");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(contador.Intercambios(), "SS");
}

TEST_F(ImportarGTOPO30Dlg, ControlsAreReadInTheirOrder) {
    const std::vector<int> controles = {14197, 14193, 14126, 14199, 14120, 14205, 14122, 14202,
                                        14121, 14208, 14123, 14200, 14147, 14206, 14143, 14203,
                                        14145, 14209, 14124, 14201, 14148, 14207, 14144, 14204,
                                        14146, 14210, 14192, 14198, 14211};
    Abre([&](kit::Dialog& dialogo) {
        dialogo.focusOn(IDOK); // no count on the way
        const std::vector<int> leidos = LeidosPorOk(dialogo, controles);
        ASSERT_GE(leidos.size(), controles.size());
        EXPECT_EQ(std::vector<int>(leidos.begin(),
                                   leidos.begin() + static_cast<std::ptrdiff_t>(controles.size())),
                  controles);
    });
}

} // namespace
