#include "logbook/DiveCells.h"
#include "logbook/LogbookTests.h"
#include "platform/form/SystemColors.h"

using namespace sargan;
using namespace divecells;
using namespace Qt::StringLiterals;

namespace {

const QColor none;
const QColor nitroxGreen = QColor::fromRgbF(0.0F, 0.7F, 0.0F);
const QColor nightBlue = QColor::fromRgbF(0.0F, 0.0F, 0.3F);
const QColor warm = QColor::fromRgbF(0.98F, 0.466F, 0.373F);

}  // namespace

class DiveCellColorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
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

int runDiveCellColorTest(int argc, char** argv) {
    DiveCellColorTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveCellColorTest.moc"
