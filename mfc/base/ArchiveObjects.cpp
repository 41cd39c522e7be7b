// SPDX-License-Identifier: MIT
// CArchive: objects and classes.

#include <afxtempl.h>

#include <cstring>
#include <utility>

#include "mfc/base/ArchiveTables.h"

// A tag precedes each object: null, a new class (followed by its schema and name), a known class, or a known
// object. The tags of known classes and objects contain an index.

namespace {

constexpr WORD nullTag = 0;
constexpr WORD newClassTag = 0xFFFF;
constexpr WORD classBit = 0x8000;
constexpr WORD longTag = 0x7FFF; // a DWORD with the index follows
constexpr DWORD longClassBit = 0x80000000;
constexpr DWORD mostIndexes = 0x3FFFFFFE;
constexpr WORD longestClassName = 255;

} // namespace

DWORD CArchive::NextIndex() const {
    if (m_pTables->count >= mostIndexes)
        AfxThrowArchiveException(CArchiveException::badIndex, FileName());
    return m_pTables->count + 1;
}

void CArchive::WriteTag(DWORD index, bool isClass) {
    if (index < longTag)
        *this << static_cast<WORD>(index | (isClass ? classBit : 0));
    else
        *this << longTag << (index | (isClass ? longClassBit : 0));
}

void CArchive::MapObject(const CObject* object) {
    SetStoreParams();
    const DWORD index = NextIndex();
    AfxWithMemory([&] {
        if (IsStoring())
            m_pTables->stored.emplace(object, index);
        else
            m_pTables->loaded.push_back({nullptr, 0, const_cast<CObject*>(object)});
    });
    m_pTables->count = index;
}

void CArchive::WriteObject(const CObject* object) {
    RequireMode(store);
    if (object == nullptr) {
        *this << nullTag;
        return;
    }
    SetStoreParams();
    const auto known = m_pTables->stored.find(object);
    if (known != m_pTables->stored.end()) {
        WriteTag(known->second, false);
        return;
    }
    WriteClass(object->GetRuntimeClass());
    MapObject(object);
    // Serialize() is not const because it also loads. Storing does not change the object.
    const_cast<CObject*>(object)->Serialize(*this);
}

void CArchive::WriteClass(const CRuntimeClass* runtimeClass) {
    RequireMode(store);
    if (runtimeClass->m_wSchema == 0xFFFF)
        AfxThrowNotSupportedException();
    SetStoreParams();
    const auto known = m_pTables->stored.find(runtimeClass);
    if (known != m_pTables->stored.end()) {
        WriteTag(known->second, true);
        return;
    }
    const DWORD index = NextIndex();
    const std::size_t length = std::strlen(runtimeClass->m_lpszClassName);
    if (length > longestClassName)
        AfxThrowArchiveException(CArchiveException::badClass, FileName());
    *this << newClassTag << static_cast<WORD>(runtimeClass->m_wSchema) << static_cast<WORD>(length);
    Write(runtimeClass->m_lpszClassName, static_cast<UINT>(length));
    AfxWithMemory([&] { m_pTables->stored.emplace(runtimeClass, index); });
    m_pTables->count = index;
}

CRuntimeClass* CArchive::ReadNewClass(UINT& schema) {
    schema = Get<WORD>();
    const WORD length = Get<WORD>();
    char name[longestClassName + 1];
    if (length > longestClassName)
        AfxThrowArchiveException(CArchiveException::badClass, FileName());
    ReadAll(name, length);
    name[length] = 0;
    CRuntimeClass* const found = CRuntimeClass::FromName(name);
    if (found == nullptr) {
        TRACE(_T("%hs is not a class of this program.\n"), name);
        AfxThrowArchiveException(CArchiveException::badClass, FileName());
    }
    if (found->m_wSchema == 0xFFFF)
        AfxThrowArchiveException(CArchiveException::badClass, FileName());
    if ((found->m_wSchema & ~VERSIONABLE_SCHEMA) != schema && (found->m_wSchema & VERSIONABLE_SCHEMA) == 0)
        AfxThrowArchiveException(CArchiveException::badSchema, FileName());
    const DWORD index = NextIndex();
    AfxWithMemory([&] { m_pTables->loaded.push_back({found, schema, nullptr}); });
    m_pTables->count = index;
    return found;
}

CRuntimeClass* CArchive::ReadClass(const CRuntimeClass* requested, UINT* schema, DWORD* objectTag) {
    RequireMode(load);
    if (requested != nullptr && requested->m_wSchema == 0xFFFF)
        AfxThrowNotSupportedException();
    SetLoadParams();
    const WORD tag = Get<WORD>();
    CRuntimeClass* found = nullptr;
    UINT foundSchema = 0;
    if (tag == newClassTag) {
        found = ReadNewClass(foundSchema);
    } else {
        DWORD index = tag & ~DWORD{classBit};
        bool isClass = (tag & classBit) != 0;
        if (tag == longTag) {
            index = Get<DWORD>();
            isClass = (index & longClassBit) != 0;
            index &= ~longClassBit;
        }
        if (!isClass) {
            if (objectTag == nullptr)
                AfxThrowArchiveException(CArchiveException::badIndex, FileName());
            *objectTag = index;
            return nullptr;
        }
        if (index == 0 || index > m_pTables->loaded.size() ||
            m_pTables->loaded[index - 1].runtimeClass == nullptr)
            AfxThrowArchiveException(CArchiveException::badIndex, FileName());
        found = m_pTables->loaded[index - 1].runtimeClass;
        foundSchema = m_pTables->loaded[index - 1].schema;
    }
    if (requested != nullptr && !found->IsDerivedFrom(requested))
        AfxThrowArchiveException(CArchiveException::badClass, FileName());
    if (schema != nullptr)
        *schema = foundSchema;
    else
        m_nObjectSchema = foundSchema;
    return found;
}

CObject* CArchive::ReadObject(const CRuntimeClass* runtimeClass) {
    UINT schema = 0;
    DWORD objectTag = 0;
    const CRuntimeClass* const found = ReadClass(runtimeClass, &schema, &objectTag);
    if (found == nullptr) {
        if (objectTag == nullTag)
            return nullptr;
        if (objectTag > m_pTables->loaded.size() || m_pTables->loaded[objectTag - 1].runtimeClass != nullptr)
            AfxThrowArchiveException(CArchiveException::badIndex, FileName());
        CObject* const object = m_pTables->loaded[objectTag - 1].object;
        if (object != nullptr && runtimeClass != nullptr && !object->IsKindOf(runtimeClass))
            AfxThrowArchiveException(CArchiveException::badClass, FileName());
        return object;
    }
    std::unique_ptr<CObject> object(found->CreateObject());
    if (object == nullptr)
        AfxThrowMemoryException();
    // The content may contain pointers to the object, so the object gets its index first.
    MapObject(object.get());
    const std::size_t place = m_pTables->loaded.size() - 1;
    const UINT outerSchema = m_nObjectSchema;
    m_nObjectSchema = schema;
    try {
        object->Serialize(*this);
    } catch (...) {
        m_nObjectSchema = outerSchema;
        m_pTables->loaded[place].object = nullptr;
        throw;
    }
    m_nObjectSchema = outerSchema;
    return object.release();
}

void CArchive::SerializeClass(const CRuntimeClass* runtimeClass) {
    if (IsLoading())
        ReadClass(runtimeClass);
    else
        WriteClass(runtimeClass);
}

UINT CArchive::GetObjectSchema() {
    return std::exchange(m_nObjectSchema, static_cast<UINT>(-1));
}

void CArchive::SetObjectSchema(UINT schema) {
    m_nObjectSchema = schema;
}

void CArchive::SetLoadParams(UINT growBy) {
    if (m_pTables == nullptr)
        AfxWithMemory([&] {
            m_pTables = std::make_unique<Tables>();
            m_pTables->loaded.reserve(growBy);
        });
}

void CArchive::SetStoreParams(UINT hashSize, UINT) {
    if (m_pTables == nullptr)
        AfxWithMemory([&] {
            m_pTables = std::make_unique<Tables>();
            m_pTables->stored.reserve(IsStoring() ? hashSize : 0);
        });
}
