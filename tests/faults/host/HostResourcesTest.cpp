// A host has a dialog of its own under a number of the library's. The host's comes first in the
// chain of resources, on purpose: the library's dialog finds it, lacks its controls, says so and
// ends.
#include "../Apertura.h"

#include "cuadros/resources/TriangulationIds.h"
#include "cuadros/triangulation/TriangulacionDlg.h"
#include "kit/kit.h"

TEST(HostResources, TemplateOfTheHostEndsTheLibrarysDialogWithMinusOne) {
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(IDD_TRIANGULACION), RT_DIALOG),
              AfxGetResourceHandle());
    Cotana::CDataTriangulacion data;
    data.m_Nombre = L"North slope";
    data.m_Codigos.Inserta(Cotana::CElementoDigiTab(L"RD", L"Road edge"), true);
    data.m_Codigos.Inserta(Cotana::CElementoDigiTab(L"WL", L"Wall"), true);
    Cotana::CTriangulacionDlg dialogo(data);
    Apertura apertura(dialogo);
    int avisos = 0;
    apertura.alAviso = [&] { ++avisos; };
    EXPECT_EQ(apertura.Ejecuta([](HWND) { FAIL() << "it has opened"; }), -1);
    EXPECT_GT(avisos, 0); // the user is told
    EXPECT_EQ(data.m_Codigos.Cantidad(), 2U);
    EXPECT_EQ(data.m_Nombre, L"North slope");
}
