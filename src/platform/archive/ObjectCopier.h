#pragma once

#include <QHash>

#include "platform/archive/ArchiveOutput.h"
#include "platform/archive/ArchiveWalker.h"

namespace sargan {

/// Writes objects of one read archive into an output, each of its instances once.
class ObjectCopier : private ValueSink {
public:
    ObjectCopier(ArchiveOutput& output, std::shared_ptr<const Archive> archive, const Archive::Tables& tables)
        : _output(output), _archive(std::move(archive)), _tables(tables) {}

    /// Writes an object of the archive, by reference when it has been written.
    void write(quint32 index);

private:
    bool beginObject(quint32 index, quint32 cls) override;
    void endObject() override;
    void beginGroup(QByteArrayView type) override;
    void nil(char code) override;
    void integer(char code, qint64 value) override;
    void realFloat(float value) override;
    void realDouble(double value) override;
    void bytes(char code, QByteArrayView value) override;
    void classValue(quint32 cls) override;
    void reference(quint32 index) override;

    ArchiveOutput& _output;
    std::shared_ptr<const Archive> _archive;
    const Archive::Tables& _tables;
    /// From index in the archive to index in the output.
    QHash<quint32, quint32> _written;
    QHash<quint32, quint32> _writtenClasses;
};

}  // namespace sargan
