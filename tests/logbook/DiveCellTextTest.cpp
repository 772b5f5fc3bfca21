#include "logbook/DiveCells.h"
#include "logbook/LogbookTests.h"

using namespace sargan;
using namespace divecells;
using namespace Qt::StringLiterals;

class DiveCellTextTest : public QObject {
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
        static const char* decos[] = {"Air tables",   "Nitrox tables", "Computer",
                                      "Air / nitrox", "Air / O₂",      "Air / nitrox / O₂"};
        for (int i = 0; i < 6; ++i)
            row("deco", QString::fromUtf8(decos[i]), [i](Plongee& d) { d.setDeco(i); });
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
};

int runDiveCellTextTest(int argc, char** argv) {
    DiveCellTextTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveCellTextTest.moc"
