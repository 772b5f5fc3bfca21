#include <QtTest>
#include <QtWidgets>

#include "UiTests.h"
#include "platform/ui/MomentField.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class MomentFieldTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void daysAreReadInTheWaysThatPeopleWriteThem_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDate>("day");
        QTest::newRow("as shown") << u"07/06/2016"_s << QDate(2016, 6, 7);
        QTest::newRow("short") << u"7/6/16"_s << QDate(2016, 6, 7);
        QTest::newRow("points") << u"7.6.2016"_s << QDate(2016, 6, 7);
        QTest::newRow("dashes") << u" 7-6-2016 "_s << QDate(2016, 6, 7);
        QTest::newRow("without separators") << u"07062016"_s << QDate(2016, 6, 7);
        QTest::newRow("short without separators") << u"070616"_s << QDate(2016, 6, 7);
        QTest::newRow("ISO") << u"2016-06-07"_s << QDate(2016, 6, 7);
        QTest::newRow("last century") << u"01/02/85"_s << QDate(1985, 2, 1);
        QTest::newRow("no such day") << u"31/02/2016"_s << QDate();
        QTest::newRow("half a day") << u"07/06"_s << QDate();
        QTest::newRow("dashes only") << u"--/--/----"_s << QDate();
        QTest::newRow("words") << u"yesterday"_s << QDate();
    }
    void daysAreReadInTheWaysThatPeopleWriteThem() {
        QFETCH(QString, text);
        QFETCH(QDate, day);
        QCOMPARE(MomentField::readDay(text), day);
    }

    void timesAreReadInTheWaysThatPeopleWriteThem_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QTime>("time");
        QTest::newRow("as shown") << u"14:30"_s << QTime(14, 30);
        QTest::newRow("French") << u"14h30"_s << QTime(14, 30);
        QTest::newRow("French hour") << u"9h"_s << QTime(9, 0);
        QTest::newRow("digits") << u"1430"_s << QTime(14, 30);
        QTest::newRow("three digits") << u"930"_s << QTime(9, 30);
        QTest::newRow("hour") << u"9"_s << QTime(9, 0);
        QTest::newRow("no such time") << u"25:00"_s << QTime();
        QTest::newRow("words") << u"noon"_s << QTime();
    }
    void timesAreReadInTheWaysThatPeopleWriteThem() {
        QFETCH(QString, text);
        QFETCH(QTime, time);
        QCOMPARE(MomentField::readTime(text), time);
    }

    void anAbsentMomentIsShownAsDashesAndStaysAbsent() {
        MomentField day(MomentField::Part::Day, nullptr);
        MomentField time(MomentField::Part::TimeOfDay, nullptr);
        QSignalSpy edits(&day, &MomentField::momentEdited);
        day.show();
        QCOMPARE(day.text(), u"--/--/----"_s);
        QCOMPARE(time.text(), u"--:--"_s);
        QTest::keyClick(&day, Qt::Key_Up);
        QTest::keyClick(&day, Qt::Key_End);
        QVERIFY(!day.moment().isPresent());
        QCOMPARE(edits.size(), 0);
    }

    void anotherDayKeepsTheTimeOfDay() {
        MomentField field(MomentField::Part::Day, nullptr);
        field.setMoment(Moment::fromIso(u"2016-06-07T14:30:25.500"_s));
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&field, u"24/12/2017"_s);
        QCOMPARE(field.moment().iso(), u"2017-12-24T14:30:25.5"_s);
    }

    void anotherTimeKeepsTheDay() {
        MomentField field(MomentField::Part::TimeOfDay, nullptr);
        field.setMoment(Moment::fromIso(u"2016-06-07T14:30:25"_s));
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&field, u"09:05"_s);
        QCOMPARE(field.moment().iso(), u"2016-06-07T09:05:00"_s);
    }

    void anEditThatMeansTheSameKeepsEveryBit() {
        for (const auto part : {MomentField::Part::Day, MomentField::Part::TimeOfDay}) {
            MomentField field(part, nullptr);
            // A fraction that no date-time holds must survive.
            const Moment exact = Moment::fromSeconds(487'000'000.123456789);
            field.setMoment(exact);
            QTest::keyClick(&field, Qt::Key_End);
            QTest::keyClicks(&field, u" "_s);
            QCOMPARE(field.moment(), exact);
        }
    }

    void showingAMomentNeverChangesIt() {
        MomentField field(MomentField::Part::Day, nullptr);
        QSignalSpy edits(&field, &MomentField::momentEdited);
        for (const double seconds : {0.0, -1.0, 487'000'000.1234567, 1e12, -1e12}) {
            field.setMoment(Moment::fromSeconds(seconds));
            field.show();
            field.setFocus();
            field.clearFocus();
            QCOMPARE(field.moment(), Moment::fromSeconds(seconds));
        }
        QCOMPARE(edits.size(), 0);
    }

    void anEmptiedFieldIsAbsent() {
        MomentField field(MomentField::Part::Day, nullptr);
        field.setMoment(Moment::fromIso(u"2016-06-07"_s));
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&field, Qt::Key_Delete);
        QVERIFY(!field.moment().isPresent());
    }

    void upAndDownStep() {
        MomentField day(MomentField::Part::Day, nullptr);
        day.setMoment(Moment::fromIso(u"2016-02-28T10:00:00"_s));
        QTest::keyClick(&day, Qt::Key_Up);
        QCOMPARE(day.moment().iso(), u"2016-02-29T10:00:00"_s);
        MomentField time(MomentField::Part::TimeOfDay, nullptr);
        time.setMoment(Moment::fromIso(u"2016-02-28T10:00:00"_s));
        QTest::keyClick(&time, Qt::Key_Down);
        QCOMPARE(time.moment().iso(), u"2016-02-28T09:59:00"_s);
    }

    void whatCannotBeReadGivesWayToTheValueWhenTheFieldIsLeft() {
        QWidget window;
        auto* field = new MomentField(MomentField::Part::Day, &window);
        auto* other = new QLineEdit(&window);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        field->setMoment(Moment::fromIso(u"2016-06-07"_s));
        field->setFocus();
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, u"99/99/2016"_s);
        other->setFocus();
        QCOMPARE(field->text(), u"07/06/2016"_s);
    }
};

int runMomentFieldTest(int argc, char** argv) {
    MomentFieldTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "MomentFieldTest.moc"
