#include "sample/tour/Recorrido.h"

#include <set>
#include <string>
#include <string_view>

#include "sample/Conversacion.h"
#include "sample/EjemploIds.h"
#include "sample/LanzadorDlg.h"
#include "sample/Rutas.h"
#include "sample/TextFile.h"
#include "sample/tour/Guion.h"
#include "sample/tour/Pagina.h"

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

/// The host's own window, and a conversation opened from it, cancelled and then accepted.
Parada VisitaLanzador(Terreno& terreno, const CString& carpeta) {
    Visita visita(carpeta, L"Lanzador");
    visita.Guion().onDialog([&visita](kit::Dialog& dialogo) {
        visita.Fotografia(dialogo.handle(),
                          L"The sample host: the conversations, and the record of the chosen one.");
        for (const wchar_t* resultado : {L"Cancelled.", L"Accepted."}) {
            dialogo.press(IDC_LANZADOR_ABRIR);
            if (dialogo.text(IDC_LANZADOR_RESULTADO) != resultado)
                kit::fail("the launcher does not say: " + kit::utf8(resultado));
        }
        visita.Fotografia(dialogo.handle(), L"The conversation was accepted as it was.");
        dialogo.press(IDCANCEL);
    });
    for (const int boton : {IDCANCEL, IDOK})
        visita.Guion().onDialog([boton](kit::Dialog& dialogo) { dialogo.press(boton); });
    CLanzadorDlg lanzador(terreno);
    visita.Corre([&lanzador] { return lanzador.DoModal(); });
    Parada parada;
    parada.titulo = L"The sample host";
    parada.fotos = visita.Fotos();
    return parada;
}

/// Throws a Fault when a picture cannot be written, or the host's command fails.
Parada VisitaConversacion(const Conversacion& conversacion, CRecorridoApp& app, Terreno& terreno,
                          const CString& carpeta) {
    conversacion.prepara(terreno);
    Parada parada;
    parada.subsistema = conversacion.subsistema;
    parada.titulo = conversacion.titulo;
    parada.antes = conversacion.ficha(terreno);
    Visita visita(carpeta, conversacion.raiz);
    Guiones().at(conversacion.raiz)(visita);
    const INT_PTR resultado = visita.Corre([&] { return conversacion.abre(terreno, nullptr); });
    if (resultado != IDOK)
        kit::fail("the conversation was not accepted");
    parada.despues = conversacion.ficha(terreno);
    if (resultado == IDOK && conversacion.ejecuta) {
        const Hecho hecho = conversacion.ejecuta(terreno);
        if (hecho.fallo)
            throw Fault{hecho.texto.GetString()};
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

/// Each conversation has its script, and each script its conversation.
void CompruebaGuiones() {
    std::set<std::wstring_view> raices;
    for (const Conversacion* conversacion : Conversaciones())
        raices.insert(conversacion->raiz);
    for (const auto& [raiz, conduce] : Guiones()) {
        if (raices.erase(raiz) == 0)
            throw Fault{L"no conversation has the stem of the script " + std::wstring(raiz)};
    }
    if (!raices.empty())
        throw Fault{L"there is no script of " + std::wstring(*raices.begin())};
}

/// Throws a Fault when the tour cannot go on.
void RecorreTodas(CRecorridoApp& app, Terreno& terreno, const CString& carpeta) {
    CompruebaGuiones();
    PreparaKit();
    std::vector<Parada> paradas;
    for (const Conversacion* conversacion : Conversaciones()) {
        paradas.push_back(VisitaConversacion(*conversacion, app, terreno, carpeta));
        Imprime(paradas.back());
    }
    // Last, since it changes a record, and first on the page.
    paradas.insert(paradas.begin(), VisitaLanzador(terreno, carpeta));
    const CString error = EscribePagina(paradas, carpeta);
    if (!error.IsEmpty())
        throw Fault{error.GetString()};
}

} // namespace

bool Recorre(CRecorridoApp& app, Terreno& terreno, const CString& carpeta) {
    CString completa;
    CString error = HazCarpeta(carpeta, completa);
    try {
        if (error.IsEmpty())
            RecorreTodas(app, terreno, completa);
    } catch (const Fault& fallo) {
        error = fallo.text.c_str();
    }
    if (!error.IsEmpty())
        Escribe(error + L"\n", true);
    return error.IsEmpty() && fallos == 0;
}
