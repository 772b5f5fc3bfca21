#include <QTest>
#include <cmath>
#include <limits>

#include "platform/text/Numbers.h"
#include "platform/text/TextTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class NumbersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsTheLeadingNumber_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("number");
        const auto row = [](const QString& text, double number) {
            QTest::newRow(qPrintable(u'"' + text + u'"')) << text << number;
        };
        row(u""_s, 0);
        row(u" "_s, 0);
        row(u"-"_s, 0);
        row(u"+"_s, 0);
        row(u"--:--"_s, 0);
        row(u"abc"_s, 0);
        row(u"."_s, 0);
        row(u","_s, 0);
        row(u"-."_s, 0);
        row(u"e5"_s, 0);
        row(u"inf"_s, 0);
        row(u"nan"_s, 0);
        row(u"0x10"_s, 0);
        row(u"12"_s, 12);
        row(u"  12"_s, 12);
        row(u"\t12 m"_s, 12);
        row(u"\u00a012"_s, 12);
        row(u"12,5"_s, 12.5);
        row(u"12.5"_s, 12.5);
        row(u"12."_s, 12);
        row(u"12,"_s, 12);
        row(u".5"_s, 0.5);
        row(u",5"_s, 0.5);
        row(u"-,5"_s, -0.5);
        row(u"-12,5 bar"_s, -12.5);
        row(u"+7"_s, 7);
        row(u"- 7"_s, 0);
        row(u"--7"_s, 0);
        row(u"1.2.3"_s, 1.2);
        row(u"1,2,3"_s, 1.2);
        row(u"1.2,3"_s, 1.2);
        row(u"1 000"_s, 1);
        row(u"1e3"_s, 1000);
        row(u"1E+3"_s, 1000);
        row(u"2,5e-1"_s, 0.25);
        row(u"1e"_s, 1);
        row(u"1e+"_s, 1);
        row(u"1exit"_s, 1);
        row(u"007"_s, 7);
        row(u"1e999"_s, std::numeric_limits<double>::infinity());
        row(u"-1e999"_s, -std::numeric_limits<double>::infinity());
        row(u"1e-999"_s, 0);
        row(u"12\u0660"_s, 12);  // an Arabic zero is no digit here
        row(u"\u0661\u0662"_s, 0);
    }
    void readsTheLeadingNumber() {
        QFETCH(QString, text);
        QFETCH(double, number);
        QVERIFY2(leadingNumber(text) == number, qPrintable(QString::number(leadingNumber(text), 'g', 17)));
    }

    void keepsTheSignOfZero() { QVERIFY(std::signbit(leadingNumber(u"-0"))); }

    void readsVeryLongNumbers() {
        QCOMPARE(leadingNumber(QString(4000, u'9')), std::numeric_limits<double>::infinity());
        QCOMPARE(leadingNumber(u"0."_s + QString(4000, u'0') + u'1'), 0.0);
        QCOMPARE(leadingNumber(u"1."_s + QString(100000, u'0')), 1.0);
        QCOMPARE(leadingInteger(QString(100000, u'9')), INT_MAX);
    }

    void readsTheLeadingInteger_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("number");
        const auto row = [](const QString& text, int number) {
            QTest::newRow(qPrintable(u'"' + text + u'"')) << text << number;
        };
        row(u""_s, 0);
        row(u"-"_s, 0);
        row(u"abc"_s, 0);
        row(u"12"_s, 12);
        row(u" -12"_s, -12);
        row(u"+12"_s, 12);
        row(u"12.9"_s, 12);
        row(u"12,9"_s, 12);
        row(u"-12.9"_s, -12);
        row(u".9"_s, 0);
        row(u"1e3"_s, 1);
        row(u"12 bar"_s, 12);
        row(u"12bar"_s, 12);
        row(u"2147483647"_s, INT_MAX);
        row(u"2147483648"_s, INT_MAX);
        row(u"-2147483648"_s, INT_MIN);
        row(u"-2147483649"_s, INT_MIN);
        row(u"99999999999999999999"_s, INT_MAX);
        row(u"-99999999999999999999"_s, INT_MIN);
        row(u"00000000000000000000012"_s, 12);
    }
    void readsTheLeadingInteger() {
        QFETCH(QString, text);
        QFETCH(int, number);
        QCOMPARE(leadingInteger(text), number);
    }
};

int runNumbersTest(int argc, char** argv) {
    NumbersTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "NumbersTest.moc"
