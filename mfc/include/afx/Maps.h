// SPDX-License-Identifier: MIT
// The maps with fixed types. They have the members of CMap and the types that CTypedPtrMap needs.
#pragma once

#include <afx/CMap.h>

// The maps do not own the targets of pointers. Maps with void pointers as keys or values are not
// serialisable: Serialize throws CNotSupportedException*.

class MFC_API CMapWordToPtr : public CMap<WORD, WORD, void*, void*> {
    DECLARE_DYNAMIC(CMapWordToPtr)
public:
    typedef WORD BASE_KEY;
    typedef WORD BASE_ARG_KEY;
    typedef void* BASE_VALUE;
    typedef void* BASE_ARG_VALUE;
    explicit CMapWordToPtr(INT_PTR blockSize = 10);
    ~CMapWordToPtr() override;
    void Serialize(CArchive& ar) override;
};

class MFC_API CMapPtrToWord : public CMap<void*, void*, WORD, WORD> {
    DECLARE_DYNAMIC(CMapPtrToWord)
public:
    typedef void* BASE_KEY;
    typedef void* BASE_ARG_KEY;
    typedef WORD BASE_VALUE;
    typedef WORD BASE_ARG_VALUE;
    explicit CMapPtrToWord(INT_PTR blockSize = 10);
    ~CMapPtrToWord() override;
    void Serialize(CArchive& ar) override;
};

class MFC_API CMapPtrToPtr : public CMap<void*, void*, void*, void*> {
    DECLARE_DYNAMIC(CMapPtrToPtr)
public:
    typedef void* BASE_KEY;
    typedef void* BASE_ARG_KEY;
    typedef void* BASE_VALUE;
    typedef void* BASE_ARG_VALUE;
    explicit CMapPtrToPtr(INT_PTR blockSize = 10);
    ~CMapPtrToPtr() override;
    void Serialize(CArchive& ar) override;
};

class MFC_API CMapWordToOb : public CMap<WORD, WORD, CObject*, CObject*> {
    DECLARE_DYNCREATE(CMapWordToOb)
public:
    typedef WORD BASE_KEY;
    typedef WORD BASE_ARG_KEY;
    typedef CObject* BASE_VALUE;
    typedef CObject* BASE_ARG_VALUE;
    explicit CMapWordToOb(INT_PTR blockSize = 10);
    ~CMapWordToOb() override;
};

/// Common base of the maps with text keys.
template <class VALUE, class ARG_VALUE> class CAfxStringMap
    : public CMap<CString, LPCTSTR, VALUE, ARG_VALUE> {
public:
    typedef CString BASE_KEY;
    typedef LPCTSTR BASE_ARG_KEY;
    typedef VALUE BASE_VALUE;
    typedef ARG_VALUE BASE_ARG_VALUE;
    using CMap<CString, LPCTSTR, VALUE, ARG_VALUE>::CMap;

    /// Sets `stored` to the map's own copy of the key, which is valid while the key is in the map. FALSE if
    /// the map does not contain the key.
    BOOL LookupKey(LPCTSTR key, LPCTSTR& stored) const {
        const auto* const pair = this->PLookup(key);
        if (pair == nullptr)
            return FALSE;
        stored = pair->key;
        return TRUE;
    }
};

class MFC_API CMapStringToPtr : public CAfxStringMap<void*, void*> {
    DECLARE_DYNAMIC(CMapStringToPtr)
public:
    explicit CMapStringToPtr(INT_PTR blockSize = 10);
    ~CMapStringToPtr() override;
    void Serialize(CArchive& ar) override;
};

class MFC_API CMapStringToOb : public CAfxStringMap<CObject*, CObject*> {
    DECLARE_DYNCREATE(CMapStringToOb)
public:
    explicit CMapStringToOb(INT_PTR blockSize = 10);
    ~CMapStringToOb() override;
};

class MFC_API CMapStringToString : public CAfxStringMap<CString, LPCTSTR> {
    DECLARE_DYNCREATE(CMapStringToString)
public:
    explicit CMapStringToString(INT_PTR blockSize = 10);
    ~CMapStringToString() override;
};

MFC_API CArchive& operator>>(CArchive& ar, CMapWordToOb*& map);
MFC_API CArchive& operator>>(CArchive& ar, CMapStringToOb*& map);
MFC_API CArchive& operator>>(CArchive& ar, CMapStringToString*& map);
