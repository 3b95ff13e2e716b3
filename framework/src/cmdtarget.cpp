#include "afxrt/cmdtarget.h"

#include "afxrt/app.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

namespace afx_internal {

const AFX_MSGMAP_ENTRY* FindMessageEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id) {
    for (; map; map = map->pfnGetBaseMap ? map->pfnGetBaseMap() : nullptr)
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != sigEnd; ++entry)
            if (entry->nMessage == message && entry->nCode == code && entry->nID <= id &&
                id <= entry->nLastID)
                return entry;
    return nullptr;
}

namespace {

// Calls a handler as a member of type Handler, with the arguments it takes.
template <class Handler, class... Args>
auto Call(CCmdTarget* target, AFX_PMSG pfn, Args... args) {
    return (target->*std::bit_cast<Handler>(pfn))(args...);
}

BOOL CallCommandHandler(CCmdTarget* target, const AFX_MSGMAP_ENTRY& entry, UINT id, void* extra) {
    const AFX_PMSG pfn = entry.pfn;
    auto* const notify = static_cast<AFX_NOTIFY*>(extra);
    switch (entry.nSig) {
    case sigVoid:
        (target->*pfn)();
        return TRUE;
    case sigCommandId:
        Call<void (CCmdTarget::*)(UINT)>(target, pfn, id);
        return TRUE;
    case sigCommandEx:
        return Call<BOOL (CCmdTarget::*)(UINT)>(target, pfn, id);
    case sigNotify:
        Call<void (CCmdTarget::*)(NMHDR*, LRESULT*)>(target, pfn, notify->pNMHDR, notify->pResult);
        return TRUE;
    case sigNotifyId:
        Call<void (CCmdTarget::*)(UINT, NMHDR*, LRESULT*)>(target, pfn, id, notify->pNMHDR,
                                                           notify->pResult);
        return TRUE;
    case sigNotifyEx:
        return Call<BOOL (CCmdTarget::*)(UINT, NMHDR*, LRESULT*)>(target, pfn, id, notify->pNMHDR,
                                                                  notify->pResult);
    default:
        return FALSE;
    }
}

} // namespace
} // namespace afx_internal

CCmdTarget::CCmdTarget() : m_pModuleState(AfxGetModuleState()) {}

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, afx_internal::sigEnd, nullptr}};
    static const AFX_MSGMAP messageMap = {nullptr, entries};
    return &messageMap;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const {
    return GetThisMessageMap();
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    const UINT message = HIWORD(nCode) ? HIWORD(nCode) : WM_COMMAND;
    const AFX_MSGMAP_ENTRY* entry =
        afx_internal::FindMessageEntry(GetMessageMap(), message, LOWORD(nCode), nID);
    if (!entry)
        return FALSE;
    if (pHandlerInfo) {
        pHandlerInfo->pTarget = this;
        pHandlerInfo->pmf = entry->pfn;
        return TRUE;
    }
    return afx_internal::CallCommandHandler(this, *entry, nID, pExtra);
}

void CCmdTarget::BeginWaitCursor() {
    if (CWinApp* app = AfxGetApp())
        app->DoWaitCursor(1);
}

void CCmdTarget::EndWaitCursor() {
    if (CWinApp* app = AfxGetApp())
        app->DoWaitCursor(-1);
}

void CCmdTarget::RestoreWaitCursor() {
    if (CWinApp* app = AfxGetApp())
        app->DoWaitCursor(0);
}
