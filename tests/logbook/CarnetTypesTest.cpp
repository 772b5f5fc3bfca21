#include <QSignalSpy>
#include <QTest>

#include "logbook/KeyedLogbook.h"
#include "logbook/LogbookTests.h"
#include "support/Failure.h"
#include "support/Golden.h"

using namespace sargan;
using namespace Qt::StringLiterals;
using logbooktest::Logbook;

using CarnetSignal = void (Carnet::*)();
Q_DECLARE_METATYPE(CarnetSignal)

/// Loading and saving by type name, and what the logbook hears from the rest of the program.
class CarnetTypesTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Logbook> _book;

    Carnet& carnet() { return *_book->carnet; }

private Q_SLOTS:
    void init() { _book = std::make_unique<Logbook>(); }

    void theOwnTypeIsTheArchiveAndIsLogged_data() {
        QTest::addColumn<QString>("language");
        for (const auto& language : {u"en"_s, u"fr"_s, u"keys"_s})
            QTest::newRow(qPrintable(language)) << language;
    }
    void theOwnTypeIsTheArchiveAndIsLogged() {
        QFETCH(QString, language);
        QStringList lines;
        _book->desk.desk.log = Log([&](const QString& line) { lines << line; });
        _book->desk.strings.setLanguage(*Strings::languageNamed(language));
        const QString type = _book->desk.strings.text({"Main", "Carnet de plongee"});
        const QByteArray bytes = carnet().dataRepresentationOfType(type);
        QCOMPARE(bytes, golden::bytes(u"empty.carnet"_s));
        QCOMPARE(lines, QStringList({u"CARNET"_s}));
        QVERIFY(carnet().dataRepresentationOfType(type.toUpper()).isNull());
        QVERIFY(carnet().dataRepresentationOfType(u""_s).isNull());
        QCOMPARE(lines.size(), 1);
    }

    void otherTypesAreWhatWasRegistered() {
        _book->desk.saveTypes[u"Numbers"_s] = [](const Carnet& book) {
            return QByteArray::number(int(book.count()));
        };
        _book->add();
        QCOMPARE(carnet().dataRepresentationOfType(u"Numbers"_s), QByteArray("1"));
        QVERIFY(carnet().dataRepresentationOfType(u"numbers"_s).isNull());
    }

    void loadingShowsTheLastDiveWithoutSelectingIt() {
        QSignalSpy scrolled(&carnet(), &Carnet::scrollWanted);
        QVERIFY(
            carnet().loadDataRepresentation(golden::bytes(u"plongee-v26.carnet"_s), u"Carnet de plongee"_s));
        QCOMPARE(carnet().count(), 10);
        QCOMPARE(carnet().selection(), Selection());
        QCOMPARE(scrolled.last()[0].toInt(), 9);
    }

    void onlyTheOwnTypeIsLoaded() {
        const QByteArray bytes = golden::bytes(u"plongee-v26.carnet"_s);
        QVERIFY(!carnet().loadDataRepresentation(bytes, u"Epaves"_s));
        QCOMPARE(carnet().count(), 10);
    }

    void loadingAnEmptyLogbookShowsNothing() {
        QSignalSpy scrolled(&carnet(), &Carnet::scrollWanted);
        QVERIFY(carnet().loadDataRepresentation(golden::bytes(u"empty.carnet"_s), u"Carnet de plongee"_s));
        QCOMPARE(scrolled.size(), 0);
    }

    void whatIsNoLogbookIsAnError() {
        QVERIFY(failureOf<ArchiveError>([&] {
            carnet().loadDataRepresentation(golden::bytes(u"budget-v1.budget"_s), u"Carnet de plongee"_s);
        }));
        QCOMPARE(carnet().count(), 0);
    }

    void theSummaryHasFirstAndLastDateOfAllThatHaveOne() {
        QCOMPARE(carnet().summary().firstDate, QString());
        for (const auto& date : {u"2016-06-07"_s, u""_s, u"1999-12-31"_s, u"2010-01-01T12:00:00"_s})
            _book->add({{u"dateField"_s, date}});
        QCOMPARE(carnet().summary().firstDate, u"1999-12-31T00:00:00"_s);
        QCOMPARE(carnet().summary().lastDate, u"2016-06-07T00:00:00"_s);
        QCOMPARE(carnet().summary().records, 4);
        QCOMPARE(carnet().summary().recordClass, u"Plongee"_s);
    }

    void notificationsBecomeSignals_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<CarnetSignal>("signal");
        QTest::newRow("table") << u"updateTableView"_s << &Carnet::tableReloadWanted;
        QTest::newRow("columns") << u"updateColumnsTableView"_s << &Carnet::columnsChanged;
        QTest::newRow("profile") << u"profile"_s << &Carnet::profileChanged;
        QTest::newRow("renumber") << u"renumDives"_s << &Carnet::renumSheetWanted;
    }
    void notificationsBecomeSignals() {
        QFETCH(QString, name);
        QFETCH(CarnetSignal, signal);
        const CarnetSignal all[] = {&Carnet::tableReloadWanted, &Carnet::columnsChanged,
                                    &Carnet::profileChanged, &Carnet::renumSheetWanted};
        int own = 0, others = 0;
        for (const CarnetSignal each : all)
            connect(&carnet(), each, this, [&, isOwn = each == signal] { ++(isOwn ? own : others); });
        _book->desk.notifications.post(name, nullptr);
        QCOMPARE(own, 1);
        QCOMPARE(others, 0);
    }

    void notificationsRefreshTheFormsCaptions_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("edit form") << u"updateEditDive"_s;
        QTest::newRow("decompression") << u"updateDeco"_s;
    }
    void notificationsRefreshTheFormsCaptions() {
        QFETCH(QString, name);
        carnet().form().setText(divecontrol::difficulteCaption, u"stale"_s);
        _book->desk.notifications.post(name, nullptr);
        QCOMPARE(_book->text(u"difficulteField"_s), u"Very easy"_s);
    }

    void everyOpenLogbookHearsThemUntilItIsClosed() {
        auto second = _book->desk.newLogbook();
        QSignalSpy one(&carnet(), &Carnet::renumSheetWanted);
        int two = 0;
        connect(second.get(), &Carnet::renumSheetWanted, this, [&] { ++two; });
        _book->desk.notifications.post(u"renumDives"_s, nullptr);
        second.reset();
        _book->desk.notifications.post(u"renumDives"_s, nullptr);
        QCOMPARE(one.size(), 2);
        QCOMPARE(two, 1);
    }
};

int runCarnetTypesTest(int argc, char** argv) {
    CarnetTypesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "CarnetTypesTest.moc"
