#pragma once

#include "kit/driver/Dialog.h"
#include "kit/driver/Failure.h"
#include "kit/driver/Script.h"

#include <afxwin.h>

#include <typeinfo>

namespace kit {

/// The dialog whose window belongs to an object of this class.
template <class DialogClass>
Which of() {
    return [](HWND window) {
        return dynamic_cast<DialogClass*>(CWnd::FromHandlePermanent(window)) != nullptr;
    };
}

/// The object that an open dialog's window belongs to.
template <class DialogClass>
DialogClass& object(const Dialog& dialog, Where where = Where::current()) {
    auto* const found = dynamic_cast<DialogClass*>(CWnd::FromHandlePermanent(dialog.handle()));
    if (found == nullptr)
        abandon("The dialog " + inQuotes(dialog.caption()) + " is no " + typeid(DialogClass).name(),
                where);
    return *found;
}

} // namespace kit
