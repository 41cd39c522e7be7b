#pragma once

#include <afxcoll.h>

#include <cstddef>
#include <utility>

#include <kavlix/ChunkedArray.h>

namespace kavlix {

/// Texts in order of arrival, with the members of CStringArray but GetData and Serialize: they do not lie one
/// behind the other. Adding never moves what is stored, and removing from the head costs what is removed.
///
/// An index outside the array throws CInvalidArgException*. When memory runs out CMemoryException* is thrown
/// and the array is as before.
class LabelStore {
public:
    INT_PTR GetSize() const { return static_cast<INT_PTR>(m_texts.Size()); }
    INT_PTR GetCount() const { return GetSize(); }
    BOOL IsEmpty() const { return m_texts.IsEmpty(); }
    /// The greatest valid index, -1 if there is none.
    INT_PTR GetUpperBound() const { return GetSize() - 1; }

    const CString& GetAt(INT_PTR index) const { return m_texts[Checked(index, GetSize() - 1)]; }
    CString& ElementAt(INT_PTR index) { return m_texts[Checked(index, GetSize() - 1)]; }
    const CString& ElementAt(INT_PTR index) const { return GetAt(index); }
    CString& operator[](INT_PTR index) { return ElementAt(index); }
    const CString& operator[](INT_PTR index) const { return GetAt(index); }
    void SetAt(INT_PTR index, const CString& text) { ElementAt(index) = text; }
    /// Sets a text; the array is extended up to it if it is not there yet.
    void SetAtGrow(INT_PTR index, const CString& text) {
        if (Checked(index) < m_texts.Size())
            SetAt(index, text);
        else
            InsertAt(index, text);
    }

    /// Appends empty texts or removes those at the end. How the array grows is its own affair.
    void SetSize(INT_PTR size, INT_PTR /*growBy*/ = -1) {
        const std::size_t count = Checked(size);
        if (count < m_texts.Size())
            m_texts.RemoveTail(m_texts.Size() - count);
        else
            AddOrNone(count - m_texts.Size(), [](std::size_t) { return CString(); });
    }
    void FreeExtra() {} // there is none
    /// Removes all texts and gives their memory back.
    void RemoveAll() { m_texts.Clear(); }

    /// Appends a text; returns its index.
    INT_PTR Add(CString text) {
        m_texts.Add(std::move(text));
        return GetSize() - 1;
    }
    /// Appends copies of all texts of `source`, a LabelStore or CStringArray; returns the index of the first.
    template <class Texts> INT_PTR Append(const Texts& source) {
        const INT_PTR first = GetSize();
        const INT_PTR count = source.GetSize(); // of itself only those there were
        AddOrNone(static_cast<std::size_t>(count),
                  [&](std::size_t i) { return CString(source.GetAt(static_cast<INT_PTR>(i))); });
        return first;
    }
    /// Makes this a copy of `source`, a LabelStore or CStringArray.
    template <class Texts> void Copy(const Texts& source) {
        if (static_cast<const void*>(this) == static_cast<const void*>(&source))
            return;
        LabelStore copy;
        copy.Append(source);
        m_texts.Swap(copy.m_texts);
    }
    /// Inserts `count` copies before the text at `index`. Behind the end, empty texts fill the gap.
    void InsertAt(INT_PTR index, const CString& text, INT_PTR count = 1) {
        const std::size_t at = Checked(index);
        const std::size_t copies = Checked(count);
        const CString copy(text); // it may be one of those that move
        const std::size_t before = m_texts.Size();
        const std::size_t gap = at > before ? at - before : 0;
        AddOrNone(gap + copies, [&](std::size_t i) { return i < gap ? CString() : copy; });
        // Each text behind the place changes places with the copy that stands where the text belongs.
        for (std::size_t i = before; i-- > at;)
            std::swap(m_texts[i], m_texts[i + copies]);
    }
    /// Removes `count` texts from `index` on.
    void RemoveAt(INT_PTR index, INT_PTR count = 1) {
        Checked(index, GetSize());
        Checked(count, GetSize() - index);
        const std::size_t at = static_cast<std::size_t>(index);
        const std::size_t removed = static_cast<std::size_t>(count);
        if (at == 0) {
            m_texts.RemoveHead(removed);
            return;
        }
        for (std::size_t i = at; i + removed < m_texts.Size(); ++i)
            m_texts[i] = std::move(m_texts[i + removed]);
        m_texts.RemoveTail(removed);
    }

private:
    static std::size_t Checked(INT_PTR value, INT_PTR greatest = INTPTR_MAX) {
        if (value < 0 || value > greatest)
            AfxThrowInvalidArgException();
        return static_cast<std::size_t>(value);
    }
    /// Appends `textOf(0)` up to `textOf(count - 1)`, or nothing when memory runs out.
    template <class TextOf> void AddOrNone(std::size_t count, TextOf textOf) {
        const std::size_t before = m_texts.Size();
        try {
            for (std::size_t i = 0; i < count; ++i)
                m_texts.Add(textOf(i));
        } catch (...) {
            m_texts.RemoveTail(m_texts.Size() - before);
            throw;
        }
    }

    ChunkedArray<CString, 256> m_texts;
};

} // namespace kavlix
