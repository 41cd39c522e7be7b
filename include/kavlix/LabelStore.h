#pragma once

#include <afxcoll.h>

#include <cstddef>
#include <new>

#include <kavlix/Pieces.h>

namespace kavlix {

/// Texts in order of arrival, with the members of CStringArray but GetData and Serialize: they do not lie one
/// behind the other. Adding never moves what is stored, and removing from the head costs what is removed.
///
/// An index outside the array throws CInvalidArgException*. When memory runs out CMemoryException* is thrown.
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
            AddCopies(CString(), count - m_texts.Size());
    }
    void FreeExtra() {} // there is none
    /// Removes all texts and gives their memory back.
    void RemoveAll() { m_texts.Clear(); }

    /// Appends a text; returns its index.
    INT_PTR Add(const CString& text) {
        OrThrow([&] { m_texts.Add(text); });
        return GetSize() - 1;
    }
    /// Appends copies of all texts of `source`, a LabelStore or CStringArray; returns the index of the first.
    template <class Texts> INT_PTR Append(const Texts& source) {
        const INT_PTR first = GetSize();
        const INT_PTR count = source.GetSize(); // of itself only those there were
        for (INT_PTR i = 0; i < count; ++i)
            Add(CString(source.GetAt(i)));
        return first;
    }
    /// Makes this a copy of `source`, a LabelStore or CStringArray.
    template <class Texts> void Copy(const Texts& source) {
        if (static_cast<const void*>(this) == static_cast<const void*>(&source))
            return;
        m_texts.Clear();
        Append(source);
    }
    /// Inserts `count` copies before the text at `index`. Behind the end, empty texts fill the gap.
    void InsertAt(INT_PTR index, const CString& text, INT_PTR count = 1) {
        const std::size_t at = Checked(index);
        const std::size_t copies = Checked(count);
        const CString copy(text); // it may be one of those that move
        if (at > m_texts.Size())
            SetSize(index);
        AddCopies(copy, copies);
        for (std::size_t i = m_texts.Size(); i-- > at + copies;)
            m_texts[i] = m_texts[i - copies];
        for (std::size_t i = at; i < at + copies; ++i)
            m_texts[i] = copy;
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
            m_texts[i] = m_texts[i + removed];
        m_texts.RemoveTail(removed);
    }

private:
    static std::size_t Checked(INT_PTR value, INT_PTR greatest = INTPTR_MAX) {
        if (value < 0 || value > greatest)
            AfxThrowInvalidArgException();
        return static_cast<std::size_t>(value);
    }
    /// Appends `count` copies, or none when memory runs out.
    void AddCopies(const CString& text, std::size_t count) {
        const std::size_t before = m_texts.Size();
        try {
            while (m_texts.Size() < before + count)
                m_texts.Add(text);
        } catch (const std::bad_alloc&) {
            m_texts.RemoveTail(m_texts.Size() - before);
            AfxThrowMemoryException();
        }
    }
    template <class Action> static void OrThrow(Action action) {
        try {
            action();
        } catch (const std::bad_alloc&) {
            AfxThrowMemoryException();
        }
    }

    Pieces<CString, 256> m_texts;
};

} // namespace kavlix
