// Included inside a record class, with SARGAN_FIELDS naming its field list. Each row FIELD(type, name,
// setter) becomes a member and its two accessors.

public:
#define FIELD(type, name, setter) \
    const type& name() const { return _##name; } \
    void setter(type value) { _##name = std::move(value); }
#include SARGAN_FIELDS
#undef FIELD

// Numbers lie in front, side by side: statistics ask every dive for a dozen of them, and the memory hands out
// neighbours together.
private:
#define FIELD(type, name, setter) SARGAN_NUMBER_FIELD(type, type _##name{};)
#include SARGAN_FIELDS
#undef FIELD
#define FIELD(type, name, setter) SARGAN_OBJECT_FIELD(type, type _##name{};)
#include SARGAN_FIELDS
#undef FIELD
