// Maps from Windows handles to the objects that stand for them, one map per class and thread.
// A permanent object has attached itself to its handle; a temporary one is made on demand for
// a handle that has no object, owns nothing, and lives until the thread is idle.
#pragma once

#include <cstddef>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace afx_internal {

/// Whether the pointer is null: also right for `this`, which a compiler takes to be never null
/// (the GetSafe... functions may be called on null pointers).
inline bool IsNull(const void* pointer) {
    const void* const volatile opaque = pointer;
    return !opaque;
}

/// How a map handles its class of objects. Specialised beside each mapped class with
///
///   static void SetHandle(Object&, Handle);
///       sets the handle members, without ownership
///   static std::unique_ptr<Object> MakeTemporary(Handle);
///       a new object, its handle not yet set
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
    TemporaryObjects() = default;
    virtual ~TemporaryObjects() = default;
    TemporaryObjects(const TemporaryObjects&) = delete;
    TemporaryObjects& operator=(const TemporaryObjects&) = delete;
    virtual std::size_t CountTemporaries() const = 0;
    /// Deletes all but the first `kept` temporary objects; their handles live on.
    virtual void DeleteTemporaries(std::size_t kept) = 0;
};

/// The maps of the calling thread, each at its own index; null where the thread has not used it.
std::vector<std::unique_ptr<TemporaryObjects>>& MapsOfThread();

/// An index for the maps of one more class.
std::size_t ReserveMap();

/// Deletes the temporary objects of all maps of the calling thread; their handles live on.
void DeleteTemporaryObjects();

/// Deletes, at its end, the temporary objects that the thread has made since its beginning:
/// nobody who may still hold one was running before.
class TemporaryScope {
public:
    TemporaryScope();
    ~TemporaryScope();
    TemporaryScope(const TemporaryScope&) = delete;
    TemporaryScope& operator=(const TemporaryScope&) = delete;

private:
    std::vector<std::size_t> m_kept; // of each map of the thread
};

template <class Object, class Handle>
class HandleMap final : public TemporaryObjects {
public:
    ~HandleMap() override { DeleteTemporaries(0); }

    /// The object of the handle: the permanent one, else a temporary one. Null for a null handle.
    Object* FromHandle(Handle handle) {
        if (!handle)
            return nullptr;
        if (Object* permanent = LookupPermanent(handle))
            return permanent;
        Object*& temporary = m_temporary[handle];
        if (!temporary) {
            m_owned.emplace_back(handle, HandleTraits<Object>::MakeTemporary(handle));
            temporary = m_owned.back().second.get();
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

    std::size_t CountTemporaries() const override { return m_owned.size(); }

    void DeleteTemporaries(std::size_t kept) override {
        while (m_owned.size() > kept) {
            const auto& [handle, object] = m_owned.back();
            const auto found = m_temporary.find(handle);
            if (found != m_temporary.end() && found->second == object.get())
                m_temporary.erase(found);
            // The handle belongs to somebody else.
            HandleTraits<Object>::SetHandle(*object, Handle{});
            m_owned.pop_back();
        }
    }

private:
    std::unordered_map<Handle, Object*> m_permanent;
    std::unordered_map<Handle, Object*> m_temporary;
    std::vector<std::pair<Handle, std::unique_ptr<Object>>> m_owned; // in the order of making
};

/// The calling thread's map of a class of objects.
template <class Object, class Handle>
HandleMap<Object, Handle>& MapOfThread() {
    static const std::size_t index = ReserveMap();
    auto& maps = MapsOfThread();
    if (maps.size() <= index)
        maps.resize(index + 1);
    if (!maps[index])
        maps[index] = std::make_unique<HandleMap<Object, Handle>>();
    return static_cast<HandleMap<Object, Handle>&>(*maps[index]);
}

} // namespace afx_internal
