#include "logbook/DiveColumns.h"
#include "logbook/LogbookTests.h"
#include "platform/form/SystemColors.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

using Change = std::function<void(Plongee&)>;
using Setting = std::function<void(DiveTableSettings&)>;

const QColor none;
const QColor nitroxGreen = QColor::fromRgbF(0.0F, 0.7F, 0.0F);
const QColor nightBlue = QColor::fromRgbF(0.0F, 0.0F, 0.3F);
const QColor warm = QColor::fromRgbF(0.98F, 0.466F, 0.373F);
const QColor foreign = QColor::fromRgbF(0.725F, 1.0F, 0.674F);
const QColor cold(1, 2, 3);
const QColor depthColor(4, 5, 6);
const QColor timeColor(7, 8, 9);

/// Nothing in colour, but colours at hand for when a test turns something on.
DiveTableSettings plainSettings() {
    DiveTableSettings settings;
    settings.displayUnits = true;
    settings.countryCode = u"FRA"_s;
    settings.foreignColor = foreign;
    settings.lowTemperatureColor = cold;
    settings.depthColor = depthColor;
    settings.timeColor = timeColor;
    settings.colouredText = u"no such place"_s;
    return settings;
}

TableCell cellOf(const char* column, const Change& change, const Setting& setting = {}) {
    static const Strings strings;
    Plongee dive;
    dive.setCountryCode(u"FRA"_s);
    if (change) change(dive);
    DiveTableSettings settings = plainSettings();
    if (setting) setting(settings);
    return diveCell(dive, diveColumn(QString::fromLatin1(column)), settings, strings);
}

}  // namespace

class DiveCellTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aCellShowsItsFieldInWords_data() {
        QTest::addColumn<QByteArray>("column");
        QTest::addColumn<Change>("change");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* column, const QString& text, const Change& change) {
            QTest::addRow("%s: %s%s", column, qPrintable(text), change ? "" : " by default")
                << QByteArray(column) << change << text;
        };
        row("noPlongee", u"17"_s, [](Plongee& d) { d.setNoPlongee(17); });
        row("date", u"07/06/2016"_s, [](Plongee& d) { d.setDate(Moment::fromIso(u"2016-06-07"_s)); });
        row("date", u"--/--/----"_s, {});
        row("heure", u"09:05"_s, [](Plongee& d) { d.setHeure(Moment::fromIso(u"09:05"_s)); });
        row("heure", u""_s, {});
        row("lieu", u"Brest"_s, [](Plongee& d) { d.setLieu(u"Brest"_s); });
        row("lieu", u""_s, {});
        row("site", u"Le Vioben"_s, [](Plongee& d) { d.setSite(u"Le Vioben"_s); });
        row("epaves", u"La Swansea"_s, [](Plongee& d) { d.setEpaves(u"La Swansea"_s); });
        row("profondeur", u"23.5 m"_s, [](Plongee& d) { d.setProfondeur(23.5F); });
        row("profondeur", u"0 m"_s, {});
        row("temps", u"41 '"_s, [](Plongee& d) { d.setTemps(41); });
        row("tempEau", u"13 °C"_s, [](Plongee& d) { d.setTempEau(13); });
        row("tempEau", u"-2 °C"_s, [](Plongee& d) { d.setTempEau(-2); });
        row("tempEau", u"-"_s, [](Plongee& d) { d.setTempEau(-50); });
        row("tempEau", u"-"_s, {});
        row("coeff", u"N/A"_s, {});
        row("coeff", u"95"_s, [](Plongee& d) { d.setCoeff(95); });
        row("coeff", u"95 high tide"_s, [](Plongee& d) {
            d.setCoeff(95);
            d.setPmBm(1);
        });
        row("coeff", u"40 low tide"_s, [](Plongee& d) {
            d.setCoeff(40);
            d.setPmBm(2);
        });
        row("coeff", u"High tide"_s, [](Plongee& d) { d.setPmBm(1); });
        row("coeff", u"Low tide"_s, [](Plongee& d) { d.setPmBm(2); });
        row("inoubliable", u""_s, {});
        row("inoubliable", u"★"_s, [](Plongee& d) { d.setInoubliable(1); });
        static const char* visibilities[] = {"Excellent", "Very good", "Good", "Medium",     "Bad",
                                             "Very bad",  "Execrable", "N/A",  "Exceptional"};
        for (int i = 0; i < 9; ++i)
            row("visibilite", QLatin1String(visibilities[i]), [i](Plongee& d) { d.setVisibilite(i); });
        row("visibilite", u"9"_s, [](Plongee& d) { d.setVisibilite(9); });
        static const char* decos[] = {"Air tables", "Nitrox tables", "Computer"};
        for (int i = 0; i < 3; ++i) row("deco", QLatin1String(decos[i]), [i](Plongee& d) { d.setDeco(i); });
        row("deco", u"-1"_s, [](Plongee& d) { d.setDeco(-1); });
        static const char* apparatus[] = {"OC", "SCR", "mCCR", "eCCR", "hCCR"};
        for (int i = 0; i < 5; ++i)
            row("rebreather", QLatin1String(apparatus[i]), [i](Plongee& d) { d.setRebreather(i); });
        row("rebreather", u"5"_s, [](Plongee& d) { d.setRebreather(5); });
    }
    void aCellShowsItsFieldInWords() {
        QFETCH(QByteArray, column);
        QFETCH(Change, change);
        QFETCH(QString, text);
        QCOMPARE(cellOf(column, change).text, text);
    }

    void theGasHasOneNameEverywhere_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("o2");
        QTest::addColumn<int>("he");
        QTest::addColumn<QString>("name");
        QTest::newRow("air") << 0 << 21 << 0 << u"Air"_s;
        QTest::newRow("air, whatever the mix") << 0 << 32 << 10 << u"Air"_s;
        QTest::newRow("nitrox") << 1 << 32 << 0 << u"Nx 32"_s;
        QTest::newRow("oxygen") << 1 << 100 << 0 << u"O2"_s;
        QTest::newRow("nearly oxygen") << 1 << 99 << 0 << u"Nx 99"_s;
        QTest::newRow("trimix") << 2 << 18 << 45 << u"Tx 18/45"_s;
        QTest::newRow("heliox") << 3 << 20 << 80 << u"Heliox 20"_s;
        QTest::newRow("helitrox") << 4 << 26 << 17 << u"Tx 26/17"_s;
        QTest::newRow("heliair") << 5 << 10 << 50 << u"Tx 10/50"_s;
        QTest::newRow("no kind") << 6 << 21 << 0 << u"6"_s;
    }
    void theGasHasOneNameEverywhere() {
        QFETCH(int, kind);
        QFETCH(int, o2);
        QFETCH(int, he);
        QTEST(cellOf("gaz",
                     [&](Plongee& d) {
                         d.setGaz(kind);
                         d.setO2Mix(o2);
                         d.setHeMix(he);
                     })
                  .text,
              "name");
    }

    void unitsAreWrittenAsSetAndNothingIsConverted_data() {
        QTest::addColumn<bool>("us");
        QTest::addColumn<bool>("shown");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("metric") << false << true << QStringList{u"23.5 m"_s, u"41 '"_s, u"13 °C"_s};
        QTest::newRow("us") << true << true << QStringList{u"23.5 ft"_s, u"41 '"_s, u"13 °F"_s};
        QTest::newRow("none") << false << false << QStringList{u"23.5"_s, u"41"_s, u"13"_s};
        QTest::newRow("us, none shown") << true << false << QStringList{u"23.5"_s, u"41"_s, u"13"_s};
    }
    void unitsAreWrittenAsSetAndNothingIsConverted() {
        QFETCH(bool, us);
        QFETCH(bool, shown);
        QStringList texts;
        for (const char* column : {"profondeur", "temps", "tempEau"})
            texts << cellOf(
                         column,
                         [](Plongee& d) {
                             d.setProfondeur(23.5F);
                             d.setTemps(41);
                             d.setTempEau(13);
                         },
                         [&](DiveTableSettings& s) {
                             s.usUnits = us;
                             s.displayUnits = shown;
                         })
                         .text;
        QTEST(texts, "texts");
    }

    void aDiveAbroadHasABackgroundInAllColumnsButTwo() {
        const auto on = [](DiveTableSettings& s) { s.foreignInColor = true; };
        for (const DiveColumn& column : diveColumns()) {
            const bool isLeftOut =
                qstrcmp(column.identifier, "epaves") == 0 || qstrcmp(column.identifier, "inoubliable") == 0;
            const auto abroad = [](Plongee& d) { d.setCountryCode(u"EGY"_s); };
            // Number and gas are reset by the rule behind it, as no other colour is on.
            const bool isReset =
                qstrcmp(column.identifier, "noPlongee") == 0 || qstrcmp(column.identifier, "gaz") == 0;
            QCOMPARE(cellOf(column.identifier, abroad, on).background, isLeftOut || isReset ? none : foreign);
            QCOMPARE(cellOf(column.identifier, {}, on).background, none);
            QCOMPARE(cellOf(column.identifier, abroad).background, none);
        }
    }

    void aDiveWithoutACountryIsAbroad() {
        QCOMPARE(cellOf(
                     "date", [](Plongee& d) { d.setCountryCode(QString()); },
                     [](DiveTableSettings& s) { s.foreignInColor = true; })
                     .background,
                 foreign);
    }

    void theMixColoursNumberAndGas_data() {
        QTest::addColumn<int>("mix");
        QTest::addColumn<int>("apparatus");
        QTest::addColumn<int>("firstDecoO2");
        QTest::addColumn<TableCell>("number");
        QTest::addColumn<TableCell>("gas");
        const auto look = [](bool bold, const QColor& background, const QColor& color) {
            return TableCell{{}, color, background, bold};
        };
        const TableCell green = look(true, nitroxGreen, systemcolor::yellow);
        const TableCell brown = look(true, systemcolor::brown, systemcolor::white);
        const TableCell oxygen = look(true, systemcolor::black, systemcolor::white);
        const TableCell semiClosed = look(true, systemcolor::gray, systemcolor::yellow);
        const TableCell closed = look(true, systemcolor::black, systemcolor::yellow);
        const TableCell plainNumber = look(true, none, systemcolor::gray);
        const TableCell plainGas = look(false, none, systemcolor::gray);
        QTest::newRow("air") << 0 << 0 << 0 << plainNumber << plainGas;
        QTest::newRow("nitrox") << 1 << 0 << 0 << green << green;
        QTest::newRow("nitrox with oxygen") << 1 << 0 << 100 << green << green;
        for (int mix = 2; mix <= 5; ++mix)
            QTest::addRow("helium %d", mix) << mix << 0 << 100 << brown << brown;
        QTest::newRow("air, oxygen stop") << 0 << 0 << 98 << oxygen << oxygen;
        QTest::newRow("air, not quite oxygen") << 0 << 0 << 97 << plainNumber << plainGas;
        QTest::newRow("air, SCR") << 0 << 1 << 0 << semiClosed << plainGas;
        for (int apparatus = 2; apparatus <= 4; ++apparatus)
            QTest::addRow("air, CCR %d", apparatus) << 0 << apparatus << 0 << closed << closed;
        QTest::newRow("air, CCR, oxygen") << 0 << 3 << 100 << oxygen << closed;
        QTest::newRow("air, SCR, oxygen") << 0 << 1 << 99 << oxygen << oxygen;
        QTest::newRow("nitrox, SCR") << 1 << 1 << 0 << semiClosed << green;
        QTest::newRow("nitrox, eCCR") << 1 << 3 << 0 << closed << green;
        QTest::newRow("trimix, hCCR") << 2 << 4 << 0 << closed << brown;
        QTest::newRow("trimix, eCCR, oxygen") << 2 << 3 << 100 << oxygen << brown;
        QTest::newRow("unknown apparatus") << 1 << 5 << 0 << plainNumber << green;
        QTest::newRow("unknown mix") << 6 << 0 << 0 << plainNumber << plainGas;
    }
    void theMixColoursNumberAndGas() {
        QFETCH(int, mix);
        QFETCH(int, apparatus);
        QFETCH(int, firstDecoO2);
        const auto colours = [&](const char* column) {
            TableCell cell = cellOf(
                column,
                [&](Plongee& d) {
                    d.setGaz(mix);
                    d.setRebreather(apparatus);
                    d.setDecoO2_Level_1(firstDecoO2);
                    d.setCountryCode(u"EGY"_s);
                },
                [](DiveTableSettings& s) { s.mixInColor = s.foreignInColor = true; });
            cell.text.clear();
            return cell;
        };
        QTEST(colours("noPlongee"), "number");
        QTEST(colours("gaz"), "gas");
    }

    void withoutMixAndNightNumberAndGasAreBlack() {
        const auto abroad = [](Plongee& d) { d.setCountryCode(u"EGY"_s); };
        for (const char* column : {"noPlongee", "gaz"}) {
            const TableCell reset =
                cellOf(column, abroad, [](DiveTableSettings& s) { s.foreignInColor = true; });
            QCOMPARE(reset.color, systemcolor::black);
            QCOMPARE(reset.background, none);
            const TableCell kept = cellOf(
                column, abroad, [](DiveTableSettings& s) { s.foreignInColor = s.nocturnesInColor = true; });
            QCOMPARE(kept.color, none);
            QCOMPARE(kept.background, foreign);
        }
    }

    void aNightDiveIsDarkInTheVisibilityColumn() {
        const auto on = [](DiveTableSettings& s) { s.nocturnesInColor = s.foreignInColor = true; };
        const auto night = [](Plongee& d) {
            d.setNocturne(1);
            d.setCountryCode(u"EGY"_s);
        };
        const TableCell dark = cellOf("visibilite", night, on);
        QCOMPARE(dark.background, nightBlue);
        QCOMPARE(dark.color, systemcolor::white);
        const TableCell day = cellOf(
            "visibilite", [](Plongee& d) { d.setCountryCode(u"EGY"_s); }, on);
        QCOMPARE(day.background, none);
        QCOMPARE(day.bold, false);
        QCOMPARE(cellOf("lieu", night, on).background, foreign);
        QCOMPARE(cellOf("visibilite", night).background, none);
    }

    void theColouredTextIsRedInItsColumn_data() {
        QTest::addColumn<int>("theme");
        QTest::addColumn<QByteArray>("column");
        QTest::newRow("place") << 0 << QByteArray("lieu");
        QTest::newRow("site") << 1 << QByteArray("site");
        QTest::newRow("visibility") << 2 << QByteArray("visibilite");
        QTest::newRow("any other") << 9 << QByteArray("visibilite");
    }
    void theColouredTextIsRedInItsColumn() {
        QFETCH(int, theme);
        QFETCH(QByteArray, column);
        const auto dive = [](Plongee& d) {
            d.setLieu(u"Good"_s);
            d.setSite(u"Good"_s);
            d.setVisibilite(2);
        };
        const auto other = [](Plongee& d) { d.setLieu(u"good"_s); };
        const auto settings = [&](bool on) {
            return [=](DiveTableSettings& s) {
                s.colorItem = on;
                s.colouredTheme = theme;
                s.colouredText = u"Good"_s;
            };
        };
        for (const char* each : {"lieu", "site", "visibilite"}) {
            const bool isTheme = column == each;
            const TableCell on = cellOf(each, dive, settings(true));
            QCOMPARE(on.bold, isTheme);
            QCOMPARE(on.color, isTheme ? systemcolor::red : none);
            const TableCell unlike = cellOf(each, other, settings(true));
            QCOMPARE(unlike.bold, false);
            QCOMPARE(unlike.color, isTheme ? systemcolor::black : none);
            const TableCell off = cellOf(each, dive, settings(false));
            QCOMPARE(off.bold, false);
            QCOMPARE(off.color, isTheme ? systemcolor::gray : none);
            QCOMPARE(cellOf(each, other, settings(false)).color, none);
        }
    }

    void theColouredTextComesAfterTheNight() {
        const TableCell cell = cellOf(
            "visibilite", [](Plongee& d) { d.setNocturne(1); },
            [](DiveTableSettings& s) {
                s.nocturnesInColor = s.colorItem = true;
                s.colouredTheme = 2;
            });
        QCOMPARE(cell.background, nightBlue);
        QCOMPARE(cell.color, systemcolor::black);
    }

    void coldWaterHasItsColour_data() {
        QTest::addColumn<bool>("on");
        QTest::addColumn<int>("threshold");
        QTest::addColumn<int>("value");
        QTest::addColumn<QColor>("color");
        QTest::newRow("off") << false << 15 << 13 << systemcolor::black;
        QTest::newRow("colder") << true << 15 << 14 << cold;
        QTest::newRow("as cold") << true << 15 << 15 << warm;
        QTest::newRow("warmer") << true << 15 << 16 << warm;
        QTest::newRow("no threshold, freezing") << true << 0 << 0 << warm;
        QTest::newRow("no threshold, below") << true << 0 << -1 << cold;
        QTest::newRow("not recorded") << true << 0 << -50 << cold;
    }
    void coldWaterHasItsColour() {
        QFETCH(bool, on);
        QFETCH(int, threshold);
        QFETCH(int, value);
        QTEST(cellOf(
                  "tempEau", [&](Plongee& d) { d.setTempEau(value); },
                  [&](DiveTableSettings& s) {
                      s.lowTemperatureInColor = on;
                      s.lowTemperature = threshold;
                  })
                  .color,
              "color");
    }

    void depthAndTimeHaveTheirColours() {
        const auto on = [](DiveTableSettings& s) { s.depthTimeInColor = true; };
        QCOMPARE(cellOf("profondeur", {}, on).color, depthColor);
        QCOMPARE(cellOf("temps", {}, on).color, timeColor);
        QCOMPARE(cellOf("profondeur", {}).color, none);
        QCOMPARE(cellOf("temps", {}).color, none);
        QCOMPARE(cellOf("heure", {}, on).color, none);
    }

    void settingsAreReadAsTheyAreStored() {
        UserDefaults defaults;
        defaults.store(u"low temperature value"_s, u""_s);
        QCOMPARE(DiveTableSettings::of(defaults).lowTemperature, 0);
        defaults.store(u"low temperature value"_s, u"15.7"_s);
        QCOMPARE(DiveTableSettings::of(defaults).lowTemperature, 15);
        defaults.store(u"coloured theme"_s, false);
        QCOMPARE(DiveTableSettings::of(defaults).colouredTheme, 0);
        defaults.store(u"coloured theme"_s, 2);
        QCOMPARE(DiveTableSettings::of(defaults).colouredTheme, 2);
        defaults.store(u"us units"_s, 1);
        QCOMPARE(DiveTableSettings::of(defaults).usUnits, true);
        // Registered colours are in a form that nobody decodes.
        defaults.registerDefault(u"depth color"_s, QJsonObject{{u"undecoded"_s, u"keyed archive"_s}});
        QCOMPARE(DiveTableSettings::of(defaults).depthColor, systemcolor::blue);
    }
};

int runDiveCellTest(int argc, char** argv) {
    DiveCellTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveCellTest.moc"
