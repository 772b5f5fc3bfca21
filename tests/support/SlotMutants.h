#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "platform/record/Slots.h"

/// A record class's slot table with one mistake in it.
template <class R>
struct SlotMutant {
    QString mistake;
    std::vector<sargan::Slot<R>> slots;
};

/// Makes every small mistake in a slot table, kind by kind.
template <class R>
class SlotMutants {
public:
    using Slot = sargan::Slot<R>;
    using Slots = std::vector<Slot>;
    using Mutants = std::vector<SlotMutant<R>>;

    explicit SlotMutants(const sargan::RecordClass<R>& cls) : _original(cls.slots.begin(), cls.slots.end()) {}

    /// Each slot dropped, doubled, swapped with its neighbour.
    Mutants misplaced() const {
        Mutants mutants;
        mutateEach(mutants, [](Slots& slots, std::size_t i) {
            slots.erase(slots.begin() + std::ptrdiff_t(i));
            return QStringLiteral("dropped");
        });
        mutateEach(mutants, [](Slots& slots, std::size_t i) {
            const Slot twice = slots[i];
            slots.insert(slots.begin() + std::ptrdiff_t(i), twice);
            return QStringLiteral("doubled");
        });
        mutateEach(mutants, [](Slots& slots, std::size_t i) {
            if (i + 1 == slots.size() || areNeverTogether(slots[i], slots[i + 1])) return QString();
            std::swap(slots[i], slots[i + 1]);
            return QStringLiteral("swapped with the next");
        });
        return mutants;
    }

    /// Each version range shifted by one at each end; ends that are open closed inside the known versions.
    Mutants shifted(int closedFrom, int closedUntil) const {
        Mutants mutants;
        for (const int by : {-1, 1}) {
            mutateEach(mutants, [by](Slots& slots, std::size_t i) { return moveFirst(slots[i], by); });
            mutateEach(mutants, [by](Slots& slots, std::size_t i) { return moveLast(slots[i], by); });
        }
        mutateEach(mutants, [closedFrom](Slots& slots, std::size_t i) {
            if (slots[i].firstVersion != INT_MIN || slots[i].lastVersion < closedFrom) return QString();
            slots[i].firstVersion = closedFrom;
            return QStringLiteral("only from version %1").arg(closedFrom);
        });
        mutateEach(mutants, [closedUntil](Slots& slots, std::size_t i) {
            if (slots[i].lastVersion != INT_MAX || slots[i].firstVersion > closedUntil) return QString();
            slots[i].lastVersion = closedUntil;
            return QStringLiteral("only up to version %1").arg(closedUntil);
        });
        return mutants;
    }

    /// Each real number in each other form, each text as a number or no longer as one.
    Mutants reformed() const {
        using sargan::SlotForm;
        Mutants mutants;
        for (const SlotForm form : {SlotForm::Plain, SlotForm::OldInt, SlotForm::Bits})
            mutateEach(mutants, [form](Slots& slots, std::size_t i) {
                const bool suits = slots[i].field->template is<sargan::Float>() ||
                                   (slots[i].field->template is<sargan::Text>() && form != SlotForm::Bits);
                if (!suits || slots[i].form == form) return QString();
                slots[i].form = form;
                return QStringLiteral("in form %1").arg(int(form));
            });
        return mutants;
    }

    /// Each slot written from, and each slot read into, another field of its type.
    Mutants exchanged() const {
        Mutants mutants;
        mutateEach(mutants, [](Slots& slots, std::size_t i) {
            const sargan::Field<R>* other = nextOfType(slots, i);
            if (!other || other == slots[i].writtenFrom) return QString();
            slots[i].writtenFrom = other;
            return QStringLiteral("written from %1").arg(QLatin1String(other->name));
        });
        mutateEach(mutants, [](Slots& slots, std::size_t i) {
            const sargan::Field<R>* other = nextOfType(slots, i);
            if (!other) return QString();
            slots[i].field = other;
            return QStringLiteral("read into %1").arg(QLatin1String(other->name));
        });
        return mutants;
    }

private:
    /// One mutant for each place where `change` changes something and answers what.
    template <typename Change>
    void mutateEach(Mutants& mutants, Change change) const {
        for (std::size_t i = 0; i < _original.size(); ++i) {
            SlotMutant<R> mutant{{}, _original};
            const QString mistake = change(mutant.slots, i);
            if (mistake.isEmpty()) continue;
            mutant.mistake = QLatin1String(_original[i].field->name) + u' ' + mistake;
            mutants.push_back(std::move(mutant));
        }
    }
    /// Two slots that no version has both: their order is no part of any file.
    static bool areNeverTogether(const Slot& a, const Slot& b) {
        return a.lastVersion < b.firstVersion || b.lastVersion < a.firstVersion;
    }
    /// The field of the next slot of the same type that is another one, behind the last slot the first.
    static const sargan::Field<R>* nextOfType(const Slots& slots, std::size_t from) {
        for (std::size_t step = 1; step < slots.size(); ++step) {
            const sargan::Field<R>* field = slots[(from + step) % slots.size()].field;
            if (field != slots[from].field && field->member.index() == slots[from].field->member.index())
                return field;
        }
        return nullptr;
    }
    static QString moveFirst(Slot& slot, int by) {
        if (slot.firstVersion == INT_MIN) return {};
        slot.firstVersion += by;
        return QStringLiteral("from version %1").arg(slot.firstVersion);
    }
    static QString moveLast(Slot& slot, int by) {
        if (slot.lastVersion == INT_MAX) return {};
        slot.lastVersion += by;
        return QStringLiteral("up to version %1").arg(slot.lastVersion);
    }

    Slots _original;
};
