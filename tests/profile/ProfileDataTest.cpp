#include <QTest>
#include <cmath>

#include "profile/ProfileData.h"
#include "profile/ProfileTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

namespace {

NumberArray reals(const QList<double>& values) {
    return NumberArray::ofDoubles(std::span(values.constData(), std::size_t(values.size())));
}
NumberArray flags(const QList<qint32>& values) {
    return NumberArray::ofInts(std::span(values.constData(), std::size_t(values.size())));
}

}  // namespace

class ProfileDataTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aProfileHasMoreThanOneSample() {
        QVERIFY(!profile::isPresent(NumberArray()));
        QVERIFY(!profile::isPresent(NumberArray::empty()));
        QVERIFY(!profile::isPresent(reals({12})));
        QVERIFY(profile::isPresent(reals({0, 0})));
    }

    void anEmptyListGetsOneSample() {
        for (const NumberArray& none : {NumberArray(), NumberArray::empty()}) {
            QCOMPARE(profile::orSurface(none, true), reals({0.0}));
            QCOMPARE(profile::orSurface(none, false), flags({0}));
        }
        QCOMPARE(profile::orSurface(reals({7.5}), true), reals({7.5}));
        QCOMPARE(profile::orSurface(flags({1, 0}), false), flags({1, 0}));
    }

    void numbersBecomeLines_data() {
        QTest::addColumn<QList<double>>("values");
        QTest::addColumn<int>("precision");
        QTest::addColumn<QString>("text");
        QTest::newRow("one") << QList<double>{12.25} << 1 << u"12.2"_s;
        QTest::newRow("no newline at the end") << QList<double>{0, 3.1} << 1 << u"0.0\n3.1"_s;
        // A tie as binary fractions have it goes to the even digit; other halves are not ties at all.
        QTest::newRow("ties") << QList<double>{12.25, 12.75, 0.05, 0.15} << 1 << u"12.2\n12.8\n0.1\n0.1"_s;
        QTest::newRow("small and large")
            << QList<double>{-0.04, 1e15, -3} << 1 << u"-0.0\n1000000000000000.0\n-3.0"_s;
        QTest::newRow("none at all") << QList<double>{NAN, INFINITY} << 1 << u"nan\ninf"_s;
        QTest::newRow("plain") << QList<double>{12.25, 3, 0.1} << 0 << u"12.25\n3\n0.1"_s;
        QTest::newRow("precision 2") << QList<double>{1, 2, 3} << 2 << u"\n\n"_s;
        QTest::newRow("precision -1") << QList<double>{1} << -1 << u""_s;
        QTest::newRow("no numbers") << QList<double>{} << 1 << u""_s;
    }
    void numbersBecomeLines() {
        QFETCH(QList<double>, values);
        QFETCH(int, precision);
        QTEST(profile::editProfil(reals(values), precision), "text");
    }

    void flagsArePlainNumbers() { QCOMPARE(profile::editProfil(flags({0, 1, -7}), 0), u"0\n1\n-7"_s); }

    void linesBecomeReals_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QList<double>>("values");
        QTest::newRow("exactly as written")
            << u"12.25\n0.1\n3.14159265358979"_s << QList<double>{12.25, 0.1, 3.14159265358979};
        QTest::newRow("comma") << u"12,5\n-3,25"_s << QList<double>{12.5, -3.25};
        QTest::newRow("an empty text is one line") << u""_s << QList<double>{0};
        QTest::newRow("a newline at the end") << u"5\n"_s << QList<double>{5, 0};
        QTest::newRow("only newlines") << u"\n\n"_s << QList<double>{0, 0, 0};
        QTest::newRow("no number") << u"deep\n-\n4 m"_s << QList<double>{0, 0, 4};
        QTest::newRow("another system's lines") << u"1.5\r\n2.5\r\n"_s << QList<double>{1.5, 2.5, 0};
    }
    void linesBecomeReals() {
        QFETCH(QString, text);
        QFETCH(QList<double>, values);
        QCOMPARE(profile::realsFrom(text), reals(values));
    }

    void linesBecomeFlags_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QList<qint32>>("values");
        QTest::newRow("flags") << u"0\n1\n0"_s << QList<qint32>{0, 1, 0};
        QTest::newRow("the leading whole number") << u"1.9\n2x\n -3"_s << QList<qint32>{1, 2, -3};
        QTest::newRow("no number") << u"yes\n\n-"_s << QList<qint32>{0, 0, 0};
        QTest::newRow("an empty text") << u""_s << QList<qint32>{0};
    }
    void linesBecomeFlags() {
        QFETCH(QString, text);
        QFETCH(QList<qint32>, values);
        QCOMPARE(profile::flagsFrom(text), flags(values));
    }

    void readingWhatWasShownRoundsToOneDecimal() {
        const NumberArray back = profile::realsFrom(profile::editProfil(reals({12.25, 30.04, 7}), 1));
        QCOMPARE(back, reals({12.2, 30.0, 7}));
    }

    void theDeepestSampleIsComparedInSinglePrecision() {
        QCOMPARE(profile::greatest(NumberArray()), 0.0F);
        QCOMPARE(profile::greatest(reals({0, 32.1, 18})), 32.1F);
        QCOMPARE(profile::greatest(reals({-3, -1.5})), -1.5F);
    }

    void intervalOfACode_data() {
        QTest::addColumn<double>("seconds");
        const double table[] = {10, 20, 30, 60, 120, 4, 5, 5};
        for (int code = 0; code < 8; ++code) QTest::addRow("%d", code) << table[code];
    }
    void intervalOfACode() {
        QFETCH(double, seconds);
        QCOMPARE(profile::sampleInterval(QByteArray(QTest::currentDataTag()).toInt()),
                 std::optional(seconds));
    }
    void otherCodesMeanNothing() {
        for (const int code : {-1, 8, 10, INT_MAX, INT_MIN}) QVERIFY(!profile::sampleInterval(code));
    }
};

int runProfileDataTest(int argc, char** argv) {
    ProfileDataTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ProfileDataTest.moc"
