#pragma once

#include "platform/record/Slots.h"

namespace sargan {

/// A small record class with every kind of field and every oddity that slots can have.
class Sample : public Record {
    friend struct SampleFields;

public:
    static constexpr const char* className = "Sample";

#define SARGAN_FIELDS "support/Sample.def"
#include "platform/record/RecordMembers.h"
};

struct SampleFields {
#define SARGAN_RECORD Sample
#include "platform/record/RecordFields.h"
#undef SARGAN_RECORD
#undef SARGAN_FIELDS
};

/// Version 3. `old` was a whole number up to version 1, `copy` is written from `whole`, `picture` came with
/// version 2 and `memo` is never archived: it tells the version that was read.
inline const RecordClass<Sample>& sampleClass() {
    using F = SampleFields;
    static constexpr auto sampleSlots = std::to_array<Slot<Sample>>({
        slot(F::whole),
        slot(F::copy).writing(F::whole),
        slot(F::real),
        oldInt(F::old).until(1),
        slot(F::old).since(2),
        bits(F::bitwise),
        slot(F::text),
        slot(F::date),
        slot(F::depths),
        slot(F::flags),
        slot(F::picture).since(2),
    });
    static constexpr const Field<Sample>* realLists[] = {&F::depths};
    static constexpr RecordClass<Sample> cls{
        Sample::className,
        3,
        F::all,
        sampleSlots,
        [](Sample& sample, qint32) { sample.setReal(-1); },
        [](Sample& sample, qint32 version) {
            sample.setMemo(Int(quint32(version) * 100 + (sample.real() == -1 ? 1 : 0)));
        },
        realLists};
    return cls;
}

}  // namespace sargan
