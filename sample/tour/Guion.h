#pragma once

#include <map>
#include <string_view>

#include "sample/tour/Visita.h"

/// The script of a conversation: what the tour does in its dialog. Each is the one object of a
/// source in sample/tour/guiones.
class Guion {
public:
    using Conduce = void (*)(Visita&);

    /// @param raiz stem of the conversation.
    Guion(const wchar_t* raiz, Conduce conduce);
};

/// All of them, by the stems of their conversations.
const std::map<std::wstring_view, Guion::Conduce>& Guiones();
