#include "logbook/TableLogbook.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

const QStringList designed = TableLogbook::columns();

QStringList without(const QStringList& hidden) {
    QStringList left = designed;
    for (const QString& column : hidden) left.removeAll(column);
    return left;
}

}  // namespace

class DiveTableSourceTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatWasNeverStoredStandsAsDesigned() {
        const TableLogbook logbook;
        QCOMPARE(logbook.table().shownColumns(), without({u"epaves"_s, u"gaz"_s, u"rebreather"_s}));
    }

    void aColumnIsShownAsItsSettingSays_data() {
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("key");
        const char* keys[] = {
            "column numero",     "column date",  "column lieu",        "column site", "column heure",
            "column profondeur", "column temps", "column temp eau",    "column deco", "column coeff",
            "column visibilite", "column_epave", "column inoubliable", "column gaz",  "column scaph"};
        for (int i = 0; i < 15; ++i) QTest::newRow(keys[i]) << designed[i] << QString::fromLatin1(keys[i]);
    }
    void aColumnIsShownAsItsSettingSays() {
        QFETCH(QString, column);
        QFETCH(QString, key);
        const TableLogbook logbook;
        logbook.carnet->desk().defaults.store(key, 0);
        logbook.carnet->desk().notifications.post(u"updateColumnsTableView"_s, nullptr);
        QVERIFY(!logbook.table().shownColumns().contains(column));
        logbook.carnet->desk().defaults.store(key, 1);
        logbook.carnet->desk().notifications.post(u"updateColumnsTableView"_s, nullptr);
        QVERIFY(logbook.table().shownColumns().contains(column));
    }

    void theWreckKeyWithASpaceMeansNothing() {
        const TableLogbook logbook;
        logbook.carnet->desk().defaults.store(u"column epave"_s, 1);
        logbook.table().displayColumnsInTableView();
        QVERIFY(!logbook.table().shownColumns().contains(u"epaves"_s));
    }

    void aHiddenColumnComesBackAtItsDesignedPlace() {
        const TableLogbook logbook;
        const QStringList before = logbook.table().shownColumns();
        logbook.table().setColumn(u"date"_s, false);
        QCOMPARE(logbook.table().shownColumns(),
                 without({u"date"_s, u"epaves"_s, u"gaz"_s, u"rebreather"_s}));
        logbook.table().setColumn(u"date"_s, true);
        QCOMPARE(logbook.table().shownColumns(), before);
        QCOMPARE(logbook.table().shownColumns().indexOf(u"date"_s), 1);
    }

    void aColumnComesBackAtTheEndWhenFewerAreShown() {
        const TableLogbook logbook;
        for (const QString& column : designed) logbook.table().setColumn(column, false);
        QVERIFY(logbook.table().shownColumns().isEmpty());
        logbook.table().setColumn(u"noPlongee"_s, true);
        logbook.table().setColumn(u"deco"_s, true);
        QCOMPARE(logbook.table().shownColumns(), (QStringList{u"noPlongee"_s, u"deco"_s}));
        // Its place is 1, and two columns stand already: between them.
        logbook.table().setColumn(u"date"_s, true);
        QCOMPARE(logbook.table().shownColumns(), (QStringList{u"noPlongee"_s, u"date"_s, u"deco"_s}));
        // Its place is 4, and only three stand: at the end.
        logbook.table().setColumn(u"heure"_s, true);
        QCOMPARE(logbook.table().shownColumns(),
                 (QStringList{u"noPlongee"_s, u"date"_s, u"deco"_s, u"heure"_s}));
    }

    void dateComesAtTheEndWhenNothingElseIsShown() {
        const TableLogbook logbook;
        for (const QString& column : designed) logbook.table().setColumn(column, false);
        logbook.table().setColumn(u"lieu"_s, true);
        logbook.table().setColumn(u"date"_s, true);
        QCOMPARE(logbook.table().shownColumns(), (QStringList{u"lieu"_s, u"date"_s}));
    }

    void showingTwiceHidingTwiceAndUnknownColumnsDoNothing() {
        const TableLogbook logbook;
        const QStringList before = logbook.table().shownColumns();
        logbook.table().setColumn(u"date"_s, true);
        logbook.table().setColumn(u"partenaires"_s, true);
        logbook.table().setColumn(u"partenaires"_s, false);
        QCOMPARE(logbook.table().shownColumns(), before);
        logbook.table().setColumn(u"date"_s, false);
        logbook.table().setColumn(u"date"_s, false);
        QCOMPARE(logbook.table().shownColumns().size(), before.size() - 1);
    }

    void theTableCountsItsDives() {
        const TableLogbook logbook;
        QCOMPARE(logbook.table().tableCount(), u"0 dives"_s);
        fillLogbook(*logbook.carnet, {diveNumbered(1)});
        QCOMPARE(logbook.table().tableCount(), u"1 dive"_s);
        QCOMPARE(logbook.table().tableRows(), 1);
    }

    void aChangedSettingShowsInTheNextCell() {
        const TableLogbook logbook;
        Plongee dive = diveNumbered(1);
        dive.setProfondeur(12);
        fillLogbook(*logbook.carnet, {dive});
        UserDefaults& defaults = logbook.carnet->desk().defaults;
        const int column = int(logbook.table().shownColumns().indexOf(u"profondeur"_s));
        defaults.store(u"display units"_s, true);
        QCOMPARE(logbook.table().tableCell(0, column).text, u"12 m"_s);
        defaults.store(u"us units"_s, 1);
        QCOMPARE(logbook.table().tableCell(0, column).text, u"12 ft"_s);
        defaults.remove(u"us units"_s);
        QCOMPARE(logbook.table().tableCell(0, column).text, u"12 m"_s);
    }
};

int runDiveTableSourceTest(int argc, char** argv) {
    DiveTableSourceTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DiveTableSourceTest.moc"
