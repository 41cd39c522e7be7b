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

/// A place in a list or map; null is no place. Valid until the element there is removed.
struct AfxPosition;
typedef AfxPosition* POSITION;

/// CMap::GetNextAssoc accepts it as the place of the first element.
#define BEFORE_START_POSITION (reinterpret_cast<POSITION>(static_cast<INT_PTR>(-1)))

// What collections do with their elements. A program may specialise each of these functions for its own
// types.

/// Makes `count` new elements in raw memory, which is zeroed first: plain types are 0, others
/// default-constructed.
template <class TYPE> void AFXAPI ConstructElements(TYPE* elements, INT_PTR count) {
    if (count <= 0)
        return;
    std::memset(static_cast<void*>(elements), 0, static_cast<std::size_t>(count) * sizeof(TYPE));
    if constexpr (!std::is_trivially_default_constructible_v<TYPE>)
        std::uninitialized_default_construct_n(elements, static_cast<std::size_t>(count));
}

/// Ends `count` elements; their memory is not freed.
template <class TYPE> void AFXAPI DestructElements(TYPE* elements, INT_PTR count) {
    if (count > 0)
        std::destroy_n(elements, static_cast<std::size_t>(count));
}

/// Assigns elements one by one, as Append and Copy do.
template <class TYPE> void AFXAPI CopyElements(TYPE* target, const TYPE* source, INT_PTR count) {
    for (INT_PTR i = 0; i < count; ++i)
        target[i] = source[i];
}

/// TRUE if both are equal; used by Find and for map keys.
template <class TYPE, class ARG_TYPE> BOOL AFXAPI CompareElements(const TYPE* left, const ARG_TYPE* right) {
    return *left == *right;
}

/// Stores or loads elements as their bytes. Types for which that has no meaning need a specialisation;
/// without one this throws CNotSupportedException*.
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

/// Writes what the elements are made of; see CDumpContext::SetDepth.
template <class TYPE> void AFXAPI DumpElements(CDumpContext& dc, const TYPE* elements, INT_PTR count) {
    dc.HexDump(" ", reinterpret_cast<const BYTE*>(elements),
               count < INT_MAX / static_cast<INT_PTR>(sizeof(TYPE)) ? static_cast<int>(count * sizeof(TYPE))
                                                                    : 0,
               16);
}

/// Hash of a text's characters.
MFC_API UINT AfxHashText(LPCTSTR text);
MFC_API UINT AfxHashText(LPCWSTR text);

/// Hash of a map key: texts by their characters, whole numbers, enumerations and pointers by their value.
template <class ARG_KEY> UINT AFXAPI HashKey(ARG_KEY key) {
    using Key = std::remove_cv_t<std::remove_reference_t<ARG_KEY>>;
    if constexpr (std::is_convertible_v<const Key&, LPCTSTR>) {
        return AfxHashText(static_cast<LPCTSTR>(key));
    } else if constexpr (std::is_convertible_v<const Key&, LPCWSTR>) {
        return AfxHashText(static_cast<LPCWSTR>(key));
    } else {
        const std::uint64_t bits = std::hash<Key>{}(key);
        return static_cast<UINT>(bits >> 4) ^ static_cast<UINT>(bits >> 36) ^ static_cast<UINT>(bits << 28);
    }
}

/// Runs `work` and turns the C++ library's out-of-memory exceptions into CMemoryException*.
template <class Work> decltype(auto) AfxWithMemory(Work&& work) {
    try {
        return work();
    } catch (const std::bad_alloc&) {
        AfxThrowMemoryException();
    } catch (const std::length_error&) {
        AfxThrowMemoryException();
    }
}

/// Raw memory for `capacity` elements, freed unless it is released: what the collections are built on.
template <class TYPE> class AfxBlock {
public:
    /// Throws CMemoryException* if there is no memory or the size has no representation.
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

/// How elements get from one place in memory to another.
template <class TYPE> struct AfxElements {
    static constexpr bool IsBitwise = std::is_trivially_copyable_v<TYPE>;
    static constexpr bool IsMovable = std::is_move_constructible_v<TYPE>;
    static constexpr bool CannotFail = IsBitwise || std::is_nothrow_move_constructible_v<TYPE>;

    /// Makes `count` elements in raw memory from others, by moving if that cannot fail. After a failure the
    /// target is raw again, and the sources are as before unless they can only be moved.
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

    /// Ends elements whose content lives on elsewhere.
    static void End(TYPE* elements, INT_PTR count) {
        if (!IsBitwise && count > 0)
            std::destroy_n(elements, static_cast<std::size_t>(count));
    }

    /// Moves `count` elements to raw memory at a lower address of the same block; `arrived` tells how many
    /// got there. After a failure the others no longer exist.
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

    /// The same towards a higher address. For elements whose moving cannot fail.
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
            // Classes derived from CObject often have an assignment operator only.
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
