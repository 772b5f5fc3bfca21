#include "platform/files/FileStamp.h"

#include <xxhash.h>

#include <new>

namespace sargan {

struct StampBuilder::State {
    State() : hash(XXH3_createState()) {
        if (!hash) throw std::bad_alloc();
        XXH3_128bits_reset(hash);
    }
    ~State() { XXH3_freeState(hash); }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    XXH3_state_t* hash;
    qint64 size = 0;
};

StampBuilder::StampBuilder() : _state(std::make_unique<State>()) {}

StampBuilder::~StampBuilder() = default;

void StampBuilder::add(QByteArrayView bytes) {
    if (bytes.isEmpty()) return;
    XXH3_128bits_update(_state->hash, bytes.data(), static_cast<size_t>(bytes.size()));
    _state->size += bytes.size();
}

FileStamp StampBuilder::stamp() const {
    const XXH128_hash_t hash = XXH3_128bits_digest(_state->hash);
    return {_state->size, hash.high64, hash.low64};
}

FileStamp stampOf(QByteArrayView bytes) {
    StampBuilder builder;
    builder.add(bytes);
    return builder.stamp();
}

}  // namespace sargan
