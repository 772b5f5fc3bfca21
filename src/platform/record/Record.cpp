#include "platform/record/Record.h"

#include <algorithm>

namespace sargan {

ArchivedObject Record::kept(int field) const {
    if (_kept)
        for (const auto& [index, object] : *_kept)
            if (index == field) return object;
    return {};
}

void Record::dropKept(int field) {
    if (kept(field).isNil()) return;
    Kept others = *_kept;
    std::erase_if(others, [field](const auto& entry) { return entry.first == field; });
    _kept = others.empty() ? nullptr : std::make_shared<const Kept>(std::move(others));
}

void Record::keep(int field, ArchivedObject object) {
    dropKept(field);
    Kept all = _kept ? *_kept : Kept{};
    all.emplace_back(field, std::move(object));
    _kept = std::make_shared<const Kept>(std::move(all));
}

bool operator==(const Record& a, const Record& b) {
    if (!a.hasKept() || !b.hasKept()) return a.hasKept() == b.hasKept();
    return a._kept == b._kept || *a._kept == *b._kept;
}

}  // namespace sargan
