// SPDX-License-Identifier: MIT
// CObject, CRuntimeClass and the list of classes.

#include <afx.h>

#include <cstring>
#include <mutex>
#include <new>

CRuntimeClass CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)),          0xFFFF,
                                       nullptr,   []() -> CRuntimeClass* { return nullptr; }, nullptr};

namespace {

// Locked by a mutex, because any thread can load and unload modules.
struct ClassList {
    std::mutex mutex;
    CRuntimeClass* first = nullptr;
};

// Created at the first use: the initialisation order of the registering source files is undefined.
ClassList& Classes() {
    static ClassList* const classes = new ClassList;
    return *classes;
}

} // namespace

AfxClassRegistration::AfxClassRegistration(CRuntimeClass& runtimeClass) : m_class(runtimeClass) {
    ClassList& classes = Classes();
    const std::lock_guard<std::mutex> lock(classes.mutex);
    m_class.m_pNextClass = classes.first;
    classes.first = &m_class;
}

AfxClassRegistration::~AfxClassRegistration() {
    ClassList& classes = Classes();
    const std::lock_guard<std::mutex> lock(classes.mutex);
    for (CRuntimeClass** link = &classes.first; *link != nullptr; link = &(*link)->m_pNextClass)
        if (*link == &m_class) {
            *link = m_class.m_pNextClass;
            return;
        }
}

CObject* CRuntimeClass::CreateObject() const {
    if (m_pfnCreateObject == nullptr) {
        TRACE(_T("%hs cannot be created dynamically.\n"), m_lpszClassName);
        return nullptr;
    }
    try {
        return m_pfnCreateObject();
    } catch (CMemoryException* exception) {
        exception->Delete();
    } catch (const std::bad_alloc&) {
    }
    return nullptr;
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* baseClass) const {
    for (const CRuntimeClass* candidate = this; candidate != nullptr;
         candidate = candidate->m_pfnGetBaseClass())
        if (candidate == baseClass)
            return TRUE;
    return FALSE;
}

CRuntimeClass* CRuntimeClass::FromName(LPCSTR className) {
    if (className == nullptr)
        return nullptr;
    ClassList& classes = Classes();
    const std::lock_guard<std::mutex> lock(classes.mutex);
    for (CRuntimeClass* candidate = classes.first; candidate != nullptr; candidate = candidate->m_pNextClass)
        if (std::strcmp(candidate->m_lpszClassName, className) == 0)
            return candidate;
    return nullptr;
}

CObject* CRuntimeClass::CreateObject(LPCSTR className) {
    const CRuntimeClass* const found = FromName(className);
    return found == nullptr ? nullptr : found->CreateObject();
}

CObject::~CObject() = default;

CRuntimeClass* CObject::GetRuntimeClass() const {
    return RUNTIME_CLASS(CObject);
}

BOOL CObject::IsKindOf(const CRuntimeClass* runtimeClass) const {
    return GetRuntimeClass()->IsDerivedFrom(runtimeClass);
}

BOOL CObject::IsSerializable() const {
    return GetRuntimeClass()->m_wSchema != 0xFFFF;
}

void CObject::Serialize(CArchive&) {
}

void CObject::AssertValid() const {
}

void CObject::Dump(CDumpContext& dc) const {
    dc << "a " << GetRuntimeClass()->m_lpszClassName << " at " << static_cast<const void*>(this) << "\n";
}

CObject* AfxDynamicDownCast(CRuntimeClass* runtimeClass, CObject* object) {
    return object != nullptr && object->IsKindOf(runtimeClass) ? object : nullptr;
}

CObject* AfxStaticDownCast([[maybe_unused]] CRuntimeClass* runtimeClass, CObject* object) {
    ASSERT(object == nullptr || object->IsKindOf(runtimeClass));
    return object;
}
