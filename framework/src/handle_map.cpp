#include <afxrt/handle_map.h>

#include <atomic>
#include <windows.h>

namespace afx_internal {
namespace {

using Maps = std::vector<std::unique_ptr<TemporaryObjects>>;

// Where each thread keeps its maps, which end with it. Not thread_local: when a thread ends, the
// compiler's runtime frees the memory of such objects before it calls their destructors.
class Slot {
public:
    Slot() : m_slot(::FlsAlloc([](void* maps) { delete static_cast<Maps*>(maps); })) {}
    ~Slot() { ::FlsFree(m_slot); }
    Slot(const Slot&) = delete;
    Slot& operator=(const Slot&) = delete;

    Maps& Get() const {
        auto* maps = static_cast<Maps*>(::FlsGetValue(m_slot));
        if (!maps) {
            maps = new Maps;
            ::FlsSetValue(m_slot, maps);
        }
        return *maps;
    }

private:
    DWORD m_slot;
};

} // namespace

std::vector<std::unique_ptr<TemporaryObjects>>& MapsOfThread() {
    static const Slot slot;
    return slot.Get();
}

std::size_t ReserveMap() {
    static std::atomic<std::size_t> next;
    return next++;
}

void DeleteTemporaryObjects() {
    for (const auto& map : MapsOfThread())
        if (map)
            map->DeleteTemporaries(0);
}

TemporaryScope::TemporaryScope() {
    for (const auto& map : MapsOfThread())
        m_kept.push_back(map ? map->CountTemporaries() : 0);
}

TemporaryScope::~TemporaryScope() {
    const auto& maps = MapsOfThread();
    for (std::size_t i = 0; i < maps.size(); ++i)
        if (maps[i])
            maps[i]->DeleteTemporaries(i < m_kept.size() ? m_kept[i] : 0);
}

} // namespace afx_internal
