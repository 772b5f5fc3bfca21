#pragma once

#include "platform/archive/ItemReader.h"
#include "platform/archive/NumberRun.h"

namespace sargan {

/// Reads arrays of numbers straight into packed storage.
class NumberDecoder {
public:
    /// `run` is the quick path of the first pass; a replay has none.
    NumberDecoder(ItemReader& items, NumberRun* run, const Archive& archive, int depth)
        : _items(items), _run(run), _archive(archive), _depth(depth) {}

    /// The count and the elements of an array whose head has been read. `height` gets the elements' height.
    NumberArray elements(int& height);

private:
    /// Reads one element by the general path. Returns its height.
    int element(NumberArrayBuilder& builder);
    void append(NumberArrayBuilder& builder, quint32 index, quint32 cls, qint64 offset);
    bool appendOddNumber(NumberArrayBuilder& builder, quint32 index);

    ItemReader& _items;
    NumberRun* _run;
    const Archive& _archive;
    int _depth;
};

/// The bits of a number of this kind whose value stands at `at`.
quint64 takeNumberBits(ByteCursor& at, NumberKind kind);

}  // namespace sargan
