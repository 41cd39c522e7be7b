// SPDX-License-Identifier: MIT
// HandleMap: from a system handle to the object that wraps it.
#pragma once

#include <memory>
#include <unordered_map>

/// Maps system handles to the objects that wrap them.
///
/// Permanent entries are objects that a program attached to a handle; the map never deletes these objects.
/// Temporary entries are wrappers that the map created because FromHandle() got a handle without a permanent
/// entry. DeleteTemporaries() deletes the wrappers and leaves their handles valid; the message loop calls the
/// function while no message waits and no message handler runs.
///
/// `Traits` supplies two static functions. Wrap(Handle) returns a std::unique_ptr<Object> that refers to the
/// handle and does not own it. Unwrap(Object&) clears the handle of a wrapper before the wrapper is deleted.
///
/// A map is not locked, so each thread has its own map, in thread-local storage.
template <class Object, class Handle, class Traits> class HandleMap {
public:
    HandleMap() = default;
    HandleMap(const HandleMap&) = delete;
    HandleMap& operator=(const HandleMap&) = delete;
    ~HandleMap() { DeleteTemporaries(); }

    /// The object attached to `handle`, or nullptr. The function never creates a wrapper.
    Object* Permanent(Handle handle) const {
        const auto found = m_permanent.find(handle);
        return found == m_permanent.end() ? nullptr : found->second;
    }

    /// The object attached to `handle`, else its temporary wrapper, which the function creates if necessary.
    /// nullptr for a null handle.
    Object* FromHandle(Handle handle) {
        if (handle == nullptr)
            return nullptr;
        if (Object* permanent = Permanent(handle))
            return permanent;
        std::unique_ptr<Object>& temporary = m_temporary[handle];
        if (!temporary)
            temporary = Traits::Wrap(handle);
        return temporary.get();
    }

    /// Sets the permanent entry of `handle`. An existing temporary wrapper stays valid, because a caller may
    /// hold a pointer to it.
    void SetPermanent(Handle handle, Object* object) { m_permanent[handle] = object; }

    /// Removes the permanent entry of `handle`, if any.
    void Remove(Handle handle) { m_permanent.erase(handle); }

    /// Deletes all temporary wrappers. The handles stay valid.
    void DeleteTemporaries() {
        auto wrappers = std::move(m_temporary);
        m_temporary.clear();
        for (auto& entry : wrappers)
            if (entry.second)
                Traits::Unwrap(*entry.second);
    }

    std::size_t PermanentCount() const { return m_permanent.size(); }
    std::size_t TemporaryCount() const { return m_temporary.size(); }

private:
    std::unordered_map<Handle, Object*> m_permanent;
    std::unordered_map<Handle, std::unique_ptr<Object>> m_temporary;
};
