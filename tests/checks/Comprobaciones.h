// What the tests of many dialogs look at.
#pragma once

#include "checks/Escucha.h"
#include "kit/app/RecordingApp.h"
#include "kit/kit.h"

#include <afxwin.h>

#include <functional>
#include <list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// A text of the resource chain, by number.
inline CString TextoDe(UINT numero) {
    CString texto;
    EXPECT_TRUE(texto.LoadString(numero)) << "text " << numero;
    return texto;
}

/// From this dialog the host was asked once for files that exist: with the name `antes`, with these
/// options, over the dialog's own member that keeps the host's template.
///
/// @return the text that the host was given to change.
inline const CString* CompruebaPregunta(const kit::Dialog& dialogo, const kit::Text& antes,
                                        DWORD opciones, CDocTemplate** plantilla,
                                        kit::Where donde = kit::Where::current()) {
    const testing::ScopedTrace traza(donde.file_name(), static_cast<int>(donde.line()), "asked");
    const auto preguntas = kit::app.takeFilePrompts();
    EXPECT_EQ(preguntas.size(), 1U);
    if (preguntas.empty())
        return nullptr;
    const kit::FilePrompt& pregunta = preguntas.front();
    EXPECT_EQ(pregunta.nameBefore, antes);
    EXPECT_EQ(pregunta.title, 61440U);
    EXPECT_EQ(pregunta.flags, opciones);
    EXPECT_EQ(pregunta.open, 1);
    EXPECT_EQ(pregunta.documentTemplate, plantilla);
    EXPECT_EQ(pregunta.kind, 0);
    EXPECT_EQ(pregunta.reserved, nullptr);
    EXPECT_EQ(pregunta.active, dialogo.handle());
    return pregunta.name;
}

/// The controls that Tab reaches, from the one with the focus until it comes back to it.
inline std::vector<int> RecorreConTabulador(const kit::Dialog& dialogo) {
    std::vector<int> recorrido;
    do {
        recorrido.push_back(dialogo.focus());
        kit::keyboard::press(VK_TAB);
    } while (dialogo.focus() != recorrido.front() && recorrido.size() < 100);
    return recorrido;
}

/// Takes OK; the result is the controls that it reads, in its order.
inline std::vector<int> LeidosPorOk(kit::Dialog& dialogo, const std::vector<int>& controles) {
    std::vector<int> leidos;
    std::list<Escucha> escuchas;
    for (const int control : controles)
        escuchas.emplace_back(dialogo.control(control),
                              [&leidos, control](UINT mensaje, WPARAM, LPARAM) {
                                  const bool lee = mensaje == WM_GETTEXT || mensaje == BM_GETCHECK;
                                  if (lee && (leidos.empty() || leidos.back() != control))
                                      leidos.push_back(control);
                                  return std::optional<LRESULT>();
                              });
    dialogo.press(IDOK);
    return leidos;
}

/// The exchanges of a dialog of class `Dlg`, as a class derived from it sees them: S for one that
/// saves, M for one that shows.
template <class Dlg>
class ConIntercambios : public Dlg {
public:
    using Dlg::Dlg;

    /// The exchanges since the last call.
    std::string Intercambios() { return std::exchange(m_Intercambios, {}); }

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        EXPECT_EQ(AfxGetApp(), &kit::app);
        m_Intercambios += pDX->m_bSaveAndValidate ? 'S' : 'M';
        Dlg::DoDataExchange(pDX);
    }

private:
    std::string m_Intercambios;
};

/// A dialog of class `Dlg` that refuses one of the exchanges that save, after all is stored.
template <class Dlg>
class CDesconfiado : public Dlg {
public:
    using Dlg::Dlg;

    int rechazado = 1;                ///< Which one, counted from 1.
    std::function<void()> alRechazar; ///< Looks at what there is then.

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        Dlg::DoDataExchange(pDX);
        if (pDX->m_bSaveAndValidate && ++m_Guardados == rechazado) {
            if (alRechazar)
                alRechazar();
            pDX->Fail();
        }
    }

private:
    int m_Guardados = 0;
};

/// A dialog of class `Dlg` whose host has its say right after each exchange that saves.
template <class Dlg>
class ConRetoque : public Dlg {
public:
    using Dlg::Dlg;

    std::function<void()> alGuardar = [] {};

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        Dlg::DoDataExchange(pDX);
        if (pDX->m_bSaveAndValidate)
            alGuardar();
    }
};

/// The request that asks for the page with this context of the host's help file.
inline std::vector<kit::HelpRequest> PaginaDeAyuda(DWORD_PTR contexto) {
    return {{contexto, 15}};
}
