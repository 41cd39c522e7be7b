#pragma once

#include <afxcoll.h>

#include <memory>

namespace kavlix {

constexpr int kListBlock = 10; ///< list nodes made at a time

/// Hands an object to a list; when memory runs out the object is deleted and the exception passes on.
template <class Object> void Append(CObList& list, std::unique_ptr<Object> object) {
    list.AddTail(object.get());
    object.release();
}

/// Deletes every object of a list that owns them, and empties it.
inline void DeleteAll(CObList& list) {
    while (!list.IsEmpty())
        delete list.RemoveHead();
}

/// Deletes the object at `index` and takes its node out; the rest stays. No such index changes nothing.
inline void DeleteAt(CObList& list, int index) {
    const POSITION position = index >= 0 ? list.FindIndex(index) : nullptr;
    if (position == nullptr)
        return;
    CObject* const object = list.GetAt(position);
    list.RemoveAt(position);
    delete object;
}

} // namespace kavlix
