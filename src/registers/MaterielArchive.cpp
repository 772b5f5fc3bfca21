#include "registers/Materiel.h"

namespace sargan {

namespace {

using F = MaterielFields;

// The order is the file format.
constexpr auto materielSlots = std::to_array<Slot<Materiel>>({
    slot(F::matosNo),
    slot(F::typeMatos),
    slot(F::marqueMatos),
    slot(F::serieMatos),
    slot(F::dateAchatMatos).until(2),
    slot(F::dateAchat).since(3),
    slot(F::quantiteMatos),
    slot(F::prixMatos),
    slot(F::lastRevision),
    slot(F::nextRevision),
    slot(F::tankMaker).since(5),

    slot(F::firstRequalification).until(3),
    slot(F::firstRequalificationDate).since(4),
    slot(F::lastRequalification).since(4),
    slot(F::nextRequalification),

    slot(F::noInspection),
    slot(F::bloc),
    slot(F::tiv),
    slot(F::noTIV),
    slot(F::nomTIV),
    slot(F::valveRef).since(5),
    slot(F::resultTIV).since(5),
    slot(F::capaciteBloc),
    slot(F::pressionService),
    slot(F::pressionEpreuve),
    slot(F::notesMatos),
    slot(F::equipState).since(2),
    slot(F::factureMatos).since(2),
    slot(F::lieuAchatMatos).since(2),
});

/// "5/3/2010" is midnight of 5 March 2010, local time; what is no such date leaves none.
void dateFromText(Materiel& item, qint32 version) {
    if (version >= 3) return;
    const QDate day = QDate::fromString(item.dateAchatMatos(), QStringLiteral("d/M/yyyy"));
    item.setDateAchat(Moment::fromDateTime(QDateTime(day, QTime(0, 0))));
}

}  // namespace

const RecordClass<Materiel>& materielClass() {
    static constexpr RecordClass<Materiel> cls{Materiel::className, 5,       F::all,
                                               materielSlots,       nullptr, dateFromText};
    return cls;
}

}  // namespace sargan
