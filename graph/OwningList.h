// SPDX-License-Identifier: MIT
// CObList as a list that owns its objects.
#pragma once

#include <afxcoll.h>

#include <memory>

namespace kavlix {

constexpr int kListBlock = 10; ///< list nodes that a CObList allocates at a time

/// Hands an object to a list. When memory runs out, the object is deleted and the exception passes on.
template <class Object> void Append(CObList& list, std::unique_ptr<Object> object) {
    list.AddTail(object.get());
    object.release();
}

/// Deletes every object of a list, and empties the list.
inline void DeleteAll(CObList& list) {
    while (!list.IsEmpty())
        delete list.RemoveHead();
}

/// Removes and deletes the object at `index`, from 0. An index without an object changes nothing.
inline void DeleteAt(CObList& list, int index) {
    const POSITION position = index >= 0 ? list.FindIndex(index) : nullptr;
    if (position == nullptr)
        return;
    CObject* const object = list.GetAt(position);
    list.RemoveAt(position);
    delete object;
}

} // namespace kavlix
