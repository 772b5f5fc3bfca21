// Included inside a record's struct of fields, with SARGAN_RECORD and SARGAN_FIELDS set. Each row becomes a
// typed constant that field tables, slots, columns and forms refer to, and `all` lists them in order.

#define FIELD(type, name, setter) \
    static constexpr sargan::Field<SARGAN_RECORD> name{#name, &SARGAN_RECORD::_##name};
#include SARGAN_FIELDS
#undef FIELD

static constexpr auto all = std::to_array<const sargan::Field<SARGAN_RECORD>*>({
#define FIELD(type, name, setter) &name,
#include SARGAN_FIELDS
#undef FIELD
});
