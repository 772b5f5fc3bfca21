#pragma once

#include <QString>
#include <stdexcept>

namespace sargan {

/// A file that is not a readable archive. Carries where (byte offset from the start of the file), in which
/// slot of which record the reader stood when it knew, what was found and what was expected there.
class ArchiveError : public std::runtime_error {
public:
    ArchiveError(qint64 offset, QString problem, QString slot = {});

    qint64 offset() const { return _offset; }
    const QString& problem() const { return _problem; }
    const QString& slot() const { return _slot; }

    /// One sentence for people: "byte 211: expected …, found … (Plongee 3, lieu)".
    QString sentence() const;

private:
    qint64 _offset;
    QString _problem;
    QString _slot;
};

}  // namespace sargan
