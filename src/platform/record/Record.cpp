#include "platform/record/Record.h"

#include <algorithm>

#include "platform/archive/ArchiveWriter.h"

namespace sargan {

namespace {

QByteArray archiveOf(const ArchivedObject& object) {
    ArchiveWriter writer;
    writer.beginRootArray(1);
    writer.writeObject(object);
    writer.endRootArray();
    return writer.take();
}

}  // namespace

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

bool sameContent(const ArchivedObject& a, const ArchivedObject& b) {
    if (a.isNil() || b.isNil()) return a.isNil() == b.isNil();
    return a == b || archiveOf(a) == archiveOf(b);
}

bool sameContent(const NumberArray& a, const NumberArray& b) {
    if (a == b) return true;
    if (a.isAbsent() != b.isAbsent() || a.size() != b.size()) return false;
    for (qsizetype i = 0; i < a.size(); ++i) {
        if (a.kindAt(i) != b.kindAt(i)) return false;
        const bool same = a.kindAt(i) == NumberKind::Kept ? sameContent(a.keptAt(i), b.keptAt(i))
                                                          : a.bitsAt(i) == b.bitsAt(i);
        if (!same) return false;
    }
    return true;
}

}  // namespace sargan
