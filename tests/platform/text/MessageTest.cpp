#include <QTest>
#include <limits>

#include "platform/text/Message.h"
#include "platform/text/TextTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

using Arguments = std::vector<FormatArgument>;
Q_DECLARE_METATYPE(Arguments)

namespace {

QString kindsOf(QStringView format) {
    QString kinds;
    for (const ArgumentKind kind : placeholdersOf(format)) kinds += QLatin1Char(char(kind));
    return kinds;
}

constexpr double infinity = std::numeric_limits<double>::infinity();

}  // namespace

class MessageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatAFormatTakes_data() {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("kinds");
        const auto row = [](const QString& format, const QString& kinds) {
            QTest::newRow(qPrintable(u'"' + format + u'"')) << format << kinds;
        };
        row(u""_s, u""_s);
        row(u"no placeholder"_s, u""_s);
        row(u"%@"_s, u"@"_s);
        row(u"%d %i %u %ld %lld"_s, u"ddddd"_s);
        row(u"%f %.1f %6.2f"_s, u"fff"_s);
        row(u"Tx %@/%@"_s, u"@@"_s);
        row(u"%d of %@: %.1f"_s, u"d@f"_s);
        row(u"100 %%"_s, u""_s);
        row(u"%%d"_s, u""_s);
        row(u"%%%d"_s, u"d"_s);
        row(u"%"_s, u""_s);
        row(u"50 % of"_s, u""_s);
        row(u"%y"_s, u""_s);
        row(u"%y%d"_s, u"d"_s);
        row(u"%5"_s, u""_s);
        row(u"%.f"_s, u"f"_s);
        row(u"%3d%3d"_s, u"dd"_s);
        row(u"%99999999999d"_s, u""_s);
    }
    void tellsWhatAFormatTakes() {
        QFETCH(QString, format);
        QFETCH(QString, kinds);
        QCOMPARE(kindsOf(format), kinds);
    }

    void fillsInOrder_data() {
        QTest::addColumn<QString>("format");
        QTest::addColumn<Arguments>("arguments");
        QTest::addColumn<QString>("filled");
        const auto row = [](const QString& format, const Arguments& arguments, const QString& filled) {
            QTest::newRow(qPrintable(format + u" -> "_s + filled)) << format << arguments << filled;
        };
        const qint64 large = 9007199254740993;
        row(u"plain"_s, {}, u"plain"_s);
        row(u"%d dives"_s, {qint64(3)}, u"3 dives"_s);
        row(u"%i|%ld|%u"_s, {qint64(-1), large, qint64(7)}, u"-1|9007199254740993|7"_s);
        row(u"[%4d]"_s, {qint64(42)}, u"[  42]"_s);
        row(u"[%1d]"_s, {qint64(420)}, u"[420]"_s);
        row(u"%f"_s, {1.5}, u"1.500000"_s);
        row(u"%.1f"_s, {2.25}, u"2.2"_s);
        row(u"%.0f"_s, {2.6}, u"3"_s);
        row(u"%.f"_s, {2.6}, u"3"_s);
        row(u"[%6.2f]"_s, {-1.005}, u"[ -1.00]"_s);
        row(u"%@"_s, {QString(u"Brest"_s)}, u"Brest"_s);
        row(u"%@"_s, {qint64(12)}, u"12"_s);
        row(u"%@"_s, {12.5}, u"12.5"_s);
        row(u"%@"_s, {32.0}, u"32"_s);
        row(u"Tx %@/%@"_s, {qint64(18), qint64(45)}, u"Tx 18/45"_s);
        row(u"%d %%"_s, {qint64(50)}, u"50 %"_s);
        row(u"%%"_s, {}, u"%"_s);
        row(u"%%d"_s, {qint64(5)}, u"%d"_s);
        // Another kind than the placeholder's is shown as %@ shows it.
        row(u"%d"_s, {2.5}, u"2.5"_s);
        row(u"%d"_s, {QString(u"x"_s)}, u"x"_s);
        row(u"%.1f"_s, {qint64(4)}, u"4"_s);
        row(u"%.1f"_s, {QString(u"x"_s)}, u"x"_s);
        row(u"%.1f"_s, {infinity}, u"inf"_s);
        row(u"%f"_s, {std::numeric_limits<double>::quiet_NaN()}, u"nan"_s);
        // Without an argument a placeholder stays as it stands; arguments too many are left out.
        row(u"%d and %@"_s, {qint64(1)}, u"1 and %@"_s);
        row(u"%@"_s, {}, u"%@"_s);
        row(u"%5.1f|%%"_s, {}, u"%5.1f|%"_s);
        row(u"%d"_s, {qint64(1), qint64(2)}, u"1"_s);
        // What is no placeholder is text.
        row(u"50 % of %d"_s, {qint64(8)}, u"50 % of 8"_s);
        row(u"%"_s, {qint64(8)}, u"%"_s);
        row(u"%y %d"_s, {qint64(8)}, u"%y 8"_s);
        row(u"%-5d|"_s, {qint64(8)}, u"%-5d|"_s);
        // An argument is never read as a format.
        row(u"%@ %@"_s, {QString(u"%@"_s), QString(u"%d"_s)}, u"%@ %d"_s);
        row(u"été %@ 水"_s, {QString(u"🐙"_s)}, u"été 🐙 水"_s);
    }
    void fillsInOrder() {
        QFETCH(QString, format);
        QFETCH(Arguments, arguments);
        QFETCH(QString, filled);
        QCOMPARE(fillFormat(format, arguments), filled);
    }

    void aWidthCannotFillTheMemory() {
        const Arguments one{qint64(1)};
        QVERIFY(fillFormat(u"%999999999d", one).size() < 20000);
    }

    void showsDoublesInTheirShortestForm_data() {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        const auto row = [](double value, const char* text) {
            QTest::newRow(text) << value << QString::fromLatin1(text);
        };
        row(0, "0");
        row(-0.0, "-0");
        row(4, "4");
        row(-12.3, "-12.3");
        row(0.1, "0.1");
        row(1.0 / 3, "0.3333333333333333");
        row(1e-5, "0.00001");
        row(9e-6, "9e-06");
        row(999999999999999, "999999999999999");
        row(1e15, "1e+15");
        row(std::numeric_limits<double>::max(), "1.7976931348623157e+308");
        row(std::numeric_limits<double>::denorm_min(), "5e-324");
        row(std::numeric_limits<double>::quiet_NaN(), "nan");
        row(-std::numeric_limits<double>::quiet_NaN(), "nan");
        row(infinity, "inf");
        row(-infinity, "-inf");
    }
    void showsDoublesInTheirShortestForm() {
        QFETCH(double, value);
        QFETCH(QString, text);
        QCOMPARE(shortest(value), text);
    }

    void showsFloatsInTheirShortestForm_data() {
        QTest::addColumn<float>("value");
        QTest::addColumn<QString>("text");
        const auto row = [](float value, const char* text) {
            QTest::newRow(text) << value << QString::fromLatin1(text);
        };
        row(12.3F, "12.3");
        row(0.1F, "0.1");
        row(16777216.0F, "16777216");
        row(1.0F / 3, "0.33333334");
        row(std::numeric_limits<float>::max(), "3.4028235e+38");
        row(std::numeric_limits<float>::denorm_min(), "1e-45");
        row(std::numeric_limits<float>::quiet_NaN(), "nan");
        row(-std::numeric_limits<float>::infinity(), "-inf");
    }
    void showsFloatsInTheirShortestForm() {
        QFETCH(float, value);
        QFETCH(QString, text);
        QCOMPARE(shortest(value), text);
    }

    void theKindsOfAMessageAreItsArguments() {
        const auto kinds = Message<int, float, double, qint64, QString>::argumentKinds();
        const std::array wanted{ArgumentKind::Whole, ArgumentKind::Real, ArgumentKind::Real,
                                ArgumentKind::Whole, ArgumentKind::Text};
        QVERIFY(kinds == wanted);
        static_assert(Message<>::argumentKinds().empty());
    }
};

int runMessageTest(int argc, char** argv) {
    MessageTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "MessageTest.moc"
