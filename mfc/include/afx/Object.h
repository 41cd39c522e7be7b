#pragma once

#include <afx/Diagnostics.h>

class CArchive;

#ifndef AFX_EXT_CLASS
#ifdef _AFXEXT
#define AFX_EXT_CLASS __declspec(dllexport)
#else
#define AFX_EXT_CLASS __declspec(dllimport)
#endif
#define AFX_EXT_API AFX_EXT_CLASS
#define AFX_EXT_DATA AFX_EXT_CLASS
#endif

/// Bit to be combined with the schema number of IMPLEMENT_SERIAL: the class reads older schemas too and asks
/// CArchive::GetObjectSchema which one it is given.
#define VERSIONABLE_SCHEMA (0x80000000)

/// What is known at run time about a class that uses DECLARE_DYNAMIC, DECLARE_DYNCREATE or DECLARE_SERIAL.
/// Objects of this type are made by the IMPLEMENT_ macros and need no run-time initialisation, also across
/// DLL borders: the base class is therefore reached through a function.
struct MFC_API CRuntimeClass {
    LPCSTR m_lpszClassName;
    /// Bytes of an object of the class.
    int m_nObjectSize;
    /// Schema number, or 0xFFFF for a class that is not serialisable.
    UINT m_wSchema;
    /// Makes an object; null for a class that cannot be made by name.
    CObject* (*m_pfnCreateObject)();
    /// Gives the base class; its result is null for CObject only.
    CRuntimeClass* (*m_pfnGetBaseClass)();
    /// Next class in the list that FromName searches. Kept by the library.
    CRuntimeClass* m_pNextClass;

    /// A new object made with the default constructor, owned by the caller; null if the class cannot be made
    /// dynamically or memory runs out.
    CObject* CreateObject() const;

    /// TRUE if this is `baseClass` or a class derived from it.
    BOOL IsDerivedFrom(const CRuntimeClass* baseClass) const;

    /// The class of that name among the loaded modules; null if there is none.
    static CRuntimeClass* FromName(LPCSTR className);

    /// CreateObject() of the class of that name; null if there is no such class.
    static CObject* CreateObject(LPCSTR className);
};

/// Keeps a class in the list that CRuntimeClass::FromName searches, for as long as the class's module is
/// loaded.
class MFC_API AfxClassRegistration {
public:
    explicit AfxClassRegistration(CRuntimeClass& runtimeClass);
    ~AfxClassRegistration();
    AfxClassRegistration(const AfxClassRegistration&) = delete;
    AfxClassRegistration& operator=(const AfxClassRegistration&) = delete;

private:
    CRuntimeClass& m_class;
};

/// Base of nearly all classes of the library: run-time class information, serialisation, diagnostics.
class MFC_API CObject {
public:
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual ~CObject();

    /// Class information of the most derived class that declares any.
    virtual CRuntimeClass* GetRuntimeClass() const;

    /// TRUE if the object is of the given class or of one derived from it, as far as the classes declare
    /// information.
    BOOL IsKindOf(const CRuntimeClass* runtimeClass) const;

    /// TRUE if the class was implemented with IMPLEMENT_SERIAL.
    BOOL IsSerializable() const;

    /// Writes the object to the archive or reads it from there. Does nothing here.
    virtual void Serialize(CArchive& ar);

    /// Asserts that the object is in a state it can be in.
    virtual void AssertValid() const;

    /// Writes the class name and address to the context.
    virtual void Dump(CDumpContext& dc) const;

    static CRuntimeClass classCObject;

protected:
    CObject() = default;
};

/// The CRuntimeClass of a class.
#define RUNTIME_CLASS(class_name) (&class_name::class##class_name)

/// Stand in the class; what follows them is public until the next access specifier.
#define DECLARE_DYNAMIC(class_name)                                                                          \
public:                                                                                                      \
    static CRuntimeClass class##class_name;                                                                  \
    AFX_BEGIN_IMPLIED_OVERRIDES                                                                              \
    virtual CRuntimeClass* GetRuntimeClass() const;                                                          \
    AFX_END_IMPLIED_OVERRIDES

#define DECLARE_DYNCREATE(class_name)                                                                        \
    DECLARE_DYNAMIC(class_name)                                                                              \
    static CObject* CreateObject();

#define DECLARE_SERIAL(class_name)                                                                           \
    DECLARE_DYNCREATE(class_name)                                                                            \
    friend CArchive& operator>>(CArchive& ar, class_name*& pOb);

#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, pfnNew)                                 \
    CRuntimeClass class_name::class##class_name = {                                                          \
        #class_name,                                                                                         \
        static_cast<int>(sizeof(class_name)),                                                                \
        wSchema,                                                                                             \
        pfnNew,                                                                                              \
        []() -> CRuntimeClass* { return RUNTIME_CLASS(base_class_name); },                                   \
        nullptr};                                                                                            \
    static const AfxClassRegistration afxRegistrationOf##class_name(class_name::class##class_name);          \
    CRuntimeClass* class_name::GetRuntimeClass() const {                                                     \
        return RUNTIME_CLASS(class_name);                                                                    \
    }

/// Stand once in a source file. IMPLEMENT_DYNCREATE and IMPLEMENT_SERIAL need a default constructor (it may
/// be protected); IMPLEMENT_SERIAL takes a schema number of 0 or more, which changes when the stored form
/// changes.
#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                       \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                     \
    CObject* class_name::CreateObject() {                                                                    \
        return new class_name;                                                                               \
    }                                                                                                        \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)

#define IMPLEMENT_SERIAL(class_name, base_class_name, wSchema)                                               \
    CObject* class_name::CreateObject() {                                                                    \
        return new class_name;                                                                               \
    }                                                                                                        \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, static_cast<UINT>(wSchema),                          \
                           &class_name::CreateObject)                                                        \
    CArchive& operator>>(CArchive& ar, class_name*& pOb) {                                                   \
        pOb = static_cast<class_name*>(ar.ReadObject(RUNTIME_CLASS(class_name)));                            \
        return ar;                                                                                           \
    }

/// `object` if it is of the given class or of one derived from it, else null (also for a null object).
MFC_API CObject* AfxDynamicDownCast(CRuntimeClass* runtimeClass, CObject* object);

/// `object`; a debug build asserts that it is null or of the given class.
MFC_API CObject* AfxStaticDownCast(CRuntimeClass* runtimeClass, CObject* object);

#define DYNAMIC_DOWNCAST(class_name, object)                                                                 \
    (static_cast<class_name*>(::AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))

#ifdef _DEBUG
#define STATIC_DOWNCAST(class_name, object)                                                                  \
    (static_cast<class_name*>(::AfxStaticDownCast(RUNTIME_CLASS(class_name), object)))
#else
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))
#endif
