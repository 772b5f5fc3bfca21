// Included inside a record class, with SARGAN_FIELDS naming its field list. Each row FIELD(type, name,
// setter) becomes a member and its two accessors.

public:
#define FIELD(type, name, setter) \
    const type& name() const { return _##name; } \
    void setter(type value) { _##name = std::move(value); }
#include SARGAN_FIELDS
#undef FIELD

private:
#define FIELD(type, name, setter) type _##name{};
#include SARGAN_FIELDS
#undef FIELD
