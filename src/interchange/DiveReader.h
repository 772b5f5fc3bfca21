#pragma once

#include <memory>

#include "logbook/DiveForm.h"

namespace sargan {

/// The dives of one file, ready to be put into the dive form one after the other.
class DiveSource {
public:
    virtual ~DiveSource() = default;

    virtual qsizetype count() const = 0;
    /// Dives that stand in the file where the format's rules do not look.
    virtual qsizetype passedOver() const { return 0; }
    /// Puts what the file tells of this dive into the blank form; what it does not tell stays blank.
    virtual void fill(DiveForm& form, qsizetype dive) = 0;
};

/// A format that dives can be read from.
class DiveReader {
public:
    virtual ~DiveReader() = default;

    virtual const char* name() const = 0;  ///< on the command line: "uddf"
    virtual Message<> title() const = 0;
    /// File name endings, without the dot, the usual one first.
    virtual QStringList suffixes() const = 0;
    /// Whether the beginning of these bytes looks like this format.
    virtual bool recognises(const QByteArray& bytes) const = 0;
    /// Throws ImportError when the bytes cannot be read.
    virtual std::unique_ptr<DiveSource> open(const QByteArray& bytes) const = 0;
};

}  // namespace sargan
