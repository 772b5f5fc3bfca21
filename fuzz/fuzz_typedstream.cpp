#include <QHash>
#include <bit>
#include <cstdlib>

#include "platform/archive/ArchiveReader.h"
#include "platform/archive/ArchiveWriter.h"

// Any bytes: they are an archive or refused, never anything else. An archive survives being written anew, and
// the reader of records finds in it what the tree shows.

using namespace sargan;

namespace {

void demand(bool holds) {
    if (!holds) std::abort();
}

/// Compares two trees value by value, and that instances shared in one are shared in the other.
class TreeComparison {
public:
    void compare(const ArchivedObject& a, const ArchivedObject& b) {
        demand(a.isNil() == b.isNil());
        if (a.isNil()) return;
        const auto known = _partners.constFind(a.index());
        if (known != _partners.constEnd()) return demand(*known == b.index());
        _partners.insert(a.index(), b.index());
        demand(a.classes() == b.classes());
        const QList<ArchivedGroup> groupsOfA = a.groups();
        const QList<ArchivedGroup> groupsOfB = b.groups();
        demand(groupsOfA.size() == groupsOfB.size());
        for (qsizetype i = 0; i < groupsOfA.size(); ++i) {
            demand(groupsOfA[i].type == groupsOfB[i].type);
            compare(groupsOfA[i].values, groupsOfB[i].values);
        }
    }

private:
    void compare(const QList<ArchivedValue>& a, const QList<ArchivedValue>& b) {
        demand(a.size() == b.size());
        for (qsizetype i = 0; i < a.size(); ++i) {
            demand(a[i].value.index() == b[i].value.index());
            std::visit([&](const auto& value) { compareValue(value, b[i]); }, a[i].value);
        }
    }
    template <typename T>
    void compareValue(const T& a, const ArchivedValue& other) {
        const T& b = std::get<T>(other.value);
        if constexpr (std::is_same_v<T, std::shared_ptr<const ArchivedObject>>) {
            compare(*a, *b);
        } else if constexpr (std::is_same_v<T, QList<ArchivedValue>>) {
            compare(a, b);
        } else if constexpr (std::is_same_v<T, double>) {
            demand(std::bit_cast<quint64>(a) == std::bit_cast<quint64>(b) || (a != a && b != b));
        } else {
            demand(a == b);
        }
    }

    QHash<quint32, quint32> _partners;
};

/// The numbers that the quick path has packed are those that the objects show one by one.
void demandSameNumbers(const NumberArray& numbers, const ArchivedObject& array) {
    const QList<ArchivedObject> elements = array.asArray();
    demand(elements.size() == numbers.size());
    for (qsizetype i = 0; i < numbers.size(); ++i) {
        if (numbers.kindAt(i) == NumberKind::Kept) {
            demand(numbers.keptAt(i).index() == elements[i].index());
            continue;
        }
        const QList<ArchivedGroup> groups = elements[i].groups();
        demand(std::get<QByteArray>(groups[0].values[0].value) == QByteArray(1, char(numbers.kindAt(i))));
        const auto& value = groups[1].values[0].value;
        const double number =
            std::holds_alternative<double>(value) ? std::get<double>(value) : double(std::get<qint64>(value));
        demand(std::bit_cast<quint64>(number) == std::bit_cast<quint64>(numbers.at(i)) ||
               (number != number && numbers.at(i) != numbers.at(i)));
    }
}

void readObjectSlot(ArchiveReader& reader, const ArchivedObject& shown) {
    ArchivedObject kept;
    if (shown.isKindOf("NSString")) {
        demand(reader.readText(kept) == shown.asText());
    } else if (shown.isKindOf("NSArray")) {
        demandSameNumbers(reader.readNumbers(kept), shown);
    } else if (shown.isKindOf("NSDate")) {
        reader.readMoment(kept);
    } else {
        demand(reader.readObject().index() == shown.index());
    }
}

void readSlots(ArchiveReader& reader, const ArchivedObject& record) {
    for (const ArchivedGroup& group : record.groups()) {
        if (group.type == "i") {
            demand(reader.readInt() == std::get<qint64>(group.values[0].value));
        } else if (group.type == "f") {
            reader.readFloat();
        } else {
            const auto* object = std::get_if<std::shared_ptr<const ArchivedObject>>(&group.values[0].value);
            readObjectSlot(reader, object ? **object : ArchivedObject());
        }
    }
}

/// Reads the records of an archive as the tree shows them; what does not suit records ends in an error.
void readRecords(const Archive& archive) {
    const ArchiveHead head = readArchiveHead(archive.bytes());
    const QByteArray className = head.recordClass.toUtf8();
    ArchiveReader reader(archive.bytes());
    const quint32 count = reader.beginRootArray();
    const QList<ArchivedObject> records = archive.root().asArray();
    demand(qsizetype(count) == records.size());
    for (quint32 i = 0; i < count; ++i) {
        if (!reader.beginElement(className.constData()).isNew) continue;
        readSlots(reader, records[i]);
        reader.endElement();
    }
    reader.endRootArray();
}

void readTree(const QByteArray& bytes) {
    const auto archive = Archive::read(bytes);
    const QByteArray rewritten = ArchiveWriter::rewrite(*archive);
    const auto again = Archive::read(rewritten);
    TreeComparison().compare(archive->root(), again->root());
    demand(ArchiveWriter::rewrite(*again) == rewritten);
    archive->root().pictureBytes();
    readRecords(*archive);
}

/// Reads records of class R slot by slot in an order that the bytes decide.
void readBlindly(const QByteArray& bytes) {
    ArchiveReader reader(bytes);
    ArchivedObject kept;
    const quint32 count = reader.beginRootArray();
    for (quint32 i = 0; i < count; ++i) {
        if (!reader.beginElement("R").isNew) continue;
        for (int slot = 0; slot < 8; ++slot) {
            switch (uchar(bytes[(i * 8 + quint32(slot)) * 5 % quint32(bytes.size())]) % 8) {
                case 0:
                    reader.readInt();
                    break;
                case 1:
                    reader.readFloat();
                    break;
                case 2:
                    reader.readText(kept);
                    break;
                case 3:
                    reader.readMoment(kept);
                    break;
                case 4:
                    reader.readNumbers(kept);
                    break;
                case 5:
                    reader.readObject();
                    break;
                default:
                    break;
            }
        }
        reader.endElement();
    }
    reader.endRootArray();
}

template <typename Read>
void attempt(Read read, const QByteArray& bytes) {
    try {
        read(bytes);
    } catch (const ArchiveError& error) {
        demand(error.offset() >= 0 && error.offset() <= bytes.size() && !error.sentence().isEmpty());
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    attempt(readTree, bytes);
    attempt(readBlindly, bytes);
    return 0;
}
