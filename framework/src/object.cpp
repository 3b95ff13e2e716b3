#include "afxrt/object.h"

#include <cassert>

const CRuntimeClass CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)), 0xFFFF,
                                             nullptr, nullptr};

CRuntimeClass* PASCAL CObject::GetThisClass() {
    return const_cast<CRuntimeClass*>(&classCObject);
}

CRuntimeClass* CObject::GetRuntimeClass() const {
    return GetThisClass();
}

CObject::~CObject() = default;

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const {
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

BOOL CObject::IsSerializable() const {
    return GetRuntimeClass()->m_wSchema != 0xFFFF;
}

void CObject::AssertValid() const {}

CObject* CRuntimeClass::CreateObject() {
    return m_pfnCreateObject ? m_pfnCreateObject() : nullptr;
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const {
    for (const CRuntimeClass* c = this; c;
         c = c->m_pfnGetBaseClass ? c->m_pfnGetBaseClass() : nullptr)
        if (c == pBaseClass)
            return TRUE;
    return FALSE;
}

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject) {
    return pObject && pObject->IsKindOf(pClass) ? pObject : nullptr;
}

CObject* AFXAPI AfxStaticDownCast([[maybe_unused]] CRuntimeClass* pClass, CObject* pObject) {
    assert(!pObject || pObject->IsKindOf(pClass));
    return pObject;
}
