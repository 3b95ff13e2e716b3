#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <optional>
#include <utility>

/// For its life hears every message of a window before the window itself does.
class Escucha {
public:
    /// Answers a message in the window's place; without an answer the window has it.
    using Oido = std::function<std::optional<LRESULT>(UINT, WPARAM, LPARAM)>;

    Escucha(HWND ventana, Oido oido) : m_Ventana(ventana), m_Oido(std::move(oido)) {
        SetWindowSubclass(m_Ventana, Procedimiento, Numero(), Numero());
    }
    ~Escucha() { RemoveWindowSubclass(m_Ventana, Procedimiento, Numero()); }
    Escucha(const Escucha&) = delete;
    Escucha& operator=(const Escucha&) = delete;

private:
    DWORD_PTR Numero() const { return reinterpret_cast<DWORD_PTR>(this); }

    static LRESULT CALLBACK Procedimiento(HWND ventana, UINT mensaje, WPARAM wParam, LPARAM lParam,
                                          UINT_PTR /*numero*/, DWORD_PTR esta) {
        const auto respuesta =
            reinterpret_cast<const Escucha*>(esta)->m_Oido(mensaje, wParam, lParam);
        return respuesta ? *respuesta : DefSubclassProc(ventana, mensaje, wParam, lParam);
    }

    HWND m_Ventana;
    Oido m_Oido;
};
