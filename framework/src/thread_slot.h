// What each thread has of its own.
#pragma once

#include "afxrt/config.h"

namespace afx_internal {

/// The slots of the framework, whatever is in them.
class ThreadSlots {
public:
    ThreadSlots(const ThreadSlots&) = delete;
    ThreadSlots& operator=(const ThreadSlots&) = delete;
    /// Ends the calling thread's objects. Those that are asked for again are made anew.
    static void ReleaseThread() {
        for (const ThreadSlots* slots = s_first; slots; slots = slots->m_next)
            slots->Release();
    }

protected:
    ThreadSlots() : m_next(s_first) { s_first = this; }
    ~ThreadSlots() = default;
    virtual void Release() const = 0;

private:
    static inline const ThreadSlots* s_first = nullptr;
    const ThreadSlots* m_next;
};

/// One object of a class for each thread, made when the thread first asks for it, which ends
/// with it. Not thread_local: when a thread ends, the compiler's runtime frees the memory of such
/// objects before it calls their destructors; and finding one costs as much as all else that is
/// done with a message. The one slot of a kind is static: it is there as long as the framework.
template <class Object>
class ThreadSlot final : public ThreadSlots {
public:
    ThreadSlot() : m_slot(::FlsAlloc([](void* object) { delete static_cast<Object*>(object); })) {}
    ~ThreadSlot() { ::FlsFree(m_slot); }

    Object& Get() const {
        auto* object = static_cast<Object*>(::FlsGetValue(m_slot));
        if (!object) {
            object = new Object();
            ::FlsSetValue(m_slot, object);
        }
        return *object;
    }

private:
    void Release() const override {
        delete static_cast<Object*>(::FlsGetValue(m_slot));
        ::FlsSetValue(m_slot, nullptr);
    }

    DWORD m_slot;
};

} // namespace afx_internal
