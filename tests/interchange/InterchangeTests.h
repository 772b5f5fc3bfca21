#pragma once

#include <QtTest>

#include "interchange/Formats.h"
#include "interchange/Import.h"
#include "support/TestDesk.h"

// Each runs one test class of this folder and returns the number of its failures.
int runHandheldTest(int argc, char** argv);
int runHostileXmlTest(int argc, char** argv);
int runImportTest(int argc, char** argv);
int runInterchangeCommandTest(int argc, char** argv);
int runRoundTripTest(int argc, char** argv);
int runTextExportTest(int argc, char** argv);
int runUdcfTest(int argc, char** argv);
int runUddfExportTest(int argc, char** argv);
int runUddfImportTest(int argc, char** argv);
int runUddfValuesTest(int argc, char** argv);

namespace sargan {

/// A logbook on a desk of its own, at 14:30:00 on 7 June 2016.
struct Book {
    TestDesk desk;
    QStringList log;
    std::unique_ptr<Carnet> carnet = desk.newLogbook();

    Book() {
        desk.desk.log = Log([this](const QString& line) { log << line; });
    }

    /// These dives in place of the list, without the form.
    void put(const QList<Plongee>& dives) {
        Records<Plongee> records;
        for (const Plongee& dive : dives) records.append(std::make_shared<const Plongee>(dive));
        carnet->perform(QStringLiteral("Set"), records, {});
    }
    QByteArray exported(const char* format) const {
        return carnet->dataRepresentationOfType(
            QLatin1String(exportFormatNamed(QLatin1String(format))->typeName));
    }
    ImportResult read(const char* format, const QByteArray& bytes,
                      ImportAlerts alerts = ImportAlerts::AsTheyHappen) {
        return importBytes(*carnet, bytes, *diveReaderNamed(QLatin1String(format)), alerts);
    }
    /// The dive that this element makes, in whatever stands around it in the format.
    const Plongee& dive(qsizetype row) const { return carnet->record(row); }
    const Plongee& last() const { return carnet->record(carnet->count() - 1); }
};

inline Moment localDate(int year, int month, int day, int hour = 0, int minute = 0) {
    return Moment::fromDateTime(QDateTime(QDate(year, month, day), QTime(hour, minute)));
}

inline QList<double> numbersOf(const NumberArray& list) {
    QList<double> numbers;
    for (qsizetype i = 0; i < list.size(); ++i) numbers << list.at(i);
    return numbers;
}

/// A dive with a value in everything that an export writes.
inline Plongee fullDive() {
    Plongee dive;
    dive.setNoPlongee(12);
    dive.setDate(localDate(2016, 6, 7));
    dive.setHeure(localDate(2001, 1, 1, 9, 5));
    dive.setLieu(QStringLiteral("Brest"));
    dive.setSite(QStringLiteral("Swansea Vale"));
    dive.setPays(QStringLiteral("France"));
    dive.setCoeff(71);
    dive.setSurface(QStringLiteral("12:30"));
    dive.setProfondeur(30.75f);
    dive.setTemps(45);
    dive.setTempEau(14);
    dive.setTempAir(18);
    dive.setAltitude(3);
    dive.setGaz(1);
    dive.setO2Mix(32);
    dive.setVolumeBloc(15);
    dive.setPressionDepart(207);
    dive.setPressionFin(60);
    dive.setMeteo(1);
    dive.setCourant(2);
    dive.setVisibilite(8);
    dive.setPartenaires(QStringLiteral("Zoé, Luc"));
    dive.setSamplingRate(1);
    static constexpr double depths[] = {0, 12.25, 30.75, 4.96};
    static constexpr double pressures[] = {207, 150.5, 90.25, 60};
    static constexpr qint32 deco[] = {0, 1, 0, 0}, ascent[] = {0, 1, 0, 1}, surface[] = {0, 1, 0, 0},
                            ceiling[] = {0, 1, 2, 0}, gas[] = {0, 0, 3, 0};
    dive.setProfilProfondeur(NumberArray::ofDoubles(depths));
    dive.setASC_Flag(NumberArray::ofInts(deco));
    dive.setSLOW_Flag(NumberArray::ofInts(ascent));
    dive.setSURF_Flag(NumberArray::ofInts(surface));
    dive.setCEIL_Flag(NumberArray::ofInts(ceiling));
    dive.setGAZ_Flag(NumberArray::ofInts(gas));
    dive.setPRESS_Data(NumberArray::ofDoubles(pressures));
    return dive;
}

/// A dive as a new one is: one sample at the surface.
inline Plongee plainDive(int number) {
    Plongee dive;
    dive.setNoPlongee(number);
    dive.setO2Mix(21);
    dive.setO2Mix_2(21);
    static constexpr double surface[] = {0};
    static constexpr qint32 none[] = {0};
    dive.setProfilProfondeur(NumberArray::ofDoubles(surface));
    dive.setPRESS_Data(NumberArray::ofDoubles(surface));
    for (auto set : {&Plongee::setASC_Flag, &Plongee::setSLOW_Flag, &Plongee::setSURF_Flag,
                     &Plongee::setCEIL_Flag, &Plongee::setGAZ_Flag})
        (dive.*set)(NumberArray::ofInts(none));
    return dive;
}

}  // namespace sargan
