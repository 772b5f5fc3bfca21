#pragma once

#include <stdexcept>

#include "platform/archive/ArchivePhrase.h"

namespace sargan {

/// A file that is not a readable archive. Carries where (byte offset from the start of the file), in which
/// slot of which record the reader stood when it knew, what was found and what was expected there.
class ArchiveError : public std::runtime_error {
public:
    ArchiveError(qint64 offset, ArchivePhrase expected, ArchivePhrase found, QString slot = {});

    qint64 offset() const { return _offset; }
    const QString& slot() const { return _slot; }
    /// "expected …, found …"
    QString problem() const;
    /// The same with the slot: "expected …, found … (Plongee 3, lieu)", in these words.
    QString detail(const ArchivePhrase::Translation& translation) const;
    /// The same in English with its place in front: "byte 211: expected …, found …".
    QString sentence() const;
    /// The same failure, told where in the records it happened.
    ArchiveError in(const QString& slot) const { return {_offset, _expected, _found, slot}; }

private:
    qint64 _offset;
    ArchivePhrase _expected;
    ArchivePhrase _found;
    QString _slot;
};

}  // namespace sargan
