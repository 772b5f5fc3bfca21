#include "platform/archive/ArchiveError.h"

using namespace Qt::StringLiterals;

namespace sargan {

namespace {

QString composeSentence(qint64 offset, const QString& problem, const QString& slot) {
    const QString sentence = u"byte %1: %2"_s.arg(QString::number(offset), problem);
    return slot.isEmpty() ? sentence : u"%1 (%2)"_s.arg(sentence, slot);
}

}  // namespace

ArchiveError::ArchiveError(qint64 offset, QString problem, QString slot)
    : std::runtime_error(composeSentence(offset, problem, slot).toStdString()),
      _offset(offset),
      _problem(std::move(problem)),
      _slot(std::move(slot)) {}

QString ArchiveError::sentence() const {
    return composeSentence(_offset, _problem, _slot);
}

}  // namespace sargan
