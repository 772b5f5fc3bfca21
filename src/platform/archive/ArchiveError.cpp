#include "platform/archive/ArchiveError.h"

using namespace Qt::StringLiterals;

namespace sargan {

namespace {

ArchivePhrase problemOf(const ArchivePhrase& expected, const ArchivePhrase& found, const QString& slot) {
    const ArchivePhrase problem("expected %@, found %@"_words, {expected, found});
    return slot.isEmpty() ? problem : ArchivePhrase("%@ (%@)"_words, {problem, slot});
}

QString sentenceOf(qint64 offset, const ArchivePhrase& problem) {
    return u"byte %1: %2"_s.arg(QString::number(offset), problem.text());
}

}  // namespace

ArchiveError::ArchiveError(qint64 offset, ArchivePhrase expected, ArchivePhrase found, QString slot)
    : std::runtime_error(sentenceOf(offset, problemOf(expected, found, slot)).toStdString()),
      _offset(offset),
      _expected(std::move(expected)),
      _found(std::move(found)),
      _slot(std::move(slot)) {}

QString ArchiveError::problem() const {
    return problemOf(_expected, _found, {}).text();
}

QString ArchiveError::detail(const ArchivePhrase::Translation& translation) const {
    return problemOf(_expected, _found, _slot).text(translation);
}

QString ArchiveError::sentence() const {
    return sentenceOf(_offset, problemOf(_expected, _found, _slot));
}

}  // namespace sargan
