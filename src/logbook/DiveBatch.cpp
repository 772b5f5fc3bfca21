#include "logbook/DiveBatch.h"

#include "logbook/DiveAlerts.h"

namespace sargan {

DiveBatch::DiveBatch(Carnet& carnet, Prompt& prompt)
    : _carnet(carnet),
      _desk(deskWithPrompt(carnet.desk(), prompt)),
      _form(_desk, DiveFormUse::Batch),
      _dives(carnet.records()),
      _before(_dives.size()) {}

void DiveBatch::add(const std::function<void(DiveForm&)>& fill) {
    _form.blankFields();
    _number = Carnet::nextNumber(_dives);
    _form.form().setInteger(divecontrol::plongeeNo, _number);
    fill(_form);
    _dives.append(std::make_shared<const Plongee>(_form.addDiveToList()));
}

qsizetype DiveBatch::commit() {
    if (count() == 0 || _carnet.isReadOnly()) return -1;
    const qsizetype last = _dives.size() - 1;
    _carnet.perform(QStringLiteral("Import dives"), std::move(_dives), {last});
    _carnet.selectLastDive(last, true);
    return _before;
}

}  // namespace sargan
