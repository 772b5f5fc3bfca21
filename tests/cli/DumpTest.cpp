#include <QTest>

#include "cli/CliTests.h"
#include "cli/Workshop.h"

using namespace Qt::StringLiterals;

namespace {

/// What version 27 does not archive any more, or never did.
QStringList fieldsNotArchived() {
    QStringList names{u"etranger"_s, u"computerMode"_s};
    for (const auto& stage : {u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s})
        names << u"deco_Level_"_s + stage + u"_sw"_s;
    for (const auto& pony : {u"Pony1"_s, u"Pony2"_s, u"Pony3"_s})
        names << u"vol"_s + pony << u"pressDepart"_s + pony << u"pressFin"_s + pony;
    return names;
}

QJsonArray withoutFieldsNotArchived(const QJsonArray& dives) {
    QJsonArray kept;
    for (const QJsonValue& dive : dives) {
        QJsonObject fields = dive.toObject();
        for (const QString& name : fieldsNotArchived()) fields.insert(name, 0);
        kept.append(fields);
    }
    return kept;
}

/// "dive 3: lieu" for the first difference, nothing when both are the same.
QString firstDifference(const QJsonArray& found, const QJsonArray& wanted) {
    if (found.size() != wanted.size()) return u"%1 dives, not %2"_s.arg(found.size()).arg(wanted.size());
    for (qsizetype row = 0; row < wanted.size(); ++row) {
        const QJsonObject one = found[row].toObject();
        const QJsonObject other = wanted[row].toObject();
        for (const QString& name : one.keys() + other.keys())
            if (one.value(name) != other.value(name)) return u"dive %1: %2"_s.arg(row).arg(name);
    }
    return {};
}

void addLogbooks() {
    QTest::addColumn<QString>("name");
    for (const QString& name : golden::logbooks()) QTest::newRow(qPrintable(name)) << name;
}

}  // namespace

class DumpTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void printsEveryFieldAsItWasRead_data() { addLogbooks(); }
    void printsEveryFieldAsItWasRead() {
        QFETCH(QString, name);
        const Workshop shop;
        shop.putGolden(name + u".carnet"_s, u"a.carnet"_s);
        const auto before = shop.everything();
        const Outcome outcome = shop.run({u"dump"_s, u"a.carnet"_s});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.errors, QString());
        const QJsonObject wanted = golden::json(name);
        QCOMPARE(firstDifference(outcome.json().value("records"_L1).toArray(),
                                 wanted.value("records"_L1).toArray()),
                 QString());
        for (const auto& key : {"type"_L1, "class"_L1, "version"_L1})
            QCOMPARE(outcome.json().value(key), wanted.value(key));
        QCOMPARE(outcome.json().size(), 4);
        QCOMPARE(shop.everything(), before);
    }

    void whatItPrintsLoadsAsTheSameDocument_data() { addLogbooks(); }
    void whatItPrintsLoadsAsTheSameDocument() {
        QFETCH(QString, name);
        if (name.contains("unknown-objects"_L1)) QSKIP("JSON does not carry objects of unknown classes");
        const Workshop shop;
        shop.putGolden(name + u".carnet"_s, u"a.carnet"_s);
        shop.put(u"a.json"_s, shop.run({u"dump"_s, u"a.carnet"_s}).output);
        const Outcome outcome = shop.run({u"load"_s, u"a.json"_s, u"-o"_s, u"b.carnet"_s});
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.output, QByteArray());
        QCOMPARE(shop.folder().names(), QStringList({u"a.carnet"_s, u"a.json"_s, u"b.carnet"_s}));
        const QJsonObject again = shop.run({u"dump"_s, u"b.carnet"_s}).json();
        QCOMPARE(firstDifference(again.value("records"_L1).toArray(),
                                 withoutFieldsNotArchived(golden::records(name))),
                 QString());
        QCOMPARE(again.value("version"_L1), QJsonValue(27));
    }

    // What is no longer archived is dropped, and a wreck's third bearing becomes the first, as in any save.
    void aRegisterLoadsAsItIsSaved_data() {
        QTest::addColumn<QString>("file");
        for (const QString& file : golden::files(u"*-v*"_s))
            if (!file.startsWith("resaved-"_L1) && !file.endsWith(".json"_L1) && !file.endsWith(".carnet"_L1))
                QTest::newRow(qPrintable(file)) << file;
    }
    void aRegisterLoadsAsItIsSaved() {
        QFETCH(QString, file);
        const Workshop shop;
        shop.putGolden(file, file);
        shop.putGolden(u"resaved-"_s + file, u"saved"_s);
        const Outcome dump = shop.run({u"dump"_s, file});
        QCOMPARE(dump.status, 0);
        QCOMPARE(dump.json().value("records"_L1).toArray(), golden::records(file.section(u'.', 0, 0)));
        shop.put(u"a.json"_s, dump.output);
        const Outcome load = shop.run({u"load"_s, u"a.json"_s, u"-o"_s, u"again"_s});
        QVERIFY2(load.status == 0, qPrintable(load.errors));
        QCOMPARE(shop.records(u"again"_s), shop.records(u"saved"_s));
    }

    void opensAFileUnderItsOwnTypeOnly_data() {
        QTest::addColumn<QString>("golden");
        QTest::addColumn<QString>("type");
        QTest::addColumn<bool>("opens");
        const auto row = [](const QString& golden, const QString& type, bool opens) {
            QTest::newRow(qPrintable(golden + u" as "_s + type)) << golden << type << opens;
        };
        row(u"plongee-v27.carnet"_s, u"Carnet de plongee"_s, true);
        row(u"plongee-v27.carnet"_s, u"Carnet"_s, false);
        row(u"plongee-v27.carnet"_s, u"Budget"_s, false);
        row(u"plongee-v27.carnet"_s, u"Export Carnet CSV (Virgule)"_s, false);
        row(u"plongee-v27.carnet"_s, u""_s, false);
        row(u"budget-v1.budget"_s, u"Budget"_s, true);
        row(u"budget-v1.budget"_s, u"Carnet de plongee"_s, false);
        row(u"epaves-v6.epaves"_s, u"Epaves"_s, true);
        row(u"epaves-v6.epaves"_s, u"epaves"_s, false);
    }
    void opensAFileUnderItsOwnTypeOnly() {
        QFETCH(QString, golden);
        QFETCH(QString, type);
        QFETCH(bool, opens);
        const Workshop shop;
        shop.putGolden(golden, u"a file"_s);
        const auto before = shop.everything();
        const Outcome outcome = shop.run({u"dump"_s, u"a file"_s, u"--as"_s, type});
        QCOMPARE(outcome.status, opens ? 0 : 1);
        QCOMPARE(outcome.output, opens ? shop.run({u"dump"_s, u"a file"_s}).output : QByteArray());
        if (!opens)
            QVERIFY2(isOneSentence(outcome.errors) && outcome.errors.contains("a file"_L1),
                     qPrintable(outcome.errors));
        QCOMPARE(shop.everything(), before);
    }

    void aFullStandardOutputIsAFailure() {
        const Workshop shop;
        shop.putGolden(u"plongee-v27.carnet"_s, u"a.carnet"_s);
        const Outcome outcome = shop.run({u"dump"_s, u"a.carnet"_s}, u"/dev/full"_s);
        QCOMPARE(outcome.status, 1);
        QVERIFY2(isOneSentence(outcome.errors), qPrintable(outcome.errors));
    }
};

int runDumpTest(int argc, char** argv) {
    DumpTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DumpTest.moc"
