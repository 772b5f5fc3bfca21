#pragma once

#include "registers/Rebreather.h"
#include "registers/RegisterDescription.h"

namespace sargan {

/// The service log of a rebreather.
const RegisterDescription<Rebreather>& rebreatherServ();

/// Its edit window: three pages.
const WindowLayout& rebreatherServLayout();

/// Shows how much of an oxygen cell's expected life is used: the end of life in `cellOut`, the used share in
/// `progress`. The end of life counts from the date in the selected record, the share from the date in the
/// form.
void updateCellsLife(RegisterDocument<Rebreather>& document, int months, const Field<Rebreather>& cellInKey,
                     ControlName cellIn, ControlName cellOut, ControlName progress);

}  // namespace sargan
