#pragma once

#include <QHash>
#include <optional>

#include "platform/archive/NumberDecoder.h"

namespace sargan {

/// Reads the object slots of records in the first pass over an archive: texts, dates, number lists, and
/// anything else as a view.
class SlotReader {
public:
    SlotReader(ItemReader& items, const Archive& archive) : _items(items), _archive(archive), _run(items) {}

    QString text(ArchivedObject& kept);
    Moment moment(ArchivedObject& kept);
    NumberArray numbers(ArchivedObject& kept);
    ArchivedObject object();

    /// The height of the objects read since the last call.
    int takeHeight() { return std::exchange(_height, 0); }

private:
    ObjectHead takeHead();
    quint32 classOf(const ObjectHead& head) const;
    ArchivedObject keep(const ObjectHead& head);
    void passOver(const ObjectHead& head);
    void grow(int height) { _height = qMax(_height, height); }
    void requireUnknown(const ObjectHead& head, quint32 cls, ArchiveWords expected) const;
    QString textContents(const ObjectHead& head);
    QString textByReference(quint32 index);
    NumberArray arrayContents(const ObjectHead& head);
    NumberArray arrayByReference(quint32 index);
    std::optional<double> dateOf(quint32 index) const;
    void finishContents(const ObjectHead& head, int height, bool derived);

    ItemReader& _items;
    const Archive& _archive;
    NumberRun _run;
    int _height = 0;
    QHash<quint32, QString> _texts;
    QHash<quint32, NumberArray> _arrays;
    qsizetype _shortArrays = 0;  ///< among those remembered
};

}  // namespace sargan
