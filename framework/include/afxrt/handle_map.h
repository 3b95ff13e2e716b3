// Maps from Windows handles to the objects that stand for them, one map per class and thread.
// A permanent object has attached itself to its handle; a temporary one is made on demand for
// a handle that has no object, owns nothing, and lives until the thread is idle.
#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

namespace afx_internal {

/// How a map handles its class of objects. Specialised beside each mapped class with
///   static void SetHandle(Object&, Handle)               sets the handle members, without
///   ownership static std::unique_ptr<Object> MakeTemporary(Handle)  a new object, its handle not
///   yet set
template <class Object>
struct HandleTraits;

/// The usual traits: the handle is one public member, temporary objects are default-constructed.
template <class Object, auto Member>
struct HandleMember {
    template <class Handle>
    static void SetHandle(Object& object, Handle handle) {
        object.*Member = handle;
    }
    template <class Handle>
    static std::unique_ptr<Object> MakeTemporary(Handle) {
        return std::make_unique<Object>();
    }
};

/// What all maps of a thread have in common: their temporary objects go together.
class TemporaryObjects {
public:
    TemporaryObjects(const TemporaryObjects&) = delete;
    TemporaryObjects& operator=(const TemporaryObjects&) = delete;
    virtual void DeleteTemporaries() = 0;

protected:
    TemporaryObjects();
    virtual ~TemporaryObjects();
};

/// Deletes the temporary objects of all maps of the calling thread; their handles live on.
void DeleteTemporaryObjects();

template <class Object, class Handle>
class HandleMap final : public TemporaryObjects {
public:
    ~HandleMap() override { DeleteTemporaries(); }

    /// The object of the handle: the permanent one, else a temporary one. Null for a null handle.
    Object* FromHandle(Handle handle) {
        if (!handle)
            return nullptr;
        if (Object* permanent = LookupPermanent(handle))
            return permanent;
        Object*& temporary = m_temporary[handle];
        if (!temporary) {
            m_owned.push_back(HandleTraits<Object>::MakeTemporary(handle));
            temporary = m_owned.back().get();
        }
        // Set each time: the holder of a temporary object may have detached it.
        HandleTraits<Object>::SetHandle(*temporary, handle);
        return temporary;
    }

    /// The object attached to the handle, or null.
    Object* LookupPermanent(Handle handle) const {
        const auto found = m_permanent.find(handle);
        return found == m_permanent.end() ? nullptr : found->second;
    }

    void SetPermanent(Handle handle, Object* object) { m_permanent[handle] = object; }

    /// Forgets the handle, on detaching or when it is destroyed. A temporary object loses its
    /// handle but stays until the thread is idle: its holder may be in one of its functions.
    void Remove(Handle handle) {
        m_permanent.erase(handle);
        const auto found = m_temporary.find(handle);
        if (found == m_temporary.end())
            return;
        HandleTraits<Object>::SetHandle(*found->second, Handle{});
        m_temporary.erase(found);
    }

    void DeleteTemporaries() override {
        m_temporary.clear();
        for (const auto& object : m_owned) // the handle belongs to somebody else
            HandleTraits<Object>::SetHandle(*object, Handle{});
        m_owned.clear();
    }

private:
    std::unordered_map<Handle, Object*> m_permanent;
    std::unordered_map<Handle, Object*> m_temporary;
    std::vector<std::unique_ptr<Object>> m_owned;
};

} // namespace afx_internal
