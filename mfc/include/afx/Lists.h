#pragma once

#include <afx/CList.h>

// The lists that need no template argument. They have the members of CList.

/// The pointers' targets are not owned. Not serialisable: Serialize throws CNotSupportedException*.
class MFC_API CPtrList : public CList<void*, void*> {
    DECLARE_DYNAMIC(CPtrList)
public:
    explicit CPtrList(INT_PTR blockSize = 10);
    ~CPtrList() override;
    void Serialize(CArchive& ar) override;
};

/// The objects are not owned. Serialize stores and loads them; loaded ones are owned by whoever loads.
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
