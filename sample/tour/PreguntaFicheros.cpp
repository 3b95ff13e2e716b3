#include "sample/tour/PreguntaFicheros.h"

#include "sample/Rutas.h"

std::wstring NubeDePuntos(const std::wstring& nombre) {
    return BuscaHaciaArriba((L"sample\\data\\clouds\\" + nombre).c_str()).GetString();
}

void RespondePregunta(Visita& visita, std::initializer_list<const wchar_t*> nombres) {
    constexpr int campoNombre = 1148; // of the system's dialog
    std::wstring entreComillas;
    for (const std::wstring nombre : nombres)
        entreComillas += L"\"" + nombre + L"\" ";
    visita.Guion().onDialog(kit::having(campoNombre), [=, &visita](kit::Dialog& dialogo) {
        dialogo.setText(campoNombre, entreComillas);
        visita.Fotografia(dialogo.handle(), L"The host's file prompt.");
        dialogo.press(IDOK);
    });
}
