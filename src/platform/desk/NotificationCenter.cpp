#include "platform/desk/NotificationCenter.h"

namespace sargan {

NotificationCenter::Observation NotificationCenter::observe(const QString& name, Receptor receptor) {
    std::erase_if(_entries, [](const auto& entry) { return entry->alive.expired(); });
    auto token = std::make_shared<int>(0);
    _entries.push_back(std::make_shared<Entry>(Entry{name, std::move(receptor), token}));
    Observation observation;
    observation._alive = token;
    return observation;
}

void NotificationCenter::post(const QString& name, const void* sender) {
    if (onPost) onPost(name);
    // A receptor may open or close documents, and so add or end observations, while we walk the list.
    const auto entries = _entries;
    for (const auto& entry : entries)
        if (entry->name == name && !entry->alive.expired()) entry->receptor(sender);
}

}  // namespace sargan
