// SPDX-License-Identifier: MIT
// LabelStore: the tick labels of a graph control.
#pragma once

#include <afxcoll.h>

#include <kavlix/ChunkedArray.h>

#include <cstddef>
#include <utility>

namespace kavlix {

/// Texts in order of arrival, with most members of CStringArray. GetData and Serialize are missing, because
/// they need the texts in one block of memory. Adding never moves stored texts. Removing from the head takes
/// time in proportion to the number of texts removed.
///
/// An index outside the array throws CInvalidArgException*. A failed allocation throws CMemoryException* and
/// leaves the array unchanged.
class LabelStore {
public:
    /// @{
    /// Number of texts.
    INT_PTR GetSize() const { return static_cast<INT_PTR>(m_texts.Size()); }
    INT_PTR GetCount() const { return GetSize(); }
    /// @}
    BOOL IsEmpty() const { return m_texts.IsEmpty(); } ///< whether there is no text
    /// The greatest valid index, -1 if there is none.
    INT_PTR GetUpperBound() const { return GetSize() - 1; }

    /// @{
    /// The text at `index`.
    const CString& GetAt(INT_PTR index) const { return m_texts[Checked(index, GetSize() - 1)]; }
    CString& ElementAt(INT_PTR index) { return m_texts[Checked(index, GetSize() - 1)]; }
    const CString& ElementAt(INT_PTR index) const { return GetAt(index); }
    CString& operator[](INT_PTR index) { return ElementAt(index); }
    const CString& operator[](INT_PTR index) const { return GetAt(index); }
    void SetAt(INT_PTR index, const CString& text) { ElementAt(index) = text; }
    /// @}
    /// Sets the text at `index`. A shorter array grows first, with empty texts before `index`.
    void SetAtGrow(INT_PTR index, const CString& text) {
        if (Checked(index) < m_texts.Size())
            SetAt(index, text);
        else
            InsertAt(index, text);
    }

    /// Appends empty texts or removes texts at the end until there are `size` texts. The second parameter
    /// exists for code written for CStringArray and has no effect.
    void SetSize(INT_PTR size, INT_PTR /*growBy*/ = -1) {
        const std::size_t count = Checked(size);
        if (count < m_texts.Size())
            m_texts.RemoveTail(m_texts.Size() - count);
        else
            AddOrNone(count - m_texts.Size(), [](std::size_t) { return CString(); });
    }
    /// Does nothing: the array reserves no memory beyond its last chunk.
    void FreeExtra() {}
    /// Removes all texts and frees their memory.
    void RemoveAll() { m_texts.Clear(); }

    /// Appends a text; returns its index.
    INT_PTR Add(CString text) {
        m_texts.Add(std::move(text));
        return GetSize() - 1;
    }
    /// Appends copies of all texts of `source`, a LabelStore or CStringArray; returns the index of the first.
    template <class Texts> INT_PTR Append(const Texts& source) {
        const INT_PTR first = GetSize();
        const INT_PTR count = source.GetSize(); // read once: `source` may be this array, which grows below
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
    /// Inserts `count` copies of `text` before the text at `index`. With an `index` behind the end, empty
    /// texts fill the gap.
    void InsertAt(INT_PTR index, const CString& text, INT_PTR count = 1) {
        const std::size_t at = Checked(index);
        const std::size_t copies = Checked(count);
        const CString copy(text); // `text` may be an element of this array, and elements move below
        const std::size_t before = m_texts.Size();
        const std::size_t gap = at > before ? at - before : 0;
        AddOrNone(gap + copies, [&](std::size_t i) { return i < gap ? CString() : copy; });
        // The copies now stand at the end. From the last old text back to the text at `at`, swap each text
        // with the copy that stands `copies` places later.
        for (std::size_t i = before; i-- > at;)
            std::swap(m_texts[i], m_texts[i + copies]);
    }
    /// Removes `count` texts, beginning with the text at `index`.
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
    /// `value` as an unsigned number; throws CInvalidArgException* unless 0 <= `value` <= `greatest`.
    static std::size_t Checked(INT_PTR value, INT_PTR greatest = INTPTR_MAX) {
        if (value < 0 || value > greatest)
            AfxThrowInvalidArgException();
        return static_cast<std::size_t>(value);
    }
    /// Appends the texts `textOf(0)` to `textOf(count - 1)`. Appends none of them and passes the exception on
    /// when an allocation fails.
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
