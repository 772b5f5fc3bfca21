#include <QTest>

#include "cli/CliTests.h"
#include "cli/Workshop.h"

using namespace Qt::StringLiterals;

namespace {

QJsonObject dived() {
    return dive({{u"noPlongee"_s, 3},
                 {u"profilProfondeur"_s, QJsonArray{0, 12.25, 30}},
                 {u"ASC_Flag"_s, QJsonArray{0, 1, 0}},
                 {u"SLOW_Flag"_s, QJsonArray{1}},
                 {u"o2Mix"_s, 32},
                 {u"temps"_s, 50},
                 {u"pressionDepart"_s, 200},
                 {u"pressionFin"_s, 50},
                 {u"volumeBloc"_s, 12},
                 {u"pressionDepart_2"_s, 100},
                 {u"pressionFin_2"_s, 70},
                 {u"volumeBloc_2"_s, 7}});
}

}  // namespace

/// profile-data and gas.
class ProfileDataTest : public QObject {
    Q_OBJECT

    std::unique_ptr<Workshop> _shop;

    Outcome run(const QString& line) const { return _shop->run(line.split(u' ', Qt::SkipEmptyParts)); }

private Q_SLOTS:
    void init() {
        _shop = std::make_unique<Workshop>();
        _shop->putLogbook(u"a.carnet"_s, {dive({{u"noPlongee"_s, 1}}), dived()});
    }

    void showsTheSevenTexts() {
        const auto before = _shop->everything();
        const QJsonObject lists = run(u"profile-data a.carnet --row 1 --json --lang keys"_s).json();
        QCOMPARE(lists.keys(),
                 (QStringList{u"asc"_s, u"ceil"_s, u"depth"_s, u"gaz"_s, u"press"_s, u"slow"_s, u"surf"_s}));
        QCOMPARE(lists["depth"_L1],
                 (QJsonObject{{u"text"_s, u"0.0\n12.2\n30.0"_s}, {u"count"_s, u"Datas|3"_s}}));
        QCOMPARE(lists["asc"_L1], (QJsonObject{{u"text"_s, u"0\n1\n0"_s}, {u"count"_s, u"Datas|3"_s}}));
        for (const auto& list : {u"slow"_s, u"ceil"_s, u"surf"_s, u"gaz"_s, u"press"_s})
            QCOMPARE(lists[list], (QJsonObject{{u"text"_s, u""_s}, {u"count"_s, u"No datas"_s}}));
        QCOMPARE(_shop->everything(), before);
    }

    void replacesTheNamedLists() {
        _shop->put(u"depth.txt"_s, "0\n18,75\n3");
        _shop->put(u"gaz.txt"_s, "0\n2\n");
        const Outcome outcome =
            run(u"profile-data a.carnet --row 1 --replace depth=depth.txt gaz=gaz.txt --json"_s);
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.json()["depth"_L1]["text"_L1], QJsonValue(u"0.0\n18.8\n3.0"_s));
        const QJsonObject changed = _shop->record(u"a.carnet"_s, 1);
        QCOMPARE(changed["profilProfondeur"_L1], (QJsonArray{0, 18.75, 3}));
        QCOMPARE(changed["GAZ_Flag"_L1], (QJsonArray{0, 2, 0}));
        QCOMPARE(changed["ASC_Flag"_L1], (QJsonArray{0, 1, 0}));
        QCOMPARE(changed["SURF_Flag"_L1], QJsonValue(QJsonValue::Null));
        QCOMPARE(_shop->record(u"a.carnet"_s, 0)["noPlongee"_L1], QJsonValue(1));
    }

    void whatFailsWritesNothing_data() {
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("status");
        QTest::newRow("no file") << u"profile-data a.carnet --row 1 --replace depth=none.txt"_s << 1;
        QTest::newRow("one of two") << u"profile-data a.carnet --row 1 --replace asc=t.txt depth=none.txt"_s
                                    << 1;
        QTest::newRow("no list") << u"profile-data a.carnet --row 1 --replace deep=t.txt"_s << 2;
        QTest::newRow("no row") << u"profile-data a.carnet --row 2"_s << 1;
        QTest::newRow("no row, replacing") << u"profile-data a.carnet --row 2 --replace asc=t.txt"_s << 1;
        QTest::newRow("row left out") << u"profile-data a.carnet"_s << 2;
        QTest::newRow("gas: no row") << u"gas a.carnet --row -1"_s << 1;
        QTest::newRow("gas: row left out") << u"gas a.carnet"_s << 2;
    }
    void whatFailsWritesNothing() {
        QFETCH(QString, line);
        _shop->put(u"t.txt"_s, "1");
        const auto before = _shop->everything();
        const Outcome outcome = run(line);
        QTEST(outcome.status, "status");
        QCOMPARE(outcome.output, QByteArray());
        QVERIFY(outcome.errors.startsWith(u"sargan: "_s));
        QCOMPARE(_shop->everything(), before);
    }

    void tellsGasAndOxygen() {
        const QJsonObject gas = run(u"gas a.carnet --row 1 --json --lang keys"_s).json();
        // 0.32 * (30 / 10 + 1) = 1.28 bar, 0.54 % a minute, 50 minutes.
        QCOMPARE(gas, (QJsonObject{{u"deltaPressureField"_s, u"Delta pressure|150|1800"_s},
                                   {u"deltaPressure_2Field"_s, u"Delta pressure|30|210"_s},
                                   {u"delta"_s, 150},
                                   {u"volume"_s, 1800},
                                   {u"delta_2"_s, 30},
                                   {u"volume_2"_s, 210},
                                   {u"ppO2"_s, 1.28},
                                   {u"cns"_s, 27},
                                   {u"cnsText"_s, u"CNS|1.28|27"_s},
                                   {u"volumeConsomme"_s, 210}}));
    }

    void tellsThemInLines() {
        QCOMPARE(run(u"gas a.carnet --row 1"_s).text(),
                 u"deltaPressureField: 150 bar, 1800 l\ndeltaPressure_2Field: 30 bar, 210 l\n"
                 "cnsField: ppO₂ 1.28 bar, CNS 27.0 %\n"_s);
    }
};

int runProfileDataTest(int argc, char** argv) {
    ProfileDataTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ProfileDataTest.moc"
