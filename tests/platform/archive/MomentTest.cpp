#include <QTest>
#include <QTimeZone>
#include <limits>

#include "ArchiveTests.h"
#include "platform/archive/Moment.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

const double infinity = std::numeric_limits<double>::infinity();

}  // namespace

class MomentTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isoShowsLocalTime_data();
    void isoShowsLocalTime();
    void isoIsReadBackBitForBit_data();
    void isoIsReadBackBitForBit();
    void otherFormsOfTextAreRead_data();
    void otherFormsOfTextAreRead();
    void otherTextsAreAbsent_data();
    void otherTextsAreAbsent();
    void localIsToTheMillisecond();
    void localIsInvalidWhereNoCalendarReaches();
    void dateTimesAreTakenToTheMillisecond();
    void equalMeansTheSameBits();
};

void MomentTest::initTestCase() {
    // The values below are for Paris: one hour ahead in winter, two in summer.
    qputenv("TZ", "Europe/Paris");
    tzset();
}

void MomentTest::isoShowsLocalTime_data() {
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("iso");
    QTest::newRow("epoch") << 0.0 << u"2001-01-01T01:00:00"_s;
    QTest::newRow("a second before") << -1.0 << u"2001-01-01T00:59:59"_s;
    QTest::newRow("a quarter second before") << -0.25 << u"2001-01-01T00:59:59.75"_s;
    QTest::newRow("winter") << 21692800.0 << u"2001-09-09T03:46:40"_s;
    QTest::newRow("fraction") << 700000000.523 << u"2023-03-08T21:26:40.523"_s;
    QTest::newRow("short fraction") << 0.5 << u"2001-01-01T01:00:00.5"_s;
    QTest::newRow("tiny") << 1e-10 << u"2001-01-01T01:00:00.0000000001"_s;
    QTest::newRow("infinite") << infinity << u"@inf"_s;
    QTest::newRow("far") << 1e15 << u"@1e+15"_s;
}

void MomentTest::isoShowsLocalTime() {
    QFETCH(double, seconds);
    QFETCH(QString, iso);
    QCOMPARE(Moment::fromSeconds(seconds).iso(), iso);
}

void MomentTest::isoIsReadBackBitForBit_data() {
    QTest::addColumn<double>("seconds");
    for (const double seconds :
         {0.0, 0.5, 0.1, -0.1, 1e-7, -1e-7, 700000000.523, -3786825600.25, 487000000.0625, 123456789.98765433,
          -123456789.98765433, 1e15, -infinity, 1e-300, -1.5}) {
        QTest::addRow("%.17g", seconds) << seconds;
    }
}

void MomentTest::isoIsReadBackBitForBit() {
    QFETCH(double, seconds);
    const Moment moment = Moment::fromSeconds(seconds);
    QVERIFY2(Moment::fromIso(moment.iso()) == moment, qPrintable(moment.iso()));
}

void MomentTest::otherFormsOfTextAreRead_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("seconds");
    QTest::newRow("time of day") << u"14:30"_s << 13.5 * 3600;
    QTest::newRow("midnight") << u"00:00"_s << -3600.0;
    QTest::newRow("day in winter") << u"2001-01-02"_s << 23.0 * 3600;
    // 7 June 2016 is 5636 days after 1 January 2001; midnight in Paris is 22:00 UTC of the day before.
    QTest::newRow("day in summer") << u"2016-06-07"_s << 5636 * 86400.0 - 7200;
    QTest::newRow("seconds") << u"2016-06-07T14:30:00"_s << 5636 * 86400.0 + 12.5 * 3600;
    QTest::newRow("fraction") << u"2016-06-07T14:30:00.25"_s << 5636 * 86400.0 + 12.5 * 3600 + 0.25;
    QTest::newRow("no calendar") << u"@1e20"_s << 1e20;
}

void MomentTest::otherFormsOfTextAreRead() {
    QFETCH(QString, text);
    QFETCH(double, seconds);
    const Moment moment = Moment::fromIso(text);
    QVERIFY(moment.isPresent());
    QCOMPARE(moment.seconds(), seconds);
}

void MomentTest::otherTextsAreAbsent_data() {
    QTest::addColumn<QString>("text");
    for (const char* text : {"", "x", "24:00", "1:30", "2016-6-7", "2016-02-30", "2016-06-07 14:30:00",
                             "2016-06-07T14:30", "2016-06-07T14:30:00.", "2016-06-07T14:30:00.5x",
                             "2016-06-07T14:30:00,5", "2016-06-07T14:30:00Z", "0000-01-01", "@", "@x"}) {
        QTest::addRow("\"%s\"", text) << QString::fromLatin1(text);
    }
}

void MomentTest::otherTextsAreAbsent() {
    QFETCH(QString, text);
    QVERIFY(!Moment::fromIso(text).isPresent());
}

void MomentTest::localIsToTheMillisecond() {
    QCOMPARE(Moment::fromSeconds(700000000.523).local(),
             QDateTime(QDate(2023, 3, 8), QTime(21, 26, 40, 523)));
    QCOMPARE(Moment::fromSeconds(-0.0004).local(), QDateTime(QDate(2001, 1, 1), QTime(1, 0)));
}

void MomentTest::localIsInvalidWhereNoCalendarReaches() {
    QVERIFY(!Moment().local().isValid());
    QCOMPARE(Moment().iso(), QString());
    for (const double seconds :
         {infinity, -infinity, std::numeric_limits<double>::quiet_NaN(), 1e300, 1e12}) {
        QVERIFY(!Moment::fromSeconds(seconds).local().isValid());
    }
    // 1 January 10000 and 31 December of the year before the first, in UTC.
    QVERIFY(!Moment::fromSeconds(252423993600.0).local().isValid());
    QVERIFY(Moment::fromSeconds(252423993600.0 - 86400).local().isValid());
    QVERIFY(!Moment::fromSeconds(-63113904000.0 - 86400).local().isValid());
    QVERIFY(Moment::fromSeconds(-63113904000.0 + 86400).local().isValid());
}

void MomentTest::dateTimesAreTakenToTheMillisecond() {
    const QDateTime dateTime(QDate(2001, 1, 1), QTime(1, 0, 0, 250), Qt::UTC);
    QCOMPARE(Moment::fromDateTime(dateTime).seconds(), 3600.25);
    QVERIFY(!Moment::fromDateTime(QDateTime()).isPresent());
}

void MomentTest::equalMeansTheSameBits() {
    QVERIFY(Moment() == Moment());
    QVERIFY(Moment() != Moment::fromSeconds(0));
    QVERIFY(Moment::fromSeconds(0.0) != Moment::fromSeconds(-0.0));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QVERIFY(Moment::fromSeconds(nan) == Moment::fromSeconds(nan));
}

int runMomentTest(int argc, char** argv) {
    MomentTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "MomentTest.moc"
