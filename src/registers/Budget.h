#pragma once

#include "platform/record/Slots.h"

namespace sargan {

/// One priced service of a firm. Price line 0 is the base price, 1 to 4 are supplements; line 5 is kept and
/// used nowhere.
class Budget : public Record {
    friend struct BudgetFields;

public:
    static constexpr const char* className = "Budget";

#define SARGAN_FIELDS "registers/Budget.def"
#include "platform/record/RecordMembers.h"
};

/// Its fields as typed constants: BudgetFields::prestation.
struct BudgetFields {
#define SARGAN_RECORD Budget
#include "platform/record/RecordFields.h"
#undef SARGAN_RECORD
#undef SARGAN_FIELDS
};

/// The class in archives: its current version, and every older one as it was written.
const RecordClass<Budget>& budgetClass();

}  // namespace sargan
