#include "sample/Recorrido.h"

#include <afxcmn.h>

#include "sample/Conversacion.h"
#include "sample/EjemploIds.h"
#include "sample/LanzadorDlg.h"
#include "sample/Pagina.h"
#include "sample/Rutas.h"

namespace {

/// How often the scripts have failed.
int fallos = 0;

void PreparaKit() {
    kit::useOwnDesktop();
    kit::endOnFault();
    kit::setReporter({[](const std::string& mensaje, const kit::Where& donde) {
                          ++fallos;
                          CString texto;
                          texto.Format(L"%S(%u): %s\n", donde.file_name(),
                                       static_cast<unsigned>(donde.line()),
                                       kit::utf16(mensaje).c_str());
                          Escribe(texto, true);
                      },
                      [] { return false; }});
    kit::setMessageFilter(
        [](MSG& mensaje) { return AfxGetApp()->PreTranslateMessage(&mensaje) != FALSE; });
}

/// Chooses a conversation in the launcher's tree.
void Elige(const kit::Dialog& lanzador, const wchar_t* subsistema, const wchar_t* titulo) {
    auto& arbol =
        *static_cast<CTreeCtrl*>(CWnd::FromHandle(lanzador.control(IDC_LANZADOR_CONVERSACIONES)));
    const auto busca = [&arbol](HTREEITEM primero, const wchar_t* texto) {
        HTREEITEM item = primero;
        while (item && arbol.GetItemText(item) != texto)
            item = arbol.GetNextSiblingItem(item);
        return item;
    };
    const HTREEITEM raiz = busca(arbol.GetRootItem(), subsistema);
    arbol.SelectItem(raiz ? busca(arbol.GetChildItem(raiz), titulo) : nullptr);
}

/// The host's own window, and the contours opened from it: cancelled, nothing is done; accepted,
/// they are drawn.
Parada VisitaLanzador(Terreno& terreno, const CString& carpeta) {
    Visita visita(carpeta, L"Lanzador");
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(),
                          L"The sample host: the conversations, and the record of the chosen one.");
        Elige(dialogo, L"Contours and slopes", L"Contour options");
        dialogo.press(IDC_LANZADOR_ABRIR); // and cancelled
        if (dialogo.text(IDC_LANZADOR_RESULTADO) != L"Cancelled.")
            kit::fail("the launcher does not say that nothing was done");
        dialogo.press(IDC_LANZADOR_ABRIR);
        if (dialogo.text(IDC_LANZADOR_RESULTADO).find(L" drawn") == std::wstring::npos)
            kit::fail("the launcher does not say what was drawn");
        visita.Fotografia(dialogo.handle(), L"The contour options were accepted as they were.");
        dialogo.press(IDCANCEL);
    });
    for (const int boton : {IDCANCEL, IDOK})
        visita.Guion().onDialog([boton](kit::Dialog& dialogo) { dialogo.press(boton); });
    CLanzadorDlg lanzador(terreno);
    visita.Guion().run([&lanzador] { return lanzador.DoModal(); });
    Parada parada;
    parada.titulo = L"The sample host";
    parada.fotos = visita.Fotos();
    return parada;
}

Parada VisitaConversacion(const Conversacion& conversacion, CEjemploApp& app, Terreno& terreno,
                          const CString& carpeta) {
    conversacion.prepara(terreno);
    Parada parada;
    parada.subsistema = conversacion.subsistema;
    parada.titulo = conversacion.titulo;
    parada.antes = conversacion.ficha(terreno);
    Visita visita(carpeta, conversacion.raiz);
    conversacion.conduce(visita);
    const INT_PTR resultado =
        visita.Guion().run([&] { return conversacion.abre(terreno, nullptr); });
    if (resultado != IDOK)
        kit::fail("the conversation was not accepted");
    parada.despues = conversacion.ficha(terreno);
    if (resultado == IDOK && conversacion.ejecuta) {
        const Hecho hecho = conversacion.ejecuta(terreno);
        if (hecho.fallo)
            kit::fail(Utf8(hecho.texto));
        parada.hecho = hecho.texto;
        conversacion.prepara(terreno);
        if (conversacion.ficha(terreno) != parada.despues)
            kit::fail("the next opening would not show what was carried out");
        if (!hecho.dibujo.IsEmpty())
            parada.dibujo = terreno.carpetaDibujos + L"\\" + hecho.dibujo;
    }
    parada.fotos = visita.Fotos();
    parada.ayudas = app.RecogeAyudas();
    return parada;
}

void Imprime(const Parada& parada) {
    Escribe(parada.subsistema + L": " + parada.titulo + L"\n" +
            AntesYDespues(parada.antes, parada.despues));
    for (const DWORD_PTR ayuda : parada.ayudas)
        Escribe(L"    help asked for at context " + Valor(static_cast<int>(ayuda)) + L"\n");
    for (const Visita::Foto& foto : parada.fotos)
        Escribe(L"    " + foto.fichero + L": " + foto.pie + L"\n");
    if (!parada.hecho.IsEmpty())
        Escribe(L"    " + parada.hecho + L"\n");
}

} // namespace

bool Recorre(CEjemploApp& app, Terreno& terreno, const CString& carpeta) {
    CString completa;
    const CString error = HazCarpeta(carpeta, completa);
    if (!error.IsEmpty()) {
        Escribe(error + L"\n", true);
        return false;
    }

    PreparaKit();
    std::vector<Parada> paradas = {VisitaLanzador(terreno, completa)};
    for (const Conversacion& conversacion : Conversaciones()) {
        paradas.push_back(VisitaConversacion(conversacion, app, terreno, completa));
        Imprime(paradas.back());
    }
    const CString fallo = EscribePagina(paradas, completa);
    if (!fallo.IsEmpty()) {
        Escribe(fallo + L"\n", true);
        return false;
    }
    return fallos == 0;
}
