// SPDX-License-Identifier: MIT
// Typed views of pointer collections.
#pragma once

#include <afx/Arrays.h>
#include <afx/Lists.h>
#include <afx/Maps.h>

/// Returns a reference to a stored CObject* or void* as a pointer of another type. The compiler may assume
/// that objects of different pointer types do not overlap; the asm statement keeps the compiler from
/// reordering their reads and writes.
template <class TYPE, class POINTER> TYPE& AfxTypedPointer(POINTER& pointer) {
#if defined(__GNUC__)
    __asm__ volatile("" ::: "memory");
#endif
    return reinterpret_cast<TYPE&>(pointer);
}

/// A view of CObArray or CPtrArray whose elements have the pointer type TYPE. The other members are those
/// of BASE_CLASS.
template <class BASE_CLASS, class TYPE> class CTypedPtrArray : public BASE_CLASS {
public:
    TYPE GetAt(INT_PTR index) const { return static_cast<TYPE>(BASE_CLASS::GetAt(index)); }
    TYPE& ElementAt(INT_PTR index) { return AfxTypedPointer<TYPE>(BASE_CLASS::ElementAt(index)); }
    TYPE operator[](INT_PTR index) const { return GetAt(index); }
    TYPE& operator[](INT_PTR index) { return ElementAt(index); }
    void SetAt(INT_PTR index, TYPE pointer) { BASE_CLASS::SetAt(index, pointer); }
    void SetAtGrow(INT_PTR index, TYPE pointer) { BASE_CLASS::SetAtGrow(index, pointer); }
    INT_PTR Add(TYPE pointer) { return BASE_CLASS::Add(pointer); }
    INT_PTR Append(const CTypedPtrArray& source) { return BASE_CLASS::Append(source); }
    void Copy(const CTypedPtrArray& source) { BASE_CLASS::Copy(source); }
    void InsertAt(INT_PTR index, TYPE pointer, INT_PTR count = 1) {
        BASE_CLASS::InsertAt(index, pointer, count);
    }
    void InsertAt(INT_PTR start, CTypedPtrArray* source) { BASE_CLASS::InsertAt(start, source); }
};

/// A view of CObList or CPtrList whose elements have the pointer type TYPE.
template <class BASE_CLASS, class TYPE> class CTypedPtrList : public BASE_CLASS {
public:
    explicit CTypedPtrList(INT_PTR blockSize = 10) : BASE_CLASS(blockSize) {}

    TYPE& GetHead() { return AfxTypedPointer<TYPE>(BASE_CLASS::GetHead()); }
    TYPE GetHead() const { return static_cast<TYPE>(BASE_CLASS::GetHead()); }
    TYPE& GetTail() { return AfxTypedPointer<TYPE>(BASE_CLASS::GetTail()); }
    TYPE GetTail() const { return static_cast<TYPE>(BASE_CLASS::GetTail()); }
    TYPE RemoveHead() { return static_cast<TYPE>(BASE_CLASS::RemoveHead()); }
    TYPE RemoveTail() { return static_cast<TYPE>(BASE_CLASS::RemoveTail()); }
    POSITION AddHead(TYPE pointer) { return BASE_CLASS::AddHead(pointer); }
    POSITION AddTail(TYPE pointer) { return BASE_CLASS::AddTail(pointer); }
    void AddHead(CTypedPtrList* list) { BASE_CLASS::AddHead(list); }
    void AddTail(CTypedPtrList* list) { BASE_CLASS::AddTail(list); }
    TYPE& GetNext(POSITION& position) { return AfxTypedPointer<TYPE>(BASE_CLASS::GetNext(position)); }
    TYPE GetNext(POSITION& position) const { return static_cast<TYPE>(BASE_CLASS::GetNext(position)); }
    TYPE& GetPrev(POSITION& position) { return AfxTypedPointer<TYPE>(BASE_CLASS::GetPrev(position)); }
    TYPE GetPrev(POSITION& position) const { return static_cast<TYPE>(BASE_CLASS::GetPrev(position)); }
    TYPE& GetAt(POSITION position) { return AfxTypedPointer<TYPE>(BASE_CLASS::GetAt(position)); }
    TYPE GetAt(POSITION position) const { return static_cast<TYPE>(BASE_CLASS::GetAt(position)); }
    void SetAt(POSITION position, TYPE pointer) { BASE_CLASS::SetAt(position, pointer); }
    POSITION InsertBefore(POSITION position, TYPE pointer) {
        return BASE_CLASS::InsertBefore(position, pointer);
    }
    POSITION InsertAfter(POSITION position, TYPE pointer) {
        return BASE_CLASS::InsertAfter(position, pointer);
    }
};

/// A view of a map with keys of type KEY and values of the pointer type VALUE.
template <class BASE_CLASS, class KEY, class VALUE> class CTypedPtrMap : public BASE_CLASS {
public:
    explicit CTypedPtrMap(INT_PTR blockSize = 10) : BASE_CLASS(blockSize) {}

    BOOL Lookup(typename BASE_CLASS::BASE_ARG_KEY key, VALUE& value) const {
        typename BASE_CLASS::BASE_VALUE found{};
        if (!BASE_CLASS::Lookup(key, found))
            return FALSE;
        value = FromBase<VALUE>(found);
        return TRUE;
    }
    VALUE& operator[](typename BASE_CLASS::BASE_ARG_KEY key) {
        return AfxTypedPointer<VALUE>(BASE_CLASS::operator[](key));
    }
    void SetAt(KEY key, VALUE value) { BASE_CLASS::SetAt(key, value); }
    BOOL RemoveKey(KEY key) { return BASE_CLASS::RemoveKey(key); }
    void GetNextAssoc(POSITION& position, KEY& key, VALUE& value) const {
        typename BASE_CLASS::BASE_KEY foundKey{};
        typename BASE_CLASS::BASE_VALUE foundValue{};
        BASE_CLASS::GetNextAssoc(position, foundKey, foundValue);
        key = FromBase<KEY>(foundKey);
        value = FromBase<VALUE>(foundValue);
    }

private:
    template <class TARGET, class SOURCE> static TARGET FromBase(const SOURCE& source) {
        return static_cast<TARGET>(source);
    }
};
