#include <QSignalSpy>
#include <QTest>

#include "logbook/KeyedLogbook.h"
#include "logbook/LogbookTests.h"
#include "platform/record/RecordJson.h"
#include "support/Golden.h"

using namespace sargan;
using namespace Qt::StringLiterals;
using logbooktest::Logbook;

/// Add, update, delete and renumber.
class CarnetListTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Logbook> _book;

    Carnet& carnet() { return *_book->carnet; }
    void expectEraseQuestion(int answer) {
        _book->desk.prompt.expectBeep();
        _book->desk.prompt.expectQuestion(u"Erase dive"_s, answer);
    }

private Q_SLOTS:
    void init() { _book = std::make_unique<Logbook>(); }
    void cleanup() { QCOMPARE(_book->desk.prompt.finish(), QStringList()); }

    void aNewDiveIsNumberedAfterTheLast_data() {
        QTest::addColumn<QList<int>>("numbers");
        QTest::addColumn<int>("next");
        QTest::newRow("none") << QList<int>{} << 1;
        QTest::newRow("in order") << QList<int>{1, 2, 3} << 4;
        QTest::newRow("gaps") << QList<int>{1, 7, 20} << 21;
        QTest::newRow("out of order") << QList<int>{30, 20, 10} << 11;
        QTest::newRow("zero") << QList<int>{5, 0} << 1;
        QTest::newRow("negative") << QList<int>{-3} << -2;
        QTest::newRow("the same twice") << QList<int>{4, 4} << 5;
        QTest::newRow("the greatest") << QList<int>{INT_MAX} << INT_MIN;
    }
    void aNewDiveIsNumberedAfterTheLast() {
        QFETCH(QList<int>, numbers);
        QFETCH(int, next);
        _book->setNumbers(numbers);
        QCOMPARE(carnet().addDive(), numbers.size());
        QCOMPARE(_book->numbers(), numbers + QList<int>{next});
    }

    void aNewDiveIsSelectedAndInTheForm() {
        _book->setNumbers({1, 2});
        carnet().select({0, 1});
        QSignalSpy scrolled(&carnet(), &Carnet::scrollWanted);
        _book->add({{u"lieuField"_s, u"Brest"_s}});
        QCOMPARE(carnet().selection(), Selection({2}));
        QCOMPARE(carnet().currentIndex(), 2);
        QCOMPARE(scrolled.last()[0].toLongLong(), 2);
        QCOMPARE(_book->text(u"lieuField"_s), u"Brest"_s);
        QCOMPARE(_book->text(u"plongeeNoField"_s), u"3"_s);
        QVERIFY(carnet().isEdited());
        QCOMPARE(carnet().undoName(), u"Add dive"_s);
    }

    void addingBlanksTheFormFirst() {
        _book->add({{u"lieuField"_s, u"Brest"_s}, {u"o2MixField"_s, u"32"_s}, {u"meteoPopUp"_s, u"2"_s}});
        _book->add({{u"siteField"_s, u"La Fourmi"_s}});
        QCOMPARE(_book->places(), QStringList({u"Brest"_s, u""_s}));
        QCOMPARE(carnet().record(1).o2Mix(), 21);
        QCOMPARE(carnet().record(1).meteo(), 7);
    }

    void aNumberThatIsFilledInStands() {
        _book->add({{u"noPlongee"_s, u"77"_s}});
        _book->add();
        QCOMPARE(_book->numbers(), QList<int>({77, 78}));
    }

    void undoTakesTheNewDiveAway() {
        _book->add();
        carnet().undo();
        QCOMPARE(carnet().count(), 0);
        carnet().redo();
        QCOMPARE(_book->numbers(), QList<int>({1}));
        QCOMPARE(carnet().selection(), Selection({0}));
    }

    void updateReplacesTheSelectedDive() {
        for (const auto& place : {u"a"_s, u"b"_s, u"c"_s}) _book->add({{u"lieuField"_s, place}});
        carnet().select({1});
        _book->fill(u"lieuField"_s, u"B"_s);
        QCOMPARE(_book->places()[1], u"b"_s);
        carnet().updateDive();
        QCOMPARE(_book->places(), QStringList({u"a"_s, u"B"_s, u"c"_s}));
        QCOMPARE(carnet().selection(), Selection({1}));
        QCOMPARE(carnet().undoName(), u"Edit dive"_s);
        carnet().undo();
        QCOMPARE(_book->text(u"lieuField"_s), u"b"_s);
    }

    void updateWithoutSelectionOrChangeDoesNothing() {
        _book->add({{u"lieuField"_s, u"a"_s}});
        const auto before = carnet().records();
        QSignalSpy changed(&carnet(), &Document::contentChanged);
        carnet().updateDive();
        carnet().select({});
        _book->fill(u"lieuField"_s, u"b"_s);
        carnet().updateDive();
        QVERIFY(carnet().records() == before);
        QCOMPARE(changed.size(), 0);
    }

    void anUnchangedDiveOfAnOldVersionIsNotAnEdit_data() {
        QTest::addColumn<QString>("name");
        for (const QString& name : golden::logbooks()) QTest::newRow(qPrintable(name)) << name;
    }
    void anUnchangedDiveOfAnOldVersionIsNotAnEdit() {
        QFETCH(QString, name);
        carnet().readBytes(golden::bytes(name + u".carnet"_s), u"Carnet de plongee"_s);
        for (qsizetype row = 0; row < carnet().count(); ++row) {
            const Plongee& dive = carnet().record(row);
            // A mix or pressures that the checks would correct or tell are another matter.
            const auto isMix = [](int o2, int he) { return o2 > 0 && he >= 0 && he < 87; };
            if (!isMix(dive.o2Mix(), dive.heMix()) || !isMix(dive.o2Mix_2(), dive.heMix_2())) continue;
            carnet().select({row});
            carnet().updateDive();
        }
        _book->desk.prompt.finish();  // pressures as they stand in the archive are told each time
        QVERIFY(!carnet().isEdited());
    }

    void deletingAsksOnceForAllSelectedDives() {
        _book->setNumbers({1, 2, 3, 4, 5});
        carnet().select({0, 2, 4});
        expectEraseQuestion(0);
        QVERIFY(carnet().deleteDive());
        QCOMPARE(_book->numbers(), QList<int>({2, 4}));
        QCOMPARE(carnet().selection(), Selection());
        carnet().undo();
        QCOMPARE(_book->numbers(), QList<int>({1, 2, 3, 4, 5}));
    }

    void decliningTheQuestionKeepsAll() {
        _book->setNumbers({1, 2, 3});
        const auto before = carnet().records();
        carnet().select({0, 1});
        expectEraseQuestion(1);
        QVERIFY(!carnet().deleteDive());
        QVERIFY(carnet().records() == before);
        QCOMPARE(carnet().selection(), Selection({0, 1}));
    }

    void deletingWithoutSelectionAsksNothing() {
        _book->setNumbers({1});
        QVERIFY(!carnet().deleteDive());
        QCOMPARE(carnet().count(), 1);
    }

    void theEditedMarkFollowsUndoAndRedoAcrossASave() {
        QTemporaryDir folder;
        carnet().addDive();
        carnet().saveAs(folder.filePath(u"a.carnet"_s));
        QVERIFY(!carnet().isEdited());
        carnet().addDive();
        QVERIFY(carnet().isEdited());
        carnet().undo();
        QVERIFY(!carnet().isEdited());
        carnet().undo();
        QVERIFY(carnet().isEdited());
        carnet().redo();
        QVERIFY(!carnet().isEdited());
        carnet().redo();
        QVERIFY(carnet().isEdited());
        QVERIFY(!carnet().canRedo());
    }

    void aReadOnlyLogbookTakesNoChange() {
        _book->add({{u"lieuField"_s, u"A"_s}});
        const auto before = carnet().records();
        carnet().setReadOnly(true);
        carnet().select({0});
        _book->fill(u"bateauField"_s, u"B"_s);
        carnet().updateDive();
        QVERIFY(!carnet().deleteDive());
        carnet().renumDives();
        QCOMPARE(carnet().addDive(), -1);
        QVERIFY(carnet().records() == before);
    }

    void renumberingFollowsTheList_data() {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QList<int>>("numbers");
        QTest::newRow("100") << u"100"_s << QList<int>{100, 101, 102};
        QTest::newRow("negative") << u"-1"_s << QList<int>{-1, 0, 1};
        QTest::newRow("empty") << u""_s << QList<int>{0, 1, 2};
        QTest::newRow("no number") << u"x"_s << QList<int>{0, 1, 2};
        QTest::newRow("beyond int32") << u"2147483647"_s << QList<int>{INT_MAX, INT_MIN, INT_MIN + 1};
    }
    void renumberingFollowsTheList() {
        QFETCH(QString, start);
        _book->setNumbers({30, 10, 20});
        carnet().panel().setText(panelcontrol::renumNumber, start);
        carnet().renumDives();
        QTEST(_book->numbers(), "numbers");
        QCOMPARE(carnet().selection(), Selection({2}));
        QVERIFY(carnet().isEdited());
        carnet().undo();
        QCOMPARE(_book->numbers(), QList<int>({30, 10, 20}));
    }

    void renumberingStartsAtOneUnlessTold() {
        _book->setNumbers({7});
        carnet().renumDives();
        QCOMPARE(_book->numbers(), QList<int>({1}));
    }

    void renumberingTellsAnAlertOnceForAllDives() {
        _book->add({{u"departField"_s, u"200"_s}, {u"finField"_s, u"50"_s}});
        for (int i = 0; i < 2; ++i) {
            _book->desk.prompt.expectAlert(_book->desk.strings.text({"Carnet", "Pressure in out"}));
            _book->add({{u"departField"_s, u"50"_s}, {u"finField"_s, u"200"_s}});
        }
        carnet().panel().setText(panelcontrol::renumNumber, u"11"_s);
        _book->desk.prompt.expectAlert(_book->desk.strings.text({"Carnet", "Pressure in out"}) +
                                       u" Dives concerned: %@.|12, 13"_s);
        carnet().renumDives();
        QCOMPARE(_book->desk.prompt.finish(), QStringList());
        QCOMPARE(_book->numbers(), QList<int>({11, 12, 13}));
    }

    void renumberingAnEmptyLogbookIsPossible() {
        carnet().renumDives();
        QCOMPARE(carnet().count(), 0);
        QCOMPARE(carnet().selection(), Selection());
    }

    void renumberingKeepsEveryOtherArchivedField() {
        carnet().readBytes(golden::bytes(u"plongee-v27-unknown-objects.carnet"_s), u"Carnet de plongee"_s);
        const auto before = carnet().records();
        carnet().panel().setText(panelcontrol::renumNumber, u"500"_s);
        carnet().renumDives();
        _book->desk.prompt.finish();  // the golden dives have odd pressures and mixes
        for (qsizetype row = 0; row < 2; ++row)
            for (const Field<Plongee>* field : PlongeeFields::all) {
                const QByteArray name = field->name;
                if (name == "noPlongee" || name.startsWith("heMix") || name.startsWith("o2Mix")) continue;
                const bool same = std::visit(
                    [&](auto at) { return sameValue(carnet().record(row).*at, (*before[row]).*at); },
                    field->member);
                QVERIFY2(same, field->name);
            }
        QCOMPARE(_book->numbers(), QList<int>({500, 501}));
        QVERIFY(static_cast<const Record&>(carnet().record(0)) == static_cast<const Record&>(*before[0]));
    }
};

int runCarnetListTest(int argc, char** argv) {
    CarnetListTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "CarnetListTest.moc"
