#include "platform/record/SlotMutants.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

using Slots = std::vector<Slot<Plongee>>;

Slots original() {
    return {plongeeClass().slots.begin(), plongeeClass().slots.end()};
}

/// One mutant for each place where `change` changes something and answers what.
template <typename Change>
void mutateEach(std::vector<SlotMutant>& mutants, Change change) {
    const Slots slots = original();
    for (std::size_t i = 0; i < slots.size(); ++i) {
        SlotMutant mutant{{}, slots};
        const QString mistake = change(mutant.slots, i);
        if (mistake.isEmpty()) continue;
        mutant.mistake = u"%1 %2"_s.arg(QLatin1String(slots[i].field->name), mistake);
        mutants.push_back(std::move(mutant));
    }
}

/// The field of the next slot of the same type, behind the last one the first.
const Field<Plongee>* nextOfType(const Slots& slots, std::size_t from) {
    for (std::size_t step = 1; step < slots.size(); ++step) {
        const Field<Plongee>* field = slots[(from + step) % slots.size()].field;
        if (field->member.index() == slots[from].field->member.index()) return field;
    }
    return nullptr;
}

QString moveFirst(Slot<Plongee>& slot, int by) {
    if (slot.firstVersion == INT_MIN) return {};
    slot.firstVersion += by;
    return u"from version %1"_s.arg(slot.firstVersion);
}

QString moveLast(Slot<Plongee>& slot, int by) {
    if (slot.lastVersion == INT_MAX) return {};
    slot.lastVersion += by;
    return u"up to version %1"_s.arg(slot.lastVersion);
}

}  // namespace

std::vector<SlotMutant> misplacedSlots() {
    std::vector<SlotMutant> mutants;
    mutateEach(mutants, [](Slots& slots, std::size_t i) {
        slots.erase(slots.begin() + std::ptrdiff_t(i));
        return u"dropped"_s;
    });
    mutateEach(mutants, [](Slots& slots, std::size_t i) {
        const Slot<Plongee> twice = slots[i];
        slots.insert(slots.begin() + std::ptrdiff_t(i), twice);
        return u"doubled"_s;
    });
    mutateEach(mutants, [](Slots& slots, std::size_t i) {
        if (i + 1 == slots.size()) return QString();
        std::swap(slots[i], slots[i + 1]);
        return u"swapped with the next"_s;
    });
    return mutants;
}

std::vector<SlotMutant> shiftedRanges() {
    std::vector<SlotMutant> mutants;
    for (const int by : {-1, 1}) {
        mutateEach(mutants, [by](Slots& slots, std::size_t i) { return moveFirst(slots[i], by); });
        mutateEach(mutants, [by](Slots& slots, std::size_t i) { return moveLast(slots[i], by); });
    }
    mutateEach(mutants, [](Slots& slots, std::size_t i) {
        if (slots[i].firstVersion != INT_MIN) return QString();
        slots[i].firstVersion = 21;
        return u"only from version 21"_s;
    });
    mutateEach(mutants, [](Slots& slots, std::size_t i) {
        if (slots[i].lastVersion != INT_MAX) return QString();
        slots[i].lastVersion = 26;
        return u"only up to version 26"_s;
    });
    return mutants;
}

std::vector<SlotMutant> changedForms() {
    std::vector<SlotMutant> mutants;
    for (const SlotForm form : {SlotForm::Plain, SlotForm::OldInt, SlotForm::Bits})
        mutateEach(mutants, [form](Slots& slots, std::size_t i) {
            if (!slots[i].field->is<Float>() || slots[i].form == form) return QString();
            slots[i].form = form;
            return u"in form %1"_s.arg(int(form));
        });
    return mutants;
}

std::vector<SlotMutant> exchangedFields() {
    std::vector<SlotMutant> mutants;
    mutateEach(mutants, [](Slots& slots, std::size_t i) {
        const Field<Plongee>* other = nextOfType(slots, i);
        slots[i].writtenFrom = other;
        return u"written from %1"_s.arg(QLatin1String(other->name));
    });
    mutateEach(mutants, [](Slots& slots, std::size_t i) {
        const Field<Plongee>* other = nextOfType(slots, i);
        slots[i].field = other;
        return u"read into %1"_s.arg(QLatin1String(other->name));
    });
    return mutants;
}
