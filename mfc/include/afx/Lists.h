// SPDX-License-Identifier: MIT
// The lists with a fixed element type. They have the members of CList.
#pragma once

#include <afx/CList.h>

/// The list does not own the pointers' targets. Not serialisable: Serialize throws CNotSupportedException*.
class MFC_API CPtrList : public CList<void*, void*> {
    DECLARE_DYNAMIC(CPtrList)
public:
    explicit CPtrList(INT_PTR blockSize = 10);
    ~CPtrList() override;
    void Serialize(CArchive& ar) override;
};

/// The list does not own its objects. Serialize stores and loads the objects; the program that loads the list
/// deletes them.
class MFC_API CObList : public CList<CObject*, CObject*> {
    DECLARE_DYNCREATE(CObList)
public:
    explicit CObList(INT_PTR blockSize = 10);
    ~CObList() override;
};

class MFC_API CStringList : public CList<CString, const CString&> {
    DECLARE_DYNCREATE(CStringList)
public:
    explicit CStringList(INT_PTR blockSize = 10);
    ~CStringList() override;
};

MFC_API CArchive& operator>>(CArchive& ar, CObList*& list);
MFC_API CArchive& operator>>(CArchive& ar, CStringList*& list);
