#include <QCoreApplication>
#include <cstdlib>

#include "bench/QuietDesk.h"
#include "platform/archive/ArchiveError.h"
#include "platform/document/DocumentError.h"
#include "platform/record/RecordJson.h"
#include "registers/Register.h"

// Any bytes as a document: they open or are refused with a sentence, never anything else. What opens is
// shown, saved and read again, and then is the same.

using namespace sargan;

namespace {

std::unique_ptr<Document> open(QuietDesk& bench, const QByteArray& bytes) {
    const DocumentKind& kind = bench.kinds.forContent(bytes, QStringLiteral("any.carnet"));
    auto document = kind.create(kind, bench.desk);
    document->readBytes(bytes, kind.currentTypeName(bench.desk));
    return document;
}

/// Every dive through the form: whatever a file holds can be shown and stored.
void walkThroughForm(Carnet& carnet) {
    for (qsizetype row = 0; row < std::min<qsizetype>(carnet.count(), 8); ++row) {
        carnet.select({row});
        carnet.updateDive();
    }
}

/// The same for every record of a register; its table and its cards can be shown as well.
void walkThroughRegister(Register& shown) {
    const int columns = int(shown.tableColumns().size());
    for (qsizetype row = 0; row < std::min<qsizetype>(shown.rowCount(), 8); ++row) {
        shown.selectRows({row});
        shown.updateRecord();
        for (int column = 0; column < columns; ++column) shown.tableCell(row, column);
        if (shown.hasCard()) shown.card(row);
    }
    for (const TableColumn& column : shown.tableColumns()) shown.clickTableColumn(column.identifier);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static QuietDesk bench;
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    std::unique_ptr<Document> document;
    try {
        document = open(bench, bytes);
    } catch (const ArchiveError& error) {
        if (error.sentence().isEmpty() || error.offset() < 0 || error.offset() > bytes.size()) std::abort();
        return 0;
    } catch (const DocumentError&) {
        return 0;
    }
    // From here on nothing may throw: what opened can be shown and saved.
    const QJsonObject shown = document->dump();
    const QString type = document->kind().currentTypeName(bench.desk);
    const QByteArray saved = document->dataRepresentationOfType(type);
    const auto again = open(bench, saved);
    if (again->summary().records != document->summary().records) std::abort();
    if (again->dataRepresentationOfType(type) != saved) std::abort();
    // Forms and cards cost far more than reading; which inputs see them depends on the input alone.
    if (qHash(bytes, 0) % 32 != 0) return 0;
    if (auto* carnet = qobject_cast<Carnet*>(document.get())) walkThroughForm(*carnet);
    if (auto* list = dynamic_cast<Register*>(document.get())) walkThroughRegister(*list);
    return 0;
}
