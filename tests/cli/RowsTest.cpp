#include <QTest>

#include "cli/CliTests.h"
#include "cli/Workshop.h"

using namespace Qt::StringLiterals;

namespace {

/// Five dives with the numbers 11 to 15, each with a profile and a note of its own.
void putFive(const Workshop& shop) {
    QJsonArray dives;
    for (int number = 11; number <= 15; ++number)
        dives.append(dive({{u"noPlongee"_s, number},
                           {u"notes"_s, u"dive %1"_s.arg(number)},
                           {u"profilProfondeur"_s, QJsonArray{0, number / 2.0, 0}}}));
    shop.putLogbook(u"a.carnet"_s, dives);
}

}  // namespace

class RowsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void deletesTheseRows_data() {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QList<int>>("left");
        const auto row = [](const QString& line, const QList<int>& left) {
            QTest::newRow(qPrintable(line)) << line << left;
        };
        row(u"delete a.carnet --row 0"_s, {1, 2, 3, 4});
        row(u"delete a.carnet --row 4"_s, {0, 1, 2, 3});
        row(u"delete a.carnet --row 0 2"_s, {1, 3, 4});
        row(u"delete a.carnet --row 0 --row 2"_s, {1, 3, 4});
        row(u"delete a.carnet --row 0 --row 2 3"_s, {1, 4});
        row(u"delete --row 3 1 a.carnet"_s, {0, 2, 4});
        row(u"delete a.carnet --row 2 0 2 2"_s, {1, 3, 4});
        row(u"delete a.carnet --row 0 1 2 3 4"_s, {});
    }
    void deletesTheseRows() {
        QFETCH(QString, line);
        QFETCH(QList<int>, left);
        const Workshop shop;
        putFive(shop);
        const QJsonArray before = shop.records(u"a.carnet"_s);
        const Outcome outcome = shop.run(QStringList(u"--yes"_s) + line.split(u' '));
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.output, QByteArray());
        QCOMPARE(outcome.errors, u"beep\nquestion: Erase the selected dives?\n"_s);
        QJsonArray wanted;
        for (const int row : left) wanted.append(before[row]);
        QCOMPARE(shop.records(u"a.carnet"_s), wanted);
    }

    void renumbersInListOrder_data() {
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("from");
        const auto row = [](const QString& line, int from) {
            QTest::newRow(qPrintable(line)) << line << from;
        };
        row(u"renumber a.carnet --from 1"_s, 1);
        row(u"renumber --from 100 a.carnet"_s, 100);
        row(u"renumber a.carnet --from 0"_s, 0);
        row(u"renumber a.carnet --from -7"_s, -7);
    }
    void renumbersInListOrder() {
        QFETCH(QString, line);
        QFETCH(int, from);
        const Workshop shop;
        putFive(shop);
        QJsonArray wanted;
        for (const QJsonValue& dive : shop.records(u"a.carnet"_s)) {
            QJsonObject fields = dive.toObject();
            fields.insert(u"noPlongee"_s, from + int(wanted.size()));
            wanted.append(fields);
        }
        const Outcome outcome = shop.run(line.split(u' '));
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.output, QByteArray());
        QCOMPARE(outcome.status, 0);
        QCOMPARE(shop.records(u"a.carnet"_s), wanted);
    }

    void anExportIsTheSameInAFileAndOnStandardOutput_data() {
        QTest::addColumn<QString>("type");
        for (const auto& type :
             {u"csv-semicolon"_s, u"csv-comma"_s, u"txt-tab"_s, u"profiles-csv"_s, u"udcf"_s, u"uddf"_s,
              u"Export Carnet CSV (Point-virgule)"_s, u"Export Carnet CSV (Virgule)"_s,
              u"Export Carnet TXT (Tabulation)"_s, u"Export Profils CSV (Virgule)"_s,
              u"Export UDCF (Universal Dive Computer Format)"_s,
              u"Export UDDF (Universal Dive Data Format)"_s})
            QTest::newRow(qPrintable(type)) << type;
    }
    void anExportIsTheSameInAFileAndOnStandardOutput() {
        QFETCH(QString, type);
        const Workshop shop;
        putFive(shop);
        const auto before = shop.everything();
        // Some formats tell when they were written.
        const auto exported = [&](const QString& output) {
            return shop.run({u"export"_s, u"a.carnet"_s, u"--type"_s, type, u"-o"_s, output, u"--now"_s,
                             u"2016-06-07T14:30:00"_s});
        };
        const Outcome outcome = exported(u"out"_s);
        QCOMPARE(outcome.status, 0);
        const QByteArray written = shop.folder().content(u"out"_s);
        QVERIFY(!written.isEmpty());
        QCOMPARE(exported(u"-"_s).output, written);
        QCOMPARE(shop.folder().content(u"a.carnet"_s), before.value(u"a.carnet"_s));
    }
};

int runRowsTest(int argc, char** argv) {
    RowsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "RowsTest.moc"
