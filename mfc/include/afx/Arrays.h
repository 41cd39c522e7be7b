// SPDX-License-Identifier: MIT
// The arrays with a fixed element type. They have the members of CArray.
#pragma once

#include <afx/CArray.h>

/// An array of bytes. Serialize stores the bytes unchanged.
class MFC_API CByteArray : public CArray<BYTE, BYTE> {
    DECLARE_DYNCREATE(CByteArray)
public:
    CByteArray();
    ~CByteArray() override;
};

class MFC_API CWordArray : public CArray<WORD, WORD> {
    DECLARE_DYNCREATE(CWordArray)
public:
    CWordArray();
    ~CWordArray() override;
};

class MFC_API CDWordArray : public CArray<DWORD, DWORD> {
    DECLARE_DYNCREATE(CDWordArray)
public:
    CDWordArray();
    ~CDWordArray() override;
};

/// Not serialisable: Serialize throws CNotSupportedException*.
class MFC_API CUIntArray : public CArray<UINT, UINT> {
    DECLARE_DYNAMIC(CUIntArray)
public:
    CUIntArray();
    ~CUIntArray() override;
    void Serialize(CArchive& ar) override;
};

/// The array does not own the pointers' targets. Not serialisable: Serialize throws CNotSupportedException*.
class MFC_API CPtrArray : public CArray<void*, void*> {
    DECLARE_DYNAMIC(CPtrArray)
public:
    CPtrArray();
    ~CPtrArray() override;
    void Serialize(CArchive& ar) override;
};

/// The array does not own its objects. Serialize stores and loads the objects; the program that loads the
/// array deletes them.
class MFC_API CObArray : public CArray<CObject*, CObject*> {
    DECLARE_DYNCREATE(CObArray)
public:
    CObArray();
    ~CObArray() override;
};

class MFC_API CStringArray : public CArray<CString, const CString&> {
    DECLARE_DYNCREATE(CStringArray)
public:
    CStringArray();
    ~CStringArray() override;
};

MFC_API CArchive& operator>>(CArchive& ar, CByteArray*& array);
MFC_API CArchive& operator>>(CArchive& ar, CWordArray*& array);
MFC_API CArchive& operator>>(CArchive& ar, CDWordArray*& array);
MFC_API CArchive& operator>>(CArchive& ar, CObArray*& array);
MFC_API CArchive& operator>>(CArchive& ar, CStringArray*& array);
