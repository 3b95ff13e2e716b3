#include "sample/tour/Pagina.h"

#include <string>
#include <string_view>

#include "sample/OutputFile.h"
#include "sample/TextFile.h"

namespace {

constexpr std::string_view Cabecera = R"html(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Cuadros: a tour of the conversations</title>
<style>
  :root { color-scheme: light dark; --ink: #23302b; --soft: #66736d; --line: #d8dfdb;
          --paper: #fbfcfa; --card: #fff; --mark: #e7f2df; }
  @media (prefers-color-scheme: dark) {
    :root { --ink: #e3e9e5; --soft: #9aa8a1; --line: #3a4640; --paper: #171d1a; --card: #1f2723;
            --mark: #2c402b; } }
  body { margin: 0; background: var(--paper); color: var(--ink);
         font: 16px/1.55 system-ui, "Segoe UI", Roboto, sans-serif; }
  main { max-width: 68rem; margin: 0 auto; padding: 2.5rem 1.25rem 4rem; }
  h1 { font-size: 1.7rem; margin: 0 0 .25rem; }
  h2 { font-size: 1.25rem; margin: 3rem 0 .75rem; border-top: 1px solid var(--line);
       padding-top: 1.5rem; }
  h2 small { color: var(--soft); font-weight: normal; font-size: .8em; }
  p { margin: .5rem 0; } .soft { color: var(--soft); }
  figure { display: inline-block; margin: 1rem 1.25rem .5rem 0; vertical-align: top; }
  figure img { display: block; max-width: 100%; border-radius: 4px;
               box-shadow: 0 1px 3px #0003, 0 6px 20px #0002; }
  figcaption { color: var(--soft); font-size: .875rem; margin-top: .5rem; max-width: 32rem; }
  .wide { overflow-x: auto; }
  table { border-collapse: collapse; background: var(--card); font-size: .875rem;
          margin-top: .75rem; }
  th, td { text-align: left; padding: .35rem .9rem; border: 1px solid var(--line); }
  th { font-weight: 600; } td { font-family: ui-monospace, Consolas, monospace; }
  tr.changed td { background: var(--mark); }
</style>
</head>
<body>
<main>
<h1>A tour of the conversations</h1>
<p class="soft">The sample host opened each dialog over its own data, filled it in as a person
would, and accepted it. Fields that the dialog changed are shaded.</p>
)html";

constexpr std::string_view Cierre = "</main>\n</body>\n</html>\n";

std::string Html(const CString& texto) {
    std::string html;
    for (const char letra : Utf8(texto)) {
        switch (letra) {
        case '&':
            html += "&amp;";
            break;
        case '<':
            html += "&lt;";
            break;
        case '"':
            html += "&quot;";
            break;
        default:
            html += letra;
        }
    }
    return html;
}

std::string Base64(std::string_view bytes) {
    constexpr char cifras[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string texto;
    for (size_t i = 0; i < bytes.size(); i += 3) {
        const size_t hay = bytes.size() - i;
        const auto byte = [&](size_t k) {
            return k < hay ? static_cast<unsigned char>(bytes[i + k]) : 0u;
        };
        const unsigned tres = byte(0) << 16 | byte(1) << 8 | byte(2);
        texto += cifras[tres >> 18];
        texto += cifras[tres >> 12 & 63];
        texto += hay > 1 ? cifras[tres >> 6 & 63] : '=';
        texto += hay > 2 ? cifras[tres & 63] : '=';
    }
    return texto;
}

std::string Lee(const CString& ruta) {
    try {
        InputFile fichero(ruta);
        std::string bytes;
        char bloque[16 * 1024];
        while (const size_t leidos = fichero.Read(bloque, sizeof bloque))
            bytes.append(bloque, leidos);
        return bytes;
    } catch (const Fault& fallo) {
        // It is the page that is refused: it says because of which picture.
        throw Fault{Refusal(ruta, fallo.text).GetString()};
    }
}

std::string Tabla(const Parada& parada) {
    std::string html = "<div class=\"wide\"><table>\n"
                       "<tr><th>Field</th><th>Before</th><th>After</th></tr>\n";
    for (size_t i = 0; i < parada.antes.size(); ++i) {
        const Campo &antes = parada.antes[i], &despues = parada.despues[i];
        html += antes.valor == despues.valor ? "<tr>" : "<tr class=\"changed\">";
        html += "<td>" + Html(antes.nombre) + "</td><td>" + Html(antes.valor) + "</td><td>" +
                Html(despues.valor) + "</td></tr>\n";
    }
    return html + "</table></div>\n";
}

/// @param tipo kind of the picture, as the web names it.
std::string Imagen(const Parada& parada, const CString& ruta, const char* tipo,
                   const CString& pie) {
    return "<figure><img alt=\"" + Html(parada.titulo) + "\" src=\"data:image/" + tipo +
           ";base64," + Base64(Lee(ruta)) + "\"><figcaption>" + Html(pie) +
           "</figcaption></figure>\n";
}

} // namespace

CString EscribePagina(const std::vector<Parada>& paradas, const CString& carpeta) {
    const auto escribe = [&](OutputFile& pagina) {
        pagina << Cabecera;
        for (const Parada& parada : paradas) {
            pagina << "<h2>" << Html(parada.titulo);
            if (!parada.subsistema.IsEmpty())
                pagina << " <small>" << Html(parada.subsistema) << "</small>";
            pagina << "</h2>\n";
            for (const Visita::Foto& foto : parada.fotos)
                pagina << Imagen(parada, carpeta + L"\\" + foto.fichero, "png", foto.pie);
            if (!parada.dibujo.IsEmpty())
                pagina << Imagen(parada, parada.dibujo, "svg+xml", parada.hecho);
            else if (!parada.hecho.IsEmpty())
                pagina << "<p>" << Html(parada.hecho) << "</p>\n";
            if (!parada.antes.empty())
                pagina << Tabla(parada);
            for (const DWORD_PTR ayuda : parada.ayudas)
                pagina << "<p class=\"soft\">F1 asked the host for help at context "
                       << std::to_string(ayuda) << ".</p>\n";
        }
        pagina << Cierre;
    };
    return WriteTextFile(carpeta + L"\\index.html", escribe);
}
