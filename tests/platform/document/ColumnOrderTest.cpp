#include "platform/document/ColumnOrder.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QtTest>

#include "platform/document/DocumentTests.h"

using namespace sargan;
using namespace Qt::StringLiterals;

class ColumnOrderTest : public QObject {
    Q_OBJECT

    static QList<TableColumn> columns(const QStringList& identifiers) {
        QList<TableColumn> list;
        for (const QString& identifier : identifiers) list.append({identifier, {"T", "t", "t"}, 5});
        return list;
    }

private Q_SLOTS:
    void columnsStandAsThePersonLeftThem_data() {
        QTest::addColumn<QStringList>("order");
        QTest::addColumn<QList<int>>("places");
        QTest::newRow("never moved") << QStringList() << QList<int>{0, 1, 2, 3};
        QTest::newRow("all named") << QStringList{u"d"_s, u"b"_s, u"a"_s, u"c"_s} << QList<int>{3, 1, 0, 2};
        QTest::newRow("hidden and unknown ones")
            << QStringList{u"x"_s, u"d"_s, u""_s, u"a"_s, u"y"_s, u"b"_s, u"c"_s} << QList<int>{3, 0, 1, 2};
        QTest::newRow("one twice") << QStringList{u"b"_s, u"a"_s, u"b"_s, u"c"_s, u"d"_s}
                                   << QList<int>{1, 0, 2, 3};
        // "c" and "b" come back: each at its designed place among those that stand already.
        QTest::newRow("new ones between") << QStringList{u"d"_s, u"a"_s} << QList<int>{3, 1, 2, 0};
        QTest::newRow("a new one first") << QStringList{u"d"_s, u"c"_s, u"b"_s} << QList<int>{0, 3, 2, 1};
    }
    void columnsStandAsThePersonLeftThem() {
        QFETCH(QStringList, order);
        QTEST(placesInOrder(columns({u"a"_s, u"b"_s, u"c"_s, u"d"_s}), order), "places");
    }

    void withoutColumnsNothingStands() { QCOMPARE(placesInOrder({}, {u"a"_s}), QList<int>()); }

    void theOrderIsKeptByTheNameOfTheTable() {
        UserDefaults defaults;
        QCOMPARE(rememberedColumnOrder(defaults, u"Carnet"_s), QStringList());
        defaults.store(u"table Carnet"_s, QJsonObject{{u"order"_s, QJsonArray{u"b"_s, u"a"_s}}});
        QCOMPARE(rememberedColumnOrder(defaults, u"Carnet"_s), (QStringList{u"b"_s, u"a"_s}));
        QCOMPARE(rememberedColumnOrder(defaults, u"Epaves"_s), QStringList());
        defaults.store(u"table Carnet"_s, u"nonsense"_s);
        QCOMPARE(rememberedColumnOrder(defaults, u"Carnet"_s), QStringList());
    }
};

int runColumnOrderTest(int argc, char** argv) {
    ColumnOrderTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ColumnOrderTest.moc"
