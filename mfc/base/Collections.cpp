// SPDX-License-Identifier: MIT
// The ready-made collections: class information, and collections that cannot be serialised.

#include <afxcoll.h>

IMPLEMENT_SERIAL(CByteArray, CObject, 0)
IMPLEMENT_SERIAL(CWordArray, CObject, 0)
IMPLEMENT_SERIAL(CDWordArray, CObject, 0)
IMPLEMENT_SERIAL(CObArray, CObject, 0)
IMPLEMENT_SERIAL(CStringArray, CObject, 0)
IMPLEMENT_DYNAMIC(CUIntArray, CObject)
IMPLEMENT_DYNAMIC(CPtrArray, CObject)
IMPLEMENT_SERIAL(CObList, CObject, 0)
IMPLEMENT_SERIAL(CStringList, CObject, 0)
IMPLEMENT_DYNAMIC(CPtrList, CObject)
IMPLEMENT_SERIAL(CMapWordToOb, CObject, 0)
IMPLEMENT_SERIAL(CMapStringToOb, CObject, 0)
IMPLEMENT_SERIAL(CMapStringToString, CObject, 0)
IMPLEMENT_DYNAMIC(CMapWordToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToWord, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapStringToPtr, CObject)

CByteArray::CByteArray() = default;
CByteArray::~CByteArray() = default;
CWordArray::CWordArray() = default;
CWordArray::~CWordArray() = default;
CDWordArray::CDWordArray() = default;
CDWordArray::~CDWordArray() = default;
CUIntArray::CUIntArray() = default;
CUIntArray::~CUIntArray() = default;
CPtrArray::CPtrArray() = default;
CPtrArray::~CPtrArray() = default;
CObArray::CObArray() = default;
CObArray::~CObArray() = default;
CStringArray::CStringArray() = default;
CStringArray::~CStringArray() = default;

CPtrList::CPtrList(INT_PTR blockSize) : CList(blockSize) {
}
CPtrList::~CPtrList() = default;
CObList::CObList(INT_PTR blockSize) : CList(blockSize) {
}
CObList::~CObList() = default;
CStringList::CStringList(INT_PTR blockSize) : CList(blockSize) {
}
CStringList::~CStringList() = default;
CMapWordToPtr::CMapWordToPtr(INT_PTR blockSize) : CMap(blockSize) {
}
CMapWordToPtr::~CMapWordToPtr() = default;
CMapPtrToWord::CMapPtrToWord(INT_PTR blockSize) : CMap(blockSize) {
}
CMapPtrToWord::~CMapPtrToWord() = default;
CMapPtrToPtr::CMapPtrToPtr(INT_PTR blockSize) : CMap(blockSize) {
}
CMapPtrToPtr::~CMapPtrToPtr() = default;
CMapWordToOb::CMapWordToOb(INT_PTR blockSize) : CMap(blockSize) {
}
CMapWordToOb::~CMapWordToOb() = default;
CMapStringToPtr::CMapStringToPtr(INT_PTR blockSize) : CAfxStringMap(blockSize) {
}
CMapStringToPtr::~CMapStringToPtr() = default;
CMapStringToOb::CMapStringToOb(INT_PTR blockSize) : CAfxStringMap(blockSize) {
}
CMapStringToOb::~CMapStringToOb() = default;
CMapStringToString::CMapStringToString(INT_PTR blockSize) : CAfxStringMap(blockSize) {
}
CMapStringToString::~CMapStringToString() = default;

void CUIntArray::Serialize(CArchive&) {
    AfxThrowNotSupportedException();
}
void CPtrArray::Serialize(CArchive&) {
    AfxThrowNotSupportedException();
}
void CPtrList::Serialize(CArchive&) {
    AfxThrowNotSupportedException();
}
void CMapWordToPtr::Serialize(CArchive&) {
    AfxThrowNotSupportedException();
}
void CMapPtrToWord::Serialize(CArchive&) {
    AfxThrowNotSupportedException();
}
void CMapPtrToPtr::Serialize(CArchive&) {
    AfxThrowNotSupportedException();
}
void CMapStringToPtr::Serialize(CArchive&) {
    AfxThrowNotSupportedException();
}
