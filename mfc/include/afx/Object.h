// SPDX-License-Identifier: MIT
// CObject and run-time class information.
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

/// Flag for the schema number of IMPLEMENT_SERIAL. A class with the flag also loads objects with another
/// schema; its Serialize() calls CArchive::GetObjectSchema() to get the stored schema.
#define VERSIONABLE_SCHEMA (0x80000000)

/// Run-time information about a class with DECLARE_DYNAMIC, DECLARE_DYNCREATE or DECLARE_SERIAL. The
/// IMPLEMENT_ macros define the objects with constant initialisers. m_pfnGetBaseClass is a function, because
/// the address of a base class in another DLL is not a constant.
struct MFC_API CRuntimeClass {
    LPCSTR m_lpszClassName;
    /// Size of an object in bytes.
    int m_nObjectSize;
    /// Schema number; 0xFFFF for a class that is not serialisable.
    UINT m_wSchema;
    /// Creates an object; null if the class cannot be created by name.
    CObject* (*m_pfnCreateObject)();
    /// Returns the base class; null for CObject.
    CRuntimeClass* (*m_pfnGetBaseClass)();
    /// Next class in the list that FromName searches. The library sets the member.
    CRuntimeClass* m_pNextClass;

    /// Returns a new object from the default constructor; the caller owns it. Null if the class cannot be
    /// created by name, or if memory runs out.
    CObject* CreateObject() const;

    /// TRUE if this is `baseClass` or a class derived from it.
    BOOL IsDerivedFrom(const CRuntimeClass* baseClass) const;

    /// The class with this name in the loaded modules; null if there is none.
    static CRuntimeClass* FromName(LPCSTR className);

    /// Calls CreateObject() of the class with this name; null if there is no such class.
    static CObject* CreateObject(LPCSTR className);
};

/// Adds a class to the list that CRuntimeClass::FromName searches, while the module of the class is loaded.
class MFC_API AfxClassRegistration {
public:
    explicit AfxClassRegistration(CRuntimeClass& runtimeClass);
    ~AfxClassRegistration();
    AfxClassRegistration(const AfxClassRegistration&) = delete;
    AfxClassRegistration& operator=(const AfxClassRegistration&) = delete;

private:
    CRuntimeClass& m_class;
};

/// Base of most classes of the library: run-time class information, serialisation, diagnostics.
class MFC_API CObject {
public:
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual ~CObject();

    /// Information about the most derived class with a DECLARE_ macro.
    virtual CRuntimeClass* GetRuntimeClass() const;

    /// TRUE if the object is of the given class or of a class derived from it. Only classes with a DECLARE_
    /// macro count.
    BOOL IsKindOf(const CRuntimeClass* runtimeClass) const;

    /// TRUE if the class was implemented with IMPLEMENT_SERIAL.
    BOOL IsSerializable() const;

    /// Stores the object in the archive or loads it from there. The base does nothing.
    virtual void Serialize(CArchive& ar);

    /// An override asserts that the object's members are consistent. The base does nothing.
    virtual void AssertValid() const;

    /// Writes a description of the object to the context; the base writes the class name and the address.
    virtual void Dump(CDumpContext& dc) const;

    static CRuntimeClass classCObject;

protected:
    CObject() = default;
};

/// The CRuntimeClass of a class.
#define RUNTIME_CLASS(class_name) (&class_name::class##class_name)

/// The macros stand inside the class. Members after the macro are public unless an access specifier follows.
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

/// For each class with one of the DECLARE_ macros above, a source file contains the IMPLEMENT_ macro with the
/// same ending. IMPLEMENT_DYNCREATE and IMPLEMENT_SERIAL need a default constructor, which may be protected.
/// IMPLEMENT_SERIAL takes a schema number from 0 to 0xFFFE, with or without VERSIONABLE_SCHEMA; change the
/// number when the stored form changes.
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

/// Returns `object` if it is of the given class or of a class derived from it, else null. Null for a
/// null object.
MFC_API CObject* AfxDynamicDownCast(CRuntimeClass* runtimeClass, CObject* object);

/// Returns `object`. A debug build asserts that the object is null, of the given class or of a class derived
/// from it.
MFC_API CObject* AfxStaticDownCast(CRuntimeClass* runtimeClass, CObject* object);

#define DYNAMIC_DOWNCAST(class_name, object)                                                                 \
    (static_cast<class_name*>(::AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))

#ifdef _DEBUG
#define STATIC_DOWNCAST(class_name, object)                                                                  \
    (static_cast<class_name*>(::AfxStaticDownCast(RUNTIME_CLASS(class_name), object)))
#else
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))
#endif
