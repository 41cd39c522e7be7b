#pragma once

#include <memory>
#include <unordered_map>

/// Maps a system handle to the object that wraps it, in two halves.
///
/// Permanent entries belong to objects that a program made and attached; the map never deletes those. Temporary
/// entries are wrappers the map made itself because somebody asked for a handle that no object owned; they live until
/// DeleteTemporaries(), which the message loop calls when it is idle, and they let go of their handle
/// without destroying it.
///
/// `Traits` supplies
///   static std::unique_ptr<Object> Wrap(Handle)   a wrapper that refers to the handle and does not own it
///   static void Unwrap(Object&)                    makes the wrapper forget its handle before it is deleted
///
/// A map is used by one thread only: keep it in thread-local storage.
template <class Object, class Handle, class Traits> class HandleMap {
public:
    HandleMap() = default;
    HandleMap(const HandleMap&) = delete;
    HandleMap& operator=(const HandleMap&) = delete;
    ~HandleMap() { DeleteTemporaries(); }

    /// The object attached to `handle`, or nullptr. Never makes one.
    Object* Permanent(Handle handle) const {
        const auto found = m_permanent.find(handle);
        return found == m_permanent.end() ? nullptr : found->second;
    }

    /// The attached object, else the temporary wrapper, made if there is none yet; nullptr for a null handle.
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

    /// Enters `object` as the owner of `handle`. A temporary wrapper that somebody still holds stays valid.
    void SetPermanent(Handle handle, Object* object) { m_permanent[handle] = object; }

    /// Forgets the permanent entry of `handle`, if any.
    void Remove(Handle handle) { m_permanent.erase(handle); }

    /// Deletes every temporary wrapper; the handles themselves are left alone.
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
