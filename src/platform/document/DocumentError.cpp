#include "platform/document/DocumentError.h"

#include "platform/archive/ArchiveError.h"

namespace sargan {

namespace {

FileMessage messageOf(const ArchiveError& error) {
    const QString where = error.slot().isEmpty() ? QString() : QStringLiteral(" (%1)").arg(error.slot());
    return fileMessage(documentproblem::damaged.key, documentproblem::damaged.format,
                       {QString::number(error.offset()), error.problem() + where});
}

}  // namespace

DocumentError::DocumentError(const ArchiveError& error, const QString& path)
    : DocumentError(messageOf(error), path) {}

DocumentError documentError(const documentproblem::Wording& wording, const QStringList& arguments,
                            const QString& path) {
    return DocumentError(fileMessage(wording.key, wording.format, arguments), path);
}

}  // namespace sargan
