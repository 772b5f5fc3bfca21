#pragma once

#include "logbook/LogbookTests.h"

namespace sargan {

/// A logbook by its table.
struct TableLogbook {
    TestDesk desk;
    std::unique_ptr<Carnet> carnet = desk.newLogbook();

    /// As designed.
    static QStringList columns() {
        using namespace Qt::StringLiterals;
        return {u"noPlongee"_s,  u"date"_s,   u"lieu"_s,        u"site"_s, u"heure"_s,
                u"profondeur"_s, u"temps"_s,  u"tempEau"_s,     u"deco"_s, u"coeff"_s,
                u"visibilite"_s, u"epaves"_s, u"inoubliable"_s, u"gaz"_s,  u"rebreather"_s};
    }

    DiveTableSource& table() const { return carnet->diveTable(); }
    QList<int> numbers() const {
        QList<int> list;
        for (const auto& dive : carnet->records()) list << dive->noPlongee();
        return list;
    }
};

}  // namespace sargan
