#include "platform/document/DocumentKind.h"

#include <QFileInfo>

#include "platform/archive/ArchiveReader.h"
#include "platform/desk/Desk.h"
#include "platform/document/DocumentError.h"
#include "platform/document/RecordDocument.h"

namespace sargan {

QString DocumentKind::currentTypeName(const Desk& desk) const {
    return isLocalised ? desk.strings.text({"Main", typeName}) : QString::fromUtf8(typeName);
}

const DocumentKind* DocumentKinds::named(const QString& typeName, const Desk& desk) const {
    for (const DocumentKind& kind : _kinds)
        if (typeName == QLatin1String(kind.typeName) || typeName == kind.currentTypeName(desk)) return &kind;
    return nullptr;
}

const DocumentKind* DocumentKinds::forRecordClass(const QString& recordClass) const {
    for (const DocumentKind& kind : _kinds)
        if (recordClass == QLatin1String(kind.recordClass)) return &kind;
    return nullptr;
}

const DocumentKind& DocumentKinds::forExtension(const QString& path) const {
    const QString extension = QFileInfo(path).suffix().toLower();
    for (const DocumentKind& kind : _kinds)
        if (extension == QLatin1String(kind.extension)) return kind;
    return standard();
}

const DocumentKind& DocumentKinds::forContent(const QByteArray& bytes, const QString& path) const {
    const ArchiveHead head = readArchiveHead(bytes);
    if (head.count == 0) return forExtension(path);
    if (const DocumentKind* kind = forRecordClass(head.recordClass)) return *kind;
    throw documentError(documentproblem::foreignRecords, {head.recordClass});
}

Selection cleanSelection(Selection rows, qsizetype count) {
    rows.removeIf([count](qsizetype row) { return row < 0 || row >= count; });
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

}  // namespace sargan
