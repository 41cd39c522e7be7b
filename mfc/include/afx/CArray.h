// SPDX-License-Identifier: MIT
// CArray, an array that grows as needed.
#pragma once

#include <afx/Templates.h>

/// An array that grows as needed.
///
/// Growth: when its memory is full, the array allocates memory for at least `growBy` more elements (see
/// SetSize). If `growBy` is 0, the array chooses an eighth of its size, at least 4 and at most 1024. New
/// elements are zeroed and default-constructed. Growing moves the elements, so their addresses are valid only
/// until the size changes.
///
/// An index outside the array asserts in debug builds and throws CInvalidArgException* in other builds. If
/// memory runs out, members throw CMemoryException*. Copy(), RemoveAt() and Serialize() may then have changed
/// a part of the array; the other members leave the array unchanged.
template <class TYPE, class ARG_TYPE = const TYPE&> class CArray : public CObject {
public:
    CArray() = default;
    ~CArray() override {
        DestructElements<TYPE>(m_pData, m_nSize);
        AfxBlock<TYPE>::Free(m_pData);
    }

    INT_PTR GetSize() const { return m_nSize; }
    INT_PTR GetCount() const { return m_nSize; }
    BOOL IsEmpty() const { return m_nSize == 0; }
    /// The greatest valid index; -1 if the array is empty.
    INT_PTR GetUpperBound() const { return m_nSize - 1; }

    /// Appends new elements, or removes elements at the end and frees the memory that is no longer needed. A
    /// `growBy` of 1 or more sets the growth; 0 lets the array choose; -1 keeps the present setting.
    void SetSize(INT_PTR newSize, INT_PTR growBy = -1) {
        Require(newSize >= 0);
        const INT_PTR oldGrowBy = m_nGrowBy;
        if (growBy >= 0)
            m_nGrowBy = growBy;
        try {
            if (newSize > m_nSize)
                Extend(newSize);
            else
                Shrink(newSize);
        } catch (...) {
            m_nGrowBy = oldGrowBy;
            throw;
        }
    }
    /// Frees the memory that is reserved for further elements. The size stays.
    void FreeExtra() {
        if (m_nSize == m_nMaxSize)
            return;
        AfxBlock<TYPE> block(m_nSize);
        Elements::Make(block.Get(), m_pData, m_nSize);
        Adopt(block);
    }
    void RemoveAll() { SetSize(0); }

    TYPE& GetAt(INT_PTR index) { return ElementAt(index); }
    const TYPE& GetAt(INT_PTR index) const { return ElementAt(index); }
    void SetAt(INT_PTR index, ARG_TYPE newElement) { ElementAt(index) = newElement; }
    TYPE& ElementAt(INT_PTR index) {
        Require(index >= 0 && index < m_nSize);
        return m_pData[index];
    }
    const TYPE& ElementAt(INT_PTR index) const {
        Require(index >= 0 && index < m_nSize);
        return m_pData[index];
    }
    TYPE& operator[](INT_PTR index) { return ElementAt(index); }
    const TYPE& operator[](INT_PTR index) const { return ElementAt(index); }
    /// The elements in one block; null while the array has no memory, for example after RemoveAll().
    TYPE* GetData() { return m_pData; }
    const TYPE* GetData() const { return m_pData; }

    /// Sets an element. If `index` is beyond the end, first extends the array.
    void SetAtGrow(INT_PTR index, ARG_TYPE newElement) {
        Require(index >= 0);
        if (index < m_nSize)
            m_pData[index] = newElement;
        else
            InsertFilled(m_nSize, index - m_nSize + 1, newElement, 1);
    }
    /// Appends an element; returns its index.
    INT_PTR Add(ARG_TYPE newElement) {
        const INT_PTR index = m_nSize;
        if (index < m_nMaxSize) {
            ConstructElements<TYPE>(m_pData + index, 1);
            try {
                m_pData[index] = newElement;
            } catch (...) {
                DestructElements<TYPE>(m_pData + index, 1);
                throw;
            }
            m_nSize = index + 1;
        } else {
            InsertFilled(index, 1, newElement, 1);
        }
        return index;
    }
    /// Appends copies of the elements of `source`, which may be the array itself. Returns the index of the
    /// first copy.
    INT_PTR Append(const CArray& source) {
        const INT_PTR oldSize = m_nSize;
        const INT_PTR count = source.m_nSize;
        Require(count <= MaxSize - oldSize);
        SetSize(oldSize + count);
        try {
            CopyElements<TYPE>(m_pData + oldSize, source.m_pData, count);
        } catch (...) {
            Shrink(oldSize);
            throw;
        }
        return oldSize;
    }
    /// Makes this a copy of the other array.
    void Copy(const CArray& source) {
        if (this == &source)
            return;
        SetSize(source.m_nSize);
        CopyElements<TYPE>(m_pData, source.m_pData, m_nSize);
    }

    /// Inserts `count` copies before the element at `index`. If `index` is beyond the end, new default
    /// elements fill the positions between.
    void InsertAt(INT_PTR index, ARG_TYPE newElement, INT_PTR count = 1) {
        Require(index >= 0 && count > 0 && count <= MaxSize - index);
        if (index >= m_nSize)
            InsertFilled(m_nSize, index - m_nSize + count, newElement, count);
        else
            InsertFilled(index, count, newElement, count);
    }
    /// Inserts copies of another array's elements before the element at `start`.
    void InsertAt(INT_PTR start, const CArray* source) {
        Require(source != nullptr && source != this && start >= 0 && source->m_nSize <= MaxSize - start);
        const INT_PTR count = source->m_nSize;
        if (count == 0)
            return;
        const INT_PTR first = start < m_nSize ? start : m_nSize;
        const INT_PTR gap = start - first;
        InsertWith(first, gap + count,
                   [&](TYPE* target) { CopyElements<TYPE>(target + gap, source->m_pData, count); });
    }
    /// Removes `count` elements. The memory stays reserved.
    void RemoveAt(INT_PTR index, INT_PTR count = 1) {
        Require(index >= 0 && count >= 0 && index <= m_nSize && count <= m_nSize - index);
        if (count == 0)
            return;
        DestructElements<TYPE>(m_pData + index, count);
        const INT_PTR behind = m_nSize - index - count;
        m_nSize = index;
        struct Guard {
            INT_PTR& size;
            INT_PTR arrived = 0;
            ~Guard() { size += arrived; }
        } guard{m_nSize};
        Elements::MoveDown(m_pData + index, m_pData + index + count, behind, guard.arrived);
    }

    /// Stores or loads the number of elements and then the elements (SerializeElements).
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar.WriteCount(static_cast<DWORD_PTR>(m_nSize));
        } else {
            const DWORD_PTR count = ar.ReadCount();
            if (count > static_cast<DWORD_PTR>(MaxSize))
                AfxThrowMemoryException();
            SetSize(static_cast<INT_PTR>(count));
        }
        SerializeElements<TYPE>(ar, m_pData, m_nSize);
    }
    void AssertValid() const override {
        CObject::AssertValid();
        ASSERT(m_nSize >= 0 && m_nSize <= m_nMaxSize && (m_pData != nullptr) == (m_nMaxSize > 0));
    }
    void Dump(CDumpContext& dc) const override {
        CObject::Dump(dc);
        dc << "with " << static_cast<LONGLONG>(m_nSize) << " elements";
        if (dc.GetDepth() > 0)
            DumpElements<TYPE>(dc, m_pData, m_nSize);
        dc << "\n";
    }

private:
    using Elements = AfxElements<TYPE>;
    static constexpr INT_PTR MaxSize = PTRDIFF_MAX / sizeof(TYPE);

    static void Require(bool condition) {
        ASSERT(condition);
        if (!condition)
            AfxThrowInvalidArgException();
    }

    /// The capacity to allocate for `newSize` elements when the present capacity is too small.
    INT_PTR Grown(INT_PTR newSize) const {
        INT_PTR growBy = m_nGrowBy;
        if (growBy == 0) {
            growBy = m_nSize / 8;
            growBy = growBy < 4 ? 4 : growBy > 1024 ? 1024 : growBy;
        }
        if (growBy > MaxSize - m_nMaxSize || m_nMaxSize + growBy < newSize)
            return newSize;
        return m_nMaxSize + growBy;
    }

    /// Replaces the array's block with `block`, whose elements are already constructed.
    void Adopt(AfxBlock<TYPE>& block) {
        Elements::End(m_pData, m_nSize);
        AfxBlock<TYPE>::Free(m_pData);
        m_nMaxSize = block.Capacity();
        m_pData = block.Release();
    }

    void Extend(INT_PTR newSize) {
        if (newSize > m_nMaxSize) {
            InsertWith(
                m_nSize, newSize - m_nSize, [](TYPE*) {});
        } else {
            ConstructElements<TYPE>(m_pData + m_nSize, newSize - m_nSize);
            m_nSize = newSize;
        }
    }

    void Shrink(INT_PTR newSize) {
        DestructElements<TYPE>(m_pData + newSize, m_nSize - newSize);
        m_nSize = newSize;
        // Shrinking may need a new block. If its allocation fails, the array keeps the old block and does
        // not fail.
        if (newSize == 0) {
            AfxBlock<TYPE>::Free(m_pData);
            m_pData = nullptr;
            m_nMaxSize = 0;
        } else {
            try {
                FreeExtra();
            } catch (CException* exception) {
                exception->Delete();
            } catch (...) {
            }
        }
    }

    /// Inserts `count` new elements before `index` and assigns the value to the last `filled` of them. The
    /// value may be an element of this array.
    void InsertFilled(INT_PTR index, INT_PTR count, ARG_TYPE newElement, INT_PTR filled) {
        if (NeedsNewBlock(index, count) || index == m_nSize) {
            InsertWith(
                index, count, [&](TYPE* target) { Fill(target, count, newElement, filled); });
        } else {
            AfxBlock<TYPE> copy(1);
            ConstructElements<TYPE>(copy.Get(), 1);
            struct Guard {
                TYPE* element;
                ~Guard() { DestructElements<TYPE>(element, 1); }
            } guard{copy.Get()};
            *copy.Get() = newElement;
            InsertWith(index, count, [&](TYPE* target) { Fill(target, count, *copy.Get(), filled); });
        }
    }
    template <class VALUE> static void Fill(TYPE* target, INT_PTR count, VALUE&& value, INT_PTR filled) {
        for (INT_PTR i = count - filled; i < count; ++i)
            target[i] = value;
    }

    bool NeedsNewBlock(INT_PTR index, INT_PTR count) const {
        return count > m_nMaxSize - m_nSize || (!Elements::CannotFail && index < m_nSize);
    }

    /// Inserts `count` elements before `index`: constructs the elements and calls `fill` to set them. If a
    /// step throws, the old elements are still, or again, in their old places.
    template <class FILL> void InsertWith(INT_PTR index, INT_PTR count, FILL fill) {
        if (count > MaxSize - m_nSize)
            AfxThrowMemoryException();
        const INT_PTR newSize = m_nSize + count;
        const INT_PTR behind = m_nSize - index;
        if (NeedsNewBlock(index, count)) {
            AfxBlock<TYPE> block(newSize > m_nMaxSize ? Grown(newSize) : m_nMaxSize);
            TYPE* const target = block.Get();
            ConstructAndFill(target + index, count, fill);
            INT_PTR made = 0;
            try {
                Elements::Make(target, m_pData, index);
                made = index;
                Elements::Make(target + index + count, m_pData + index, behind);
            } catch (...) {
                Elements::End(target, made);
                DestructElements<TYPE>(target + index, count);
                throw;
            }
            Adopt(block);
        } else {
            Elements::MoveUp(m_pData + index + count, m_pData + index, behind);
            try {
                ConstructAndFill(m_pData + index, count, fill);
            } catch (...) {
                INT_PTR arrived = 0;
                Elements::MoveDown(m_pData + index, m_pData + index + count, behind, arrived);
                throw;
            }
        }
        m_nSize = newSize;
    }
    template <class FILL> static void ConstructAndFill(TYPE* target, INT_PTR count, FILL& fill) {
        ConstructElements<TYPE>(target, count);
        try {
            fill(target);
        } catch (...) {
            DestructElements<TYPE>(target, count);
            throw;
        }
    }
    TYPE* m_pData = nullptr;
    INT_PTR m_nSize = 0;
    INT_PTR m_nMaxSize = 0;
    INT_PTR m_nGrowBy = 0;
};
