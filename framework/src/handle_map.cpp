#include <afxrt/handle_map.h>

namespace afx_internal {
namespace {

// The maps are thread-local themselves and register on construction, so this list is made
// before the first of them and outlives them all.
std::vector<TemporaryObjects*>& MapsOfThread() {
    thread_local std::vector<TemporaryObjects*> maps;
    return maps;
}

} // namespace

TemporaryObjects::TemporaryObjects() {
    MapsOfThread().push_back(this);
}

TemporaryObjects::~TemporaryObjects() {
    std::erase(MapsOfThread(), this);
}

void DeleteTemporaryObjects() {
    for (TemporaryObjects* map : MapsOfThread())
        map->DeleteTemporaries(0);
}

TemporaryScope::TemporaryScope() {
    for (const TemporaryObjects* map : MapsOfThread())
        m_kept.push_back(map->CountTemporaries());
}

TemporaryScope::~TemporaryScope() {
    const std::vector<TemporaryObjects*>& maps = MapsOfThread();
    for (std::size_t i = 0; i < maps.size(); ++i)
        maps[i]->DeleteTemporaries(i < m_kept.size() ? m_kept[i] : 0);
}

} // namespace afx_internal
