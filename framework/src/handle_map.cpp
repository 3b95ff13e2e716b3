#include <afxrt/handle_map.h>

#include "thread_slot.h"

#include <atomic>

namespace afx_internal {
std::vector<std::unique_ptr<TemporaryObjects>>& MapsOfThread() {
    static const ThreadSlot<std::vector<std::unique_ptr<TemporaryObjects>>> slot;
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
