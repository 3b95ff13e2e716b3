// Objects that know their class at run time.
#pragma once

#include "config.h"

class CObject;

/// What a class says of itself at run time: its name, its size, how one of it is made and
/// what it derives from. One record a class, reached by RUNTIME_CLASS or GetRuntimeClass.
struct AFXRT_API CRuntimeClass {
    LPCSTR m_lpszClassName; ///< the class's own name, without its namespace
    int m_nObjectSize;      ///< bytes
    UINT m_wSchema;         ///< 0xFFFF: the class does not serialize
    CObject*(PASCAL* m_pfnCreateObject)();
    CRuntimeClass*(PASCAL* m_pfnGetBaseClass)();

    /// A new object by its default constructor; NULL when the class has none to offer.
    CObject* CreateObject();
    /// Whether the class is pBaseClass or derives from it.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;
};

/// The root of the class library.
class AFXRT_API CObject {
public:
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject();

    BOOL IsKindOf(const CRuntimeClass* pClass) const;
    /// Whether the object supports serialization; nothing of this runtime does.
    BOOL IsSerializable() const;
    /// Checks the object's internal consistency; the default checks that it is one.
    virtual void AssertValid() const;

    static CRuntimeClass* PASCAL GetThisClass();
    static const CRuntimeClass classCObject;

protected:
    CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
};

/// pObject as a pointer to its base class of that run-time class, or NULL.
AFXRT_API CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);
/// The same, but asserts in a debug build that the object is of the class.
AFXRT_API CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* pClass, CObject* pObject);

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DYNAMIC_DOWNCAST(class_name, object)                                                       \
    static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object))
#define STATIC_DOWNCAST(class_name, object)                                                        \
    static_cast<class_name*>(AfxStaticDownCast(RUNTIME_CLASS(class_name), object))

#define DECLARE_DYNAMIC(class_name)                                                                \
protected:                                                                                         \
    static CRuntimeClass* PASCAL _GetBaseClass();                                                  \
                                                                                                   \
public:                                                                                            \
    static const CRuntimeClass class##class_name;                                                  \
    static CRuntimeClass* PASCAL GetThisClass();                                                   \
    virtual CRuntimeClass* GetRuntimeClass() const;

#define DECLARE_DYNCREATE(class_name)                                                              \
    DECLARE_DYNAMIC(class_name)                                                                    \
    static CObject* PASCAL CreateObject();

#define AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, schema, create)                    \
    CRuntimeClass* PASCAL class_name::_GetBaseClass() {                                            \
        return RUNTIME_CLASS(base_class_name);                                                     \
    }                                                                                              \
    const CRuntimeClass class_name::class##class_name = {                                          \
        #class_name, static_cast<int>(sizeof(class_name)), schema, create,                         \
        &class_name::_GetBaseClass};                                                               \
    CRuntimeClass* PASCAL class_name::GetThisClass() {                                             \
        return const_cast<CRuntimeClass*>(&class_name::class##class_name);                         \
    }                                                                                              \
    CRuntimeClass* class_name::GetRuntimeClass() const {                                           \
        return class_name::GetThisClass();                                                         \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                             \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, NULL)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                           \
    CObject* PASCAL class_name::CreateObject() {                                                   \
        return new class_name;                                                                     \
    }                                                                                              \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)
