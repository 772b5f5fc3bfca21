#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <memory>

namespace sargan {

/// What a file contained, in 24 bytes: enough to tell later whether it still does. The hash is 128 bits of
/// XXH3, chosen because it costs less than the disk (50 MB in about 9 ms); it guards against accidents, not
/// against someone who forges a file with the same hash.
struct FileStamp {
    qint64 size = 0;  ///< bytes
    quint64 hashHigh = 0;
    quint64 hashLow = 0;

    bool operator==(const FileStamp&) const = default;
};

FileStamp stampOf(QByteArrayView bytes);

/// A stamp made piece by piece, for content that is not in memory at once.
class StampBuilder {
public:
    StampBuilder();
    ~StampBuilder();
    StampBuilder(const StampBuilder&) = delete;
    StampBuilder& operator=(const StampBuilder&) = delete;

    void add(QByteArrayView bytes);
    FileStamp stamp() const;

private:
    struct State;
    std::unique_ptr<State> _state;
};

}  // namespace sargan
