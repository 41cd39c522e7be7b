// SPDX-License-Identifier: MIT
// Helpers of the collection templates: positions, element functions, raw memory.
#pragma once

#include <climits>
#include <cstdint>
#include <cstring>
#include <functional>
#include <memory>
#include <new>
#include <stdexcept>
#include <type_traits>
#include <utility>

#include <afx/Archive.h>
#include <afx/Exception.h>
#include <afx/Object.h>
#include <afx/String.h>

/// Position of an element in a list or map; null is no element. A position is valid until its element
/// is removed.
struct AfxPosition;
typedef AfxPosition* POSITION;

/// Position before the first element, for CMap::GetNextAssoc.
#define BEFORE_START_POSITION (reinterpret_cast<POSITION>(static_cast<INT_PTR>(-1)))

// Operations of collections on their elements. A program may specialise these functions for its own types.

/// Zeroes raw memory and constructs `count` elements in it. Plain types are 0, other types
/// are default-constructed.
template <class TYPE> void AFXAPI ConstructElements(TYPE* elements, INT_PTR count) {
    if (count <= 0)
        return;
    std::memset(static_cast<void*>(elements), 0, static_cast<std::size_t>(count) * sizeof(TYPE));
    if constexpr (!std::is_trivially_default_constructible_v<TYPE>)
        std::uninitialized_default_construct_n(elements, static_cast<std::size_t>(count));
}

/// Destroys `count` elements. The memory is not freed.
template <class TYPE> void AFXAPI DestructElements(TYPE* elements, INT_PTR count) {
    if (count > 0)
        std::destroy_n(elements, static_cast<std::size_t>(count));
}

/// Assigns the elements one by one. CArray uses the function in Append, Copy and the InsertAt that takes
/// an array.
template <class TYPE> void AFXAPI CopyElements(TYPE* target, const TYPE* source, INT_PTR count) {
    for (INT_PTR i = 0; i < count; ++i)
        target[i] = source[i];
}

/// TRUE if both elements are equal, for Find and for map keys.
template <class TYPE, class ARG_TYPE> BOOL AFXAPI CompareElements(const TYPE* left, const ARG_TYPE* right) {
    return *left == *right;
}

/// Stores or loads elements as their bytes. A type that is not trivially copyable needs a specialisation;
/// without a specialisation, the function throws CNotSupportedException*.
template <class TYPE> void AFXAPI SerializeElements(CArchive& ar, TYPE* elements, INT_PTR count) {
    if constexpr (std::is_trivially_copyable_v<TYPE>) {
        constexpr std::size_t most = INT_MAX / sizeof(TYPE);
        while (count > 0) {
            const std::size_t now =
                static_cast<std::size_t>(count) < most ? static_cast<std::size_t>(count) : most;
            const UINT bytes = static_cast<UINT>(now * sizeof(TYPE));
            if (ar.IsStoring())
                ar.Write(elements, bytes);
            else if (ar.Read(elements, bytes) != bytes)
                AfxThrowArchiveException(CArchiveException::endOfFile);
            elements += now;
            count -= static_cast<INT_PTR>(now);
        }
    } else if (count > 0) {
        AfxThrowNotSupportedException();
    }
}
template <> inline void AFXAPI SerializeElements<CString>(CArchive& ar, CString* elements, INT_PTR count) {
    for (INT_PTR i = 0; i < count; ++i)
        if (ar.IsStoring())
            ar << elements[i];
        else
            ar >> elements[i];
}

template <> inline void AFXAPI SerializeElements<CObject*>(CArchive& ar, CObject** elements, INT_PTR count) {
    for (INT_PTR i = 0; i < count; ++i)
        if (ar.IsStoring())
            ar << elements[i];
        else
            ar >> elements[i];
}

/// Writes the bytes of the elements. Arrays and lists call the function in Dump() if
/// CDumpContext::GetDepth() is greater than 0.
template <class TYPE> void AFXAPI DumpElements(CDumpContext& dc, const TYPE* elements, INT_PTR count) {
    dc.HexDump(_T(" "), reinterpret_cast<const BYTE*>(elements),
               count < INT_MAX / static_cast<INT_PTR>(sizeof(TYPE)) ? static_cast<int>(count * sizeof(TYPE))
                                                                    : 0,
               16);
}

/// Hash of a text's characters.
MFC_API UINT AfxHashText(LPCSTR text);
MFC_API UINT AfxHashText(LPCWSTR text);

/// Hash of a map key. Texts use their characters; numbers, enumerations and pointers use their value.
template <class ARG_KEY> UINT AFXAPI HashKey(ARG_KEY key) {
    using Key = std::remove_cv_t<std::remove_reference_t<ARG_KEY>>;
    if constexpr (std::is_convertible_v<const Key&, LPCSTR>) {
        return AfxHashText(static_cast<LPCSTR>(key));
    } else if constexpr (std::is_convertible_v<const Key&, LPCWSTR>) {
        return AfxHashText(static_cast<LPCWSTR>(key));
    } else {
        const std::uint64_t bits = std::hash<Key>{}(key);
        return static_cast<UINT>(bits >> 4) ^ static_cast<UINT>(bits >> 36) ^ static_cast<UINT>(bits << 28);
    }
}

/// Runs `work`, and throws CMemoryException* instead of std::bad_alloc and std::length_error.
template <class Work> decltype(auto) AfxWithMemory(Work&& work) {
    try {
        return work();
    } catch (const std::bad_alloc&) {
        AfxThrowMemoryException();
    } catch (const std::length_error&) {
        AfxThrowMemoryException();
    }
}

/// Raw memory for `capacity` elements of a CArray. The destructor frees the memory unless Release() was
/// called.
template <class TYPE> class AfxBlock {
public:
    /// Throws CMemoryException* if memory runs out, or if the size exceeds PTRDIFF_MAX bytes.
    explicit AfxBlock(INT_PTR capacity) : m_capacity(capacity) {
        static_assert(alignof(TYPE) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__,
                      "operator new does not align that strictly");
        if (capacity < 0 || static_cast<std::size_t>(capacity) > PTRDIFF_MAX / sizeof(TYPE))
            AfxThrowMemoryException();
        if (capacity > 0)
            m_elements = AfxWithMemory([capacity] {
                return static_cast<TYPE*>(::operator new(static_cast<std::size_t>(capacity) * sizeof(TYPE)));
            });
    }
    ~AfxBlock() { Free(m_elements); }
    AfxBlock(const AfxBlock&) = delete;
    AfxBlock& operator=(const AfxBlock&) = delete;

    TYPE* Get() const { return m_elements; }
    INT_PTR Capacity() const { return m_capacity; }
    TYPE* Release() { return std::exchange(m_elements, nullptr); }
    static void Free(TYPE* elements) { ::operator delete(static_cast<void*>(elements)); }

private:
    TYPE* m_elements = nullptr;
    INT_PTR m_capacity;
};

/// Moves of elements from one place in memory to another.
template <class TYPE> struct AfxElements {
    static constexpr bool IsBitwise = std::is_trivially_copyable_v<TYPE>;
    static constexpr bool IsMovable = std::is_move_constructible_v<TYPE>;
    static constexpr bool CannotFail = IsBitwise || std::is_nothrow_move_constructible_v<TYPE>;

    /// Constructs `count` elements in raw memory from `source`. Elements are moved if moving cannot throw or
    /// TYPE cannot be copied, else copied. After an exception the target is raw memory again. The sources are
    /// then unchanged, unless TYPE cannot be copied.
    static void Make(TYPE* target, TYPE* source, INT_PTR count) {
        if (count <= 0)
            return;
        if constexpr (IsBitwise) {
            std::memcpy(static_cast<void*>(target), static_cast<const void*>(source),
                        static_cast<std::size_t>(count) * sizeof(TYPE));
        } else {
            INT_PTR made = 0;
            try {
                for (; made < count; ++made)
                    MakeOne(target + made, source + made);
            } catch (...) {
                End(target, made);
                throw;
            }
        }
    }

    /// Destroys `count` elements, for example the sources of a move.
    static void End(TYPE* elements, INT_PTR count) {
        if (!IsBitwise && count > 0)
            std::destroy_n(elements, static_cast<std::size_t>(count));
    }

    /// Moves `count` elements to raw memory at a lower address of the same block. `arrived` receives the
    /// number of moved elements. After an exception, the elements that were not moved are destroyed.
    static void MoveDown(TYPE* target, TYPE* source, INT_PTR count, INT_PTR& arrived) {
        arrived = 0;
        if constexpr (IsBitwise) {
            if (count > 0)
                std::memmove(static_cast<void*>(target), static_cast<const void*>(source),
                             static_cast<std::size_t>(count) * sizeof(TYPE));
            arrived = count;
        } else {
            try {
                for (; arrived < count; ++arrived) {
                    MakeOne(target + arrived, source + arrived);
                    End(source + arrived, 1);
                }
            } catch (...) {
                End(source + arrived, count - arrived);
                throw;
            }
        }
    }

    /// Moves `count` elements to a higher address. Moving must not throw.
    static void MoveUp(TYPE* target, TYPE* source, INT_PTR count) {
        if constexpr (IsBitwise) {
            if (count > 0)
                std::memmove(static_cast<void*>(target), static_cast<const void*>(source),
                             static_cast<std::size_t>(count) * sizeof(TYPE));
        } else {
            for (INT_PTR i = count; i-- > 0;) {
                MakeOne(target + i, source + i);
                End(source + i, 1);
            }
        }
    }

private:
    static void MakeOne(TYPE* target, TYPE* source) {
        if constexpr (IsMovable) {
            ::new (static_cast<void*>(target)) TYPE(std::move_if_noexcept(*source));
        } else {
            // Classes derived from CObject often have an assignment operator but no copy constructor.
            ::new (static_cast<void*>(target)) TYPE;
            try {
                *target = *source;
            } catch (...) {
                std::destroy_at(target);
                throw;
            }
        }
    }
};
