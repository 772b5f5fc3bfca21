#include "platform/document/DocumentError.h"

#include "platform/archive/ArchiveError.h"

namespace sargan {

namespace {

FileMessage messageOf(const ArchiveError& error) {
    const QString detail = error.detail([](const char* english) { return QString::fromUtf8(english); });
    return fileMessage(documentproblem::damaged.key, documentproblem::damaged.format,
                       {QString::number(error.offset()), detail});
}

}  // namespace

DocumentError::DocumentError(const ArchiveError& error, const QString& path)
    : DocumentError(messageOf(error), path) {
    _damage = std::make_shared<ArchiveError>(error);
}

DocumentError documentError(const documentproblem::Wording& wording, const QStringList& arguments,
                            const QString& path) {
    return DocumentError(fileMessage(wording.key, wording.format, arguments), path);
}

}  // namespace sargan
