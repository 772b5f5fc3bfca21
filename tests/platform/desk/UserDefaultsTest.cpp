#include <QJsonArray>
#include <QTest>
#include <climits>

#include "platform/desk/DeskTests.h"
#include "platform/desk/UserDefaults.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class UserDefaultsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aRegisteredValueAppliesUntilOneIsStored() {
        UserDefaults defaults;
        QVERIFY(!defaults.contains(u"low GF"_s));
        QVERIFY(defaults.value(u"low GF"_s).isUndefined());
        defaults.registerDefault(u"low GF"_s, 30);
        QCOMPARE(defaults.integer(u"low GF"_s), 30);
        defaults.store(u"low GF"_s, 40);
        QCOMPARE(defaults.integer(u"low GF"_s), 40);
        QCOMPARE(defaults.registered(u"low GF"_s).toInt(), 30);
        QCOMPARE(defaults.stored(u"low GF"_s).toInt(), 40);
        defaults.remove(u"low GF"_s);
        QCOMPARE(defaults.integer(u"low GF"_s), 30);
        defaults.remove(u"low GF"_s);
        QVERIFY(defaults.contains(u"low GF"_s));
    }

    void aStoredNullIsAValue() {
        UserDefaults defaults;
        defaults.registerDefault(u"k"_s, 5);
        defaults.store(u"k"_s, QJsonValue());
        QVERIFY(defaults.value(u"k"_s).isNull());
        QCOMPARE(defaults.integer(u"k"_s), 0);
    }

    void listsTheKeysOfBothLayersSorted() {
        UserDefaults defaults;
        defaults.registerDefault(u"b"_s, 1);
        defaults.registerDefault(u"a"_s, 1);
        defaults.store(u"c"_s, 1);
        defaults.store(u"a"_s, 2);
        QCOMPARE(defaults.keys(), QStringList({u"a"_s, u"b"_s, u"c"_s}));
    }

    void readsLoosely_data() {
        QTest::addColumn<QJsonValue>("value");
        QTest::addColumn<bool>("boolean");
        QTest::addColumn<int>("integer");
        QTest::addColumn<double>("number");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const QJsonValue& value, bool boolean, int integer,
                            double number, const QString& text) {
            QTest::newRow(name) << value << boolean << integer << number << text;
        };
        row("absent", QJsonValue(QJsonValue::Undefined), false, 0, 0, {});
        row("null", QJsonValue(), false, 0, 0, {});
        row("true", true, true, 1, 1, u"1"_s);
        row("false", false, false, 0, 0, u"0"_s);
        row("zero", 0, false, 0, 0, u"0"_s);
        row("whole", 12, true, 12, 12, u"12"_s);
        row("negative", -3, true, -3, -3, u"-3"_s);
        row("real", 12.5, true, 12, 12.5, u"12.5"_s);
        row("nearly the next", 2.99999, true, 2, 2.99999, u"2.99999"_s);
        row("nearly the next below", -2.99999, true, -2, -2.99999, u"-2.99999"_s);
        row("small", 0.25, true, 0, 0.25, u"0.25"_s);
        row("beyond int32", 1e12, true, INT_MAX, 1e12, u"1000000000000"_s);
        row("far below int32", -1e300, true, INT_MIN, -1e300, u"-1e+300"_s);
        row("empty text", u""_s, false, 0, 0, u""_s);
        row("number text", u" 12,5 bar"_s, true, 12, 12.5, u" 12,5 bar"_s);
        row("zero text", u"0"_s, false, 0, 0, u"0"_s);
        row("true text", u"True "_s, true, 0, 0, u"True "_s);
        row("yes text", u"YES"_s, true, 0, 0, u"YES"_s);
        row("no text", u"NO"_s, false, 0, 0, u"NO"_s);
        row("other text", u"-"_s, false, 0, 0, u"-"_s);
        row("list", QJsonArray{1, 2}, false, 0, 0, {});
    }
    void readsLoosely() {
        QFETCH(QJsonValue, value);
        UserDefaults defaults;
        if (!value.isUndefined()) defaults.store(u"k"_s, value);
        QTEST(defaults.boolean(u"k"_s), "boolean");
        QTEST(defaults.integer(u"k"_s), "integer");
        QTEST(defaults.number(u"k"_s), "number");
        QTEST(defaults.text(u"k"_s), "text");
    }

    void readsListsOfTexts() {
        UserDefaults defaults;
        QCOMPARE(defaults.list(u"lieux"_s), QStringList());
        defaults.store(u"lieux"_s, QJsonArray{u"Brest"_s, u" Molène"_s, u""_s});
        QCOMPARE(defaults.list(u"lieux"_s), QStringList({u"Brest"_s, u" Molène"_s, u""_s}));
        defaults.store(u"lieux"_s, u"Brest"_s);
        QCOMPARE(defaults.list(u"lieux"_s), QStringList());
    }
};

int runUserDefaultsTest(int argc, char** argv) {
    UserDefaultsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "UserDefaultsTest.moc"
