#include "sample/tour/Guion.h"

namespace {

/// In a function: scripts are there before the objects of this source may be.
std::map<std::wstring_view, Guion::Conduce>& Todos() {
    static std::map<std::wstring_view, Guion::Conduce> todos;
    return todos;
}

} // namespace

Guion::Guion(const wchar_t* raiz, Conduce conduce) {
    Todos()[raiz] = conduce;
}

const std::map<std::wstring_view, Guion::Conduce>& Guiones() {
    return Todos();
}
